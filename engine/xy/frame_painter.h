#pragma once
// Draws a chart with a plot area: area, zones, grid, axes, layers, marks and labels, in the order that
// layer.h tells.

namespace chartdraw {

class Canvas;
class XYChart;

void drawFrame(Canvas& canvas, XYChart& chart);

} // namespace chartdraw
