#pragma once
// The registry of the gallery: families of small charts, drawn through the flat surface alone. A source file
// holds one family and registers it by a file-level `const gallery::Family`.

#include <chartdraw/surface.h>

#include <string>
#include <vector>

namespace gallery {

/// One small chart. `make` builds it; the gallery makes the picture and destroys the chart.
struct Case {
    const char* caption;
    BaseChart* (*make)();
};

class Family {
public:
    Family(const char* name, std::vector<Case> cases);
};

/// Points of a font size, multiplied by what the command line asks for: use it for every font.
double points(double size);

/// An XY chart with its axes, for texts that come close to each other and to the border of the picture.
struct Chart {
    XYChart* xy = CXYChart_create(360, 260, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    BaseChart* base = XYChart2BaseChart(xy);
    Axis* x = CXYChart_xAxis(xy);
    Axis* y = CXYChart_yAxis(xy);

    explicit Chart(int left = 50) {
        CXYChart_setPlotArea(xy, left, 35, 345 - left, 180, -1, -1, -1, -1, -1);
        for (Axis* axis : {x, y})
            CAxis_setLabelStyle(axis, nullptr, points(8), -1, 0);
    }
    void addLine(const std::vector<double>& data) const {
        CXYChart_addLineLayer(xy, data.data(), static_cast<int>(data.size()), -1, nullptr, 0);
    }
    void addBars(const std::vector<double>& data, const char* name = nullptr) const {
        CXYChart_addBarLayer(xy, data.data(), static_cast<int>(data.size()), -1, name, 0);
    }
    static void label(Layer* layer) { CLayer_setDataLabelStyle(layer, nullptr, points(8), -1, 0); }
};

/// The path of a small PNG file (a wallpaper of 120 x 80 pixels) that lives as long as the program.
const char* sampleImage();

} // namespace gallery
