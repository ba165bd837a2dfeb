#pragma once
// The charts of bench_frames, each beside its floor: the same rectangles, lines, circles and texts by the
// plain painter.

#include "bench/floor.h"
#include <chartdraw/surface.h>

#include <QPainterPath>
#include <QtMath>
#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

namespace bench {

constexpr int kWidth = 500, kHeight = 550, kLeft = 50, kTop = 50, kPlotWidth = 420, kPlotHeight = 440;

inline void makePicture(BaseChart* chart) {
    const char* bytes = nullptr;
    int length = 0;
    CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, &bytes, &length);
    benchmark::DoNotOptimize(bytes);
    CBaseChart_destroy(chart);
}

struct Plot {
    explicit Plot(int width = kWidth, int height = kHeight)
        : xy(CXYChart_create(width, height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0)),
          base(XYChart2BaseChart(xy)) {
        CXYChart_setPlotArea(xy, kLeft, kTop, width - 80, height - 110, -1, -1, -1, -1, -1);
    }
    void make() const { makePicture(base); }

    XYChart* xy;
    BaseChart* base;
};

struct PlotFloor : Floor {
    PlotFloor() : Floor(kWidth, kHeight) {
        for (int i = 0; i <= 5; ++i) {
            painter.fillRect(QRect(kLeft, kTop + i * kPlotHeight / 5, kPlotWidth, 1), Qt::lightGray);
            text(QRectF(0, kTop + i * kPlotHeight / 5 - 8, kLeft - 6, 16), 100 - i * 20, Qt::AlignRight);
        }
        painter.drawRect(QRectF(kLeft + 0.5, kTop + 0.5, kPlotWidth, kPlotHeight));
        for (int i = 0; i < 6; ++i)
            text(QRectF(kLeft + i * 70, kTop + kPlotHeight + 6, 70, 16), i);
    }
    void text(const QRectF& box, int number, Qt::Alignment alignment = Qt::AlignHCenter) {
        painter.drawText(box, static_cast<int>(alignment), QString::number(number));
    }
};

inline const double kSets[3][6] = {
    {25, 18, 31, 22, 38, 29}, {12, 27, 19, 33, 24, 16}, {8, 15, 23, 11, 17, 26}};
inline const char* const kNames[] = {"North", "South", "West"};

inline void bars() {
    const Plot plot;
    CBaseChart_addTitle(plot.base, "Sales by region", "bold", 12, -1, -1, -1);
    CBaseChart_addLegend(plot.base, kLeft, 28, false, nullptr, 8);
    Layer* layer = BarLayer2Layer(CXYChart_addBarLayer2(plot.xy, CHART_COMBINE_SIDE, 0));
    for (int i = 0; i < 3; ++i)
        CLayer_addDataSet(layer, kSets[i], 6, -1, kNames[i]);
    CLayer_setDataLabelStyle(layer, nullptr, 8, -1, 0);
    plot.make();
}

inline void barsFloor() {
    PlotFloor floor;
    for (int i = 0; i < 3; ++i) {
        const QColor colour = QColor::fromHsv(i * 90, 180, 200);
        for (int k = 0; k < 6; ++k) {
            const int height = static_cast<int>(kSets[i][k] * 9);
            const QRect bar(kLeft + k * 70 + 8 + i * 18, kTop + kPlotHeight - height, 18, height);
            floor.painter.fillRect(bar, colour);
            floor.text(QRectF(bar.left(), bar.top() - 16, 18, 16), static_cast<int>(kSets[i][k]));
        }
        floor.painter.fillRect(QRect(kLeft + i * 80, 30, 9, 9), colour);
        floor.painter.drawText(QRectF(kLeft + 14 + i * 80, 28, 66, 16), 0, kNames[i]);
    }
    floor.painter.setFont(bench::plainFont(12));
    floor.painter.drawText(QRectF(0, 4, kWidth, 20), Qt::AlignHCenter, "Sales by region");
    floor.make();
}

inline void shortLine() {
    const Plot plot;
    CBaseChart_addTitle(plot.base, "Sales by region", "bold", 12, -1, -1, -1);
    CBaseChart_addLegend(plot.base, kLeft, 28, false, nullptr, 8);
    LineLayer* line = CXYChart_addLineLayer(plot.xy, kSets[0], 6, 0x4479bb, kNames[0], 0);
    CLayer_setLineWidth(LineLayer2Layer(line), 2);
    CDataSet_setDataSymbol(CLayer_getDataSet(LineLayer2Layer(line), 0), CHART_CIRCLE_SYMBOL, 9, -1, -1, 1);
    plot.make();
}

inline void shortLineFloor() {
    PlotFloor floor;
    QList<QPointF> points;
    for (int k = 0; k < 6; ++k)
        points << QPointF(kLeft + k * 84, kTop + kPlotHeight - kSets[0][k] * 10);
    floor.painter.setPen(QPen(QColor(0x44, 0x79, 0xbb), 2));
    floor.painter.drawPolyline(points);
    floor.painter.drawLine(kLeft, 36, kLeft + 20, 36);
    floor.painter.setBrush(QColor(0x44, 0x79, 0xbb));
    for (const QPointF& point : points)
        floor.painter.drawEllipse(point, 4.5, 4.5);
    floor.painter.drawText(QRectF(kLeft + 24, 28, 66, 16), 0, kNames[0]);
    floor.painter.setFont(bench::plainFont(12));
    floor.painter.drawText(QRectF(0, 4, kWidth, 20), Qt::AlignHCenter, "Sales by region");
    floor.make();
}

struct Prices {
    std::vector<double> high, low, open, close, average, volume;

    explicit Prices(int rows) {
        for (int i = 0; i < rows; ++i) {
            const double base = 50 + 20 * std::sin(i * 0.1);
            open.push_back(base + 3 * std::sin(i * 1.7));
            close.push_back(base + 3 * std::cos(i * 2.3));
            high.push_back(std::max(open.back(), close.back()) + 2);
            low.push_back(std::min(open.back(), close.back()) - 2);
            average.push_back(base);
            volume.push_back(10 + 8 * std::sin(i * 0.9));
        }
    }
};

inline void addCandles(XYChart* chart, const Prices& p) {
    const int rows = static_cast<int>(p.high.size());
    CXYChart_addCandleStickLayer(chart, p.high.data(), rows, p.low.data(), rows, p.open.data(), rows,
                                 p.close.data(), rows, 0x33aa55, 0xcc3333, -1);
}

inline void candles() {
    static const Prices p(100);
    const Plot plot;
    BarLayer* volume = CXYChart_addBarLayer(plot.xy, p.volume.data(), 100, 0x99cc99, nullptr, 0);
    CLayer_setBorderColor(BarLayer2Layer(volume), CHART_TRANSPARENT, 0);
    addCandles(plot.xy, p);
    CXYChart_addLineLayer(plot.xy, p.average.data(), 100, 0x663399, nullptr, 0);
    plot.make();
}

inline void candlesFloor() {
    static const Prices p(100);
    PlotFloor floor;
    const auto y = [](double value) { return kTop + kPlotHeight - static_cast<int>(value * 5); };
    QList<QPointF> average;
    for (std::size_t i = 0; i < 100; ++i) {
        const int x = kLeft + 3 + static_cast<int>(i) * 4;
        floor.painter.fillRect(QRect(x - 1, y(p.volume[i]), 3, y(0) - y(p.volume[i])), QColor(0x99cc99));
        floor.painter.fillRect(QRect(x, y(p.high[i]), 1, y(p.low[i]) - y(p.high[i])), Qt::black);
        const int top = y(std::max(p.open[i], p.close[i])), bottom = y(std::min(p.open[i], p.close[i]));
        floor.painter.fillRect(QRect(x - 1, top, 3, bottom - top + 1), Qt::black);
        floor.painter.fillRect(QRect(x, top + 1, 1, bottom - top - 1), Qt::green);
        average << QPointF(x, y(p.average[i]));
    }
    floor.painter.setPen(Qt::darkMagenta);
    floor.painter.drawPolyline(average);
    floor.make();
}

inline const double kParts[] = {55, 18, 15, 22, 8, 15, 10};
inline const char* const kSectors[] = {"Sector 1", "Sector 2", "Sector 3", "Sector 4",
                                       "Sector 5", "Sector 6", "Sector 7"};

inline void pie() {
    PieChart* pie = CPieChart_create(kWidth, kHeight, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    BaseChart* chart = PieChart2BaseChart(pie);
    CPieChart_setPieSize(pie, kWidth / 2, kHeight / 2, 160);
    CPieChart_setData(pie, kParts, 7, kSectors, 7);
    CPieChart_setLabelStyle(pie, nullptr, 8, CHART_TEXT_COLOR);
    CPieChart_setLabelFormat(pie, "{label} ({percent|1}%)");
    CBaseChart_addLegend(chart, 320, 12, false, nullptr, 8);
    makePicture(chart);
}

inline void pieFloor() {
    Floor floor(kWidth, kHeight);
    QPainter& painter = floor.painter;
    double from = 90;
    for (int i = 0; i < 7; ++i) {
        const double span = kParts[i] / 143 * 360;
        painter.setPen(QPen(Qt::white, 1));
        painter.setBrush(QColor::fromHsv(i * 50, 180, 200));
        painter.drawPie(QRect(90, 115, 320, 320), static_cast<int>(from * 16), static_cast<int>(-span * 16));
        painter.setPen(Qt::black);
        const QString text = QString::asprintf("%s (%.1f%%)", kSectors[i], kParts[i] / 1.43);
        painter.drawText(QRectF(20, 20 + 70 * i, 200, 20), Qt::AlignLeft, text);
        from -= span;
    }
    for (int i = 0; i < 7; ++i) {
        painter.fillRect(QRect(320 + i % 3 * 60, 12 + i / 3 * 14, 9, 9), QColor::fromHsv(i * 50, 180, 200));
        painter.drawText(QRectF(334 + i % 3 * 60, 12 + i / 3 * 14, 60, 14), Qt::AlignLeft,
                         QString::fromUtf8(kSectors[i]));
    }
    floor.make();
}

inline const double kRadii[] = {90, 25, 40, 55, 68, 44, 79, 85, 50};
inline const double kAngles[] = {15, 60, 110, 180, 230, 260, 260, 310, 340};

inline void polar() {
    PolarChart* polar = CPolarChart_create(kWidth, kHeight, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CPolarChart_setPlotArea(polar, 250, 275, 200, CHART_TRANSPARENT, CHART_TRANSPARENT, 1);
    PolarLayer* layer = PolarLineLayer2PolarLayer(CPolarChart_addLineLayer(polar, kRadii, 9, 0xff, nullptr));
    CPolarLayer_setAngles(layer, kAngles, 9);
    CPolarLayer_setDataLabelStyle(layer, nullptr, 8, CHART_TEXT_COLOR, 0);
    makePicture(PolarChart2BaseChart(polar));
}

inline QPointF outward(double degrees, double distance) {
    const double angle = qDegreesToRadians(degrees);
    return {250 + distance * std::sin(angle), 275 - distance * std::cos(angle)};
}

inline void polarFloor() {
    Floor floor(kWidth, kHeight);
    QPainter& painter = floor.painter;
    painter.setPen(QColor(0xcc, 0xcc, 0xcc));
    for (int i = 1; i <= 5; ++i)
        painter.drawEllipse(QPointF(250, 275), 40 * i, 40 * i);
    for (int i = 0; i < 12; ++i)
        painter.drawLine(outward(0, 0), outward(i * 30, 200));
    painter.setPen(Qt::black);
    painter.drawLine(250, 75, 250, 275);
    const auto label = [&](QPointF at, double number) {
        painter.drawText(QRectF(at - QPointF(20, 7), QSizeF(40, 14)), Qt::AlignCenter,
                         QString::number(number));
    };
    for (int i = 0; i <= 5; ++i) {
        painter.drawLine(QPointF(246, 275 - 40 * i), QPointF(250, 275 - 40 * i));
        label(QPointF(230, 275 - 40 * i), i * 20);
    }
    for (int i = 0; i < 12; ++i)
        label(outward(i * 30, 212), i * 30);
    for (int i = 0; i < 9; ++i) {
        painter.setPen(Qt::blue);
        painter.drawLine(outward(kAngles[i], kRadii[i] * 2),
                         outward(kAngles[(i + 1) % 9], kRadii[(i + 1) % 9] * 2));
        painter.setPen(Qt::black);
        label(outward(kAngles[i], kRadii[i] * 2 + 8), kRadii[i]);
    }
    floor.make();
}

/// `scale`: with pointer, metal and ring.
inline void angularMeter() {
    AngularMeter* meter = CAngularMeter_create(kWidth, kHeight, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    BaseMeter* base = AngularMeter2BaseMeter(meter);
    CAngularMeter_setMeter(meter, 250, 275, 200, -90, 90);
    CBaseMeter_setLineWidth(base, 0, 1, 1, 1);
    CBaseMeter_setScale(base, 0, 100, 10, 5, 1);
    CAngularMeter_addRing(meter, 0, 220, CChart_metalColor(0x9999dd, 90), -1);
    CAngularMeter_addRing(meter, 210, 220, 0x6666ff, -1);
    CBaseMeter_addPointer(base, 45.17, 0x40333399, -1);
    makePicture(BaseMeter2BaseChart(base));
}

inline void angularMeterFloor() {
    Floor floor(kWidth, kHeight);
    QPainter& painter = floor.painter;
    QLinearGradient metal(0, 55, 0, 495);
    for (int i = 0; i <= 8; ++i)
        metal.setColorAt(i / 8.0, QColor::fromHsv(240, 40 + i % 4 * 30, 220));
    painter.setPen(Qt::NoPen);
    painter.setBrush(metal);
    painter.drawEllipse(QPointF(250, 275), 220, 220);
    QPainterPath ring;
    ring.addEllipse(QPointF(250, 275), 220, 220);
    ring.addEllipse(QPointF(250, 275), 210, 210);
    painter.fillPath(ring, QColor(0x66, 0x66, 0xff));
    painter.setPen(Qt::black);
    QList<QLineF> ticks;
    for (int i = 0; i <= 100; ++i) {
        ticks.emplace_back(outward(i * 1.8 - 90, 200), outward(i * 1.8 - 90, i % 10 == 0  ? 186
                                                                             : i % 5 == 0 ? 191
                                                                                          : 194));
        if (i % 10 == 0) {
            painter.drawText(QRectF(outward(i * 1.8 - 90, 212) - QPointF(15, 7), QSizeF(30, 14)),
                             Qt::AlignCenter, QString::number(i));
        }
    }
    painter.drawLines(ticks);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x33, 0x33, 0x99, 0xbf));
    painter.drawPolygon(QPolygonF({{240, 100}, {258, 276}, {254, 300}, {242, 274}}));
    painter.drawEllipse(QPointF(250, 275), 9, 9);
    floor.make();
}

/// A slow wave under noise.
inline const std::vector<double>& wave() {
    static const std::vector<double> values = [] {
        std::vector<double> made(10'000'000);
        unsigned seed = 1;
        for (std::size_t i = 0; i < made.size(); ++i) {
            seed = seed * 1664525u + 1013904223u;
            made[i] = std::sin(static_cast<double>(i) * 2e-5) * 60 + static_cast<double>(seed >> 16) / 1500;
        }
        return made;
    }();
    return values;
}

inline void longLine(int count, int width) {
    const Plot plot;
    LineLayer* layer = CXYChart_addLineLayer(plot.xy, wave().data(), count, 0x4479bb, nullptr, 0);
    CLayer_setLineWidth(LineLayer2Layer(layer), width);
    plot.make();
}

/// The copy that a chart has to take, in memory kept, the least and the greatest value of each column, and a
/// line through these.
inline void longLineFloor(std::size_t count, int width) {
    PlotFloor floor;
    static std::vector<double> values(wave().size());
    std::memcpy(values.data(), wave().data(), count * sizeof(double));
    std::vector<QPointF> points;
    const double top = count > 1000 ? 150 : 55, range = count > 1000 ? 250 : 55; // of the chart's axis
    const auto y = [=](double value) { return kTop + kPlotHeight * (top - value) / range; };
    for (std::size_t i = 0; i < count && count <= 4 * kPlotWidth; ++i)
        points.emplace_back(kLeft + static_cast<double>(i * kPlotWidth) / static_cast<double>(count),
                            y(values[i]));
    for (std::size_t column = 0; column < kPlotWidth && count > 4 * kPlotWidth; ++column) {
        const std::size_t end = (column + 1) * count / kPlotWidth;
        std::size_t i = column * count / kPlotWidth;
        double low = values[i], high = values[i];
        const double first = values[i], last = values[end - 1];
        for (; i < end; ++i) {
            low = values[i] < low ? values[i] : low;
            high = values[i] > high ? values[i] : high;
        }
        for (const double value : {first, low, high, last})
            points.emplace_back(kLeft + column, y(value));
    }
    floor.painter.setPen(QPen(QColor(0x44, 0x79, 0xbb), width));
    for (std::size_t i = 0; i + 1 < points.size(); i += 12) {
        const std::size_t length = std::min<std::size_t>(13, points.size() - i);
        floor.painter.drawPolyline(points.data() + i, static_cast<int>(length));
    }
    floor.make();
}

inline void cloud(int count) {
    const Plot plot;
    CXYChart_addScatterLayer(plot.xy, wave().data(), count, wave().data() + wave().size() - count, count,
                             nullptr, CHART_CIRCLE_SYMBOL, 9, static_cast<int>(0x804479bbu), -1);
    plot.make();
}

inline void cloudFloor(std::size_t count) {
    PlotFloor floor;
    QImage sprite(11, 11, QImage::Format_ARGB32_Premultiplied);
    sprite.fill(Qt::transparent);
    {
        QPainter painter(&sprite);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(QColor(0x44, 0x79, 0xbb, 127));
        painter.drawEllipse(QRectF(1.5, 1.5, 8, 8));
    }
    const double* x = wave().data();
    const double* y = x + wave().size() - count;
    for (std::size_t i = 0; i < count; ++i) {
        floor.painter.drawImage(
            QPoint(static_cast<int>(kLeft + 180 + x[i] * 2), static_cast<int>(kTop + 220 - y[i] * 2)),
            sprite);
    }
    floor.make();
}

inline void manyBars(int count, int width = kWidth, int height = kHeight) {
    const Plot plot(width, height);
    CXYChart_addBarLayer(plot.xy, wave().data(), count, 0x4479bb, nullptr, 0);
    plot.make();
}

template <int combine>
void manySets(int count) {
    const Plot plot;
    Layer* layer = BarLayer2Layer(CXYChart_addBarLayer2(plot.xy, combine, 0));
    for (int set = 0; set < 3; ++set)
        CLayer_addDataSet(layer, wave().data() + set * count, count, -1, nullptr);
    plot.make();
}

inline void manyCandles(int count) {
    static const Prices p(1'000'000);
    const Plot plot;
    CXYChart_addCandleStickLayer(plot.xy, p.high.data(), count, p.low.data(), count, p.open.data(), count,
                                 p.close.data(), count, 0x33aa55, 0xcc3333, -1);
    plot.make();
}

inline void manySectors(int count) {
    PieChart* pie = CPieChart_create(kWidth, kHeight, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    CPieChart_setPieSize(pie, kWidth / 2, kHeight / 2, 160);
    static const std::vector<double> values(1000, 1);
    CPieChart_setData(pie, values.data(), count, nullptr, 0);
    makePicture(PieChart2BaseChart(pie));
}

} // namespace bench
