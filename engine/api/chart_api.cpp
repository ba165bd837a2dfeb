// Operations of every chart: size, background, fonts, titles, texts, lines, legend, picture, patterns.

#include "engine/api/call.h"
#include "engine/api/convert.h"
#include "engine/chart/chart.h"
#include "engine/paint/picture.h"
#include "engine/scale/format.h"
#include <chartdraw/surface.h>

using chartdraw::Chart;
using chartdraw::edit;
using chartdraw::handle;
using chartdraw::read;
using chartdraw::toColour;
using chartdraw::toText;
using chartdraw::use;

namespace {

/// A title as it looks until its box is edited: a little air around it, centred.
chartdraw::TextLook titleLook(const char* font, double size, int fontColor, int background, int edge) {
    chartdraw::TextLook look = chartdraw::toLook(font, size > 0 ? size : 12, fontColor);
    if (look.font.empty())
        look.font = "bold";
    look.background = chartdraw::orDefault(toColour(background), chartdraw::kTransparent);
    look.edge = chartdraw::orDefault(toColour(edge), chartdraw::kTransparent);
    look.setMargins(6, 6, 4, 4);
    return look;
}

TextBox* addTitle(BaseChart* base, int alignment, const char* title, const chartdraw::TextLook& look,
                  bool strip) {
    return edit(
        base,
        [&](Chart& chart) { return handle<TextBox>(chart.addTitle(alignment, toText(title), look, strip)); });
}

} // namespace

extern "C" {

void CBaseChart_destroy(BaseChart* base) {
    use(
        base, [](Chart& chart) { delete &chart; });
}

void CBaseChart_setSize(BaseChart* base, int width, int height) {
    return edit(
        base, [&](Chart& chart) { chart.setSize(width, height); });
}

void CBaseChart_setBackground(BaseChart* base, int background, int edge, int raisedEffect) {
    return edit(
        base, [&](Chart& chart) { chart.setBackground(toColour(background), toColour(edge), raisedEffect); });
}

void CBaseChart_setBgImage(BaseChart* base, const char* file, int alignment) {
    return edit(
        base, [&](Chart& chart) { chart.setBackgroundImage(toText(file), alignment); });
}

void CBaseChart_setRoundedFrame(BaseChart* base, int exterior, int r1, int r2, int r3, int r4) {
    return edit(
        base,
        [&](Chart& chart) {
            const int first = r1 < 0 ? 10 : r1;
            const auto corner = [&](int radius) { return radius < 0 ? first : radius; };
            chart.setRoundedFrame(toColour(exterior), {first, corner(r2), corner(r3), corner(r4)});
        });
}

void CBaseChart_setDefaultFonts(BaseChart* base, const char* normal, const char* bold, const char* italic,
                                const char* boldItalic) {
    return edit(
        base,
        [&](Chart& chart) {
            chart.setDefaultFonts({{toText(normal), toText(bold), toText(italic), toText(boldItalic)}});
        });
}

void CBaseChart_setAntiAlias(BaseChart* base, bool shapes, int textMode) {
    return edit(
        base, [&](Chart& chart) { chart.setAntiAlias(shapes, textMode); });
}

TextBox* CBaseChart_addTitle(BaseChart* base, const char* title, const char* font, double size, int fontColor,
                             int background, int edge) {
    return addTitle(base, chartdraw::TopCenter, title, titleLook(font, size, fontColor, background, edge),
                    true);
}

TextBox* CBaseChart_addTitle2(BaseChart* base, int alignment, const char* title, const char* font,
                              double size, int fontColor, int background, int edge) {
    return addTitle(base, chartdraw::alignmentOr(alignment, chartdraw::TopCenter), title,
                    titleLook(font, size, fontColor, background, edge), false);
}

TextBox* CBaseChart_addText(BaseChart* base, int x, int y, const char* text, const char* font, double size,
                            int fontColor, int alignment, double angle, bool vertical) {
    return edit(
        base,
        [&](Chart& chart) {
            chartdraw::TextLook look = chartdraw::toLook(font, size, fontColor, angle);
            look.vertical = vertical;
            look.alignment = chartdraw::alignmentOr(alignment, chartdraw::TopLeft);
            return handle<TextBox>(chart.addText(toText(text), look, {x, y}, look.alignment));
        });
}

Line* CBaseChart_addLine(BaseChart* base, int x1, int y1, int x2, int y2, int color, int width) {
    return edit(
        base,
        [&](Chart& chart) {
            return handle<Line>(chart.addLine({x1, y1}, {x2, y2}, toColour(color), width));
        });
}

LegendBox* CBaseChart_addLegend(BaseChart* base, int x, int y, bool vertical, const char* font, double size) {
    return edit(
        base,
        [&](Chart& chart) {
            chartdraw::TextLook look = chartdraw::toLook(font, size, -1);
            look.setMargins(5, 5, 4, 4);
            return handle<LegendBox>(chart.addLegend({x, y}, vertical, look));
        });
}

LegendBox* CBaseChart_getLegend(BaseChart* base) {
    return read(
        base, [&](const Chart& chart) { return handle<LegendBox>(chart.legend()); });
}

DrawArea* CBaseChart_getDrawArea(BaseChart* base) {
    return use(
        base, [&](Chart& chart) { return handle<DrawArea>(chart.drawArea()); });
}

bool CBaseChart_makeChart2(BaseChart* base, int format, const char** data, int* length) {
    const char* bytes = nullptr;
    int count = 0;
    // Behind the kind of file stands the scale, none for natural size.
    const bool known = format >= 0 && (format & 0xff) == CHART_FORMAT_BMP;
    const int scale = format > 0xff ? format >> 8 : int{CHART_SCALE_UNIT};
    const bool made =
        known && use(base, [&](Chart& chart) {
            return chart.makePicture(static_cast<double>(scale) / int{CHART_SCALE_UNIT}, &bytes, &count);
        });
    if (data != nullptr)
        *data = bytes;
    if (length != nullptr)
        *length = count;
    return made;
}

int CBaseChart_patternColor(BaseChart* base, const int* pixels, int count, int height, int startX,
                            int startY) {
    chartdraw::Colour result = chartdraw::kTransparent;
    edit(base, [&](Chart& chart) {
        if (pixels == nullptr || height <= 0 || count < height)
            return;
        const int width = count / height;
        if (width > chartdraw::kMaxSide || height > chartdraw::kMaxSide)
            return;
        QImage tile(width, height, QImage::Format_ARGB32);
        if (tile.isNull())
            return;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                tile.setPixel(x, y, chart.colours().solid(toColour(pixels[y * width + x])).rgba());
        result = chart.colours().addPattern(tile, startX, startY);
    });
    return static_cast<int>(result);
}

int CBaseChart_patternColor2(BaseChart* base, const char* file, int startX, int startY) {
    chartdraw::Colour result = chartdraw::kTransparent;
    edit(base, [&](Chart& chart) {
        result = chart.colours().addPattern(chartdraw::loadPicture(toText(file)), startX, startY);
    });
    return static_cast<int>(result);
}

const char* CBaseChart_formatValue(BaseChart* base, double value, const char* format) {
    const char* text = use(base, [&](Chart& chart) { // The format may be no UTF-8; what is given out is.
        return chart.keepText(
            QString::fromStdString(chartdraw::formatValue(value, toText(format))).toStdString());
    });
    return text != nullptr ? text : "";
}

void CDrawArea_destroy(DrawArea* /*area*/) {
    // Every area there is belongs to a chart and ends with it.
}

int CDrawArea_getWidth(DrawArea* area) {
    return read(
        area, [&](const chartdraw::DrawArea& source) { return source.size().width(); });
}

int CDrawArea_getHeight(DrawArea* area) {
    return read(
        area, [&](const chartdraw::DrawArea& source) { return source.size().height(); });
}

bool CDrawArea_load(DrawArea* area, const char* file) {
    return edit(
        area, [&](chartdraw::DrawArea& target) { return target.load(toText(file)); });
}

} // extern "C"
