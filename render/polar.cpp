#include "render/polar.h"
#include "render/dressing.h"
#include "render/sample_data.h"
#include "render/utf8_text.h"

static int Count(std::span<const double> values) {
    return static_cast<int>(std::ssize(values));
}

PolarHolder CreatePolarChart(const CChartLayout& layout) {
    PolarChart* polar =
        CPolarChart_create(layout.m_width, layout.m_height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    return {polar, CChartHolder(PolarChart2BaseChart(polar))};
}

PolarHolder BeginPolarChart(const CPolarChart& look, const CChartLayout& layout) {
    PolarHolder holder = CreatePolarChart(layout);
    PolarChart* polar = holder.polar;
    BaseChart* chart = holder.chart.Get();
    const CPieChartPA& area = layout.m_polarPlotArea;
    const auto [back, edge] = ResolveColors(chart, look.m_backColor, look.m_edgeColor);
    CPolarChart_setPlotArea(polar, area.m_centerX, area.m_centerY, area.m_radius, back, edge,
                            look.m_edgeWidth);
    DrawChartBackground(chart, layout);
    DrawChartTitles(chart, layout);
    CPolarChart_setGridStyle(polar, look.m_polygonGrid, look.m_gridOnTop);
    const int radialColor = look.m_radialGridColor.GetChartColor(chart);
    const int angularColor = look.m_angularGridColor.GetChartColor(chart);
    CPolarChart_setGridColor(polar, radialColor, look.m_radialGridWidth, angularColor,
                             look.m_angularGridWidth);
    if (look.m_useLinearScale)
        CAngularAxis_setLinearScale(CPolarChart_angularAxis(polar), look.m_lowerLimit, look.m_upperLimit,
                                    look.m_majorTickInc, look.m_minorTickInc);
    return holder;
}

static PolarLayer* AddLine(PolarLineLayer* line, const CPolarLayer& look) {
    // The number of a kind may belie its object.
    const auto* lines = dynamic_cast<const CPolarLineLayer*>(&look);
    CPolarLineLayer_setCloseLoop(line, lines && lines->m_closeLoop);
    return PolarLineLayer2PolarLayer(line);
}

/// Adds a layer of the model's kind, null if it has none.
static PolarLayer* AddLayer(const PolarHolder& holder, const CPolarLayer& look,
                            std::span<const double> radii) {
    PolarChart* polar = holder.polar;
    const int color = look.m_color.GetChartColor(holder.chart.Get());
    const CUtf8Text name(look.m_name);
    const double* data = radii.data();
    const int count = Count(radii);
    switch (look.GetType()) {
    case 0:
        return AddLine(CPolarChart_addLineLayer(polar, data, count, color, name), look);
    case 1:
        return AddLine(PolarSplineLineLayer2PolarLineLayer(
                           CPolarChart_addSplineLineLayer(polar, data, count, color, name)),
                       look);
    case 2:
        return PolarAreaLayer2PolarLayer(CPolarChart_addAreaLayer(polar, data, count, color, name));
    case 3:
        return PolarAreaLayer2PolarLayer(PolarSplineAreaLayer2PolarAreaLayer(
            CPolarChart_addSplineAreaLayer(polar, data, count, color, name)));
    default:
        return nullptr;
    }
}

void DrawPolarLayer(const PolarHolder& holder, const CPolarLayer& look, const CChartLayout& layout,
                    const PolarData& data) {
    BaseChart* chart = holder.chart.Get();
    PolarLayer* layer = AddLayer(holder, look, data.radii);
    if (!layer)
        return;
    if (!data.angles.empty())
        CPolarLayer_setAngles(layer, data.angles.data(), Count(data.angles));
    CPolarLayer_setLineWidth(layer, look.m_lineWidth);
    const auto [fill, edge] = ResolveColors(chart, look.m_fillColor, look.m_edgeColor);
    CPolarLayer_setDataSymbol(layer, look.m_symbolType, look.m_symbolSize, fill, edge, 1);
    if (look.m_useSymbolScale && !data.symbolSizes.empty())
        CPolarLayer_setSymbolScale(layer, data.symbolSizes.data(), Count(data.symbolSizes),
                                   CHART_SCALE_PIXELS);
    DrawPolarDataLabels(chart, layer, layout);
}

void DrawPolarDataLabels(BaseChart* chart, PolarLayer* layer, const CChartLayout& layout) {
    if (!layout.m_showLabel)
        return;
    TextBox* textBox = CPolarLayer_setDataLabelStyle(layer, CUtf8Text(layout.m_labelFont.m_fileName),
                                                     layout.m_labelFont.m_size,
                                                     layout.m_labelFontColor.GetChartColor(chart), 0.0);
    DressLabelBox(chart, layout, textBox);
    CPolarLayer_setDataLabelFormat(layer, CUtf8Text(layout.m_labelFormat));
}

static void DrawAngularLabels(AngularAxis* axis, const CChartStrings& labels) {
    std::vector<std::string> texts;
    for (int i = 0; i < labels.size(); ++i)
        texts.emplace_back(CUtf8Text(labels[i]));
    CAngularAxis_setLabels(axis, TextPointers(texts).data(), labels.size());
}

/// The looks of an axis's labels. `setStyle` is the axis's own operation.
template <class Axis, class Style>
static void DrawLabelStyle(BaseChart* chart, Axis* axis, const Style& style,
                           TextBox* (*setStyle)(Axis*, const char*, double, int, double)) {
    TextBox* textBox = setStyle(axis, CUtf8Text(style.m_font.m_fileName), style.m_font.m_size,
                                style.m_fontColor.GetChartColor(chart), 0.0);
    DressTextBox(chart, textBox, style);
}

static void DrawZones(const PolarHolder& holder, const CPolarChart& look) {
    BaseChart* chart = holder.chart.Get();
    for (int i = 0; i < look.m_angularZones.size(); ++i) {
        const CMeterZoneAngular& zone = look.m_angularZones[i];
        const auto [fill, edge] = ResolveColors(chart, zone.m_fillColor, zone.m_edgeColor);
        CAngularAxis_addZone2(CPolarChart_angularAxis(holder.polar), zone.m_startValue, zone.m_endValue, fill,
                              edge);
    }
    for (int i = 0; i < look.m_radialZones.size(); ++i) {
        const CMeterZoneAngular& zone = look.m_radialZones[i]; // its edge colour has no place here
        CAxis_addZone(CPolarChart_radialAxis(holder.polar), zone.m_startValue, zone.m_endValue,
                      zone.m_fillColor.GetChartColor(chart));
    }
}

void FinishPolarChart(const PolarHolder& holder, const CPolarChart& look, const CChartLayout& layout,
                      bool empty, bool addSampleKey) {
    PolarChart* polar = holder.polar;
    BaseChart* chart = holder.chart.Get();
    if (empty) // still shows a scale
        CAxis_setLinearScale(CPolarChart_radialAxis(polar), 0, 100, 10, 0);
    DrawChartLegend(chart, layout, addSampleKey);
    if (look.m_showAngularLabels)
        DrawAngularLabels(CPolarChart_angularAxis(polar), look.m_angularLabels);
    if (look.m_useAngularLabelStyle)
        DrawLabelStyle(chart, CPolarChart_angularAxis(polar), look.m_angularLabelStyle,
                       CAngularAxis_setLabelStyle);
    if (look.m_useRadialLabelStyle)
        DrawLabelStyle(chart, CPolarChart_radialAxis(polar), look.m_radialLabelStyle, CAxis_setLabelStyle);
    DrawZones(holder, look);
    if (look.m_useAltBgColor) {
        const auto [first, second] = ResolveColors(chart, look.m_bgColor1, look.m_bgColor2);
        CPolarChart_setPlotAreaBg(polar, first, second, look.m_altBgRing);
    }
}

static void DrawSampleLayer(const PolarHolder& holder, const CPolarLayer& look, const CChartLayout& layout) {
    const CRandomTable table(look.GetSeed(), 3, 9);
    CRanTable_setCol(table.Get(), 0, 0.0, 100.0);
    CRanTable_setCol(table.Get(), 1, 0.0, 360.0);
    CRanTable_setCol(table.Get(), 2, 0.0, 30.0);
    const CRoundedData radii(table, 0);
    CRoundedData angles(table, 1);
    angles.SortDown();
    const CRoundedData sizes(table, 2);
    DrawPolarLayer(holder, look, layout, {radii, angles, sizes});
}

void DrawPolarChart(CChartPreview& view) {
    const CPolarChart& look = *view.m_polarChart;
    const CChartLayout& layout = *view.m_layout;
    const PolarHolder holder = BeginPolarChart(look, layout);
    const int count = view.m_singleLayerMode ? 1 : look.m_layers.GetLayerCount();
    bool noNames = true;
    for (int i = 0; i < count; ++i) {
        const CPolarLayer* layer = view.m_singleLayerMode ? view.m_polarLayer : look.m_layers.GetLayer(i);
        if (!layer)
            continue;
        noNames = noNames && layer->m_name.empty();
        DrawSampleLayer(holder, *layer, layout);
    }
    FinishPolarChart(holder, look, layout, count == 0, noNames);
    StorePicture(&view, holder.chart.Get());
}
