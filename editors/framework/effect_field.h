#pragma once
// The field of a raised effect: its kind, the side that the light comes from, and its size.

#include "editors/framework/form.h"

#include <charteditors/chart_effect.h>

class CRaisedEffectField : public CDialog {
public:
    using Value = CChartRaisedEffect;

    CRaisedEffectField();

    void SetKey(int key) { m_key = key; }
    void SetValueAndShow(const CChartRaisedEffect& effect);
    const CChartRaisedEffect& GetValue() const { return m_effect; }

protected:
    bool DoDataExchange(bool read) override;

private:
    void ApplyControls();
    void EnableControls();

    // What the controls show; the effect is made from it by ApplyControls.
    std::int32_t m_typeRow = 0;
    std::int32_t m_side = 4;
    std::int32_t m_size = 0;
    CChartRaisedEffect m_effect;
    int m_key = 0;
    QWidget* m_directionControl = nullptr;
    QWidget* m_sizeControl = nullptr;
    CForm m_form;
};
