#pragma once
// What the floors of the benchmarks share: the toolkit's plain means to make a picture and turn it into the
// bytes of a bitmap file, without anything of the library. Image and bytes are kept from frame to frame, so
// that a floor pays for pixels and not for pages of memory: what no library can beat.

#include <QByteArray>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>
#include <cstring>

namespace bench {

inline QFont plainFont(double points) {
    QFont font("Sans Serif");
    font.setPixelSize(static_cast<int>(points * 4 / 3 + 0.5));
    return font;
}

/// A 24-bit bottom-up bitmap file, straight from the image's rows, in bytes that are the caller's for the
/// next one. Its header is left empty: it costs nothing.
inline void bitmapFile(const QImage& image, QByteArray& bytes) {
    const int width = image.width(), height = image.height(), row = (width * 3 + 3) / 4 * 4;
    bytes.resize(54 + row * height + 1); // of the last pixel four bytes are written
    for (int y = 0; y < height; ++y) {
        const auto* pixels = reinterpret_cast<const QRgb*>(image.constScanLine(height - 1 - y));
        char* to = bytes.data() + 54 + row * y;
        for (int x = 0; x < width; ++x)
            std::memcpy(to + 3 * x, pixels + x, 4);
    }
    benchmark::DoNotOptimize(bytes.data());
    benchmark::ClobberMemory();
}

/// A picture by the plain painter, with smooth edges and the font of labels.
class Floor {
public:
    Floor(int width, int height) : m_image(kept(width, height)) {
        m_image.fill(Qt::white);
        painter.begin(&m_image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(plainFont(8));
    }
    void make() {
        painter.end();
        static QByteArray bytes;
        bitmapFile(m_image, bytes);
    }

    QPainter painter;

private:
    static QImage& kept(int width, int height) {
        static QImage image;
        if (image.size() != QSize(width, height))
            image = QImage(width, height, QImage::Format_ARGB32_Premultiplied);
        return image;
    }

    QImage& m_image;
};

} // namespace bench

/// The main of a benchmark that draws: fonts need an application object, here one without a display.
#define BENCH_MAIN()                                                                                         \
    int main(int argc, char** argv) {                                                                        \
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))                                                  \
            qputenv("QT_QPA_PLATFORM", "offscreen");                                                         \
        const QGuiApplication application(argc, argv);                                                       \
        benchmark::Initialize(&argc, argv);                                                                  \
        benchmark::RunSpecifiedBenchmarks();                                                                 \
        return 0;                                                                                            \
    }
