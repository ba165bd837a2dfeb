// Operations of meters and their pointers.

#include "engine/api/call.h"
#include "engine/api/convert.h"
#include "engine/meter/angular_meter.h"
#include "engine/meter/linear_meter.h"
#include <chartdraw/surface.h>

#include <array>

using chartdraw::createChart;
using chartdraw::edit;
using chartdraw::handle;
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
    return createChart<chartdraw::AngularMeter, AngularMeter>(width, height, background, edge, effect);
}

LinearMeter* CLinearMeter_create(int width, int height, int background, int edge, int effect) {
    return createChart<chartdraw::LinearMeter, LinearMeter>(width, height, background, edge, effect);
}

void CBaseMeter_setScale(BaseMeter* meter, double lower, double upper, double major, double minor,
                         double micro) {
    return edit(
        meter,
        [&](chartdraw::BaseMeter& target) {
            target.setScale(lower, upper, {major, minor, micro});
        });
}

TextBox* CBaseMeter_setLabelStyle(BaseMeter* meter, const char* font, double size, int color, double angle) {
    return edit(
        meter,
        [&](chartdraw::BaseMeter& target) {
            return handle<TextBox>(target.setLabelStyle(chartdraw::toLook(font, size, color, angle)));
        });
}

void CBaseMeter_setLineWidth(BaseMeter* meter, int axis, int majorTick, int minorTick, int microTick) {
    return edit(
        meter,
        [&](chartdraw::BaseMeter& target) { target.setLineWidths(axis, majorTick, minorTick, microTick); });
}

MeterPointer* CBaseMeter_addPointer(BaseMeter* meter, double value, int color, int edge) {
    return edit(
        meter,
        [&](chartdraw::BaseMeter& target) {
            return handle<MeterPointer>(target.addPointer(value, toColour(color), toColour(edge)));
        });
}

void CMeterPointer_setShape(MeterPointer* pointer, int shape, double lengthRatio, double widthRatio) {
    return edit(
        pointer,
        [&](chartdraw::MeterPointer& target) { target.setShape(shapeOf(shape), lengthRatio, widthRatio); });
}

void CAngularMeter_setMeter(AngularMeter* meter, int x, int y, int radius, double startAngle,
                            double endAngle) {
    return edit(
        meter,
        [&](chartdraw::AngularMeter& target) {
            target.setMeter({x, y}, radius, startAngle, endAngle);
        });
}

void CAngularMeter_addRing(AngularMeter* meter, int startRadius, int endRadius, int fill, int edge) {
    return edit(
        meter,
        [&](chartdraw::AngularMeter& target) {
            target.addRing(startRadius, endRadius, toColour(fill), toColour(edge));
        });
}

void CAngularMeter_addZone2(AngularMeter* meter, double start, double end, int fill, int edge) {
    return edit(
        meter,
        [&](chartdraw::AngularMeter& target) { target.addZone(start, end, toColour(fill), toColour(edge)); });
}

void CLinearMeter_setMeter(LinearMeter* meter, int left, int top, int width, int height, int axisPosition,
                           bool reverse) {
    return edit(
        meter,
        [&](chartdraw::LinearMeter& target) {
            target.setMeter({left, top}, {width, height}, axisPosition, reverse);
        });
}

TextBox* CLinearMeter_addZone(LinearMeter* meter, double start, double end, int color, const char* label) {
    return edit(
        meter,
        [&](chartdraw::LinearMeter& target) {
            return handle<TextBox>(target.addZone(start, end, toColour(color), chartdraw::toText(label)));
        });
}

} // extern "C"
