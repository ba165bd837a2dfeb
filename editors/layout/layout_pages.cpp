#include "editors/layout/layout_pages.h"

#include "editors/fields/color_field.h"
#include "editors/fields/font_field.h"
#include "editors/fields/image_field.h"
#include "editors/fields/look_rows.h"
#include "editors/fields/tips.h"
#include "resources/string_table.h"

namespace {

/// Ready-made formats of what a data point or a data set is called.
CFormatRow& DataFormats(CForm& form) {
    return form.Formats("Format:",
                        {LoadChartString(ChartText::DataSetNameFormat),
                         LoadChartString(ChartText::ValueFormat), LoadChartString(ChartText::PercentFormat)});
}

} // namespace

CLayoutGeneralPage::CLayoutGeneralPage(CChartLayout& layout, QWidget& owner) : m_form(*this, owner) {
    m_form.Field<CChartColorField>("BackColor:", layout.m_backColor);
    m_form.Field<CChartColorField>("EdgeColor:", layout.m_edgeColor);
    EffectRows(m_form, layout.m_effect);
    m_form.Group("Default Font:");
    m_form.Field<CChartFontField>(nullptr, layout.m_defaultFont).Widget().HideSize();
    m_form.Column();
    m_form.Check("RoundedFrame", layout.m_roundedFrame).Unvalidated();
    m_form.Group("WallPaper:");
    m_form.Check("WallPaper", layout.m_useWallPaper)
        .Unvalidated()
        .Tip("Puts the image in the middle of the background");
    m_form.Field<CChartImageField>(nullptr, layout.m_wallPaperImage);
    m_form.Group("ToolTip:");
    m_form.Check("Show ToolTip", layout.m_showToolTip).Unvalidated();
    CTextRow& toolTip = m_form.Text("ToolTip:", layout.m_toolTipFormat);
    m_form.Formats("Format:", {LoadChartString(ChartText::ToolTipFormat)}).For(toolTip);
}

CLayoutTitlePage::CLayoutTitlePage(CChartLayout& layout, QWidget& owner) : m_form(*this, owner) {
    auto& titles = m_form.List(layout.m_titles, LoadChartString(ChartText::TitleRow),
                               LoadChartString(ChartText::SelectItem));
    m_form.Check("Show Title", titles[&CChartTitle::m_show]).Unvalidated();
    m_form.Alignment("Alignment:", titles[&CChartTitle::m_alignment]);
    m_form.Lines("Title:", titles.Caption(&CChartTitle::m_text));
    m_form.Group("Angle:");
    m_form.Check("Vertical", titles[&CChartTitle::m_vertical]).Unvalidated().Tip(tip::kStacked);
    m_form.Part();
    m_form.Real(nullptr, titles[&CChartTitle::m_angle]).Step(10).Tip(tip::kTurned);
    m_form.Column();
    m_form.Group("Position:");
    m_form.Check("Use Position", titles[&CChartTitle::m_usePosition])
        .Unvalidated()
        .Tip("Places the title by X and Y; without, by \"Alignment:\"");
    m_form.Part();
    m_form.Integer("X:", titles[&CChartTitle::m_x]).Step(10).Tip(tip::kFromLeft);
    m_form.Integer("Y:", titles[&CChartTitle::m_y]).Step(10).Tip(tip::kFromTop);
    LookRows(m_form, LookOf(titles));
}

CLayoutLabelPage::CLayoutLabelPage(CChartLayout& layout, QWidget& owner) : m_form(*this, owner) {
    m_form.Check("Show Label", layout.m_showLabel).Unvalidated();
    CTextRow& label = m_form.Lines("Label:", layout.m_labelFormat);
    DataFormats(m_form).For(label);
    m_form.Group("Angle:");
    m_form.Real(nullptr, layout.m_labelAngle).Step(10).Tip(tip::kTurned);
    m_form.Part();
    m_form.Check("Vertical", layout.m_labelVertical).Unvalidated().Tip(tip::kStacked);
    m_form.Column();
    LookRows(m_form, {layout.m_labelFont, layout.m_labelFontColor, layout.m_labelBackColor,
                      layout.m_labelEdgeColor, layout.m_labelEffect});
}

CLayoutLegendPage::CLayoutLegendPage(CChartLayout& layout, QWidget& owner) : m_form(*this, owner) {
    m_form.Check("Show Legend", layout.m_showLegend).Unvalidated();
    CFormatRow& formats = DataFormats(m_form);
    formats.For(m_form.Lines("Label:", layout.m_legendFormat));
    m_form.Check("Vertical", layout.m_legendVertical).Unvalidated().Tip("Keys below each other");
    m_form.Group("Position:");
    m_form.Integer("X:", layout.m_legendX).Step(10).Tip(tip::kFromLeft);
    m_form.Integer("Y:", layout.m_legendY).Step(10).Tip(tip::kFromTop);
    m_form.Column();
    LookRows(m_form, {layout.m_legendFont, layout.m_legendFontColor, layout.m_legendBackColor,
                      layout.m_legendEdgeColor, layout.m_legendEffect});
}
