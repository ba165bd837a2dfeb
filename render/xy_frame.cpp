#include "render/xy_frame.h"
#include "render/dressing.h"
#include "render/utf8_text.h"
#include "render/xy_axes.h"
#include "render/xy_layers.h"
#include "render/xy_samples.h"
#include "resources/string_table.h"
#include <algorithm>

using XYLayers = std::span<const CXYChartLayer* const>;

static void DrawGrid(BaseChart* chart, PlotArea* plotArea, const CXYChart& look) {
    const int majorHColor = look.m_majorHGridColor.GetChartColor(chart);
    const int majorVColor = look.m_majorVGridColor.GetChartColor(chart);
    const int minorHColor = look.m_minorHGridColor.GetChartColor(chart);
    const int minorVColor = look.m_minorVGridColor.GetChartColor(chart);
    CPlotArea_setGridColor(plotArea, majorHColor, majorVColor, minorHColor, minorVColor);
    CPlotArea_setGridWidth(plotArea, look.m_majorHGridWidth, look.m_majorVGridWidth, look.m_minorHGridWidth,
                           look.m_minorVGridWidth);
}

/// What the chart's line setting looks like. It is no part of a finished chart.
static void DrawSampleLine(BaseChart* chart, const CXYChart& look, const CChartLayout& layout) {
    const int x = static_cast<int>(layout.m_width * 0.1);
    const int y = static_cast<int>(layout.m_height * 0.93);
    CBaseChart_addLine(chart, x, y, layout.m_width - x, y, look.m_lineColor.GetChartColor(chart),
                       look.m_lineWidth);
    CBaseChart_addText(chart, x, static_cast<int>(layout.m_height * 0.94), LoadChartString(67), nullptr, 8.0,
                       CHART_TEXT_COLOR, CHART_TOP_LEFT, 0.0, false);
}

static void DrawQuadrants(const XYAxes& axes, PlotArea* plotArea, bool sample) {
    const CXYChart& look = axes.look;
    const int q1Color = look.m_q1Color.GetChartColor(axes.base);
    const int q2Color = look.m_q2Color.GetChartColor(axes.base);
    const int q3Color = look.m_q3Color.GetChartColor(axes.base);
    const int q4Color = look.m_q4Color.GetChartColor(axes.base);
    CPlotArea_set4QBgColor(plotArea, q1Color, q2Color, q3Color, q4Color, CHART_DEFAULT_COLOR);
    CXYChart_setAxisAtOrigin(axes.chart, CHART_ORIGIN_XY, CHART_SYMMETRIC_XY);
    if (sample) {
        CAxis_setLinearScale(CXYChart_xAxis(axes.chart), -6.0, 6.0, 1.0, 0.0);
        CAxis_setLinearScale(CXYChart_yAxis(axes.chart), -100.0, 100.0, 10.0, 0.0);
    }
}

static void DrawBackground(const XYAxes& axes, PlotArea* plotArea, bool sample) {
    const CXYChart& look = axes.look;
    if (look.m_backgroundType == 0) {
        const int backColor = look.m_backColor.GetChartColor(axes.base);
        const int altColor = look.m_altColor.GetChartColor(axes.base);
        const int edgeColor = look.m_edgeColor.GetChartColor(axes.base);
        CPlotArea_setBackground(plotArea, backColor, altColor, edgeColor);
    } else if (look.m_backgroundType == 1) {
        CPlotArea_setBackground2(plotArea, CUtf8Text(look.m_backImage), CHART_CENTER);
    } else if (look.m_backgroundType == 2) {
        DrawQuadrants(axes, plotArea, sample);
    }
}

/// All axes with their looks. Ties come when every axis is there, since one may follow a later one.
static void DrawAxes(XYAxes& axes, CXYSource& data) {
    const CXYChart& look = axes.look;
    Axis* xAxis = CXYChart_xAxis(axes.chart);
    data.LabelRows(xAxis);
    DrawAxis(axes.base, xAxis, look.m_xAxis);
    DrawAxis(axes.base, CXYChart_yAxis(axes.chart), look.m_yAxis);
    for (int i = 0; i < look.m_axes.GetAxisCount(); ++i) {
        const CXYChartAxis* model = look.m_axes.GetAxis(i);
        axes.additional.push_back(model ? CXYChart_addAxis(axes.chart, model->m_location, model->m_offset)
                                        : nullptr);
        if (model)
            DrawAxis(axes.base, axes.additional.back(), *model);
    }
    if (look.m_useX2Axis) {
        Axis* axis = CXYChart_xAxis2(axes.chart);
        DrawAxis(axes.base, axis, look.m_x2Axis);
        SyncAxis(axes, axis, look.m_x2Axis);
    }
    if (look.m_useY2Axis) {
        Axis* axis = CXYChart_yAxis2(axes.chart);
        DrawAxis(axes.base, axis, look.m_y2Axis);
        SyncAxis(axes, axis, look.m_y2Axis);
    }
    for (int i = 0; i < look.m_axes.GetAxisCount(); ++i)
        if (const CXYChartAxis* model = look.m_axes.GetAxis(i))
            SyncAxis(axes, axes.additional[static_cast<std::size_t>(i)], *model);
}

static void DrawXYLayers(const XYLayerScene& scene, XYLayers layers, CXYSource& data) {
    for (const CXYChartLayer* layer : layers)
        if (const auto layerData = data.Layer(*layer))
            DrawXYLayer(scene, *layer, *layerData);
}

CChartHolder MakeXYChart(const CXYChart& look, const CChartLayout& layout, XYLayers layers, CXYSource& data) {
    XYChart* chart =
        CXYChart_create(layout.m_width, layout.m_height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CChartHolder holder(XYChart2BaseChart(chart));
    XYAxes axes{chart, holder.Get(), look, {}};
    const CXYChartPA& area = layout.m_xyPlotArea;
    PlotArea* plotArea =
        CXYChart_setPlotArea(chart, area.m_left, area.m_top, area.m_width, area.m_height, CHART_TRANSPARENT,
                             CHART_DEFAULT_COLOR, CHART_DEFAULT_COLOR, 0xc0c0c0, CHART_TRANSPARENT);
    DrawChartBackground(holder.Get(), layout);
    DrawChartTitles(holder.Get(), layout);
    const bool unnamed = std::all_of(layers.begin(), layers.end(),
                                     [](const CXYChartLayer* layer) { return layer->m_name.empty(); });
    DrawChartLegend(holder.Get(), layout, data.IsSample() && unnamed);
    DrawGrid(holder.Get(), plotArea, look);
    if (data.IsSample())
        DrawSampleLine(holder.Get(), look, layout);
    if (data.IsSample() && layers.empty()) {
        CAxis_setLinearScale(CXYChart_xAxis(chart), 0.0, 6.0, 1.0, 0.0);
        CAxis_setLinearScale(CXYChart_yAxis(chart), 0.0, 100.0, 10.0, 0.0);
    }
    if (look.m_useBackground)
        DrawBackground(axes, plotArea, data.IsSample());
    DrawAxes(axes, data);
    if (look.m_swapXY)
        CXYChart_swapXY(chart, true);
    DrawXYLayers({axes, look, layout}, layers, data);
    return holder;
}

std::vector<const CXYChartLayer*> LayersOf(const CXYChart& look) {
    std::vector<const CXYChartLayer*> layers;
    for (int i = 0; i < look.m_layers.GetLayerCount(); ++i)
        layers.push_back(look.m_layers.GetLayer(i));
    std::erase(layers, nullptr);
    return layers;
}

void DrawXYChart(CChartPreview& view) {
    std::vector<const CXYChartLayer*> layers;
    if (!view.m_singleLayerMode)
        layers = LayersOf(*view.m_chart);
    else if (view.m_previewLayer)
        layers = {view.m_previewLayer};
    CXYSamples samples(*view.m_chart);
    StorePicture(&view, MakeXYChart(*view.m_chart, *view.m_layout, layers, samples).Get());
}
