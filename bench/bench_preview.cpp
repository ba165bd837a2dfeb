// From RefreshPreview to the painted pane for the default pie, whole and in its steps, and scrolling, which
// only copies.

#include "editors/preview/chart_preview_view.h"
#include "render/pie.h"
#include "resources/preview_menu.h"
#include <QApplication>
#include <QScrollBar>
#include <benchmark/benchmark.h>

namespace {

/// A pane in its own window, with its picture drawn and shown.
struct ShownView : CChartPreviewView {
    explicit ShownView(QSize pane) {
        SetChart(CPieChart(), CChartLayout()); // a picture of 500 x 550
        resize(pane + QSize(2, 2));
        show();
        QCoreApplication::processEvents();
        viewport()->repaint();
    }
};

constexpr QSize kSmaller(340, 380);
constexpr QSize kLarger(520, 570);

void refreshToPaintedPane(benchmark::State& state, QSize pane) {
    ShownView view(pane);
    for (auto _ : state) {
        view.RefreshPreview();
        view.viewport()->repaint();
    }
}

void modelToCalls(benchmark::State& state) {
    const CChartLayout layout;
    const CPieChart look;
    const double values[] = {40, 34, 34, 53, 64};
    const char* labels[] = {"Sector 1", "Sector 2", "Sector 3", "Sector 4", "Sector 5"};
    for (auto _ : state) {
        const PieHolder holder = BeginPieChart(layout);
        FinishPieChart(holder, look, layout, {values, labels});
    }
}

void drawing(benchmark::State& state) {
    CChartLayout layout;
    const PieHolder holder = BeginPieChart(layout);
    const double values[] = {40, 34, 34, 53, 64};
    FinishPieChart(holder, CPieChart(), layout, {values, {}});
    for (auto _ : state) {
        CBaseChart_setSize(holder.chart.Get(), layout.m_width, layout.m_height); // so that it draws anew
        StorePicture(nullptr, holder.chart.Get());
    }
}

void storing(benchmark::State& state) {
    ShownView view(kSmaller);
    const PieHolder holder = BeginPieChart(*view.m_layout);
    for (auto _ : state)
        StorePicture(&view, holder.chart.Get()); // the chart keeps its drawing
}

void painting(benchmark::State& state, QSize pane, int command) {
    ShownView view(pane);
    view.OnCommand(command);
    QCoreApplication::processEvents();
    for (auto _ : state)
        view.viewport()->repaint();
}

void scrolling(benchmark::State& state) {
    ShownView view(kSmaller);
    view.OnCommand(scrollModeCommand);
    QCoreApplication::processEvents();
    int at = 0;
    for (auto _ : state) {
        at = (at + 3) % view.verticalScrollBar()->maximum();
        view.verticalScrollBar()->setValue(at);
        QCoreApplication::processEvents();
    }
}

BENCHMARK_CAPTURE(refreshToPaintedPane, shrunk, kSmaller)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(refreshToPaintedPane, natural, kLarger)->Unit(benchmark::kMicrosecond);
BENCHMARK(modelToCalls)->Unit(benchmark::kMicrosecond);
BENCHMARK(drawing)->Unit(benchmark::kMicrosecond);
BENCHMARK(storing)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(painting, shrunk, kSmaller, fitModeCommand)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(painting, natural, kLarger, fitModeCommand)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(painting, scrolled, kSmaller, scrollModeCommand)->Unit(benchmark::kMicrosecond);
BENCHMARK(scrolling)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
