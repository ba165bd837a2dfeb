#include "editors/xy/axis_pages.h"

#include "editors/fields/color_field.h"
#include "editors/fields/look_rows.h"
#include "editors/fields/tips.h"
#include "editors/xy/axis_dlg.h"
#include "resources/string_table.h"

namespace {

constexpr char kMargin[] = "Pixels left free at that end of the scale";
constexpr char kTickLength[] = "Pixels outwards; below 0 inwards";
constexpr char kFilter[] = "The dates that have the format below; \"NonePass\" for none";
constexpr char kFilteredFormat[] = "The labels of the dates that pass the filter";

} // namespace

CAxisGeneralPage::CAxisGeneralPage(CAxisDlg& dialog) : m_form(*this, dialog) {
    CXYChartAxis& axis = dialog.m_axis;
    // The four named axes have a fixed place.
    const auto movable = [&dialog] {
        return (dialog.m_axisKind & (CAxisDlg::X | CAxisDlg::Y | CAxisDlg::X2 | CAxisDlg::Y2)) == 0;
    };
    m_form.Side("Location:", axis.m_location).EnabledIf(movable).Tip("The side that the axis stands on");
    m_form.Integer("Offset:", axis.m_offset).EnabledIf(movable).Tip("Pixels away from that side");
    m_form.Integer("Width:", axis.m_width).Floor(0).Tip(tip::kLineWidth);
    m_form.Field<CChartColorField>("Color:", axis.m_color);
    m_form.Check("Reverse", axis.m_reverse).Tip(tip::kReverse);
    m_form.Group("Margin:");
    m_form.Integer("Top(Right):", axis.m_marginTop).Tip(kMargin);
    m_form.Integer("Bottom(Left):", axis.m_marginBottom).Tip(kMargin);
}

CAxisTickPage::CAxisTickPage(CAxisDlg& dialog) : m_form(*this, dialog) {
    CXYChartAxis& axis = dialog.m_axis;
    m_form.Group("Step:");
    m_form.Integer("MajorStep:", axis.m_majorStep).Tip("Of so many labels one is drawn; 0 draws each");
    m_form.Integer("MinorStep:", axis.m_minorStep).Tip("A tick at every so many labels; 0 for none");
    m_form.Group("Length:");
    m_form.Integer("MajorLength:", axis.m_majorLength).Tip(kTickLength);
    m_form.Integer("MinorLength:", axis.m_minorLength).Tip(kTickLength);
    m_form.Column();
    m_form.Group("Offset:");
    m_form.Integer("MajorOffset:", axis.m_majorOffset).Tip("Labels before the first that is drawn");
    m_form.Integer("MinorOffset:", axis.m_minorOffset).Tip("Labels before the first tick");
    m_form.Group("Density:");
    m_form.Integer("MajorSpacing:", axis.m_majorSpacing)
        .Tip("Least pixels between labelled ticks; 0 automatic");
    m_form.Integer("MinorSpacing:", axis.m_minorSpacing).Tip("Least pixels between ticks; 0 or -1 for none");
}

CAxisTitlePage::CAxisTitlePage(CAxisDlg& dialog) : m_form(*this, dialog) {
    CXYChartAxisTitle& title = dialog.m_axis.m_title;
    m_form.Check("Show Title", title.m_show).Unvalidated();
    m_form.Lines("Title:", title.m_text);
    m_form.Group("Position:");
    m_form.Check("Use Position", title.m_usePosition)
        .Unvalidated()
        .Tip("Without, the title stands at the middle of the axis");
    m_form.Alignment("Alignment:", title.m_alignment);
    m_form.Integer("Gap:", title.m_gap).Step(10).Tip("Pixels between axis and title");
    m_form.Group("Angle:");
    m_form.Check("Use Angle", title.m_useAngle).Unvalidated().Tip("Without, the title runs along the axis");
    m_form.Check("Vertical", title.m_vertical).Unvalidated().Tip(tip::kStacked);
    m_form.Real(nullptr, title.m_angle).Step(10).Tip(tip::kTurned);
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
    m_form.Real("Angle:", axis.m_labelAngle).Step(10).Tip(tip::kTurned);
    m_form.Check("Vertical", axis.m_labelVertical).Tip(tip::kStacked);
    // Any other filter, the model's default among them, lets nothing through.
    const std::vector<CChoice> filters{"StartOfHour", "StartOfDay",     "StartOfWeek", "StartOfMonth",
                                       "StartOfYear", "RegularSpacing", "AllPass",     "NonePass"};
    m_form.Combo("Filter 1:", axis.m_filter1, filters).Otherwise(7).Tip(kFilter);
    m_form.Text("Format 1:", axis.m_format1).Tip(kFilteredFormat);
    m_form.Combo("Filter 2:", axis.m_filter2, filters).Otherwise(7).Tip(kFilter);
    m_form.Text("Format 2:", axis.m_format2).Tip(kFilteredFormat);
    m_form.Column();
    LookRows(m_form, {axis.m_labelFont, axis.m_labelFontColor, axis.m_labelBackColor, axis.m_labelEdgeColor,
                      axis.m_labelEffect});
}

void CAxisLabelPage::SetFormat(const char* format) {
    m_formats->Put(QString::fromUtf8(format));
}
