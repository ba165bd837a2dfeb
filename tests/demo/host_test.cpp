#include "demo/host_window.h"
#include "demo/prices.h"
#include "tests/driver/windows.h"
#include "tests/expect.h"
#include <QDragEnterEvent>
#include <QLabel>
#include <QListWidget>
#include <QMimeData>
#include <QTemporaryDir>

namespace {
class Host : public testing::Test {
protected:
    Host() {
        NeedApplication();
        m_window = std::make_unique<HostWindow>();
        m_window->show();
        for (QLabel* label : m_window->findChildren<QLabel*>())
            if (label->accessibleName() == "Chart") m_picture = label;
    }

    QImage Chart() { return m_picture->pixmap().toImage(); }
    void Press(const char* text) {
        for (QPushButton* button : m_window->findChildren<QPushButton*>()) {
            if (button->text() == QString::fromUtf8(text)) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        FAIL() << "no button " << text;
    }
    /// Presses a key in the next modal window; returns what it says, or its title.
    QString Answer(Qt::Key key, const std::function<void(QWidget&)>& act, const std::function<void()>& cause) {
        QString said;
        const WhenModal answer([&](QWidget& window) {
            auto* box = qobject_cast<QMessageBox*>(&window);
            said = box != nullptr ? box->text() : window.windowTitle();
            act(window);
            QTest::keyClick(&window, key);
        });
        cause();
        return said;
    }
    QString Write(const char* name, const QByteArray& bytes) {
        QFile file(m_folder.filePath(QString::fromUtf8(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    void Drop(const QString& path) {
        QMimeData mime;
        mime.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(m_window.get(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent drop({5, 5}, Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(m_window.get(), &drop);
    }

    std::unique_ptr<HostWindow> m_window;
    QLabel* m_picture = nullptr;
    QTemporaryDir m_folder;
};
} // namespace

TEST_F(Host, AnEditShowsInTheFinishedChartAndACancelDoesNot) {
    const QImage before = Chart();
    EXPECT_EQ(before.size(), QSize(580, 440));
    const auto leaveTheDonut = [](QWidget& editor) {
        QTest::keyClick(editor.findChild<QWidget*>("Use DonutType"), Qt::Key_Space);
    };
    EXPECT_EQS((Answer(Qt::Key_Escape, leaveTheDonut, [&] { Press("&Edit chart..."); }), "PieChart"), (Chart(), before),
               (Answer(Qt::Key_Return, leaveTheDonut, [&] { Press("&Edit chart..."); }), "PieChart"));
    EXPECT_NE(Chart(), before);
    EXPECT_EQ(QColor(before.pixel(290, 250)), QColor(Qt::white)) << "the hole of the donut";
    EXPECT_NE(QColor(Chart().pixel(290, 256)), QColor(Qt::white));
}

TEST_F(Host, DroppedNumbersAreShownByTheirKindAndBadOnesRefused) {
    const std::pair<const char*, QByteArray> files[] = {
        {"Pie chart", "a,1\nb,3\n"},
#ifdef DEMO_HAS_XY
        {"XY chart", "month,North,South\nJan,1,2\nFeb,3,4\n"},
        {"XY chart", "day,North\n2024-01-01,1\n2024-01-02,3\n"},
#endif
        {"Finance chart", PricesAsCsv(WalkPrices(60))},
        {"Polar chart", "angle,wind\n0,1\n90,2\n180,3\n"},
    };
    for (const auto& [kind, bytes] : files) {
        const QImage before = Chart();
        Drop(Write("numbers.csv", bytes));
        EXPECT_EQ(m_window->findChild<QListWidget*>()->currentItem()->text(), kind);
        EXPECT_NE(Chart(), before) << kind;
    }
    const QImage after = Chart();
    const QString said = Answer(
        Qt::Key_Return, [](QWidget&) {}, [&] { Drop(Write("bad.csv", "a,1\nb,x\n")); });
    EXPECT_EQS((said, "bad.csv\n\nLine 2: \"x\" is not a number."), (Chart(), after));
}

TEST_F(Host, AStyleThatWasSavedComesBackToItsKind) {
    const QString path = m_folder.filePath("look.json");
    const QImage before = Chart();
    m_window->SaveStyle(path);
    const auto leaveTheDonut = [](QWidget& editor) {
        QTest::keyClick(editor.findChild<QWidget*>("Use DonutType"), Qt::Key_Space);
    };
    Answer(Qt::Key_Return, leaveTheDonut, [&] { Press("&Edit chart..."); });
    EXPECT_NE(Chart(), before);
    m_window->ShowKind(3); // another one
    Drop(path);
    EXPECT_EQS((m_window->findChild<QListWidget*>()->currentItem()->text(), "Pie chart"), (Chart(), before));
    const QString said = Answer(
        Qt::Key_Return, [](QWidget&) {},
        [&] { Drop(Write("bad.json", "{\"chartStyle\":1,\"kind\":\"pie\",\n\"chart\":{\"depth3D\":true}}")); });
    EXPECT_TRUE(said.startsWith("bad.json\n\nline 2: chart.depth3D")) << qPrintable(said);
    EXPECT_EQ(Chart(), before);
}

TEST_F(Host, SavesWhatItShows) {
    for (const char* name : {"chart.png", "chart.bmp"}) {
        const QString path = m_folder.filePath(QString::fromUtf8(name));
        m_window->SavePicture(path);
        const QImage saved(path);
        EXPECT_EQ(saved.convertToFormat(QImage::Format_RGB32), Chart().convertToFormat(QImage::Format_RGB32)) << name;
    }
    const QString said = Answer(
        Qt::Key_Return, [](QWidget&) {}, [&] { m_window->SavePicture(m_folder.filePath("no folder/chart.png")); });
    EXPECT_TRUE(said.startsWith("The picture cannot be written")) << qPrintable(said);
}
