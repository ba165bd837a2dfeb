// New meters at 500 x 550: built, drawn and made into the bitmap file, beside the same ticks, rings and texts
// by the plain painter, which no library can beat by much.

#include "bench/floor.h"
#include <chartdraw/surface.h>

#include <QLineF>
#include <QPainter>
#include <QPainterPath>
#include <benchmark/benchmark.h>
#include <cmath>
#include <numbers>

namespace {

constexpr int kWidth = 500, kHeight = 550;

void makePicture(BaseChart* chart) {
    const char* bytes = nullptr;
    int length = 0;
    CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, &bytes, &length);
    benchmark::DoNotOptimize(bytes);
    CBaseChart_destroy(chart);
}

void angularByLibrary(benchmark::State& state) {
    for (auto _ : state) {
        AngularMeter* meter =
            CAngularMeter_create(kWidth, kHeight, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
        BaseMeter* base = AngularMeter2BaseMeter(meter);
        CAngularMeter_setMeter(meter, 250, 275, 200, -90, 90);
        CBaseMeter_setLineWidth(base, 0, 1, 1, 1);
        CBaseMeter_setScale(base, 0, 100, 10, 5, 1);
        if (state.range(0) != 0) {
            CAngularMeter_addRing(meter, 0, 220, CChart_metalColor(0x9999dd, 90), -1);
            CAngularMeter_addRing(meter, 210, 220, 0x6666ff, -1);
            CBaseMeter_addPointer(base, 45.17, 0x40333399, -1);
        }
        makePicture(BaseMeter2BaseChart(base));
    }
}

void angularByPainter(benchmark::State& state) {
    const QFont font = bench::plainFont(8);
    for (auto _ : state) {
        QImage image(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(font);
        if (state.range(0) != 0) {
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
        }
        painter.setPen(Qt::black);
        QList<QLineF> ticks;
        for (int i = 0; i <= 100; ++i) {
            const double angle = (i * 1.8 - 90) * std::numbers::pi / 180;
            const QPointF out(std::sin(angle), -std::cos(angle));
            const double length = i % 10 == 0 ? 14 : i % 5 == 0 ? 9 : 6;
            ticks.emplace_back(QPointF(250, 275) + out * 200, QPointF(250, 275) + out * (200 - length));
            if (i % 10 == 0) {
                painter.drawText(QRectF(QPointF(235, 268) + out * 212, QSizeF(30, 14)), Qt::AlignCenter,
                                 QString::number(i));
            }
        }
        painter.drawLines(ticks);
        if (state.range(0) != 0) {
            QPolygonF pointer = {{240, 100}, {258, 276}, {254, 300}, {242, 274}};
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(0x33, 0x33, 0x99, 0xbf));
            painter.drawPolygon(pointer);
            painter.drawEllipse(QPointF(250, 275), 9, 9);
        }
        painter.end();
        benchmark::DoNotOptimize(bench::bitmapFile(image));
    }
}

void linearByLibrary(benchmark::State& state) {
    for (auto _ : state) {
        LinearMeter* meter =
            CLinearMeter_create(kWidth, kHeight, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
        BaseMeter* base = LinearMeter2BaseMeter(meter);
        CLinearMeter_setMeter(meter, 225, 75, 50, 400, CHART_LEFT, false);
        CBaseMeter_setLineWidth(base, 0, 1, 1, 1);
        CBaseMeter_setScale(base, 0, 100, 10, 5, 1);
        makePicture(BaseMeter2BaseChart(base));
    }
}

void linearByPainter(benchmark::State& state) {
    const QFont font = bench::plainFont(8);
    for (auto _ : state) {
        QImage image(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(font);
        for (int i = 0; i <= 100; ++i) {
            const int length = i % 10 == 0 ? 10 : i % 5 == 0 ? 7 : 4;
            painter.fillRect(225 - length, 475 - 4 * i, length, 1, Qt::black);
            if (i % 10 == 0) {
                painter.drawText(QRectF(180, 468 - 4 * i, 32, 14), Qt::AlignRight | Qt::AlignVCenter,
                                 QString::number(i));
            }
        }
        painter.end();
        benchmark::DoNotOptimize(bench::bitmapFile(image));
    }
}

// The argument: 0 the bare scale of a new model, 1 with metal, a rim and a pointer.
BENCHMARK(angularByPainter)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(angularByLibrary)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(linearByPainter)->Unit(benchmark::kMicrosecond);
BENCHMARK(linearByLibrary)->Unit(benchmark::kMicrosecond);

} // namespace

BENCH_MAIN()
