#include "editors/preview/fit_geometry.h"

static constexpr int kMargin = 10; // pixels, both sides together

/// Centres an extent; an odd rest goes before it.
static int Centred(int room, int extent) {
    return static_cast<int>((room - extent + 1.0) * 0.5);
}

static QSize ShrunkSize(QSize pane, QSize picture) {
    const double width = picture.width();
    const double height = picture.height();
    if (height / pane.height() < width / pane.width()) {
        const int shrunk = pane.width() - kMargin;
        return {shrunk, static_cast<int>(shrunk * height / width + 0.5)};
    }
    const int shrunk = pane.height() - kMargin;
    return {static_cast<int>(shrunk * width / height + 0.5), shrunk};
}

QRect FitRect(QSize pane, QSize picture) {
    const bool smaller = picture.width() < pane.width() && picture.height() < pane.height();
    const QSize size = smaller ? picture : ShrunkSize(pane, picture);
    if (size.isEmpty())
        return {};
    return {QPoint(Centred(pane.width(), size.width()), Centred(pane.height(), size.height())), size};
}
