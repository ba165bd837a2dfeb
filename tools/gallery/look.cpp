// What every chart can wear: background, frame, wallpaper, effects, colours, patterns and metals.

#include "tools/gallery/gallery.h"

#include <string>

namespace {

using gallery::points;

/// A chart without a body, to be dressed.
BaseChart* blank(int width = 220, int height = 140) {
    PieChart* pie = CPieChart_create(width, height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    return PieChart2BaseChart(pie);
}

/// A box with a colour and an effect, as a text without letters.
TextBox* box(BaseChart* chart, int x, int y, int width, int height, int fill, int effect,
             int edge = CHART_TRANSPARENT, const char* text = "") {
    TextBox* made = CBaseChart_addText(chart, x, y, text, nullptr, points(8), -1, CHART_TOP_LEFT, 0, false);
    CTextBox_setAlignment(made, CHART_CENTER);
    CBox_setSize(TextBox2Box(made), width, height);
    CBox_setBackground(TextBox2Box(made), fill, edge, effect);
    return made;
}

BaseChart* palette() {
    BaseChart* chart = blank(460, 210);
    for (int i = 0; i < 40; ++i) {
        const std::string text = std::to_string(i);
        box(chart, 10 + i % 10 * 44, 10 + i / 10 * 48, 40, 44, CHART_PALETTE + i, 0, 0x888888, text.c_str());
    }
    return chart;
}

BaseChart* alpha() {
    BaseChart* chart = blank(460, 80);
    int board[100];
    for (int i = 0; i < 100; ++i)
        board[i] = (i % 10 < 5) == (i / 10 < 5) ? 0xffffff : 0xbbbbbb;
    CBaseChart_setBackground(chart, CBaseChart_patternColor(chart, board, 100, 10, 0, 0), CHART_TRANSPARENT,
                             0);
    for (int i = 0; i < 8; ++i)
        box(chart, 10 + i * 56, 10, 50, 60, i * 36 << 24 | 0x3366cc, 0);
    return chart;
}

BaseChart* raised() {
    BaseChart* chart = blank();
    CBaseChart_setBackground(chart, 0xd8dee6, CHART_TRANSPARENT, 2);
    box(chart, 15, 20, 80, 40, 0xc0d0e8, 1, CHART_TRANSPARENT, "1");
    box(chart, 120, 20, 80, 40, 0xc0d0e8, 4, CHART_TRANSPARENT, "4");
    box(chart, 15, 80, 80, 40, 0xc0d0e8, -1, CHART_TRANSPARENT, "-1");
    box(chart, 120, 80, 80, 40, 0xc0d0e8, -4, CHART_TRANSPARENT, "-4");
    return chart;
}

BaseChart* directions(int (*effect)(int direction)) {
    BaseChart* chart = blank(300, 140);
    const int sides[] = {CHART_LEFT, CHART_TOP, CHART_RIGHT, CHART_BOTTOM};
    const char* const names[] = {"left", "top", "right", "bottom"};
    for (int i = 0; i < 4; ++i) {
        box(chart, 10 + i * 72, 15, 62, 45, 0x3377bb, effect(sides[i]), CHART_TRANSPARENT, names[i]);
        box(chart, 10 + i * 72, 75, 62, 45, 0xdd8833, effect(sides[i]), 0x664400, names[i]);
    }
    return chart;
}

BaseChart* softLighting() {
    return directions([](int direction) { return CChart_softLighting(direction, 0); });
}

BaseChart* glass() {
    return directions([](int direction) { return CChart_glassEffect(CHART_GLARE_NORMAL, direction, 0); });
}

BaseChart* reducedGlass() {
    return directions([](int direction) { return CChart_glassEffect(CHART_GLARE_REDUCED, direction, 0); });
}

BaseChart* wideGlass() {
    return directions([](int direction) { return CChart_glassEffect(CHART_GLARE_NORMAL, direction, 8); });
}

BaseChart* metals() {
    BaseChart* chart = blank(300, 140);
    const int bases[] = {0xffd700, 0xc0c0c0, 0xcd7f32, 0x88aadd};
    for (int i = 0; i < 4; ++i) {
        box(chart, 10 + i * 72, 15, 62, 45, CChart_metalColor(bases[i], 0), 0, 0x777777, "0");
        box(chart, 10 + i * 72, 75, 62, 45, CChart_metalColor(bases[i], 60), 0, 0x777777, "60");
    }
    return chart;
}

BaseChart* metalBackground() {
    BaseChart* chart = blank();
    CBaseChart_setBackground(chart, CChart_metalColor(0xc8ccd4, 90), 0x888888, 0);
    CBaseChart_setRoundedFrame(chart, 0xffffff, 16, -1, -1, -1);
    CBaseChart_addTitle2(chart, CHART_CENTER, "Silver", "bold", points(16), 0x444444, CHART_TRANSPARENT,
                         CHART_TRANSPARENT);
    return chart;
}

BaseChart* patterns() {
    BaseChart* chart = blank(300, 140);
    int stripes[64], dots[64], checks[64];
    for (int i = 0; i < 64; ++i) {
        const int x = i % 8, y = i / 8;
        stripes[i] = (x + y) % 8 < 3 ? 0x3366aa : 0xe8f0ff;
        dots[i] = (x - 3) * (x - 3) + (y - 3) * (y - 3) <= 5 ? 0xaa3366 : 0xfff0f4;
        checks[i] = (x < 4) == (y < 4) ? 0x339966 : static_cast<int>(CHART_TRANSPARENT);
    }
    box(chart, 10, 15, 62, 105, CBaseChart_patternColor(chart, stripes, 64, 8, 0, 0), 0, 0x777777);
    box(chart, 82, 15, 62, 105, CBaseChart_patternColor(chart, dots, 64, 8, 82, 15), 0, 0x777777);
    box(chart, 154, 15, 62, 105, CBaseChart_patternColor(chart, checks, 64, 8, 0, 0), 0, 0x777777);
    box(chart, 226, 15, 62, 105, CBaseChart_patternColor2(chart, gallery::sampleImage(), 226, 15), 0,
        0x777777);
    return chart;
}

BaseChart* edge() {
    BaseChart* chart = blank();
    CBaseChart_setBackground(chart, 0xeef4ff, 0x3366aa, 0);
    CBaseChart_addLine(chart, 20, 30, 200, 30, 0x3366aa, 1);
    CBaseChart_addLine(chart, 20, 50, 200, 50, 0x3366aa, 3);
    CBaseChart_addLine(chart, 20, 70, 200, 120, 0xaa3366, 1);
    CBaseChart_addLine(chart, 20, 120, 200, 70, 0x339966, 4);
    return chart;
}

BaseChart* roundedFrame() {
    BaseChart* chart = blank();
    CBaseChart_setBackground(chart, 0xddeeff, 0x3366aa, 0);
    CBaseChart_setRoundedFrame(chart, 0xffffff, 10, -1, -1, -1);
    return chart;
}

BaseChart* fourRadii() {
    BaseChart* chart = blank();
    CBaseChart_setBackground(chart, 0xfff0dd, 0xaa6622, 3);
    CBaseChart_setRoundedFrame(chart, 0xe0e0e0, 0, 20, 40, 70);
    return chart;
}

BaseChart* roundedGlass() {
    BaseChart* chart = blank();
    CBaseChart_setBackground(chart, 0x224488, CHART_TRANSPARENT,
                             CChart_glassEffect(CHART_GLARE_NORMAL, CHART_TOP, 6));
    CBaseChart_setRoundedFrame(chart, 0xffffff, 20, -1, -1, -1);
    CBaseChart_addTitle2(chart, CHART_CENTER, "Glass", "bold", points(16), 0xffffff, CHART_TRANSPARENT,
                         CHART_TRANSPARENT);
    return chart;
}

BaseChart* wallpaper() {
    BaseChart* chart = blank();
    CBaseChart_setBackground(chart, 0xf4f4f4, 0x888888, 0);
    CBaseChart_setBgImage(chart, gallery::sampleImage(), CHART_CENTER);
    return chart;
}

BaseChart* wallpaperCorner() {
    BaseChart* chart = blank();
    CBaseChart_setBackground(chart, 0xf4f4f4, 0x888888, 0);
    CBaseChart_setBgImage(chart, gallery::sampleImage(), CHART_TOP_LEFT);
    CBaseChart_setRoundedFrame(chart, 0xffffff, 25, -1, -1, -1);
    return chart;
}

BaseChart* jagged() {
    BaseChart* chart = edge();
    CBaseChart_setAntiAlias(chart, false, 0);
    CBaseChart_addTitle2(chart, CHART_TOP, "No smooth edges", nullptr, points(9), -1, CHART_TRANSPARENT,
                         CHART_TRANSPARENT);
    return chart;
}

const gallery::Family family("look", {
                                         {"the palette", palette},
                                         {"alpha from opaque to clear", alpha},
                                         {"raised and depressed", raised},
                                         {"soft lighting from four sides", softLighting},
                                         {"glass", glass},
                                         {"glass, reduced glare", reducedGlass},
                                         {"glass, 8 pixels of rim", wideGlass},
                                         {"metals", metals},
                                         {"metal background, rounded", metalBackground},
                                         {"patterns", patterns},
                                         {"edge and lines", edge},
                                         {"without anti-aliasing", jagged},
                                         {"rounded frame", roundedFrame},
                                         {"four radii, raised", fourRadii},
                                         {"rounded glass", roundedGlass},
                                         {"wallpaper, centred", wallpaper},
                                         {"wallpaper, top left, rounded", wallpaperCorner},
                                     });

} // namespace
