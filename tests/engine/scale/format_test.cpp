// The format language: expected texts are worked by hand from the grammar, dates from the calendar.

#include "engine/data/chart_time.h"
#include "engine/data/no_value.h"
#include "engine/scale/date_text.h"
#include "engine/scale/format.h"
#include <gtest/gtest.h>
#include <limits>

using chartdraw::chartTime;
using chartdraw::FieldValue;
using chartdraw::Format;
using chartdraw::formatValue;
using chartdraw::kNoValue;

namespace {
struct ValueCase {
    double value;
    std::string format;
    std::string text;
};

void expectAll(std::initializer_list<ValueCase> cases) {
    for (const ValueCase& c : cases) EXPECT_EQ(formatValue(c.value, c.format), c.text) << c.value << " by " << c.format;
}

/// A bar of a chart: a name, a value, a share, a time and a value with a text of its own.
struct Bar final : chartdraw::FieldSource {
    FieldValue field(std::string_view name) const override {
        if (name == "label") return FieldValue::text("North");
        if (name == "value") return FieldValue::number(1234.5);
        if (name == "percent") return FieldValue::number(100.0 / 3);
        if (name == "xLabel") return FieldValue::number(chartTime(2003, 1, 6, 15, 4, 5), "tick");
        return FieldValue::unknown();
    }
};
} // namespace

TEST(NumberFormat, FixedDecimalsRoundHalfAwayFromZero) {
    expectAll({{2.5, "0", "3"},
               {-2.5, "0", "-3"},
               {0.125, "2", "0.13"},
               {1.005, "2", "1.01"},
               {999.995, "2", "1000.00"},
               {0.0499, "1", "0.0"},
               {7, "3", "7.000"},
               {0.05, "1", "0.1"},
               {5e-324, "2", "0.00"}});
}

TEST(NumberFormat, ZeroHasNoSign) {
    expectAll({{-0.0, "", "0"}, {-0.0, "2", "0.00"}, {-0.001, "2", "0.00"}, {-0.001, "0~.+", "0"}, {0, "E1", "0.0e0"}});
}

TEST(NumberFormat, SeparatorsAndSign) {
    expectAll({{1234567.5, "2,.", "1,234,567.50"},
               {-1234567.5, "1.,", "-1.234.567,5"},
               {999, "0,", "999"},
               {1000, "0 ", "1 000"},
               {1234.5, "2~,", "1234,50"},
               {1234, "0~.+", "+1234"},
               {-1234, "0~.+", "-1234"},
               {-1234, "0\u2009.\u2212", "\u22121\u2009234"},
               {1234567.25, "G~,", "1234567"},
               {123456.75, "G9,.", "123,456.75"}});
}

TEST(NumberFormat, ShortestForms) {
    expectAll({{0.1 + 0.2, "", "0.3"},
               {1.0 / 3, "", "0.333333333333333"},
               {1.0 / 3, "G", "0.333333"},
               {123456789.4, "G", "123456789"},
               {1234.5, "G", "1234.5"},
               {98.7654321, "G4", "98.77"},
               {0.00001, "", "0.00001"},
               {0.000001, "", "1e-6"},
               {1e14, "", "100000000000000"},
               {1e15, "", "1e15"},
               {-2.5e300, "G", "-2.5e300"}});
}

TEST(NumberFormat, SignificantDigitsAndExponents) {
    expectAll({{1.5, "P4", "1.500"},
               {12345.678, "P3", "12300"},
               {99.96, "P3", "100"},
               {12345.678, "E2", "1.23e4"},
               {0.00098765, "E1", "9.9e-4"},
               {9.999, "E2", "1.00e1"}});
}

TEST(NumberFormat, OutOfRange) {
    expectAll({{kNoValue, "2", ""},
               {std::numeric_limits<double>::quiet_NaN(), "a{value}b", "ab"},
               {std::numeric_limits<double>::infinity(), "G", ""},
               {1e22, "2,.", "1e22"},
               {1, "2000000000", "1.00000000000000000000"},
               {1, "0" + std::string(1000, '0') + "1", "1.0"}});
}

TEST(BareFormat, SpecOrLiteral) {
    const double time = chartTime(2003, 3, 9);
    expectAll({{5, "", "5"},
               {5, "about {value|1}%", "about 5.0%"},
               {5, "plain", "plain"},
               {5, "2nd", "2nd"},
               {5, "hello", "hello"},
               {time, "yyyy-mm-dd", "2003-03-09"},
               {5, "2,.-x", "2,.-x"}});
}

TEST(DateFormat, AllForms) {
    const double monday = chartTime(2003, 1, 6, 15, 4, 5); // a Monday in the calendar
    const double midnight = chartTime(1999, 12, 31);       // a Friday
    expectAll({{monday, "{value|yyyy yy mmmm mmm MMM mm m}", "2003 03 January Jan JAN 01 1"},
               {monday, "{value|dddd ddd dd d}", "Monday Mon 06 6"},
               {monday, "{value|hh h nn ss}", "15 15 04 05"},
               {monday, "{value|hh:nn a}", "03:04 pm"},
               {monday, "{value|h:nna}", "3:04pm"},
               {midnight, "{value|h:nna, ddd}", "12:00am, Fri"},
               {chartTime(2000, 2, 29, 12), "{value|h a d/m/yyyy}", "12 pm 29/2/2000"},
               {monday + 0.25, "{value|ss.fff}", "05.250"},
               {monday + 0.9999, "{value|ss.fff}", "06.000"},
               {midnight, "{value|d mmm\nyyyy}", "31 Dec\n1999"},
               {midnight, "{value|d of mmm \\d\\a\\y}", "31 of Dec day"},
               {midnight, "{value|yyyy年m月}", "1999年12月"},
               {chartTime(1, 1, 1), "{value|yyyy-mm-dd ddd}", "0001-01-01 Mon"},
               {kNoValue, "{value|yyyy}", ""},
               {1e300, "{value|yyyy}", "9999"}});
}

TEST(FormatFields, KnownUnknownAndUnclosed) {
    const Bar bar;
    const std::pair<const char*, const char*> cases[] = {
        {"{label}: {value} ({percent}%)", "North: 1234.5 (33.33%)"},
        {"{percent|4}", "33.3333"},
        {"{label|2}", "North"},
        {"{value|wrong}", "1234.5"},
        {"{xLabel}", "tick"},
        {"[{xLabel|mmm d, yyyy hh:nn:ss}]", "[Jan 6, 2003 15:04:05]"},
        {"{missing} {missing|2,.}", "{missing} {missing|2,.}"},
        {"{value", "{value"},
        {"{value|2", "{value|2"},
        {"a}b{label}{", "a}bNorth{"},
        {"{{label}}", "{North}"},
        {"{}{|2}{ label}", "{}{|2}{ label}"},
        {"<*font=bold*>{label}", "<*font=bold*>North"},
        {"", ""},
    };
    for (const auto& [format, text] : cases) EXPECT_EQ(Format(format).apply(bar), text) << format;
    EXPECT_TRUE(Format("x{percent|1}").has("percent"));
    EXPECT_FALSE(Format("percent {percents}").has("percent"));
}

TEST(FormatFields, ListsGiveTheTextOfANumber) {
    const std::pair<double, const char*> cases[] = {{0, "<low>"},   {1, "<a}{|b>"}, {1.4, "<a}{|b>"}, {2, "<>"},
                                                    {3, "<\tc\\>"}, {4, "<>"},      {-1, "<>"},       {NAN, "<>"}};
    for (const auto& [value, text] : cases)
        EXPECT_EQ(formatValue(value, "<{value|\tlow\ta\\}\\{|b\t\t\\\tc\\\\}>"), text) << value;
    EXPECT_EQ(formatValue(1, "{value|\ta\tb\\}"), "b}"); // the end is missing
    EXPECT_EQ(formatValue(1, "{value|\ta\tb"), "{value|\ta\tb");
}
