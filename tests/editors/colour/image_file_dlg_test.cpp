#include "editors/colour/image_file_dlg.h"
#include "editors/preview/chart_preview_view.h"
#include "platform/widgets/dialog.h"
#include "tests/driver/person.h"
#include <QDir>
#include <QFile>
#include <QImage>
#include <QListView>
#include <QTemporaryDir>

namespace {
class ImageFileDlg : public WidgetTest {
protected:
    ImageFileDlg() {
        QImage red(40, 30, QImage::Format_RGB32);
        red.fill(Qt::red);
        EXPECT_TRUE(red.save(PathOf("red.png")));
        QFile broken(PathOf("broken.gif"));
        EXPECT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write("no image") > 0);
        EXPECT_TRUE(QDir(m_folder.path()).mkdir("folder"));
    }
    QString PathOf(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    CChartPreviewView* Preview() { return m_dialog.findChild<CChartPreviewView*>("Preview"); }
    CChartString InitialFile(const char* name) const {
        CChartString path;
        path = PathOf(name).toUtf8().constData();
        return path;
    }

    QTemporaryDir m_folder;
    CImageFileDlg m_dialog;
};
} // namespace

TEST_F(ImageFileDlg, OffersTheKindsOfImages) {
    EXPECT_EQ(m_dialog.windowTitle(), "Select Image File");
    const std::pair<const char*, const char*> kinds[] = {
        {"All Image Files (*.png;*.jpeg;*.jpg;*.gif;*.wbmp;*.wmp)", " (*.png *.jpeg *.jpg *.gif *.wbmp *.wmp)"},
        {"PNG (*.png)", " (*.png)"},
        {"JPEG (*.jpeg;*.jpg)", " (*.jpeg *jpg)"},
        {"GIF (*.gif)", " (*.gif)"},
        {"WMP (*.wbmp;*.wmp)", " (*.wbmp *wmp)"},
        {"All Files (*.*)", " (*)"}};
    const QStringList filters = m_dialog.nameFilters();
    ASSERT_EQ(filters.size(), std::ssize(kinds));
    for (int i = 0; i < filters.size(); ++i)
        EXPECT_EQ(filters[i].toStdString(), std::string(kinds[i].first) + kinds[i].second);
}

TEST_F(ImageFileDlg, ReturnsTheFullPathOfTheFile) {
    m_dialog.SetInitialFile(InitialFile("red.png"));
    const int result = RunModal(m_dialog, [&] {
        auto* edit = Find(m_dialog, "fileNameEdit");
        EXPECT_EQ(edit->property("text").toString(), "red.png");
        EXPECT_EQ(Preview()->m_sampleImage.data(), PathOf("red.png").toStdString());
        QTest::keyClick(edit, Qt::Key_Return);
    });
    EXPECT_EQS((result, CDialog::kOK), (m_dialog.GetPathName().data(), PathOf("red.png").toStdString()));
}

TEST_F(ImageFileDlg, ShowsTheFileThatIsSelected) {
    m_dialog.setDirectory(m_folder.path());
    const int result = RunModal(m_dialog, [&] {
        auto* files = Find<QListView>(m_dialog, "listView");
        ASSERT_TRUE(QTest::qWaitFor([&] { return files->model()->rowCount(files->rootIndex()) == 3; }));
        const auto shownAfterClickOn = [&](const char* name) {
            for (int row = 0; row < 3; ++row) {
                const QModelIndex index = files->model()->index(row, 0, files->rootIndex());
                if (index.data().toString() == name)
                    QTest::mouseClick(files->viewport(), Qt::LeftButton, {}, files->visualRect(index).center());
            }
            return Preview()->grab().toImage().pixelColor(Preview()->rect().center());
        };
        EXPECT_EQ(shownAfterClickOn("red.png"), QColor(Qt::red));
        EXPECT_EQ(shownAfterClickOn("folder"), QColor(Qt::red)); // has no picture of its own
        EXPECT_EQ(shownAfterClickOn("broken.gif"), QColor(Qt::white));
        QTest::keyClick(&m_dialog, Qt::Key_Escape);
        EXPECT_FALSE(m_dialog.isVisible());
    });
    EXPECT_EQ(result, CDialog::kCancel);
}
