#pragma once
// How a text looks, in one line of a page.

#include "editors/framework/form.h"

#include <charteditors/chart_color.h>
#include <charteditors/chart_effect.h>
#include <charteditors/chart_font.h>

struct CLook {
    CBinding<CChartFont> font;
    CBinding<CChartColor> fontColor;
    CBinding<CChartColor> backColor;
    CBinding<CChartColor> edgeColor;
    CBinding<CChartRaisedEffect> effect;
};

/// The look of a value whose fields go by these names.
template <class Styled>
CLook LookOf(Styled& styled) {
    return {styled.m_font, styled.m_fontColor, styled.m_backColor, styled.m_edgeColor, styled.m_effect};
}
/// The same of the selected item of a list.
template <class Container>
CLook LookOf(CListEditor<Container>& list) {
    using Item = typename CListEditor<Container>::Item;
    return {list[&Item::m_font], list[&Item::m_fontColor], list[&Item::m_backColor], list[&Item::m_edgeColor],
            list[&Item::m_effect]};
}

/// The groups "Font:", with the font and the colours, and "Effect:".
void LookRows(CForm& form, const CLook& look);
/// The group "Effect:" alone.
void EffectRows(CForm& form, const CBinding<CChartRaisedEffect>& effect);
