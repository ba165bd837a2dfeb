// The editors as their users wait for them: from the host's call to the first finished preview, with the
// page that shows, and from one press of an arrow to the repainted preview. Pies of seven sectors, all else
// as a new object has it, at the default size of 500 x 550.

#include "bench/table.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>
#include <array>
#include <charteditors/charteditors.h>
#include <chartrender/chartrender.h>
#include <functional>
#include <utility>

namespace {

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

/// Milliseconds from the host's call to the first finished preview; `show` runs the editor.
double Opened(PaintWatch& watch, const bench::Work& show) {
    const double start = bench::cpuTime();
    double taken = 0;
    watch.Then([&] {
        if (QApplication::activeModalWidget() != nullptr) {
            taken = bench::cpuTime() - start;
            Close();
        }
    });
    show();
    watch.Then({});
    return taken;
}

template <class Object, bool (*Show)(Object&, const CChartLayout&)>
void OpenNew() {
    Object object;
    Show(object, CChartLayout());
}

void OpenPie() {
    CPieChart pie = SevenSectors();
    ShowPieChartWnd(pie, CChartLayout());
}

void OpenLayout() {
    CChartLayout layout;
    ShowChartLayoutWnd(layout);
}

/// Hands `measure` a press of an arrow in a field of the editor that `show` runs, to the repainted preview.
void Press(PaintWatch& watch, const char* field, const bench::Work& show,
           const std::function<void(const bench::Work&)>& measure) {
    QTimer::singleShot(0, [&] {
        auto* edit = QApplication::activeModalWidget()->findChild<QWidget*>(QString::fromLatin1(field));
        watch.Wait();
        bool up = true;
        measure([&] {
            QKeyEvent key(QEvent::KeyPress, up ? Qt::Key_Up : Qt::Key_Down, Qt::NoModifier);
            QCoreApplication::sendEvent(edit, &key);
            watch.Wait();
            up = !up;
        });
        Close();
    });
    show();
}

/// Beside the drawing of the picture alone.
void PressPie(PaintWatch& watch, const char* name) {
    CPieChart pie = SevenSectors();
    pie.m_show3D = true;
    const auto draw = [&pie] {
        const double values[] = {40, 34, 34, 53, 64, 40, 34};
        CChartPicture picture;
        RenderPieChart(pie, CChartLayout(), {values, nullptr, 7}, ChartPictureFormat::Bmp, picture);
    };
    Press(
        watch, "Depth", [&] { ShowPieChartWnd(pie, CChartLayout()); },
        [&](const bench::Work& press) { bench::row(name, press, draw); });
}

/// The largest of the samples: 130 days with all panes and indicators.
void PressLargest(PaintWatch& watch, const char* name, double limit) {
    CFinanceChart chart;
    for (bool* show : {&chart.m_showSma, &chart.m_showBollingerBand, &chart.m_showVolBars,
                       &chart.m_showCandleStick, &chart.m_showDonchianChannel, &chart.m_showRsi,
                       &chart.m_showMomentum, &chart.m_showSlowStochastic, &chart.m_showMacd})
        *show = true;
    Press(
        watch, "Height", [&] { ShowFinanceChartWnd(chart, CChartLayout()); },
        [&](const bench::Work& press) {
            std::array<double, bench::kRounds> taken{};
            for (double& time : taken)
                time = bench::timeOf(press, bench::cpuTime);
            const double median = bench::median(taken);
            bench::print(name, {median, limit, median / limit});
        });
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    PaintWatch watch;
    constexpr double kFirst = 25, kLater = 5; // milliseconds
    bench::heading("from the call to the first preview", "limit");
    const double first = Opened(watch, OpenPie);
    bench::print("pie, the first dialog of the process", {first, kFirst, first / kFirst});
    const std::pair<const char*, void (*)()> dialogs[] = {
        {"pie", OpenPie},
        {"layout", OpenLayout},
        {"XY chart", OpenNew<CXYChart, ShowXYChartWnd>},
        {"polar chart", OpenNew<CPolarChart, ShowPolarChartWnd>},
        {"finance chart", OpenNew<CFinanceChart, ShowFinanceChartWnd>},
        {"angular meter", OpenNew<CAngularMeter, ShowAngularMeterWnd>},
        {"linear meter", OpenNew<CLinearMeter, ShowLinearMeterWnd>},
    };
    for (const auto& [name, open] : dialogs) {
        std::array<double, bench::kRounds> taken{};
        Opened(watch, open); // the first of its kind loads what it shows
        for (double& time : taken)
            time = Opened(watch, open);
        bench::print(name, {bench::median(taken), kLater, bench::median(taken) / kLater});
    }
    bench::heading("from a press to the repainted preview", "drawing");
    PressPie(watch, "pie of 7 in 3D, depth");
    bench::heading("preview of the largest sample", "limit");
    PressLargest(watch, "finance chart, all panes and indicators", kLater);
    return 0;
}
