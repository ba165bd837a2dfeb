#pragma once
// What the editors of meters and of polar charts share: the looks of a scale's labels, and its zones.

#include "editors/fields/tips.h"
#include "editors/framework/form.h"

#include <charteditors/meters.h>

/// All rows of a page of label looks. `use`: whether they have an effect.
void LabelStyleRows(CForm& form, bool& use, CMeterLabelStyle& style);

/// A list of zones and the rows of the selected one. `caption`: the ChartText of a row.
void AngularZoneRows(CForm& form, CMeterZoneAngulars& zones, int caption);

/// The group "Angle:", with the check box beneath.
template <class Style>
void AngleRows(CForm& form, Style& style) {
    form.Group("Angle:");
    form.Real(nullptr, style.m_angle).Step(10).Tip(tip::kTurned);
    form.Check("Vertical", style.m_vertical).Unvalidated().Tip(tip::kStacked);
}
