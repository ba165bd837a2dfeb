#pragma once
// What the floors of the benchmarks share: the toolkit's plain means to make a picture and turn it into the
// bytes of a bitmap file, without anything of the library.

#include <QByteArray>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <benchmark/benchmark.h>
#include <cstring>

namespace bench {

inline QFont plainFont(double points) {
    QFont font("Sans Serif");
    font.setPixelSize(static_cast<int>(points * 4 / 3 + 0.5));
    return font;
}

/// A 24-bit bottom-up bitmap file, straight from the image's rows. Its header is left empty: it costs
/// nothing.
inline QByteArray bitmapFile(const QImage& image) {
    const int row = (image.width() * 3 + 3) / 4 * 4;
    QByteArray bytes(54 + row * image.height(), '\0');
    const QImage packed = image.convertToFormat(QImage::Format_BGR888);
    for (int y = 0; y < image.height(); ++y) {
        std::memcpy(bytes.data() + 54 + row * y, packed.constScanLine(image.height() - 1 - y),
                    static_cast<std::size_t>(image.width()) * 3);
    }
    return bytes;
}

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
