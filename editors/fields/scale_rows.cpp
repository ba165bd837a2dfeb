#include "editors/fields/scale_rows.h"

#include "editors/colour/swatch.h"
#include "editors/fields/color_field.h"
#include "editors/fields/font_field.h"
#include "editors/fields/look_rows.h"
#include "resources/string_table.h"

void LabelStyleRows(CForm& form, bool& use, CMeterLabelStyle& style) {
    form.Check("Use LabelStyle", use).Unvalidated().Tip(tip::kUseLook);
    form.Group("Font:");
    form.Field<CChartFontField>(nullptr, style.m_font);
    form.Field<CChartColorField>("FontColor:", style.m_fontColor);
    form.Column();
    EffectRows(form, style.m_effect);
    AngleRows(form, style);
    form.EndGroup();
    form.Field<CChartColorField>("BackColor:", style.m_backColor);
    form.Field<CChartColorField>("EdgeColor:", style.m_edgeColor);
}

void AngularZoneRows(CForm& form, CMeterZoneAngulars& zones, int caption) {
    auto& list = form.List(zones, LoadChartString(caption), LoadChartString(ChartText::SelectZone));
    form.Column();
    form.Real("StartValue:", list[&CMeterZoneAngular::m_startValue]).Step(10).Tip(tip::kZoneStart);
    form.Real("EndValue:", list[&CMeterZoneAngular::m_endValue]).Step(10).Tip(tip::kZoneEnd);
    form.Field<CChartColorField>("FillColor:", list.Swatch(&CMeterZoneAngular::m_fillColor, RowSwatch))
        .OnlyWithItem();
    form.Field<CChartColorField>("EdgeColor:", list[&CMeterZoneAngular::m_edgeColor]).OnlyWithItem();
}
