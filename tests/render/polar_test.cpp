// The calls of the polar chart, in order and value, in every branch, and its made-up data.

#include "render/polar.h"
#include "tests/render/sections.h"
#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <sstream>

namespace {

struct Case {
    const char* name;
    std::function<void(CPolarChart&, PreviewFake&)> edit;
    std::function<void(Sections&)> expect;
};

CPolarLayer* addLayer(CPolarChart& chart, int type, const char* name = "") {
    CPolarLayer* layer = CPolarLayerMgr::CreateLayer(type);
    layer->m_seed = 40 + type;
    layer->m_name = name;
    chart.m_layers.AddLayer(layer);
    return layer;
}

/// The calls of one layer, `number` from 1, made by `make`: the first is the adding one. Data are left out.
Lines layerCalls(int number, int seed, const Lines& make,
                 const std::string& symbol = "0, 11, 0x00ff3333, 0, 1", int lineWidth = 2,
                 bool scaled = false) {
    const std::string table = "RanTable#" + std::to_string(number);
    const std::string layer = "PolarLayer#" + std::to_string(number);
    Lines lines = {"CRanTable_create(" + std::to_string(seed) + ", 3, 9)",
                   "CRanTable_setCol(" + table + ", 0, 0, 100)",
                   "CRanTable_setCol(" + table + ", 1, 0, 360)",
                   "CRanTable_setCol(" + table + ", 2, 0, 30)",
                   "CRanTable_getCol(" + table + ", 0)",
                   "CRanTable_getCol(" + table + ", 1)",
                   "CRanTable_getCol(" + table + ", 2)"};
    lines = lines + make +
            Lines{"CPolarLayer_setAngles(" + layer + ", [9])",
                  "CPolarLayer_setLineWidth(" + layer + ", " + std::to_string(lineWidth) + ")",
                  "CPolarLayer_setDataSymbol(" + layer + ", " + symbol + ")"};
    if (scaled)
        lines.push_back("CPolarLayer_setSymbolScale(" + layer + ", [9], 0)");
    return lines + Lines{"CPolarLayer_setDataLabelStyle(" + layer + R"(, "gulim.ttc", 12, 0, 0))"} +
           boxCalls(number, "-1, -1, 0", "0, false") +
           Lines{"CPolarLayer_setDataLabelFormat(" + layer + R"(, "{value}"))",
                 "CRanTable_destroy(" + table + ")"};
}

Lines lineCalls(const std::string& number, const char* name, const char* close) {
    return {"CPolarChart_addLineLayer(PolarChart#1, [9], 0x0033ff33, \"" + std::string(name) + "\")",
            "CPolarLineLayer_setCloseLoop(PolarLineLayer#" + number + ", " + close + ")",
            "PolarLineLayer2PolarLayer(PolarLineLayer#" + number + ")"};
}

Sections polarCalls() {
    return {
        {"create",
         {"CPolarChart_create(500, 550, 0xffff0000, 0xff000000, 0)", "PolarChart2BaseChart(PolarChart#1)"}},
        {"place", {"CPolarChart_setPlotArea(PolarChart#1, 250, 275, 200, 0xff000000, 0xff000000, 1)"}},
        {"background", kBackgroundCalls},
        {"grid",
         {"CPolarChart_setGridStyle(PolarChart#1, false, true)",
          "CPolarChart_setGridColor(PolarChart#1, 0x80000000, 1, 0x80000000, 1)"}},
        {"scale", {}},
        {"layers", {"CPolarChart_radialAxis(PolarChart#1)", "CAxis_setLinearScale(Axis#1, 0, 100, 10, 0)"}},
        {"legend", legendCalls(1, true)},
        {"labels", {}},
        {"zones", {}},
        {"alternate", {}},
        {"end", kEndCalls}};
}

/// Puts its length in the place of each array of numbers.
std::string withoutNumbers(const std::string& line) {
    const auto start = line.find('[');
    const auto end = line.find(']');
    if (start == std::string::npos || line.find('"') < start || line[start + 1] == '"' || start + 1 == end)
        return line;
    const auto commas =
        std::count(line.begin() + static_cast<long>(start), line.begin() + static_cast<long>(end), ',');
    return line.substr(0, start + 1) + std::to_string(commas + 1) + line.substr(end);
}

class PolarBranches : public testing::TestWithParam<Case> {};

TEST_P(PolarBranches, MakeTheCallsInOrder) {
    PreviewFake view;
    view.m_polarChart = &view.m_ownPolarChart;
    GetParam().edit(view.m_ownPolarChart, view);
    Sections calls = polarCalls();
    GetParam().expect(calls);
    Lines lines = drawnBy(DrawPolarChart, view);
    std::transform(lines.begin(), lines.end(), lines.begin(), withoutNumbers);
    EXPECT_EQ(lines, calls.All());
}

const Case cases[] = {
    {"Defaults", [](CPolarChart&, PreviewFake&) {}, [](Sections&) {}},
    {"Frame",
     [](CPolarChart& chart, PreviewFake& view) {
         CPieChartPA& area = view.m_ownLayout.m_polarPlotArea;
         area.m_centerX = 7;
         area.m_centerY = 8;
         area.m_radius = 9;
         chart.m_backColor.m_color = 0x111111;
         chart.m_edgeColor.m_color = 0x222222;
         chart.m_edgeWidth = 3;
         chart.m_polygonGrid = true;
         chart.m_gridOnTop = false;
         chart.m_radialGridColor.m_color = 0x333333;
         chart.m_radialGridWidth = 4;
         chart.m_angularGridColor.m_color = 0x444444;
         chart.m_angularGridWidth = 5;
         chart.m_lowerLimit = 10; // not read
     },
     [](Sections& calls) {
         calls["place"] = {"CPolarChart_setPlotArea(PolarChart#1, 7, 8, 9, 0x00111111, 0x00222222, 3)"};
         calls["grid"] = {"CPolarChart_setGridStyle(PolarChart#1, true, false)",
                          "CPolarChart_setGridColor(PolarChart#1, 0x00333333, 4, 0x00444444, 5)"};
     }},
    {"LinearScale",
     [](CPolarChart& chart, PreviewFake& view) {
         chart.m_useLinearScale = true;
         chart.m_lowerLimit = 400;
         chart.m_upperLimit = -5;
         chart.m_majorTickInc = 15.5;
         chart.m_minorTickInc = -1;
         view.m_ownLayout.m_showLegend = false;
     },
     [](Sections& calls) {
         calls["scale"] = {"CPolarChart_angularAxis(PolarChart#1)",
                           "CAngularAxis_setLinearScale(AngularAxis#1, 400, -5, 15.5, -1)"};
         calls["legend"].clear();
     }},
    {"LayersOfEachKind", // one of them named: no sample key
     [](CPolarChart& chart, PreviewFake&) {
         addLayer(chart, 0);
         addLayer(chart, 1);
         addLayer(chart, 2, "\xc3\x84");
         addLayer(chart, 3);
         static_cast<CPolarLineLayer*>(chart.m_layers.GetLayer(1))->m_closeLoop = true;
     },
     [](Sections& calls) {
         calls["layers"] =
             layerCalls(1, 40, lineCalls("1", "", "false")) +
             layerCalls(2, 41,
                        {"CPolarChart_addSplineLineLayer(PolarChart#1, [9], 0x0033ff33, \"\")",
                         "PolarSplineLineLayer2PolarLineLayer(PolarSplineLineLayer#1)",
                         "CPolarLineLayer_setCloseLoop(PolarLineLayer#2, true)",
                         "PolarLineLayer2PolarLayer(PolarLineLayer#2)"}) +
             layerCalls(3, 42,
                        {"CPolarChart_addAreaLayer(PolarChart#1, [9], 0x0033ff33, \"\xc3\x84\")",
                         "PolarAreaLayer2PolarLayer(PolarAreaLayer#1)"}) +
             layerCalls(4, 43,
                        {"CPolarChart_addSplineAreaLayer(PolarChart#1, [9], 0x0033ff33, \"\")",
                         "PolarSplineAreaLayer2PolarAreaLayer(PolarSplineAreaLayer#1)",
                         "PolarAreaLayer2PolarLayer(PolarAreaLayer#2)"});
         calls["legend"] = legendCalls(5, false);
     }},
    {"SymbolsAndNoLabels",
     [](CPolarChart& chart, PreviewFake& view) {
         CPolarLayer* layer = addLayer(chart, 0);
         layer->m_lineWidth = 0;
         layer->m_symbolType = 7;
         layer->m_symbolSize = 13;
         layer->m_fillColor.m_color = 0x111111;
         layer->m_edgeColor.m_color = 0x222222;
         layer->m_useSymbolScale = true;
         view.m_ownLayout.m_showLabel = false;
     },
     [](Sections& calls) {
         Lines layer =
             layerCalls(1, 40, lineCalls("1", "", "false"), "7, 13, 0x00111111, 0x00222222, 1", 0, true);
         layer.erase(layer.end() - 6, layer.end() - 1);
         calls["layers"] = layer;
     }},
    {"SingleLayer",
     [](CPolarChart& chart, PreviewFake& view) {
         addLayer(chart, 2, "not shown");
         view.m_polarLayer = addLayer(chart, 0, "shown");
         view.m_singleLayerMode = true;
     },
     [](Sections& calls) {
         calls["layers"] = layerCalls(1, 40, lineCalls("1", "shown", "false"));
         calls["legend"] = legendCalls(2, false);
     }},
    {"Labels",
     [](CPolarChart& chart, PreviewFake&) {
         for (const char* text : {"N", "\xc3\x96stlich"}) {
             CChartString label;
             label = text;
             chart.m_angularLabels.push_back(label);
         }
         chart.m_showAngularLabels = chart.m_useAngularLabelStyle = chart.m_useRadialLabelStyle = true;
         chart.m_angularLabelStyle.m_font.m_fileName = "a.ttf";
         chart.m_angularLabelStyle.m_font.m_size = 7;
         chart.m_angularLabelStyle.m_fontColor.m_color = 0x111111;
         chart.m_angularLabelStyle.m_alignment = 1; // not read
         chart.m_angularLabelStyle.m_angle = 30;
         chart.m_radialLabelStyle.m_font.m_fileName = "r.ttf";
         chart.m_radialLabelStyle.m_effect.m_value = 2;
         chart.m_radialLabelStyle.m_vertical = true;
     },
     [](Sections& calls) {
         calls["labels"] = Lines{"CPolarChart_angularAxis(PolarChart#1)",
                                 "CAngularAxis_setLabels(AngularAxis#1, [\"N\", \"\xc3\x96stlich\"])",
                                 "CPolarChart_angularAxis(PolarChart#1)",
                                 R"(CAngularAxis_setLabelStyle(AngularAxis#1, "a.ttf", 7, 0x00111111, 0))"} +
                           boxCalls(2, "0x00ffffff, 0xff000000, 0", "30, false") +
                           Lines{"CPolarChart_radialAxis(PolarChart#1)",
                                 R"(CAxis_setLabelStyle(Axis#1, "r.ttf", 12, 0, 0))"} +
                           boxCalls(3, "0x00ffffff, 0xff000000, 2", "0, true");
     }},
    {"NoLabels", [](CPolarChart& chart, PreviewFake&) { chart.m_showAngularLabels = true; },
     [](Sections& calls) {
         calls["labels"] = {"CPolarChart_angularAxis(PolarChart#1)",
                            "CAngularAxis_setLabels(AngularAxis#1, [])"};
     }},
    {"ZonesAndAlternateColours",
     [](CPolarChart& chart, PreviewFake&) {
         CMeterZoneAngular zone;
         chart.m_angularZones.push_back(zone);
         zone.m_startValue = 350;
         zone.m_endValue = 20.5;
         zone.m_fillColor.m_color = 0x111111;
         zone.m_edgeColor.m_color = 0x222222;
         chart.m_angularZones.push_back(zone);
         chart.m_radialZones.push_back(zone);
         chart.m_useAltBgColor = true;
         chart.m_bgColor1.m_color = 0x333333;
         chart.m_altBgRing = false;
     },
     [](Sections& calls) {
         calls["zones"] = {"CPolarChart_angularAxis(PolarChart#1)",
                           "CAngularAxis_addZone2(AngularAxis#1, 0, 0, 0x0066ff66, 0x0066ff66)",
                           "CPolarChart_angularAxis(PolarChart#1)",
                           "CAngularAxis_addZone2(AngularAxis#1, 350, 20.5, 0x00111111, 0x00222222)",
                           "CPolarChart_radialAxis(PolarChart#1)",
                           "CAxis_addZone(Axis#1, 350, 20.5, 0x00111111)"};
         calls["alternate"] = {"CPolarChart_setPlotAreaBg(PolarChart#1, 0x00333333, 0x00eeeeee, false)"};
     }},
};

INSTANTIATE_TEST_SUITE_P(Polar, PolarBranches, testing::ValuesIn(cases),
                         [](const auto& test) { return test.param.name; });

/// The numbers of a new line layer with that seed: radii, angles, symbol sizes.
std::vector<std::vector<double>> sampleOf(int seed) {
    PreviewFake view;
    view.m_polarChart = &view.m_ownPolarChart;
    CPolarLayer* layer = addLayer(view.m_ownPolarChart, 0);
    layer->m_seed = seed;
    layer->m_useSymbolScale = true;
    std::vector<std::vector<double>> columns;
    for (const std::string& line : drawnBy(DrawPolarChart, view))
        if (line.find(", [") != std::string::npos) {
            std::istringstream list(line.substr(line.find('[') + 1));
            std::vector<double>& column = columns.emplace_back();
            for (double value; list >> value; list.ignore(1))
                column.push_back(value);
        }
    return columns;
}

TEST(PolarSample, IsWholeNumbersThatDependOnTheSeedAlone) {
    const double most[] = {100, 360, 30};
    const auto sample = sampleOf(5);
    ASSERT_EQ(sample.size(), 3U);
    for (std::size_t column = 0; column < 3; ++column) {
        ASSERT_EQ(sample[column].size(), 9U);
        for (const double value : sample[column]) {
            EXPECT_EQ(value, std::floor(value));
            EXPECT_GE(value, 0);
            EXPECT_LE(value, most[column]);
        }
    }
    EXPECT_TRUE(std::is_sorted(sample[1].rbegin(), sample[1].rend()));
    EXPECT_FALSE(std::is_sorted(sample[0].rbegin(), sample[0].rend()));
    EXPECT_EQ(sampleOf(5), sample);
    EXPECT_NE(sampleOf(6), sample);
}

} // namespace
