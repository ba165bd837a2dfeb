#include "tests/engine/surface/rows.h"

namespace surface {
namespace {
/// Where the ink of the labels of the y axis and of the x axis stands.
const QRect kLeft(0, 10, 45, 170), kBelow(40, 176, 260, 24);

/// Rows of white paper between inked ones, in a part of the picture: how many labels stand there.
int blocks(const Shot& shot, const QRect& part, bool upright) {
    int count = 0;
    bool inside = false;
    int gap = 0;
    const int end = upright ? part.bottom() : part.right();
    for (int at = upright ? part.top() : part.left(); at <= end; ++at) {
        const QRect slice = upright ? QRect(part.left(), at, part.width(), 1) : QRect(at, part.top(), 1, part.height());
        const bool ink = !shot.ink(slice).isNull();
        gap = ink ? 0 : gap + 1;
        if (ink && !inside) ++count;
        inside = ink || (inside && gap < 5);
    }
    return count;
}

/// Months of 2024 on a label axis below a line of twelve rows.
void months(Scene& s) {
    s.startXy();
    double times[12], values[12];
    for (int i = 0; i < 12; ++i) {
        times[i] = CChart_chartTime(2023, 9 + i, 1, 0, 0, 0);
        values[i] = 50;
    }
    CXYChart_addLineLayer(s.xy, values, 12, kNone, nullptr, 0);
    CAxis_setLabels2(s.x, times, 12, "{value|m}");
}
} // namespace

std::vector<Row> axisRows() {
    return {
        {"CAxis_setReverse", bars, SET(CAxis_setReverse(s.y, b)),
         SHOWS(p.is(225, b ? 30 : 160, kGreen) && !p.is(75, b ? 120 : 60, kGreen))},
        {"CAxis_setWidth", axes, SET(CAxis_setColors(s.y, kRed, -1, -1, kNone), CAxis_setWidth(s.y, b ? 9 : 3)),
         SHOWS(p.box(kRed).width() == (b ? 9 : 3))},
        {"CAxis_setColors", axes,
         SET(CAxis_setTitle(s.y, "Title", "bold", 8, -1), CAxis_setTickLength2(s.y, 9, 4),
             CAxis_setLabelStyle(s.y, "bold", 8, -1, 0),
             b ? CAxis_setColors(s.y, kRed, kGreen, kBlue, kPink) : CAxis_setColors(s.y, kPink, kBlue, kGreen, kRed)),
         [](const Shot& p, bool b) { // outwards: line, ticks, labels, title
             const int line = b ? kRed : kPink, label = b ? kGreen : kBlue, title = b ? kBlue : kGreen,
                       tick = b ? kPink : kRed;
             return p.is(50, 100, line) && p.is(42, yOf(40), tick) && p.has(label, QRect(14, 10, 26, 170)) &&
                    p.box(title).right() < p.box(label).left();
         }},
        {"CAxis_setMargin", bars, SET(CAxis_setMargin(s.y, b ? 50 : 0, b ? 0 : 30)),
         SHOWS(b ? p.is(225, 91, kGreen) && !p.is(225, 80, kGreen) : p.is(225, 47, kGreen))},
        {"CAxis_setIndent", bars, SET(CAxis_setIndent(s.x, b)),
         SHOWS(p.is(80, 160, kGreen) == b && p.is(52, 160, kGreen) != b)},
        {"CAxis_setLabelStep", months,
         SET(CAxis_setTickLength2(s.x, 9, 5), CAxis_setColors(s.x, kNone, -1, -1, kRed),
             b ? CAxis_setLabelStep(s.x, 5, 3, 1, 2) : CAxis_setLabelStep(s.x, 4, 0, 3, 0)),
         [](const Shot& p, bool b) { // rows stand 200 / 11 pixels apart
             const auto tick = [&](int row, int reach) {
                 return p.has(kRed, QRect(48 + row * 200 / 11, 170 + reach, 5, 1));
             };
             return b ? tick(1, 8) && tick(6, 8) && tick(2, 4) && !tick(2, 8) && tick(5, 4) && !tick(3, 4)
                      : tick(3, 8) && tick(7, 8) && !tick(1, 4) && !tick(2, 4);
         }},
        {"CAxis_setTickLength2", axes,
         SET(CAxis_setLinearScale(s.y, 0, 100, 50, 25), CAxis_setColors(s.y, kNone, kNone, -1, kRed),
             CAxis_setTickLength2(s.y, b ? 12 : 5, b ? 7 : -9)),
         SHOWS(p.box(kRed, QRect(0, yOf(50), 300, 1)).left() == (b ? 38 : 45) &&
               (b ? p.is(43, yOf(25), kRed) && !p.is(42, yOf(25), kRed)
                  : p.is(59, yOf(25), kRed) && !p.is(48, yOf(25), kRed)))},
        {"CAxis_setTickDensity", axes,
         SET(CAxis_setLinearScale(s.y, 0, 100, 0, 0), CAxis_setColors(s.y, kNone, -1, -1, kRed),
             CAxis_setTickLength2(s.y, 4, 9), CAxis_setTickDensity(s.y, b ? 70 : 25, b ? 12 : 0)),
         SHOWS((blocks(p, QRect(0, 10, 40, 170), true) < 4) == b && p.has(kRed, QRect(42, 0, 1, 200)) == b)},
        {"CAxis_setAutoScale", bars, SET(CAxis_setAutoScale(s.y, b ? 0.9 : 0, b ? 0 : 0.5, b ? 1 : 0)),
         SHOWS(b ? p.box(kGreen).top() > 80 : p.box(kGreen).top() < 45)},
        {"CAxis_setLinearScale", bars,
         SET(CAxis_setColors(s.y, kNone, kNone, -1, kRed), CAxis_setTickLength2(s.y, 8, 3),
             b ? CAxis_setLinearScale(s.y, -100, 200, 100, 50) : CAxis_setLinearScale(s.y, 0, 80, 40, 10)),
         [](const Shot& p, bool b) {
             const auto tick = [&](int y, int reach) {
                 return p.is(50 - reach, y, kRed) || p.is(50 - reach, y + 1, kRed);
             };
             return b ? p.box(kGreen).top() == 80 && tick(70, 8) && tick(120, 8) && tick(95, 3) && !tick(95, 8)
                      : p.box(kGreen).top() == 21 && tick(95, 8) && tick(38, 3) && !tick(38, 8);
         }},
        {"CAxis_setLinearScale3", bars,
         SET(CAxis_setLabelStyle(s.y, "normal", 7, kRed, 0), CAxis_setLinearScale3(s.y, b ? "{value|4}" : "{value|0}")),
         SHOWS((p.ink(kLeft).left() < 18) == b && p.box(kGreen).top() < 80)},
        {"CAxis_setLogScale3", bars,
         SET(CAxis_setLabelStyle(s.y, "normal", 7, kRed, 0),
             CAxis_setLogScale3(s.y,
                                b ? "{value|4}" : "{value|0}")), // 20 to 80 are 0.6 decades: from 40 to 80 half as far
         SHOWS((p.ink(kLeft).left() < 18) == b)},
        {"CAxis_setDateScale", axes,
         [](Scene& s, bool b) {
             CAxis_setColors(s.x, kNone, kNone, -1, kRed);
             CAxis_setTickLength2(s.x, 9, 4);
             const double day = 86400, start = CChart_chartTime(2024, 3, 4, 0, 0, 0);
             b ? CAxis_setDateScale(s.x, start, start + 4 * day, 2 * day, day)
               : CAxis_setDateScale(s.x, start, start + 5 * day, day, 0);
         },
         [](const Shot& p, bool b) {
             const auto tick = [&](int x, int reach) { return p.has(kRed, QRect(x - 1, 170 + reach, 3, 1)); };
             return b ? tick(150, 8) && tick(100, 4) && !tick(100, 8) && !tick(90, 4)
                      : tick(90, 8) && tick(130, 8) && !tick(150, 4);
         }},
        {"CAxis_setTitle", axes,
         SET(CAxis_setColors(s.x, kNone, kNone, kBlue, kNone),
             CAxis_setTitle(s.x, b ? "TTTTTTTT" : "TT", b ? "normal" : "bold", b ? 9 : 18, b ? kRed : -1)),
         INK(p.box(b ? kRed : kBlue), ink.top() > 170 && (ink.height() < 13) == b && (ink.width() > 40) == b)},
        {"CAxis_setTitlePos", axes,
         SET(CAxis_setColors(s.x, kNone, kNone, -1, kNone), CAxis_setTitle(s.x, "III", "bold", 8, kRed),
             CAxis_setTitlePos(s.x, b ? CHART_BOTTOM_RIGHT : CHART_BOTTOM_LEFT, b ? 12 : 1)),
         INK(p.ink(QRect(40, 180, 260, 20)),
             b ? ink.left() > 220 && ink.bottom() > 190 : ink.right() < 90 && ink.bottom() < 195)},
        {"CAxis_setLabelStyle", axes,
         SET(CAxis_setLabelStyle(s.y, b ? "bold" : "boldItalic", b ? 10 : 9, b ? kRed : kBlue, b ? 90 : 0)),
         [](const Shot& p, bool b) {
             const QRect ink = p.ink(QRect(0, 0, 45, 40)); // of the "100"
             return p.has(b ? kRed : kBlue) && (ink.width() < ink.height()) == b;
         }},
        {"CAxis_setLabelFormat", axes, SET(CAxis_setLabelFormat(s.y, b ? "{value|3}" : "I")),
         SHOWS((p.ink(kLeft).width() > 28) == b)},
        {"CAxis_setLabels2", bars,
         [](Scene& s, bool b) {
             const double values[] = {1, 2, 3, 4};
             CAxis_setLabels2(s.x, values, b ? 4 : 2, b ? "{value|4}" : "{value}");
         },
         SHOWS((p.ink(kBelow).right() > 230) == b)},
        // January is the fifth of the twelve months; the first is promoted
        {"CAxis_setMultiFormat", months,
         [](Scene& s, bool b) {
             const int years = CChart_encodeFilter(CHART_START_OF_YEAR, 1, 0),
                       all = CChart_encodeFilter(CHART_ALL_PASS, 1, 0);
             CAxis_setLabelStyle(s.x, "bold", 10, -1, 0);
             b ? CAxis_setMultiFormat(s.x, years, "<*color=ff0000*>I", all, "<*color=ff*>I", 1, true)
               : CAxis_setMultiFormat(s.x, all, "<*color=ff*>I", years, "<*color=ff0000*>I", 4, false);
         },
         INK(p.ink(QRect(40, 174, 30, 20)),
             b ? blocks(p, kBelow, false) == 12 && p.has(kRed, QRect(118, 174, 12, 20)) &&
                     p.has(kRed, QRect(44, 174, 12, 20)) && p.has(kBlue, QRect(230, 174, 30, 20)) && !ink.isNull()
               : blocks(p, kBelow, false) == 3 && !p.has(kRed))},
        {"CAxis_setMultiFormat2", months,
         SET(CAxis_setLabelStyle(s.x, "bold", 10, -1, 0),
             CAxis_setMultiFormat2(s.x, CChart_encodeFilter(b ? CHART_START_OF_YEAR : CHART_START_OF_MONTH, 1, 0),
                                   b ? "<*color=ff0000*>I" : "<*color=ff00ff*>I", b ? 1 : 3, b),
             CAxis_setMultiFormat2(s.x, CChart_encodeFilter(CHART_ALL_PASS, 1, 0), "<*color=ff*>I", 1, false)),
         [](const Shot& p, bool b) {
             const QRect first(44, 174, 12, 20), january(117, 174, 12, 20);
             return b ? p.has(kRed, first) && p.has(kRed, january) && p.has(kBlue)
                      : p.has(kPink, first) && !p.has(kRed) && p.has(kPink, QRect(100, 174, 10, 20));
         }},
        {"CAxis_addMark", axes,
         SET(CAxis_addMark(s.y, b ? 30 : 70, b ? kRed : kBlue, b ? "WWWW" : "", b ? "bold" : "normal", b ? 9 : 20)),
         SHOWS(p.is(150, yOf(b ? 30 : 70), b ? kRed : kBlue) && p.has(kRed, QRect(0, yOf(30) - 8, 45, 16)) == b)},
        {"CAxis_addZone", axes, SET(CAxis_addZone(s.y, b ? 20 : 60, b ? 40 : 80, b ? kRed : kBlue)),
         SHOWS(p.fills(b ? kRed : kBlue, b ? QRect(51, yOf(40), 199, 30) : QRect(51, yOf(80), 199, 30), 1))},
        {"CAxis_copyAxis", bars,
         [](Scene& s, bool b) {
             Axis* other = CXYChart_addAxis(s.xy, CHART_RIGHT, 10);
             CAxis_setLinearScale(other, 0, b ? 200 : 80, 40, 0);
             CAxis_copyAxis(s.y, other);
         },
         SHOWS(p.box(kGreen).top() == (b ? 110 : 21))},
        {"CAxis_syncAxis", bars,
         [](Scene& s, bool b) {
             Axis* other = CXYChart_addAxis(s.xy, CHART_RIGHT, 10);
             CAxis_setLinearScale(other, 0, 50, 10, 0);
             CAxis_syncAxis(s.y, other, b ? 2 : 3, b ? 0 : 10); // 0 to 100, or 10 to 160
         },
         SHOWS(std::abs(p.box(kGreen).top() - (b ? 50 : 100)) <= 1)},
        {"CXYChart_xAxis2", axes, SET(CAxis_setColors(CXYChart_xAxis2(s.xy), b ? kRed : kBlue, kNone, kNone, kNone)),
         SHOWS(p.is(150, 20, b ? kRed : kBlue))},
        {"CXYChart_yAxis2", axes, SET(CAxis_setColors(CXYChart_yAxis2(s.xy), b ? kRed : kBlue, kNone, kNone, kNone)),
         SHOWS(p.is(250, 100, b ? kRed : kBlue))},
        {"CXYChart_xAxis", axes, SET(CAxis_setColors(CXYChart_xAxis(s.xy), b ? kRed : kBlue, kNone, kNone, kNone)),
         SHOWS(p.is(150, 170, b ? kRed : kBlue))},
        {"CXYChart_yAxis", axes, SET(CAxis_setColors(CXYChart_yAxis(s.xy), b ? kRed : kBlue, kNone, kNone, kNone)),
         SHOWS(p.is(50, 100, b ? kRed : kBlue))},
        {"CChart_encodeFilter", months,
         SET(CAxis_setMultiFormat2(s.x, CChart_encodeFilter(CHART_REGULAR_SPACING, b ? 6 : 4, 0), "I", 1, false)),
         SHOWS(blocks(p, kBelow, false) == (b ? 2 : 3))},
    };
}
} // namespace surface
