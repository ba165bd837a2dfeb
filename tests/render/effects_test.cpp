// Every value of meters, polar and XY charts and layouts shows in the picture, by drawing with it and with
// another one.

#include "render/angular_meter.h"
#include "render/layout_sample.h"
#include "render/linear_meter.h"
#include "render/polar.h"
#include "render/xy_frame.h"
#include "tests/model/models.h"
#include "tests/render/calls.h"
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

/// Gives the value of one place another look.
class Change {
    static void To(bool& value, model::Words) { value = !value; }
    static void To(unsigned char& value, model::Words) { value = static_cast<unsigned char>(value == 1 ? 2 : 1); }
    static void To(std::int32_t& value, model::Words words) {
        if (words.empty()) {
            value += value >= 100 ? 20 : value >= 30 ? 40 : 3;
            return;
        }
        std::size_t next = 0;
        while (next < words.size() && words[next].code != value) ++next;
        value = static_cast<std::int32_t>(words[(next + 1) % words.size()].code);
    }
    static void To(double& value, model::Words) { value = value * 1.5 + 1; }
    static void To(CChartString& value, model::Words) {
        value = std::string_view(value.data(), value.size()).ends_with(".ttc") ? "LiberationSerif-Bold.ttf" : "Other";
    }
    static void To(CChartColor& value, model::Words) {
        value.m_color = value.m_color == 0xa05a2c ? 0x2ca05a : 0xa05a2c;
    }
    static void To(CChartRaisedEffect& value, model::Words) { value.m_value += 5; }
    static void To(CXYChartAxis*&, model::Words) {} // a relation

public:
    explicit Change(int place) : m_left(place) {}

    /// Whether the place is beyond the last value.
    bool Over() const { return m_left >= 0; }

    template <class Value>
    requires requires(Value& value) { To(value, model::Words()); }
    void operator()(Value& value, model::Words words) {
        if (m_left-- == 0) To(value, words);
    }
    void Grow(auto&) {}

private:
    int m_left;
};

using Paths = std::set<std::string>;
/// The values of a model by whether another one of them changes the picture.
struct Effects {
    Paths with, without;
};

/// Draws a model again and again, each time with one value of a part of it changed.
template <class Model, class Part>
Effects effects(PreviewFake& view, Model& model, Part& part, void (*routine)(CChartPreview&)) {
    const auto draw = [&] {
        view.m_picture.Clear();
        routine(view);
        return view.m_picture.Bytes();
    };
    const auto before = draw();
    EXPECT_FALSE(before.empty());
    const Model saved = model;
    const std::vector<model::Value> values = model::Values(saved);
    Effects found;
    for (int place = 0;; ++place) {
        Change change(place);
        models::Each(part, change);
        if (change.Over()) return found;
        const auto differences = model::Differences(values, model::Values(model));
        if (differences.size() == 1) (draw() == before ? found.without : found.with).insert(differences[0].path);
        model = saved;
    }
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
    EXPECT_THAT(effects(view, meter, meter, DrawAngularMeter).without,
                testing::ElementsAre("labelStyle.font.faceName", "texts[0].font.faceName"));
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
    EXPECT_THAT(effects(view, meter, meter, DrawLinearMeter).without,
                testing::ElementsAre("labelStyle.font.faceName", "texts[0].font.faceName", "zones[0].alignment",
                                     "zones[0].font.faceName"));
}

TEST(Effects, OfEachValueOfAPolarChart) {
    PreviewFake view;
    view.m_ownLayout.SetChartSize(kSize, kSize);
    view.m_polarChart = &view.m_ownPolarChart;
    CPolarChart& chart = view.m_ownPolarChart;
    chart.m_useLinearScale = chart.m_useAltBgColor = chart.m_useAngularLabelStyle = chart.m_useRadialLabelStyle = true;
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
    const Effects some = effects(view, chart, chart, DrawPolarChart);
    // Labels stood at even steps whatever the scale, and alternating colours covered the other one.
    chart.m_showAngularLabels = chart.m_useAltBgColor = false;
    const Effects others = effects(view, chart, chart, DrawPolarChart);
    Paths without;
    std::set_intersection(some.without.begin(), some.without.end(), others.without.begin(), others.without.end(),
                          std::inserter(without, without.end()));
    EXPECT_THAT(without, testing::ElementsAre("angularLabelStyle.alignment", "angularLabelStyle.font.faceName",
                                              "layers[1].symbolSize", // its symbols have sizes of their own
                                              "radialLabelStyle.font.faceName", "radialZones[0].edgeColor.color"));
}

/// An axis with all that can stand at one.
void dress(CXYChartAxis& axis, int scene) {
    axis.m_scaleType = scene % 4;
    axis.m_minorLength = 3;
    axis.m_minorSpacing = axis.m_location == 4 || axis.m_location == 6 ? 8 : 19;
    axis.m_upperLimit = 60;
    axis.m_majorTickInc = 20;
    axis.m_minorTickInc = 10;
    axis.m_dateLowerLimit = 6.3e10;
    axis.m_dateUpperLimit = 6.3005e10;
    axis.m_dateMajorTickInc = 15 * 86400;
    axis.m_dateMinorTickInc = 5 * 86400;
    axis.m_zeroAffinity = 0;
    axis.m_filter1 = 3; // the start of a month, or any tick
    axis.m_filter2 = 6;
    axis.m_format1 = "{value|yy}";
    axis.m_format2 = "{value|mm}";
    axis.m_title.m_show = true;
    axis.m_title.m_text = "Axis";
    axis.m_title.m_useAngle = axis.m_title.m_usePosition = scene >= 4 && scene < 8;
    axis.m_title.m_angle = 20;
    axis.m_title.m_alignment = 9;
    axis.m_majorStep = 4;
    axis.m_minorStep = 2;
    axis.m_title.m_backColor = axis.m_labelBackColor = General(0xdddddd);
}

/// Switches on or off what makes the other values of a layer count.
void dressLayer(auto& layer, bool on) {
    layer.m_name = "Layer";
    if constexpr (requires { layer.m_useBorderColor; })
        layer.m_useBorderColor = layer.m_useOverlap = on, layer.m_shape = 7,
        layer.m_dataSetColors.push_back(General(0xff)), layer.m_dataSetColors.push_back(General(0xff00));
    if constexpr (requires { layer.m_useAreaColor; }) layer.m_useAreaColor = on;
    if constexpr (requires { layer.m_useSymbolColor; }) layer.m_useSymbolColor = on;
    if constexpr (requires { layer.m_symbolType; }) layer.m_symbolType = 1;
    if constexpr (requires { layer.m_groups; }) layer.m_groups.push_back({});
}

TEST(Effects, OfEachValueOfAnXYChart) {
    const QTemporaryDir folder;
    QImage wallPaper(60, 60, QImage::Format_RGB32);
    wallPaper.fill(0xff00ff00);
    ASSERT_TRUE(wallPaper.save(folder.filePath("w.png")));
    Paths with, without;
    const auto see = [&](int layerType, int scene, auto&& partOf) {
        PreviewFake view;
        view.m_ownLayout.SetChartSize(kSize + 60, kSize + 60);
        view.m_ownLayout.m_xyPlotArea.m_left = view.m_ownLayout.m_xyPlotArea.m_top = 100;
        view.m_ownLayout.m_xyPlotArea.m_width = view.m_ownLayout.m_xyPlotArea.m_height = 100;
        view.m_chart = &view.m_ownXYChart;
        CXYChart& chart = view.m_ownXYChart;
        for (CXYChartAxis* axis : {&chart.m_xAxis, &chart.m_yAxis, &chart.m_x2Axis, &chart.m_y2Axis})
            dress(*axis, scene);
        chart.m_useX2Axis = chart.m_useY2Axis = scene != 8;
        chart.m_majorVGridColor = chart.m_minorVGridColor = General(0xcccccc);
        CXYChartAxis* own = CXYChartAxisMgr::CreateAxis();
        dress(*own, scene);
        own->m_offset = -50;
        chart.m_axes.AddAxis(own);
        CXYChartLayer* layer = CXYChartLayerMgr::CreateLayer(layerType);
        layer->m_seed = 7;
        model::KindsOf<CXYChartLayer>::With(
            *layer, [&](auto& kind) { dressLayer(kind, scene % 2 == 0); });
        chart.m_layers.AddLayer(layer);
        own->m_syncKind = 2;
        if (scene == 13) layer->m_yAxisKind = 8;
        if ((scene >= 4 && scene < 8) || scene == 21) {
            layer->m_yAxisKind = 16;
            layer->m_yAxis = own;
        }
        chart.m_useBackground = true;
        chart.m_backgroundType = (scene & 4 ? scene + 2 : scene) % 4;
        chart.m_backImage = folder.filePath("w.png").toLocal8Bit().constData();
        chart.m_depth = 5;
        if (scene == 5) {
            chart.m_show3D = true;
            chart.m_layers.AddLayer(CXYChartLayerMgr::CreateLayer(3));
        }
        Effects found = effects(view, chart, partOf(chart), DrawXYChart);
        with.merge(found.with);
        without.merge(found.without);
    };
    const auto whole = [](CXYChart& chart) -> CXYChart& { return chart; };
    for (int scene = 0; scene < 8; ++scene) see(1, scene, whole);
    for (const int scene : {8, 9}) // numbers on the x axis
        see(2, scene, whole);
    for (const int scene : {13, 17, 21}) // values far from 0
        see(6, scene, whole);
    for (int layerType = 0; layerType < 9; ++layerType)
        for (int scene : {0, 1, 5})
            see(layerType, scene, [](CXYChart& chart) -> CXYChartLayerMgr& { return chart.m_layers; });
    // The four standing axes have their places, the first two follow no other; label steps are of axes with
    // rows, extensions of those with data; a box layer has the layer's name.
    const std::regex never(
        R"(.*faceName|layers\[0\]\.group\.name|.\d?Axis\.(location|offset)|[xy]Axis\.sync.*|.*\[1\].*)"
        R"(|(y\d?Axis|axes\[0\])\.(major|minor)(Step|Offset))"
        R"(|xAxis\.(bottomExtension|zeroAffinity)|x2Axis\.(.*Extension|zeroAffinity))");
    for (const std::string& path : without) EXPECT_TRUE(with.contains(path) != std::regex_match(path, never)) << path;
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
    const Paths expected[] = {{"defaultFont.fileName", "legendVertical"}, // no other texts
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
        Paths without = effects(view, layout, layout, DrawLayoutSample).without;
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

} // namespace
