#include "render/xy_layers.h"
#include "render/dressing.h"
#include "render/utf8_text.h"
#include "resources/string_table.h"

static constexpr int kDates = 3; // m_scaleType of an axis

/// The name of a data set: its own or that of its layer.
static const char* NameOf(const XYSeries& series, const CUtf8Text& layerName) {
    return series.name ? series.name : layerName;
}

static void AddDataSet(Layer* layer, const XYSeries& series, int color, const CUtf8Text& layerName) {
    CLayer_addDataSet(layer, series.values.data(), Count(series.values), color, NameOf(series, layerName));
}

void DressXYLabels(const XYLayerScene& scene, Layer* layer, XYLabelStyle setStyle) {
    const CChartLayout& layout = scene.layout;
    TextBox* textBox = setStyle(layer, CUtf8Text(layout.m_labelFont.m_fileName), layout.m_labelFont.m_size,
                                layout.m_labelFontColor.GetChartColor(scene.Base()), 0.0);
    DressLabelBox(scene.Base(), layout, textBox);
}

static void DressBars(const XYLayerScene& scene, BarLayer* bars, const CXYBarLayer& look) {
    Layer* layer = BarLayer2Layer(bars);
    CBarLayer_setBarShape(bars, look.m_shape, -1, -1);
    if (look.m_aggregateLabel && scene.layout.m_showLabel) {
        DressXYLabels(scene, layer, CLayer_setAggregateLabelStyle);
        if (scene.look.m_yAxis.m_scaleType == kDates)
            CLayer_setAggregateLabelFormat(layer, LoadChartString(79));
    }
    if (look.m_useOverlap)
        CBarLayer_setOverlapRatio(bars, look.m_overlapRatio, look.m_firstOnTop);
    else
        CBarLayer_setBarGap(bars, look.m_barGap, look.m_subBarGap);
    if (look.m_useBorderColor)
        CLayer_setBorderColor(layer, look.m_edgeColor.GetChartColor(scene.Base()),
                              look.m_effect.GetRaisedEffect());
}

static Layer* AddBars(const XYLayerScene& scene, const CXYBarLayer& look, CXYLayerSource& data) {
    BarLayer* bars = CXYChart_addBarLayer2(scene.Chart(), look.m_combineMethod, 0);
    Layer* layer = BarLayer2Layer(bars);
    const CUtf8Text name(look.m_name);
    const CChartColors& colors = look.m_dataSetColors;
    const auto sets = data.Bars(colors.size());
    for (int i = 0; i < sets->Count(); ++i) {
        const XYSeries series = sets->At(i);
        AddDataSet(layer, series,
                   i < colors.size() ? colors[i].GetChartColor(scene.Base()) : data.SeriesColor(i), name);
    }
    DressBars(scene, bars, look);
    return layer;
}

static Layer* AddLine(XYChart* chart, const CXYLineLayer& look, const XYSeries& series, int color,
                      const char* name) {
    const double* values = series.values.data();
    const int count = Count(series.values);
    switch (look.m_lineType) {
    case 0:
        return LineLayer2Layer(CXYChart_addLineLayer(chart, values, count, color, name, 0));
    case 1:
        return LineLayer2Layer(
            SplineLayer2LineLayer(CXYChart_addSplineLayer(chart, values, count, color, name)));
    case 2:
        return LineLayer2Layer(
            StepLineLayer2LineLayer(CXYChart_addStepLineLayer(chart, values, count, color, name)));
    default:
        return nullptr;
    }
}

static void DressSymbols(BaseChart* chart, Layer* layer, int index, const CXYLineLayer& look) {
    DataSet* dataSet = CLayer_getDataSet(layer, index);
    const int fillColor = look.m_fillColor.GetChartColor(chart);
    const int edgeColor = look.m_edgeColor.GetChartColor(chart);
    CDataSet_setDataSymbol(dataSet, look.m_symbolType, look.m_symbolSize, fillColor, edgeColor, 1);
}

/// The model's colour is that of the first line.
static Layer* AddLines(const XYLayerScene& scene, const CXYLineLayer& look, CXYLayerSource& data) {
    const auto sets = data.Lines();
    const CUtf8Text name(look.m_name);
    const XYSeries first = sets->At(0);
    Layer* layer =
        AddLine(scene.Chart(), look, first, look.m_color.GetChartColor(scene.Base()), NameOf(first, name));
    if (!layer)
        return nullptr;
    for (int i = 1; i < sets->Count(); ++i)
        AddDataSet(layer, sets->At(i), data.SeriesColor(i), name);
    for (int i = 0; i < sets->Count(); ++i)
        DressSymbols(scene.Base(), layer, i, look);
    CLayer_setLineWidth(layer, look.m_lineWidth);
    return layer;
}

static Layer* AddPoints(const XYLayerScene& scene, const CXYScatterLayer& look, CXYLayerSource& data) {
    const XYPoints points = data.Points();
    const int size = look.m_useSymbolColor ? look.m_symbolSize : 5;
    const int color =
        look.m_useSymbolColor ? look.m_symbolColor.GetChartColor(scene.Base()) : data.SeriesColor(0);
    LineLayer* layer = CXYChart_addScatterLayer(scene.Chart(), points.x.data(), Count(points.x),
                                                points.y.data(), Count(points.y), CUtf8Text(look.m_name),
                                                look.m_symbolType, size, color, CHART_DEFAULT_COLOR);
    if (look.m_bubble)
        CLineLayer_setSymbolScale(layer, points.size.data(), Count(points.size), CHART_SCALE_PIXELS, nullptr,
                                  0, CHART_SCALE_PIXELS);
    return LineLayer2Layer(layer);
}

static Layer* AddAreas(const XYLayerScene& scene, const CXYAreaLayer& look, CXYLayerSource& data) {
    const auto sets = data.Areas();
    Layer* layer = AreaLayer2Layer(CXYChart_addAreaLayer2(scene.Chart(), look.m_combineMethod, 0));
    const CUtf8Text name(look.m_name);
    for (int i = 0; i < sets->Count(); ++i)
        AddDataSet(layer, sets->At(i),
                   look.m_useAreaColor ? look.m_areaColor.GetChartColor(scene.Base()) : data.SeriesColor(i),
                   name);
    return layer;
}

/// Null where the number of a kind belies its object.
template <class Kind>
static Layer* AddAs(const XYLayerScene& scene, const CXYChartLayer& layer, CXYLayerSource& data,
                    Layer* (*add)(const XYLayerScene&, const Kind&, CXYLayerSource&)) {
    const auto* kind = dynamic_cast<const Kind*>(&layer);
    return kind ? add(scene, *kind, data) : nullptr;
}

/// Null for a layer of no kind.
static Layer* AddLayer(const XYLayerScene& scene, const CXYChartLayer& layer, CXYLayerSource& data) {
    switch (layer.GetType()) {
    case 0:
        return AddAs<CXYBarLayer>(scene, layer, data, AddBars);
    case 1:
        return AddAs<CXYLineLayer>(scene, layer, data, AddLines);
    case 2:
        return AddAs<CXYScatterLayer>(scene, layer, data, AddPoints);
    case 3:
        return AddAs<CXYAreaLayer>(scene, layer, data, AddAreas);
    case 4:
        return AddAs<CXYBoxWhiskerLayer>(scene, layer, data, AddBoxWhiskers);
    case 5:
        return AddAs<CXYBoxLayer>(scene, layer, data, AddBoxes);
    case 6:
        return AddAs<CXYHLOCLayer>(scene, layer, data, AddPriceBars);
    case 7:
        return AddAs<CXYGanttLayer>(scene, layer, data, AddTasks);
    case 8:
        return AddAs<CXYCandleStickLayer>(scene, layer, data, AddCandles);
    default:
        return nullptr;
    }
}

static void UseYAxis(const XYLayerScene& scene, Layer* layer, const CXYChartLayer& look) {
    Axis* axis = nullptr;
    if (look.m_yAxisKind == 2)
        axis = CXYChart_yAxis(scene.Chart());
    else if (look.m_yAxisKind == 8)
        axis = CXYChart_yAxis2(scene.Chart());
    else if (look.m_yAxisKind == 16)
        axis = scene.axes.Find(look.m_yAxis);
    if (axis)
        CLayer_setUseYAxis(layer, axis);
}

static bool LabelsEachValue(const CXYChartLayer& layer) {
    const auto* bars = dynamic_cast<const CXYBarLayer*>(&layer);
    return !bars || bars->m_labelForEachSeg;
}

void DrawXYLayer(const XYLayerScene& scene, const CXYChartLayer& look, CXYLayerSource& data) {
    Layer* layer = AddLayer(scene, look, data);
    if (!layer)
        return;
    if (const XYColumn x = data.RowValues(); !x.empty())
        CLayer_setXData(layer, x.data(), Count(x));
    if (scene.look.m_show3D)
        CLayer_set3D(layer, scene.look.m_depth, scene.look.m_zGap);
    UseYAxis(scene, layer, look);
    if (scene.layout.m_showLabel && LabelsEachValue(look)) {
        DressXYLabels(scene, layer, CLayer_setDataLabelStyle);
        if (scene.look.m_yAxis.m_scaleType == kDates)
            CLayer_setDataLabelFormat(layer, LoadChartString(79));
        else
            CLayer_setDataLabelFormat(layer, CUtf8Text(scene.layout.m_labelFormat));
    }
}
