#pragma once
// The pixels of a bitmap file in memory.

#include <QImage>
#include <span>

/// A part of the picture, good as long as the bytes. `bytes`: a bitmap file of 24 bits a pixel, rows bottom
/// up. `part` is limited to the picture; null if nothing of it is left.
QImage BitmapPart(std::span<const char> bytes, const QRect& part);

/// All of the picture.
QImage WholeBitmap(std::span<const char> bytes);
