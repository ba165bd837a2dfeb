#pragma once
// The words of the codes that fields of the value classes hold, as a stored look and a list of changes name
// them.

#include <cstdint>
#include <span>
#include <string_view>

namespace model {

/// One code and its word.
struct Word {
    std::int64_t code;
    std::string_view word;
};
using Words = std::span<const Word>; ///< Empty: the field is a plain number.

namespace words {

inline constexpr Word alignment[] = {
    {7, "topLeft"},    {8, "top"},          {9, "topRight"},     {4, "left"},        {5, "center"},
    {6, "right"},      {1, "bottomLeft"},   {2, "bottom"},       {3, "bottomRight"}, {10, "topLeft2"},
    {11, "topRight2"}, {12, "bottomLeft2"}, {13, "bottomRight2"}};
inline constexpr Word side[] = {{4, "left"}, {6, "right"}, {8, "top"}, {2, "bottom"}};
inline constexpr Word colorType[] = {{0, "general"}, {1, "pattern"}, {2, "metal"}};
inline constexpr Word effectType[] = {
    {0, "border"}, {1, "softLighting"}, {2, "reducedGlare"}, {3, "normalGlare"}};
inline constexpr Word chartType[] = {{0, "pie"},   {1, "xy"},           {2, "finance"},
                                     {3, "polar"}, {4, "angularMeter"}, {5, "linearMeter"}};
inline constexpr Word labelLayout[] = {{0, "side"}, {1, "circle"}};
inline constexpr Word scaleType[] = {{0, "none"}, {1, "automatic"}, {2, "linear"}, {3, "date"}};
inline constexpr Word axisKind[] = {{0, "none"}, {1, "x"}, {2, "y"}, {4, "x2"}, {8, "y2"}, {16, "axis"}};
inline constexpr Word background[] = {{0, "colors"}, {1, "image"}, {2, "quarters"}};
inline constexpr Word combine[] = {{0, "overlay"}, {1, "stack"}, {3, "side"}, {4, "percentage"}};
inline constexpr Word lineType[] = {{0, "straight"}, {1, "spline"}, {2, "steps"}};
inline constexpr Word symbol[] = {
    {0, "none"},          {1, "square"},       {2, "diamond"},          {3, "triangle"},
    {4, "rightTriangle"}, {5, "leftTriangle"}, {6, "invertedTriangle"}, {7, "circle"},
    {8, "cross"},         {9, "slantedCross"}, {10, "flatCircle"}};
inline constexpr Word pointer[] = {{0, "diamond"}, {1, "triangle"}, {2, "arrow"},
                                   {3, "arrow2"},  {4, "line"},     {5, "pencil"}};
inline constexpr Word xyLayer[] = {{0, "bar"},  {1, "line"},       {2, "scatter"},
                                   {3, "area"}, {4, "boxWhisker"}, {5, "box"},
                                   {6, "hloc"}, {7, "gantt"},      {8, "candleStick"}};
inline constexpr Word polarLayer[] = {{0, "line"}, {1, "splineLine"}, {2, "area"}, {3, "splineArea"}};
inline constexpr Word pane[] = {{0, "main"}, {1, "rsi"}, {2, "momentum"}, {3, "slowStochastic"}, {4, "macd"}};

} // namespace words
} // namespace model
