#pragma once
// What the two kinds of meter share: scale, free texts, pointers and the looks of the scale's labels. `meter`
// and `chart` are handles of one meter.

#include <chartdraw/surface.h>
#include <charteditors/chart_layout.h>
#include <charteditors/meters.h>
#include <span>

/// Line widths, limits and ticks of a CAngularMeter or CLinearMeter.
template <class Look>
void DrawMeterScale(BaseMeter* meter, const Look& look) {
    CBaseMeter_setLineWidth(meter, look.m_axisWidth, look.m_majorTickWidth, look.m_minorTickWidth,
                            look.m_microTickWidth);
    CBaseMeter_setScale(meter, look.m_lowerLimit, look.m_upperLimit, look.m_majorTickInc, look.m_minorTickInc,
                        look.m_microTickInc);
}

void DrawMeterTexts(BaseChart* chart, const CChartTextBoxs& texts);

/// `values`: where the first pointers point; those beyond it point where their model says.
void DrawMeterPointers(BaseMeter* meter, BaseChart* chart, const CMeterPointers& pointers,
                       std::span<const double> values);

void DrawMeterLabelStyle(BaseMeter* meter, BaseChart* chart, const CMeterLabelStyle& style);

/// All that lies over a meter's zones, for a CAngularMeter or CLinearMeter. See DrawMeterPointers.
template <class Look>
void DrawMeterFront(BaseMeter* meter, BaseChart* chart, const Look& look, std::span<const double> values) {
    DrawMeterTexts(chart, look.m_texts);
    DrawMeterPointers(meter, chart, look.m_pointers, values);
    if (look.m_useLabelStyle)
        DrawMeterLabelStyle(meter, chart, look.m_labelStyle);
}
