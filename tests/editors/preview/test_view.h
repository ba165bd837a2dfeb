#pragma once
// A preview pane whose picture tells where each of its pixels comes from.

#include "editors/preview/chart_preview_view.h"
#include "tests/driver/windows.h"
#include <QImage>

constexpr QRgb kSurround = 0xffeeeeee;

/// The colour of the picture's pixel at (x, y); no two are alike, and none is the surround.
constexpr QRgb codeAt(int x, int y) {
    return 0xff000000U | static_cast<QRgb>((x & 255) | (y & 255) << 8 | (x >> 8) << 16 | (y >> 8) << 20);
}

/// A layout without anything but a wallpaper of coded pixels, as large as the picture.
CChartLayout codedLayout(QSize picture);

struct TestView : CChartPreviewView {
    TestView(QSize pane, QSize picture);

    /// Gives the pane that room, without regard to scroll bars.
    void ResizePane(QSize pane);
    /// What the pane shows after all pending events, border and scroll bars cut off.
    QImage Pane();
    QPoint Scroll() const;
    QPoint ScrollRange() const;
};

QRect shownRect(const QImage& pane);

/// Whether the pane shows coded pixels one to one, that of `origin` at its top left corner, and surround beyond.
testing::AssertionResult showsNaturalSize(const QImage& pane, QPoint origin, QSize picture);
