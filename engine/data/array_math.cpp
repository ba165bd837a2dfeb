#include "engine/data/array_math.h"

#include "engine/data/no_value.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace chartdraw {

namespace {

// Calculations run on NaN in place of kNoValue: it spreads through arithmetic by itself.
constexpr double kGap = std::numeric_limits<double>::quiet_NaN();

double toNumber(double value) {
    return isValue(value) ? value : kGap;
}
double toStored(double number) {
    return std::isfinite(number) ? number : kNoValue;
}

double at(std::span<const double> series, std::size_t row) {
    return row < series.size() ? toNumber(series[row]) : kGap;
}

/// Sets each row to what `calculate` makes of it and of the same row of another series.
template <class Calculate>
void combine(std::vector<double>& values, std::span<const double> other, Calculate calculate) {
    for (std::size_t row = 0; row < values.size(); ++row)
        values[row] = toStored(calculate(toNumber(values[row]), at(other, row)));
}

template <class Test>
void select(std::vector<double>& values, std::span<const double> test, double fill, Test passes) {
    combine(
        values, test.empty() ? values : test,
        [=](double value, double tested) {
            return std::isnan(tested) || std::isnan(value) ? kGap : passes(tested) ? value : fill;
        });
}

/// Sets each row to the merger of the last `interval` rows. The rows are cut into blocks of that many: a
/// window is the end of one block and the beginning of the next, and both are merged once a row. Nothing is
/// ever taken away from a sum, so that no rounding error outlives its window.
/// Part: made of a number, merged with the part of the rows after it, giving its result.
template <class Part>
void moving(std::vector<double>& values, int interval) {
    const auto length = static_cast<std::size_t>(std::max(interval, 1));
    if (length > values.size()) {
        std::fill(values.begin(), values.end(), kNoValue);
        return;
    }
    std::vector<Part> parts(values.size()); // from a row to the end of its block
    for (std::size_t row = values.size(); row-- > 0;) {
        const Part own(toNumber(values[row]));
        const bool blockEnd = (row + 1) % length == 0 || row + 1 == values.size();
        parts[row] = blockEnd ? own : own.with(parts[row + 1]);
    }
    Part head; // from the beginning of the block to a row
    for (std::size_t row = 0; row < values.size(); ++row) {
        const Part own(toNumber(values[row]));
        const bool blockBegin = row % length == 0;
        head = blockBegin ? own : head.with(own);
        if (row + 1 < length) {
            values[row] = kNoValue;
        } else {
            const bool wholeBlock = (row + 1) % length == 0;
            values[row] = toStored((wholeBlock ? head : parts[row + 1 - length].with(head)).result());
        }
    }
}

struct Mean {
    double sum = 0;
    double count = 0;

    Mean() = default;
    explicit Mean(double number) : sum(number), count(1) {}
    Mean with(const Mean& next) const {
        Mean merged(sum + next.sum);
        merged.count = count + next.count;
        return merged;
    }
    double result() const { return sum / count; }
};

/// Mean and sum of squared distances to it, merged without the difference of large squares.
struct Deviation {
    double mean = 0;
    double squares = 0;
    double count = 0;

    Deviation() = default;
    explicit Deviation(double number) : mean(number), count(1) {}
    Deviation with(const Deviation& next) const {
        const double distance = next.mean - mean;
        Deviation merged;
        merged.count = count + next.count;
        merged.mean = mean + distance * (next.count / merged.count);
        merged.squares = squares + next.squares + distance * distance * (count * next.count / merged.count);
        return merged;
    }
    double result() const { return std::isnan(mean) ? kGap : std::sqrt(squares / count); }
};

/// The larger number, or with sign -1 the smaller one.
template <int Sign>
struct Extreme {
    double number = 0;

    Extreme() = default;
    explicit Extreme(double value) : number(value) {}
    Extreme with(const Extreme& next) const {
        return std::isnan(number) || Sign * number > Sign * next.number ? *this : next;
    }
    double result() const { return number; }
};

} // namespace

ArrayMath::ArrayMath(std::span<const double> values) : Object(kKind), m_values(values.begin(), values.end()) {
    for (double& value : m_values)
        value = toStored(toNumber(value));
}

void ArrayMath::add(std::span<const double> other) {
    combine(
        m_values, other, [](double a, double b) { return a + b; });
}

void ArrayMath::sub(std::span<const double> other) {
    combine(
        m_values, other, [](double a, double b) { return a - b; });
}

void ArrayMath::mul(double factor) {
    combine(
        m_values, {}, [b = toNumber(factor)](double a, double) { return a * b; });
}

void ArrayMath::div(double divisor) {
    combine(
        m_values, {}, [b = toNumber(divisor)](double a, double) { return a / b; });
}

void ArrayMath::financeDiv(std::span<const double> divisor, double zeroByZero) {
    combine(
        m_values, divisor, [=](double a, double b) { return a == 0 && b == 0 ? zeroByZero : a / b; });
}

void ArrayMath::abs() {
    combine(
        m_values, {}, [](double a, double) { return std::fabs(a); });
}

void ArrayMath::delta(int offset) {
    const auto back = std::min(static_cast<std::size_t>(std::max(offset, 1)), m_values.size());
    for (std::size_t row = m_values.size(); row-- > back;)
        m_values[row] = toStored(toNumber(m_values[row]) - toNumber(m_values[row - back]));
    std::fill_n(m_values.begin(), back, kNoValue);
}

void ArrayMath::movAvg(int interval) {
    moving<Mean>(m_values, interval);
}
void ArrayMath::movMax(int interval) {
    moving<Extreme<1>>(m_values, interval);
}
void ArrayMath::movMin(int interval) {
    moving<Extreme<-1>>(m_values, interval);
}
void ArrayMath::movStdDev(int interval) {
    moving<Deviation>(m_values, interval);
}

void ArrayMath::expAvg(double smoothing) {
    if (std::isnan(smoothing)) {
        std::fill(m_values.begin(), m_values.end(), kNoValue);
        return;
    }
    const double part = std::clamp(smoothing, 0.0, 1.0);
    double average = kGap;
    for (double& value : m_values) {
        if (isValue(value)) {
            average = std::isnan(average) ? value : std::lerp(average, value, part);
            value = toStored(average);
        }
    }
}

double ArrayMath::max() const {
    double largest = kGap;
    for (const double value : m_values)
        if (isValue(value) && !(largest >= value))
            largest = value;
    return std::isnan(largest) ? 0 : largest;
}

void ArrayMath::selectGTZ(std::span<const double> test, double fill) {
    select(
        m_values, test, fill, [](double tested) { return tested > 0; });
}

void ArrayMath::selectLTZ(std::span<const double> test, double fill) {
    select(
        m_values, test, fill, [](double tested) { return tested < 0; });
}

void ArrayMath::selectEQZ(std::span<const double> test, double fill) {
    select(
        m_values, test, fill, [](double tested) { return tested == 0; });
}

} // namespace chartdraw
