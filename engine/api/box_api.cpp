// Operations of boxes, text boxes and legends.

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

/// The look behind a handle of a T, ready to be changed; null where there is none.
template <class T, class Handle>
chartdraw::TextLook* lookOf(Handle* box) {
    T* target = edit<T>(box);
    return target != nullptr ? &target->look() : nullptr;
}

int limitedSide(int pixels) {
    return std::clamp(pixels, 0, chartdraw::kMaxSide);
}

} // namespace

extern "C" {

void CBox_setBackground(Box* box, int background, int edge, int raisedEffect) {
    if (auto* look = lookOf<chartdraw::Box>(box)) {
        look->background = chartdraw::orDefault(toColour(background), look->background);
        look->edge = chartdraw::orDefault(toColour(edge), look->edge);
        look->effect = raisedEffect;
    }
}

void CBox_setPos(Box* box, int x, int y) {
    if (auto* target = edit<chartdraw::Box>(box))
        target->setPos(x, y);
}

void CBox_setSize(Box* box, int width, int height) {
    if (auto* look = lookOf<chartdraw::Box>(box)) {
        look->width = limitedSide(width);
        look->height = limitedSide(height);
    }
}

int CBox_getHeight(Box* box) {
    const auto* target = read<chartdraw::Box>(box);
    return target != nullptr ? target->measuredHeight() : 0;
}

void CTextBox_setText(TextBox* box, const char* text) {
    if (auto* target = edit<chartdraw::TextBox>(box))
        target->setText(chartdraw::toText(text));
}

void CTextBox_setFontAngle(TextBox* box, double angle, bool vertical) {
    if (auto* look = lookOf<chartdraw::TextBox>(box)) {
        look->angle = std::isfinite(angle) ? std::fmod(angle, 360.0) : 0.0;
        look->vertical = vertical;
    }
}

void CTextBox_setFontColor(TextBox* box, int color) {
    if (auto* look = lookOf<chartdraw::TextBox>(box))
        look->colour = chartdraw::orDefault(toColour(color), look->colour);
}

void CTextBox_setFontSize(TextBox* box, double height, double width) {
    if (auto* look = lookOf<chartdraw::TextBox>(box)) {
        if (height > 0)
            look->size = height;
        look->widthSize = width > 0 ? width : 0;
    }
}

void CTextBox_setFontStyle(TextBox* box, const char* font, int fontIndex) {
    if (auto* look = lookOf<chartdraw::TextBox>(box)) {
        look->font = chartdraw::toText(font);
        if (fontIndex > 0 && !look->font.empty() && look->font.find('|') == std::string::npos)
            look->font += '|' + std::to_string(fontIndex);
    }
}

void CTextBox_setAlignment(TextBox* box, int alignment) {
    if (auto* look = lookOf<chartdraw::TextBox>(box))
        look->alignment = chartdraw::alignmentOr(alignment, look->alignment);
}

void CTextBox_setHeight(TextBox* box, int height) {
    if (auto* look = lookOf<chartdraw::TextBox>(box))
        look->height = limitedSide(height);
}

void CTextBox_setMargin(TextBox* box, int margin) {
    CTextBox_setMargin2(box, margin, margin, margin, margin);
}

void CTextBox_setMargin2(TextBox* box, int left, int right, int top, int bottom) {
    if (auto* look = lookOf<chartdraw::TextBox>(box)) {
        const auto limit = [](int margin) { return std::clamp(margin, 0, kMaxMargin); };
        look->setMargins(limit(left), limit(right), limit(top), limit(bottom));
    }
}

void CLegendBox_addKey(LegendBox* box, const char* text, int color, int lineWidth, DrawArea* symbol) {
    if (auto* legend = edit<chartdraw::LegendBox>(box)) {
        legend->addKey(chartdraw::toText(text), toColour(color), lineWidth,
                       object<chartdraw::DrawArea>(symbol));
    }
}

} // extern "C"
