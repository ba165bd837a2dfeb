#pragma once
// The fields of XY charts, their axes and layers.

#include "model/fields/field.h"
#include <charteditors/xy_chart.h>

namespace model {

template <>
struct FieldsOf<CXYChartAxisTitle> {
    static constexpr std::tuple table = {
        Field{"show", &CXYChartAxisTitle::m_show},
        Field{"text", &CXYChartAxisTitle::m_text},
        Field{"font", &CXYChartAxisTitle::m_font},
        Field{"fontColor", &CXYChartAxisTitle::m_fontColor},
        Field{"backColor", &CXYChartAxisTitle::m_backColor},
        Field{"edgeColor", &CXYChartAxisTitle::m_edgeColor},
        Field{"effect", &CXYChartAxisTitle::m_effect},
        Field{"useAngle", &CXYChartAxisTitle::m_useAngle},
        Field{"angle", &CXYChartAxisTitle::m_angle},
        Field{"vertical", &CXYChartAxisTitle::m_vertical},
        Field{"usePosition", &CXYChartAxisTitle::m_usePosition},
        Field{"alignment", &CXYChartAxisTitle::m_alignment, words::alignment},
        Field{"gap", &CXYChartAxisTitle::m_gap}};
};

template <>
struct FieldsOf<CXYChartAxis> {
    static constexpr std::tuple table = {Field{"location", &CXYChartAxis::m_location, words::side},
                                         Field{"offset", &CXYChartAxis::m_offset},
                                         Field{"reverse", &CXYChartAxis::m_reverse},
                                         Field{"width", &CXYChartAxis::m_width},
                                         Field{"color", &CXYChartAxis::m_color},
                                         Field{"marginTop", &CXYChartAxis::m_marginTop},
                                         Field{"marginBottom", &CXYChartAxis::m_marginBottom},
                                         Field{"majorStep", &CXYChartAxis::m_majorStep},
                                         Field{"minorStep", &CXYChartAxis::m_minorStep},
                                         Field{"majorOffset", &CXYChartAxis::m_majorOffset},
                                         Field{"minorOffset", &CXYChartAxis::m_minorOffset},
                                         Field{"majorLength", &CXYChartAxis::m_majorLength},
                                         Field{"minorLength", &CXYChartAxis::m_minorLength},
                                         Field{"majorSpacing", &CXYChartAxis::m_majorSpacing},
                                         Field{"minorSpacing", &CXYChartAxis::m_minorSpacing},
                                         Field{"scaleType", &CXYChartAxis::m_scaleType, words::scaleType},
                                         Field{"topExtension", &CXYChartAxis::m_topExtension},
                                         Field{"bottomExtension", &CXYChartAxis::m_bottomExtension},
                                         Field{"zeroAffinity", &CXYChartAxis::m_zeroAffinity},
                                         Field{"lowerLimit", &CXYChartAxis::m_lowerLimit},
                                         Field{"upperLimit", &CXYChartAxis::m_upperLimit},
                                         Field{"majorTickInc", &CXYChartAxis::m_majorTickInc},
                                         Field{"minorTickInc", &CXYChartAxis::m_minorTickInc},
                                         Field{"dateLowerLimit", &CXYChartAxis::m_dateLowerLimit},
                                         Field{"dateUpperLimit", &CXYChartAxis::m_dateUpperLimit},
                                         Field{"dateMajorTickInc", &CXYChartAxis::m_dateMajorTickInc},
                                         Field{"dateMinorTickInc", &CXYChartAxis::m_dateMinorTickInc},
                                         Field{"title", &CXYChartAxis::m_title},
                                         Field{"labelFormat", &CXYChartAxis::m_labelFormat},
                                         Field{"labelFont", &CXYChartAxis::m_labelFont},
                                         Field{"labelFontColor", &CXYChartAxis::m_labelFontColor},
                                         Field{"labelBackColor", &CXYChartAxis::m_labelBackColor},
                                         Field{"labelEdgeColor", &CXYChartAxis::m_labelEdgeColor},
                                         Field{"labelEffect", &CXYChartAxis::m_labelEffect},
                                         Field{"labelAngle", &CXYChartAxis::m_labelAngle},
                                         Field{"labelVertical", &CXYChartAxis::m_labelVertical},
                                         Field{"filter1", &CXYChartAxis::m_filter1},
                                         Field{"format1", &CXYChartAxis::m_format1},
                                         Field{"filter2", &CXYChartAxis::m_filter2},
                                         Field{"format2", &CXYChartAxis::m_format2},
                                         Field{"syncSlope", &CXYChartAxis::m_syncSlope},
                                         Field{"syncKind", &CXYChartAxis::m_syncKind, words::axisKind},
                                         Field{"syncAxis", &CXYChartAxis::m_syncAxis}};
};

template <>
struct FieldsOf<CXYChartLayer> {
    static constexpr std::tuple table = {Field{"seed", &CXYChartLayer::m_seed},
                                         Field{"type", &CXYChartLayer::m_type, words::xyLayer},
                                         Field{"name", &CXYChartLayer::m_name},
                                         Field{"yAxisKind", &CXYChartLayer::m_yAxisKind, words::axisKind},
                                         Field{"yAxis", &CXYChartLayer::m_yAxis}};
};

template <>
struct FieldsOf<CXYBarLayer> {
    using Base = CXYChartLayer;
    static constexpr std::tuple table = {
        Field{"shape", &CXYBarLayer::m_shape, words::symbol},
        Field{"combineMethod", &CXYBarLayer::m_combineMethod, words::combine},
        Field{"aggregateLabel", &CXYBarLayer::m_aggregateLabel},
        Field{"labelForEachSeg", &CXYBarLayer::m_labelForEachSeg},
        Field{"useOverlap", &CXYBarLayer::m_useOverlap},
        Field{"overlapRatio", &CXYBarLayer::m_overlapRatio},
        Field{"firstOnTop", &CXYBarLayer::m_firstOnTop},
        Field{"barGap", &CXYBarLayer::m_barGap},
        Field{"subBarGap", &CXYBarLayer::m_subBarGap},
        Field{"useBorderColor", &CXYBarLayer::m_useBorderColor},
        Field{"edgeColor", &CXYBarLayer::m_edgeColor},
        Field{"effect", &CXYBarLayer::m_effect},
        Field{"dataSetColors", &CXYBarLayer::m_dataSetColors}};
};

template <>
struct FieldsOf<CXYLineLayer> {
    using Base = CXYChartLayer;
    static constexpr std::tuple table = {Field{"lineType", &CXYLineLayer::m_lineType, words::lineType},
                                         Field{"color", &CXYLineLayer::m_color},
                                         Field{"lineWidth", &CXYLineLayer::m_lineWidth},
                                         Field{"symbolType", &CXYLineLayer::m_symbolType, words::symbol},
                                         Field{"symbolSize", &CXYLineLayer::m_symbolSize},
                                         Field{"fillColor", &CXYLineLayer::m_fillColor},
                                         Field{"edgeColor", &CXYLineLayer::m_edgeColor}};
};

template <>
struct FieldsOf<CXYScatterLayer> {
    using Base = CXYChartLayer;
    static constexpr std::tuple table = {Field{"symbolType", &CXYScatterLayer::m_symbolType, words::symbol},
                                         Field{"bubble", &CXYScatterLayer::m_bubble},
                                         Field{"symbolSize", &CXYScatterLayer::m_symbolSize},
                                         Field{"useSymbolColor", &CXYScatterLayer::m_useSymbolColor},
                                         Field{"symbolColor", &CXYScatterLayer::m_symbolColor}};
};

template <>
struct FieldsOf<CXYAreaLayer> {
    using Base = CXYChartLayer;
    static constexpr std::tuple table = {
        Field{"combineMethod", &CXYAreaLayer::m_combineMethod, words::combine},
        Field{"useAreaColor", &CXYAreaLayer::m_useAreaColor}, Field{"areaColor", &CXYAreaLayer::m_areaColor}};
};

template <>
struct FieldsOf<CXYBoxWhiskerLayer> {
    using Base = CXYChartLayer;
    static constexpr std::tuple table = {Field{"fillColor", &CXYBoxWhiskerLayer::m_fillColor},
                                         Field{"whiskerColor", &CXYBoxWhiskerLayer::m_whiskerColor}};
};

template <>
struct FieldsOf<CBoxGroup> {
    static constexpr std::tuple table = {Field{"name", &CBoxGroup::m_name},
                                         Field{"color", &CBoxGroup::m_color}};
};

template <>
struct FieldsOf<CXYBoxLayer> {
    using Base = CXYChartLayer;
    static constexpr std::tuple table = {Field{"group", &CXYBoxLayer::m_group}};
};

template <>
struct FieldsOf<CXYHLOCLayer> {
    using Base = CXYChartLayer;
    static constexpr std::tuple table = {Field{"upColor", &CXYHLOCLayer::m_upColor},
                                         Field{"downColor", &CXYHLOCLayer::m_downColor}};
};

template <>
struct FieldsOf<CXYGanttLayer> {
    using Base = CXYChartLayer;
    static constexpr std::tuple table = {Field{"groups", &CXYGanttLayer::m_groups}};
};

template <>
struct FieldsOf<CXYCandleStickLayer> {
    using Base = CXYChartLayer;
    static constexpr std::tuple table = {Field{"riseColor", &CXYCandleStickLayer::m_riseColor},
                                         Field{"fallColor", &CXYCandleStickLayer::m_fallColor}};
};

template <>
struct FieldsOf<CXYChart> {
    static constexpr std::tuple table = {
        Field{"majorHGridColor", &CXYChart::m_majorHGridColor},
        Field{"majorVGridColor", &CXYChart::m_majorVGridColor},
        Field{"minorHGridColor", &CXYChart::m_minorHGridColor},
        Field{"minorVGridColor", &CXYChart::m_minorVGridColor},
        Field{"majorHGridWidth", &CXYChart::m_majorHGridWidth},
        Field{"majorVGridWidth", &CXYChart::m_majorVGridWidth},
        Field{"minorHGridWidth", &CXYChart::m_minorHGridWidth},
        Field{"minorVGridWidth", &CXYChart::m_minorVGridWidth},
        Field{"lineColor", &CXYChart::m_lineColor},
        Field{"lineWidth", &CXYChart::m_lineWidth},
        Field{"useBackground", &CXYChart::m_useBackground},
        Field{"backgroundType", &CXYChart::m_backgroundType, words::background},
        Field{"edgeColor", &CXYChart::m_edgeColor},
        Field{"backColor", &CXYChart::m_backColor},
        Field{"altColor", &CXYChart::m_altColor},
        Field{"backImage", &CXYChart::m_backImage},
        Field{"q1Color", &CXYChart::m_q1Color},
        Field{"q2Color", &CXYChart::m_q2Color},
        Field{"q3Color", &CXYChart::m_q3Color},
        Field{"q4Color", &CXYChart::m_q4Color},
        Field{"swapXY", &CXYChart::m_swapXY},
        Field{"xAxis", &CXYChart::m_xAxis},
        Field{"yAxis", &CXYChart::m_yAxis},
        Field{"useX2Axis", &CXYChart::m_useX2Axis},
        Field{"x2Axis", &CXYChart::m_x2Axis},
        Field{"useY2Axis", &CXYChart::m_useY2Axis},
        Field{"y2Axis", &CXYChart::m_y2Axis},
        Field{"axes", &CXYChart::m_axes},
        Field{"layers", &CXYChart::m_layers},
        Field{"show3D", &CXYChart::m_show3D},
        Field{"depth", &CXYChart::m_depth},
        Field{"zGap", &CXYChart::m_zGap}};
};

template <>
struct KindsOf<CXYChartLayer>
    : KindList<CXYBarLayer, CXYLineLayer, CXYScatterLayer, CXYAreaLayer, CXYBoxWhiskerLayer, CXYBoxLayer,
               CXYHLOCLayer, CXYGanttLayer, CXYCandleStickLayer> {};

} // namespace model
