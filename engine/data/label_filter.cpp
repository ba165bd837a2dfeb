#include "engine/data/label_filter.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

// From the top: the mark (bit 30), 4 bits of type, 12 of step, 14 of margin.
constexpr int kMark = 1 << 30;
constexpr int kTypeShift = 26;
constexpr int kStepShift = 14;
constexpr int kMaxStep = (1 << 12) - 1;
constexpr int kMarginMask = (1 << 14) - 1;
constexpr double kMarginUnits = 10000;
constexpr int kTypes = static_cast<int>(FilterType::NonePass);

FilterType toType(int type) {
    return type >= 1 && type <= kTypes ? static_cast<FilterType>(type) : FilterType::NonePass;
}

} // namespace

int encodeFilter(int type, int labelStep, double initialMargin) {
    const double margin = initialMargin > 0 ? std::min(initialMargin, 1.0) : 0.0; // NaN is no margin
    return kMark | static_cast<int>(toType(type)) << kTypeShift |
           std::clamp(labelStep, 1, kMaxStep) << kStepShift |
           static_cast<int>(std::lround(margin * kMarginUnits));
}

LabelFilter decodeFilter(int filter) {
    if (filter >= 0 && filter < kTypes)
        return {.type = toType(filter + 1)};
    if (filter < kMark)
        return {};
    const int step = filter >> kStepShift & kMaxStep;
    const int margin = filter & kMarginMask;
    return {toType((filter ^ kMark) >> kTypeShift), std::max(step, 1), std::min(margin / kMarginUnits, 1.0)};
}

} // namespace chartdraw
