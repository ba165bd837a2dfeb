// Polar charts at 500 x 550: the grid alone and with a line of nine points, built, drawn and made into the
// bitmap file, beside the same circles, lines and texts by the plain painter.

#include "bench/floor.h"
#include <chartdraw/surface.h>

#include <QPainter>
#include <benchmark/benchmark.h>
#include <cmath>
#include <numbers>

namespace {

constexpr int kWidth = 500, kHeight = 550;
const double kRadii[] = {90, 25, 40, 55, 68, 44, 79, 85, 50};
const double kAngles[] = {15, 60, 110, 180, 230, 260, 260, 310, 340};

void polarByLibrary(benchmark::State& state) {
    for (auto _ : state) {
        PolarChart* polar = CPolarChart_create(kWidth, kHeight, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
        BaseChart* chart = PolarChart2BaseChart(polar);
        CPolarChart_setPlotArea(polar, 250, 275, 200, CHART_TRANSPARENT, CHART_TRANSPARENT, 1);
        if (state.range(0) == 0) {
            CAxis_setLinearScale(CPolarChart_radialAxis(polar), 0, 100, 10, 0);
        } else {
            PolarLayer* layer =
                PolarLineLayer2PolarLayer(CPolarChart_addLineLayer(polar, kRadii, 9, 0xff, nullptr));
            CPolarLayer_setAngles(layer, kAngles, 9);
            CPolarLayer_setDataLabelStyle(layer, nullptr, 8, CHART_TEXT_COLOR, 0);
        }
        const char* bytes = nullptr;
        int length = 0;
        CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, &bytes, &length);
        benchmark::DoNotOptimize(bytes);
        CBaseChart_destroy(chart);
    }
}

QPointF at(double degrees, double distance) {
    const double angle = degrees * std::numbers::pi / 180;
    return {250 + distance * std::sin(angle), 275 - distance * std::cos(angle)};
}

void polarByPainter(benchmark::State& state) {
    const QFont font = bench::plainFont(8);
    const bool empty = state.range(0) == 0;
    for (auto _ : state) {
        QImage image(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(font);
        painter.setPen(QColor(0xcc, 0xcc, 0xcc));
        const int rings = empty ? 10 : 5;
        for (int i = 1; i <= rings; ++i)
            painter.drawEllipse(QPointF(250, 275), 200.0 * i / rings, 200.0 * i / rings);
        for (int i = 0; i < 12; ++i)
            painter.drawLine(at(0, 0), at(i * 30, 200));
        painter.setPen(Qt::black);
        painter.drawLine(250, 75, 250, 275);
        for (int i = 0; i <= rings; ++i) {
            const double y = 275 - 200.0 * i / rings;
            painter.drawLine(QPointF(246, y), QPointF(250, y));
            painter.drawText(QRectF(200, y - 7, 42, 14), Qt::AlignRight, QString::number(i * 100 / rings));
        }
        for (int i = 0; i < 12; ++i) {
            painter.drawText(QRectF(at(i * 30, 212) - QPointF(20, 7), QSizeF(40, 14)), Qt::AlignCenter,
                             QString::number(i * 30));
        }
        for (int i = 0; !empty && i < 9; ++i) {
            painter.setPen(Qt::blue);
            painter.drawLine(at(kAngles[i], kRadii[i] * 2),
                             at(kAngles[(i + 1) % 9], kRadii[(i + 1) % 9] * 2));
            painter.setPen(Qt::black);
            painter.drawText(QRectF(at(kAngles[i], kRadii[i] * 2 + 8) - QPointF(20, 7), QSizeF(40, 14)),
                             Qt::AlignCenter, QString::number(kRadii[i]));
        }
        painter.end();
        benchmark::DoNotOptimize(bench::bitmapFile(image));
    }
}

// The argument: 0 a chart without layers, 1 with a line of nine labelled points.
BENCHMARK(polarByPainter)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(polarByLibrary)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

} // namespace

BENCH_MAIN()
