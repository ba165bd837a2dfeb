#include "editors/preview/bitmap.h"
#include <QtEndian>

// Places in the file's header, in bytes.
static constexpr std::size_t kPixelOffset = 10;
static constexpr std::size_t kWidth = 18;
static constexpr std::size_t kHeight = 22;
static constexpr std::size_t kHeaderSize = 54;

QImage BitmapPart(std::span<const char> bytes, const QRect& part) {
    if (bytes.size() < kHeaderSize)
        return {};
    const auto field = [&](std::size_t place) { return qFromLittleEndian<qint32>(bytes.data() + place); };
    const int height = field(kHeight);
    const QRect shown = part & QRect(0, 0, field(kWidth), height);
    if (shown.isEmpty())
        return {};
    const qsizetype rowBytes = (qsizetype{field(kWidth)} * 3 + 3) / 4 * 4;
    const char* lowestRow = bytes.data() + field(kPixelOffset) + (height - 1 - shown.bottom()) * rowBytes;
    const auto* corner = reinterpret_cast<const uchar*>(lowestRow + qsizetype{shown.x()} * 3);
    return QImage(corner, shown.width(), shown.height(), rowBytes, QImage::Format_BGR888).mirrored();
}

QImage WholeBitmap(std::span<const char> bytes) {
    constexpr int kAll = 1 << 20; // more than a picture has
    return BitmapPart(bytes, {0, 0, kAll, kAll});
}
