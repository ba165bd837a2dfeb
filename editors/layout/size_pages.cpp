#include "editors/layout/size_pages.h"

namespace {

constexpr int kStep = 10; // pixels or degrees, one press

void CircleRows(CForm& form, const char* group, CPieChartPA& area) {
    form.Group(group);
    form.Integer("Center X:", area.m_centerX).Step(kStep).Tip("Pixels from the left");
    form.Integer("Center Y:", area.m_centerY).Step(kStep).Tip("Pixels from the top");
    form.Integer("Radius:", area.m_radius).Step(kStep).Floor(0).Tip("Pixels");
}

template <class Area>
void RectangleRows(CForm& form, const char* group, Area& area) {
    form.Group(group);
    form.Integer("Left:", area.m_left).Step(kStep).Tip("Pixels from the left");
    form.Integer("Top:", area.m_top).Step(kStep).Tip("Pixels from the top");
    form.Integer("Width:", area.m_width).Step(kStep).Floor(0).Tip("Pixels");
    form.Integer("Height:", area.m_height).Step(kStep).Floor(0).Tip("Pixels");
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
    m_form.Integer("CenterX:", area.m_centerX).Step(kStep).Tip("Pixels from the left");
    m_form.Integer("CenterY:", area.m_centerY).Step(kStep).Tip("Pixels from the top");
    m_form.Integer("Radius:", area.m_radius).Step(kStep).Floor(0).Tip("Pixels");
    m_form.Real("StartAngle:", area.m_startAngle).Step(kStep).Tip("Degrees clockwise from straight up");
    m_form.Real("EndAngle:", area.m_endAngle)
        .Step(kStep)
        .QuietOnLeave()
        .Tip("Degrees clockwise from straight up");
}

CXYSizePage::CXYSizePage(CChartLayout& layout, QWidget& owner) : m_form(*this, owner) {
    RectangleRows(m_form, "XYChart:", layout.m_xyPlotArea);
}

CFinanceSizePage::CFinanceSizePage(CChartLayout& layout, QWidget& owner) : m_form(*this, owner) {
    m_form.Group("FinanceChart:");
    m_form.Integer("Width:", layout.m_financeWidth).Step(kStep).Floor(0).Tip("Pixels");
}

CLinearSizePage::CLinearSizePage(CChartLayout& layout, QWidget& owner) : m_form(*this, owner) {
    CLinearMeterPA& area = layout.m_linearPlotArea;
    RectangleRows(m_form, "Linear Meter:", area);
    m_form.Side("AxisPos:", area.m_axisPos).Tip("The side that the scale stands on");
    m_form.Check("Reverse", area.m_reverse).NotLoaded().Tip("Values run the other way");
}
