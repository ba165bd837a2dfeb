#include "pictures.h"

#include "host_window.h"

#include <QApplication>
#include <QDir>
#include <QRegularExpression>
#include <QTabBar>
#include <QTimer>
#include <cstdio>

namespace {

class Writer {
public:
    explicit Writer(const QString& folder) : m_folder(folder) {}

    void Write(const QString& name, const QPixmap& picture) {
        const QString path = m_folder.filePath(name + QStringLiteral(".png"));
        if (picture.isNull() || !picture.save(path, "PNG")) {
            std::fprintf(stderr, "%s cannot be written.\n", qUtf8Printable(path));
            m_good = false;
            return;
        }
        std::printf("%s\n", qUtf8Printable(path));
    }
    bool Good() const { return m_good; }

private:
    QDir m_folder;
    bool m_good = true;
};

/// Every page of a dialog, each named by its tab.
void WritePages(Writer& writer, QWidget& dialog, const QString& name) {
    QTabBar* tabs = nullptr;
    for (QTabBar* bar : dialog.findChildren<QTabBar*>())
        if (tabs == nullptr && bar->isVisible())
            tabs = bar;
    writer.Write(name, dialog.grab());
    for (int i = 1; tabs != nullptr && i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        QApplication::processEvents();
        const QString page = tabs->tabText(i).toLower().remove(QRegularExpression(QStringLiteral("[^a-z]+")));
        writer.Write(name + u'-' + page, dialog.grab());
    }
}

/// Opens an editor as a host does, takes its pictures while its modal loop runs, and cancels it.
template <class Open>
void WriteEditor(Writer& writer, const QString& name, const Open& open) {
    QTimer timer; // none of its ticks may come after this function
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (QWidget* dialog = QApplication::activeModalWidget()) {
            timer.stop();
            WritePages(writer, *dialog, name);
            dialog->close();
        }
    });
    timer.start(0);
    open();
}

QPixmap PictureOf(const Example& example) {
    CChartPicture picture;
    example.Render(ChartPictureFormat::Png, picture);
    QPixmap pixmap;
    pixmap.loadFromData(picture.Data(), static_cast<uint>(picture.Size()));
    return pixmap;
}

} // namespace

bool WritePictures(HostWindow& window, const QString& folder) {
    if (!QDir().mkpath(folder)) {
        std::fprintf(stderr, "%s cannot be made.\n", qUtf8Printable(folder));
        return false;
    }
    Writer writer(folder);
    writer.Write(QStringLiteral("window"), window.grab());
    for (const std::unique_ptr<Example>& example : window.Charts()) {
        const QString name = QString::fromUtf8(example->File());
        writer.Write(name + QStringLiteral("-chart"), PictureOf(*example));
        WriteEditor(
            writer, name + QStringLiteral("-editor"), [&] { example->Edit(); });
        WriteEditor(writer, name + QStringLiteral("-layout"), [&] { example->EditLayout(); });
    }
    return writer.Good();
}
