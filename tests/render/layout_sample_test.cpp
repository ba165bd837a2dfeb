// The calls of the sample that a layout is shown on, for each kind of chart.

#include "render/layout_sample.h"
#include "tests/render/sections.h"
#include <gtest/gtest.h>

namespace {

const Lines kPieLabels = Lines{R"(CPieChart_setLabelStyle(PieChart#1, "gulim.ttc", 12, 0))"} +
                         boxCalls(1, "-1, -1, 0", "0, false") +
                         Lines{R"(CPieChart_setLabelFormat(PieChart#1, "{value}"))"};
const Lines kXYLabels = Lines{R"(CLayer_setDataLabelStyle(Layer#1, "gulim.ttc", 12, 0, 0))"} +
                        boxCalls(1, "-1, -1, 0", "0, false") +
                        Lines{R"(CLayer_setDataLabelFormat(Layer#1, "{value}"))"};
const Lines kPolarLabels = Lines{R"(CPolarLayer_setDataLabelStyle(PolarLayer#1, "gulim.ttc", 12, 0, 0))"} +
                           boxCalls(1, "-1, -1, 0", "0, false") +
                           Lines{R"(CPolarLayer_setDataLabelFormat(PolarLayer#1, "{value}"))"};

struct Case {
    const char* name;
    int type;
    Lines start;      ///< what comes before the dressing
    Lines data;       ///< what comes after it
    Lines labels;     ///< and then, if labels are shown
    Lines hidden;     ///< or else this
    bool legendFirst; ///< the legend comes right after the dressing
    bool sampleKey;
};

const Case cases[] = {
    {"Pie",
     0,
     {"CPieChart_create(500, 550, 0xffff0000, 0xff000000, 0)", "PieChart2BaseChart(PieChart#1)",
      "CPieChart_setPieSize(PieChart#1, 250, 275, 160)"},
     {R"(CPieChart_setData(PieChart#1, [55, 18, 15, 22, 8, 15, 10], ["Sector 1", "Sector 2", "Sector 3", )"
      R"("Sector 4", "Sector 5", "Sector 6", "Sector 7"]))"},
     kPieLabels,
     {R"(CPieChart_setLabelFormat(PieChart#1, " "))"},
     false,
     false},
    {"XY",
     1,
     {"CXYChart_create(500, 550, 0xffff0000, 0xff000000, 0)", "XYChart2BaseChart(XYChart#1)",
      "CXYChart_setPlotArea(XYChart#1, 50, 75, 400, 400, 0xff000000, -1, -1, 0x00c0c0c0, 0xff000000)"},
     {"CXYChart_addBarLayer2(XYChart#1, 3, 4)", "BarLayer2Layer(BarLayer#1)",
      R"(CLayer_addDataSet(Layer#1, [85, 156, 179.5, 211, 123], 0x00ffff00, "Bar"))",
      "CXYChart_xAxis(XYChart#1)", "CAxis_setAutoScale(Axis#1, 0.1, 0.1, 0.8)"},
     kXYLabels,
     {},
     false,
     false},
    {"Polar",
     3,
     {"CPolarChart_create(500, 550, 0xffff0000, 0xff000000, 0)", "PolarChart2BaseChart(PolarChart#1)",
      "CPolarChart_setPlotArea(PolarChart#1, 250, 275, 200, 0xff000000, 0xff000000, 1)"},
     {"CPolarChart_addLineLayer(PolarChart#1, [90, 25, 40, 55, 68, 44, 79, 85, 50], 255, null)",
      "PolarLineLayer2PolarLayer(PolarLineLayer#1)",
      "CPolarLayer_setAngles(PolarLayer#1, [15, 60, 110, 180, 230, 260, 260, 310, 340])"},
     kPolarLabels,
     {},
     false,
     true},
    {"AngularMeter",
     4,
     {"CAngularMeter_create(500, 550, 0xffff0000, 0xff000000, 0)", "AngularMeter2BaseMeter(AngularMeter#1)",
      "BaseMeter2BaseChart(BaseMeter#1)", "CAngularMeter_setMeter(AngularMeter#1, 250, 275, 200, -90, 90)"},
     {"CBaseMeter_setScale(BaseMeter#1, 0, 100, 10, 5, 1)", "CChart_metalColor(0x009999dd, 90)",
      "CAngularMeter_addRing(AngularMeter#1, 0, 220, METAL, -1)",
      "CAngularMeter_addRing(AngularMeter#1, 210, 220, 0x006666ff, -1)",
      "CBaseMeter_addPointer(BaseMeter#1, 45.17, 0x40333399, -1)"},
     {},
     {},
     true,
     true},
    {"LinearMeter",
     5,
     {"CLinearMeter_create(500, 550, 0xffff0000, 0xff000000, 0)", "LinearMeter2BaseMeter(LinearMeter#1)",
      "BaseMeter2BaseChart(BaseMeter#1)", "CLinearMeter_setMeter(LinearMeter#1, 225, 75, 50, 400, 4, false)"},
     {"CBaseMeter_setScale(BaseMeter#1, 0, 100, 10, 0, 0)",
      "CLinearMeter_addZone(LinearMeter#1, 0, 50, 0x0099ff99, null)",
      "CLinearMeter_addZone(LinearMeter#1, 50, 80, 0x00ffff66, null)",
      "CLinearMeter_addZone(LinearMeter#1, 80, 100, 0x00ffcccc, null)",
      "CBaseMeter_addPointer(BaseMeter#1, 75.35, 204, -1)"},
     {},
     {},
     true,
     true},
};

/// A metal's colour is a token that the library chooses.
Lines withoutToken(Lines lines) {
    for (std::string& line : lines)
        if (line.starts_with("CAngularMeter_addRing(AngularMeter#1, 0, 220, "))
            line = "CAngularMeter_addRing(AngularMeter#1, 0, 220, METAL, -1)";
    return lines;
}

TEST(LayoutSample, MakesTheCallsInOrder) {
    for (const Case& test : cases)
        for (const bool labels : {true, false}) {
            PreviewFake view;
            view.m_ownLayout.m_chartType = test.type;
            view.m_ownLayout.m_showLabel = labels;
            const Lines data = test.data + (labels ? test.labels : test.hidden);
            const int legendBox = labels && !test.labels.empty() ? 2 : 1;
            const Lines legend = legendCalls(legendBox, test.sampleKey);
            EXPECT_EQ(withoutToken(drawnBy(DrawLayoutSample, view)),
                      test.start + kBackgroundCalls + (test.legendFirst ? legend + data : data + legend) +
                          kEndCalls)
                << test.name;
        }
}

/// Without what stands in brackets, and without the last value behind a name.
std::string withoutNumbers(std::string line) {
    for (const auto& [from, to] : {std::pair("[", ']'), std::pair(": ", '"')})
        for (auto start = line.find(from); start != std::string::npos; start = line.find(from)) {
            const auto end = line.find(to, start);
            line.erase(start, end - start + (to == ']' ? 1 : 0));
        }
    return line;
}

TEST(LayoutSample, OfPricesIsAsWideAsTheLayoutSays) {
    PreviewFake view;
    view.m_ownLayout.m_chartType = 2;
    view.m_ownLayout.m_financeWidth = 321;
    const auto isShown = [](const std::string& line) {
        return line.starts_with("CXYChart_add") || line.starts_with("CHLOCLayer") ||
               line.starts_with("CLegendBox_addKey(LegendBox#1");
    };
    Lines shown;
    for (const std::string& line : drawnBy(DrawLayoutSample, view))
        if (isShown(line))
            shown.push_back(withoutNumbers(line));
    const Lines expected = {R"(CLegendBox_addKey(LegendBox#1, "Legend", -1, 0, null))",
                            R"-(CXYChart_addLineLayer(XYChart#1, , 0x00663300, "SMA (5)", 0))-",
                            R"-(CXYChart_addLineLayer(XYChart#1, , 0x009900ff, "SMA (20)", 0))-",
                            "CXYChart_addHLOCLayer(XYChart#1, , , , , -1)",
                            "CHLOCLayer_setColorMethod(HLOCLayer#1, 2, 32768, 0x00cc0000, -1.7e+308)",
                            R"-(CXYChart_addLineLayer(XYChart#1, , 0x009999ff, "Bollinger (20, 2)", 0))-",
                            "CXYChart_addLineLayer(XYChart#1, , 0x009999ff, null, 0)",
                            "CXYChart_addInterLineLayer(XYChart#1, Line#1, Line#2, 0xc06666ff, -1)",
                            R"(CXYChart_addBarLayer(XYChart#1, , 0x0099ff99, "", 0))",
                            R"(CXYChart_addBarLayer(XYChart#1, , 0x00ff9999, "", 0))",
                            R"(CXYChart_addBarLayer(XYChart#1, , 0x00808080, "", 0))",
                            R"-(CXYChart_addLineLayer(XYChart#2, , 0x00800080, "RSI (14)", 0))-",
                            "CXYChart_addInterLineLayer(XYChart#2, Line#3, Line#4, 0x00ff0000, 0xff000000)",
                            "CXYChart_addInterLineLayer(XYChart#2, Line#3, Line#5, 0xff000000, 255)",
                            R"-(CXYChart_addLineLayer(XYChart#3, , 255, "Momentum (12)", 0))-"};
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(view.m_pictureWidth, 321);
    EXPECT_EQ(view.m_pictureHeight, 65 + 211 + 71 + 71);
}

TEST(LayoutSample, OfNoKindIsNone) {
    for (const int type : {-1, 6}) {
        PreviewFake view;
        view.m_ownLayout.m_chartType = type;
        EXPECT_EQ(drawnBy(DrawLayoutSample, view), Lines());
        EXPECT_TRUE(view.m_picture.Empty());
    }
}

} // namespace
