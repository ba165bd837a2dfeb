// The layout editor: its controls, one row each, and the pages that follow the chart type.

#include "tests/driver/manners.h"

using namespace driver;

namespace {
enum ChartType { Pie, XY, Finance, Polar, Angular, Linear };

CChartLayout StartLayout(ChartType type) {
    CChartLayout layout;
    layout.m_chartType = type;
    layout.m_showToolTip = true;
    layout.m_useWallPaper = true;
    layout.m_legendBackColor.m_color = 0xEEEEFF;
    layout.m_labelBackColor.m_color = 0xEEFFEE;
    layout.m_labelEdgeColor.m_color = 0x336633;
    CChartTitle title;
    title.m_show = true;
    title.m_text = "First\nof two lines";
    title.m_x = 30;
    title.m_y = 20;
    title.m_backColor.m_color = 0x99CCFF;
    title.m_edgeColor.m_color = 0x336699;
    layout.m_titles.push_back(title);
    for (CChartRaisedEffect* effect :
         {&layout.m_effect, &layout.m_legendEffect, &layout.m_labelEffect, &layout.m_titles[0].m_effect}) {
        effect->m_effectType = 1; // soft lighting
        effect->m_value = 5;
    }
    return layout;
}

constexpr bool kUnseen = false;
const char* const kTypes = "PieChart|XYChart|FinanceChart|PolarChart|AngularMeter|LinearMeter";
const char* const kDashes = "---------------------------------";
const std::string kFormats = std::string(kDashes) + "|{dataSetName}|{value}|{percent}%";

const Properties kRows =
    Properties{
        {"", "", "", kTypes, "chartType=linearMeter"},
        {"General", "", "RoundedFrame", "", "roundedFrame=true"},
        {"General", "Default Font:", "", "31", "defaultFont.size=31", {}, kUnseen}, // only its face is used
        {"General", "WallPaper:", "WallPaper", "", "useWallPaper=false", {}, kUnseen},
        {"General", "WallPaper:", "", CHART_IMAGE, "wallPaperImage=" CHART_IMAGE},
        {"General", "ToolTip:", "Show ToolTip", "", "showToolTip=false", {}, kUnseen},
        {"General", "ToolTip:", "ToolTip:", "{value}", "toolTipFormat={value}", {}, kUnseen},
        {"Title", "", "Show Title", "", "titles[0].show=false"},
        {"Title", "", "Alignment:", kAlignments, "titles[0].alignment=bottomRight2"},
        {"Title", "", "Title:", "new", "titles[0].text=new"},
        {"Title", "Angle:", "Vertical", "", "titles[0].vertical=true"},
        {"Title", "Angle:", "", "45", "titles[0].angle=45", {10}},
        {"Title", "Position:", "Use Position", "", "titles[0].usePosition=true"},
        {"DataLabel", "", "Show Label", "", "showLabel=false"},
        {"DataLabel", "", "Label:", "new", "labelFormat=new"},
        {"DataLabel", "", "Format:", kFormats, "labelFormat={percent}%"},
        {"DataLabel", "Angle:", "", "45", "labelAngle=45", {10}},
        {"DataLabel", "Angle:", "Vertical", "", "labelVertical=true"},
        {"Legend", "", "Show Legend", "", "showLegend=false"},
        {"Legend", "", "Format:", kFormats, "legendFormat={percent}%"},
        {"Legend", "", "Label:", "new", "legendFormat=new"},
        {"Legend", "", "Vertical", "", "legendVertical=true", {}, kUnseen}, // the sample has one key
        {"Legend", "Position:", "X:", "-7", "legendX=-7", {10}},
        {"Legend", "Position:", "Y:", "77", "legendY=77", {10}},
    } +
    ColorRows("General", "", "", {"backColor", "edgeColor"}) + EffectRows("General", "") +
    LookRows("Title", "titles[0].") + LookRows("DataLabel", "label") + LookRows("Legend", "legend");

const Properties kPositionRows = {
    {"Title", "Position:", "X:", "77", "titles[0].x=77", {10}},
    {"Title", "Position:", "Y:", "33", "titles[0].y=33", {10}},
};
const std::string kTips = std::string(kDashes) + "|{xLabel}:{value}";
const Properties kFormatRow = {
    {"General", "ToolTip:", "Format:", kTips, "toolTipFormat={xLabel}:{value}", {}, kUnseen}};

Properties CircleRows(const char* group, const std::string& path, const char* x, const char* y) {
    return {{"PlotArea", group, x, "222", path + ".centerX=222", {10}},
            {"PlotArea", group, y, "-22", path + ".centerY=-22", {10}},
            {"PlotArea", group, "Radius:", "77", path + ".radius=77", {10, 0}}};
}
Properties RectangleRows(const char* group, const std::string& path) {
    return {{"PlotArea", group, "Left:", "-22", path + ".left=-22", {10}},
            {"PlotArea", group, "Top:", "33", path + ".top=33", {10}},
            {"PlotArea", group, "Width:", "111", path + ".width=111", {10, 0}},
            {"PlotArea", group, "Height:", "222", path + ".height=222", {10, 0}}};
}

const std::pair<ChartType, Properties> kPlotAreas[] = {
    {Pie, CircleRows("PieChart:", "piePlotArea", "Center X:", "Center Y:")},
    {XY, RectangleRows("XYChart:", "xyPlotArea")},
    {Finance, {{"PlotArea", "FinanceChart:", "Width:", "333", "financeWidth=333", {10, 0}}}},
    {Polar, CircleRows("PolarChart:", "polarPlotArea", "Center X:", "Center Y:")},
    {Angular,
     CircleRows("Angular Meter:", "angularPlotArea", "CenterX:", "CenterY:") +
         Properties{{"PlotArea", "Angular Meter:", "StartAngle:", "-45.5", "angularPlotArea.startAngle=-45.5", {10}},
                    // What is typed shows with the next change of anything else.
                    {"PlotArea", "Angular Meter:", "EndAngle:", "45.5", "angularPlotArea.endAngle=45.5", {10}}}},
    {Linear, RectangleRows("Linear Meter:", "linearPlotArea") +
                 Properties{{"PlotArea", "Linear Meter:", "AxisPos:", kSides, "linearPlotArea.axisPos=bottom"},
                            {"PlotArea", "Linear Meter:", "Reverse", "", "linearPlotArea.reverse=true"}}},
};
} // namespace

TEST(LayoutEditor, EachControlReachesItsField) {
    TestProperties(StartLayout(XY), {}, kRows);
    CChartLayout placed = StartLayout(XY);
    placed.m_titles[0].m_usePosition = true;
    placed.m_toolTipFormat = "other";
    TestProperties(placed, {}, kPositionRows + kFormatRow);
}

TEST(LayoutEditor, ThePlotAreaFollowsTheChartType) {
    for (const auto& [type, rows] : kPlotAreas) {
        TestProperties(StartLayout(type), {}, rows);
        TestTableIsWhole(StartLayout(type), {}, kRows + kPositionRows + kFormatRow + rows);
    }
    CChartLayout layout;
    EXPECT_TRUE(Edit(layout, [](const Person& person) {
        person.Tab("PlotArea");
        person.Give("Left", "11");
        person.Choose("ChartType", Linear);
        person.Give("Left", "22");
        person.Choose("ChartType", XY);
        EXPECT_EQ(person.TextOf("Left"), "11");
        person.Ok();
    }));
    CChartLayout expected;
    expected.m_xyPlotArea.m_left = 11;
    expected.m_linearPlotArea.m_left = 22;
    EXPECT_EQ(Difference(expected, layout), "");
}

TEST(LayoutEditor, ATypeThatIsNoneShowsNoneAndTheXYArea) {
    CChartLayout layout;
    layout.m_chartType = 77;
    CChartLayout expected(layout);
    EXPECT_TRUE(Edit(layout, [](const Person& person) {
        EXPECT_EQ(person.Find<QComboBox>("ChartType").currentIndex(), -1);
        person.Tab("PlotArea");
        EXPECT_EQ(Person::GroupOf(person.Find("Left")), "XYChart");
        person.Ok();
    }));
    EXPECT_EQ(Difference(expected, layout), "");
}

TEST(LayoutEditor, ATypedEndAngleShowsWithTheNextChange) {
    CChartLayout layout = StartLayout(Angular);
    EXPECT_TRUE(Edit(layout, [](const Person& person) {
        person.Tab("PlotArea");
        const QImage before = person.Preview();
        person.Give("EndAngle", "45");
        EXPECT_TRUE(person.Preview() == before);
        person.Press("Radius", true);
        EXPECT_FALSE(person.Preview() == before);
        person.Ok();
    }));
    EXPECT_EQ(layout.m_angularPlotArea.m_endAngle, 45);
}

TEST(LayoutEditor, ReverseShowsUncheckedWhateverTheLayoutHolds) {
    CChartLayout layout = StartLayout(Linear);
    layout.m_linearPlotArea.m_reverse = true;
    for (const bool expected : {true, false}) {
        EXPECT_TRUE(Edit(layout, [expected](const Person& person) {
            person.Tab("PlotArea");
            EXPECT_FALSE(person.Find<QCheckBox>("Reverse").isChecked());
            for (int i = 0; i < 2 && !expected; ++i) person.Click("Reverse");
            person.Ok();
        }));
        EXPECT_EQ(layout.m_linearPlotArea.m_reverse, expected);
    }
}

TEST(LayoutEditor, KeepsItsManners) {
    TestEditor("ChartLayout", {"General", "Title", "DataLabel", "Legend", "PlotArea"}, StartLayout(Linear), {},
               kRows + kPlotAreas[Linear].second);
}
