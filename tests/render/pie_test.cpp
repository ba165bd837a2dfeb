// The calls of the pie, in order and value, in every branch.

#include "render/pie.h"
#include "tests/recorder/recorder.h"
#include "tests/render/preview_fake.h"
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <sstream>

namespace {

using Lines = std::vector<std::string>;

/// The calls of one drawing in the sections that a branch may change; by default those of new models.
struct PieCalls {
    Lines create = {"CPieChart_create(500, 550, 0xffff0000, 0xff000000, 0)", "PieChart2BaseChart(PieChart#1)",
                    "CPieChart_setPieSize(PieChart#1, 250, 275, 160)"};
    Lines dressing = {
        "CBaseChart_setBackground(BaseChart#1, 0x00ffffff, 0x33808080, 0)",
        R"(CBaseChart_setDefaultFonts(BaseChart#1, "gulim.ttc", "gulim.ttc", "gulim.ttc", "gulim.ttc"))"};
    Lines data = {
        "CRanTable_create(0, 2, 5)", "CRanTable_setCol(RanTable#1, 0, 10, 100)",
        "CRanTable_getCol(RanTable#1, 0)",
        R"(CPieChart_setData(PieChart#1, [5], ["Sector 1", "Sector 2", "Sector 3", "Sector 4", "Sector 5"]))"};
    Lines labels = {R"(CPieChart_setLabelStyle(PieChart#1, "gulim.ttc", 12, 0))",
                    "TextBox2Box(TextBox#1)",
                    "CBox_setBackground(Box#1, -1, -1, 0)",
                    "CTextBox_setFontAngle(TextBox#1, 0, false)",
                    R"(CPieChart_setLabelFormat(PieChart#1, "{value}"))",
                    "CTextBox_setAlignment(TextBox#1, 5)"};
    Lines legend = {R"(CBaseChart_addLegend(BaseChart#1, 320, 12, false, "gulim.ttc", 12))",
                    "LegendBox2TextBox(LegendBox#1)",
                    "TextBox2Box(TextBox#2)",
                    "CTextBox_setFontColor(TextBox#2, 0)",
                    "CBox_setBackground(Box#2, -1, 0, 0)",
                    R"(CTextBox_setText(TextBox#2, "{dataSetName}"))"};
    Lines depth = {};
    Lines labelLayout = {"CPieChart_setLabelLayout(PieChart#1, 1, -1, -1, -1)"};
    Lines startAngle = {"CPieChart_setStartAngle(PieChart#1, 0, true)"};
    Lines donut = {};
    Lines sectors = {};
    Lines lineColor = {"CPieChart_setLineColor(PieChart#1, 0xff000000, 0)"};
    Lines end = {"CBaseChart_makeChart2(BaseChart#1, 4)", "CBaseChart_getDrawArea(BaseChart#1)",
                 "CDrawArea_getWidth(DrawArea#1)",        "CDrawArea_getHeight(DrawArea#1)",
                 "CRanTable_destroy(RanTable#1)",         "CBaseChart_destroy(BaseChart#1)"};

    Lines All() const {
        Lines all;
        for (const Lines* part : {&create, &dressing, &data, &labels, &legend, &depth, &labelLayout,
                                  &startAngle, &donut, &sectors, &lineColor, &end})
            all.insert(all.end(), part->begin(), part->end());
        return all;
    }
};

/// The made-up values of a line of CPieChart_setData.
std::vector<double> valuesIn(const std::string& line) {
    std::istringstream list(line.substr(line.find('[') + 1));
    std::vector<double> values;
    for (double value; list >> value; list.ignore(1))
        values.push_back(value);
    return values;
}

/// Puts their number in the place of the made-up values.
std::string withoutValues(const std::string& line) {
    if (!line.starts_with("CPieChart_setData("))
        return line;
    const auto end = line.find(']');
    return line.substr(0, line.find('[') + 1) + std::to_string(valuesIn(line).size()) + line.substr(end);
}

Lines drawn(PreviewFake& view) {
    const recorder::Recording recording;
    DrawPieChart(view);
    Lines lines = recording.Lines();
    std::transform(lines.begin(), lines.end(), lines.begin(), withoutValues);
    return lines;
}

void addSector(CPieChart& pie, const char* text, std::uint32_t color = 0) {
    CPieChartSector sector;
    sector.m_text = text;
    sector.m_color.m_color = color;
    pie.m_sectors.push_back(sector);
}

struct Case {
    const char* name;
    std::function<void(CPieChart&, CChartLayout&)> edit;
    std::function<void(PieCalls&)> expect;
};

class PieBranches : public testing::TestWithParam<Case> {};

TEST_P(PieBranches, MakesTheCallsInOrder) {
    PreviewFake view;
    GetParam().edit(view.m_ownPieChart, view.m_ownLayout);
    PieCalls calls;
    GetParam().expect(calls);
    EXPECT_EQ(drawn(view), calls.All());
}

const Case cases[] = {
    {"Defaults", [](CPieChart&, CChartLayout&) {}, [](PieCalls&) {}},
    {"Place",
     [](CPieChart&, CChartLayout& layout) {
         layout.m_width = 300;
         layout.m_height = 200;
         layout.m_piePlotArea.m_centerX = 7;
         layout.m_piePlotArea.m_centerY = 8;
         layout.m_piePlotArea.m_radius = 9;
     },
     [](PieCalls& calls) {
         calls.create[0] = "CPieChart_create(300, 200, 0xffff0000, 0xff000000, 0)";
         calls.create[2] = "CPieChart_setPieSize(PieChart#1, 7, 8, 9)";
     }},
    {"Sectors",
     [](CPieChart& pie, CChartLayout&) {
         addSector(pie, "A", 0xff0000);
         addSector(pie, "", 0);
         addSector(pie, "\xc3\x84pfel", 0x800000ff);
     },
     [](PieCalls& calls) {
         calls.data[0] = "CRanTable_create(0, 2, 3)";
         calls.data[3] = "CPieChart_setData(PieChart#1, [3], [\"A\", \"\", \"\xc3\x84pfel\"])";
         calls.sectors = {
             "CPieChart_sector(PieChart#1, 0)", "CSector_setColor(Sector#1, 0x00ff0000, -1, -1)",
             "CPieChart_sector(PieChart#1, 1)", "CSector_setColor(Sector#2, 0, -1, -1)",
             "CPieChart_sector(PieChart#1, 2)", "CSector_setColor(Sector#3, 0x800000ff, -1, -1)"};
     }},
    {"Explode",
     [](CPieChart& pie, CChartLayout&) {
         for (int i = 0; i < 3; ++i)
             addSector(pie, "x");
         pie.m_sectors[0].m_distance = 12;
         pie.m_sectors[0].m_useDistance = true; // not read: the sector is not moved
         pie.m_sectors[1].m_distance = 13;
         pie.m_sectors[1].m_showExplode = true;
         pie.m_sectors[2] = pie.m_sectors[0];
         pie.m_sectors[2].m_showExplode = true;
     },
     [](PieCalls& calls) {
         calls.data[0] = "CRanTable_create(0, 2, 3)";
         calls.data[3] = "CPieChart_setData(PieChart#1, [3], [\"x\", \"x\", \"x\"])";
         calls.sectors = {"CPieChart_sector(PieChart#1, 0)",       "CSector_setColor(Sector#1, 0, -1, -1)",
                          "CPieChart_sector(PieChart#1, 1)",       "CSector_setColor(Sector#2, 0, -1, -1)",
                          "CSector_setExplode(Sector#2, -1)",      "CPieChart_sector(PieChart#1, 2)",
                          "CSector_setColor(Sector#3, 0, -1, -1)", "CSector_setExplode(Sector#3, 12)"};
     }},
    {"NoLabels", [](CPieChart&, CChartLayout& layout) { layout.m_showLabel = false; },
     [](PieCalls& calls) {
         calls.labels = {R"(CPieChart_setLabelFormat(PieChart#1, " "))"};
         calls.legend = {R"(CBaseChart_addLegend(BaseChart#1, 320, 12, false, "gulim.ttc", 12))",
                         "LegendBox2TextBox(LegendBox#1)",
                         "TextBox2Box(TextBox#1)",
                         "CTextBox_setFontColor(TextBox#1, 0)",
                         "CBox_setBackground(Box#1, -1, 0, 0)",
                         R"(CTextBox_setText(TextBox#1, "{dataSetName}"))"};
     }},
    {"LabelLooks",
     [](CPieChart& pie, CChartLayout& layout) {
         layout.m_labelFont.m_fileName = "";
         layout.m_labelFont.m_size = 7.5;
         layout.m_labelFontColor.m_color = 0x112233;
         layout.m_labelBackColor.m_color = 0x445566;
         layout.m_labelEdgeColor.m_color = 0x778899;
         layout.m_labelEffect.m_value = -3;
         layout.m_labelAngle = 45;
         layout.m_labelVertical = true;
         layout.m_labelFormat = "{label}";
         pie.m_labelAlignment = 9;
     },
     [](PieCalls& calls) {
         calls.labels = {R"(CPieChart_setLabelStyle(PieChart#1, "", 7.5, 0x00112233))",
                         "TextBox2Box(TextBox#1)",
                         "CBox_setBackground(Box#1, 0x00445566, 0x00778899, -3)",
                         "CTextBox_setFontAngle(TextBox#1, 45, true)",
                         R"(CPieChart_setLabelFormat(PieChart#1, "{label}"))",
                         "CTextBox_setAlignment(TextBox#1, 9)"};
     }},
    {"NoLegend", [](CPieChart&, CChartLayout& layout) { layout.m_showLegend = false; },
     [](PieCalls& calls) { calls.legend.clear(); }},
    {"Depth",
     [](CPieChart& pie, CChartLayout&) {
         pie.m_show3D = true;
         pie.m_depth3D = 20;
         pie.m_angle3D = 37.5;
         pie.m_shadow3D = true;
     },
     [](PieCalls& calls) { calls.depth = {"CPieChart_set3D(PieChart#1, 20, 37.5, true)"}; }},
    {"DepthOff",
     [](CPieChart& pie, CChartLayout&) {
         pie.m_depth3D = 20;
         pie.m_shadow3D = true;
     },
     [](PieCalls&) {}},
    {"LayoutAndStart",
     [](CPieChart& pie, CChartLayout&) {
         pie.m_labelLayout = 0;
         pie.m_labelPosition = 15;
         pie.m_startAngle = -30;
         pie.m_clockWise = false;
     },
     [](PieCalls& calls) {
         calls.labelLayout = {"CPieChart_setLabelLayout(PieChart#1, 0, 15, -1, -1)"};
         calls.startAngle = {"CPieChart_setStartAngle(PieChart#1, -30, false)"};
     }},
    {"Donut",
     [](CPieChart& pie, CChartLayout& layout) {
         pie.m_useDonut = true;
         layout.m_piePlotArea.m_radius = 150;
     },
     [](PieCalls& calls) {
         calls.create[2] = "CPieChart_setPieSize(PieChart#1, 250, 275, 150)";
         calls.donut = {"CPieChart_setDonutSize(PieChart#1, 250, 275, 75, 150)"};
     }},
    {"DonutRoundsDown", // 160 * 33 / 100 = 52.8
     [](CPieChart& pie, CChartLayout&) {
         pie.m_useDonut = true;
         pie.m_donutInnerRadius = 33;
     },
     [](PieCalls& calls) { calls.donut = {"CPieChart_setDonutSize(PieChart#1, 250, 275, 52, 160)"}; }},
    {"LineColors",
     [](CPieChart& pie, CChartLayout&) {
         pie.m_edgeColor.m_color = 0x123456;
         pie.m_joinLineColor.m_color = 0xffffffff;
     },
     [](PieCalls& calls) { calls.lineColor = {"CPieChart_setLineColor(PieChart#1, 0x00123456, -1)"}; }},
};

INSTANTIATE_TEST_SUITE_P(Pie, PieBranches, testing::ValuesIn(cases),
                         [](const auto& test) { return test.param.name; });

/// The values that a pie of `sectors` sectors is drawn with.
std::vector<double> valuesOf(int sectors) {
    PreviewFake view;
    for (int i = 0; i < sectors; ++i)
        addSector(view.m_ownPieChart, "x");
    const recorder::Recording recording;
    DrawPieChart(view);
    for (const std::string& line : recording.Lines())
        if (line.starts_with("CPieChart_setData("))
            return valuesIn(line);
    return {};
}

TEST(PieSample, IsWholeNumbersThatDependOnTheirCountAlone) {
    for (const int sectors : {1, 3, 40}) {
        const std::vector<double> values = valuesOf(sectors);
        ASSERT_EQ(std::ssize(values), sectors);
        for (const double value : values) {
            EXPECT_EQ(value, std::floor(value));
            EXPECT_GE(value, 10);
            EXPECT_LE(value, 100);
        }
        EXPECT_EQ(valuesOf(sectors), values);
    }
    EXPECT_EQ(valuesOf(0), valuesOf(5));
}

TEST(PieSample, IsUnchangedByEdits) {
    PreviewFake view;
    addSector(view.m_ownPieChart, "a");
    addSector(view.m_ownPieChart, "b");
    const recorder::Recording recording;
    DrawPieChart(view);
    const Lines first = recording.Lines();
    const auto bytes = view.m_picture.Bytes();
    view.m_picture.Clear();
    view.m_pictureWidth = 0;
    const recorder::Recording again;
    DrawPieChart(view);
    EXPECT_EQ(again.Lines(), first);
    EXPECT_EQ(view.m_picture.Bytes(), bytes);
}

TEST(Pie, BadNumbersGiveAPictureOrNone) {
    PreviewFake view;
    CPieChart& pie = view.m_ownPieChart;
    const std::int32_t most = std::numeric_limits<std::int32_t>::max();
    addSector(pie, "x");
    pie.m_sectors[0].m_showExplode = pie.m_sectors[0].m_useDistance = true;
    pie.m_sectors[0].m_distance = most;
    pie.m_useDonut = pie.m_show3D = true;
    pie.m_depth3D = pie.m_donutInnerRadius = view.m_ownLayout.m_piePlotArea.m_radius = most;
    pie.m_angle3D = pie.m_startAngle = std::numeric_limits<double>::infinity();
    DrawPieChart(view);
    EXPECT_FALSE(view.m_picture.Empty());
    view.m_picture.Clear();
    view.m_ownLayout.m_width = most;
    DrawPieChart(view);
    EXPECT_TRUE(view.m_picture.Empty());
}

} // namespace
