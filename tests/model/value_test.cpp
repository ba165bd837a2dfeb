#include "resources/string_table.h"
#include "tests/model/memory_probe.h"
#include "tests/model/surface_fake.h"
#include <charteditors/charteditors.h>
#include <gmock/gmock.h>

namespace {
CChartString text(const char* bytes) {
    CChartString string;
    string = bytes;
    return string;
}

std::string bytesOf(const CChartString& string) {
    EXPECT_EQS((string.data()[string.size()], '\0'), (string.empty(), string.size() == 0));
    return {string.data(), string.size()};
}
} // namespace

TEST(ChartString, HoldsWhatItIsGiven) {
    const std::tuple<const char*, void (*)(CChartString&), const char*> cases[] = {
        {"assigns", [](CChartString& s) { s = "new"; }, "new"},
        {"assigns nothing", [](CChartString& s) { s = ""; }, ""},
        {"null is empty", [](CChartString& s) { s = static_cast<const char*>(nullptr); }, ""},
        {"stops at a zero byte", [](CChartString& s) { s = "ab\0cd"; }, "ab"},
        {"appends", [](CChartString& s) { s += "ef"; }, "abcdefghijklmnopqrstef"},
        {"appends null", [](CChartString& s) { s += static_cast<const char*>(nullptr); }, "abcdefghijklmnopqrst"},
        {"appends a string", [](CChartString& s) { s += text("!"); }, "abcdefghijklmnopqrst!"},
        {"assigns itself", [](CChartString& s) { s = *&s; }, "abcdefghijklmnopqrst"},
        {"appends itself", [](CChartString& s) { s += s; }, "abcdefghijklmnopqrstabcdefghijklmnopqrst"},
        {"assigns its own tail", [](CChartString& s) { s = s.data() + 2; }, "cdefghijklmnopqrst"},
        {"appends its own tail", [](CChartString& s) { s += s.data() + 18; }, "abcdefghijklmnopqrstst"},
        {"assigns its own end", [](CChartString& s) { s = s.data() + s.size(); }, ""},
    };
    for (const auto& [name, act, expected] : cases) {
        CChartString string = text("abcdefghijklmnopqrst");
        act(string);
        EXPECT_EQ(bytesOf(string), expected) << name;
    }
}

TEST(ChartString, SharesNothingWithItsCopyAndIsFreeWhenEmpty) {
    const long before = model_test::allocations();
    const CChartString empty;
    CChartString copy = empty;
    copy = empty;
    copy = "";
    EXPECT_EQ(model_test::allocations(), before);
    EXPECT_STREQ(empty.data(), "");

    CChartString first = text("first");
    const CChartString second = first;
    first += " changed";
    EXPECT_EQS((bytesOf(second), "first"), (bytesOf(first), "first changed"));
}

TEST(ChartString, KeepsItsTextWhenMemoryRunsOut) {
    const std::string longText(300, 'x');
    CChartString string = text("short");
    const int failures = model_test::failEachAllocation([&] { string = longText.c_str(); },
                                                        [&] { EXPECT_EQ(bytesOf(string), "short"); });
    EXPECT_GE(failures, 1);
    EXPECT_EQ(bytesOf(string), longText);
}

TEST(ChartColor, GivesTheNumberOfItsKind) {
    const std::tuple<std::int32_t, bool, int, std::vector<std::string>> cases[] = {
        {0, false, static_cast<int>(0x80123456), {}},
        {0, true, static_cast<int>(0x80123456), {}},
        {1, false, 0, {}},
        {1, true, 71, {"patternColor2(tile.png, 0, 0)"}},
        {2, false, 72, {"metalColor(-2146290602, 45)"}}, // 0x80123456 as a signed number
        {3, true, 0, {}},
        {-1, true, 0, {}},
    };
    int place = 0;
    auto* const chart = reinterpret_cast<BaseChart*>(&place);
    for (const auto& [type, ofChart, expected, calls] : cases) {
        CChartColor color;
        color.m_type = type;
        color.m_color = 0x80123456;
        color.m_direction = 45;
        color.m_patternFile = "tile.png";
        model_test::surfaceCalls.clear();
        EXPECT_EQ(color.GetChartColor(ofChart ? chart : nullptr), expected) << "kind " << type;
        EXPECT_EQ(model_test::surfaceCalls, calls) << "kind " << type;
    }

    // The program runs in a UTF-8 locale: a Korean name goes through as it is, a broken byte is replaced.
    CChartColor pattern;
    pattern.m_type = 1;
    for (const auto& [file, given] :
         {std::pair("", ""), std::pair("\xEA\xB7\xB8.png", "\xEA\xB7\xB8.png"), std::pair("\xFFq", "\xEF\xBF\xBDq")}) {
        pattern.m_patternFile = file;
        model_test::surfaceCalls.clear();
        pattern.GetChartColor(chart);
        EXPECT_THAT(model_test::surfaceCalls, testing::ElementsAre(std::string("patternColor2(") + given + ", 0, 0)"));
    }
}

TEST(ChartRaisedEffect, GivesTheNumberOfItsKind) {
    const std::tuple<std::int32_t, int, const char*> cases[] = {
        {0, 6, nullptr},  {1, 73, "softLighting(4, 6)"},   {2, 74, "glassEffect(2, 4, 6)"}, {4, 6, nullptr},
        {-1, 6, nullptr}, {3, 74, "glassEffect(3, 4, 6)"},
    };
    for (const auto& [type, expected, call] : cases) {
        CChartRaisedEffect effect;
        EXPECT_EQ(effect.GetRaisedEffect(), 0);
        effect.m_effectType = type;
        effect.m_value = 6;
        effect.m_direction = 4;
        model_test::surfaceCalls.clear();
        EXPECT_EQ(effect.GetRaisedEffect(), expected) << "kind " << type;
        EXPECT_EQ(model_test::surfaceCalls.empty() ? "" : model_test::surfaceCalls[0], call ? call : "");
    }
}

TEST(ChartLayout, LaysOutEveryPlotAreaToFit) {
    // Worked by hand from the side s = 0.8 w, cut to an integer.
    const struct {
        int w, h;
        std::vector<int> xy, pie, polar, linear, legend;
    } cases[] = {
        {500, 550, {50, 75, 400, 400}, {250, 275, 160}, {250, 275, 200}, {225, 75, 50, 400}, {320, 12}},
        {501, 550, {50, 75, 400, 400}, {250, 275, 160}, {250, 275, 200}, {225, 75, 50, 400}, {320, 12}},
        {500, 300, {50, -50, 400, 400}, {250, 150, 160}, {250, 150, 200}, {225, -50, 50, 400}, {320, 12}},
        {333, 101, {33, -82, 266, 266}, {166, 50, 106}, {166, 50, 133}, {149, -82, 33, 266}, {212, 7}},
        {0, 0, {0, 0, 0, 0}, {0, 0, 0}, {0, 0, 0}, {0, 0, 0, 0}, {0, 0}},
        {-100, -50, {-10, 15, -80, -80}, {-50, -25, -32}, {-50, -25, -40}, {-45, 15, -10, -80}, {-64, -2}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.w) + " x " + std::to_string(c.h));
        CChartLayout layout;
        layout.m_titles.push_back({});
        layout.m_angularPlotArea.m_startAngle = 1;
        layout.m_angularPlotArea.m_endAngle = 2;
        layout.m_linearPlotArea.m_axisPos = 8;
        layout.m_linearPlotArea.m_reverse = true;
        layout.SetChartSize(c.w, c.h);
        const auto& xy = layout.m_xyPlotArea;
        const auto& pie = layout.m_piePlotArea;
        const auto& polar = layout.m_polarPlotArea;
        const auto& angular = layout.m_angularPlotArea;
        const auto& linear = layout.m_linearPlotArea;
        using Numbers = std::vector<int>;
        EXPECT_EQS(((Numbers{layout.m_width, layout.m_height, layout.m_financeWidth}), (Numbers{c.w, c.h, c.w})),
                   ((Numbers{xy.m_left, xy.m_top, xy.m_width, xy.m_height}), c.xy),
                   ((Numbers{pie.m_centerX, pie.m_centerY, pie.m_radius}), c.pie),
                   ((Numbers{polar.m_centerX, polar.m_centerY, polar.m_radius}), c.polar),
                   ((Numbers{angular.m_centerX, angular.m_centerY, angular.m_radius}), c.polar),
                   ((Numbers{linear.m_left, linear.m_top, linear.m_width, linear.m_height}), c.linear),
                   ((Numbers{layout.m_legendX, layout.m_legendY}), c.legend), (angular.m_startAngle, -90.0),
                   (angular.m_endAngle, 90.0), (linear.m_axisPos, 4), (linear.m_reverse, false));
        EXPECT_EQ(layout.m_titles.size(), 1) << "what is no size stays";
    }
    CChartLayout layout;
    layout.SetChartSize(2147483647, -2147483647 - 1);    // no overflow on the way: the sanitizers look on
    EXPECT_EQ(layout.m_piePlotArea.m_radius, 687194766); // 2 * 1717986917 / 5
}

TEST(StringTable, HasItsTextsByNumber) {
    const std::pair<int, const char*> texts[] = {
        {1, "(ARGB)"}, {79, "{value|yyyy/mm/dd}"}, {80, ""}, {84, "MainChart"}, {127, "Zone %d"}, {128, ""}, {-1, ""}};
    for (const auto& [number, expected] : texts) EXPECT_STREQ(LoadChartString(number), expected) << number;
}
