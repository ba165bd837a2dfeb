#pragma once
// From the plain arguments of the flat surface to the engine's values. Whatever a caller hands in becomes
// something defined here: null texts are empty, negative counts and null arrays hold nothing.

#include "engine/paint/colour.h"
#include "engine/text/text_block.h"

#include <span>
#include <string>
#include <vector>

namespace chartdraw {

inline std::string toText(const char* text) {
    return text != nullptr ? std::string(text) : std::string();
}

inline Colour toColour(int colour) {
    return static_cast<Colour>(colour);
}

inline std::span<const double> toSpan(const double* data, int count) {
    return data != nullptr && count > 0 ? std::span(data, static_cast<std::size_t>(count))
                                        : std::span<const double>();
}

inline std::vector<double> toDoubles(const double* data, int count) {
    const auto span = toSpan(data, count);
    return {span.begin(), span.end()};
}

inline std::vector<std::string> toTexts(const char* const* texts, int count) {
    std::vector<std::string> result;
    for (int i = 0; texts != nullptr && i < count; ++i)
        result.push_back(toText(texts[i]));
    return result;
}

inline std::vector<Colour> toColours(const int* colours, int count) {
    std::vector<Colour> result;
    for (int i = 0; colours != nullptr && i < count; ++i)
        result.push_back(toColour(colours[i]));
    return result;
}

/// An alignment code, or `fallback` where it is none.
inline int alignmentOr(int code, int fallback) {
    return code >= BottomLeft && code <= BottomRight2 ? code : fallback;
}

/// The look that the arguments of a label style say: font, size in points (0 or less: the default), colour.
inline TextLook toLook(const char* font, double size, int colour, double angle = 0) {
    TextLook look;
    look.font = toText(font);
    if (size > 0)
        look.size = size;
    look.colour = orDefault(toColour(colour), kTextColour);
    look.angle = angle;
    return look;
}

} // namespace chartdraw
