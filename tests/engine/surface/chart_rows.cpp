#include "tests/engine/surface/rows.h"

namespace surface {
std::vector<Row> chartRows() {
    return {
        {"CBaseChart_setSize", blank, SET(CBaseChart_setSize(s.chart, b ? 40 : 70, b ? 90 : 30)),
         SHOWS(p.size() == (b ? QSize(40, 90) : QSize(70, 30)))},
        {"CBaseChart_setBackground", blank,
         SET(CBaseChart_setBackground(s.chart, b ? kRed : kBlue, b ? kBlue : kGreen, 0)),
         SHOWS(p.is(150, 100, b ? kRed : kBlue) && p.is(0, 100, b ? kBlue : kGreen) && p.is(1, 1, b ? kRed : kBlue))},
        {"CBaseChart_setBackground", blank, // the effect
         SET(CBaseChart_setBackground(s.chart, kBlue, kNone, b ? 4 : 0)),
         SHOWS(p.is(1, 100, kBlue) != b && p.is(150, 100, kBlue))},
        {"CBaseChart_setBgImage", blank,
         SET(CBaseChart_setBgImage(s.chart, imageFile(), b ? CHART_BOTTOM_RIGHT : CHART_TOP)),
         SHOWS(p.fills(kBlue, b ? QRect(290, 190, 10, 10) : QRect(150, 0, 10, 10), 0))},
        {"CBaseChart_setRoundedFrame", blank,
         SET(CBaseChart_setBackground(s.chart, kGreen, kNone, 0),
             b ? CBaseChart_setRoundedFrame(s.chart, kRed, 40, 30, 20, 10)
               : CBaseChart_setRoundedFrame(s.chart, kBlue, 0, 0, 20, 40)),
         SHOWS(b ? p.is(10, 10, kRed) && p.is(295, 3, kRed) && p.is(288, 12, kGreen) && p.is(296, 196, kRed) &&
                       p.is(291, 191, kGreen) && p.is(1, 198, kRed) && p.is(5, 194, kGreen)
                 : p.is(0, 0, kGreen) && p.is(299, 0, kGreen) && p.is(296, 196, kBlue) && p.is(10, 189, kBlue))},
        {"CBaseChart_setDefaultFonts", blank,
         [](Scene& s, bool b) {
             const char *wide = "DejaVuSans-Bold.ttf", *narrow = "LiberationSansNarrow-Regular.ttf";
             b ? CBaseChart_setDefaultFonts(s.chart, wide, narrow, wide, narrow)
               : CBaseChart_setDefaultFonts(s.chart, narrow, wide, narrow, wide);
             const char* const styles[] = {"normal", "bold", "italic", "boldItalic"};
             const int colours[] = {kRed, kGreen, kBlue, kPink};
             for (int i = 0; i < 4; ++i)
                 CBaseChart_addText(s.chart, 0, 40 * i, "WWWWWWWW", styles[i], 20, colours[i], CHART_TOP_LEFT, 0,
                                    false);
         },
         [](const Shot& p, bool b) {
             const int red = p.box(kRed).width(), green = p.box(kGreen).width(), blue = p.box(kBlue).width(),
                       pink = p.box(kPink).width();
             return b ? red > green + 20 && blue > pink + 20 : green > red + 20 && pink > blue + 20;
         }},
        {"CBaseChart_setAntiAlias", blank,
         SET(CBaseChart_addLine(s.chart, 10, 10, 200, 90, 0, 3),
             CBaseChart_addText(s.chart, 10, 120, "Hamburg", "normal", 20, 0, CHART_TOP_LEFT, 0, false),
             b ? CBaseChart_setAntiAlias(s.chart, false, 1) : CBaseChart_setAntiAlias(s.chart, true, 0)),
         [](const Shot& p, bool b) {
             const auto smooth = [&](const QRect& part) {
                 for (int y = part.top(); y <= part.bottom(); ++y)
                     for (int x = part.left(); x <= part.right(); ++x)
                         if (!p.is(x, y, 0) && !p.is(x, y, kWhite)) return true;
                 return false;
             };
             return smooth(QRect(0, 0, 300, 110)) != b && smooth(QRect(0, 110, 300, 90)) == b;
         }},
        {"CBaseChart_addTitle", blank,
         SET(CBaseChart_addTitle(s.chart, b ? "TTTTTTTTTT" : "TT", nullptr, b ? 10 : 30, b ? kRed : kBlue,
                                 b ? kCyan : kGreen, b ? kBrown : kPink)),
         [](const Shot& p, bool b) {
             const QRect ink = p.box(b ? kRed : kBlue), box = p.box(b ? kCyan : kGreen);
             return box.width() > 290 && box.top() < 4 && p.has(b ? kBrown : kPink) &&
                    (b ? ink.height() < 14 && ink.width() > 50 : ink.height() > 25);
         }},
        {"CBaseChart_addTitle2", blank,
         SET(CBaseChart_addTitle2(s.chart, b ? CHART_BOTTOM_LEFT : CHART_RIGHT, b ? "TTTTTTTT" : "TT", "normal",
                                  b ? 10 : 30, b ? kRed : kBlue, b ? kCyan : kGreen, b ? kBrown : kPink)),
         [](const Shot& p, bool b) {
             const QRect ink = p.box(b ? kRed : kBlue), box = p.box(b ? kCyan : kGreen);
             return (b ? box.left() < 5 && box.bottom() > 194 && ink.height() < 14
                       : box.right() > 294 && box.top() > 50 && box.bottom() < 150 && ink.height() > 25) &&
                    p.has(b ? kBrown : kPink);
         }},
        {"CBaseChart_addText", blank,
         SET(b ? CBaseChart_addText(s.chart, 60, 40, "TTTT", "bold", 20, kRed, CHART_TOP_LEFT, 0, false)
               : CBaseChart_addText(s.chart, 200, 150, "TTTT", "bold", 10, kBlue, CHART_BOTTOM_RIGHT, 0, true)),
         INK(p.box(b ? kRed : kBlue),
             b ? ink.left() >= 60 && ink.left() < 64 && ink.top() >= 40 && ink.top() < 52 && ink.width() > 50
               : ink.right() < 200 && ink.right() > 190 && ink.bottom() < 150 && ink.bottom() > 130 &&
                     ink.height() > 2 * ink.width())},
        {"CBaseChart_addText", blank, // the angle
         SET(CBaseChart_addText(s.chart, 150, 100, "TTTTTTTT", "bold", 10, kRed, CHART_CENTER, b ? 90 : 0, false)),
         INK(p.box(kRed), b ? ink.height() > 3 * ink.width() : ink.width() > 3 * ink.height())},
        {"CBaseChart_addLine", blank,
         SET(b ? CBaseChart_addLine(s.chart, 20, 50, 120, 50, kRed, 5)
               : CBaseChart_addLine(s.chart, 200, 30, 200, 90, kBlue, 9)),
         SHOWS(b ? p.fills(kRed, QRect(20, 48, 101, 5)) : p.fills(kBlue, QRect(196, 30, 9, 61)))},
        {"CBaseChart_addLegend", pairs,
         SET(CBaseChart_addLegend(s.chart, b ? 60 : 10, b ? 10 : 30, b, "normal", b ? 16 : 8)),
         [](const Shot& p, bool b) {
             const QRect left(0, 0, 300, 70);
             const QRect green = p.box(kGreen, left), red = p.box(kRed, left);
             return b ? green.left() >= 60 && green.left() < 80 && green.left() == red.left() && green.width() > 10
                      : green.left() >= 10 && green.left() < 30 && green.top() == red.top() && green.width() < 14 &&
                            green.top() > 30;
         }},
        {"CBaseChart_patternColor", blank,
         [](Scene& s, bool b) {
             // Two rows of three pixels; the start moves them.
             const int pixels[] = {kRed, kGreen, kBlue, kWhite, kPink, kCyan};
             CBaseChart_setBackground(
                 s.chart, CBaseChart_patternColor(s.chart, pixels, 6, b ? 2 : 1, b ? 1 : 0, b ? 0 : 0), kNone, 0);
         },
         SHOWS(b ? p.is(100, 101, kWhite) && p.is(100, 100, kRed) && p.is(101, 100, kGreen) && p.is(101, 101, kPink)
                 : p.is(102, 100, kRed) && p.is(103, 101, kGreen) && p.is(107, 100, kCyan))},
        {"CBaseChart_patternColor2", blank,
         SET(CBaseChart_setBackground(s.chart, CBaseChart_patternColor2(s.chart, imageFile(), b ? 5 : 0, b ? 3 : 0),
                                      kNone, 0)),
         SHOWS(p.is(b ? 5 : 0, 50, kBrown) && p.is(b ? 4 : 10, 50, kBlue))},
        {"CChart_metalColor", blank,
         SET(CBaseChart_setBackground(s.chart, CChart_metalColor(b ? kRed : kBlue, b ? 0 : 90), kNone,
                                      0)), // bands across the angle
         SHOWS(b ? p.at(50, 20) == p.at(50, 180) && p.at(50, 20).red() > p.at(50, 20).blue() + 50
                 : p.at(20, 50) == p.at(280, 50) && p.at(20, 50).blue() > p.at(20, 50).red() + 50)},
        {"CChart_softLighting", blank,
         SET(CBaseChart_setBackground(s.chart, kGreen, kNone, CChart_softLighting(b ? CHART_LEFT : CHART_TOP, 0))),
         [](const Shot& p, bool b) { // falls off from that side
             const auto alike = [&](int x1, int y1, int x2, int y2) {
                 for (int level = 0; level < 256; ++level)
                     for (const int colour : {level << 8, 0xff00 | level << 16 | level})
                         if (p.is(x1, y1, colour) && p.is(x2, y2, colour)) return true;
                 return false;
             };
             return alike(150, 10, 150, 190) == b && alike(10, 100, 290, 100) != b;
         }},
        {"CChart_glassEffect", blank,
         SET(CBaseChart_setBackground(
             s.chart, kGreen, kNone,
             CChart_glassEffect(b ? CHART_GLARE_REDUCED : CHART_GLARE_NORMAL, b ? CHART_LEFT : CHART_TOP,
                                b ? 0 : 9))), // the glare lies at that side; the raised border is 9 pixels wide
         SHOWS(b ? p.at(30, 100).red() > p.at(200, 100).red() + 20 : p.at(150, 20).red() > p.at(150, 120).red() + 20)},
        {"CBox_setBackground", text,
         SET(CBox_setBackground(TextBox2Box(s.text), b ? kCyan : kGreen, b ? kBlue : kPink, 0)),
         SHOWS(p.has(b ? kCyan : kGreen) && p.is(100, 80, b ? kBlue : kPink))},
        {"CBox_setPos", text, SET(CBox_setPos(TextBox2Box(s.text), b ? 30 : 120, b ? 150 : 20)),
         INK(p.box(kRed), std::abs(ink.left() - (b ? 32 : 122)) <= 2 && std::abs(ink.top() - (b ? 154 : 24)) <= 4)},
        {"CBox_setSize", text,
         SET(CBox_setBackground(TextBox2Box(s.text), kCyan, kNone, 0),
             CBox_setSize(TextBox2Box(s.text), b ? 150 : 120, b ? 40 : 90)),
         SHOWS(p.fills(kCyan, b ? QRect(100, 80, 150, 40) : QRect(100, 80, 120, 90), 0))},
        {"CTextBox_setText", text, SET(CTextBox_setText(s.text, b ? "I" : "WWWW")),
         SHOWS((p.box(kRed).width() < 10) == b)},
        // letters one below the other are upright: H is two posts
        {"CTextBox_setFontAngle", text, SET(CTextBox_setFontAngle(s.text, b ? 0 : 90, b)),
         INK(p.box(kRed), b ? ink.height() > 90 : ink.height() > 40 && ink.height() < 90)},
        {"CTextBox_setFontColor", text, SET(CTextBox_setFontColor(s.text, b ? kBlue : kGreen)),
         SHOWS(p.has(b ? kBlue : kGreen) && !p.has(kRed))},
        {"CTextBox_setFontSize", text, SET(CTextBox_setFontSize(s.text, b ? 10 : 20, b ? 20 : 10)),
         SHOWS((p.box(kRed).height() < 18) == b && p.box(kRed).width() > 5 * (b ? 17 : 8))},
        {"CTextBox_setFontStyle", text,
         SET(CTextBox_setFontStyle(s.text, b ? "DejaVuSans-Bold.ttf" : "LiberationSansNarrow-Regular.ttf", 0)),
         SHOWS((p.ink().width() > 80) == b)},
        {"CTextBox_setAlignment", text,
         SET(CBox_setSize(TextBox2Box(s.text), 180, 100),
             CTextBox_setAlignment(s.text, b ? CHART_BOTTOM_RIGHT : CHART_TOP)),
         INK(p.ink(),
             b ? ink.right() > 270 && ink.bottom() > 170 : ink.left() > 130 && ink.right() < 250 && ink.top() < 90)},
        {"CTextBox_setHeight", text,
         SET(CBox_setBackground(TextBox2Box(s.text), kCyan, kNone, 0), CTextBox_setHeight(s.text, b ? 40 : 70)),
         SHOWS(p.box(kCyan).height() == (b ? 40 : 70) && p.box(kCyan).top() == 80)},
        {"CTextBox_setMargin", text,
         SET(CBox_setBackground(TextBox2Box(s.text), kCyan, kNone, 0), CTextBox_setMargin(s.text, b ? 20 : 5)),
         [](const Shot& p, bool b) {
             const QRect box = p.box(kCyan), ink = p.box(kRed);
             return std::abs(ink.left() - box.left() - (b ? 21 : 6)) <= 1 &&
                    std::abs(box.right() - ink.right() - (b ? 21 : 6)) <= 2;
         }},
        {"CTextBox_setMargin2", text,
         SET(CBox_setBackground(TextBox2Box(s.text), kCyan, kNone, 0),
             b ? CTextBox_setMargin2(s.text, 30, 10, 20, 0) : CTextBox_setMargin2(s.text, 0, 20, 10, 30)),
         [](const Shot& p, bool b) {
             const QRect box = p.box(kCyan), ink = p.box(kRed);
             const int left = ink.left() - box.left(), right = box.right() - ink.right(), top = ink.top() - box.top(),
                       bottom = box.bottom() - ink.bottom();
             return b ? left > 28 && right > 8 && right < 15 && top > 20 && bottom < 12
                      : left < 4 && right > 18 && top > 10 && top < 20 && bottom > 28;
         }},
        {"CLegendBox_addKey", blank,
         [](Scene& s, bool b) {
             LegendBox* legend = CBaseChart_addLegend(s.chart, 50, 50, true, "normal", 12);
             CTextBox_setFontColor(LegendBox2TextBox(legend), kCyan);
             CLegendBox_addKey(legend, b ? "WWWWWWWW" : "W", b ? kRed : kBlue, b ? 3 : 0, nullptr);
         },
         SHOWS(p.has(b ? kRed : kBlue) && (p.ink().width() > 80) == b && (p.box(b ? kRed : kBlue).height() <= 4) == b)},
        {"CLegendBox_addKey", blank, // the symbol
         [](Scene& s, bool b) {
             XYChart* other = CXYChart_create(1, 1, 0, 0, 0);
             DrawArea* area = CBaseChart_getDrawArea(XYChart2BaseChart(other));
             CDrawArea_load(area, imageFile());
             CLegendBox_addKey(CBaseChart_addLegend(s.chart, 50, 50, true, "normal", 12), "key", kRed, 0,
                               b ? area : nullptr);
             CBaseChart_destroy(XYChart2BaseChart(other));
         },
         SHOWS(p.has(kBrown) == b && p.has(kRed) != b)},
        {"CDrawArea_load", blank, SET(CDrawArea_load(CBaseChart_getDrawArea(s.chart), b ? imageFile() : "none.png")),
         SHOWS(p.size() == (b ? QSize(20, 10) : QSize(300, 200)) && p.has(kBrown) == b)},
        {"CXYChart_setPlotArea", blank,
         SET(b ? CXYChart_setPlotArea(s.xy, 50, 20, 200, 150, kCyan, kCyan, kRed, kGreen, kBlue)
               : CXYChart_setPlotArea(s.xy, 80, 40, 100, 120, kPink, kBrown, kBlue, kNone, kRed),
             CAxis_setLinearScale(CXYChart_yAxis(s.xy), 0, 100, 20, 0),
             CAxis_setLinearScale(CXYChart_xAxis(s.xy), 0, 4, 1, 0), CAxis_setWidth(CXYChart_yAxis(s.xy), 0),
             CAxis_setWidth(CXYChart_xAxis(s.xy), 0)),
         SHOWS(b ? p.is(250, 100, kRed) && p.is(120, 80, kGreen) && p.is(100, 90, kBlue) && p.is(75, 100, kCyan)
                 : p.is(180, 100, kBlue) && p.is(105, 100, kRed) && p.has(kPink) && p.has(kBrown) && !p.has(kGreen))},
        {"CPlotArea_setBackground", axes,
         SET(CPlotArea_setBackground(s.plot, b ? kRed : kBlue, b ? kBlue : kGreen, b ? kPink : kCyan)),
         SHOWS(p.is(150, yOf(10), b ? kRed : kBlue) != p.is(150, yOf(30), b ? kRed : kBlue) &&
               p.has(b ? kBlue : kGreen) && p.is(250, yOf(50), b ? kPink : kCyan))},
        {"CPlotArea_setBackground2", axes,
         SET(CPlotArea_setBackground2(s.plot, imageFile(), b ? CHART_TOP_LEFT : CHART_CENTER)),
         SHOWS(p.fills(kBlue, b ? QRect(60, 20, 10, 10) : QRect(150, 90, 10, 10), 1))},
        {"CPlotArea_set4QBgColor", axes,
         SET(CAxis_setLinearScale(s.x, -2, 2, 1, 0), CAxis_setLinearScale(s.y, -50, 50, 25, 0),
             b ? CPlotArea_set4QBgColor(s.plot, kRed, kGreen, kBlue, kPink, kCyan)
               : CPlotArea_set4QBgColor(s.plot, kPink, kBlue, kGreen, kRed, kBrown)),
         SHOWS(p.is(200, 60, b ? kRed : kPink) && p.is(100, 60, b ? kGreen : kBlue) &&
               p.is(100, 130, b ? kBlue : kGreen) && p.is(200, 130, b ? kPink : kRed) &&
               p.is(250, 100, b ? kCyan : kBrown))},
        {"CPlotArea_setGridColor", axes,
         SET(CAxis_setLinearScale(s.x, 0, 4, 2, 1), CAxis_setLinearScale(s.y, 0, 100, 50, 25),
             b ? CPlotArea_setGridColor(s.plot, kRed, kGreen, kBlue, kPink)
               : CPlotArea_setGridColor(s.plot, kPink, kBlue, kGreen, kRed)),
         SHOWS(p.is(80, yOf(50), b ? kRed : kPink) && p.is(xOf(2), 80, b ? kGreen : kBlue) &&
               p.is(80, yOf(25), b ? kBlue : kGreen) && p.is(xOf(1), 80, b ? kPink : kRed))},
        {"CPlotArea_setGridWidth", axes,
         SET(CAxis_setLinearScale(s.x, 0, 4, 2, 1), CAxis_setLinearScale(s.y, 0, 100, 50, 25),
             CPlotArea_setGridColor(s.plot, kRed, kGreen, kBlue, kPink),
             b ? CPlotArea_setGridWidth(s.plot, 9, 7, 5, 3) : CPlotArea_setGridWidth(s.plot, 1, 3, 7, 9)),
         SHOWS(p.box(kRed, QRect(80, 80, 1, 40)).height() == (b ? 9 : 1) &&
               p.box(kGreen, QRect(130, 80, 50, 1)).width() == (b ? 7 : 3) &&
               p.box(kBlue, QRect(80, 110, 1, 50)).height() == (b ? 5 : 7) &&
               p.box(kPink, QRect(85, 80, 40, 1)).width() == (b ? 3 : 9))},
        {"CXYChart_swapXY", bars, SET(CXYChart_swapXY(s.xy, b)),
         SHOWS(p.box(kGreen).height() > 130 ? b : !b && p.box(kGreen).width() > 180)},
        {"CXYChart_setTrimData", bars, SET(CXYChart_setTrimData(s.xy, b ? 1 : 0, b ? 2 : 1)),
         SHOWS(p.box(kGreen).top() == yOf(b ? 60 : 20) && p.box(kGreen).width() > 100)},
        {"CXYChart_setAxisAtOrigin", axes,
         SET(CAxis_setLinearScale(s.x, -2, 2, 1, 0), CAxis_setLinearScale(s.y, -50, 50, 25, 0),
             CAxis_setColors(s.x, kRed, kNone, kNone, kNone), CAxis_setColors(s.y, kBlue, kNone, kNone, kNone),
             CXYChart_setAxisAtOrigin(s.xy, b ? 1 : 2, 0)),
         SHOWS(p.is(80, b ? 95 : 170, kRed) && p.is(b ? 50 : 150, 50, kBlue))},
        {"CXYChart_setAxisAtOrigin", line, // the flags
         SET(CAxis_setLinearScale(s.x, 0, 0, 0, 0), CAxis_setLinearScale(s.y, 0, 0, 0, 0),
             CXYChart_setAxisAtOrigin(s.xy, 0, b ? 1 : 4)),
         INK(p.ink(QRect(52, 22, 196, 146)),
             b ? ink.left() >= 148 && ink.bottom() > 105 : ink.bottom() < 97 && ink.left() < 60)},
        {"CXYChart_setYAxisOnRight", axes,
         SET(CAxis_setColors(s.y, kBlue, kNone, kNone, kNone), CXYChart_setYAxisOnRight(s.xy, b)),
         SHOWS(p.is(b ? 250 : 50, 100, kBlue) && !p.is(b ? 50 : 250, 100, kBlue))},
        {"CXYChart_addAxis", axes,
         [](Scene& s, bool b) {
             Axis* axis = CXYChart_addAxis(s.xy, b ? CHART_RIGHT : CHART_TOP, b ? 20 : 10);
             CAxis_setLinearScale(axis, 0, 1, 1, 0);
             CAxis_setColors(axis, kRed, kNone, kNone, kNone);
         },
         SHOWS(b ? p.is(270, 100, kRed) : p.is(150, 10, kRed))},
    };
}
} // namespace surface
