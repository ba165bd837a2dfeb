#include "editors/fields/look_rows.h"

#include "editors/fields/color_field.h"
#include "editors/fields/effect_field.h"
#include "editors/fields/font_field.h"

void LookRows(CForm& form, const CLook& look) {
    form.Group("Font:");
    form.Field<CChartFontField>(nullptr, look.font);
    form.Field<CChartColorField>("FontColor:", look.fontColor);
    form.Field<CChartColorField>("BackColor:", look.backColor);
    form.Field<CChartColorField>("EdgeColor:", look.edgeColor);
    EffectRows(form, look.effect);
}

void EffectRows(CForm& form, const CBinding<CChartRaisedEffect>& effect) {
    form.Group("Effect:");
    form.Field<CRaisedEffectField>(nullptr, effect);
}
