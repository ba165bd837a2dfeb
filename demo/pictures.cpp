#include "pictures.h"

#include "host_window.h"

#include <QApplication>
#include <QDir>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QTimer>
#include <algorithm>
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

void WritePages(Writer& writer, QWidget& dialog, const QString& name);

/// Lets `open` show a dialog, takes its pictures while its modal loop runs, and closes it.
template <class Open>
void WriteEditor(Writer& writer, const QString& name, const Open& open) {
    const QWidget* before = QApplication::activeModalWidget();
    QTimer timer; // none of its ticks may come after this function
    QObject::connect(&timer, &QTimer::timeout, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog != nullptr && dialog != before) {
            timer.stop();
            WritePages(writer, *dialog, name);
            dialog->close();
        }
    });
    timer.start(0);
    open();
}

/// A page, and the dialogs of the objects in its list.
void WritePage(Writer& writer, QWidget& dialog, const QString& name) {
    writer.Write(name, dialog.grab());
    const auto isModify = [](const QPushButton* button) {
        return button->isVisible() && button->text().remove(u'&') == QLatin1String("Modify...");
    };
    const QList<QPushButton*> buttons = dialog.findChildren<QPushButton*>();
    const auto modify = std::find_if(buttons.begin(), buttons.end(), isModify);
    if (modify == buttons.end())
        return;
    for (QListWidget* list : dialog.findChildren<QListWidget*>())
        for (int row = 0; list->isVisible() && row < list->count(); ++row) {
            list->setCurrentRow(row);
            if ((*modify)->isEnabled())
                WriteEditor(writer, name + QString::number(row + 1), [&] { (*modify)->click(); });
        }
}

/// Every page of a dialog, each named by its tab.
void WritePages(Writer& writer, QWidget& dialog, const QString& name) {
    QTabBar* tabs = nullptr;
    for (QTabBar* bar : dialog.findChildren<QTabBar*>())
        if (tabs == nullptr && bar->isVisible())
            tabs = bar;
    WritePage(writer, dialog, name);
    for (int i = 1; tabs != nullptr && i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        QApplication::processEvents();
        const QString page = tabs->tabText(i).toLower().remove(QRegularExpression(QStringLiteral("[^a-z]+")));
        WritePage(writer, dialog, name + u'-' + page);
    }
}

/// The finished charts in a row, small.
QPixmap Strip(const QList<QPixmap>& charts) {
    constexpr int kHeight = 150, kGap = 8;
    QList<QPixmap> small;
    int width = -kGap;
    for (const QPixmap& chart : charts) {
        small += chart.scaledToHeight(kHeight, Qt::SmoothTransformation);
        width += small.back().width() + kGap;
    }
    QPixmap strip(width, kHeight);
    strip.fill(Qt::white);
    QPainter painter(&strip);
    int x = 0;
    for (const QPixmap& chart : small) {
        painter.drawPixmap(x, 0, chart);
        x += chart.width() + kGap;
    }
    return strip;
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
    QList<QPixmap> charts;
    for (const std::unique_ptr<Example>& example : window.Charts()) {
        const QString name = QString::fromUtf8(example->File());
        charts += PictureOf(*example);
        writer.Write(name + QStringLiteral("-chart"), charts.back());
        WriteEditor(
            writer, name + QStringLiteral("-editor"), [&] { example->Edit(); });
        WriteEditor(writer, name + QStringLiteral("-layout"), [&] { example->EditLayout(); });
    }
    writer.Write(QStringLiteral("charts"), Strip(charts));
    return writer.Good();
}
