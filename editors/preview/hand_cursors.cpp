#include "editors/preview/hand_cursors.h"
#include "resources/preview_cursors.h"
#include <QBitmap>
#include <QImage>

static QCursor MakeCursor(const CursorPicture& picture) {
    QImage black(cursorSide, cursorSide, QImage::Format_MonoLSB);
    black.fill(0);
    QImage mask = black;
    const int border = (cursorSide - picture.side) / 2;
    for (int y = 0; y < picture.side; ++y) {
        for (int x = 0; x < picture.side; ++x) {
            const char pixel = picture.rows[y][x];
            black.setPixel(border + x, border + y, pixel == '#');
            mask.setPixel(border + x, border + y, pixel == '#' || pixel == 'o');
        }
    }
    const auto bitmap = [](const QImage& image) {
        return QBitmap::fromData(image.size(), image.constBits(), QImage::Format_MonoLSB);
    };
    return QCursor(bitmap(black), bitmap(mask), picture.hotX, picture.hotY);
}

QCursor OpenHandCursor() {
    return MakeCursor(openHandCursor);
}

QCursor ClosedHandCursor() {
    return MakeCursor(closedHandCursor);
}
