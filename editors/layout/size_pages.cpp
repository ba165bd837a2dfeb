#include "editors/layout/size_pages.h"

namespace {

constexpr int kStep = 10; // pixels or degrees, one press

void CircleRows(CForm& form, const char* group, CPieChartPA& area) {
    form.Group(group);
    form.Integer("Center X:", area.m_centerX).Step(kStep);
    form.Integer("Center Y:", area.m_centerY).Step(kStep);
    form.Integer("Radius:", area.m_radius).Step(kStep).Floor(0);
}

template <class Area>
void RectangleRows(CForm& form, const char* group, Area& area) {
    form.Group(group);
    form.Integer("Left:", area.m_left).Step(kStep);
    form.Integer("Top:", area.m_top).Step(kStep);
    form.Integer("Width:", area.m_width).Step(kStep).Floor(0);
    form.Integer("Height:", area.m_height).Step(kStep).Floor(0);
}

} // namespace

CPieSizePage::CPieSizePage(CChartLayout& layout, QWidget& owner) : m_form(*this, owner) {
    CircleRows(m_form, "PieChart:", layout.m_piePlotArea);
}

CPolarSizePage::CPolarSizePage(CChartLayout& layout, QWidget& owner) : m_form(*this, owner) {
    CircleRows(m_form, "PolarChart:", layout.m_polarPlotArea);
}

CAngularSizePage::CAngularSizePage(CChartLayout& layout, QWidget& owner) : m_form(*this, owner) {
    CAngularMeterPA& area = layout.m_angularPlotArea;
    m_form.Group("Angular Meter:");
    m_form.Integer("CenterX:", area.m_centerX).Step(kStep);
    m_form.Integer("CenterY:", area.m_centerY).Step(kStep);
    m_form.Integer("Radius:", area.m_radius).Step(kStep).Floor(0);
    m_form.Real("StartAngle:", area.m_startAngle).Step(kStep);
    m_form.Real("EndAngle:", area.m_endAngle).Step(kStep).QuietOnLeave();
}

CXYSizePage::CXYSizePage(CChartLayout& layout, QWidget& owner) : m_form(*this, owner) {
    RectangleRows(m_form, "XYChart:", layout.m_xyPlotArea);
}

CFinanceSizePage::CFinanceSizePage(CChartLayout& layout, QWidget& owner) : m_form(*this, owner) {
    m_form.Group("FinanceChart:");
    m_form.Integer("Width:", layout.m_financeWidth).Step(kStep).Floor(0);
}

CLinearSizePage::CLinearSizePage(CChartLayout& layout, QWidget& owner) : m_form(*this, owner) {
    CLinearMeterPA& area = layout.m_linearPlotArea;
    RectangleRows(m_form, "Linear Meter:", area);
    m_form.Side("AxisPos:", area.m_axisPos);
    m_form.Check("Reverse", area.m_reverse).NotLoaded();
}
