// Operations of axes and marks.

#include "engine/api/call.h"
#include "engine/api/convert.h"
#include "engine/axis/axis.h"
#include <chartdraw/surface.h>

using chartdraw::edit;
using chartdraw::handle;
using chartdraw::Increments;
using chartdraw::object;
using chartdraw::toColour;
using chartdraw::toText;
using Engine = chartdraw::Axis;
using ScaleType = chartdraw::ScaleSettings::Type;

extern "C" {

void CAxis_setReverse(Axis* axis, bool reverse) {
    return edit(
        axis, [&](Engine& target) { target.setReverse(reverse); });
}

void CAxis_setWidth(Axis* axis, int width) {
    return edit(
        axis, [&](Engine& target) { target.setWidth(width); });
}

void CAxis_setColors(Axis* axis, int axisColor, int label, int title, int tick) {
    return edit(
        axis,
        [&](Engine& target) {
            target.setColours(toColour(axisColor), toColour(label), toColour(title), toColour(tick));
        });
}

void CAxis_setMargin(Axis* axis, int top, int bottom) {
    return edit(
        axis, [&](Engine& target) { target.setMargin(top, bottom); });
}

void CAxis_setIndent(Axis* axis, bool indent) {
    return edit(
        axis, [&](Engine& target) { target.setIndent(indent); });
}

void CAxis_setLabelStep(Axis* axis, int majorStep, int minorStep, int majorOffset, int minorOffset) {
    return edit(
        axis, [&](Engine& target) { target.setLabelStep(majorStep, minorStep, majorOffset, minorOffset); });
}

void CAxis_setTickLength2(Axis* axis, int major, int minor) {
    return edit(
        axis, [&](Engine& target) { target.setTickLength(major, minor); });
}

void CAxis_setTickDensity(Axis* axis, int majorSpacing, int minorSpacing) {
    return edit(
        axis, [&](Engine& target) { target.setTickDensity(majorSpacing, minorSpacing); });
}

void CAxis_setAutoScale(Axis* axis, double topExtension, double bottomExtension, double zeroAffinity) {
    return edit(
        axis, [&](Engine& target) { target.setAutoScale(topExtension, bottomExtension, zeroAffinity); });
}

void CAxis_setLinearScale(Axis* axis, double lower, double upper, double majorIncrement,
                          double minorIncrement) {
    return edit(
        axis,
        [&](Engine& target) {
            target.setLimits(ScaleType::Linear, lower, upper, Increments{majorIncrement, minorIncrement, 0});
        });
}

void CAxis_setLinearScale3(Axis* axis, const char* format) {
    return edit(
        axis, [&](Engine& target) { target.setScaleFromData(ScaleType::Linear, toText(format)); });
}

void CAxis_setLogScale3(Axis* axis, const char* format) {
    return edit(
        axis, [&](Engine& target) { target.setScaleFromData(ScaleType::Log, toText(format)); });
}

void CAxis_setDateScale(Axis* axis, double lower, double upper, double majorIncrement,
                        double minorIncrement) {
    return edit(
        axis,
        [&](Engine& target) {
            target.setLimits(ScaleType::Date, lower, upper, Increments{majorIncrement, minorIncrement, 0});
        });
}

TextBox* CAxis_setTitle(Axis* axis, const char* title, const char* font, double size, int color) {
    return edit(
        axis,
        [&](Engine& target) {
            return handle<TextBox>(target.setTitle(toText(title), toText(font), size, toColour(color)));
        });
}

void CAxis_setTitlePos(Axis* axis, int alignment, int gap) {
    return edit(
        axis, [&](Engine& target) { target.setTitlePos(alignment, gap); });
}

TextBox* CAxis_setLabelStyle(Axis* axis, const char* font, double size, int color, double angle) {
    return edit(
        axis,
        [&](Engine& target) {
            return handle<TextBox>(target.setLabelStyle(toText(font), size, toColour(color), angle));
        });
}

void CAxis_setLabelFormat(Axis* axis, const char* format) {
    return edit(
        axis, [&](Engine& target) { target.setLabelFormat(toText(format)); });
}

TextBox* CAxis_setLabels2(Axis* axis, const double* values, int count, const char* format) {
    return edit(
        axis,
        [&](Engine& target) {
            return handle<TextBox>(target.setLabels(chartdraw::toDoubles(values, count), toText(format)));
        });
}

void CAxis_setMultiFormat(Axis* axis, int filter1, const char* format1, int filter2, const char* format2,
                          int labelSpan, bool promoteFirst) {
    return edit(
        axis,
        [&](Engine& target) {
            target.setRules({{filter1, toText(format1), labelSpan, promoteFirst},
                             {filter2, toText(format2), labelSpan, false}});
        });
}

void CAxis_setMultiFormat2(Axis* axis, int filter, const char* format, int labelSpan, bool promoteFirst) {
    return edit(
        axis,
        [&](Engine& target) {
            target.addRule({filter, toText(format), labelSpan, promoteFirst});
        });
}

Mark* CAxis_addMark(Axis* axis, double value, int color, const char* label, const char* font, double size) {
    return edit(
        axis,
        [&](Engine& target) {
            const auto colour = chartdraw::orDefault(toColour(color), chartdraw::kLineColour);
            // The label is told apart from those of the ticks by the colour of its line.
            const bool unseen = colour == chartdraw::kTransparent;
            const auto look =
                chartdraw::toLook(font, size, unseen ? CHART_TEXT_COLOR : static_cast<int>(colour));
            return handle<Mark>(target.addMark(value, colour, toText(label), look));
        });
}

void CAxis_addZone(Axis* axis, double start, double end, int color) {
    return edit(
        axis, [&](Engine& target) { target.addZone(start, end, toColour(color)); });
}

void CAxis_copyAxis(Axis* axis, Axis* source) {
    return edit(
        axis,
        [&](Engine& target) {
            if (const auto* from = object<Engine>(source))
                target.copyFrom(*from);
        });
}

void CAxis_syncAxis(Axis* axis, Axis* other, double slope, double intercept) {
    return edit(
        axis, [&](Engine& target) { target.syncTo(object<Engine>(other), slope, intercept); });
}

Line* CMark_getLine(Mark* mark) {
    return edit(
        mark, [&](chartdraw::Mark& target) { return handle<Line>(target.line()); });
}

} // extern "C"
