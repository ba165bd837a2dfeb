#include "editors/xy/xy_pages.h"

#include "editors/fields/color_field.h"
#include "editors/fields/image_field.h"
#include "editors/fields/tips.h"
#include "resources/string_table.h"

CXYGeneralPage::CXYGeneralPage(CXYChart& chart, QWidget& owner) : m_form(*this, owner) {
    const auto line = [this](const char* label, const char* name, std::int32_t& width, CChartColor& color) {
        m_form.Integer(label, width).Floor(0).Tip(tip::kLineWidth);
        m_form.Field<CChartColorField>(nullptr, color).Named(name);
    };
    m_form.Group("Major Grid:");
    line("Horz:", "Horz Color", chart.m_majorHGridWidth, chart.m_majorHGridColor);
    line("Vert:", "Vert Color", chart.m_majorVGridWidth, chart.m_majorVGridColor);
    m_form.Group("Minor Grid:");
    line("Horz:", "Horz Color", chart.m_minorHGridWidth, chart.m_minorHGridColor);
    line("Vert:", "Vert Color", chart.m_minorVGridWidth, chart.m_minorVGridColor);
    m_form.Group("Line:");
    line("Width:", "Line Color", chart.m_lineWidth, chart.m_lineColor);
}

CXYBackgroundPage::CXYBackgroundPage(CXYChart& chart, QWidget& owner) : m_form(*this, owner) {
    m_form.Check("Use Background", chart.m_useBackground).Tip("Without, the plot area is transparent");
    m_form.Group("Type:");
    m_form.Radio(chart.m_backgroundType, {"Color", "Image", "4Q"})
        .Tip("Stripes of BackColor and AltColor, the image, or a color for each quarter");
    m_form.Field<CChartColorField>(LoadChartString(ChartText::BackColor), chart.m_backColor);
    m_form.Field<CChartColorField>(LoadChartString(ChartText::AltColor), chart.m_altColor);
    m_form.Field<CChartImageField>("Image:", chart.m_backImage);
    m_form.Field<CChartColorField>(LoadChartString(ChartText::EdgeColor), chart.m_edgeColor);
    m_form.Group("4Q Back Color:");
    m_form.Field<CChartColorField>(LoadChartString(ChartText::Quadrant1), chart.m_q1Color);
    m_form.Field<CChartColorField>(LoadChartString(ChartText::Quadrant2), chart.m_q2Color);
    m_form.Field<CChartColorField>(LoadChartString(ChartText::Quadrant3), chart.m_q3Color);
    m_form.Field<CChartColorField>(LoadChartString(ChartText::Quadrant4), chart.m_q4Color);
}
