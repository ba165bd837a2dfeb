#pragma once
// The charts that the table of operations changes, and what their pictures are asked.

#include <QColor>
#include <QImage>
#include <QRect>
#include <chartdraw/surface.h>
#include <cstdlib>

namespace surface {
constexpr int kNone = CHART_TRANSPARENT;
constexpr int kWhite = 0xffffff, kRed = 0xff0000, kGreen = 0x00ff00, kBlue = 0x0000ff, kCyan = 0x00ffff,
              kPink = 0xff00ff, kBrown = 0x804020;

class Shot {
public:
    explicit Shot(BaseChart* chart) {
        const char* bytes = nullptr;
        int length = 0;
        if (CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, &bytes, &length))
            m_image = QImage::fromData(reinterpret_cast<const uchar*>(bytes), length, "BMP")
                          .convertToFormat(QImage::Format_RGB32);
    }

    QSize size() const { return m_image.size(); }
    bool operator==(const Shot& other) const { return m_image == other.m_image; }
    bool is(int x, int y, int colour) const {
        return m_image.valid(x, y) && static_cast<int>(m_image.pixel(x, y) & 0xffffffu) == colour;
    }
    QColor at(int x, int y) const { return m_image.valid(x, y) ? m_image.pixelColor(x, y) : QColor(); }
    /// Whether some pixel of `part` is of a sort: for colours of thin lines, which are mixed with the ground.
    template <class Sort> bool any(const QRect& part, Sort sort) const {
        for (int y = part.top(); y <= part.bottom(); ++y)
            for (int x = part.left(); x <= part.right(); ++x)
                if (m_image.valid(x, y) && sort(m_image.pixelColor(x, y))) return true;
        return false;
    }
    /// Whether a pixel is unlike the white ground.
    bool inked(int x, int y) const { return !is(x, y, kWhite); }
    /// The smallest rectangle that holds all pixels of a colour inside `part`.
    QRect box(int colour, const QRect& part = QRect(0, 0, 10000, 10000)) const {
        QRect bounds;
        const QRect seen = part & m_image.rect();
        for (int y = seen.top(); y <= seen.bottom(); ++y)
            for (int x = seen.left(); x <= seen.right(); ++x)
                if (is(x, y, colour)) bounds |= QRect(x, y, 1, 1);
        return bounds;
    }
    QRect ink(const QRect& part = QRect(0, 0, 10000, 10000)) const {
        QRect bounds;
        const QRect seen = part & m_image.rect();
        for (int y = seen.top(); y <= seen.bottom(); ++y)
            for (int x = seen.left(); x <= seen.right(); ++x)
                if (inked(x, y)) bounds |= QRect(x, y, 1, 1);
        return bounds;
    }
    /// Whether `colour` covers about this rectangle, to `slack` pixels on each side.
    bool fills(int colour, const QRect& wanted, int slack = 2) const {
        const QRect found = box(colour);
        return std::abs(found.left() - wanted.left()) <= slack && std::abs(found.right() - wanted.right()) <= slack &&
               std::abs(found.top() - wanted.top()) <= slack && std::abs(found.bottom() - wanted.bottom()) <= slack;
    }
    bool has(int colour, const QRect& part = QRect(0, 0, 10000, 10000)) const { return !box(colour, part).isNull(); }

private:
    QImage m_image;
};

/// A chart with the handles that its kind has; the others are null. All are 300 x 200 pixels and white.
struct Scene {
    BaseChart* chart = nullptr;
    XYChart* xy = nullptr;
    PlotArea* plot = nullptr;
    Axis *x = nullptr, *y = nullptr;
    Layer* layer = nullptr;
    BarLayer* bars = nullptr;
    LineLayer* line = nullptr;
    PieChart* pie = nullptr;
    PolarChart* polar = nullptr;
    PolarLayer* polarLayer = nullptr;
    PolarLineLayer* polarLine = nullptr;
    AngularMeter* round = nullptr;
    LinearMeter* straight = nullptr;
    BaseMeter* meter = nullptr;
    TextBox* text = nullptr;

    Scene() = default;
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;
    ~Scene() { CBaseChart_destroy(chart); }

    void startXy() {
        xy = CXYChart_create(300, 200, kWhite, kNone, 0);
        chart = XYChart2BaseChart(xy);
        plot = CXYChart_setPlotArea(xy, 50, 20, 200, 150, kWhite, -1, kNone, kNone, kNone);
        x = CXYChart_xAxis(xy);
        y = CXYChart_yAxis(xy);
        CAxis_setLinearScale(y, 0, 100, 20, 0);
    }
};

/// Where a value stands on the y axis of 0 to 100, and one of 0 to 4 on the x axis.
constexpr int yOf(double value) { return 170 - static_cast<int>(value * 1.5); }
constexpr int xOf(double value) { return 50 + static_cast<int>(value * 50); }

inline void blank(Scene& s) {
    s.xy = CXYChart_create(300, 200, kWhite, kNone, 0);
    s.chart = XYChart2BaseChart(s.xy);
}

inline void axes(Scene& s) {
    s.startXy();
    CAxis_setLinearScale(s.x, 0, 4, 1, 0);
}

/// Four rows of one green bar each: 20, 60, 40, 80.
inline void bars(Scene& s) {
    s.startXy();
    const double values[] = {20, 60, 40, 80};
    s.bars = CXYChart_addBarLayer(s.xy, values, 4, kGreen, "bars", 0);
    s.layer = BarLayer2Layer(s.bars);
}

/// Two green and red bars a row: 20, 60 and 40, 20.
inline void pairs(Scene& s) {
    s.startXy();
    const double first[] = {20, 60}, second[] = {40, 20};
    s.bars = CXYChart_addBarLayer2(s.xy, CHART_COMBINE_SIDE, 0);
    s.layer = BarLayer2Layer(s.bars);
    CLayer_addDataSet(s.layer, first, 2, kGreen, "first");
    CLayer_addDataSet(s.layer, second, 2, kRed, "second");
}

/// A green line through (0, 20), (2, 60) and (4, 20).
inline void line(Scene& s) {
    axes(s);
    const double xs[] = {0, 2, 4}, values[] = {20, 60, 20};
    s.line = CXYChart_addLineLayer(s.xy, values, 3, kGreen, "line", 0);
    s.layer = LineLayer2Layer(s.line);
    CLayer_setXData(s.layer, xs, 3);
}

/// A green box a row, from 20 to 60 and from 40 to 80.
inline void boxes(Scene& s) {
    s.startXy();
    const double top[] = {60, 80}, bottom[] = {20, 40};
    s.layer = BaseBoxLayer2Layer(BoxWhiskerLayer2BaseBoxLayer(CXYChart_addBoxWhiskerLayer(
        s.xy, top, 2, bottom, 2, nullptr, 0, nullptr, 0, nullptr, 0, kGreen, kNone, kNone)));
}

/// Red, green and blue sectors of a half and two quarters about (150, 100), radius 60.
inline void pie(Scene& s) {
    s.pie = CPieChart_create(300, 200, kWhite, kNone, 0);
    s.chart = PieChart2BaseChart(s.pie);
    const double values[] = {2, 1, 1};
    const char* const labels[] = {"aaa", "bbb", "ccc"};
    CPieChart_setPieSize(s.pie, 150, 100, 60);
    CPieChart_setData(s.pie, values, 3, labels, 3);
    const int colours[] = {kRed, kGreen, kBlue};
    for (int i = 0; i < 3; ++i) CSector_setColor(CPieChart_sector(s.pie, i), colours[i], kNone, -1);
}

/// About (150, 100), radius 80, angles 0 to 360 by 90 and radii 0 to 100 by 50, no grid, a green line.
inline void polar(Scene& s) {
    s.polar = CPolarChart_create(300, 200, kWhite, kNone, 0);
    s.chart = PolarChart2BaseChart(s.polar);
    CPolarChart_setPlotArea(s.polar, 150, 100, 80, kWhite, kNone, 1);
    CPolarChart_setGridColor(s.polar, kNone, 1, kNone, 1);
    CAngularAxis_setLinearScale(CPolarChart_angularAxis(s.polar), 0, 360, 90, 0);
    CAxis_setLinearScale(CPolarChart_radialAxis(s.polar), 0, 100, 50, 0);
    CAxis_setColors(CPolarChart_radialAxis(s.polar), kNone, kNone, kNone, kNone);
    const double values[] = {50, 50, 50, 50};
    s.polarLine = CPolarChart_addLineLayer(s.polar, values, 4, kGreen, "line");
    s.polarLayer = PolarLineLayer2PolarLayer(s.polarLine);
}

/// 0 to 100 over the upper half about (150, 150), radius 100.
inline void roundMeter(Scene& s) {
    s.round = CAngularMeter_create(300, 200, kWhite, kNone, 0);
    s.meter = AngularMeter2BaseMeter(s.round);
    s.chart = BaseMeter2BaseChart(s.meter);
    CAngularMeter_setMeter(s.round, 150, 150, 100, -90, 90);
    CBaseMeter_setScale(s.meter, 0, 100, 25, 0, 0);
}

/// 0 to 100 on a lying bar from (50, 100), 200 x 20.
inline void straightMeter(Scene& s) {
    s.straight = CLinearMeter_create(300, 200, kWhite, kNone, 0);
    s.meter = LinearMeter2BaseMeter(s.straight);
    s.chart = BaseMeter2BaseChart(s.meter);
    CLinearMeter_setMeter(s.straight, 50, 100, 200, 20, CHART_BOTTOM, false);
    CBaseMeter_setScale(s.meter, 0, 100, 25, 0, 0);
}

/// A red text at (100, 80).
inline void text(Scene& s) {
    blank(s);
    s.text = CBaseChart_addText(s.chart, 100, 80, "Hamburg", "bold", 14, kRed, CHART_TOP_LEFT, 0, false);
}
} // namespace surface
