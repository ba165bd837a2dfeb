#include "engine/paint/file_bytes.h"
#include "engine/paint/pack.h"
#include "engine/paint/picture.h"
#include "tests/expect.h"
#include <QBuffer>
#include <QColor>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <map>
#include <random>
#include <vector>

#ifdef __linux__
#include <sys/stat.h>
#endif

namespace chartdraw {
namespace {
// 6 x 4: the left half red, the right half blue.
QImage sample() {
    QImage image(6, 4, QImage::Format_RGB32);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 6; ++x) image.setPixel(x, y, x < 3 ? 0xffff0000 : 0xff0000ff);
    return image;
}

QByteArray encoded(const QImage& image, const char* format) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format, 95));
    return buffer.data();
}

template <std::size_t N> QByteArray bytes(const unsigned char (&values)[N]) {
    return {reinterpret_cast<const char*>(values), N};
}

// By hand: 2 x 1 pixels, a palette of red and blue; the codes clear, 0, 1, end of 3 bits each, lowest first.
QByteArray gif() {
    return bytes({'G',  'I',  'F', '8', '9', 'a', 2, 0, 1, 0, 0x80, 0, 0, 0xff, 0,    0, 0,   0,
                  0xff, 0x2c, 0,   0,   0,   0,   2, 0, 1, 0, 0,    2, 2, 0x44, 0x0a, 0, 0x3b});
}

// By hand: type 0, 9 x 2 pixels, a bit each from the top, 1 white, rows padded to bytes.
QByteArray wbmp() { return bytes({0, 0, 9, 2, 0xff, 0x80, 0x00, 0x80}); }

std::map<std::string, QByteArray> files() {
    return {{"png", encoded(sample(), "png")},
            {"jpeg", encoded(sample().scaled(32, 32), "jpeg")},
            {"bmp", encoded(sample(), "bmp")},
            {"gif", gif()},
            {"wbmp", wbmp()}};
}

TEST(Picture, ReadsFiveFormatsWithoutAnApplicationObject) {
    ASSERT_EQ(QCoreApplication::instance(), nullptr);
    for (const auto& [format, content] : files()) {
        const QImage image = decodePicture(content);
        ASSERT_FALSE(image.isNull()) << format;
        EXPECT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
        if (format == "wbmp") {
            EXPECT_EQS((image.size(), QSize(9, 2)), (image.pixel(0, 0), 0xffffffff), (image.pixel(0, 1), 0xff000000),
                       (image.pixel(8, 1), 0xffffffff));
            continue;
        }
        EXPECT_GT(qRed(image.pixel(0, 0)), 240) << format;
        EXPECT_LT(qBlue(image.pixel(0, 0)), 15) << format;
        EXPECT_GT(qBlue(image.pixel(image.width() - 1, 0)), 240) << format;
    }
    EXPECT_EQ(decodePicture(gif()).size(), QSize(2, 1));
}

TEST(Picture, OtherFormatsAndOversizeAreNot) {
    EXPECT_TRUE(decodePicture("<svg xmlns='http://www.w3.org/2000/svg' width='4' height='4'/>").isNull());
    EXPECT_TRUE(decodePicture("P3 1 1 255 1 2 3").isNull());
    // A bitmap that claims 16385 x 1 pixels, then 2^31 - 1 a side.
    for (const quint32 side : {16385U, 0x7fffffffU}) {
        QByteArray hostile = encoded(sample(), "bmp");
        for (int i = 0; i < 4; ++i) hostile[18 + i] = static_cast<char>(side >> (8 * i));
        EXPECT_TRUE(decodePicture(hostile).isNull());
    }
    // A GIF whose frame is 2 x 1 but whose screen is 20481 high.
    QByteArray tall = gif();
    tall[9] = 0x50;
    EXPECT_TRUE(decodePicture(tall).isNull());
    // A WBMP of 2^28 - 1 pixels a side, in numbers of seven bits.
    EXPECT_TRUE(decodePicture(bytes({0, 0, 0xff, 0xff, 0xff, 0x7f, 0xff, 0xff, 0xff, 0x7f, 1})).isNull());
}

TEST(Picture, CutShortIsNone) {
    const QImage large = sample().scaled(64, 48);
    for (const QImage::Format format :
         {QImage::Format_RGB32, QImage::Format_RGB16, QImage::Format_Indexed8, QImage::Format_Mono})
        for (const char* kind : {"bmp", "png", "jpeg"}) {
            const QByteArray whole = encoded(large.convertToFormat(format), kind);
            ASSERT_EQ(decodePicture(whole).size(), large.size()) << kind;
            for (const qsizetype part : {whole.size() - 8, whole.size() / 2, whole.size() / 4})
                EXPECT_TRUE(decodePicture(whole.left(part)).isNull()) << kind << ' ' << part;
        }
}

TEST(Picture, OfABitmapMayStandTopDown) {
    const QImage image = sample();
    QByteArray file = bitmapFile(image);
    const int stride = (image.width() * 3 + 3) / 4 * 4, height = image.height();
    QByteArray rows;
    for (int y = height; y-- > 0;) rows += file.mid(54 + y * stride, stride);
    for (int i = 0; i < 4; ++i) file[22 + i] = static_cast<char>(static_cast<unsigned>(-height) >> (8 * i));
    EXPECT_EQ(decodePicture(file.left(54) + rows), decodePicture(bitmapFile(image)));
}

class PictureFile : public testing::Test {
protected:
    std::string path(const QString& name) const { return m_folder.filePath(name).toStdString(); }
    std::string write(const QString& name, const QByteArray& content) const {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path(name);
    }
    QTemporaryDir m_folder;
};

TEST_F(PictureFile, NamedInUtf8WithAnySuffix) {
    const std::string korean = "\xea\xb7\xb8\xeb\xa6\xbc.txt"; // a Korean name
    const std::string file = write(QString::fromStdString(korean), encoded(sample(), "png"));
    EXPECT_EQS((loadPicture(file).size(), QSize(6, 4)), (loadPicture("file:" + file).isNull(), true));
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(m_folder.path()));
    EXPECT_EQ(loadPicture(korean).size(), QSize(6, 4));
    QDir::setCurrent(before);
}

TEST_F(PictureFile, WhatIsNoFileIsNull) {
#ifdef __linux__
    const std::string pipe = path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0); // reading it would wait for ever
#else
    const std::string pipe = "\\\\.\\pipe\\none";
#endif
    for (const std::string& name : {pipe, path("missing.png"), path(""), std::string(), std::string("\xff\xfe"),
                                    std::string("/dev/zero"), write("empty", ""), std::string("/proc/self/maps")})
        EXPECT_TRUE(loadPicture(name).isNull()) << name;
}

TEST_F(PictureFile, TheCacheFollowsTheFile) {
    const std::string file = write("a.png", encoded(sample(), "png"));
    const QImage first = loadPicture(file);
    EXPECT_EQ(loadPicture(file).constBits(), first.constBits()); // shared, not read again
    for (int i = 0; i < 20; ++i)
        EXPECT_FALSE(loadPicture(write(QString::number(i), encoded(sample(), "bmp"))).isNull());
    write("a.png", encoded(sample().scaled(3, 2), "png"));
    EXPECT_EQ(loadPicture(file).size(), QSize(3, 2));
    QFile::remove(QString::fromStdString(file));
    EXPECT_TRUE(loadPicture(file).isNull());
}

#ifdef __linux__
TEST_F(PictureFile, BytesComeFromRegularFilesOfAKnownSizeOnly) {
    const QFileInfo file(QString::fromStdString(write("bytes", "123456")));
    EXPECT_EQS((fileBytes(file, 6), "123456"), (fileBytes(file, 5), ""));
    EXPECT_EQ(fileBytes(QFileInfo("/proc/self/maps"), 1000), ""); // its size is 0 until it is read
    EXPECT_EQ(fileBytes(QFileInfo("/dev/zero"), 1000), "");
}
#endif

TEST(BitmapFile, PacksRowsOfEveryWidthAlike) {
    std::mt19937 random(1);
    for (int width = 0; width < 40; ++width) {
        std::vector<QRgb> pixels(static_cast<std::size_t>(width));
        std::vector<uchar> wanted;
        for (QRgb& pixel : pixels) {
            pixel = qPremultiply(static_cast<QRgb>(random()));
            for (const int channel : {qBlue(pixel), qGreen(pixel), qRed(pixel)})
                wanted.push_back(static_cast<uchar>(channel + 255 - qAlpha(pixel)));
        }
        for (const auto pack : {packRow, packRowAnywhere}) {
            std::vector<uchar> bytes(wanted.size() + 1, 77);
            pack(pixels.data(), width, bytes.data());
            EXPECT_EQ(bytes.back(), 77) << "behind the row";
            bytes.pop_back();
            EXPECT_EQ(bytes, wanted) << width;
        }
    }
}
} // namespace
} // namespace chartdraw
