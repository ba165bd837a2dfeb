#pragma once
// From pixels in memory to pixels in a bitmap file.

#include <QRgb>

namespace chartdraw {

/// Writes premultiplied pixels as three bytes each (blue, green, red), over white where they are not opaque:
/// 3 * `count` bytes and none behind them.
void packRow(const QRgb* pixels, int count, uchar* bytes);

/// The same on any processor.
void packRowAnywhere(const QRgb* pixels, int count, uchar* bytes);

} // namespace chartdraw
