// Pies: layouts of labels, explosion, three dimensions, donuts, and data that is hard to show.

#include "tools/gallery/gallery.h"

#include <cmath>

namespace {

using gallery::points;

const double kValues[] = {55, 18, 15, 22, 8, 15, 10};
const char* const kNames[] = {"Labour",    "Licences",   "Taxes",     "Legal",
                              "Insurance", "Facilities", "Production"};

struct Pie {
    PieChart* pie;
    BaseChart* chart;

    Pie(int width, int height, int radius, const double* values, int count, const char* const* names)
        : pie(CPieChart_create(width, height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0)),
          chart(PieChart2BaseChart(pie)) {
        CPieChart_setPieSize(pie, width / 2, height / 2, radius);
        CPieChart_setData(pie, values, count, names, count);
        CPieChart_setLabelStyle(pie, nullptr, points(8), -1);
    }
    Pie() : Pie(360, 280, 95, kValues, 7, kNames) {}
};

BaseChart* plain() {
    return Pie().chart;
}

BaseChart* side() {
    Pie p;
    CPieChart_setLabelLayout(p.pie, CHART_SIDE_LAYOUT, -1, -1, -1);
    return p.chart;
}

BaseChart* inside() {
    Pie p;
    CPieChart_setLabelLayout(p.pie, CHART_CIRCLE_LAYOUT, -38, -1, -1);
    CPieChart_setLabelFormat(p.pie, "{percent|0}%");
    CPieChart_setLabelStyle(p.pie, "bold", points(9), 0xffffff);
    return p.chart;
}

BaseChart* farOut() {
    Pie p;
    CPieChart_setLabelLayout(p.pie, CHART_CIRCLE_LAYOUT, 25, -1, -1);
    return p.chart;
}

BaseChart* modelDefault() {
    Pie p;
    CPieChart_setLineColor(p.pie, CHART_TRANSPARENT, 0);
    CPieChart_setLabelFormat(p.pie, "{value}");
    return p.chart;
}

BaseChart* boxedLabels() {
    Pie p;
    TextBox* style = CPieChart_setLabelStyle(p.pie, "bold", points(8), -1);
    CBox_setBackground(TextBox2Box(style), static_cast<int>(0xffff0000), 0x999999, 0);
    CTextBox_setMargin2(style, 5, 5, 2, 2);
    CPieChart_setLabelLayout(p.pie, CHART_SIDE_LAYOUT, -1, -1, -1);
    CPieChart_setLineColor(p.pie, -1, 0x999999);
    return p.chart;
}

BaseChart* explodedOne() {
    Pie p;
    CSector_setExplode(CPieChart_sector(p.pie, 0), -1);
    return p.chart;
}

BaseChart* explodedAll() {
    Pie p;
    for (int i = 0; i < 7; ++i)
        CSector_setExplode(CPieChart_sector(p.pie, i), 10);
    CPieChart_setLabelLayout(p.pie, CHART_SIDE_LAYOUT, -1, -1, -1);
    return p.chart;
}

BaseChart* donut() {
    Pie p;
    CPieChart_setDonutSize(p.pie, 180, 140, 50, 95);
    return p.chart;
}

BaseChart* solid() {
    Pie p;
    CPieChart_set3D(p.pie, -1, -1, false);
    return p.chart;
}

BaseChart* solidExploded() {
    Pie p;
    CPieChart_set3D(p.pie, 25, 55, false);
    for (int i = 0; i < 7; ++i)
        CSector_setExplode(CPieChart_sector(p.pie, i), i == 0 ? 20 : 8);
    CPieChart_setLabelLayout(p.pie, CHART_SIDE_LAYOUT, -1, -1, -1);
    return p.chart;
}

BaseChart* solidShadow() {
    Pie p;
    CPieChart_set3D(p.pie, 20, 45, true);
    return p.chart;
}

BaseChart* solidDonut() {
    Pie p;
    CPieChart_setDonutSize(p.pie, 180, 140, 55, 95);
    CPieChart_set3D(p.pie, 25, 50, false);
    return p.chart;
}

BaseChart* solidDonutExploded() {
    Pie p;
    CPieChart_setDonutSize(p.pie, 180, 140, 45, 95);
    CPieChart_set3D(p.pie, 20, 40, false);
    CPieChart_setStartAngle(p.pie, 200, false);
    for (int i = 0; i < 7; i += 2)
        CSector_setExplode(CPieChart_sector(p.pie, i), 18);
    return p.chart;
}

BaseChart* shadowDonutExploded() {
    Pie p;
    CPieChart_setDonutSize(p.pie, 180, 140, 45, 95);
    CPieChart_set3D(p.pie, 15, 60, true);
    CSector_setExplode(CPieChart_sector(p.pie, 0), 15);
    CSector_setExplode(CPieChart_sector(p.pie, 3), 15);
    return p.chart;
}

BaseChart* solidEdges() {
    Pie p;
    CPieChart_set3D(p.pie, 20, 50, false);
    CPieChart_setLineColor(p.pie, 0x333333, 0x333333);
    return p.chart;
}

BaseChart* metals() {
    Pie p;
    CPieChart_setLineColor(p.pie, 0x555555, -1);
    const int bases[] = {0xe8b923, 0xb0b4ba, 0xb87333, 0x7da7d9, 0x8fbf7f, 0xcc8899, 0x9988cc};
    for (int i = 0; i < 7; ++i)
        CSector_setColor(CPieChart_sector(p.pie, i), CChart_metalColor(bases[i], 45), -1, -1);
    CPieChart_set3D(p.pie, 20, 45, false);
    return p.chart;
}

BaseChart* patterns() {
    Pie p;
    CPieChart_setLineColor(p.pie, 0x555555, -1);
    const int inks[] = {0x336699, 0xcc6633, 0x339966, 0x993366, 0x666699, 0x999933, 0x663333};
    for (int i = 0; i < 7; ++i) {
        int pixels[36];
        for (int k = 0; k < 36; ++k) {
            const int x = k % 6, y = k / 6;
            const bool ink = i % 3 == 0 ? (x + y) % 6 < 2 : i % 3 == 1 ? x < 2 : x < 3 && y < 3;
            pixels[k] = ink ? inks[i] : 0xf4f4f4;
        }
        CSector_setColor(CPieChart_sector(p.pie, i), CBaseChart_patternColor(p.chart, pixels, 36, 6, 0, 0),
                         -1, -1);
    }
    CPieChart_set3D(p.pie, 20, 45, false);
    return p.chart;
}

BaseChart* translucent() {
    Pie p;
    CBaseChart_setBgImage(p.chart, gallery::sampleImage(), CHART_CENTER);
    for (int i = 0; i < 7; ++i) {
        CSector_setColor(CPieChart_sector(p.pie, i),
                         static_cast<int>(0x80000000u) | (0x3366cc + i * 0x203010), -1, -1);
    }
    return p.chart;
}

BaseChart* single() {
    const double values[] = {42};
    const char* const names[] = {"All of it"};
    Pie p(240, 280, 80, values, 1, names);
    CPieChart_set3D(p.pie, 20, 50, false);
    return p.chart;
}

BaseChart* hardValues() {
    const double values[] = {0, 30, -5, CHART_NO_VALUE, NAN, 0, 60};
    const char* const names[] = {"zero", "thirty", "negative", "missing", "no number", "zero too", "sixty"};
    return Pie(300, 280, 85, values, 7, names).chart;
}

BaseChart* nothing() {
    const double values[] = {0, 0};
    const char* const names[] = {"a", "b"};
    return Pie(240, 280, 80, values, 2, names).chart;
}

BaseChart* manySmall() {
    double values[24];
    const char* names[24];
    for (int i = 0; i < 24; ++i) {
        values[i] = i < 2 ? 90 : 1 + i % 4;
        names[i] = i % 5 == 0 ? "A rather long name" : "Item";
    }
    Pie p(460, 340, 100, values, 24, names);
    CPieChart_setLabelFormat(p.pie, "{label} ({percent|1}%)");
    return p.chart;
}

BaseChart* manySmallSide() {
    double values[24];
    const char* names[24];
    for (int i = 0; i < 24; ++i) {
        values[i] = i < 2 ? 90 : 1 + i % 4;
        names[i] = i % 5 == 0 ? "A rather long name" : "Item";
    }
    Pie p(460, 340, 100, values, 24, names);
    CPieChart_setLabelFormat(p.pie, "{label} ({percent|1}%)");
    CPieChart_setLabelLayout(p.pie, CHART_SIDE_LAYOUT, -1, -1, -1);
    return p.chart;
}

BaseChart* hundred(int layout) {
    double values[100];
    const char* names[100];
    for (int i = 0; i < 100; ++i) {
        values[i] = 5 + i * 37 % 23;
        names[i] = "Part";
    }
    Pie p(460, 420, 130, values, 100, names);
    CPieChart_setLabelFormat(p.pie, "{label} {sector}");
    CPieChart_setLabelLayout(p.pie, layout, -1, -1, -1);
    return p.chart;
}

BaseChart* hundredRound() {
    return hundred(CHART_CIRCLE_LAYOUT);
}

BaseChart* hundredSide() {
    return hundred(CHART_SIDE_LAYOUT);
}

BaseChart* withLegend() {
    Pie p(500, 550, 160, kValues, 7, kNames);
    CBaseChart_addTitle2(p.chart, CHART_TOP, "Project costs", "bold", points(14), -1, CHART_TRANSPARENT,
                         CHART_TRANSPARENT);
    LegendBox* legend = CBaseChart_addLegend(p.chart, 320, 12, false, nullptr, points(8));
    CBox_setBackground(TextBox2Box(LegendBox2TextBox(legend)), -1, 0, 0);
    return p.chart;
}

BaseChart* turnedLabels() {
    Pie p;
    TextBox* style = CPieChart_setLabelStyle(p.pie, nullptr, points(8), -1);
    CTextBox_setFontAngle(style, 30, false);
    CBox_setBackground(TextBox2Box(style), 0xfff4d6, 0xc9a227, 0);
    return p.chart;
}

const gallery::Family family("pie", {
                                        {"as it comes", plain},
                                        {"side layout", side},
                                        {"labels inside", inside},
                                        {"labels 25 pixels out", farOut},
                                        {"no edges", modelDefault},
                                        {"boxed labels", boxedLabels},
                                        {"one exploded", explodedOne},
                                        {"all exploded", explodedAll},
                                        {"donut", donut},
                                        {"3D", solid},
                                        {"3D exploded, 55 degrees", solidExploded},
                                        {"3D shadow", solidShadow},
                                        {"3D donut", solidDonut},
                                        {"3D donut exploded, anticlockwise", solidDonutExploded},
                                        {"shadow donut exploded", shadowDonutExploded},
                                        {"3D with edges", solidEdges},
                                        {"metals", metals},
                                        {"patterns", patterns},
                                        {"translucent", translucent},
                                        {"turned labels", turnedLabels},
                                        {"one value", single},
                                        {"hard values", hardValues},
                                        {"sum zero", nothing},
                                        {"many small, circle", manySmall},
                                        {"many small, side", manySmallSide},
                                        {"100 sectors, circle", hundredRound},
                                        {"100 sectors, side", hundredSide},
                                        {"title and legend", withLegend},
                                    });

} // namespace
