#include "pictures.h"

#include "host_window.h"

#include <QApplication>
#include <QDir>
#include <QTimer>
#include <cstdio>

namespace {

/// Opens the editor as a host does, takes its picture while its modal loop runs, and closes it.
QPixmap PictureOfEditor(const ChartKind& kind, Charts charts) {
    QPixmap picture;
    QTimer timer; // none of its ticks may come after this function
    QObject::connect(&timer, &QTimer::timeout, [&picture] {
        if (QWidget* dialog = QApplication::activeModalWidget()) {
            picture = dialog->grab();
            dialog->close();
        }
    });
    timer.start(0);
    kind.edit(charts);
    return picture;
}

class Writer {
public:
    explicit Writer(const QString& folder) : m_folder(folder) {}

    bool Write(const QString& name, const QPixmap& picture) {
        const QString path = m_folder.filePath(name);
        if (picture.isNull() || !picture.save(path, "PNG")) {
            std::fprintf(stderr, "%s cannot be written.\n", qUtf8Printable(path));
            return false;
        }
        std::printf("%s\n", qUtf8Printable(path));
        return true;
    }

private:
    QDir m_folder;
};

QPixmap PictureOfChart(const ChartKind& kind, const Charts& charts) {
    CChartPicture picture;
    kind.render(charts, ChartPictureFormat::Png, picture);
    QPixmap pixmap;
    pixmap.loadFromData(picture.Data(), static_cast<uint>(picture.Size()));
    return pixmap;
}

} // namespace

bool WritePictures(const Charts& charts, const QString& folder) {
    if (!QDir().mkpath(folder)) {
        std::fprintf(stderr, "%s cannot be made.\n", qUtf8Printable(folder));
        return false;
    }
    Writer writer(folder);
    HostWindow window(charts);
    bool good = writer.Write(QStringLiteral("window.png"), window.grab());
    for (const ChartKind& kind : ChartKinds()) {
        if (kind.edit == nullptr)
            continue;
        const QString name = QString::fromUtf8(kind.file);
        good = writer.Write(name + QStringLiteral("-editor.png"), PictureOfEditor(kind, charts)) && good;
        good = writer.Write(name + QStringLiteral("-chart.png"), PictureOfChart(kind, charts)) && good;
    }
    return good;
}
