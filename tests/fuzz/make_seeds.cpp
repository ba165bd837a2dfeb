// make_seeds DIR: one small image of each format that is read, for the fuzzer to start from.

#include <QDir>
#include <QFile>
#include <QImage>

int main(int argc, char** argv) {
    if (argc < 2) return 2;
    const QDir folder(argv[1]);
    QImage image(9, 5, QImage::Format_RGB32);
    for (int i = 0; i < 45; ++i) image.setPixel(i % 9, i / 9, qRgb(i * 5, 255 - i * 5, i * 37 % 256));
    for (const char* format : {"png", "jpg", "bmp"}) image.save(folder.filePath(QString("seed.") + format));
    image.convertToFormat(QImage::Format_Indexed8).save(folder.filePath("seed-palette.png"));
    image.convertToFormat(QImage::Format_Mono).save(folder.filePath("seed-mono.bmp"));
    // Formats that are read but not written: one black pixel of GIF, 8 x 2 of WBMP.
    const std::tuple<const char*, QByteArray> others[] = {
        {"seed.gif", QByteArray::fromHex("47494638396101000100800000000000ffffff21f90400000000002c000000000100"
                                         "010000020244010 03b")},
        {"seed.wbmp", QByteArray::fromHex("000008 02aa55")},
    };
    for (const auto& [name, bytes] : others) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) return 1;
    }
    return 0;
}
