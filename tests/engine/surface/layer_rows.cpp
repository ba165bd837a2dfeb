#include "tests/engine/surface/rows.h"

namespace surface {
namespace {
const double kThree[] = {30, 60, 90};
const double kOther[] = {90, 30, 60};

/// Labels at the tops of the bars of `bars`, from left to right.
QRect above(int row, double value) { return {55 + 50 * row, yOf(value) - 20, 40, 18}; }

void candles(Scene& s, int rise, int fall, int edge) {
    const double high[] = {90, 80}, low[] = {10, 20}, open[] = {30, 70}, close[] = {60, 40};
    s.layer = BaseBoxLayer2Layer(CandleStickLayer2BaseBoxLayer(
        CXYChart_addCandleStickLayer(s.xy, high, 2, low, 2, open, 2, close, 2, rise, fall, edge)));
}

/// Wide enough for pixels of the plain colour.
template <class Line> void thick(Line* line) { CLayer_setLineWidth(reinterpret_cast<Layer*>(line), 3); }

HLOCLayer* prices(Scene& s, int colour) {
    const double high[] = {90, 80, 85}, low[] = {10, 20, 15}, open[] = {30, 70, 40}, close[] = {60, 40, 70};
    return CXYChart_addHLOCLayer(s.xy, high, 3, low, 3, open, 3, close, 3, colour);
}
} // namespace

std::vector<Row> layerRows() {
    return {
        {"CXYChart_addBarLayer", axes,
         SET(CXYChart_addBarLayer(s.xy, b ? kThree : kOther, b ? 3 : 2, b ? kRed : kBlue, "", b ? 0 : 9)),
         SHOWS(p.has(b ? kRed : kBlue) && (b ? p.box(kRed).top() == yOf(90) : !p.is(xOf(2), yOf(20), kBlue)))},
        {"CXYChart_addBarLayer2", axes,
         [](Scene& s, bool b) {
             Layer* layer =
                 BarLayer2Layer(CXYChart_addBarLayer2(s.xy, b ? CHART_COMBINE_STACK : CHART_COMBINE_PERCENTAGE, 0));
             const double low[] = {20, 20}, high[] = {30, 60};
             CLayer_addDataSet(layer, low, 2, kRed, nullptr);
             CLayer_addDataSet(layer, high, 2, kBlue, nullptr);
         },
         SHOWS(b ? p.box(kBlue).top() == yOf(80) && p.box(kRed).top() == yOf(20) : p.box(kBlue).top() == yOf(100) + 1)},
        {"CXYChart_addLineLayer", axes,
         SET(thick(CXYChart_addLineLayer(s.xy, b ? kThree : kOther, b ? 3 : 2, b ? kRed : kBlue, nullptr, b ? 0 : 20))),
         SHOWS(p.has(b ? kRed : kBlue, QRect(xOf(1) - 3, yOf(b ? 60 : 30) - 3, 7, 7)) &&
               (p.box(b ? kRed : kBlue).right() > 140) == b)},
        {"CXYChart_addSplineLayer", axes,
         SET(thick(CXYChart_addSplineLayer(s.xy, b ? kThree : kOther, b ? 3 : 2, b ? kRed : kBlue, nullptr))),
         SHOWS(p.has(b ? kRed : kBlue, QRect(xOf(1) - 3, yOf(b ? 60 : 30) - 3, 7, 7)) &&
               (p.ink(QRect(110, 25, 130, 140)).right() > 140) == b)},
        {"CXYChart_addStepLineLayer", axes,
         SET(CXYChart_addStepLineLayer(s.xy, b ? kThree : kOther, b ? 3 : 2, b ? kRed : kBlue, nullptr)),
         SHOWS(p.is(xOf(0.5), yOf(b ? 30 : 90), b ? kRed : kBlue) && p.is(xOf(1.5), yOf(60), kRed) == b)},
        {"CXYChart_addAreaLayer2", axes,
         [](Scene& s, bool b) {
             Layer* layer =
                 AreaLayer2Layer(CXYChart_addAreaLayer2(s.xy, b ? CHART_COMBINE_STACK : CHART_COMBINE_PERCENTAGE, 0));
             const double low[] = {20, 20, 20}, high[] = {60, 60, 60};
             CLayer_addDataSet(layer, low, 3, kRed, nullptr);
             CLayer_addDataSet(layer, high, 3, kBlue, nullptr);
         },
         SHOWS(std::abs(p.box(kBlue).top() - yOf(b ? 80 : 100)) <= 1 &&
               std::abs(p.box(kRed).top() - yOf(b ? 20 : 25)) <= 1)},
        {"CXYChart_addScatterLayer", axes,
         [](Scene& s, bool b) {
             const double xs[] = {1, 3}, ys[] = {20, 70};
             CXYChart_addScatterLayer(s.xy, b ? xs : xs + 1, b ? 2 : 1, b ? ys : ys + 1, b ? 2 : 1, nullptr,
                                      b ? CHART_SQUARE_SYMBOL : CHART_CROSS_SYMBOL, b ? 15 : 25, b ? kRed : kBlue,
                                      b ? kBlue : kRed);
         },
         SHOWS(p.is(xOf(3), yOf(70), b ? kRed : kBlue) && p.is(xOf(1), yOf(20), kRed) == b &&
               p.is(xOf(3) + 5, yOf(70) + 5, kRed) == b && p.inked(xOf(3) + 10, yOf(70)) != b)},
        {"CXYChart_addBoxWhiskerLayer", axes,
         [](Scene& s, bool b) {
             const double high[] = {60}, low[] = {30}, most[] = {90}, least[] = {10}, middle[] = {40}, other[] = {50};
             CXYChart_addBoxWhiskerLayer(s.xy, high, 1, low, 1, b ? most : middle, b ? 1 : 0, least, 1,
                                         b ? middle : other, 1, b ? kRed : kPink, b ? kGreen : kBlue,
                                         b ? kBlue : kGreen);
         },
         SHOWS(std::abs(p.box(b ? kRed : kPink).top() - yOf(60)) <= 2 &&
               std::abs(p.box(b ? kRed : kPink).bottom() - yOf(30)) <= 2 &&
               std::abs(p.box(b ? kGreen : kBlue).bottom() - yOf(10)) <= 2 &&
               (std::abs(p.box(kGreen).top() - yOf(90)) <= 2) == b &&
               std::abs(p.box(b ? kBlue : kGreen).top() - yOf(60)) <= 2)},
        {"CXYChart_addBoxLayer", axes,
         [](Scene& s, bool b) {
             const double high[] = {60, 90}, low[] = {30, 50};
             CXYChart_addBoxLayer(s.xy, high, b ? 2 : 1, low, 2, b ? kRed : kBlue, b ? "WW" : "");
             CBaseChart_addLegend(s.chart, 0, 180, false, nullptr, 8);
         },
         INK(p.box(b ? kRed : kBlue, QRect(0, 0, 300, 175)), std::abs(ink.top() - yOf(b ? 90 : 60)) <= 2 &&
                                                                 std::abs(ink.bottom() - yOf(30)) <= 2 &&
                                                                 p.has(b ? kRed : kBlue, QRect(0, 180, 30, 20)) == b)},
        {"CXYChart_addHLOCLayer", axes, SET(prices(s, b ? kRed : kBlue)),
         [](const Shot& p,
            bool b) { // high to low; the close of the last is to the right of it, the open to the left
             const int colour = b ? kRed : kBlue;
             const QRect part(xOf(2) - 2, 0, 5, 170);
             return std::abs(p.box(colour, part).top() - yOf(85)) <= 1 &&
                    std::abs(p.box(colour, part).bottom() - yOf(15)) <= 1 &&
                    p.has(colour, QRect(xOf(2) + 4, yOf(70) - 1, 6, 3)) &&
                    p.has(colour, QRect(xOf(2) - 10, yOf(40) - 1, 6, 3)) &&
                    !p.has(colour, QRect(xOf(2) + 4, yOf(40) - 1, 6, 3));
         }},
        {"CXYChart_addCandleStickLayer", axes,
         SET(candles(s, b ? kRed : kBlue, b ? kBlue : kGreen,
                     b ? kGreen : kRed)), // the first rises from 30 to 60, the second falls from 70 to 40
         SHOWS(p.is(xOf(0) + 4, yOf(45), b ? kRed : kBlue) && p.is(xOf(1), yOf(55), b ? kBlue : kGreen) &&
               p.is(xOf(1), yOf(75), b ? kGreen : kRed))},
        {"CXYChart_addInterLineLayer", axes,
         [](Scene& s, bool b) {
             LineLayer* line = CXYChart_addLineLayer(s.xy, kThree, 3, kNone, nullptr, 0);
             Line* first = CLineLayer_getLine(line, 0);
             Line* second = CMark_getLine(CAxis_addMark(s.y, 60, kNone, "", nullptr, 8));
             CXYChart_addInterLineLayer(s.xy, b ? first : second, b ? second : first, b ? kRed : kGreen,
                                        b ? kBlue : kPink);
         },
         SHOWS(p.is(xOf(0.2), yOf(50), b ? kBlue : kGreen) && p.is(xOf(1.8), yOf(70), b ? kRed : kPink))},
        {"CLineLayer_getLine", axes,
         [](Scene& s, bool b) {
             Layer* layer = LineLayer2Layer(CXYChart_addLineLayer(s.xy, kThree, 3, kNone, nullptr, 0));
             CLayer_addDataSet(layer, kOther, 3, kNone, nullptr);
             const double level[] = {10, 10, 10};
             LineLayer* lower = CXYChart_addLineLayer(s.xy, level, 3, kNone, nullptr, 0);
             // The layer is a line layer with two lines.
             CXYChart_addInterLineLayer(s.xy, CLineLayer_getLine(reinterpret_cast<LineLayer*>(layer), b ? 0 : 1),
                                        CLineLayer_getLine(lower, 0), kRed, kRed);
         },
         SHOWS(p.is(xOf(0.1), yOf(60), kRed) != b && p.is(xOf(1.9), yOf(75), kRed) == b)},
        {"CMark_getLine", line,
         [](Scene& s, bool b) {
             Mark* mark = CAxis_addMark(s.y, b ? 0 : 90, kNone, "", nullptr, 8);
             CXYChart_addInterLineLayer(s.xy, CLineLayer_getLine(s.line, 0), CMark_getLine(mark), kRed, kRed);
         },
         SHOWS(p.is(xOf(2), yOf(30), kRed) == b && p.is(xOf(2), yOf(75), kRed) != b)},
        {"CLayer_addDataSet", bars,
         SET(CLayer_addDataSet(s.layer, b ? kThree : kOther, b ? 3 : 1, b ? kRed : kBlue, b ? "red" : ""),
             CBaseChart_addLegend(s.chart, 60, 0, false, nullptr, 8)),
         [](const Shot& p, bool b) {
             const int colour = b ? kRed : kBlue;
             return p.box(colour, QRect(0, 20, 300, 160)).top() == yOf(90) &&
                    (p.box(colour, QRect(0, 22, 300, 160)).right() > 180) == b &&
                    p.has(colour, QRect(0, 0, 300, 18)) == b;
         }},
        {"CLayer_getDataSet", pairs,
         SET(CDataSet_setDataColor(CLayer_getDataSet(s.layer, b ? 1 : 0), kPink, -1, -1, -1)),
         SHOWS(p.has(kPink) && p.has(b ? kGreen : kRed) && !p.has(b ? kRed : kGreen))},
        {"CLayer_set3D", bars, // in front of the bars, which its depth and gap move backwards
         SET(CLayer_set3D(LineLayer2Layer(CXYChart_addLineLayer(s.xy, kOther, 3, kRed, nullptr, 0)), b ? 20 : 6,
                          b ? 0 : 30)),
         [](const Shot& p, bool b) {
             const QColor side = p.at(100 + 14, yOf(60) - 14); // a ribbon of its depth
             return std::abs(p.box(kGreen).top() - (yOf(80) - (b ? 20 : 36))) <= 1 &&
                    (side.red() > side.green() + 60) == b;
         }},
        {"CLayer_setLineWidth", line, SET(CLayer_setLineWidth(s.layer, b ? 9 : 3)),
         SHOWS((p.box(kGreen, QRect(xOf(1), 0, 1, 170)).height() > 7) == b)},
        {"CLayer_setBorderColor", bars, SET(CLayer_setBorderColor(s.layer, b ? kRed : kBlue, b ? 0 : 1)),
         SHOWS(p.is(225, yOf(80), b ? kRed : kBlue))},
        {"CLayer_setBorderColor", bars,
         SET(CLayer_setBorderColor(s.layer, kNone, b ? CChart_softLighting(CHART_LEFT, 0) : 0)),
         SHOWS(p.is(225, yOf(40), kGreen) != b)},
        {"CLayer_setXData", line,
         [](Scene& s, bool b) {
             const double xs[] = {1, 2, 3, 0};
             CLayer_setXData(s.layer, b ? xs : xs + 2, b ? 3 : 2);
         },
         SHOWS(p.box(kGreen).left() >= xOf(1) - 1 ? b : !b && p.box(kGreen).right() <= xOf(3) + 1)},
        {"CLayer_setUseYAxis", bars,
         [](Scene& s, bool b) {
             Axis* axis = CXYChart_addAxis(s.xy, CHART_RIGHT, 10);
             CAxis_setLinearScale(axis, 0, 160, 40, 0);
             CLayer_setUseYAxis(s.layer, b ? axis : s.y);
         },
         SHOWS(p.box(kGreen).top() == (b ? 95 : 50))},
        {"CLayer_setUseYAxis2", bars,
         SET(CAxis_setLinearScale(CXYChart_yAxis2(s.xy), 0, 160, 40, 0), CLayer_setUseYAxis2(s.layer, b)),
         SHOWS(p.box(kGreen).top() == (b ? 95 : 50))},
        {"CLayer_setDataLabelStyle", bars,
         SET(CLayer_setDataLabelStyle(s.layer, b ? "bold" : "boldItalic", b ? 12 : 9, b ? kRed : kBlue, b ? 0 : 90)),
         INK(p.ink(above(1, 60)), p.has(b ? kRed : kBlue, above(0, 20)) && (ink.width() > ink.height()) == b)},
        {"CLayer_setDataLabelFormat", bars,
         SET(CLayer_setDataLabelStyle(s.layer, "normal", 8, kRed, 0),
             CLayer_setDataLabelFormat(s.layer, b ? "{value|3}" : "I")),
         SHOWS((p.ink(above(1, 60)).width() > 20) == b)},
        {"CLayer_setAggregateLabelStyle", bars,
         SET(CLayer_setAggregateLabelStyle(s.layer, b ? "bold" : "boldItalic", b ? 12 : 9, b ? kRed : kBlue,
                                           b ? 0 : 90)),
         INK(p.ink(above(1, 60)), p.has(b ? kRed : kBlue, above(0, 20)) && (ink.width() > ink.height()) == b)},
        {"CLayer_setAggregateLabelFormat", bars,
         SET(CLayer_setAggregateLabelStyle(s.layer, "normal", 8, kRed, 0),
             CLayer_setAggregateLabelFormat(s.layer, b ? "{value|3}" : "I")),
         SHOWS((p.ink(above(1, 60)).width() > 20) == b)},
        {"CDataSet_setDataName", bars,
         SET(CBaseChart_addLegend(s.chart, 60, 0, false, nullptr, 8),
             CDataSet_setDataName(CLayer_getDataSet(s.layer, 0), b ? "WWWWWWWW" : "I")),
         SHOWS((p.ink(QRect(60, 0, 240, 18)).width() > 60) == b)},
        {"CDataSet_setDataColor", bars,
         SET(CLayer_set3D(s.layer, 20, 0),
             b ? CDataSet_setDataColor(CLayer_getDataSet(s.layer, 0), kRed, kBlue, kPink, kCyan)
               : CDataSet_setDataColor(CLayer_getDataSet(s.layer, 0), kBlue, kRed, kBrown, kPink)),
         SHOWS(p.box(b ? kRed : kBlue).width() > 150 && p.has(b ? kBlue : kRed) && p.has(b ? kCyan : kPink))},
        {"CDataSet_setDataSymbol", line,
         SET(b ? CDataSet_setDataSymbol(CLayer_getDataSet(s.layer, 0), CHART_SQUARE_SYMBOL, 25, kRed, kBlue, 5)
               : CDataSet_setDataSymbol(CLayer_getDataSet(s.layer, 0), CHART_CROSS_SYMBOL, 35, kBlue, kPink, 1)),
         INK(p.ink(QRect(xOf(2) - 25, yOf(60) - 12, 51, 3)),
             p.is(xOf(2), yOf(60), b ? kRed : kBlue) && p.is(xOf(2), yOf(60) + 10, kBlue) &&
                 p.is(xOf(2) + 7, yOf(60) + 7, kRed) == b && (ink.width() > 20) == b)},
        {"CBarLayer_setBarShape", pairs,
         SET(CBarLayer_setBarShape(s.bars, b ? CHART_TRIANGLE_SHAPE : CHART_INVERTED_TRIANGLE_SHAPE, b ? 0 : 1,
                                   b ? 1 : 0)),
         [](const Shot& p, bool b) { // the green bar of the second row, or the red one of the first
             const QRect green = p.box(kGreen, QRect(150, yOf(58), 100, 1)),
                         red = p.box(kRed, QRect(50, yOf(2), 100, 1));
             return (green.width() < 10) == b && (red.width() < 10) != b;
         }},
        {"CBarLayer_setOverlapRatio", pairs, SET(CBarLayer_setOverlapRatio(s.bars, b ? 0.8 : 0.4, b)),
         [](const Shot& p, bool b) { // of 80 pixels the one in front has 80 / 1.2 or 80 / 1.6
             const QRect green = p.box(kGreen, QRect(150, yOf(10), 100, 1)),
                         red = p.box(kRed, QRect(150, yOf(10), 100, 1));
             return std::abs((b ? green : red).width() - (b ? 67 : 50)) <= 2 &&
                    std::abs((b ? red : green).width() - (b ? 13 : 30)) <= 2;
         }},
        {"CBarLayer_setBarGap", pairs, SET(CBarLayer_setBarGap(s.bars, b ? 0.6 : 0.2, b ? 0 : 0.5)),
         [](const Shot& p, bool b) {
             const QRect green = p.box(kGreen, QRect(50, yOf(10), 100, 1)),
                         red = p.box(kRed, QRect(50, yOf(10), 100, 1));
             return std::abs(red.left() - green.right() - (b ? 1 : 27)) <= 2 &&
                    std::abs(red.right() - green.left() - (b ? 40 : 80)) <= 2;
         }},
        {"CLineLayer_setSymbolScale", line,
         [](Scene& s, bool b) {
             CDataSet_setDataSymbol(CLayer_getDataSet(s.layer, 0), CHART_SQUARE_SYMBOL, 5, kRed, kRed, 1);
             const double small[] = {9, 11, 9}, large[] = {9, 31, 9};
             CLineLayer_setSymbolScale(s.line, b ? large : small, 3, CHART_SCALE_PIXELS, b ? small : large, 3,
                                       CHART_SCALE_PIXELS);
         },
         SHOWS(p.box(kRed, QRect(110, 0, 80, 170)).size() == (b ? QSize(31, 11) : QSize(11, 31)))},
        {"CBaseBoxLayer_setDataGap", boxes,
         SET(CBaseBoxLayer_setDataGap(reinterpret_cast<BaseBoxLayer*>(s.layer), b ? 0.2 : 0.8)),
         SHOWS(std::abs(p.box(kGreen, QRect(50, 0, 100, 200)).width() - (b ? 80 : 20)) <= 3)},
        {"CBaseBoxLayer_setDataWidth", boxes,
         SET(CBaseBoxLayer_setDataWidth(reinterpret_cast<BaseBoxLayer*>(s.layer), b ? 31 : 61)),
         SHOWS(std::abs(p.box(kGreen, QRect(50, 0, 100, 200)).width() - (b ? 31 : 61)) <= 1)},
        {"CBoxWhiskerLayer_setBoxColors", boxes,
         [](Scene& s, bool b) {
             CBaseChart_addLegend(s.chart, 0, 180, false, nullptr, 7);
             const int colours[] = {kRed, kBlue, kPink};
             const char* const names[] = {"one", "two"};
             CBoxWhiskerLayer_setBoxColors(reinterpret_cast<BoxWhiskerLayer*>(s.layer), b ? colours : colours + 1, 2,
                                           names, b ? 2 : 1);
         },
         SHOWS(p.is(100, yOf(40), b ? kRed : kBlue) && p.is(200, yOf(60), b ? kBlue : kPink) &&
               p.has(b ? kBlue : kPink, QRect(0, 180, 300, 20)) == b)},
        {"CHLOCLayer_setColorMethod", axes,
         SET(CHLOCLayer_setColorMethod(prices(s, kPink), CHART_UP_DOWN, b ? kRed : kBlue, b ? kBlue : kGreen,
                                       b ? 50 : 90)),
         [](const Shot& p, bool b) { // closes: 60, 40, 70, after 50 or 90
             const int rise = b ? kRed : kBlue, fall = b ? kBlue : kGreen;
             return p.has(b ? rise : fall, QRect(50, 20, 6, 150)) && p.has(fall, QRect(xOf(1) - 2, 20, 5, 150)) &&
                    p.has(rise, QRect(xOf(2) - 2, 20, 5, 150));
         }},
    };
}
} // namespace surface
