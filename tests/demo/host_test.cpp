// The window of the example host, driven as a person does.

#include "demo/host_window.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

class Host : public testing::Test {
protected:
    Host() {
        static int count = 1;
        static char name[] = "demo";
        static char* arguments[] = {name, nullptr};
        if (QCoreApplication::instance() == nullptr)
            new QApplication(count, arguments); // to the end of the process
        m_window = std::make_unique<HostWindow>(ExampleCharts());
        m_window->show();
    }

    QImage Chart() { return m_window->findChild<QLabel*>()->pixmap().toImage(); }
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
    QString Answer(Qt::Key key, const std::function<void(QWidget&)>& act,
                   const std::function<void()>& cause) {
        QString said;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            if (QWidget* window = QApplication::activeModalWidget()) {
                timer.stop();
                auto* box = qobject_cast<QMessageBox*>(window);
                said = box != nullptr ? box->text() : window->windowTitle();
                act(*window);
                QTest::keyClick(window, key);
            }
        });
        timer.start(1);
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
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(Host, KindsWithoutAnEditorCannotBeChosen) {
    auto* kinds = m_window->findChild<QListWidget*>();
    ASSERT_EQ(kinds->count(), static_cast<int>(ChartKinds().size()));
    for (int i = 0; i < kinds->count(); ++i) {
        const bool ready = ChartKinds()[static_cast<std::size_t>(i)].edit != nullptr;
        EXPECT_EQ((kinds->item(i)->flags() & Qt::ItemIsEnabled) != 0, ready);
        EXPECT_EQ(kinds->item(i)->text().endsWith("(no editor yet)"), !ready);
    }
    EXPECT_EQ(kinds->currentItem()->text(), "Pie chart");
}

TEST_F(Host, AnEditShowsInTheFinishedChartAndACancelDoesNot) {
    const QImage before = Chart();
    EXPECT_EQ(before.size(), QSize(580, 440));
    const auto leaveTheDonut = [](QWidget& editor) {
        QTest::keyClick(editor.findChild<QWidget*>("Use DonutType"), Qt::Key_Space);
    };
    EXPECT_EQ(Answer(Qt::Key_Escape, leaveTheDonut, [&] { Press("&Edit chart..."); }), "PieChart");
    EXPECT_EQ(Chart(), before);
    EXPECT_EQ(Answer(Qt::Key_Return, leaveTheDonut, [&] { Press("&Edit chart..."); }), "PieChart");
    EXPECT_NE(Chart(), before);
    EXPECT_EQ(QColor(before.pixel(290, 250)), QColor(Qt::white)) << "the hole of the donut";
    EXPECT_NE(QColor(Chart().pixel(290, 256)), QColor(Qt::white));
}

TEST_F(Host, DroppedNumbersAreShownAndBadOnesRefused) {
    const QImage before = Chart();
    Drop(Write("two.csv", "a,1\nb,3\n"));
    const QImage after = Chart();
    EXPECT_NE(after, before);
    const QString said = Answer(
        Qt::Key_Return, [](QWidget&) {}, [&] { Drop(Write("bad.csv", "a,1\nb,x\n")); });
    EXPECT_EQ(said, "bad.csv\n\nLine 2: \"x\" is not a number.");
    EXPECT_EQ(Chart(), after);
}

TEST_F(Host, SavesWhatItShows) {
    for (const char* name : {"chart.png", "chart.bmp"}) {
        const QString path = m_folder.filePath(QString::fromUtf8(name));
        m_window->SavePicture(path);
        const QImage saved(path);
        EXPECT_EQ(saved.convertToFormat(QImage::Format_RGB32), Chart().convertToFormat(QImage::Format_RGB32))
            << name;
    }
    const QString said = Answer(
        Qt::Key_Return, [](QWidget&) {},
        [&] { m_window->SavePicture(m_folder.filePath("no folder/chart.png")); });
    EXPECT_TRUE(said.startsWith("The picture cannot be written")) << qPrintable(said);
}

TEST(Charts, ADeletedSectorMovesNoNameToAnotherNumber) {
    Charts charts = ExampleCharts();
    ShowData(charts, {{"a", "b", "c"}, {1, 2, 3}}, "");
    const auto render = [&] {
        CChartPicture picture;
        EXPECT_EQ(ChartKinds()[0].render(charts, ChartPictureFormat::Bmp, picture), ChartRenderResult::Ok);
        return std::vector<unsigned char>(picture.Data(), picture.Data() + picture.Size());
    };
    const auto asRead = render();
    charts.pie.m_sectors[1].m_text = "renamed";
    EXPECT_NE(render(), asRead) << "the editor may rename";
    charts.pie.m_sectors.erase(2); // its look is the default, so only names could differ
    EXPECT_EQ(render(), asRead);
}
