#include "editors/meter/meter_pages.h"

#include "editors/colour/swatch.h"
#include "editors/fields/color_field.h"
#include "editors/fields/look_rows.h"
#include "editors/fields/scale_rows.h"
#include "editors/fields/tips.h"
#include "resources/string_table.h"

#include <charteditors/chart_layout.h>
#include <type_traits>
#include <utility>

template <class Meter>
CMeterGeneralPage::CMeterGeneralPage(Meter& meter, QWidget& owner) : m_form(*this, owner) {
    m_form.Group("LineWidth");
    if constexpr (std::is_same_v<Meter, CAngularMeter>)
        m_form.Integer("AxisWidth:", meter.m_axisWidth).Step(1).Floor(0).Tip(tip::kLineWidth);
    m_form.Integer("MajorTickWidth:", meter.m_majorTickWidth).Step(1).Floor(0).Tip(tip::kLineWidth);
    m_form.Integer("MinorTickWidth:", meter.m_minorTickWidth).Step(1).Floor(0).Tip(tip::kLineWidth);
    m_form.Integer("MicroTickWidth:", meter.m_microTickWidth).Step(1).Floor(0).Tip(tip::kLineWidth);
    m_form.Group("Scale");
    m_form.Real("LowerLimit:", meter.m_lowerLimit).Step(10).Tip(tip::kScaleStart);
    m_form.Real("UpperLimit:", meter.m_upperLimit).Step(10).Tip(tip::kScaleEnd);
    m_form.Real("MajorTickInc:", meter.m_majorTickInc).Step(10).Tip(tip::kMajorTicks);
    m_form.Real("MinorTickInc:", meter.m_minorTickInc).Step(5).Tip(tip::kMinorTicks);
    m_form.Real("MicroTickInc:", meter.m_microTickInc).Step(1).Tip(tip::kMinorTicks);
}

template CMeterGeneralPage::CMeterGeneralPage(CAngularMeter& meter, QWidget& owner);
template CMeterGeneralPage::CMeterGeneralPage(CLinearMeter& meter, QWidget& owner);

CMeterPointerPage::CMeterPointerPage(CMeterPointers& pointers, QWidget& owner, const char* fillLabel,
                                     const CMeterPointer& fresh)
    : m_form(*this, owner) {
    auto& list =
        m_form
            .List(pointers, LoadChartString(ChartText::PointerRow), LoadChartString(ChartText::SelectPointer))
            .New([fresh] { return fresh; });
    m_form.Column();
    m_form.Real("Value:", list[&CMeterPointer::m_value]).Step(1).Tip("Where the pointer points on the scale");
    m_form.Field<CChartColorField>(fillLabel, list.Swatch(&CMeterPointer::m_fillColor, RowSwatch))
        .OnlyWithItem();
    m_form.Field<CChartColorField>("EdgeColor:", list[&CMeterPointer::m_edgeColor]).OnlyWithItem();
    m_form.Group("Shape:");
    m_form
        .Combo("Type:", list[&CMeterPointer::m_shape],
               {"DiamondPointer", "TriangularPointer", "ArrowPointer", "ArrowPointer2", "LinePointer",
                "PencilPointer"})
        .Otherwise(0);
    m_form.Real("LengthRatio:", list[&CMeterPointer::m_lengthRatio]).Step(0.1).Tip("1 is the usual length");
    m_form.Real("WidthRatio:", list[&CMeterPointer::m_widthRatio]).Step(0.1).Tip("1 is the usual width");
}

CMeterTextPage::CMeterTextPage(CChartTextBoxs& texts, QWidget& owner, std::function<CChartTextBox()> fresh)
    : m_form(*this, owner) {
    auto& list =
        m_form.List(texts, LoadChartString(ChartText::TextRow), LoadChartString(ChartText::SelectText))
            .New(std::move(fresh));
    m_form.Lines("Text:", list.Caption(&CChartTextBox::m_text));
    m_form.Alignment("Alignment:", list[&CChartTextBox::m_alignment]);
    m_form.Group("Angle:");
    m_form.Real(nullptr, list[&CChartTextBox::m_angle]).Step(10).Tip(tip::kTurned);
    m_form.Part();
    m_form.Check("Vertical", list[&CChartTextBox::m_vertical]).Unvalidated().Tip(tip::kStacked);
    m_form.Column();
    m_form.Group("Position:");
    m_form.Integer("X:", list[&CChartTextBox::m_x]).Step(10).Tip(tip::kFromLeft);
    m_form.Integer("Y:", list[&CChartTextBox::m_y]).Step(10).Tip(tip::kFromTop);
    LookRows(m_form, LookOf(list));
}

CMeterLabelPage::CMeterLabelPage(bool& use, CMeterLabelStyle& style, QWidget& owner) : m_form(*this, owner) {
    LabelStyleRows(m_form, use, style);
}
