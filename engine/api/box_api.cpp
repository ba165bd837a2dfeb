// Operations of boxes, text boxes and legends.

#include "engine/api/call.h"
#include "engine/api/convert.h"
#include "engine/chart/chart.h"
#include "engine/chart/legend.h"
#include "engine/paint/picture.h"
#include <chartdraw/surface.h>

#include <algorithm>
#include <cmath>

using chartdraw::edit;
using chartdraw::object;
using chartdraw::read;
using chartdraw::toColour;

namespace {

constexpr int kMaxMargin = 4096;

int limitedSide(int pixels) {
    return std::clamp(pixels, 0, chartdraw::kMaxSide);
}

} // namespace

extern "C" {

void CBox_setBackground(Box* box, int background, int edge, int raisedEffect) {
    return edit(
        box,
        [&](chartdraw::Box& target) {
            chartdraw::TextLook& look = target.look();
            look.background = chartdraw::orDefault(toColour(background), look.background);
            look.edge = chartdraw::orDefault(toColour(edge), look.edge);
            look.effect = raisedEffect;
        });
}

void CBox_setPos(Box* box, int x, int y) {
    return edit(
        box, [&](chartdraw::Box& target) { target.setPos(x, y); });
}

void CBox_setSize(Box* box, int width, int height) {
    return edit(
        box,
        [&](chartdraw::Box& target) {
            chartdraw::TextLook& look = target.look();
            look.width = limitedSide(width);
            look.height = limitedSide(height);
        });
}

int CBox_getHeight(Box* box) {
    return read(
        box, [&](const chartdraw::Box& target) { return target.measuredHeight(); });
}

void CTextBox_setText(TextBox* box, const char* text) {
    return edit(
        box, [&](chartdraw::TextBox& target) { target.setText(chartdraw::toText(text)); });
}

void CTextBox_setFontAngle(TextBox* box, double angle, bool vertical) {
    return edit(
        box,
        [&](chartdraw::TextBox& target) {
            chartdraw::TextLook& look = target.look();
            look.angle = std::isfinite(angle) ? std::fmod(angle, 360.0) : 0.0;
            look.vertical = vertical;
        });
}

void CTextBox_setFontColor(TextBox* box, int color) {
    return edit(
        box,
        [&](chartdraw::TextBox& target) {
            chartdraw::TextLook& look = target.look();
            look.colour = chartdraw::orDefault(toColour(color), look.colour);
        });
}

void CTextBox_setFontSize(TextBox* box, double height, double width) {
    return edit(
        box,
        [&](chartdraw::TextBox& target) {
            chartdraw::TextLook& look = target.look();
            if (height > 0)
                look.size = height;
            look.widthSize = width > 0 ? width : 0;
        });
}

void CTextBox_setFontStyle(TextBox* box, const char* font, int fontIndex) {
    return edit(
        box,
        [&](chartdraw::TextBox& target) {
            chartdraw::TextLook& look = target.look();
            look.font = chartdraw::toText(font);
            if (fontIndex > 0 && !look.font.empty() && look.font.find('|') == std::string::npos)
                look.font += '|' + std::to_string(fontIndex);
        });
}

void CTextBox_setAlignment(TextBox* box, int alignment) {
    return edit(
        box,
        [&](chartdraw::TextBox& target) {
            chartdraw::TextLook& look = target.look();
            look.alignment = chartdraw::alignmentOr(alignment, look.alignment);
        });
}

void CTextBox_setHeight(TextBox* box, int height) {
    return edit(
        box,
        [&](chartdraw::TextBox& target) {
            chartdraw::TextLook& look = target.look();
            look.height = limitedSide(height);
        });
}

void CTextBox_setMargin(TextBox* box, int margin) {
    CTextBox_setMargin2(box, margin, margin, margin, margin);
}

void CTextBox_setMargin2(TextBox* box, int left, int right, int top, int bottom) {
    return edit(
        box,
        [&](chartdraw::TextBox& target) {
            chartdraw::TextLook& look = target.look();
            const auto limit = [](int margin) { return std::clamp(margin, 0, kMaxMargin); };
            look.setMargins(limit(left), limit(right), limit(top), limit(bottom));
        });
}

void CLegendBox_addKey(LegendBox* box, const char* text, int color, int lineWidth, DrawArea* symbol) {
    return edit(
        box,
        [&](chartdraw::LegendBox& legend) {
            legend.addKey(chartdraw::toText(text), toColour(color), lineWidth,
                          object<chartdraw::DrawArea>(symbol));
        });
}

} // extern "C"
