#include "editors/fields/effect_field.h"

#include "editors/fields/field_layout.h"
#include "editors/framework/conventions.h"

#include <QLayout>

namespace {

enum Row { Flat, Raised, Depressed, SoftLighting, NormalGlare, ReduceGlare };

constexpr const char* kTypeTexts[] = {"Flat",         "Raised",      "Depressed",
                                      "SoftLighting", "NormalGlare", "ReduceGlare"};
constexpr int kEffectTypes[] = {0, 0, 0, 1, 3, 2}; // of the rows

/// Of 32 bits without a sign, so that the least number has a negative of its own.
std::int32_t Minus(std::int32_t size) {
    return static_cast<std::int32_t>(0U - static_cast<std::uint32_t>(size));
}

Row RowOf(const CChartRaisedEffect& effect) {
    switch (effect.m_effectType) {
    case 1:
        return SoftLighting;
    case 2:
        return ReduceGlare;
    case 3:
        return NormalGlare;
    default:
        return effect.m_value == 0 ? Flat : effect.m_value < 0 ? Depressed : Raised;
    }
}

} // namespace

CRaisedEffectField::CRaisedEffectField() : m_form(*this, [this] { ApplyControls(); }) {
    m_form.Combo("Type:", m_type, {std::begin(kTypeTexts), std::end(kTypeTexts)});
    m_directionRow = &m_form.Side("Direction:", m_side).Tip("The side that the light comes from");
    m_sizeRow = &m_form.Integer("Size:", m_size)
                     .Unsigned()
                     .FloorOfPresses(0)
                     .Regardless()
                     .Tip("Pixels of the rim; 0 automatic for light and glare");
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_form.Layout()->setContentsMargins(0, 0, 0, 0);
}

void CRaisedEffectField::SetValueAndShow(const CChartRaisedEffect& effect) {
    m_effect = effect;
    m_type = RowOf(effect);
    m_side = effect.m_direction;
    m_size = effect.m_value < 0 ? Minus(effect.m_value) : effect.m_value;
    EnableControls();
    m_form.LoadRows(nullptr);
}

QString CRaisedEffectField::TextOf(const CChartRaisedEffect& effect) {
    const Row row = RowOf(effect);
    QString text = QString::fromUtf8(kTypeTexts[row]);
    if (row >= SoftLighting)
        text += u' ' + QString::fromUtf8(
                           Sides().Rows()[static_cast<std::size_t>(SideToIndex(effect.m_direction))].text);
    const std::int32_t size = effect.m_value < 0 ? Minus(effect.m_value) : effect.m_value;
    return row == Flat ? text : text + u' ' + QString::number(static_cast<std::uint32_t>(size));
}

void CRaisedEffectField::EnableControls() {
    m_sizeRow->SetEnabled(m_type != Flat);
    m_directionRow->SetEnabled(m_type >= SoftLighting);
}

void CRaisedEffectField::ApplyControls() {
    EnableControls();
    m_effect.m_effectType = kEffectTypes[m_type];
    m_effect.m_value = m_type == Flat ? 0 : m_type == Depressed ? Minus(m_size) : m_size;
    m_effect.m_direction = IndexToSide(SideToIndex(m_side));
    SendToPage(*this, m_key);
}
