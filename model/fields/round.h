#pragma once
// The fields of pies, meters and polar charts.

#include "model/fields/field.h"
#include <charteditors/meters.h>
#include <charteditors/pie_chart.h>
#include <charteditors/polar_chart.h>

namespace model {

template <>
struct FieldsOf<CPieChartSector> {
    static constexpr std::tuple table = {Field{"showExplode", &CPieChartSector::m_showExplode},
                                         Field{"useDistance", &CPieChartSector::m_useDistance},
                                         Field{"distance", &CPieChartSector::m_distance},
                                         Field{"color", &CPieChartSector::m_color},
                                         Field{"text", &CPieChartSector::m_text}};
};

template <>
struct FieldsOf<CPieChart> {
    static constexpr std::tuple table = {
        Field{"startAngle", &CPieChart::m_startAngle},
        Field{"clockWise", &CPieChart::m_clockWise},
        Field{"labelLayout", &CPieChart::m_labelLayout, words::labelLayout},
        Field{"labelPosition", &CPieChart::m_labelPosition},
        Field{"labelAlignment", &CPieChart::m_labelAlignment, words::alignment},
        Field{"show3D", &CPieChart::m_show3D},
        Field{"shadow3D", &CPieChart::m_shadow3D},
        Field{"depth3D", &CPieChart::m_depth3D},
        Field{"angle3D", &CPieChart::m_angle3D},
        Field{"useDonut", &CPieChart::m_useDonut},
        Field{"donutInnerRadius", &CPieChart::m_donutInnerRadius},
        Field{"sectors", &CPieChart::m_sectors},
        Field{"edgeColor", &CPieChart::m_edgeColor},
        Field{"joinLineColor", &CPieChart::m_joinLineColor}};
};

template <>
struct FieldsOf<CMeterPointer> {
    static constexpr std::tuple table = {Field{"value", &CMeterPointer::m_value},
                                         Field{"fillColor", &CMeterPointer::m_fillColor},
                                         Field{"edgeColor", &CMeterPointer::m_edgeColor},
                                         Field{"shape", &CMeterPointer::m_shape, words::pointer},
                                         Field{"lengthRatio", &CMeterPointer::m_lengthRatio},
                                         Field{"widthRatio", &CMeterPointer::m_widthRatio}};
};

template <>
struct FieldsOf<CAngularRing> {
    static constexpr std::tuple table = {
        Field{"startRadius", &CAngularRing::m_startRadius}, Field{"endRadius", &CAngularRing::m_endRadius},
        Field{"fillColor", &CAngularRing::m_fillColor}, Field{"edgeColor", &CAngularRing::m_edgeColor}};
};

template <>
struct FieldsOf<CMeterZoneAngular> {
    static constexpr std::tuple table = {Field{"startValue", &CMeterZoneAngular::m_startValue},
                                         Field{"endValue", &CMeterZoneAngular::m_endValue},
                                         Field{"fillColor", &CMeterZoneAngular::m_fillColor},
                                         Field{"edgeColor", &CMeterZoneAngular::m_edgeColor}};
};

template <>
struct FieldsOf<CMeterZoneLinear> {
    static constexpr std::tuple table = {Field{"startValue", &CMeterZoneLinear::m_startValue},
                                         Field{"endValue", &CMeterZoneLinear::m_endValue},
                                         Field{"text", &CMeterZoneLinear::m_text},
                                         Field{"font", &CMeterZoneLinear::m_font},
                                         Field{"fontColor", &CMeterZoneLinear::m_fontColor},
                                         Field{"backColor", &CMeterZoneLinear::m_backColor},
                                         Field{"edgeColor", &CMeterZoneLinear::m_edgeColor},
                                         Field{"effect", &CMeterZoneLinear::m_effect},
                                         Field{"alignment", &CMeterZoneLinear::m_alignment, words::alignment},
                                         Field{"angle", &CMeterZoneLinear::m_angle},
                                         Field{"vertical", &CMeterZoneLinear::m_vertical}};
};

template <>
struct FieldsOf<CMeterLabelStyle> {
    static constexpr std::tuple table = {Field{"font", &CMeterLabelStyle::m_font},
                                         Field{"fontColor", &CMeterLabelStyle::m_fontColor},
                                         Field{"backColor", &CMeterLabelStyle::m_backColor},
                                         Field{"edgeColor", &CMeterLabelStyle::m_edgeColor},
                                         Field{"effect", &CMeterLabelStyle::m_effect},
                                         Field{"angle", &CMeterLabelStyle::m_angle},
                                         Field{"vertical", &CMeterLabelStyle::m_vertical}};
};

template <>
struct FieldsOf<CAngularMeter> {
    static constexpr std::tuple table = {Field{"axisWidth", &CAngularMeter::m_axisWidth},
                                         Field{"majorTickWidth", &CAngularMeter::m_majorTickWidth},
                                         Field{"minorTickWidth", &CAngularMeter::m_minorTickWidth},
                                         Field{"microTickWidth", &CAngularMeter::m_microTickWidth},
                                         Field{"lowerLimit", &CAngularMeter::m_lowerLimit},
                                         Field{"upperLimit", &CAngularMeter::m_upperLimit},
                                         Field{"majorTickInc", &CAngularMeter::m_majorTickInc},
                                         Field{"minorTickInc", &CAngularMeter::m_minorTickInc},
                                         Field{"microTickInc", &CAngularMeter::m_microTickInc},
                                         Field{"zones", &CAngularMeter::m_zones},
                                         Field{"texts", &CAngularMeter::m_texts},
                                         Field{"pointers", &CAngularMeter::m_pointers},
                                         Field{"rings", &CAngularMeter::m_rings},
                                         Field{"useLabelStyle", &CAngularMeter::m_useLabelStyle},
                                         Field{"labelStyle", &CAngularMeter::m_labelStyle}};
};

template <>
struct FieldsOf<CLinearMeter> {
    static constexpr std::tuple table = {Field{"axisWidth", &CLinearMeter::m_axisWidth},
                                         Field{"majorTickWidth", &CLinearMeter::m_majorTickWidth},
                                         Field{"minorTickWidth", &CLinearMeter::m_minorTickWidth},
                                         Field{"microTickWidth", &CLinearMeter::m_microTickWidth},
                                         Field{"lowerLimit", &CLinearMeter::m_lowerLimit},
                                         Field{"upperLimit", &CLinearMeter::m_upperLimit},
                                         Field{"majorTickInc", &CLinearMeter::m_majorTickInc},
                                         Field{"minorTickInc", &CLinearMeter::m_minorTickInc},
                                         Field{"microTickInc", &CLinearMeter::m_microTickInc},
                                         Field{"zones", &CLinearMeter::m_zones},
                                         Field{"texts", &CLinearMeter::m_texts},
                                         Field{"pointers", &CLinearMeter::m_pointers},
                                         Field{"useLabelStyle", &CLinearMeter::m_useLabelStyle},
                                         Field{"labelStyle", &CLinearMeter::m_labelStyle}};
};

template <>
struct FieldsOf<CPolarLabelStyleAngular> {
    static constexpr std::tuple table = {
        Field{"font", &CPolarLabelStyleAngular::m_font},
        Field{"fontColor", &CPolarLabelStyleAngular::m_fontColor},
        Field{"backColor", &CPolarLabelStyleAngular::m_backColor},
        Field{"edgeColor", &CPolarLabelStyleAngular::m_edgeColor},
        Field{"effect", &CPolarLabelStyleAngular::m_effect},
        Field{"alignment", &CPolarLabelStyleAngular::m_alignment, words::alignment},
        Field{"angle", &CPolarLabelStyleAngular::m_angle},
        Field{"vertical", &CPolarLabelStyleAngular::m_vertical}};
};

template <>
struct FieldsOf<CPolarLayer> {
    static constexpr std::tuple table = {Field{"type", &CPolarLayer::m_type, words::polarLayer},
                                         Field{"color", &CPolarLayer::m_color},
                                         Field{"name", &CPolarLayer::m_name},
                                         Field{"lineWidth", &CPolarLayer::m_lineWidth},
                                         Field{"symbolType", &CPolarLayer::m_symbolType, words::symbol},
                                         Field{"symbolSize", &CPolarLayer::m_symbolSize},
                                         Field{"fillColor", &CPolarLayer::m_fillColor},
                                         Field{"edgeColor", &CPolarLayer::m_edgeColor},
                                         Field{"useSymbolScale", &CPolarLayer::m_useSymbolScale},
                                         Field{"seed", &CPolarLayer::m_seed}};
};

template <>
struct FieldsOf<CPolarLineLayer> {
    using Base = CPolarLayer;
    static constexpr std::tuple table = {Field{"closeLoop", &CPolarLineLayer::m_closeLoop}};
};

template <>
struct FieldsOf<CPolarSplineLineLayer> : NoFields<CPolarLineLayer> {};

template <>
struct FieldsOf<CPolarAreaLayer> : NoFields<CPolarLayer> {};

template <>
struct FieldsOf<CPolarSplineAreaLayer> : NoFields<CPolarLayer> {};

template <>
struct FieldsOf<CPolarChart> {
    static constexpr std::tuple table = {Field{"polygonGrid", &CPolarChart::m_polygonGrid},
                                         Field{"gridOnTop", &CPolarChart::m_gridOnTop},
                                         Field{"radialGridWidth", &CPolarChart::m_radialGridWidth},
                                         Field{"radialGridColor", &CPolarChart::m_radialGridColor},
                                         Field{"angularGridWidth", &CPolarChart::m_angularGridWidth},
                                         Field{"angularGridColor", &CPolarChart::m_angularGridColor},
                                         Field{"useLinearScale", &CPolarChart::m_useLinearScale},
                                         Field{"lowerLimit", &CPolarChart::m_lowerLimit},
                                         Field{"upperLimit", &CPolarChart::m_upperLimit},
                                         Field{"majorTickInc", &CPolarChart::m_majorTickInc},
                                         Field{"minorTickInc", &CPolarChart::m_minorTickInc},
                                         Field{"backColor", &CPolarChart::m_backColor},
                                         Field{"edgeWidth", &CPolarChart::m_edgeWidth},
                                         Field{"edgeColor", &CPolarChart::m_edgeColor},
                                         Field{"useAltBgColor", &CPolarChart::m_useAltBgColor},
                                         Field{"bgColor1", &CPolarChart::m_bgColor1},
                                         Field{"bgColor2", &CPolarChart::m_bgColor2},
                                         Field{"altBgRing", &CPolarChart::m_altBgRing},
                                         Field{"useAngularLabelStyle", &CPolarChart::m_useAngularLabelStyle},
                                         Field{"angularLabelStyle", &CPolarChart::m_angularLabelStyle},
                                         Field{"showAngularLabels", &CPolarChart::m_showAngularLabels},
                                         Field{"angularLabels", &CPolarChart::m_angularLabels},
                                         Field{"useRadialLabelStyle", &CPolarChart::m_useRadialLabelStyle},
                                         Field{"radialLabelStyle", &CPolarChart::m_radialLabelStyle},
                                         Field{"angularZones", &CPolarChart::m_angularZones},
                                         Field{"radialZones", &CPolarChart::m_radialZones},
                                         Field{"layers", &CPolarChart::m_layers}};
};

template <>
struct KindsOf<CPolarLayer> : KindList<CPolarLineLayer, CPolarAreaLayer, CPolarSplineAreaLayer> {};

} // namespace model
