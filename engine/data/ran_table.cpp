#include "engine/data/ran_table.h"

#include "engine/data/chart_time.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace chartdraw {

namespace {

constexpr double kLargest = 8e307;
constexpr double kFarBeyondCalendar = 1e15;

/// SplitMix64 (Steele, Lea and Flood 2014): a counter in steps of the golden ratio, and a mixing of its bits.
class Random {
public:
    Random(int seed, int column) : m_state(mix(mix(bits(seed) + kStep) + bits(column))) {}

    /// Evenly spread over [low, high]. Product and sum are apart, lest a compiler fuses them and rounds
    /// otherwise.
    double between(double low, double high) {
        m_state += kStep;
        const double part = static_cast<double>(mix(m_state) >> 11) * 0x1p-53;
        const double offset = (high - low) * part;
        return std::clamp(low + offset, low, high);
    }

private:
    static constexpr std::uint64_t kStep = 0x9e3779b97f4a7c15;

    static std::uint64_t bits(int number) { return static_cast<std::uint32_t>(number); }

    static std::uint64_t mix(std::uint64_t z) {
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
        z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
        return z ^ (z >> 31);
    }

    std::uint64_t m_state;
};

double limited(double number, double ifNaN, double most = kLargest) {
    return std::isnan(number) ? ifNaN : std::clamp(number, -most, most);
}

std::pair<double, double> ordered(double a, double b) {
    return {std::min(a, b), std::max(a, b)};
}

/// Whole days from a time to the nearest weekday on or after it, or on or before it.
int daysToWeekday(double time, bool backwards) {
    const int weekday = weekdayOf(time);
    if (weekday < 5)
        return 0;
    return backwards ? 4 - weekday : 7 - weekday;
}

} // namespace

RanTable::RanTable(int seed, int columns, int rows) : Object(kKind), m_seed(seed) {
    const int width = std::clamp(columns, 0, kMaxColumns);
    m_rows =
        static_cast<std::size_t>(std::clamp(rows, 0, std::min(kMaxRows, kMaxCells / std::max(width, 1))));
    m_columns.assign(static_cast<std::size_t>(width), std::vector<double>(m_rows));
}

bool RanTable::has(int column) const {
    return column >= 0 && column < std::ssize(m_columns);
}

std::span<const double> RanTable::column(int index) const {
    return has(index) ? std::span(m_columns[static_cast<std::size_t>(index)]) : std::span<const double>();
}

std::span<double> RanTable::cells(int column) {
    return has(column) ? std::span(m_columns[static_cast<std::size_t>(column)]) : std::span<double>();
}

void RanTable::setCol(int column, double minimum, double maximum) {
    const double first = limited(minimum, limited(maximum, 0));
    const auto [low, high] = ordered(first, limited(maximum, first));
    Random random(m_seed, column);
    for (double& cell : cells(column))
        cell = random.between(low, high);
}

void RanTable::setDateCol(int column, double start, double step, bool weekdaysOnly) {
    double origin = limited(start, 0, kFarBeyondCalendar);
    const double stride = limited(step, 0, kFarBeyondCalendar);
    double row = 0;
    for (double& cell : cells(column)) {
        const double offset = row * stride;
        if (weekdaysOnly)
            origin += daysToWeekday(origin + offset, stride < 0) * kSecondsPerDay;
        cell = origin + offset;
        ++row;
    }
}

void RanTable::setHLOCCols(int firstColumn, double start, double minDelta, double maxDelta, double lower,
                           double upper) {
    if (!has(firstColumn) || !has(firstColumn + 3))
        return;
    const auto [low, high] = ordered(limited(lower, -kLargest), limited(upper, kLargest));
    const auto [fall, rise] = ordered(limited(minDelta, 0), limited(maxDelta, 0));
    const double reach = (rise - fall) / 4; // how far a row's high and low stand off at most
    const auto highs = cells(firstColumn), lows = cells(firstColumn + 1), opens = cells(firstColumn + 2),
               closes = cells(firstColumn + 3);

    Random random(m_seed, firstColumn);
    double price = std::clamp(limited(start, 0), low, high);
    for (std::size_t row = 0; row < m_rows; ++row) {
        opens[row] = price;
        price = random.between(std::clamp(price + fall, low, high), std::clamp(price + rise, low, high));
        closes[row] = price;
        const auto [bottom, top] = ordered(opens[row], price);
        highs[row] = random.between(top, std::min(top + reach, high));
        lows[row] = random.between(std::max(bottom - reach, low), bottom);
    }
}

} // namespace chartdraw
