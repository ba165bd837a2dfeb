#include "engine/object/object.h"

namespace chartdraw {

Kind baseOf(Kind kind) {
    switch (kind) {
    case Kind::XYChart:
    case Kind::PieChart:
    case Kind::PolarChart:
    case Kind::MultiChart:
    case Kind::BaseMeter:
        return Kind::BaseChart;
    case Kind::AngularMeter:
    case Kind::LinearMeter:
        return Kind::BaseMeter;
    case Kind::BarLayer:
    case Kind::LineLayer:
    case Kind::AreaLayer:
    case Kind::InterLineLayer:
    case Kind::BaseBoxLayer:
        return Kind::Layer;
    case Kind::SplineLayer:
    case Kind::StepLineLayer:
        return Kind::LineLayer;
    case Kind::BoxWhiskerLayer:
    case Kind::HLOCLayer:
    case Kind::CandleStickLayer:
        return Kind::BaseBoxLayer;
    case Kind::PolarLineLayer:
    case Kind::PolarAreaLayer:
        return Kind::PolarLayer;
    case Kind::PolarSplineLineLayer:
        return Kind::PolarLineLayer;
    case Kind::PolarSplineAreaLayer:
        return Kind::PolarAreaLayer;
    case Kind::Box:
    case Kind::Line:
    case Kind::MeterPointer:
        return Kind::DrawObj;
    case Kind::TextBox:
        return Kind::Box;
    case Kind::LegendBox:
    case Kind::Mark:
        return Kind::TextBox;
    default:
        return Kind::None;
    }
}

bool isKind(Kind kind, Kind wanted) {
    for (; kind != Kind::None; kind = baseOf(kind))
        if (kind == wanted)
            return true;
    return false;
}

} // namespace chartdraw
