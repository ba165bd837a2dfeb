#include "engine/paint/picture.h"

#include "engine/paint/file_bytes.h"
#include "engine/paint/pack.h"

#include <QBuffer>
#include <QDateTime>
#include <QImageReader>
#include <QtEndian>
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <list>
#include <mutex>

namespace chartdraw {

namespace {

constexpr qint64 kMaxFileBytes = qint64{256} << 20;
constexpr std::size_t kCachedFiles = 8;
constexpr qsizetype kMaxCachedBytes = qsizetype{16} << 20; // an image; larger ones are read each time

/// The decoder for the bytes, by their signature alone: a wrong suffix does no harm, and decoders of other
/// formats that are installed never see the file. Empty for none.
QByteArray formatOf(const QByteArray& bytes) {
    static const std::pair<QByteArray, const char*> kSignatures[] = {
        {QByteArray::fromRawData("\x89PNG\r\n\x1a\n", 8), "png"},
        {QByteArray::fromRawData("\xff\xd8\xff", 3), "jpeg"},
        {QByteArray::fromRawData("GIF8", 4), "gif"},
        {QByteArray::fromRawData("BM", 2), "bmp"},
        {QByteArray::fromRawData("\0\0", 2), "wbmp"},
    };
    for (const auto& [signature, format] : kSignatures)
        if (bytes.startsWith(signature))
            return format;
    return {};
}

bool isReadable(QSize size) {
    return !size.isEmpty() && size.width() <= kMaxSide && size.height() <= kMaxSide;
}

/// Whether nothing is missing at the end of a bitmap file, whose decoder leaves the pixels that are not there
/// as it found them in memory.
bool isWholeBitmap(const QByteArray& bytes) {
    constexpr qsizetype kLongHeader = 54, kShortHeader = 26;
    const auto number = [&]<class Number>(Number, qsizetype at) {
        return qint64{qFromLittleEndian<Number>(bytes.constData() + at)};
    };
    if (bytes.size() < kShortHeader)
        return false;
    const qint64 start = number(quint32(), 10);
    if (number(quint32(), 14) == 12) { // the old header
        const qint64 stride = (number(quint16(), 18) * number(quint16(), 24) + 31) / 32 * 4;
        return start + stride * number(quint16(), 20) <= bytes.size();
    }
    if (bytes.size() < kLongHeader)
        return false;
    const qint64 width = number(qint32(), 18), height = std::abs(number(qint32(), 22));
    const qint64 bits = number(quint16(), 28), compression = number(quint32(), 30);
    constexpr qint64 kPlain = 0, kBitFields = 3;
    if (width < 1 || width > kMaxSide || height < 1 || height > kMaxSide)
        return false;
    if (compression != kPlain && compression != kBitFields)
        return start + number(quint32(), 34) <= bytes.size();
    // Some writers leave out what pads the last row.
    const qint64 stride = (width * bits + 31) / 32 * 4;
    return start + stride * (height - 1) + (width * bits + 7) / 8 <= bytes.size();
}

/// Whether a JPEG file has the mark of its end behind the pixels: a decoder makes up what is missing.
bool isWholeJpeg(const QByteArray& bytes) {
    const auto byte = [&](qsizetype at) { return static_cast<unsigned char>(bytes[at]); };
    constexpr unsigned char kScan = 0xda;
    for (qsizetype at = 2; at + 4 <= bytes.size() && byte(at) == 0xff;) {
        if (byte(at + 1) == kScan)
            return bytes.lastIndexOf("\xff\xd9") > at;
        // Markers may be filled with more bytes of 0xff.
        at += byte(at + 1) == 0xff ? 1 : 2 + (byte(at + 2) << 8 | byte(at + 3));
    }
    return false;
}

struct CachedFile {
    QString path;
    qint64 size;
    QDateTime modified;
    QImage image;

    bool isOf(const QFileInfo& info) const {
        return size == info.size() && modified == info.lastModified() && path == info.absoluteFilePath();
    }
};

class PictureCache {
public:
    QImage find(const QFileInfo& info) {
        const std::lock_guard lock(m_mutex);
        const auto found = std::find_if(m_files.begin(), m_files.end(),
                                        [&](const CachedFile& file) { return file.isOf(info); });
        if (found == m_files.end())
            return {};
        m_files.splice(m_files.begin(), m_files, found);
        return found->image;
    }

    void add(const QFileInfo& info, const QImage& image) {
        if (image.sizeInBytes() > kMaxCachedBytes)
            return;
        const std::lock_guard lock(m_mutex);
        m_files.push_front({info.absoluteFilePath(), info.size(), info.lastModified(), image});
        if (m_files.size() > kCachedFiles)
            m_files.pop_back();
    }

private:
    std::mutex m_mutex;
    std::list<CachedFile> m_files; // the last used first
};

} // namespace

QImage decodePicture(const QByteArray& bytes) {
    const QByteArray format = formatOf(bytes);
    if (format.isEmpty() || (format == "bmp" && !isWholeBitmap(bytes)) ||
        (format == "jpeg" && !isWholeJpeg(bytes)))
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    // The rows of a bitmap may stand top down, which is told by a negative height.
    const QSize size(reader.size().width(), std::abs(reader.size().height()));
    if (!isReadable(size))
        return {};
    // Decoders fill the image that they are given if it fits: pixels that the file leaves out are
    // transparent.
    QImage image(size, reader.imageFormat() == QImage::Format_Invalid ? QImage::Format_ARGB32
                                                                      : reader.imageFormat());
    image.fill(0);
    if (!reader.read(&image))
        return {};
    // A GIF's first frame may be announced smaller than the screen that it is given on.
    if (!isReadable(image.size()))
        return {};
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage loadPicture(const std::string& path) {
    static PictureCache cache;
    const QFileInfo info(QString::fromStdString(path));
    QImage image = cache.find(info);
    if (image.isNull()) {
        image = decodePicture(fileBytes(info, kMaxFileBytes));
        if (!image.isNull())
            cache.add(info, image);
    }
    return image;
}

QByteArray bitmapFile(const QImage& image) {
    const int width = image.width();
    const int height = image.height();
    if (image.isNull() || width > kMaxSide || height > kMaxSide)
        return {};
    constexpr int kHeaderBytes = 54;
    const int stride = (width * 3 + 3) / 4 * 4;
    QByteArray file(kHeaderBytes + static_cast<qsizetype>(stride) * height, Qt::Uninitialized);
    auto* bytes = reinterpret_cast<uchar*>(file.data());
    std::memset(bytes, 0, kHeaderBytes);
    const auto put = [bytes](int at, int count, qint64 value) {
        for (int i = 0; i < count; ++i)
            bytes[at + i] = static_cast<uchar>(value >> (8 * i));
    };
    put(0, 2, 'B' | 'M' << 8);
    put(2, 4, file.size());
    put(10, 4, kHeaderBytes);
    put(14, 4, 40);
    put(18, 4, width);
    put(22, 4, height);
    put(26, 2, 1);
    put(28, 2, 24);
    put(34, 4, file.size() - kHeaderBytes);
    put(38, 4, kPixelsPerMetre);
    put(42, 4, kPixelsPerMetre);

    const QImage converted = image.format() == QImage::Format_ARGB32_Premultiplied
                                 ? QImage()
                                 : image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage& pixels = converted.isNull() ? image : converted;
    for (int y = 0; y < height; ++y) {
        uchar* row = bytes + kHeaderBytes + static_cast<qsizetype>(stride) * y;
        packRow(reinterpret_cast<const QRgb*>(pixels.constScanLine(height - 1 - y)), width, row);
        std::memset(row + 3 * width, 0, static_cast<std::size_t>(stride - 3 * width));
    }
    return file;
}

} // namespace chartdraw
