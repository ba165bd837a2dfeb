// chart-gallery DIR [FONT-SCALE [SCALE]]: draws every family of charts, with larger fonts or all of it
// larger. Each family becomes a sheet DIR/FAMILY.png of all its charts with their captions, and each chart a
// file DIR/FAMILY/NN.png of its own.

#include "tools/gallery/gallery.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <map>

namespace gallery {

namespace {

constexpr int kSheetWidth = 1500;
constexpr int kGap = 10;
constexpr int kCaption = 20;

std::map<std::string, std::vector<Case>>& families() {
    static std::map<std::string, std::vector<Case>> all;
    return all;
}

double fontScale = 1;
double drawingScale = 1;

QImage picture(const Case& entry) {
    BaseChart* chart = entry.make();
    const char* bytes = nullptr;
    int length = 0;
    const int scale = static_cast<int>(drawingScale * int{CHART_SCALE_UNIT});
    CBaseChart_makeChart2(chart, CHART_FORMAT_BMP + 256 * scale, &bytes, &length);
    QImage image = QImage::fromData(reinterpret_cast<const uchar*>(bytes), length, "BMP");
    CBaseChart_destroy(chart);
    return image;
}

/// The pictures in rows from left to right, each under its caption.
QImage sheet(const std::vector<Case>& cases, const std::vector<QImage>& pictures) {
    std::vector<QPoint> corners;
    int x = kGap, y = kGap, rowHeight = 0;
    for (const QImage& image : pictures) {
        if (x > kGap && x + image.width() + kGap > kSheetWidth) {
            x = kGap;
            y += rowHeight + kGap;
            rowHeight = 0;
        }
        corners.emplace_back(x, y);
        x += image.width() + kGap;
        rowHeight = std::max(rowHeight, image.height() + kCaption);
    }
    QImage result(kSheetWidth, y + rowHeight + kGap, QImage::Format_RGB32);
    result.fill(QColor(225, 228, 232));
    QPainter painter(&result);
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        painter.drawText(corners[i] + QPoint(0, 14), QString::fromUtf8(cases[i].caption));
        painter.drawImage(corners[i] + QPoint(0, kCaption), pictures[i]);
    }
    return result;
}

bool write(const QDir& target, const std::string& name, const std::vector<Case>& cases) {
    const QString family = QString::fromStdString(name);
    bool good = target.mkpath(family);
    std::vector<QImage> pictures;
    for (std::size_t i = 0; i < cases.size(); ++i) {
        pictures.push_back(picture(cases[i]));
        const QString file = QString("%1/%2.png").arg(family).arg(i + 1, 2, 10, QChar('0'));
        if (pictures.back().isNull() || !pictures.back().save(target.filePath(file))) {
            std::fprintf(stderr, "no picture: %s, %s\n", name.c_str(), cases[i].caption);
            good = false;
        }
    }
    return sheet(cases, pictures).save(target.filePath(family + ".png")) && good;
}

} // namespace

Family::Family(const char* name, std::vector<Case> cases) {
    families()[name] = std::move(cases);
}

double points(double size) {
    return size * fontScale;
}

const char* sampleImage() {
    static const QTemporaryDir folder;
    static const std::string path = [] {
        QImage image(120, 80, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const bool dark = (x / 20 + y / 20) % 2 == 0;
                image.setPixelColor(x, y, QColor(200 + x / 4, 220 - (dark ? 12 : 0), 225 - y / 4));
            }
        }
        const QString file = folder.filePath("sample.png");
        image.save(file);
        return file.toStdString();
    }();
    return path.c_str();
}

} // namespace gallery

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: chart-gallery DIR [FONT-SCALE [SCALE]]\n");
        return 2;
    }
#ifndef _WIN32 // whose own platform knows the fonts
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
    const QGuiApplication application(argc, argv);
    if (argc > 2)
        gallery::fontScale = std::clamp(QString::fromLocal8Bit(argv[2]).toDouble(), 0.1, 10.0);
    if (argc > 3)
        gallery::drawingScale = std::clamp(QString::fromLocal8Bit(argv[3]).toDouble(), 0.1, 10.0);
    const QDir target(QString::fromLocal8Bit(argv[1]));
    bool good = target.mkpath(".");
    for (const auto& [name, cases] : gallery::families())
        good = gallery::write(target, name, cases) && good;
    return good ? 0 : 1;
}
