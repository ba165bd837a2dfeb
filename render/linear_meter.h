#pragma once
// Linear meters: from model, layout and values to calls of the drawing surface.

#include "render/chart_holder.h"
#include "render/chart_preview.h"
#include <span>

/// A linear meter for the time of one drawing.
struct LinearMeterHolder {
    LinearMeter* linear;
    BaseMeter* meter;   // the same meter
    CChartHolder chart; // the same meter, owned
};

/// Makes a meter with its place and the dressing that goes under it. `addSampleKey`: see DrawChartLegend.
LinearMeterHolder BeginLinearMeter(const CChartLayout& layout, bool addSampleKey);

/// Gives the meter all that its model says. `values`: of the first pointers, in the place of the model's.
void FinishLinearMeter(const LinearMeterHolder& holder, const CLinearMeter& look,
                       std::span<const double> values);

/// The routine of PreviewLinearMeter.
void DrawLinearMeter(CChartPreview& view);
