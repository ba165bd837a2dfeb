#pragma once
// Images in and out: files read for wallpapers, patterns and draw areas, and the finished chart as bytes.

#include <QByteArray>
#include <QImage>
#include <string>

namespace chartdraw {

constexpr int kMaxSide = 16384;       ///< Pixels; larger pictures are not made and not read.
constexpr int kPixelsPerMetre = 3780; ///< Of a bitmap file: 96 pixels an inch.

/// Reads PNG, JPEG, GIF (first frame), BMP or WBMP from a file named in UTF-8. Null when it cannot be read or
/// is larger than kMaxSide a side. Images of the last few files are cached by path, size and date.
QImage loadPicture(const std::string& path);

/// The same for the bytes of a file. The format is told by their signature; not cached.
QImage decodePicture(const QByteArray& bytes);

/// A 24-bit bottom-up bitmap file: 14 bytes of file header, 40 of information, rows padded to 4 bytes.
/// Pixels that are not opaque are blended over white. Empty for a null image or one over kMaxSide a side.
QByteArray bitmapFile(const QImage& image);

} // namespace chartdraw
