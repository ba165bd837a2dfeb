#include "tests/engine/surface/rows.h"
#include <cmath>
#include <numbers>

namespace surface {
namespace {
/// The pixel at degrees clockwise from the top and a distance from a centre.
QPoint around(QPoint centre, double degrees, double distance) {
    const double angle = degrees * std::numbers::pi / 180;
    return centre + QPoint(static_cast<int>(std::lround(std::sin(angle) * distance)),
                           static_cast<int>(std::lround(-std::cos(angle) * distance)));
}

const QPoint kPie(150, 100), kRound(150, 150);

bool pieIs(const Shot& p, double degrees, double distance, int colour) {
    const QPoint at = around(kPie, degrees, distance);
    return p.is(at.x(), at.y(), colour);
}

bool roundIs(const Shot& p, double degrees, double distance, int colour) {
    const QPoint at = around(kRound, degrees, distance);
    return p.is(at.x(), at.y(), colour);
}

/// Whether a colour stands within a few pixels of a place of the polar plot: angle, and radius of 0 to 100.
bool polarHas(const Shot& p, double degrees, double value, int colour) {
    const QPoint at = around(kPie, degrees, value * 0.8);
    return p.has(colour, QRect(at - QPoint(2, 2), QSize(5, 5)));
}

const double kRadii[] = {80, 40, 60, 20};

template <class Add> void addPolar(Scene& s, bool b, Add add) {
    CPolarLayer_setLineWidth(s.polarLayer, 0);
    auto* layer = add(s.polar, b ? kRadii : kRadii + 1, b ? 4 : 3, b ? kRed : kBlue, nullptr);
    CPolarLayer_setLineWidth(reinterpret_cast<PolarLayer*>(layer), 3);
}
} // namespace

std::vector<Row> roundRows() {
    return {
        {"CPieChart_setPieSize", pie, SET(CPieChart_setPieSize(s.pie, b ? 100 : 200, b ? 90 : 120, b ? 40 : 70)),
         SHOWS(p.fills(kRed, b ? QRect(100, 50, 41, 81) : QRect(200, 50, 71, 141)))},
        {"CPieChart_setDonutSize", pie,
         SET(CPieChart_setDonutSize(s.pie, b ? 100 : 200, b ? 90 : 120, b ? 40 : 70, b ? 30 : 20)),
         SHOWS(b ? p.is(135, 90, kRed) && !p.is(125, 90, kRed) && p.fills(kRed, QRect(100, 50, 41, 81))
                 : p.is(225, 120, kRed) && !p.is(215, 120, kRed))},
        {"CPieChart_setData", pie,
         [](Scene& s, bool b) {
             const double values[] = {1, 3, 4};
             const char* const labels[] = {"WWWWWW", "I"};
             CPieChart_setLabelFormat(s.pie, "{label}");
             CPieChart_setData(s.pie, values, b ? 2 : 3, b ? labels : labels + 1, 1);
         },
         SHOWS(pieIs(p, 70, 40, b ? kRed : kGreen) && p.has(kBlue) != b &&
               (p.ink(QRect(160, 0, 140, 60)).width() > 45) == b)},
        {"CPieChart_setLabelFormat", pie, SET(CPieChart_setLabelFormat(s.pie, b ? "{percent|4}{percent|4}" : "I")),
         SHOWS((p.ink().width() > 200) == b)},
        {"CPieChart_setLabelStyle", pie,
         SET(CPieChart_setLabelStyle(s.pie, b ? "bold" : "normal", b ? 16 : 8, b ? kPink : kCyan)),
         SHOWS(p.has(b ? kPink : kCyan) && (p.ink().width() > 210) == b)},
        {"CPieChart_setLabelLayout", pie,
         SET(CPieChart_setLabelFormat(s.pie, "I"), CPieChart_setLabelStyle(s.pie, "bold", 12, kPink),
             CPieChart_setLabelLayout(s.pie, b ? CHART_SIDE_LAYOUT : CHART_CIRCLE_LAYOUT, b ? 10 : 40, b ? 10 : -1,
                                      b ? 80 : -1)),
         INK(p.box(kPink), b ? ink.bottom() < 85 && ink.top() > 9 : ink.right() > 240 && ink.bottom() > 120)},
        {"CPieChart_setLineColor", pie,
         [](Scene& s, bool b) {
             for (int i = 0; i < 3; ++i) CSector_setColor(CPieChart_sector(s.pie, i), kWhite, -1, -1);
             PieChart* fresh = s.pie;
             CPieChart_setLabelLayout(fresh, CHART_SIDE_LAYOUT, 30, -1, -1);
             CPieChart_setLineColor(fresh, b ? kPink : kCyan, b ? kCyan : kBrown);
         },
         SHOWS(p.has(b ? kCyan : kBrown, QRect(205, 0, 95, 200)) &&
               !p.has(b ? kBrown : kCyan, QRect(212, 0, 88, 200)))},
        {"CPieChart_setStartAngle", pie, SET(CPieChart_setStartAngle(s.pie, b ? 90 : 0, b)),
         SHOWS(pieIs(p, 180, 40, kRed) == b && pieIs(p, 315, 40, b ? kGreen : kRed) && pieIs(p, 45, 40, kBlue))},
        {"CPieChart_set3D", pie, SET(CPieChart_set3D(s.pie, b ? 10 : 30, b ? 60 : 0, !b)),
         [](const Shot& p, bool b) {
             const int height = p.box(kRed).height();
             return b ? height < 80 && height > 30 : height > 110 && p.inked(220, 100);
         }},
        {"CPieChart_set3D", pie, SET(CPieChart_set3D(s.pie, b ? 10 : 40, 45, false)),
         SHOWS((p.ink(QRect(140, 0, 20, 200)).height() < 110) == b)},
        {"CPieChart_sector", pie, SET(CSector_setColor(CPieChart_sector(s.pie, b ? 1 : 2), kPink, -1, -1)),
         SHOWS(pieIs(p, b ? 225 : 315, 40, kPink))},
        {"CSector_setColor", pie,
         SET(CPieChart_setLabelLayout(s.pie, CHART_SIDE_LAYOUT, 30, -1, -1), CPieChart_setLineColor(s.pie, -1, kNone),
             CPieChart_setLabelFormat(s.pie, "I"),
             CSector_setColor(CPieChart_sector(s.pie, 0), b ? kPink : kCyan, b ? kCyan : kBrown, b ? kBrown : kPink)),
         [](const Shot& p, bool b) {
             const QRect rim(148, 50, 6, 45); // beside blue
             return pieIs(p, 90, 40, b ? kPink : kCyan) && p.has(b ? kBrown : kPink, QRect(213, 0, 87, 200)) &&
                    p.any(
                        rim, [b](QColor c) { return (b ? c.green() : c.red()) > 50 && (b || c.green() < 200); });
         }},
        {"CSector_setExplode", pie, SET(CSector_setExplode(CPieChart_sector(s.pie, 0), b ? 25 : 5)),
         SHOWS(std::abs(p.box(kRed).left() - (b ? 175 : 155)) <= 2)},
        {"CBaseMeter_setScale", roundMeter,
         SET(CBaseMeter_setScale(s.meter, b ? 0 : -50, b ? 100 : 150, 50, 0, 0),
             CAngularMeter_addZone2(s.round, 0, 50, kRed, kRed)),
         SHOWS(roundIs(p, -20, 60, kRed) && roundIs(p, -75, 60, kRed) == b && !roundIs(p, 10, 60, kRed))},
        {"CBaseMeter_setScale", straightMeter, // lengths of ticks: major, minor, micro
         SET(CBaseMeter_setScale(s.meter, 0, 100, 50, b ? 25 : 10, b ? 12.5 : 5)),
         [](const Shot& p, bool b) {
             const auto reach = [&](int value) { return p.ink(QRect(50 + 2 * value - 1, 121, 3, 12)).bottom(); };
             return b ? reach(25) > 121 && p.ink(QRect(68, 121, 5, 12)).isNull()
                      : !p.ink(QRect(69, 121, 3, 12)).isNull() && p.ink(QRect(74, 121, 2, 12)).isNull();
         }},
        {"CBaseMeter_setLabelStyle", straightMeter,
         SET(CBaseMeter_setLabelStyle(s.meter, b ? "bold" : "normal", b ? 14 : 8, b ? kRed : kBlue, b ? 90 : 0)),
         INK(p.ink(QRect(230, 130, 60, 60)), p.has(b ? kRed : kBlue) && (ink.height() > ink.width()) == b)},
        {"CBaseMeter_setLineWidth", straightMeter,
         SET(CBaseMeter_setScale(s.meter, 0, 100, 50, 25, 12.5),
             CBaseMeter_setLabelStyle(s.meter, "normal", 8, kRed, 0),
             b ? CBaseMeter_setLineWidth(s.meter, 9, 7, 5, 3) : CBaseMeter_setLineWidth(s.meter, 3, 1, 7, 9)),
         [](const Shot& p, bool b) {
             const auto wide = [&](int x) {
                 QRect found;
                 for (int y = 121; y < 140 && found.isNull(); ++y) {
                     const QRect row = p.box(kRed, QRect(x - 7, y, 15, 1));
                     if (row.width() < 14) found = row;
                 }
                 return found.width();
             };
             return wide(150) == (b ? 7 : 1) && wide(100) == (b ? 5 : 7) && wide(75) == (b ? 3 : 9);
         }},
        {"CBaseMeter_addPointer", roundMeter,
         [](Scene& s, bool b) {
             MeterPointer* pointer = CBaseMeter_addPointer(s.meter, b ? 25 : 75, b ? kRed : kBlue, b ? kBlue : kGreen);
             CMeterPointer_setShape(pointer, CHART_TRIANGULAR_POINTER, 1, 4);
         },
         SHOWS(roundIs(p, b ? -45 : 45, 30, b ? kRed : kBlue) &&
               p.any(
                   QRect(60, 60, 180, 110),
                   [b](QColor c) { return (b ? c.blue() : c.green()) > (b ? c.red() : c.blue()) + 60; }))},
        {"CMeterPointer_setShape", roundMeter,
         [](Scene& s, bool b) {
             MeterPointer* pointer = CBaseMeter_addPointer(s.meter, 50, kRed, kRed);
             b ? CMeterPointer_setShape(pointer, CHART_LINE_POINTER, 0.8, 4)
               : CMeterPointer_setShape(pointer, CHART_TRIANGULAR_POINTER, 0.5, 6);
         },
         [](const Shot& p, bool b) { // a line is as wide at its tip as below, a triangle is not
             const int top = p.box(kRed).top(), upper = p.box(kRed, QRect(100, top + 10, 100, 1)).width(),
                       lower = p.box(kRed, QRect(100, top + 25, 100, 1)).width();
             return std::abs(top - (b ? 70 : 100)) <= 4 && (upper == lower) == b;
         }},
        {"CAngularMeter_setMeter", roundMeter,
         SET(b ? CAngularMeter_setMeter(s.round, 100, 120, 70, -45, 135)
               : CAngularMeter_setMeter(s.round, 200, 90, 50, 0, 90),
             CAngularMeter_addZone2(s.round, 0, 100, kRed, kRed)),
         SHOWS(b ? p.is(100, 60, kRed) && p.is(135, 150, kRed) && p.is(160, 120, kRed) && !p.is(50, 120, kRed)
                 : p.is(230, 65, kRed) && !p.is(190, 65, kRed) && !p.is(230, 115, kRed) && !p.is(255, 90, kRed))},
        {"CAngularMeter_addRing", roundMeter,
         SET(CAngularMeter_addRing(s.round, b ? 40 : 20, b ? 60 : 30, b ? kRed : kBlue, b ? kBlue : kGreen)),
         SHOWS(p.is(150, b ? 100 : 125, b ? kRed : kBlue) && !p.is(150, 140, b ? kRed : kBlue) &&
               !p.inked(150, b ? 115 : 110) &&
               p.any(
                   QRect(145, b ? 86 : 116, 10, 7),
                   [b](QColor c) { return (b ? c.blue() : c.green()) > (b ? c.red() : c.blue()) + 60; }))},
        {"CAngularMeter_addZone2", roundMeter,
         SET(CAngularMeter_addZone2(s.round, b ? 10 : 60, b ? 30 : 90, b ? kRed : kBlue, b ? kBlue : kGreen)),
         SHOWS(roundIs(p, b ? -54 : 45, 60, b ? kRed : kBlue) && !roundIs(p, 0, 60, b ? kRed : kBlue) &&
               p.any(
                   QRect(50, 50, 200, 100),
                   [b](QColor c) { return (b ? c.blue() : c.green()) > (b ? c.red() : c.blue()) + 60; }))},
        {"CLinearMeter_setMeter", straightMeter,
         SET(b ? CLinearMeter_setMeter(s.straight, 60, 30, 30, 140, CHART_LEFT, true)
               : CLinearMeter_setMeter(s.straight, 30, 80, 220, 40, CHART_TOP, false),
             CLinearMeter_addZone(s.straight, 0, 25, kRed, nullptr)),
         SHOWS(p.fills(kRed, b ? QRect(60, 30, 30, 36) : QRect(30, 80, 56, 40)) &&
               (b ? p.ink().left() < 55 : p.ink().top() < 75))},
        {"CLinearMeter_addZone", straightMeter,
         SET(CLinearMeter_addZone(s.straight, b ? 25 : 50, b ? 50 : 100, b ? kRed : kBlue, b ? "WW" : "")),
         INK(b ? QRect(100, 100, 51, 20) : QRect(150, 100, 101, 20),
             p.fills(b ? kRed : kBlue, ink) && p.has(0, ink.adjusted(3, 1, -3, -1)) == b)},
        {"CPolarChart_setPlotArea", polar,
         SET(b ? CPolarChart_setPlotArea(s.polar, 100, 90, 60, kRed, kBlue, 9)
               : CPolarChart_setPlotArea(s.polar, 180, 110, 70, kBlue, kPink, 3)),
         SHOWS(b ? p.is(100, 70, kRed) && std::abs(p.box(kBlue, QRect(150, 90, 30, 1)).width() - 9) <= 1 &&
                       p.box(kRed).left() < 47
                 : p.is(180, 60, kBlue) && std::abs(p.box(kPink, QRect(230, 110, 40, 1)).width() - 3) <= 1 &&
                       p.box(kBlue).top() < 45)},
        {"CPolarChart_setPlotAreaBg", polar,
         SET(CPolarChart_setPlotAreaBg(s.polar, b ? kRed : kBlue, b ? kBlue : kPink, b)),
         SHOWS(b ? pieIs(p, 45, 20, kRed) && pieIs(p, 45, 60, kBlue)
                 : pieIs(p, 45, 20, kBlue) && pieIs(p, 135, 20, kPink) && pieIs(p, 45, 60, kBlue))},
        {"CPolarChart_setGridColor", polar,
         SET(b ? CPolarChart_setGridColor(s.polar, kRed, 7, kBlue, 3)
               : CPolarChart_setGridColor(s.polar, kBlue, 3, kPink, 9)),
         SHOWS(polarHas(p, 45, 100, b ? kRed : kBlue) &&
               p.box(b ? kBlue : kPink, QRect(170, 90, 1, 20)).height() == (b ? 3 : 9) &&
               (pieIs(p, 45, 78, kRed) == b))},
        {"CPolarChart_setGridStyle", polar,
         SET(CPolarChart_setGridColor(s.polar, kRed, 3, kRed, 3), CPolarLayer_setLineWidth(s.polarLayer, 5),
             CPolarChart_setGridStyle(s.polar, b, b)),
         SHOWS(polarHas(p, 45, 71, kRed) == b && polarHas(p, 45, 100, kRed) != b && p.is(190, 100, b ? kRed : kGreen))},
        {"CPolarChart_angularAxis", polar,
         SET(CAngularAxis_addZone2(CPolarChart_angularAxis(s.polar), b ? 0 : 90, b ? 90 : 180, kRed, -1)),
         SHOWS(pieIs(p, b ? 45 : 135, 60, kRed))},
        {"CPolarChart_radialAxis", polar,
         SET(CAxis_setLinearScale(CPolarChart_radialAxis(s.polar), 0, b ? 50 : 200, 50, 0)),
         SHOWS(std::abs(p.box(kGreen).right() - (b ? 230 : 170)) <= 2)},
        {"CPolarChart_addLineLayer", polar, SET(addPolar(s, b, CPolarChart_addLineLayer)),
         SHOWS(polarHas(p, 0, b ? 80 : 40, b ? kRed : kBlue) &&
               polarHas(p, b ? 90 : 120, b ? 40 : 60, b ? kRed : kBlue) && polarHas(p, 270, 20, kRed) == b)},
        {"CPolarChart_addSplineLineLayer", polar, SET(addPolar(s, b, CPolarChart_addSplineLineLayer)),
         SHOWS(polarHas(p, 0, b ? 80 : 40, b ? kRed : kBlue) &&
               polarHas(p, b ? 90 : 120, b ? 40 : 60, b ? kRed : kBlue) && polarHas(p, 270, 20, kRed) == b)},
        {"CPolarChart_addAreaLayer", polar, SET(addPolar(s, b, CPolarChart_addAreaLayer)),
         SHOWS(pieIs(p, 0, b ? 50 : 25, b ? kRed : kBlue) && pieIs(p, b ? 90 : 120, b ? 20 : 40, b ? kRed : kBlue) &&
               pieIs(p, 270, 10, kRed) == b)},
        {"CPolarChart_addSplineAreaLayer", polar, SET(addPolar(s, b, CPolarChart_addSplineAreaLayer)),
         SHOWS(pieIs(p, 0, b ? 50 : 25, b ? kRed : kBlue) && pieIs(p, b ? 90 : 120, b ? 20 : 40, b ? kRed : kBlue) &&
               pieIs(p, 270, 10, kRed) == b)},
        {"CPolarLayer_setAngles", polar,
         [](Scene& s, bool b) {
             const double angles[] = {45, 135, 225, 315};
             CPolarLayer_setLineWidth(s.polarLayer, 3);
             CPolarLayer_setAngles(s.polarLayer, angles, b ? 4 : 2);
         },
         SHOWS(polarHas(p, 45, 50, kGreen) && polarHas(p, 315, 50, kGreen) == b)},
        {"CPolarLayer_setDataLabelStyle", polar,
         SET(CPolarLayer_setDataLabelStyle(s.polarLayer, b ? "bold" : "boldItalic", b ? 14 : 10, b ? kRed : kBlue,
                                           b ? 90 : 0)),
         INK(p.box(b ? kRed : kBlue, QRect(192, 80, 40, 40)), !ink.isNull() && (ink.height() > ink.width()) == b)},
        {"CPolarLayer_setDataLabelFormat", polar,
         SET(CPolarLayer_setDataLabelStyle(s.polarLayer, "bold", 10, kRed, 0),
             CPolarLayer_setDataLabelFormat(s.polarLayer, b ? "{value|2}" : "I")),
         SHOWS(p.box(kRed, QRect(192, 80, 60, 40)).width() > 15 ? b : !b && p.has(kRed))},
        {"CPolarLayer_setDataSymbol", polar,
         SET(b ? CPolarLayer_setDataSymbol(s.polarLayer, CHART_SQUARE_SYMBOL, 21, kRed, kBlue, 5)
               : CPolarLayer_setDataSymbol(s.polarLayer, CHART_CROSS_SYMBOL, 31, kBlue, kPink, 1)),
         SHOWS(p.is(190, 100, b ? kRed : kBlue) && p.is(190, 109, kBlue) && p.is(195, 105, kRed) == b &&
               p.inked(203, 100) != b)},
        {"CPolarLayer_setLineWidth", polar, SET(CPolarLayer_setLineWidth(s.polarLayer, b ? 9 : 3)),
         SHOWS((p.box(kGreen, QRect(150, 0, 150, 99)).height() > 30) && p.is(172, 78, kGreen) == b)},
        {"CPolarLayer_setSymbolScale", polar,
         [](Scene& s, bool b) {
             CPolarLayer_setDataSymbol(s.polarLayer, CHART_SQUARE_SYMBOL, 5, kRed, kRed, 1);
             const double sizes[] = {5, 31, 5, 5};
             CPolarLayer_setSymbolScale(s.polarLayer, sizes, b ? 4 : 1, CHART_SCALE_PIXELS);
         },
         SHOWS((p.box(kRed, QRect(170, 80, 60, 40)).width() == 31) == b)},
        {"CPolarLineLayer_setCloseLoop", polar, SET(CPolarLineLayer_setCloseLoop(s.polarLine, b)),
         SHOWS(p.has(kGreen, QRect(125, 75, 10, 10)) == b)},
        {"CAngularAxis_setLinearScale", polar,
         [](Scene& s, bool b) {
             const double angles[] = {10, 10, 10, 10};
             CPolarLayer_setAngles(s.polarLayer, angles, 4);
             CPolarLayer_setDataSymbol(s.polarLayer, CHART_SQUARE_SYMBOL, 9, kRed, kRed, 1);
             CPolarChart_setGridColor(s.polar, kNone, 1, kBlue, 3);
             b ? CAngularAxis_setLinearScale(CPolarChart_angularAxis(s.polar), 0, 40, 20, 5)
               : CAngularAxis_setLinearScale(CPolarChart_angularAxis(s.polar), 5, 15, 10, 2.5);
         },
         SHOWS(polarHas(p, b ? 90 : 180, 50, kRed) && polarHas(p, 180, 80, kBlue) == b &&
               polarHas(p, b ? 45 : 90, 97, kBlue) && (polarHas(p, 45, 97, kBlue) == b))},
        {"CAngularAxis_setLabels", polar,
         [](Scene& s, bool b) {
             const char* const labels[] = {"one", "two", "three", "four", "five"};
             CPolarChart_setGridColor(s.polar, kNone, 1, kBlue, 3);
             CAngularAxis_setLabels(CPolarChart_angularAxis(s.polar), labels, b ? 5 : 3);
         },
         SHOWS(polarHas(p, b ? 72 : 120, 80, kBlue) && !polarHas(p, b ? 120 : 72, 80, kBlue))},
        {"CAngularAxis_setLabelStyle", polar,
         SET(CAngularAxis_setLabelStyle(CPolarChart_angularAxis(s.polar), b ? "bold" : "boldItalic", b ? 13 : 10,
                                        b ? kRed : kBlue, b ? 90 : 0)),
         INK(p.box(b ? kRed : kBlue, QRect(232, 60, 68, 80)), !ink.isNull() && (ink.height() > ink.width()) == b)},
        {"CAngularAxis_addZone2", polar,
         SET(CAngularAxis_addZone2(CPolarChart_angularAxis(s.polar), b ? 10 : 100, b ? 80 : 300, b ? kRed : kBlue,
                                   b ? kBlue : kPink)),
         SHOWS(pieIs(p, b ? 45 : 200, 60, b ? kRed : kBlue) && !pieIs(p, b ? 90 : 45, 60, b ? kRed : kBlue) &&
               p.has(b ? kBlue : kPink))},
    };
}
} // namespace surface
