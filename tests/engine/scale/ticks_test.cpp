// Automatic limits and ticks. Expected ticks are worked by hand from the axis's length and spacing, dates
// from the calendar.

#include "engine/data/chart_time.h"
#include "engine/data/no_value.h"
#include "engine/scale/auto_scale.h"
#include "engine/scale/ticks.h"
#include "tests/expect.h"
#include <cfloat>
#include <cmath>
#include <limits>
#include <set>

using namespace chartdraw;

namespace {
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

DataRange range(std::initializer_list<double> values) {
    DataRange data;
    for (const double value : values) data.add(value);
    return data;
}

std::string labels(const Ticks& ticks) {
    std::string text;
    for (const Tick& tick : ticks.major) {
        text += text.empty() ? "" : " | ";
        for (const char c : tick.label) text += c == '\n' ? '/' : c;
    }
    return text;
}

/// What holds for the ticks of any scale: ascending, on the scale, no more than one for two pixels, no two
/// labels alike and none empty.
void expectSound(const Ticks& ticks, const Scale& scale, double lengthPx) {
    std::set<std::string> texts;
    std::vector<double> major;
    for (const Tick& tick : ticks.major) {
        EXPECT_FALSE(tick.label.empty());
        EXPECT_TRUE(texts.insert(tick.label).second) << tick.label;
        major.push_back(tick.value);
    }
    std::set<double> all;
    std::size_t count = 0;
    for (const std::vector<double>& values : {major, ticks.minor, ticks.micro}) {
        EXPECT_TRUE(std::is_sorted(values.begin(), values.end()));
        for (const double value : values) EXPECT_TRUE(scale.contains(value)) << value;
        EXPECT_LE(static_cast<double>(values.size()), lengthPx / 2 + 2);
        all.insert(values.begin(), values.end());
        count += values.size();
    }
    EXPECT_EQ(all.size(), count) << "a value in two lists";
}

struct AutoCase {
    std::initializer_list<double> data;
    AutoScale options;
    const char* ticks;
};
} // namespace

TEST(AutoScale, LinearLimits) {
    const AutoScale tight{0, 0, 0};
    const AutoCase cases[] = {
        // 270 pixels at 32 give room for eight steps.
        {{0, 100}, tight, "0 | 20 | 40 | 60 | 80 | 100"},
        {{0, 101}, tight, "0 | 20 | 40 | 60 | 80 | 100 | 120"},
        {{10, 195}, tight, "0 | 25 | 50 | 75 | 100 | 125 | 150 | 175 | 200"},
        {{0.1, 0.3}, tight, "0.10 | 0.15 | 0.20 | 0.25 | 0.30"},
        {{-3, 5}, tight, "-3 | -2 | -1 | 0 | 1 | 2 | 3 | 4 | 5"},
        {{1e9, 1e9 + 1},
         tight,
         "1000000000.0 | 1000000000.2 | 1000000000.4 | 1000000000.6 | 1000000000.8 | 1000000001.0"},
        {{-1e300, 1e300},
         tight,
         "-1.00e300 | -0.75e300 | -0.50e300 | -0.25e300 | 0 | 0.25e300 | 0.50e300 | 0.75e300 | 1.00e300"},
        {{0, 1e-300}, tight, "0 | 0.2e-300 | 0.4e-300 | 0.6e-300 | 0.8e-300 | 1.0e-300"},
        // A tenth of the axis free above: 80 / 0.9 is 88.9; nothing free below zero.
        {{0, 80}, {0.1, 0.1, 0}, "0 | 20 | 40 | 60 | 80 | 100"},
        // 20 pixels' worth free below only: 85 - 35 * 0.05 / 0.95 is 83.2.
        {{85, 120}, {0, 0.05, 0}, "80 | 85 | 90 | 95 | 100 | 105 | 110 | 115 | 120"},
        // Zero affinity 0.8: shown if the data fill a fifth of the axis from zero.
        {{70, 100}, {0, 0, 0.8}, "0 | 20 | 40 | 60 | 80 | 100"},
        {{90, 100}, {0, 0, 0.8}, "90 | 92 | 94 | 96 | 98 | 100"},
        {{-100, -70}, {0, 0, 0.8}, "-100 | -80 | -60 | -40 | -20 | 0"},
        {{999, 1000}, {0, 0, 1}, "0 | 200 | 400 | 600 | 800 | 1000"},
        {{999, 1000}, {0, 0, 0, true}, "0 | 200 | 400 | 600 | 800 | 1000"},
        {{-20, 70}, {0, 0, 0, false, true}, "-80 | -60 | -40 | -20 | 0 | 20 | 40 | 60 | 80"},
        // Constant data: a tenth of their size to either side, 0 to 1 for zero.
        {{50, 50}, tight, "45 | 46 | 47 | 48 | 49 | 50 | 51 | 52 | 53 | 54 | 55"},
        {{0}, tight, "0.0 | 0.2 | 0.4 | 0.6 | 0.8 | 1.0"},
        {{}, tight, "0.0 | 0.2 | 0.4 | 0.6 | 0.8 | 1.0"},
        {{kNan, kNoValue, kInf, 3, 6}, tight, "3.0 | 3.5 | 4.0 | 4.5 | 5.0 | 5.5 | 6.0"},
        {{0, 9}, {kNan, -3, kNan}, "0 | 2 | 4 | 6 | 8 | 10"},
    };
    for (const AutoCase& c : cases) {
        const double length = std::string(c.ticks).starts_with("45") ? 330 : 270;
        const Scale scale = autoLinearScale(range(c.data), c.options, {length});
        const Ticks ticks = linearTicks(scale, {}, {length});
        EXPECT_EQS((labels(ticks), c.ticks), (ticks.major.front().value, scale.lower()),
                   (ticks.major.back().value, scale.upper()));
    }
}

TEST(AutoScale, RangesOfData) {
    const std::vector<double> values = {4, kNan, -2, kNoValue, 0.5, -kInf, 0};
    DataRange data;
    data.add(values);
    EXPECT_EQS((data.empty, false), (data.min, -2), (data.max, 4), (data.minPositive, 0.5));
    data.add(range({}));
    data.add(range({9, 0.25}));
    EXPECT_EQS((data.max, 9), (data.minPositive, 0.25));
    DataRange gaps;
    gaps.add(std::vector<double>{kNan, kNoValue});
    EXPECT_TRUE(gaps.empty);
}

TEST(AutoScale, DatesKeepTheirLimits) {
    const double day = chartTime(2003, 5, 1);
    const Scale plain = autoDateScale(range({day, day + 80000}), {0, 0, 0});
    EXPECT_EQS((plain.lower(), day), (plain.upper(), day + 80000));
    EXPECT_EQ(autoDateScale(range({day, day + 80000}), {0.1, 0.1, 0}).upper(), day + 90000) << "a tenth of 100000";
    EXPECT_EQ(autoDateScale({}, {}).lower(), chartTime(2000, 1, 1));
    EXPECT_EQ(autoDateScale(range({1e300}), {}).upper(), kLastChartTime + 1);
}

TEST(AutoScale, AnyDataGiveLimitsOnTicks) {
    const double values[] = {-DBL_MAX, -1e300, -123.4,  -1e-300, 0,     DBL_MIN, 1e-300,
                             0.7,      1e9,    1e9 + 1, 1e15,    1e300, DBL_MAX};
    const double extensions[] = {0, 0.1, 0.9, 5};
    for (const double a : values)
        for (const double b : values)
            for (const double extension : extensions)
                for (const double length : {1.0, 40.0, 270.0, 3000.0}) {
                    const AutoScale options{extension, extension / 2, 0.3};
                    const Scale scale = autoLinearScale(range({a, b}), options, {length});
                    for (const double value : {a, b})
                        EXPECT_TRUE(scale.contains(std::clamp(value, -1e306, 1e306))) << a << ' ' << b;
                    const Ticks ticks = linearTicks(scale, {}, {length});
                    ASSERT_GE(ticks.major.size(), 2u) << a << ' ' << b << ' ' << length;
                    expectSound(ticks, scale, std::max(length, 10.0));
                    expectSound(logTicks(autoLogScale(range({a, b}), options, {length}), {length, 0, 5}),
                                autoLogScale(range({a, b}), options, {length}), std::max(length, 10.0));
                }
}

TEST(LinearTicks, GivenIncrements) {
    using Case = std::tuple<Scale, Increments, const char*, std::size_t, std::size_t>;
    const Case cases[] = {
        {Scale::linear(0, 100), {10, 5, 1}, "0 | 10 | 20 | 30 | 40 | 50 | 60 | 70 | 80 | 90 | 100", 10, 80},
        {Scale::linear(-6, 6), {3, 0, 0}, "-6 | -3 | 0 | 3 | 6", 0, 0},
        {Scale::linear(3, 100), {30, 10, 0}, "3 | 33 | 63 | 93", 6, 0}, // counted from the lower limit
        {Scale::linear(0, 1), {0.3, 0, 0}, "0.0 | 0.3 | 0.6 | 0.9", 0, 0},
        {Scale::linear(0, 100), {30, 50, 0}, "0 | 30 | 60 | 90", 0, 0}, // minor above major: none
        {Scale::linear(0, 100), {500, 0, 0}, "0", 0, 0},
        // 300 pixels: nine automatic steps; minor ticks at least two pixels apart.
        {Scale::linear(0, 100), {1e-4, 1e-5, 0}, "0 | 20 | 40 | 60 | 80 | 100", 95, 0},
        {Scale::linear(0, 100), {-5, kNan, kInf}, "0 | 20 | 40 | 60 | 80 | 100", 0, 0},
        {Scale::linear(0, 100), {1e-320, 0, 0}, "0 | 20 | 40 | 60 | 80 | 100", 0, 0},
        {Scale::linear(3.7, 6.1), {2, 0, 0}, "3.7 | 5.7", 0, 0},
    };
    for (const auto& [scale, increments, major, minor, micro] : cases) {
        const Ticks ticks = linearTicks(scale, increments, {300});
        EXPECT_EQ(labels(ticks), major);
        EXPECT_EQ(ticks.minor.size(), minor) << major;
        EXPECT_EQ(ticks.micro.size(), micro) << major;
        expectSound(ticks, scale, 300);
    }
}

TEST(LinearTicks, DensityAndItems) {
    const Scale scale = Scale::linear(0, 100);
    EXPECT_EQ(labels(linearTicks(scale, {}, {300, 100})), "0 | 50 | 100");
    EXPECT_EQ(labels(linearTicks(scale, {}, {300, 60})), "0 | 20 | 40 | 60 | 80 | 100");
    EXPECT_EQ(linearTicks(scale, {}, {300, 60, 10}).minor.size(), 15u) << "fives between twenties";
    EXPECT_EQ(linearTicks(scale, {}, {300, 60, 40}).minor.size(), 0u);
    EXPECT_EQ(labels(linearTicks(Scale::linear(3.7, 9.1), {}, {60})), "4 | 6 | 8") << "two at least";
    EXPECT_EQ(labels(makeTicks(Scale::items(5, true), {}, {300})), "0 | 1 | 2 | 3 | 4");
    EXPECT_EQ(labels(makeTicks(Scale::items(4, false), {}, {3000})), "0 | 1 | 2 | 3") << "no half items";
    EXPECT_EQ(labels(makeTicks(Scale::items(50, true), {}, {300})), "0 | 10 | 20 | 30 | 40");
}

TEST(LogTicks, DecadesAndParts) {
    using Case = std::tuple<double, double, double, const char*, std::size_t>;
    const Case cases[] = {
        // 270 pixels over four decades: 67 each, room for 2 to 9 three pixels apart; over twelve: 22 each, room for 2
        // and 5 and the decades between the labels (37 in all, less 7).
        {3, 4000, 270, "1 | 10 | 100 | 1000 | 10000", 32},
        {1, 1e12, 270, "1 | 100 | 10000 | 1000000 | 100000000 | 10000000000 | 1000000000000", 30},
        {2e-8, 0.7, 270, "1e-8 | 1e-7 | 1e-6 | 1e-5 | 1e-4 | 1e-3 | 1e-2 | 1e-1 | 1e0", 16},
        {1.5, 60, 270, "1 | 2 | 5 | 10 | 20 | 50 | 100", 12},
        {85, 120, 270, "85 | 90 | 95 | 100 | 105 | 110 | 115 | 120", 28},
        {100, 100, 270, "10 | 20 | 50 | 100 | 200 | 500 | 1000", 12},
        {-5, -1, 200, "1 | 2 | 5 | 10", 6},
        {-5, 1000, 100, "100 | 1000 | 10000", 4},
    };
    for (const auto& [from, to, length, major, minor] : cases) {
        const Density density{length, 0, 3};
        const Scale scale = autoLogScale(range({from, to}), {0, 0, 0}, density);
        const Ticks ticks = logTicks(scale, density);
        EXPECT_EQ(labels(ticks), major) << from << ".." << to;
        EXPECT_EQ(ticks.minor.size(), minor) << major;
        expectSound(ticks, scale, length);
    }
    EXPECT_EQ(labels(logTicks(Scale::log(1, 10), {2000})), "1 | 2 | 3 | 4 | 5 | 6 | 7 | 8 | 9 | 10");
    // One notation for all: 10000000000 does not stand beside 1e20.
    EXPECT_EQ(labels(logTicks(Scale::log(1, 1e20), {140})), "1e0 | 1e5 | 1e10 | 1e15 | 1e20");
    EXPECT_EQ(labels(logTicks(Scale::log(1e-20, 1), {140})), "1e-20 | 1e-15 | 1e-10 | 1e-5 | 1e0");
}

TEST(DateTicks, CalendarBorders) {
    using Case = std::tuple<double, double, double, const char*>;
    const Case cases[] = {
        {chartTime(1900, 1, 1), chartTime(2024, 2, 1), 400, "1900 | 1920 | 1940 | 1960 | 1980 | 2000 | 2020"},
        {chartTime(2019, 7, 1), chartTime(2024, 2, 1), 400, "2020 | 2021 | 2022 | 2023 | 2024"},
        {chartTime(2022, 11, 1), chartTime(2024, 2, 1), 400, "Jan/2023 | Apr | Jul | Oct | Jan/2024"},
        {chartTime(2002, 10, 16), chartTime(2003, 3, 4), 400, "Nov/2002 | Dec | Jan/2003 | Feb | Mar"},
        // 1 January 2024 was a Monday.
        {chartTime(2023, 12, 20), chartTime(2024, 1, 20), 400, "25 Dec/2023 | 1 Jan/2024 | 8 Jan | 15 Jan"},
        {chartTime(2024, 2, 27, 12), chartTime(2024, 3, 2), 300, "28 Feb/2024 | 29 Feb | 1 Mar | 2 Mar"},
        {chartTime(2024, 1, 1, 9, 30), chartTime(2024, 1, 3, 1), 300,
         "12:00/1 Jan 2024 | 00:00/2 Jan | 12:00 | 00:00/3 Jan"},
        {chartTime(2024, 1, 1, 9, 50), chartTime(2024, 1, 1, 12), 300,
         "10:00/1 Jan 2024 | 10:30 | 11:00 | 11:30 | 12:00"},
        {chartTime(2024, 1, 1, 9, 50, 20), chartTime(2024, 1, 1, 9, 51, 10), 300,
         "09:50:20/1 Jan 2024 | 09:50:30 | 09:50:40 | 09:50:50 | 09:51:00 | 09:51:10"},
        // The month that was wanted begins nowhere here: Mondays instead.
        {chartTime(2024, 1, 2), chartTime(2024, 1, 30), 100, "8 Jan/2024 | 15 Jan | 22 Jan | 29 Jan"},
    };
    for (const auto& [lower, upper, length, major] : cases) {
        const Scale scale = Scale::date(lower, upper);
        const Ticks ticks = dateTicks(scale, {}, {length, 0, 6});
        EXPECT_EQ(labels(ticks), major);
        expectSound(ticks, scale, length);
    }
}

TEST(DateTicks, GivenIncrementsCountFromTheLowerLimit) {
    const double friday = chartTime(2024, 1, 5);
    const Scale month = Scale::date(friday, chartTime(2024, 2, 5));
    const Ticks weekly = dateTicks(month, {7 * 86400.0, 86400, 0}, {400});
    EXPECT_EQ(labels(weekly), "5 Jan/2024 | 12 Jan | 19 Jan | 26 Jan | 2 Feb");
    EXPECT_EQ(weekly.minor.size(), 27u) << "32 days less five majors";
    EXPECT_EQ(labels(dateTicks(month, {30 * 86400.0, 0, 0}, {400})), "5 Jan/2024 | 4 Feb");
    EXPECT_EQ(labels(dateTicks(month, {1, 0, 0}, {400})), "8 Jan/2024 | 15 Jan | 22 Jan | 29 Jan | 5 Feb")
        << "far too small: automatic";
}

TEST(AllTicks, HostileRequestsAreAnsweredAtOnce) {
    const double numbers[] = {0, -1, 1e-320, 1e-9, 0.3, 86400, 1e300, DBL_MAX, kNan, kInf, kNoValue};
    for (const Scale& scale : {Scale::linear(0, 1e-300), Scale::linear(-1e308, 1e308), Scale::linear(1e9, 1e9 + 0.01),
                               Scale::log(1e-300, 1e300), Scale::log(1, 1.00001), Scale::date(0, 1e300),
                               Scale::date(63e9, 63e9 + 1), Scale::items(1000000, true)})
        for (const double major : numbers)
            for (const double minor : numbers)
                for (const double length : {-5.0, 1.0, 333.0, 20000.0, 1e300, kNan}) {
                    const Ticks ticks = makeTicks(scale, {major, minor, minor / 7}, {length, 0, 5});
                    ASSERT_LE(ticks.major.size(), 50'003u);
                    if (length <= 333) expectSound(ticks, scale, std::max(length, 30.0));
                }
}
