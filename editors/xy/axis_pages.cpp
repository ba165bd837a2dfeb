#include "editors/xy/axis_pages.h"

#include "editors/fields/color_field.h"
#include "editors/fields/look_rows.h"
#include "editors/xy/axis_dlg.h"
#include "resources/string_table.h"

#include <cmath>

CAxisGeneralPage::CAxisGeneralPage(CAxisDlg& dialog) : m_form(*this, dialog) {
    CXYChartAxis& axis = dialog.m_axis;
    // The four named axes have a fixed place.
    const auto movable = [&dialog] {
        return (dialog.m_axisKind & (CAxisDlg::X | CAxisDlg::Y | CAxisDlg::X2 | CAxisDlg::Y2)) == 0;
    };
    m_form.Side("Location:", axis.m_location).EnabledIf(movable);
    m_form.Integer("Offset:", axis.m_offset).EnabledIf(movable);
    m_form.Integer("Width:", axis.m_width).Floor(0);
    m_form.Field<CChartColorField>("Color:", axis.m_color);
    m_form.Check("Reverse", axis.m_reverse);
    m_form.Group("Margin:");
    m_form.Integer("Top(Right):", axis.m_marginTop);
    m_form.Integer("Bottom(Left):", axis.m_marginBottom);
}

CAxisTickPage::CAxisTickPage(CAxisDlg& dialog) : m_form(*this, dialog) {
    CXYChartAxis& axis = dialog.m_axis;
    m_form.Group("Step:");
    m_form.Integer("MajorStep:", axis.m_majorStep);
    m_form.Integer("MinorStep:", axis.m_minorStep);
    m_form.Group("Length:");
    m_form.Integer("MajorLength:", axis.m_majorLength);
    m_form.Integer("MinorLength:", axis.m_minorLength);
    m_form.Column();
    m_form.Group("Offset:");
    m_form.Integer("MajorOffset:", axis.m_majorOffset);
    m_form.Integer("MinorOffset:", axis.m_minorOffset);
    m_form.Group("Density:");
    m_form.Integer("MajorSpacing:", axis.m_majorSpacing);
    m_form.Integer("MinorSpacing:", axis.m_minorSpacing);
}

CAxisTitlePage::CAxisTitlePage(CAxisDlg& dialog) : m_form(*this, dialog) {
    CXYChartAxisTitle& title = dialog.m_axis.m_title;
    m_form.Check("Show Title", title.m_show).Unvalidated();
    m_form.Lines("Title:", title.m_text);
    m_form.Group("Position:");
    m_form.Check("Use Position", title.m_usePosition).Unvalidated();
    m_form.Alignment("Alignment:", title.m_alignment);
    m_form.Integer("Gap:", title.m_gap).Step(10);
    m_form.Group("Angle:");
    m_form.Check("Use Angle", title.m_useAngle).Unvalidated();
    m_form.Check("Vertical", title.m_vertical).Unvalidated();
    m_form.Real(nullptr, title.m_angle).Step(10);
    m_form.Column();
    LookRows(m_form, LookOf(title));
}

CAxisLabelPage::CAxisLabelPage(CAxisDlg& dialog) : m_form(*this, dialog) {
    CXYChartAxis& axis = dialog.m_axis;
    CTextRow& format = m_form.Lines("Label:", axis.m_labelFormat);
    m_formats = &m_form
                     .Formats("Format:", {LoadChartString(ChartText::LabelFormat),
                                          LoadChartString(ChartText::ValueFormat),
                                          LoadChartString(ChartText::PercentFormat)})
                     .For(format);
    m_form.Real("Angle:", axis.m_labelAngle).Step(10);
    m_form.Check("Vertical", axis.m_labelVertical);
    m_form.Column();
    LookRows(m_form, {axis.m_labelFont, axis.m_labelFontColor, axis.m_labelBackColor, axis.m_labelEdgeColor,
                      axis.m_labelEffect});
    m_form.Band();
    // Any other filter, the model's default among them, lets nothing through.
    const std::vector<CChoice> filters{"StartOfHour", "StartOfDay",     "StartOfWeek", "StartOfMonth",
                                       "StartOfYear", "RegularSpacing", "AllPass",     "NonePass"};
    m_form.Combo("Filter 1:", axis.m_filter1, filters).Otherwise(7);
    m_form.Text("Format 1:", axis.m_format1);
    m_form.Column();
    m_form.Combo("Filter 2:", axis.m_filter2, filters).Otherwise(7);
    m_form.Text("Format 2:", axis.m_format2);
}

void CAxisLabelPage::SetFormat(const char* format) {
    m_formats->Put(QString::fromUtf8(format));
}
