// The calls of the common dressing, in order and value, in every branch.

#include "render/chart_holder.h"
#include "render/dressing.h"
#include "render/utf8_text.h"
#include "tests/recorder/recorder.h"
#include <functional>
#include <gmock/gmock.h>

namespace {

using Lines = std::vector<std::string>;
using recorder::Recording;

/// What a dressing routine calls on a chart of its own, without the chart's making and end.
Lines callsOf(const std::function<void(BaseChart*)>& dress) {
    Recording recording;
    const CChartHolder holder(XYChart2BaseChart(CXYChart_create(50, 40, 0, 0, 0)));
    recording.Clear();
    dress(holder.Get());
    return recording.Lines();
}

const std::string kDefaultFonts =
    R"(CBaseChart_setDefaultFonts(BaseChart#1, "gulim.ttc", "gulim.ttc", "gulim.ttc", "gulim.ttc"))";

struct BackgroundCase {
    const char* name;
    std::function<void(CChartLayout&)> edit;
    Lines calls;
};

class Background : public testing::TestWithParam<BackgroundCase> {};

TEST_P(Background, MakesTheCallsInOrder) {
    CChartLayout layout;
    GetParam().edit(layout);
    EXPECT_EQ(callsOf([&](BaseChart* chart) { DrawChartBackground(chart, layout); }), GetParam().calls);
}

const BackgroundCase backgrounds[] = {
    {"Defaults",
     [](CChartLayout&) {},
     {"CBaseChart_setBackground(BaseChart#1, 0x00ffffff, 0x33808080, 0)", kDefaultFonts}},
    {"WallPaper",
     [](CChartLayout& layout) {
         layout.m_useWallPaper = true;
         layout.m_wallPaperImage = "Stra\xc3\x9f"
                                   "e.png";
     },
     {"CBaseChart_setBackground(BaseChart#1, 0x00ffffff, 0x33808080, 0)",
      "CBaseChart_setBgImage(BaseChart#1, \"Stra\xc3\x9f"
      "e.png\", 5)",
      kDefaultFonts}},
    {"EmptyWallPaperAndFrame",
     [](CChartLayout& layout) {
         layout.m_useWallPaper = layout.m_roundedFrame = true;
         layout.m_defaultFont.m_fileName = "a.ttf";
         layout.m_defaultFont.m_size = 30;
     },
     {"CBaseChart_setBackground(BaseChart#1, 0x00ffffff, 0x33808080, 0)",
      R"(CBaseChart_setBgImage(BaseChart#1, "", 5))",
      "CBaseChart_setRoundedFrame(BaseChart#1, 0x00ffffff, 10, -1, -1, -1)",
      R"(CBaseChart_setDefaultFonts(BaseChart#1, "a.ttf", "a.ttf", "a.ttf", "a.ttf"))"}},
};

INSTANTIATE_TEST_SUITE_P(Dressing, Background, testing::ValuesIn(backgrounds),
                         [](const auto& test) { return test.param.name; });

TEST(Dressing, ResolvesColoursFromLeftToRightThenTheEffect) {
    CChartLayout layout;
    layout.m_backColor.m_type = 2; // metal
    layout.m_backColor.m_color = 0xc0c0c0;
    layout.m_backColor.m_direction = 45;
    layout.m_edgeColor.m_type = 1; // pattern
    layout.m_edgeColor.m_patternFile = "no such.png";
    layout.m_effect.m_effectType = 3; // normal glare
    layout.m_effect.m_direction = 6;  // from the right
    layout.m_effect.m_value = 5;
    const Lines lines = callsOf([&](BaseChart* chart) { DrawChartBackground(chart, layout); });
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[0], "CChart_metalColor(0x00c0c0c0, 45)");
    EXPECT_EQ(lines[1], R"(CBaseChart_patternColor2(BaseChart#1, "no such.png", 0, 0))");
    EXPECT_EQ(lines[2], "CChart_glassEffect(3, 6, 5)");
    // What the library answers for these goes on as it is; a pattern that cannot be read is transparent.
    const Lines same = callsOf([](BaseChart* chart) {
        CBaseChart_setBackground(chart, CChart_metalColor(0xc0c0c0, 45), CHART_TRANSPARENT,
                                 CChart_glassEffect(3, 6, 5));
    });
    EXPECT_EQ(lines[3], same.back());
}

TEST(Dressing, TitlesAreThoseShownInTheirOrder) {
    CChartLayout layout;
    for (const char* text : {"a", "\xc3\xa9", "c", "", "e"}) {
        CChartTitle title;
        title.m_text = text;
        title.m_show = layout.m_titles.size() == 1 || layout.m_titles.size() == 3;
        layout.m_titles.push_back(title);
    }
    CChartTitle& placed = layout.m_titles[1];
    placed.m_alignment = 3;
    placed.m_font.m_fileName = "b.ttf";
    placed.m_font.m_size = 20.5;
    placed.m_fontColor.m_color = 0x010203;
    placed.m_backColor.m_color = 0x0a0b0c;
    placed.m_edgeColor.m_color = 0xff000000;
    placed.m_effect.m_value = 2;
    placed.m_angle = -90;
    placed.m_vertical = placed.m_usePosition = true;
    placed.m_x = 11;
    placed.m_y = -12;
    layout.m_titles[3].m_x = 99; // not used
    EXPECT_EQ(
        callsOf([&](BaseChart* chart) { DrawChartTitles(chart, layout); }),
        (Lines{"CBaseChart_addTitle2(BaseChart#1, 3, \"\xc3\xa9\", \"b.ttf\", 20.5, 0x00010203, "
               "0xff000000, 0xff000000)",
               "TextBox2Box(TextBox#1)", "CBox_setBackground(Box#1, 0x000a0b0c, 0xff000000, 2)",
               "CTextBox_setFontAngle(TextBox#1, -90, true)", "CBox_setPos(Box#1, 11, -12)",
               "CBaseChart_addTitle2(BaseChart#1, 8, \"\", \"gulim.ttc\", 12, 0, 0xff000000, 0xff000000)",
               "TextBox2Box(TextBox#2)", "CBox_setBackground(Box#2, -1, -1, 0)",
               "CTextBox_setFontAngle(TextBox#2, 0, false)"}));
}

TEST(Dressing, NoTitlesMakeNoCalls) {
    EXPECT_EQ(callsOf([](BaseChart* chart) { DrawChartTitles(chart, CChartLayout()); }), Lines());
}

TEST(Dressing, LegendIsDressedAndMayHaveASampleKey) {
    CChartLayout layout;
    layout.m_legendX = 3;
    layout.m_legendY = 4;
    layout.m_legendVertical = true;
    layout.m_legendFont.m_fileName = "l.ttf";
    layout.m_legendFont.m_size = 9;
    layout.m_legendFontColor.m_color = 0x111111;
    layout.m_legendBackColor.m_color = 0x222222;
    layout.m_legendEdgeColor.m_color = 0x333333;
    layout.m_legendEffect.m_value = 1;
    layout.m_legendFormat = "{value}";
    Lines calls = {R"(CBaseChart_addLegend(BaseChart#1, 3, 4, true, "l.ttf", 9))",
                   "LegendBox2TextBox(LegendBox#1)",
                   "TextBox2Box(TextBox#1)",
                   "CTextBox_setFontColor(TextBox#1, 0x00111111)",
                   "CBox_setBackground(Box#1, 0x00222222, 0x00333333, 1)",
                   R"(CTextBox_setText(TextBox#1, "{value}"))"};
    EXPECT_EQ(callsOf([&](BaseChart* chart) { DrawChartLegend(chart, layout, false); }), calls);
    calls.push_back(R"(CLegendBox_addKey(LegendBox#1, "Legend", -1, 0, null))");
    EXPECT_EQ(callsOf([&](BaseChart* chart) { DrawChartLegend(chart, layout, true); }), calls);
    layout.m_showLegend = false;
    EXPECT_EQ(callsOf([&](BaseChart* chart) { DrawChartLegend(chart, layout, true); }), Lines());
}

TEST(Utf8Text, KeepsNullEmptyAndAsciiAndMakesGoodUtf8) {
    EXPECT_EQ(static_cast<const char*>(CUtf8Text(nullptr)), nullptr);
    EXPECT_STREQ(CUtf8Text(""), "");
    EXPECT_STREQ(CUtf8Text("C:\\a b.png\x7f"), "C:\\a b.png\x7f");
    EXPECT_STREQ(CUtf8Text("\xed\x95\x9c"), "\xed\x95\x9c");
    EXPECT_STREQ(CUtf8Text("a\xff"), "a\xef\xbf\xbd");
}

} // namespace
