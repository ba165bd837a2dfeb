#pragma once
// Chart times as text: the date forms of the format language.

#include <string>
#include <string_view>

namespace chartdraw {

/// Whether `spec` is a date form (see format.h): it begins with a letter form, and so is all of its first run
/// of letters.
bool isDateSpec(std::string_view spec);

/// Appends a chart time (seconds since 1 January of year 1) as `spec` tells. The time is cut to whole
/// seconds, or rounded to milliseconds where the spec shows them, and limited to the years 1 to 9999. Nothing
/// for NaN, an infinity or kNoValue.
void appendDate(std::string& out, double chartTime, std::string_view spec);
std::string dateText(double chartTime, std::string_view spec);

} // namespace chartdraw
