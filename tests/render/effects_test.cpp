// Every value of meters, polar charts and layouts shows in the picture, by drawing with it and with another
// one; and no values at all take the drawing down.

#include "render/angular_meter.h"
#include "render/layout_sample.h"
#include "render/linear_meter.h"
#include "render/polar.h"
#include "tests/render/leaves.h"
#include "tests/render/preview_fake.h"
#include <QImage>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <set>

namespace {

constexpr int kSize = 240; // pixels a side, for speed

CChartColor General(std::uint32_t value) {
    CChartColor color;
    color.m_color = value;
    return color;
}

/// Draws a model again and again, each time with one value changed, and tells which changes left the picture
/// as it was.
template <class Model>
std::vector<std::string> changesWithoutEffect(PreviewFake& view, Model& model,
                                              void (*routine)(CChartPreview&)) {
    const auto draw = [&] {
        view.m_picture.Clear();
        routine(view);
        return view.m_picture.Bytes();
    };
    const auto before = draw();
    EXPECT_FALSE(before.empty());
    std::vector<std::string> without;
    leaves::Each(model, [&](const std::string& path, auto& value, leaves::Words words) {
        const auto saved = value;
        leaves::Change()(path, value, words);
        if (draw() == before)
            without.push_back(path);
        value = saved;
    });
    return without;
}

CChartTextBox someText() {
    CChartTextBox text;
    text.m_text = "Text";
    text.m_x = text.m_y = 60;
    text.m_angle = 20;
    return text;
}

CMeterPointer somePointer() {
    CMeterPointer pointer;
    pointer.m_value = 40;
    pointer.m_fillColor = General(0xff);
    pointer.m_lengthRatio = 0.6;
    return pointer;
}

CMeterZoneAngular someZone(double start, double end) {
    CMeterZoneAngular zone;
    zone.m_startValue = start;
    zone.m_endValue = end;
    return zone;
}

void fillScale(auto& meter) {
    meter.m_axisWidth = 2;
    meter.m_upperLimit = 60;
    meter.m_texts.push_back(someText());
    meter.m_pointers.push_back(somePointer());
    meter.m_useLabelStyle = true;
    meter.m_labelStyle.m_font.m_size = 7;
}

TEST(Effects, OfEachValueOfAnAngularMeter) {
    PreviewFake view;
    view.m_ownLayout.SetChartSize(kSize, kSize);
    CAngularMeter& meter = view.m_ownAngularMeter;
    fillScale(meter);
    CAngularRing ring;
    ring.m_startRadius = 30;
    ring.m_endRadius = 40;
    meter.m_rings.push_back(ring);
    meter.m_zones.push_back(someZone(20, 50));
    EXPECT_THAT(changesWithoutEffect(view, meter, DrawAngularMeter),
                testing::ElementsAre("texts[0].font.faceName", "labelStyle.font.faceName"));
}

TEST(Effects, OfEachValueOfALinearMeter) {
    PreviewFake view;
    view.m_ownLayout.SetChartSize(kSize, kSize);
    view.m_ownLayout.m_linearPlotArea.m_width = 60;
    CLinearMeter& meter = view.m_ownLinearMeter;
    fillScale(meter);
    CMeterZoneLinear zone;
    zone.m_startValue = 5;
    zone.m_endValue = 30;
    zone.m_text = "Zone";
    meter.m_zones.push_back(zone);
    EXPECT_THAT(changesWithoutEffect(view, meter, DrawLinearMeter),
                testing::ElementsAre("zones[0].font.faceName", "zones[0].alignment", "texts[0].font.faceName",
                                     "labelStyle.font.faceName"));
}

TEST(Effects, OfEachValueOfAPolarChart) {
    PreviewFake view;
    view.m_ownLayout.SetChartSize(kSize, kSize);
    view.m_polarChart = &view.m_ownPolarChart;
    CPolarChart& chart = view.m_ownPolarChart;
    chart.m_useLinearScale = chart.m_useAltBgColor = chart.m_useAngularLabelStyle =
        chart.m_useRadialLabelStyle = true;
    chart.m_minorTickInc = 10;
    chart.m_edgeColor = General(0);
    chart.m_bgColor1 = General(0x80dddddd);
    chart.m_angularZones.push_back(someZone(30, 80));
    chart.m_radialZones.push_back(someZone(30, 80));
    chart.m_showAngularLabels = true;
    for (const char* text : {"North", "East", "South"}) {
        CChartString label;
        label = text;
        chart.m_angularLabels.push_back(label);
    }
    for (const int type : {0, 2}) {
        CPolarLayer* layer = CPolarLayerMgr::CreateLayer(type);
        layer->m_seed = 8;
        layer->m_name = "Layer";
        layer->m_symbolType = 1;
        layer->m_useSymbolScale = type == 2;
        chart.m_layers.AddLayer(layer);
    }
    const std::set<std::string> never = {"angularLabelStyle.font.faceName", "angularLabelStyle.alignment",
                                         "radialLabelStyle.font.faceName", "radialZones[0].edgeColor",
                                         "layers[1].symbolSize"}; // its symbols have sizes of their own
    const auto without = [&] {
        std::vector<std::string> paths = changesWithoutEffect(view, chart, DrawPolarChart);
        std::erase_if(paths, [&](const std::string& path) { return never.contains(path); });
        return paths;
    };
    // Labels stand at even steps whatever the scale; alternating colours cover the other one.
    EXPECT_THAT(without(),
                testing::ElementsAre("useLinearScale", "majorTickInc", "minorTickInc", "backColor"));
    chart.m_showAngularLabels = chart.m_useAltBgColor = false;
    EXPECT_THAT(without(), testing::ElementsAre("bgColor1", "bgColor2", "altBgRing", "angularLabels[0]",
                                                "angularLabels[1]", "angularLabels[2]"));
}

TEST(Effects, OfEachValueOfALayoutOnItsSample) {
    const QTemporaryDir folder;
    QImage wallPaper(230, 230, QImage::Format_RGB32);
    wallPaper.fill(0xff00ff00);
    ASSERT_TRUE(wallPaper.save(folder.filePath("w.png")));
    const std::set<std::string> nowhere = {"defaultFont.size",    "showToolTip", "toolTipFormat",
                                           "titles[0].alignment", // this one has a position
                                           "titles[1].x",         "titles[1].y"};
    const std::set<std::string> oneKey = {"legendFormat", "legendVertical"};
    const std::string places[] = {"piePlotArea",   "xyPlotArea",      "financeWidth",
                                  "polarPlotArea", "angularPlotArea", "linearPlotArea"};
    const auto hasLabels = [](int type) { return type != 2 && type < 4; };
    const std::vector<std::string> expected[] = {{"defaultFont.fileName", "legendVertical"}, // no other texts
                                                 {"legendVertical"},
                                                 {"width", "height", "defaultFont.fileName"},
                                                 {},
                                                 {},
                                                 {}};
    for (int type = 0; type < std::ssize(places); ++type) {
        PreviewFake view;
        CChartLayout& layout = view.m_ownLayout;
        layout.SetChartSize(kSize, kSize);
        layout.m_chartType = type;
        layout.m_useWallPaper = true;
        layout.m_wallPaperImage = folder.filePath("w.png").toLocal8Bit().constData();
        CChartTitle title;
        title.m_show = title.m_usePosition = true;
        title.m_text = "Title";
        layout.m_titles.push_back(title);
        title.m_usePosition = false;
        layout.m_titles.push_back(title);
        std::vector<std::string> without = changesWithoutEffect(view, layout, DrawLayoutSample);
        std::erase_if(without, [&](const std::string& path) {
            const bool isPlace = path.find("PlotArea") != std::string::npos || path == "financeWidth";
            return (isPlace && !path.starts_with(places[type])) || path.ends_with("faceName") ||
                   nowhere.contains(path) || (type >= 2 && oneKey.contains(path)) ||
                   (!hasLabels(type) && (path.starts_with("label") || path == "showLabel"));
        });
        SCOPED_TRACE(type);
        EXPECT_EQ(without, expected[type]);
    }
}

/// How often each kind is drawn with random values; 10000 for a long run.
int rounds() {
    return std::max(60, qEnvironmentVariableIntValue("CHART_RANDOM_MODELS"));
}

template <class Model, class Fill>
void drawRandomModels(void (*routine)(CChartPreview&), Model CChartPreview::*model, const Fill& fill) {
    for (int round = 0; round < rounds(); ++round) {
        SCOPED_TRACE(round);
        leaves::Randomize random(static_cast<unsigned>(round));
        PreviewFake view;
        view.m_polarChart = &view.m_ownPolarChart;
        random.Fill(view.m_ownLayout.m_titles);
        fill(view.*model, random);
        leaves::Each(view.m_ownLayout, random);
        leaves::Each(view.*model, random);
        if (random.Below(20)) { // a picture at all
            view.m_ownLayout.m_width = view.m_ownLayout.m_financeWidth = 1 + random.Below(300);
            view.m_ownLayout.m_height = 1 + random.Below(300);
        }
        routine(view);
    }
}

TEST(RandomModels, OfAngularMetersAreDrawn) {
    drawRandomModels(
        DrawAngularMeter, &PreviewFake::m_ownAngularMeter,
        [](CAngularMeter& meter, auto& random) {
            random.Fill(meter.m_rings);
            random.Fill(meter.m_zones);
            random.Fill(meter.m_texts);
            random.Fill(meter.m_pointers);
        });
}

TEST(RandomModels, OfLinearMetersAreDrawn) {
    drawRandomModels(
        DrawLinearMeter, &PreviewFake::m_ownLinearMeter,
        [](CLinearMeter& meter, auto& random) {
            random.Fill(meter.m_zones);
            random.Fill(meter.m_texts);
            random.Fill(meter.m_pointers);
        });
}

TEST(RandomModels, OfPolarChartsAreDrawn) {
    drawRandomModels(
        DrawPolarChart, &PreviewFake::m_ownPolarChart,
        [](CPolarChart& chart, auto& random) {
            random.Fill(chart.m_angularZones);
            random.Fill(chart.m_radialZones);
            random.Fill(chart.m_angularLabels);
            for (int left = random.Below(4); left > 0; --left)
                chart.m_layers.AddLayer(CPolarLayerMgr::CreateLayer(random.Below(4)));
        });
}

TEST(RandomModels, OfLayoutsAreDrawn) {
    drawRandomModels(
        DrawLayoutSample, &PreviewFake::m_ownLayout, [](CChartLayout&, auto&) {});
}

} // namespace
