#include "engine/scale/auto_scale.h"

#include "engine/data/chart_time.h"
#include "engine/data/fast_loop.h"
#include "engine/scale/nice_numbers.h"
#include "engine/scale/tick_steps.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace chartdraw {
namespace {

constexpr double kLargest = 1e306; // leaves room for extensions
constexpr double kTinyRange = 1e-305;
constexpr double kMostDecades = 300;

struct Limits {
    double lower;
    double upper;

    double span() const { return upper - lower; }
};

/// Extensions as parts of the axis that leave at least a tenth of it to the data.
struct Extensions {
    double top;
    double bottom;

    explicit Extensions(const AutoScale& options) {
        static constexpr double most = 0.9;
        const auto part = [](double value) { return value > 0 ? std::min(value, most) : 0.0; };
        top = part(options.topExtension);
        bottom = part(options.bottomExtension);
        const double excess = std::max(1.0, (top + bottom) / most);
        top /= excess;
        bottom /= excess;
    }
    Limits extend(const Limits& data) const {
        const double length = data.span() / (1 - top - bottom);
        return {data.lower - bottom * length, data.upper + top * length};
    }
};

/// Zero as a limit where the options ask for it.
Limits withZero(Limits data, const AutoScale& options) {
    const double affinity = options.zeroAffinity > 0 ? std::min(options.zeroAffinity, 1.0) : 0.0;
    const double farthest = std::max(std::abs(data.lower), std::abs(data.upper));
    if (options.includeZero || data.span() >= (1 - affinity) * farthest) {
        data.lower = std::min(data.lower, 0.0);
        data.upper = std::max(data.upper, 0.0);
    }
    return data;
}

/// Constant data get room of a tenth of their size on either side, zero the room from 0 to 1.
Limits withRoom(const Limits& data) {
    const double size = std::max(std::abs(data.lower), std::abs(data.upper));
    if (data.span() > std::max(size * 1e-12, kTinyRange))
        return data;
    if (size <= kTinyRange)
        return {0, 1};
    return {data.lower - size * 0.1, data.upper + size * 0.1};
}

Limits notAcrossZero(Limits limits, const Limits& data) {
    if (data.lower >= 0)
        limits.lower = std::max(limits.lower, 0.0);
    if (data.upper <= 0)
        limits.upper = std::min(limits.upper, 0.0);
    return limits;
}

/// Limits on multiples of the smallest nice step of which the axis has room for all.
Limits onSteps(const Limits& limits, const Density& density) {
    const double most = mostSteps(density);
    double step = niceStep(limits.span() / most);
    while (ceilToStep(limits.upper, step) - floorToStep(limits.lower, step) > most)
        step = nextNiceStep(step);
    const int decimals = stepDecimals(step);
    return {roundToDecimals(floorToStep(limits.lower, step) * step, decimals),
            roundToDecimals(ceilToStep(limits.upper, step) * step, decimals)};
}

/// The nearest 1, 2 or 5 times a power of ten at or below `value` (above 0).
double floorTo125(double value) {
    const double decade = std::pow(10.0, std::floor(std::log10(value) + 1e-9));
    const double mantissa = value / decade * (1 + 1e-9);
    return decade * (mantissa >= 5 ? 5 : mantissa >= 2 ? 2 : 1);
}

constexpr std::size_t kLanes = 8;
constexpr double kNone = std::numeric_limits<double>::infinity();

/// Ranges that the processor finds together, of every eighth value each.
struct Lanes {
    double low[kLanes], high[kLanes], positive[kLanes];
    double gaps[kLanes]; ///< how many

    Lanes() {
        std::ranges::fill(low, kNone);
        std::ranges::fill(high, -kNone);
        std::ranges::fill(positive, kNone);
        std::ranges::fill(gaps, 0);
    }
    DataRange range() const {
        const double least = *std::ranges::min_element(low), most = *std::ranges::max_element(high);
        const double above = *std::ranges::min_element(positive);
        return {.min = least,
                .max = most,
                .minPositive = above < kNone ? above : 0,
                .empty = least == kNone,
                .gaps = std::accumulate(std::begin(gaps), std::end(gaps), 0.0) > 0};
    }
};

/// `count` is a multiple of the lanes. A line may have millions of points.
CHART_FAST_LOOP void look(const double* values, std::size_t count, Lanes& lanes) {
    constexpr double gap = std::numeric_limits<double>::quiet_NaN(); // neither above nor below anything
    Lanes found = lanes;
    for (std::size_t i = 0; i < count; i += kLanes) {
#pragma GCC unroll 1 // only what stays a loop is turned into operations on many numbers
        for (std::size_t k = 0; k < kLanes; ++k) {
            const double value = values[i + k];
            // One comparison finds gaps and the sizes about 1e308, which show on no axis.
            const bool isKnown = std::abs(value) < kNoValue;
            const double known = isKnown ? value : gap;
            const double above = known > 0 ? known : kNone;
            found.low[k] = known < found.low[k] ? known : found.low[k];
            found.high[k] = known > found.high[k] ? known : found.high[k];
            found.positive[k] = above < found.positive[k] ? above : found.positive[k];
            found.gaps[k] += isKnown ? 0.0 : 1.0;
        }
    }
    lanes = found;
}

} // namespace

void DataRange::add(double value) {
    if (isValue(value))
        add({.min = value, .max = value, .minPositive = std::max(value, 0.0), .empty = false});
    else
        gaps = true;
}

void DataRange::add(std::span<const double> values) {
    const std::size_t whole = values.size() / kLanes * kLanes;
    if (whole > 0) {
        Lanes lanes;
        look(values.data(), whole, lanes);
        add(lanes.range());
    }
    for (const double value : values.subspan(whole))
        add(value);
}

void DataRange::add(const DataRange& other) {
    gaps = gaps || other.gaps;
    if (other.empty)
        return;
    min = empty ? other.min : std::min(min, other.min);
    max = empty ? other.max : std::max(max, other.max);
    if (other.minPositive > 0 && (minPositive <= 0 || other.minPositive < minPositive))
        minPositive = other.minPositive;
    empty = false;
}

Scale autoLinearScale(const DataRange& data, const AutoScale& options, const Density& density) {
    if (data.empty)
        return Scale::linear(options.symmetric ? -1 : 0, 1);
    Limits limits{std::clamp(data.min, -kLargest, kLargest), std::clamp(data.max, -kLargest, kLargest)};
    const Limits shown = withZero(limits, options);
    limits = notAcrossZero(Extensions(options).extend(withRoom(shown)), shown);
    if (options.symmetric) {
        const double size = std::max(std::abs(limits.lower), std::abs(limits.upper));
        limits = {-size, size};
    }
    limits = onSteps(limits, density);
    return Scale::linear(limits.lower, limits.upper);
}

Scale autoLogScale(const DataRange& data, const AutoScale& options, const Density& density) {
    if (data.empty || data.minPositive <= 0)
        return Scale::log(1, 10);
    Limits decades{std::clamp(std::log10(data.minPositive), -kMostDecades, kMostDecades),
                   std::clamp(std::log10(data.max), -kMostDecades, kMostDecades)};
    constexpr double same = 1e-6;
    if (decades.span() < same)
        return Scale::log(std::pow(10.0, std::ceil(decades.lower - same) - 1),
                          std::pow(10.0, std::floor(decades.upper + same) + 1));
    decades = Extensions(options).extend(decades);
    decades = {std::max(decades.lower, -kMostDecades), std::min(decades.upper, kMostDecades)};
    const double lower = std::pow(10.0, decades.lower);
    const double upper = std::pow(10.0, decades.upper);
    if (decades.span() >= 3)
        return Scale::log(std::pow(10.0, std::floor(decades.lower + same)),
                          std::pow(10.0, std::ceil(decades.upper - same)));
    const Limits round125{floorTo125(lower), 10 / floorTo125(10 / upper)};
    if (decades.span() >= 1)
        return Scale::log(round125.lower, round125.upper);
    const Limits round = onSteps({lower, upper}, density);
    return Scale::log(round.lower > 0 ? round.lower : round125.lower, round.upper);
}

Scale autoDateScale(const DataRange& data, const AutoScale& options) {
    if (data.empty)
        return Scale::date(chartTime(2000, 1, 1), chartTime(2000, 1, 2));
    const Limits times{std::clamp(data.min, kFirstChartTime, kLastChartTime),
                       std::clamp(data.max, kFirstChartTime, kLastChartTime)};
    const Limits limits = Extensions(options).extend(times);
    return Scale::date(limits.lower, limits.upper);
}

} // namespace chartdraw
