// Meters: scales round and straight, rings and zones, the six pointers, and scales that are hard to show.

#include "tools/gallery/gallery.h"

#include <cmath>

namespace {

using gallery::points;

struct Angular {
    AngularMeter* meter;
    BaseMeter* base;
    BaseChart* chart;

    Angular(int width, int height, int radius, double start, double end, int x, int y)
        : meter(CAngularMeter_create(width, height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0)),
          base(AngularMeter2BaseMeter(meter)), chart(BaseMeter2BaseChart(base)) {
        CAngularMeter_setMeter(meter, x, y, radius, start, end);
        CBaseMeter_setLabelStyle(base, nullptr, points(8), -1, 0);
        CBaseMeter_setScale(base, 0, 100, 10, 5, 1);
    }
    explicit Angular(double start = -135, double end = 135) : Angular(280, 280, 100, start, end, 140, 140) {}

    Angular& pointer(double value, int colour, int shape = 0, double length = 1, double width = 1) {
        CMeterPointer_setShape(CBaseMeter_addPointer(base, value, colour, -1), shape, length, width);
        return *this;
    }
};

struct Linear {
    LinearMeter* meter;
    BaseMeter* base;
    BaseChart* chart;

    explicit Linear(int side = CHART_LEFT, bool reverse = false)
        : meter(create(side)), base(LinearMeter2BaseMeter(meter)), chart(BaseMeter2BaseChart(base)) {
        const bool upright = side == CHART_LEFT || side == CHART_RIGHT;
        if (upright)
            CLinearMeter_setMeter(meter, 65, 20, 40, 240, side, reverse);
        else
            CLinearMeter_setMeter(meter, 20, 45, 240, 40, side, reverse);
        CBaseMeter_setLabelStyle(base, nullptr, points(8), -1, 0);
        CBaseMeter_setScale(base, 0, 100, 10, 5, 1);
    }
    static LinearMeter* create(int side) {
        const bool upright = side == CHART_LEFT || side == CHART_RIGHT;
        return CLinearMeter_create(upright ? 170 : 280, upright ? 280 : 130, CHART_BACKGROUND_COLOR,
                                   CHART_TRANSPARENT, 0);
    }

    void zones(const char* low, const char* middle, const char* high) {
        const char* const names[] = {low, middle, high};
        const double limits[] = {0, 50, 80, 100};
        const int colours[] = {0x99ff99, 0xffff66, 0xffcccc};
        for (int i = 0; i < 3; ++i) {
            TextBox* label = CLinearMeter_addZone(meter, limits[i], limits[i + 1], colours[i], names[i]);
            CTextBox_setFontSize(label, points(8), 0);
        }
    }
    void pointer(double value, int colour, int shape = 0) {
        CMeterPointer_setShape(CBaseMeter_addPointer(base, value, colour, -1), shape, 1, 1);
    }
};

BaseChart* modelDefault() {
    AngularMeter* meter = CAngularMeter_create(500, 550, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    BaseMeter* base = AngularMeter2BaseMeter(meter);
    CAngularMeter_setMeter(meter, 250, 275, 200, -90, 90);
    CBaseMeter_setLineWidth(base, 0, 1, 1, 1);
    CBaseMeter_setScale(base, 0, 100, 10, 5, 1);
    CBaseMeter_setLabelStyle(base, nullptr, points(8), -1, 0);
    return BaseMeter2BaseChart(base);
}

BaseChart* metalDial() {
    Angular m(500, 550, 200, -90, 90, 250, 275);
    CAngularMeter_addRing(m.meter, 0, 220, CChart_metalColor(0x9999dd, 90), -1);
    CAngularMeter_addRing(m.meter, 210, 220, 0x6666ff, -1);
    m.pointer(45.17, 0x40333399);
    LegendBox* legend = CBaseChart_addLegend(m.chart, 320, 12, false, nullptr, points(8));
    CLegendBox_addKey(legend, "Legend", -1, 0, nullptr);
    return m.chart;
}

BaseChart* cockpit() {
    Angular m(320, 320, 112, -140, 140, 160, 160);
    CBaseChart_setBackground(m.chart, 0x30343a, CHART_TRANSPARENT, 0);
    CAngularMeter_addRing(m.meter, 0, 156, CChart_metalColor(0x9aa0a8, 45), 0x15171a);
    CAngularMeter_addRing(m.meter, 0, 148, 0x101317, 0x000000);
    CAngularMeter_addZone2(m.meter, 0, 60, 0x14301f, -1);
    CAngularMeter_addZone2(m.meter, 60, 85, 0x6b5a14, -1);
    CAngularMeter_addZone2(m.meter, 85, 100, 0x8f1d16, -1);
    CBaseMeter_setLineWidth(m.base, 1, 2, 1, 1);
    CBaseMeter_setLabelStyle(m.base, "bold", points(10), 0xf2f2f2, 0);
    CBaseChart_addText(m.chart, 160, 215, "RPM x 100", "bold", points(9), 0xc8ccd2, CHART_CENTER, 0, false);
    m.pointer(72.5, 0xff7a1a, CHART_TRIANGULAR_POINTER, 0.95, 0.8);
    return m.chart;
}

BaseChart* zonesAndRings() {
    Angular m;
    CAngularMeter_addRing(m.meter, 0, 132, CChart_metalColor(0xd0d4da, 90), 0x777777);
    CAngularMeter_addZone2(m.meter, 0, 60, 0x99ff99, 0x808080);
    CAngularMeter_addZone2(m.meter, 60, 80, 0xffff66, 0x808080);
    CAngularMeter_addZone2(m.meter, 80, 100, 0xff9999, 0x808080);
    CBaseMeter_setLineWidth(m.base, 2, 2, 1, 1);
    m.pointer(66, 0x222266, CHART_DIAMOND_POINTER);
    return m.chart;
}

BaseChart* glassRings() {
    Angular m;
    const auto glass = [](unsigned clear) { return static_cast<int>(clear << 24 | 0xffffff); };
    CAngularMeter_addRing(m.meter, 0, 130, CChart_metalColor(0x4a6fa5, 120), -1);
    CAngularMeter_addRing(m.meter, 122, 130, CChart_metalColor(0xe8b923, 45), 0x6b5410);
    for (int r = 20; r < 100; r += 20)
        CAngularMeter_addRing(m.meter, 0, r, glass(0xd8), -1);
    CBaseMeter_setLabelStyle(m.base, "bold", points(8), 0xffffff, 0);
    m.pointer(30, 0x40ffffff, CHART_PENCIL_POINTER, 0.9);
    return m.chart;
}

BaseChart* turned(double start, double end) {
    Angular m(start, end);
    return m.pointer(25, 0xcc3333).chart;
}

BaseChart* fullTurn() {
    return turned(0, 360);
}

BaseChart* anticlockwise() {
    return turned(135, -135);
}

BaseChart* quarter() {
    return turned(0, 90);
}

BaseChart* below() {
    return turned(270, 90);
}

template <int shape>
BaseChart* pointerShape() {
    Angular m(200, 200, 72, -135, 135, 100, 100);
    return m.pointer(65, 0x336699, shape).chart;
}

BaseChart* clock() {
    Angular m(0, 360);
    CBaseMeter_setScale(m.base, 0, 12, 1, 0.2, 0);
    CBaseMeter_setLineWidth(m.base, 0, 3, 1, 1);
    CBaseMeter_setLabelStyle(m.base, "bold", points(11), -1, 0);
    CAngularMeter_addRing(m.meter, 0, 135, 0xf7f7f2, 0x333333);
    m.pointer(10.16, 0x222222, CHART_PENCIL_POINTER, 0.6, 1.4)
        .pointer(2, 0x222222, CHART_PENCIL_POINTER, 0.92);
    return m.pointer(6.9, 0xcc2222, CHART_LINE_POINTER, 0.95, 0.6).chart;
}

BaseChart* compass() {
    Angular m(0, 360);
    CBaseMeter_setScale(m.base, 0, 360, 30, 10, 2);
    CBaseMeter_addPointer(m.base, 217, 0xcc3333, 0x661111);
    return m.chart;
}

BaseChart* beyond() {
    Angular m;
    m.pointer(-50, 0xcc3333).pointer(170, 0x3333cc).pointer(NAN, 0x00ff00);
    return m.chart;
}

BaseChart* longPointer() {
    Angular m;
    return m.pointer(50, 0x40cc3333, CHART_ARROW_POINTER2, 1.25, 2).chart;
}

BaseChart* wideScale() {
    Angular m(280, 280, 137, -135, 135, 140, 140);
    return m.pointer(35, 0x336699).chart;
}

BaseChart* boxedLabels() {
    Angular m;
    TextBox* style = CBaseMeter_setLabelStyle(m.base, "bold", points(8), 0x333333, 0);
    CBox_setBackground(TextBox2Box(style), 0xfff4d6, 0xc9a227, 0);
    CBaseMeter_setScale(m.base, 0, 5000, 500, 100, 0);
    return m.pointer(3200, 0x884422, CHART_ARROW_POINTER).chart;
}

BaseChart* angularScale(double lower, double upper, double major, double minor, double micro) {
    Angular m(200, 200, 66, -135, 135, 100, 100);
    CBaseMeter_setScale(m.base, lower, upper, major, minor, micro);
    return m.pointer((lower + upper) / 2, 0xcc3333).chart;
}

BaseChart* equalLimits() {
    return angularScale(5, 5, 1, 0, 0);
}

BaseChart* fallingLimits() {
    return angularScale(100, 0, 20, 10, 0);
}

BaseChart* noNumbers() {
    return angularScale(NAN, 20, NAN, NAN, NAN);
}

BaseChart* tooFine() {
    return angularScale(0, 100, 1e-4, 1e-5, 1e-6);
}

BaseChart* automatic() {
    return angularScale(-1.5, 2.5, 0, 0, 0);
}

BaseChart* hugeNumbers() {
    return angularScale(-2.5e9, 1e10, 0, 0, 0);
}

template <int side, bool reverse>
BaseChart* linear() {
    Linear m(side, reverse);
    m.zones(nullptr, nullptr, nullptr);
    m.pointer(75.35, 0xcc);
    return m.chart;
}

template <int shape>
BaseChart* linearPointer() {
    Linear m(CHART_BOTTOM);
    m.zones(nullptr, nullptr, nullptr);
    m.pointer(30, 0x336699, shape);
    m.pointer(72, 0xcc3333, shape);
    return m.chart;
}

BaseChart* linearBare() {
    LinearMeter* meter = CLinearMeter_create(500, 550, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    BaseMeter* base = LinearMeter2BaseMeter(meter);
    CLinearMeter_setMeter(meter, 225, 75, 50, 400, CHART_LEFT, false);
    CBaseMeter_setLineWidth(base, 0, 1, 1, 1);
    CBaseMeter_setScale(base, 0, 100, 10, 5, 1);
    CBaseMeter_setLabelStyle(base, nullptr, points(8), -1, 0);
    return BaseMeter2BaseChart(base);
}

BaseChart* labelledZones() {
    Linear m;
    m.zones("Good", "Weak", "Dangerous");
    m.pointer(64, 0x222266, CHART_TRIANGULAR_POINTER);
    return m.chart;
}

BaseChart* labelledLying() {
    Linear m(CHART_TOP);
    m.zones("Good", "Weak", "Dangerous");
    m.pointer(64, 0x222266, CHART_ARROW_POINTER);
    return m.chart;
}

BaseChart* boxedZones() {
    Linear m(CHART_RIGHT);
    const char* const names[] = {"Low", "Normal", "High", "Alarm"};
    const int colours[] = {0x8ecae6, 0x95d5b2, 0xffd166, 0xef6f6c};
    CLinearMeter_setMeter(m.meter, 75, 20, 18, 240, CHART_RIGHT, false);
    for (int i = 0; i < 4; ++i) {
        TextBox* label = CLinearMeter_addZone(m.meter, i * 25, i * 25 + 25, colours[i], names[i]);
        CTextBox_setFontSize(label, points(8), 0);
        CBox_setBackground(TextBox2Box(label), colours[i], 0x888888, CChart_glassEffect(3, 8, 0));
    }
    CBaseMeter_setLineWidth(m.base, 1, 1, 1, 1);
    m.pointer(38, 0x333333, CHART_TRIANGULAR_POINTER);
    return m.chart;
}

BaseChart* thermometer() {
    Linear m;
    CBaseChart_setBackground(m.chart, 0x1c2126, 0x000000, CChart_softLighting(8, 6));
    CBaseMeter_setScale(m.base, -20, 50, 10, 5, 1);
    CBaseMeter_setLabelStyle(m.base, "bold", points(9), 0xe8e8e8, 0);
    CLinearMeter_addZone(m.meter, -20, 0, CChart_metalColor(0x3a7bd5, 0), nullptr);
    CLinearMeter_addZone(m.meter, 0, 30, CChart_metalColor(0x2fae66, 0), nullptr);
    CLinearMeter_addZone(m.meter, 30, 50, CChart_metalColor(0xd64545, 0), nullptr);
    m.pointer(21.5, 0xffffff, CHART_DIAMOND_POINTER);
    return m.chart;
}

BaseChart* crowdedZones() {
    Linear m;
    CLinearMeter_setMeter(m.meter, 50, 20, 14, 240, CHART_LEFT, false);
    for (int i = 0; i < 12; ++i) {
        TextBox* label =
            CLinearMeter_addZone(m.meter, 40 + i * 3, 43 + i * 3, 0x99bbdd + i * 0x040000, "Zone");
        CTextBox_setFontSize(label, points(8), 0);
    }
    return m.chart;
}

BaseChart* linearTooFine() {
    Linear m(CHART_BOTTOM);
    CBaseMeter_setScale(m.base, 0, 100, 1e-4, 1e-5, 1e-6);
    return m.chart;
}

BaseChart* linearLongLabels() {
    Linear m(CHART_BOTTOM);
    CBaseMeter_setScale(m.base, 1e6, 2e6, 0, 0, 0);
    return m.chart;
}

const gallery::Family family("meter", {
                                          {"a new model", modelDefault},
                                          {"layout sample", metalDial},
                                          {"cockpit", cockpit},
                                          {"zones, ring, axis line", zonesAndRings},
                                          {"metal and glass", glassRings},
                                          {"full turn", fullTurn},
                                          {"anticlockwise", anticlockwise},
                                          {"quarter", quarter},
                                          {"lower half, reversed", below},
                                          {"clock", clock},
                                          {"compass", compass},
                                          {"values beyond the scale", beyond},
                                          {"pointer over the labels", longPointer},
                                          {"fills the picture", wideScale},
                                          {"boxed labels", boxedLabels},
                                          {"diamond", pointerShape<CHART_DIAMOND_POINTER>},
                                          {"triangular", pointerShape<CHART_TRIANGULAR_POINTER>},
                                          {"arrow", pointerShape<CHART_ARROW_POINTER>},
                                          {"arrow 2", pointerShape<CHART_ARROW_POINTER2>},
                                          {"line", pointerShape<CHART_LINE_POINTER>},
                                          {"pencil", pointerShape<CHART_PENCIL_POINTER>},
                                          {"equal limits", equalLimits},
                                          {"falling limits", fallingLimits},
                                          {"no numbers", noNumbers},
                                          {"a hundred million ticks", tooFine},
                                          {"automatic", automatic},
                                          {"huge numbers", hugeNumbers},
                                          {"a new linear model", linearBare},
                                          {"left", linear<CHART_LEFT, false>},
                                          {"right", linear<CHART_RIGHT, false>},
                                          {"left reversed", linear<CHART_LEFT, true>},
                                          {"labelled zones", labelledZones},
                                          {"zone boxes", boxedZones},
                                          {"thermometer", thermometer},
                                          {"crowded zones", crowdedZones},
                                          {"top", linear<CHART_TOP, false>},
                                          {"bottom", linear<CHART_BOTTOM, false>},
                                          {"bottom reversed", linear<CHART_BOTTOM, true>},
                                          {"labelled zones lying", labelledLying},
                                          {"diamond", linearPointer<CHART_DIAMOND_POINTER>},
                                          {"triangular", linearPointer<CHART_TRIANGULAR_POINTER>},
                                          {"arrow", linearPointer<CHART_ARROW_POINTER>},
                                          {"arrow 2", linearPointer<CHART_ARROW_POINTER2>},
                                          {"line", linearPointer<CHART_LINE_POINTER>},
                                          {"pencil", linearPointer<CHART_PENCIL_POINTER>},
                                          {"a hundred million ticks", linearTooFine},
                                          {"long labels", linearLongLabels},
                                      });

} // namespace
