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

/// The path of a small PNG file (a wallpaper of 120 x 80 pixels) that lives as long as the program.
const char* sampleImage();

} // namespace gallery
