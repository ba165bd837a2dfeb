#include "editors/xy/axis_dlg.h"

#include "resources/string_table.h"

#include <charteditors/xy_chart.h>

#include <tuple>

namespace {

constexpr int kDateScale = 3;

/// The axis, and the axis that it follows as a row of the list.
class CWorkingAxis : public CWorkingCopy {
public:
    explicit CWorkingAxis(CAxisDlg& dialog) : m_dialog(dialog) {}
    Kept Keep() const override {
        return std::make_shared<const State>(m_dialog.m_axis, m_dialog.m_syncIndex);
    }
    Kept Fresh() const override {
        const CXYChart chart; // its axes have their places
        const CXYChartAxis other;
        const CXYChartAxis& axis = m_dialog.m_axisKind == CAxisDlg::X    ? chart.m_xAxis
                                   : m_dialog.m_axisKind == CAxisDlg::Y  ? chart.m_yAxis
                                   : m_dialog.m_axisKind == CAxisDlg::X2 ? chart.m_x2Axis
                                   : m_dialog.m_axisKind == CAxisDlg::Y2 ? chart.m_y2Axis
                                                                         : other;
        return std::make_shared<const State>(axis, -1);
    }
    void Restore(const Kept& kept) override {
        std::tie(m_dialog.m_axis, m_dialog.m_syncIndex) = *static_cast<const State*>(kept.get());
    }
    model::Places Places() const override { return PlacesAs(m_dialog.m_axis, m_dialog.m_syncIndex); }
    model::Places PlacesOf(const Kept& kept) const override {
        const auto& [axis, index] = *static_cast<const State*>(kept.get());
        return PlacesAs(axis, index);
    }

private:
    using State = std::pair<CXYChartAxis, std::int32_t>;
    /// The pointer to the followed axis gives way to its row.
    static model::Places PlacesAs(const CXYChartAxis& axis, const std::int32_t& index) {
        model::Places places = model::PlacesOf(axis);
        for (model::Place& place : places)
            if (place.joins)
                place = model::JoiningPlace("syncIndex", index);
        return places;
    }

    CAxisDlg& m_dialog;
};

} // namespace

CAxisDlg::CAxisDlg()
    : CDialog(QStringLiteral("Axis for XYChart")), m_tabs(*this), m_general(*this), m_ticks(*this),
      m_scale(*this), m_title(*this), m_labels(*this) {
    m_tabs.AttachPage(m_general, ChartText::General);
    m_tabs.AttachPage(m_ticks, ChartText::Tick);
    m_tabs.AttachPage(m_scale, ChartText::Scale);
    m_tabs.AttachPage(m_title, ChartText::Title);
    m_tabs.AttachPage(m_labels, ChartText::Label);
}

bool CAxisDlg::OnInitDialog() {
    m_tabs.Open({.edited = std::make_shared<CWorkingAxis>(*this)});
    return CDialog::OnInitDialog();
}

void CAxisDlg::ScaleTypeChosen() {
    const bool dates = m_axis.m_scaleType == kDateScale;
    m_labels.SetFormat(LoadChartString(dates ? ChartText::DateFormat : ChartText::AxisLabelFormat));
}
