// A pie of seven sectors with labels and a legend at 500 x 550: built, drawn and made into the bitmap file,
// beside the same rectangles, sectors and texts by the plain painter, which no library can beat by much.

#include "bench/floor.h"
#include <chartdraw/surface.h>

#include <QPainter>
#include <benchmark/benchmark.h>
#include <string>

namespace {

constexpr int kWidth = 500, kHeight = 550, kRadius = 160;
const double kValues[] = {55, 18, 15, 22, 8, 15, 10};
const char* const kNames[] = {"Sector 1", "Sector 2", "Sector 3", "Sector 4",
                              "Sector 5", "Sector 6", "Sector 7"};

void pieByLibrary(benchmark::State& state) {
    for (auto _ : state) {
        PieChart* pie = CPieChart_create(kWidth, kHeight, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
        BaseChart* chart = PieChart2BaseChart(pie);
        CPieChart_setPieSize(pie, kWidth / 2, kHeight / 2, kRadius);
        CPieChart_setData(pie, kValues, 7, kNames, 7);
        CPieChart_setLabelStyle(pie, nullptr, 8, CHART_TEXT_COLOR);
        CPieChart_setLabelFormat(pie, "{label} ({percent|1}%)");
        CBaseChart_addLegend(chart, 320, 12, false, nullptr, 8);
        const char* bytes = nullptr;
        int length = 0;
        CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, &bytes, &length);
        benchmark::DoNotOptimize(bytes);
        CBaseChart_destroy(chart);
    }
}

void pieByPainter(benchmark::State& state) {
    const QFont font = bench::plainFont(8);
    for (auto _ : state) {
        QImage image(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(font);
        const QRect pie(kWidth / 2 - kRadius, kHeight / 2 - kRadius, 2 * kRadius, 2 * kRadius);
        double from = 90;
        for (int i = 0; i < 7; ++i) {
            const double span = kValues[i] / 143 * 360;
            painter.setPen(QPen(Qt::white, 1));
            painter.setBrush(QColor::fromHsv(i * 50, 180, 200));
            painter.drawPie(pie, static_cast<int>(from * 16), static_cast<int>(-span * 16));
            painter.setPen(Qt::black);
            const QString text = QString::asprintf("%s (%.1f%%)", kNames[i], kValues[i] / 1.43);
            painter.drawText(QRectF(20, 20 + 70 * i, 200, 20), Qt::AlignLeft, text);
            from -= span;
        }
        for (int i = 0; i < 7; ++i) {
            painter.fillRect(QRect(320 + i % 3 * 60, 12 + i / 3 * 14, 9, 9),
                             QColor::fromHsv(i * 50, 180, 200));
            painter.drawText(QRectF(334 + i % 3 * 60, 12 + i / 3 * 14, 60, 14), Qt::AlignLeft,
                             QString::fromUtf8(kNames[i]));
        }
        painter.end();
        benchmark::DoNotOptimize(bench::bitmapFile(image));
    }
}

BENCHMARK(pieByPainter)->Unit(benchmark::kMicrosecond);
BENCHMARK(pieByLibrary)->Unit(benchmark::kMicrosecond);

} // namespace

BENCH_MAIN()
