// The editors as their users wait for them: from the host's call to the first finished preview, with all
// pages built, and from one press of an arrow to the repainted preview. Pies of seven sectors, all else as a
// new object has it, at the default size of 500 x 550.

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>
#include <benchmark/benchmark.h>
#include <charteditors/charteditors.h>
#include <chrono>
#include <functional>

namespace {

using Clock = std::chrono::steady_clock;

CPieChart SevenSectors() {
    CPieChart pie;
    for (const char* name : {"One", "Two", "Three", "Four", "Five", "Six", "Seven"}) {
        CPieChartSector sector;
        sector.m_text = name;
        sector.m_color.m_color = 0xFFFFFFFF;
        pie.m_sectors.push_back(sector);
    }
    return pie;
}

/// Counts the finished paints of the preview.
class PaintWatch : public QObject {
public:
    PaintWatch() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->parent() != nullptr &&
            watched->parent()->objectName() == QStringLiteral("Preview")) {
            // Comes when the paint is over.
            QTimer::singleShot(0, this, [this] {
                ++m_paints;
                if (m_then)
                    m_then();
            });
        }
        return false;
    }
    /// Runs the events until the preview has been painted once more.
    void Wait() const {
        for (const int before = m_paints; m_paints == before;)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    void Then(std::function<void()> then) { m_then = std::move(then); }

private:
    int m_paints = 0;
    std::function<void()> m_then;
};

void Close() {
    if (QWidget* dialog = QApplication::activeModalWidget())
        dialog->close();
}

/// `show` runs the editor.
void Open(benchmark::State& state, const std::function<void()>& show) {
    PaintWatch watch;
    for (auto _ : state) {
        const Clock::time_point start = Clock::now();
        watch.Then([&state, start] {
            if (QApplication::activeModalWidget() != nullptr) {
                state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
                Close();
            }
        });
        show();
    }
}

void open(benchmark::State& state) {
    CPieChart pie = SevenSectors();
    Open(state, [&] { ShowPieChartWnd(pie, CChartLayout()); });
}

void openLayout(benchmark::State& state) {
    CChartLayout layout;
    Open(state, [&] { ShowChartLayoutWnd(layout); });
}

template <class Object, bool (*Show)(Object&, const CChartLayout&)>
void openNew(benchmark::State& state) {
    Object object;
    Open(state, [&] { Show(object, CChartLayout()); });
}

void press(benchmark::State& state) {
    CPieChart pie = SevenSectors();
    pie.m_show3D = true;
    PaintWatch watch;
    QTimer::singleShot(0, [&] {
        auto* depth = QApplication::activeModalWidget()->findChild<QWidget*>(QStringLiteral("Depth"));
        watch.Wait();
        bool up = true;
        for (auto _ : state) {
            QKeyEvent key(QEvent::KeyPress, up ? Qt::Key_Up : Qt::Key_Down, Qt::NoModifier);
            QCoreApplication::sendEvent(depth, &key);
            watch.Wait();
            up = !up;
        }
        Close();
    });
    ShowPieChartWnd(pie, CChartLayout());
}

BENCHMARK(open)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(openLayout)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(openNew<CAngularMeter, ShowAngularMeterWnd>)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(openNew<CLinearMeter, ShowLinearMeterWnd>)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(press)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
