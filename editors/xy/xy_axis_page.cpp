#include "editors/xy/axis_dlg.h"
#include "editors/xy/xy_pages.h"
#include "resources/string_table.h"

#include <QPushButton>

CXYAxisPage::CXYAxisPage(CXYChart& chart, QWidget& owner, std::function<void()> axesChanged)
    : m_chart(chart), m_axesChanged(std::move(axesChanged)), m_form(*this, owner) {
    // An axis can be edited while it is not in use.
    const auto follower = [this](CXYChartAxis& axis, int kind) {
        if (EditFollower(axis, kind))
            m_form.Notify();
    };
    m_form.Check("Swap XY", chart.m_swapXY).Tip("X runs upwards and Y to the right");
    m_form.Group("Primary:");
    const auto primary =
        m_form.Buttons({{"X Axis ...", [this] { EditPrimary(m_chart.m_xAxis, CAxisDlg::X); }},
                        {"Y Axis ...", [this] { EditPrimary(m_chart.m_yAxis, CAxisDlg::Y); }}});
    m_form.Edits(*primary[0], CMember::Of(chart.m_xAxis));
    m_form.Edits(*primary[1], CMember::Of(chart.m_yAxis));
    m_form.Group("Secondary X Axis (X2)");
    m_form.Check("Use X2 Axis", chart.m_useX2Axis).Tip("Shows a second X axis, at the top");
    const auto x2 =
        m_form.Buttons({{"X2 Axis ...", [this, follower] { follower(m_chart.m_x2Axis, CAxisDlg::X2); }}});
    m_form.Edits(*x2[0], CMember::Of(chart.m_x2Axis));
    m_form.Group("Secondary Y Axis (Y2)");
    m_form.Check("Use Y2 Axis", chart.m_useY2Axis).Tip("Shows a second Y axis, at the right");
    const auto y2 =
        m_form.Buttons({{"Y2 Axis ...", [this, follower] { follower(m_chart.m_y2Axis, CAxisDlg::Y2); }}});
    m_form.Edits(*y2[0], CMember::Of(chart.m_y2Axis));
    m_form.Column();
    m_form.Group("Additional:");
    m_form.Objects(Axes(), LoadChartString(ChartText::SelectAxis));
}

CObjects CXYAxisPage::Axes() {
    CXYChartAxisMgr& axes = m_chart.m_axes;
    return {
        .count = [&axes] { return axes.GetAxisCount(); },
        .caption = [](int row) { return RowCaption(LoadChartString(ChartText::AxisRow), row); },
        .add =
            [this, &axes] {
                CXYChartAxis edited;
                if (!EditFollower(edited, CAxisDlg::Additional))
                    return false;
                CXYChartAxis* made = CXYChartAxisMgr::CreateAxis();
                if (made == nullptr)
                    return false;
                *made = edited;
                axes.AddAxis(made);
                SetChanged();
                return true;
            },
        .erase =
            [this, &axes](int row) {
                axes.DeleteAxis(row);
                SetChanged();
            },
        .modify = [this, &axes](int row) { return EditFollower(*axes.GetAxis(row), CAxisDlg::Additional); },
        .member = CMember::Of(axes)};
}

void CXYAxisPage::SetChanged() {
    m_chart.UpdateRelation();
    m_axesChanged();
}

void CXYAxisPage::EditPrimary(CXYChartAxis& axis, int kind) {
    CAxisDlg dialog;
    dialog.m_axisKind = kind;
    dialog.m_axis = axis;
    if (dialog.DoModal() == kOK) {
        axis = dialog.m_axis;
        m_form.Notify();
    }
}

bool CXYAxisPage::EditFollower(CXYChartAxis& axis, int kind) {
    const CXYChartAxisMgr& axes = m_chart.m_axes;
    CAxisDlg dialog;
    dialog.m_axisKind = kind;
    dialog.m_axis = axis;
    dialog.m_axisCount = axes.GetAxisCount();
    dialog.m_syncIndex = axes.GetAxisIndex(axis.m_syncAxis);
    if (dialog.DoModal() != kOK)
        return false;
    // What is followed goes through the dialog as a row of the list, never as a pointer.
    axis = dialog.m_axis;
    axis.m_syncAxis = axes.GetSafeAxis(dialog.m_syncIndex);
    return true;
}
