#pragma once
// The table of operations. A row names an operation, sets it to one of two values on a chart that has been
// drawn already, and says what the next picture must then show, and where: by figures that follow from the
// arguments, each of them another, so that two that are exchanged show as well.

#include "tests/engine/surface/scenes.h"
#include <vector>

namespace surface {
struct Row {
    const char* operation;
    void (*scene)(Scene& s);
    void (*set)(Scene& s, bool second);
    bool (*shows)(const Shot& shot, bool second);
};

/// What most rows do: one expression of the scene `s` and of `b`, whether the second value is meant, or of the shot
/// `p`, with INK of what is called `ink` in it.
#define SET(...) [](Scene& s, [[maybe_unused]] bool b) { __VA_ARGS__; }
#define SHOWS(...) [](const Shot& p, [[maybe_unused]] bool b) { return __VA_ARGS__; }
#define INK(area, ...)                                                                                                 \
    [](const Shot& p, [[maybe_unused]] bool b) {                                                                       \
        const QRect ink = area;                                                                                        \
        return __VA_ARGS__;                                                                                            \
    }

std::vector<Row> chartRows();
std::vector<Row> axisRows();
std::vector<Row> layerRows();
std::vector<Row> roundRows();

/// An image file of 20 x 10 pixels, blue, its left half brown.
const char* imageFile();
} // namespace surface
