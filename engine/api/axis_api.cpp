// Operations of axes and marks.

#include "engine/api/convert.h"
#include "engine/axis/axis.h"
#include <chartdraw/surface.h>

using chartdraw::edit;
using chartdraw::handle;
using chartdraw::Increments;
using chartdraw::object;
using chartdraw::read;
using chartdraw::toColour;
using chartdraw::toText;
using Engine = chartdraw::Axis;
using ScaleType = chartdraw::ScaleSettings::Type;

extern "C" {

void CAxis_setReverse(Axis* axis, bool reverse) {
    if (auto* target = edit<Engine>(axis))
        target->setReverse(reverse);
}

void CAxis_setWidth(Axis* axis, int width) {
    if (auto* target = edit<Engine>(axis))
        target->setWidth(width);
}

void CAxis_setColors(Axis* axis, int axisColor, int label, int title, int tick) {
    if (auto* target = edit<Engine>(axis))
        target->setColours(toColour(axisColor), toColour(label), toColour(title), toColour(tick));
}

void CAxis_setMargin(Axis* axis, int top, int bottom) {
    if (auto* target = edit<Engine>(axis))
        target->setMargin(top, bottom);
}

void CAxis_setIndent(Axis* axis, bool indent) {
    if (auto* target = edit<Engine>(axis))
        target->setIndent(indent);
}

void CAxis_setLabelStep(Axis* axis, int majorStep, int minorStep, int majorOffset, int minorOffset) {
    if (auto* target = edit<Engine>(axis))
        target->setLabelStep(majorStep, minorStep, majorOffset, minorOffset);
}

void CAxis_setTickLength2(Axis* axis, int major, int minor) {
    if (auto* target = edit<Engine>(axis))
        target->setTickLength(major, minor);
}

void CAxis_setTickDensity(Axis* axis, int majorSpacing, int minorSpacing) {
    if (auto* target = edit<Engine>(axis))
        target->setTickDensity(majorSpacing, minorSpacing);
}

void CAxis_setAutoScale(Axis* axis, double topExtension, double bottomExtension, double zeroAffinity) {
    if (auto* target = edit<Engine>(axis))
        target->setAutoScale(topExtension, bottomExtension, zeroAffinity);
}

void CAxis_setLinearScale(Axis* axis, double lower, double upper, double majorIncrement,
                          double minorIncrement) {
    if (auto* target = edit<Engine>(axis))
        target->setLimits(ScaleType::Linear, lower, upper, Increments{majorIncrement, minorIncrement, 0});
}

void CAxis_setLinearScale3(Axis* axis, const char* format) {
    if (auto* target = edit<Engine>(axis))
        target->setScaleFromData(ScaleType::Linear, toText(format));
}

void CAxis_setLogScale3(Axis* axis, const char* format) {
    if (auto* target = edit<Engine>(axis))
        target->setScaleFromData(ScaleType::Log, toText(format));
}

void CAxis_setDateScale(Axis* axis, double lower, double upper, double majorIncrement,
                        double minorIncrement) {
    if (auto* target = edit<Engine>(axis))
        target->setLimits(ScaleType::Date, lower, upper, Increments{majorIncrement, minorIncrement, 0});
}

TextBox* CAxis_setTitle(Axis* axis, const char* title, const char* font, double size, int color) {
    auto* target = edit<Engine>(axis);
    return target != nullptr
               ? handle<TextBox>(target->setTitle(toText(title), toText(font), size, toColour(color)))
               : nullptr;
}

void CAxis_setTitlePos(Axis* axis, int alignment, int gap) {
    if (auto* target = edit<Engine>(axis))
        target->setTitlePos(alignment, gap);
}

TextBox* CAxis_setLabelStyle(Axis* axis, const char* font, double size, int color, double angle) {
    auto* target = edit<Engine>(axis);
    return target != nullptr
               ? handle<TextBox>(target->setLabelStyle(toText(font), size, toColour(color), angle))
               : nullptr;
}

void CAxis_setLabelFormat(Axis* axis, const char* format) {
    if (auto* target = edit<Engine>(axis))
        target->setLabelFormat(toText(format));
}

TextBox* CAxis_setLabels2(Axis* axis, const double* values, int count, const char* format) {
    auto* target = edit<Engine>(axis);
    return target != nullptr
               ? handle<TextBox>(target->setLabels(chartdraw::toDoubles(values, count), toText(format)))
               : nullptr;
}

void CAxis_setMultiFormat(Axis* axis, int filter1, const char* format1, int filter2, const char* format2,
                          int labelSpan, bool promoteFirst) {
    if (auto* target = edit<Engine>(axis)) {
        target->setRules({{filter1, toText(format1), labelSpan, promoteFirst},
                          {filter2, toText(format2), labelSpan, false}});
    }
}

void CAxis_setMultiFormat2(Axis* axis, int filter, const char* format, int labelSpan, bool promoteFirst) {
    if (auto* target = edit<Engine>(axis))
        target->addRule({filter, toText(format), labelSpan, promoteFirst});
}

Mark* CAxis_addMark(Axis* axis, double value, int color, const char* label, const char* font, double size) {
    auto* target = edit<Engine>(axis);
    if (target == nullptr)
        return nullptr;
    const auto colour = chartdraw::orDefault(toColour(color), chartdraw::kLineColour);
    // The label is told apart from those of the ticks by the colour of its line.
    const bool unseen = colour == chartdraw::kTransparent;
    const auto look = chartdraw::toLook(font, size, unseen ? CHART_TEXT_COLOR : static_cast<int>(colour));
    return handle<Mark>(target->addMark(value, colour, toText(label), look));
}

void CAxis_addZone(Axis* axis, double start, double end, int color) {
    if (auto* target = edit<Engine>(axis))
        target->addZone(start, end, toColour(color));
}

void CAxis_copyAxis(Axis* axis, Axis* source) {
    auto* target = edit<Engine>(axis);
    const auto* from = read<Engine>(source);
    if (target != nullptr && from != nullptr)
        target->copyFrom(*from);
}

void CAxis_syncAxis(Axis* axis, Axis* other, double slope, double intercept) {
    if (auto* target = edit<Engine>(axis))
        target->syncTo(object<Engine>(other), slope, intercept);
}

Line* CMark_getLine(Mark* mark) {
    auto* target = edit<chartdraw::Mark>(mark);
    return target != nullptr ? handle<Line>(target->line()) : nullptr;
}

} // extern "C"
