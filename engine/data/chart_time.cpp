#include "engine/data/chart_time.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>

namespace chartdraw {

namespace {

using std::chrono::days;
using std::chrono::sys_days;

constexpr sys_days kFirstDay = std::chrono::year(1) / 1 / 1;
constexpr std::int64_t kDaySeconds = 86400;

} // namespace

double chartTime(int year, int month, int day, int hour, int minute, int second) {
    // The calendar knows years up to 32767, and no more are needed: those far outside end at the limits.
    const std::int64_t months =
        std::clamp<std::int64_t>(std::int64_t{year} * 12 + month - 1, -32000 * 12, 32000 * 12);
    const auto rolledYear = static_cast<int>(months >= 0 ? months / 12 : (months - 11) / 12);
    const auto rolledMonth = static_cast<unsigned>(months - std::int64_t{rolledYear} * 12 + 1);
    const sys_days firstOfMonth = std::chrono::year(rolledYear) / std::chrono::month(rolledMonth) / 1;

    const std::int64_t wholeDays = std::int64_t{(firstOfMonth - kFirstDay).count()} + day - 1;
    const std::int64_t seconds =
        wholeDays * kDaySeconds + std::int64_t{hour} * 3600 + std::int64_t{minute} * 60 + second;
    return std::clamp(static_cast<double>(seconds), kFirstChartTime, kLastChartTime);
}

CivilTime toCivil(double time) {
    // The comparison is written so that NaN ends at the first second.
    const double limited = time > kFirstChartTime ? std::min(time, kLastChartTime) : kFirstChartTime;
    const auto seconds =
        std::min(static_cast<std::int64_t>(limited + 0.0005), static_cast<std::int64_t>(kLastChartTime));
    const auto day = static_cast<int>(seconds / kDaySeconds);
    const auto ofDay = static_cast<int>(seconds % kDaySeconds);

    const std::chrono::year_month_day date(kFirstDay + days(day));
    CivilTime civil;
    civil.year = static_cast<int>(date.year());
    civil.month = static_cast<int>(static_cast<unsigned>(date.month()));
    civil.day = static_cast<int>(static_cast<unsigned>(date.day()));
    civil.hour = ofDay / 3600;
    civil.minute = ofDay / 60 % 60;
    civil.second = ofDay % 60;
    civil.weekday = day % 7; // the first day of the calendar was a Monday
    return civil;
}

int getChartYMD(double time) {
    const CivilTime civil = toCivil(time);
    return civil.year * 10000 + civil.month * 100 + civil.day;
}

int weekdayOf(double time) {
    const double day = std::fmod(std::floor(time / kSecondsPerDay), 7.0);
    return std::isnan(day) ? 0 : static_cast<int>(day < 0 ? day + 7 : day);
}

} // namespace chartdraw
