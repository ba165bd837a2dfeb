#pragma once
// What a raised effect lays over a shape that has been filled: light and shade that let the fill through, so
// that they work alike on plain colours, patterns, metals, images and nothing at all.

#include "engine/paint/effect.h"

#include <QBrush>
#include <QPainter>
#include <QPainterPath>

namespace chartdraw {

/// Draws the effect over the upright rectangle `rect`.
void lightRect(QPainter& painter, const QRect& rect, const Effect& effect);

/// Draws the effect over a path, within its outline.
void lightPath(QPainter& painter, const QPainterPath& path, const Effect& effect);

} // namespace chartdraw
