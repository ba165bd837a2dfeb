// XY charts, built, drawn and made into the bitmap file, each beside the same marks by the plain painter.

#include "bench/floor.h"
#include <chartdraw/surface.h>

#include <QLineF>
#include <QPainter>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <vector>

namespace {

constexpr int kWidth = 700, kHeight = 400, kLeft = 50, kTop = 50, kPlotWidth = 600, kPlotHeight = 300;

struct Chart {
    XYChart* xy = CXYChart_create(kWidth, kHeight, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    BaseChart* base = XYChart2BaseChart(xy);

    Chart() { CXYChart_setPlotArea(xy, kLeft, kTop, kPlotWidth, kPlotHeight, -1, -1, -1, -1, -1); }
    void make() {
        const char* bytes = nullptr;
        int length = 0;
        CBaseChart_makeChart2(base, CHART_FORMAT_BMP, &bytes, &length);
        benchmark::DoNotOptimize(bytes);
        CBaseChart_destroy(base);
    }
};

struct Floor {
    QImage image{kWidth, kHeight, QImage::Format_ARGB32_Premultiplied};
    QPainter painter;

    Floor() {
        image.fill(Qt::white);
        painter.begin(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(bench::plainFont(8));
        for (int i = 0; i <= 5; ++i) {
            painter.fillRect(QRect(kLeft, kTop + i * kPlotHeight / 5, kPlotWidth, 1), Qt::lightGray);
            text(QRectF(0, kTop + i * kPlotHeight / 5 - 8, kLeft - 6, 16), 100 - i * 20, Qt::AlignRight);
        }
        painter.drawRect(QRectF(kLeft + 0.5, kTop + 0.5, kPlotWidth, kPlotHeight));
        for (int i = 0; i < 6; ++i)
            text(QRectF(kLeft + i * 100, kTop + kPlotHeight + 6, 100, 16), i);
    }
    void text(const QRectF& box, int number, Qt::Alignment alignment = Qt::AlignHCenter) {
        painter.drawText(box, static_cast<int>(alignment), QString::number(number));
    }
    void make() {
        painter.end();
        benchmark::DoNotOptimize(bench::bitmapFile(image));
    }
};

const double kSets[3][6] = {{25, 18, 31, 22, 38, 29}, {12, 27, 19, 33, 24, 16}, {8, 15, 23, 11, 17, 26}};
const char* const kNames[] = {"North", "South", "West"};

void barsByLibrary(benchmark::State& state) {
    for (auto _ : state) {
        Chart chart;
        CBaseChart_addTitle(chart.base, "Sales by region", "bold", 12, -1, -1, -1);
        CBaseChart_addLegend(chart.base, kLeft, 28, false, nullptr, 8);
        Layer* layer = BarLayer2Layer(CXYChart_addBarLayer2(chart.xy, CHART_COMBINE_SIDE, 0));
        for (int i = 0; i < 3; ++i)
            CLayer_addDataSet(layer, kSets[i], 6, -1, kNames[i]);
        CLayer_setDataLabelStyle(layer, nullptr, 8, -1, 0);
        chart.make();
    }
}

void barsByPainter(benchmark::State& state) {
    for (auto _ : state) {
        Floor floor;
        for (int i = 0; i < 3; ++i) {
            const QColor colour = QColor::fromHsv(i * 90, 180, 200);
            for (int k = 0; k < 6; ++k) {
                const int height = static_cast<int>(kSets[i][k] * 6);
                const QRect bar(kLeft + k * 100 + 10 + i * 27, kTop + kPlotHeight - height, 27, height);
                floor.painter.fillRect(bar, colour);
                floor.text(QRectF(bar.left(), bar.top() - 16, 27, 16), static_cast<int>(kSets[i][k]));
            }
            floor.painter.fillRect(QRect(kLeft + i * 80, 30, 9, 9), colour);
            floor.painter.drawText(QRectF(kLeft + 14 + i * 80, 28, 66, 16), 0, kNames[i]);
        }
        floor.painter.setFont(bench::plainFont(12));
        floor.painter.drawText(QRectF(0, 4, kWidth, 20), Qt::AlignHCenter, "Sales by region");
        floor.make();
    }
}

/// A slow wave under noise.
const std::vector<double>& wave() {
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

/// Arguments: points, width of the line.
void lineByLibrary(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    wave();
    for (auto _ : state) {
        Chart chart;
        LineLayer* layer = CXYChart_addLineLayer(chart.xy, wave().data(), count, 0x4479bb, nullptr, 0);
        CLayer_setLineWidth(LineLayer2Layer(layer), static_cast<int>(state.range(1)));
        chart.make();
    }
}

/// The copy that a chart has to take, the least and the greatest value of each column, and a line through
/// these.
void lineByPainter(benchmark::State& state) {
    const std::size_t count = static_cast<std::size_t>(state.range(0));
    wave();
    for (auto _ : state) {
        Floor floor;
        const std::vector<double> values(wave().begin(), wave().begin() + state.range(0));
        std::vector<QPointF> points;
        for (std::size_t column = 0; column < kPlotWidth; ++column) {
            const std::size_t end = (column + 1) * count / kPlotWidth;
            std::size_t i = column * count / kPlotWidth;
            double low = values[i], high = values[i];
            const double first = values[i], last = values[end - 1];
            for (; i < end; ++i) {
                low = values[i] < low ? values[i] : low;
                high = values[i] > high ? values[i] : high;
            }
            for (const double value : {first, low, high, last})
                points.emplace_back(kLeft + column, kTop + kPlotHeight / 2.0 - value);
        }
        floor.painter.setPen(QPen(QColor(0x44, 0x79, 0xbb), static_cast<double>(state.range(1))));
        for (std::size_t i = 0; i + 1 < points.size(); i += 12) {
            const std::size_t length = std::min<std::size_t>(13, points.size() - i);
            floor.painter.drawPolyline(points.data() + i, static_cast<int>(length));
        }
        floor.make();
    }
}

void cloud(std::vector<double>& x, std::vector<double>& y, std::size_t count) {
    x.assign(wave().begin(), wave().begin() + static_cast<std::ptrdiff_t>(count));
    y.assign(wave().end() - static_cast<std::ptrdiff_t>(count), wave().end());
}

void scatterByLibrary(benchmark::State& state) {
    std::vector<double> x, y;
    cloud(x, y, static_cast<std::size_t>(state.range(0)));
    const int count = static_cast<int>(x.size());
    for (auto _ : state) {
        Chart chart;
        CXYChart_addScatterLayer(chart.xy, x.data(), count, y.data(), count, nullptr, CHART_CIRCLE_SYMBOL, 9,
                                 static_cast<int>(0x804479bbu), -1);
        chart.make();
    }
}

void scatterByPainter(benchmark::State& state) {
    std::vector<double> x, y;
    cloud(x, y, static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        Floor floor;
        QImage sprite(11, 11, QImage::Format_ARGB32_Premultiplied);
        sprite.fill(Qt::transparent);
        {
            QPainter painter(&sprite);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setBrush(QColor(0x44, 0x79, 0xbb, 127));
            painter.drawEllipse(QRectF(1.5, 1.5, 8, 8));
        }
        for (std::size_t i = 0; i < x.size(); ++i) {
            floor.painter.drawImage(
                QPoint(static_cast<int>(kLeft + 250 + x[i] * 2), static_cast<int>(kTop + 150 - y[i])),
                sprite);
        }
        floor.make();
    }
}

struct Prices {
    std::vector<double> high, low, open, close, average, volume;

    Prices() {
        for (int i = 0; i < 100; ++i) {
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

void financeByLibrary(benchmark::State& state) {
    const Prices p;
    for (auto _ : state) {
        Chart chart;
        BarLayer* bars = CXYChart_addBarLayer(chart.xy, p.volume.data(), 100, 0x99cc99, nullptr, 0);
        CLayer_setBorderColor(BarLayer2Layer(bars), CHART_TRANSPARENT, 0);
        CXYChart_addCandleStickLayer(chart.xy, p.high.data(), 100, p.low.data(), 100, p.open.data(), 100,
                                     p.close.data(), 100, 0x33aa55, 0xcc3333, -1);
        CXYChart_addLineLayer(chart.xy, p.average.data(), 100, 0x663399, nullptr, 0);
        chart.make();
    }
}

void financeByPainter(benchmark::State& state) {
    const Prices p;
    for (auto _ : state) {
        Floor floor;
        const auto y = [](double value) { return kTop + kPlotHeight - static_cast<int>(value * 3); };
        QList<QPointF> average;
        for (std::size_t i = 0; i < 100; ++i) {
            const int x = kLeft + 3 + static_cast<int>(i) * 6;
            floor.painter.fillRect(QRect(x - 2, y(p.volume[i]), 5, y(0) - y(p.volume[i])), QColor(0x99cc99));
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
}

BENCHMARK(barsByPainter)->Unit(benchmark::kMicrosecond);
BENCHMARK(barsByLibrary)->Unit(benchmark::kMicrosecond);
BENCHMARK(lineByPainter)->Args({1'000'000, 1})->Args({10'000'000, 1})->Unit(benchmark::kMillisecond);
BENCHMARK(lineByLibrary)
    ->Args({1'000, 1})
    ->Args({1'000, 3})
    ->Args({100'000, 1})
    ->Args({1'000'000, 1})
    ->Args({1'000'000, 3})
    ->Args({10'000'000, 1})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(scatterByPainter)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(scatterByLibrary)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(financeByPainter)->Unit(benchmark::kMicrosecond);
BENCHMARK(financeByLibrary)->Unit(benchmark::kMicrosecond);

} // namespace

BENCH_MAIN()
