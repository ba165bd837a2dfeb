#pragma once
// What a raised effect lays over a shape that has been filled: light and shade that let the fill through, so
// that they work alike on plain colours, patterns, metals, images and nothing at all.

#include "engine/paint/corners.h"
#include "engine/paint/effect.h"

#include <QPainter>
#include <QPainterPath>

namespace chartdraw {

/// Draws the effect over a box with rounded corners.
void lightBox(QPainter& painter, const QRect& rect, const Corners& corners, const Effect& effect);

/// Draws the effect over a closed path, within its outline.
void lightPath(QPainter& painter, const QPainterPath& path, const Effect& effect);

} // namespace chartdraw
