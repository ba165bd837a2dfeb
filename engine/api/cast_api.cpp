// Casts of a handle to its base kind. The object stays the same; a handle of a wrong kind becomes null.

#include "engine/object/object.h"
#include <chartdraw/surface.h>

namespace {

template <class Target, class Source>
Target* cast(Source* source, chartdraw::Kind expected) {
    auto* base = reinterpret_cast<chartdraw::Object*>(source);
    return base != nullptr && chartdraw::isKind(base->kind(), expected) ? reinterpret_cast<Target*>(source)
                                                                        : nullptr;
}

} // namespace

#define CHART_CAST(Source, Target)                                                                           \
    Target* Source##2##Target(Source* source) {                                                              \
        return cast<Target>(source, chartdraw::Kind::Source);                                                \
    }

extern "C" {

CHART_CAST(XYChart, BaseChart)
CHART_CAST(PieChart, BaseChart)
CHART_CAST(PolarChart, BaseChart)
CHART_CAST(MultiChart, BaseChart)
CHART_CAST(BaseMeter, BaseChart)
CHART_CAST(AngularMeter, BaseMeter)
CHART_CAST(LinearMeter, BaseMeter)
CHART_CAST(BarLayer, Layer)
CHART_CAST(LineLayer, Layer)
CHART_CAST(AreaLayer, Layer)
CHART_CAST(InterLineLayer, Layer)
CHART_CAST(BaseBoxLayer, Layer)
CHART_CAST(SplineLayer, LineLayer)
CHART_CAST(StepLineLayer, LineLayer)
CHART_CAST(HLOCLayer, BaseBoxLayer)
CHART_CAST(CandleStickLayer, BaseBoxLayer)
CHART_CAST(BoxWhiskerLayer, BaseBoxLayer)
CHART_CAST(PolarLineLayer, PolarLayer)
CHART_CAST(PolarAreaLayer, PolarLayer)
CHART_CAST(PolarSplineLineLayer, PolarLineLayer)
CHART_CAST(PolarSplineAreaLayer, PolarAreaLayer)
CHART_CAST(TextBox, Box)
CHART_CAST(LegendBox, TextBox)
CHART_CAST(Mark, TextBox)
CHART_CAST(Box, DrawObj)
CHART_CAST(Line, DrawObj)
CHART_CAST(MeterPointer, DrawObj)

} // extern "C"
