#include "editors/layout/size_pages.h"

#include "editors/fields/tips.h"

namespace {

constexpr int kStep = 10; // pixels or degrees, one press

void CircleRows(CForm& form, const char* group, CPieChartPA& area) {
    form.Group(group);
    form.Integer("Center X:", area.m_centerX).Step(kStep).Tip(tip::kFromLeft);
    form.Integer("Center Y:", area.m_centerY).Step(kStep).Tip(tip::kFromTop);
    form.Integer("Radius:", area.m_radius).Step(kStep).Floor(0).Tip(tip::kPixels);
}

template <class Area>
void RectangleRows(CForm& form, const char* group, Area& area) {
    form.Group(group);
    form.Integer("Left:", area.m_left).Step(kStep).Tip(tip::kFromLeft);
    form.Integer("Top:", area.m_top).Step(kStep).Tip(tip::kFromTop);
    form.Integer("Width:", area.m_width).Step(kStep).Floor(0).Tip(tip::kPixels);
    form.Integer("Height:", area.m_height).Step(kStep).Floor(0).Tip(tip::kPixels);
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
    m_form.Integer("CenterX:", area.m_centerX).Step(kStep).Tip(tip::kFromLeft);
    m_form.Integer("CenterY:", area.m_centerY).Step(kStep).Tip(tip::kFromTop);
    m_form.Integer("Radius:", area.m_radius).Step(kStep).Floor(0).Tip(tip::kPixels);
    m_form.Real("StartAngle:", area.m_startAngle).Step(kStep).Tip(tip::kClockwise);
    m_form.Real("EndAngle:", area.m_endAngle).Step(kStep).QuietOnLeave().Tip(tip::kClockwise);
}

CXYSizePage::CXYSizePage(CChartLayout& layout, QWidget& owner) : m_form(*this, owner) {
    RectangleRows(m_form, "XYChart:", layout.m_xyPlotArea);
}

CFinanceSizePage::CFinanceSizePage(CChartLayout& layout, QWidget& owner) : m_form(*this, owner) {
    m_form.Group("FinanceChart:");
    m_form.Integer("Width:", layout.m_financeWidth).Step(kStep).Floor(0).Tip(tip::kPixels);
}

CLinearSizePage::CLinearSizePage(CChartLayout& layout, QWidget& owner) : m_form(*this, owner) {
    CLinearMeterPA& area = layout.m_linearPlotArea;
    RectangleRows(m_form, "Linear Meter:", area);
    m_form.Side("AxisPos:", area.m_axisPos).Tip("The side that the scale stands on");
    m_form.Check("Reverse", area.m_reverse).NotLoaded().Tip(tip::kReverse);
}
