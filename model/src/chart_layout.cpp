#include "model/src/value_class.h"
#include "resources/string_table.h"
#include <charteditors/chart_layout.h>

CChartTitle::CChartTitle() {
    m_backColor.m_color = model::leftToLibrary;
    m_edgeColor.m_color = model::leftToLibrary;
}
DEFINE_VALUE_CLASS(CChartTitle)

CChartTextBox::CChartTextBox() {
    m_backColor.m_color = 0xFFFFFF;
    m_edgeColor.m_color = model::transparent;
}
DEFINE_VALUE_CLASS(CChartTextBox)

DEFINE_RECORD(CXYChartPA)
DEFINE_RECORD(CPieChartPA)
DEFINE_RECORD(CAngularMeterPA)
DEFINE_RECORD(CLinearMeterPA)

CChartLayout::CChartLayout() {
    m_backColor.m_color = 0xFFFFFF;
    m_edgeColor.m_color = 0x33808080;
    m_toolTipFormat = LoadChartString(ChartText::ToolTipFormat);
    m_labelFormat = LoadChartString(ChartText::ValueFormat);
    m_labelBackColor.m_color = model::leftToLibrary;
    m_labelEdgeColor.m_color = model::leftToLibrary;
    m_legendFormat = LoadChartString(ChartText::DataSetNameFormat);
    m_legendBackColor.m_color = model::leftToLibrary;
    SetChartSize(500, 550);
}
DEFINE_VALUE_CLASS(CChartLayout)

void CChartLayout::SetChartSize(int width, int height) {
    // In 64 bits, since any size is taken as it stands and the sums must not overflow on the way.
    const std::int64_t w = width;
    const std::int64_t h = height;
    const auto side = static_cast<std::int64_t>(static_cast<double>(width) * 0.8);
    const auto pixels = [](auto value) { return static_cast<std::int32_t>(value); };

    m_width = width;
    m_height = height;
    const std::int32_t top = pixels((h - side) / 2);
    const std::int32_t centerX = width / 2;
    const std::int32_t centerY = height / 2;
    m_xyPlotArea.m_left = pixels((w - side) / 2);
    m_xyPlotArea.m_top = top;
    m_xyPlotArea.m_width = m_xyPlotArea.m_height = pixels(side);
    m_piePlotArea.m_centerX = m_polarPlotArea.m_centerX = m_angularPlotArea.m_centerX = centerX;
    m_piePlotArea.m_centerY = m_polarPlotArea.m_centerY = m_angularPlotArea.m_centerY = centerY;
    m_piePlotArea.m_radius = pixels(2 * side / 5);
    m_polarPlotArea.m_radius = m_angularPlotArea.m_radius = pixels(side / 2);
    m_angularPlotArea.m_startAngle = -90.0;
    m_angularPlotArea.m_endAngle = 90.0;
    const double barWidth = width * 0.1;
    m_linearPlotArea.m_left = pixels((width - barWidth) * 0.5);
    m_linearPlotArea.m_top = top;
    m_linearPlotArea.m_width = pixels(barWidth);
    m_linearPlotArea.m_height = pixels(side);
    m_linearPlotArea.m_axisPos = 4;
    m_linearPlotArea.m_reverse = false;
    m_financeWidth = width;
    m_legendX = pixels(static_cast<double>(side) * 0.8);
    m_legendY = pixels(static_cast<double>(side) * 0.03);
}
