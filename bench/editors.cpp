// The editors as their users wait for them: from the host's call to the first finished preview, with all
// pages built, and from one press of an arrow to the repainted preview. Pies of seven sectors, all else as a
// new object has it, at the default size of 500 x 550.

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

/// From the press of an arrow to the repainted preview, beside the drawing of the picture alone.
void Press(PaintWatch& watch, const char* name) {
    CPieChart pie = SevenSectors();
    pie.m_show3D = true;
    QTimer::singleShot(0, [&] {
        auto* depth = QApplication::activeModalWidget()->findChild<QWidget*>(QStringLiteral("Depth"));
        watch.Wait();
        bool up = true;
        const auto press = [&] {
            QKeyEvent key(QEvent::KeyPress, up ? Qt::Key_Up : Qt::Key_Down, Qt::NoModifier);
            QCoreApplication::sendEvent(depth, &key);
            watch.Wait();
            up = !up;
        };
        const auto draw = [&] {
            const double values[] = {40, 34, 34, 53, 64, 40, 34};
            CChartPicture picture;
            RenderPieChart(pie, CChartLayout(), {values, nullptr, 7}, ChartPictureFormat::Bmp, picture);
        };
        bench::row(name, press, draw);
        Close();
    });
    ShowPieChartWnd(pie, CChartLayout());
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
    Press(watch, "pie of 7 in 3D, depth");
    return 0;
}
