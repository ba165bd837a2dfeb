// XY charts from model to picture, each beside the plain calls to the surface that make the same picture:
// what the drawing routine adds is the difference.

#include "bench/floor.h"
#include <chartdraw/surface.h>
#include <chartrender/chartrender.h>

#include <vector>

namespace {

constexpr int kRows = 6;
const double kValues[] = {25, 18, 31, 22, 38, 29}, kLow[] = {15, 8, 21, 12, 28, 19},
             kOpen[] = {17, 16, 22, 20, 30, 28}, kClose[] = {24, 10, 30, 14, 36, 21};

/// A chart of layers of these kinds, and the data of each.
struct Model {
    explicit Model(const std::vector<int>& kinds) {
        layout.m_showLabel = false;
        layers.resize(kinds.size());
        series.values = kValues;
        series.count = kRows;
        for (std::size_t i = 0; i < kinds.size(); ++i) {
            chart.m_layers.AddLayer(CXYChartLayerMgr::CreateLayer(kinds[i]));
            CXYLayerData& layer = layers[i];
            layer.layer = static_cast<int>(i);
            layer.series = &series;
            layer.seriesCount = 1;
            layer.count = kRows;
            layer.y = layer.top = layer.high = layer.maximum = kValues;
            layer.bottom = layer.low = layer.minimum = kLow;
            layer.open = kOpen;
            layer.close = kClose;
        }
        data.rowCount = kRows;
        data.layers = layers.data();
        data.layerCount = static_cast<int>(layers.size());
    }

    CXYChart chart;
    CChartLayout layout;
    CXYSeriesData series;
    std::vector<CXYLayerData> layers;
    CXYChartData data;
};

std::vector<int> kindsOf(const benchmark::State& state) {
    std::vector<int> kinds(static_cast<std::size_t>(state.range(0)));
    const int known[] = {0, 1, 3, 4, 5, 6, 8}; // those of rows
    for (std::size_t i = 0; i < kinds.size(); ++i)
        kinds[i] = known[i % std::size(known)];
    return kinds;
}

void byModel(benchmark::State& state) {
    const Model model(kindsOf(state));
    CChartPicture picture;
    for (auto unused : state)
        RenderXYChart(model.chart, model.layout, model.data, ChartPictureFormat::Bmp, picture);
}

void addLayer(XYChart* chart, int kind) {
    switch (kind) {
    case 0:
        CLayer_addDataSet(BarLayer2Layer(CXYChart_addBarLayer2(chart, CHART_COMBINE_SIDE, 0)), kValues, kRows,
                          -1, "");
        return;
    case 1:
        CXYChart_addLineLayer(chart, kValues, kRows, 0, "", 0);
        return;
    case 3:
        CLayer_addDataSet(AreaLayer2Layer(CXYChart_addAreaLayer2(chart, CHART_COMBINE_STACK, 0)), kValues,
                          kRows, -1, "");
        return;
    case 4:
        CXYChart_addBoxWhiskerLayer(chart, kValues, kRows, kLow, kRows, kValues, kRows, kLow, kRows, nullptr,
                                    0, 0x9999ff, 0xcc, -1);
        return;
    case 5:
        CXYChart_addBoxLayer(chart, kValues, kRows, kLow, kRows, 0xff00, "");
        return;
    case 6:
        CHLOCLayer_setColorMethod(
            CXYChart_addHLOCLayer(chart, kValues, kRows, kLow, kRows, kOpen, kRows, kClose, kRows, -1),
            CHART_UP_DOWN, 0x8000, 0xff0000, -CHART_NO_VALUE);
        return;
    default:
        CXYChart_addCandleStickLayer(chart, kValues, kRows, kLow, kRows, kOpen, kRows, kClose, kRows, 0xff00,
                                     0xff0000, CHART_LINE_COLOR);
    }
}

void byPlainCalls(benchmark::State& state) {
    const CChartLayout layout;
    const char* font = layout.m_labelFont.m_fileName.data();
    const std::vector<int> kinds = kindsOf(state);
    for (auto unused : state) {
        XYChart* chart = CXYChart_create(500, 550, 0xffffff, 0x33808080, 0);
        BaseChart* base = XYChart2BaseChart(chart);
        CXYChart_setPlotArea(chart, 50, 75, 400, 400, CHART_TRANSPARENT, -1, -1, 0xc0c0c0, CHART_TRANSPARENT);
        LegendBox* legend = CBaseChart_addLegend(base, 320, 12, false, font, 12);
        CBox_setBackground(TextBox2Box(LegendBox2TextBox(legend)), -1, 0, 0);
        for (Axis* axis : {CXYChart_xAxis(chart), CXYChart_yAxis(chart)}) {
            CAxis_setTickLength2(axis, 5, 0);
            CAxis_setAutoScale(axis, 0, 0, 0);
            CAxis_setLabelStyle(axis, font, 12, 0, 0);
        }
        for (const int kind : kinds)
            addLayer(chart, kind);
        const char* bytes = nullptr;
        int length = 0;
        CBaseChart_makeChart2(base, CHART_FORMAT_BMP, &bytes, &length);
        benchmark::DoNotOptimize(std::vector<char>(bytes, bytes + length));
        CBaseChart_destroy(base);
    }
}

BENCHMARK(byModel)->Arg(1)->Arg(9)->Arg(100)->Unit(benchmark::kMicrosecond);
BENCHMARK(byPlainCalls)->Arg(1)->Arg(9)->Arg(100)->Unit(benchmark::kMicrosecond);

} // namespace

BENCH_MAIN()
