#pragma once
// Chart time: seconds since 1 January of year 1 in the Gregorian calendar carried back to that year, without
// time zones and leap seconds. Whole seconds of the years 1 to 9999 are exact both ways; what lies beyond is
// limited to the first or the last second of that span.

namespace chartdraw {

constexpr double kSecondsPerDay = 86400.0;
constexpr double kFirstChartTime = 0.0;
constexpr double kLastChartTime = 315537897599.0; ///< 31 December 9999, 23:59:59

struct CivilTime {
    int year = 1;    ///< 1 to 9999
    int month = 1;   ///< 1 to 12
    int day = 1;     ///< 1 to 31
    int hour = 0;    ///< 0 to 23
    int minute = 0;  ///< 0 to 59
    int second = 0;  ///< 0 to 59
    int weekday = 0; ///< 0 Monday to 6 Sunday

    bool operator==(const CivilTime&) const = default;
};

/// The time of a date; each part may be out of its range and then rolls on into the next larger one.
double chartTime(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);

/// The date of a time. Half a millisecond below a full second counts as that second, so that the rounding
/// errors of calculated times do not show. NaN counts as the first second.
CivilTime toCivil(double time);

/// The date of a time as year * 10000 + month * 100 + day.
int getChartYMD(double time);

/// The weekday of a time, also outside the calendar's span: 0 Monday to 6 Sunday, 0 for no finite number.
int weekdayOf(double time);

} // namespace chartdraw
