#pragma once
// The fields of the layout.

#include "model/fields/field.h"
#include <charteditors/chart_layout.h>

namespace model {

template <>
struct FieldsOf<CChartTitle> {
    static constexpr std::tuple table = {Field{"show", &CChartTitle::m_show},
                                         Field{"alignment", &CChartTitle::m_alignment, words::alignment},
                                         Field{"text", &CChartTitle::m_text},
                                         Field{"font", &CChartTitle::m_font},
                                         Field{"fontColor", &CChartTitle::m_fontColor},
                                         Field{"backColor", &CChartTitle::m_backColor},
                                         Field{"edgeColor", &CChartTitle::m_edgeColor},
                                         Field{"effect", &CChartTitle::m_effect},
                                         Field{"angle", &CChartTitle::m_angle},
                                         Field{"vertical", &CChartTitle::m_vertical},
                                         Field{"usePosition", &CChartTitle::m_usePosition},
                                         Field{"x", &CChartTitle::m_x},
                                         Field{"y", &CChartTitle::m_y}};
};

template <>
struct FieldsOf<CChartTextBox> {
    static constexpr std::tuple table = {Field{"text", &CChartTextBox::m_text},
                                         Field{"x", &CChartTextBox::m_x},
                                         Field{"y", &CChartTextBox::m_y},
                                         Field{"angle", &CChartTextBox::m_angle},
                                         Field{"vertical", &CChartTextBox::m_vertical},
                                         Field{"alignment", &CChartTextBox::m_alignment, words::alignment},
                                         Field{"font", &CChartTextBox::m_font},
                                         Field{"fontColor", &CChartTextBox::m_fontColor},
                                         Field{"backColor", &CChartTextBox::m_backColor},
                                         Field{"edgeColor", &CChartTextBox::m_edgeColor},
                                         Field{"effect", &CChartTextBox::m_effect}};
};

template <>
struct FieldsOf<CXYChartPA> {
    static constexpr std::tuple table = {Field{"left", &CXYChartPA::m_left}, Field{"top", &CXYChartPA::m_top},
                                         Field{"width", &CXYChartPA::m_width},
                                         Field{"height", &CXYChartPA::m_height}};
};

template <>
struct FieldsOf<CPieChartPA> {
    static constexpr std::tuple table = {Field{"centerX", &CPieChartPA::m_centerX},
                                         Field{"centerY", &CPieChartPA::m_centerY},
                                         Field{"radius", &CPieChartPA::m_radius}};
};

template <>
struct FieldsOf<CAngularMeterPA> {
    static constexpr std::tuple table = {
        Field{"centerX", &CAngularMeterPA::m_centerX}, Field{"centerY", &CAngularMeterPA::m_centerY},
        Field{"radius", &CAngularMeterPA::m_radius}, Field{"startAngle", &CAngularMeterPA::m_startAngle},
        Field{"endAngle", &CAngularMeterPA::m_endAngle}};
};

template <>
struct FieldsOf<CLinearMeterPA> {
    static constexpr std::tuple table = {Field{"left", &CLinearMeterPA::m_left},
                                         Field{"top", &CLinearMeterPA::m_top},
                                         Field{"width", &CLinearMeterPA::m_width},
                                         Field{"height", &CLinearMeterPA::m_height},
                                         Field{"axisPos", &CLinearMeterPA::m_axisPos, words::side},
                                         Field{"reverse", &CLinearMeterPA::m_reverse}};
};

template <>
struct FieldsOf<CChartLayout> {
    static constexpr std::tuple table = {Field{"width", &CChartLayout::m_width},
                                         Field{"height", &CChartLayout::m_height},
                                         Field{"chartType", &CChartLayout::m_chartType, words::chartType},
                                         Field{"backColor", &CChartLayout::m_backColor},
                                         Field{"edgeColor", &CChartLayout::m_edgeColor},
                                         Field{"useWallPaper", &CChartLayout::m_useWallPaper},
                                         Field{"wallPaperImage", &CChartLayout::m_wallPaperImage},
                                         Field{"roundedFrame", &CChartLayout::m_roundedFrame},
                                         Field{"defaultFont", &CChartLayout::m_defaultFont},
                                         Field{"effect", &CChartLayout::m_effect},
                                         Field{"showToolTip", &CChartLayout::m_showToolTip},
                                         Field{"toolTipFormat", &CChartLayout::m_toolTipFormat},
                                         Field{"xyPlotArea", &CChartLayout::m_xyPlotArea},
                                         Field{"piePlotArea", &CChartLayout::m_piePlotArea},
                                         Field{"polarPlotArea", &CChartLayout::m_polarPlotArea},
                                         Field{"angularPlotArea", &CChartLayout::m_angularPlotArea},
                                         Field{"linearPlotArea", &CChartLayout::m_linearPlotArea},
                                         Field{"financeWidth", &CChartLayout::m_financeWidth},
                                         Field{"titles", &CChartLayout::m_titles},
                                         Field{"showLabel", &CChartLayout::m_showLabel},
                                         Field{"labelFormat", &CChartLayout::m_labelFormat},
                                         Field{"labelFont", &CChartLayout::m_labelFont},
                                         Field{"labelFontColor", &CChartLayout::m_labelFontColor},
                                         Field{"labelBackColor", &CChartLayout::m_labelBackColor},
                                         Field{"labelEdgeColor", &CChartLayout::m_labelEdgeColor},
                                         Field{"labelEffect", &CChartLayout::m_labelEffect},
                                         Field{"labelAngle", &CChartLayout::m_labelAngle},
                                         Field{"labelVertical", &CChartLayout::m_labelVertical},
                                         Field{"showLegend", &CChartLayout::m_showLegend},
                                         Field{"legendFormat", &CChartLayout::m_legendFormat},
                                         Field{"legendFont", &CChartLayout::m_legendFont},
                                         Field{"legendFontColor", &CChartLayout::m_legendFontColor},
                                         Field{"legendBackColor", &CChartLayout::m_legendBackColor},
                                         Field{"legendEdgeColor", &CChartLayout::m_legendEdgeColor},
                                         Field{"legendEffect", &CChartLayout::m_legendEffect},
                                         Field{"legendVertical", &CChartLayout::m_legendVertical},
                                         Field{"legendX", &CChartLayout::m_legendX},
                                         Field{"legendY", &CChartLayout::m_legendY}};
};

} // namespace model
