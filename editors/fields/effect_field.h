#pragma once
// The field of a raised effect: its kind, the side that the light comes from, and its size.

#include "editors/framework/form.h"

#include <charteditors/chart_effect.h>

class CRaisedEffectField : public CDialog {
public:
    using Value = CChartRaisedEffect;

    CRaisedEffectField();

    void SetKey(int key) { m_key = key; }
    /// Sets the value and writes the controls; sends nothing.
    void SetValueAndShow(const CChartRaisedEffect& effect);
    /// Kind, side and size.
    static QString TextOf(const CChartRaisedEffect& effect);
    const CChartRaisedEffect& GetValue() const { return m_effect; }

private:
    void ApplyControls();
    void EnableControls();

    // What the controls show; ApplyControls makes the effect from it.
    std::int32_t m_type = 0; ///< row of the list
    std::int32_t m_side = 8;
    std::int32_t m_size = 0;
    CChartRaisedEffect m_effect;
    int m_key = 0;
    CForm m_form;
    CComboRow* m_directionRow;
    CIntegerRow* m_sizeRow;
};
