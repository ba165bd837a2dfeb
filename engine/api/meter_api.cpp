// Operations of meters and their pointers.

#include "engine/api/convert.h"
#include "engine/meter/angular_meter.h"
#include "engine/meter/linear_meter.h"
#include <chartdraw/surface.h>

#include <array>

using chartdraw::edit;
using chartdraw::handle;
using chartdraw::kBackgroundColour;
using chartdraw::kTransparent;
using chartdraw::orDefault;
using chartdraw::toColour;

namespace {

/// The shapes in the order of their codes.
chartdraw::PointerShape shapeOf(int code) {
    using Shape = chartdraw::PointerShape;
    constexpr std::array shapes = {Shape::Diamond, Shape::Triangular, Shape::Arrow,
                                   Shape::Arrow2,  Shape::Line,       Shape::Pencil};
    return code >= 0 && code < std::ssize(shapes) ? shapes[static_cast<std::size_t>(code)] : Shape::Diamond;
}

} // namespace

extern "C" {

AngularMeter* CAngularMeter_create(int width, int height, int background, int edge, int effect) {
    return handle<AngularMeter>(
        new chartdraw::AngularMeter(width, height, orDefault(toColour(background), kBackgroundColour),
                                    orDefault(toColour(edge), kTransparent), effect));
}

LinearMeter* CLinearMeter_create(int width, int height, int background, int edge, int effect) {
    return handle<LinearMeter>(new chartdraw::LinearMeter(width, height,
                                                          orDefault(toColour(background), kBackgroundColour),
                                                          orDefault(toColour(edge), kTransparent), effect));
}

void CBaseMeter_setScale(BaseMeter* meter, double lower, double upper, double major, double minor,
                         double micro) {
    if (auto* target = edit<chartdraw::BaseMeter>(meter))
        target->setScale(lower, upper, {major, minor, micro});
}

TextBox* CBaseMeter_setLabelStyle(BaseMeter* meter, const char* font, double size, int color, double angle) {
    auto* target = edit<chartdraw::BaseMeter>(meter);
    return target != nullptr
               ? handle<TextBox>(target->setLabelStyle(chartdraw::toLook(font, size, color, angle)))
               : nullptr;
}

void CBaseMeter_setLineWidth(BaseMeter* meter, int axis, int majorTick, int minorTick, int microTick) {
    if (auto* target = edit<chartdraw::BaseMeter>(meter))
        target->setLineWidths(axis, majorTick, minorTick, microTick);
}

MeterPointer* CBaseMeter_addPointer(BaseMeter* meter, double value, int color, int edge) {
    auto* target = edit<chartdraw::BaseMeter>(meter);
    return target != nullptr
               ? handle<MeterPointer>(target->addPointer(value, toColour(color), toColour(edge)))
               : nullptr;
}

void CMeterPointer_setShape(MeterPointer* pointer, int shape, double lengthRatio, double widthRatio) {
    if (auto* target = edit<chartdraw::MeterPointer>(pointer))
        target->setShape(shapeOf(shape), lengthRatio, widthRatio);
}

void CAngularMeter_setMeter(AngularMeter* meter, int x, int y, int radius, double startAngle,
                            double endAngle) {
    if (auto* target = edit<chartdraw::AngularMeter>(meter))
        target->setMeter({x, y}, radius, startAngle, endAngle);
}

void CAngularMeter_addRing(AngularMeter* meter, int startRadius, int endRadius, int fill, int edge) {
    if (auto* target = edit<chartdraw::AngularMeter>(meter))
        target->addRing(startRadius, endRadius, toColour(fill), toColour(edge));
}

void CAngularMeter_addZone2(AngularMeter* meter, double start, double end, int fill, int edge) {
    if (auto* target = edit<chartdraw::AngularMeter>(meter))
        target->addZone(start, end, toColour(fill), toColour(edge));
}

void CLinearMeter_setMeter(LinearMeter* meter, int left, int top, int width, int height, int axisPosition,
                           bool reverse) {
    if (auto* target = edit<chartdraw::LinearMeter>(meter))
        target->setMeter({left, top}, {width, height}, axisPosition, reverse);
}

TextBox* CLinearMeter_addZone(LinearMeter* meter, double start, double end, int color, const char* label) {
    auto* target = edit<chartdraw::LinearMeter>(meter);
    return target != nullptr
               ? handle<TextBox>(target->addZone(start, end, toColour(color), chartdraw::toText(label)))
               : nullptr;
}

} // extern "C"
