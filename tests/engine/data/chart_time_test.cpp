#include "engine/data/chart_time.h"
#include "tests/expect.h"
#include <climits>
#include <limits>
#include <vector>

namespace chartdraw {
namespace {
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
} // namespace

struct KnownDate {
    int year, month, day;
    double time; ///< seconds; -1 where no figure is at hand
    int weekday;
};

// Weekdays of dated events in almanacs; 62135596800 is the published distance from year 1 to the Unix epoch.
TEST(ChartTime, KnownDates) {
    const KnownDate dates[] = {
        {1, 1, 1, 0, 0},                        // Monday
        {1, 1, 2, 86400, 1},                    //
        {4, 12, 31, 1461 * 86400.0 - 86400, 4}, // the first leap year ends 1461 days after the beginning
        {1582, 10, 15, -1, 4},                  // the calendar's first day of use, a Friday
        {1776, 7, 4, -1, 3},                    // Thursday
        {1900, 3, 1, -1, 3},                    // Thursday, no 29 February before it
        {1969, 7, 20, -1, 6},                   // Sunday
        {1970, 1, 1, 62135596800, 3},           // Thursday
        {2000, 2, 29, -1, 1},                   // Tuesday of a leap century
        {2002, 9, 4, -1, 2},                    // Wednesday
        {9999, 12, 31, 315537811200, 4},        // Friday
    };
    for (const KnownDate& date : dates) {
        SCOPED_TRACE(date.year * 10000 + date.month * 100 + date.day);
        const double time = chartTime(date.year, date.month, date.day);
        if (date.time >= 0) EXPECT_EQ(time, date.time);
        EXPECT_EQS((toCivil(time), (CivilTime{date.year, date.month, date.day, 0, 0, 0, date.weekday})),
                   (weekdayOf(time), date.weekday), (weekdayOf(time + 86399.0), date.weekday),
                   (getChartYMD(time), date.year * 10000 + date.month * 100 + date.day));
    }
}

// Walks the whole calendar with nothing but the lengths of months and the rule of leap years.
TEST(ChartTime, EveryDayBothWays) {
    const int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    double time = 0;
    int weekday = 0;
    for (int year = 1; year <= 9999; ++year) {
        const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
        for (int month = 1; month <= 12; ++month) {
            const int length = lengths[month - 1] + (leap && month == 2 ? 1 : 0);
            for (int day = 1; day <= length; ++day) {
                ASSERT_EQ(chartTime(year, month, day), time) << year << '-' << month << '-' << day;
                ASSERT_EQ(toCivil(time), (CivilTime{year, month, day, 0, 0, 0, weekday}));
                weekday = (weekday + 1) % 7;
                time += 86400;
            }
        }
    }
    EXPECT_EQ(time, 315537897600.0); // 3652059 days
}

TEST(ChartTime, PartsOutOfRangeRollOn) {
    struct Case {
        int parts[6];
        int rolled[6];
    };
    const Case cases[] = {
        {{2003, 13, 1, 0, 0, 0}, {2004, 1, 1, 0, 0, 0}},
        {{2003, 25, 1, 0, 0, 0}, {2005, 1, 1, 0, 0, 0}},
        {{2003, 0, 1, 0, 0, 0}, {2002, 12, 1, 0, 0, 0}},
        {{2003, -11, 1, 0, 0, 0}, {2002, 1, 1, 0, 0, 0}},
        {{2003, -12, 1, 0, 0, 0}, {2001, 12, 1, 0, 0, 0}},
        {{2003, 2, 31, 0, 0, 0}, {2003, 3, 3, 0, 0, 0}},
        {{2004, 2, 31, 0, 0, 0}, {2004, 3, 2, 0, 0, 0}},
        {{2003, 3, 0, 0, 0, 0}, {2003, 2, 28, 0, 0, 0}},
        {{2003, 1, 366, 0, 0, 0}, {2004, 1, 1, 0, 0, 0}},
        {{2003, 1, 1, 24, 0, 0}, {2003, 1, 2, 0, 0, 0}},
        {{2003, 1, 1, 0, 0, -1}, {2002, 12, 31, 23, 59, 59}},
        {{2003, 1, 1, 0, -61, 0}, {2002, 12, 31, 22, 59, 0}},
        {{0, 13, 1, 0, 0, 0}, {1, 1, 1, 0, 0, 0}},
        {{-1, 12, 399, 0, 0, 0}, {1, 1, 2, 0, 0, 0}}, // over 31 days of December and the leap year 0
        {{10000, 0, 31, 23, 59, 59}, {9999, 12, 31, 23, 59, 59}},
    };
    for (const Case& c : cases) {
        const int* p = c.parts;
        const int* r = c.rolled;
        const double time = chartTime(p[0], p[1], p[2], p[3], p[4], p[5]);
        const CivilTime civil = toCivil(time);
        EXPECT_EQ((std::vector{civil.year, civil.month, civil.day, civil.hour, civil.minute, civil.second}),
                  std::vector(r, r + 6))
            << p[0] << ' ' << p[1] << ' ' << p[2] << ' ' << p[3] << ' ' << p[4] << ' ' << p[5];
    }
}

TEST(ChartTime, OutsideIsLimited) {
    EXPECT_EQS((chartTime(0, 12, 31), 0), (chartTime(-5000, 1, 1), 0), (chartTime(10000, 1, 1), 315537897599.0));
    for (const int extreme : {INT_MIN, INT_MAX}) {
        const double limit = extreme < 0 ? 0 : 315537897599.0;
        EXPECT_EQS((chartTime(extreme, extreme, extreme, extreme, extreme, extreme), limit),
                   (chartTime(extreme, 1, 1), limit), (chartTime(2000, extreme, 1), limit),
                   (chartTime(2000, 1, extreme), limit));
    }
    for (const double early : {-1.0, -1e300, -kInfinity, kNaN}) EXPECT_EQ(getChartYMD(early), 10101) << early;
    for (const double late : {315537897599.9999, 315537897600.0, 1e300, kInfinity})
        EXPECT_EQ(toCivil(late), (CivilTime{9999, 12, 31, 23, 59, 59, 4})) << late;
    EXPECT_EQS((weekdayOf(-1.0), 6), (weekdayOf(-7 * 86400.0), 0), (weekdayOf(kNaN), 0));
}

TEST(ChartTime, RoundingErrorsDoNotShow) {
    const double noon = chartTime(2024, 5, 6, 12, 0, 0);
    EXPECT_EQS((toCivil(noon - 1e-5).hour, 12), (toCivil(noon - 0.01).hour, 11), (toCivil(noon + 0.99).second, 0));
}
} // namespace chartdraw
