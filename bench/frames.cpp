// bench_frames [PART [ROW]]: whole frames of charts - built, laid out, drawn, turned into the bitmap file,
// destroyed - beside the same rectangles, lines, circles and texts by the plain painter; then what a million
// data cost beside a thousand, processes that draw one chart, their memory, and two threads. PART, ROW: one
// of these alone.

#include "bench/charts.h"
#include "bench/table.h"

#include <QFile>
#include <QProcess>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <thread>

namespace {

using namespace bench;

void frames() {
    bench::heading("frame, 500 x 550", "floor");
    using bench::row;
    row("3 x 6 bars, title, legend, labels", bars, barsFloor);
    row("line of 6, symbols, title, legend", shortLine, shortLineFloor);
    row("100 candles, average, volume", candles, candlesFloor);
    row("pie of 7, labels, legend", pie, pieFloor);
    row("polar line of 9, labels", polar, polarFloor);
    row("angular meter, metal, pointer", angularMeter, angularMeterFloor);
    const auto line = [&](const char* name, int count, int width) {
        row(
            name, [=] { longLine(count, width); },
            [=] { longLineFloor(static_cast<std::size_t>(count), width); });
    };
    line("line of 1,000", 1'000, 1);
    line("line of 100,000", 100'000, 1);
    line("line of 1,000,000", 1'000'000, 1);
    line("line of 10,000,000", 10'000'000, 1);
    line("line of 100,000, 2 pixels wide", 100'000, 2);
    row(
        "100,000 symbols", [] { cloud(100'000); }, [] { cloudFloor(100'000); });
}

void growth() {
    bench::heading("a million beside a thousand", "thousand");
    const auto row = [](const char* name, void (*draw)(int), int many = 1'000'000, int few = 1'000) {
        bench::row(
            name, [=] { draw(many); }, [=] { draw(few); });
    };
    row("bars", [](int count) { manyBars(count); });
    row("100,000 rows of three bars", manySets<CHART_COMBINE_SIDE>, 100'000);
    row("100,000 rows of a stack", manySets<CHART_COMBINE_STACK>, 100'000);
    row("candles", manyCandles);
    row("scatter points", cloud);
    row("1,000 sectors beside 100", manySectors, 1'000, 100);
}

/// Megabytes that the process has taken at most; 0 where the system does not tell.
double mostMemory() {
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QFile::ReadOnly))
        return 0;
    const QByteArray status = file.readAll();
    return status.mid(status.indexOf("VmHWM:") + 6, 16).simplified().split(' ').first().toDouble() / 1024;
}

/// What a process of its own does; prints its memory.
int alone(std::string_view part) {
    std::size_t points = 10'000'000;
    if (part == "one-bar-chart")
        bars();
    else if (part == "one-picture")
        barsFloor();
    else if (part == "large-bars") {
        const Plot plot(4000, 4000);
        CXYChart_addBarLayer(plot.xy, kSets[0], 6, 0x4479bb, nullptr, 0);
        plot.make();
    } else if (part == "long-line") {
        const std::unique_ptr<double[]> x(new double[points]), y(new double[points]);
        for (std::size_t i = 0; i < points; ++i) {
            x[i] = static_cast<double>(i);
            y[i] = std::sin(x[i] * 1e-5);
        }
        const Plot plot;
        Layer* layer = LineLayer2Layer(
            CXYChart_addLineLayer(plot.xy, y.get(), static_cast<int>(points), 0x4479bb, nullptr, 0));
        CLayer_setXData(layer, x.get(), static_cast<int>(points));
        plot.make();
    } else
        return 1;
    std::printf("%.1f\n", mostMemory());
    return 0;
}

double printedBy(const char* part) {
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(part)});
    process.waitForFinished(-1);
    return process.readAllStandardOutput().toDouble();
}

void processes() {
    bench::heading("process that draws one chart, wall", "floor");
    bench::row(
        "3 x 6 bars, title, legend, labels", [] { printedBy("one-bar-chart"); },
        [] { printedBy("one-picture"); }, bench::wallTime);
    bench::heading("most memory of a process", "limit");
    const auto row = [](const char* name, const char* part, double limit) {
        const double taken = printedBy(part);
        bench::print(name, {taken, limit, taken / limit}, "MB");
    };
    row("bars of 4000 x 4000 pixels", "large-bars", 140);
    row("line of 10,000,000 x and y, the host's included", "long-line", 340);
}

void threads() {
    bench::heading("frames a millisecond, two threads", "one");
    const auto frameRate = [](int threads) {
        constexpr int kFrames = 400;
        const double start = bench::wallTime();
        std::vector<std::thread> running;
        for (int i = 0; i < threads; ++i)
            running.emplace_back([] {
                for (int frame = 0; frame < kFrames; ++frame)
                    bars();
            });
        for (std::thread& thread : running)
            thread.join();
        return threads * kFrames / (bench::wallTime() - start);
    };
    std::array<double, bench::kRounds> one{}, two{}, ratio{};
    for (std::size_t i = 0; i < bench::kRounds; ++i) {
        one[i] = frameRate(1);
        two[i] = frameRate(2);
        ratio[i] = two[i] / one[i];
    }
    bench::print("3 x 6 bars, title, legend, labels",
                 {bench::median(two), bench::median(one), bench::median(ratio)}, "");
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::string_view part = argc > 1 ? argv[1] : "";
    bench::wanted = argc > 2 ? argv[2] : "";
    if (part ==
        "one-bar-chart") // makes its application object itself, as a host that is none of the toolkit's does
        return alone(part);
    const QGuiApplication application(argc, argv);
    const std::pair<std::string_view, void (*)()> parts[] = {
        {"processes", processes}, {"frames", frames}, {"growth", growth}, {"threads", threads}};
    bool known = part.empty();
    for (const auto& [name, run] : parts) {
        if (part.empty() || part == name) {
            run();
            known = true;
        }
    }
    return known ? 0 : alone(part);
}
