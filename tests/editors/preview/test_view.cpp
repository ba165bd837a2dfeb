#include "tests/editors/preview/test_view.h"
#include <QScrollBar>
#include <QTemporaryDir>

namespace {
[[maybe_unused]] const bool s_application = (NeedApplication(), true); // before any widget

QString codedImage(QSize size) {
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QString("%1x%2.png").arg(size.width()).arg(size.height()));
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) image.setPixel(x, y, codeAt(x, y));
    image.save(path);
    return path;
}
} // namespace

CChartLayout codedLayout(QSize picture) {
    CChartLayout layout;
    layout.m_width = picture.width();
    layout.m_height = picture.height();
    layout.m_edgeColor.m_color = 0xff000000;
    layout.m_useWallPaper = true;
    layout.m_wallPaperImage = codedImage(picture).toUtf8().constData();
    layout.m_piePlotArea.m_radius = 0;
    layout.m_showLabel = layout.m_showLegend = false;
    return layout;
}

TestView::TestView(QSize pane, QSize picture) {
    SetChart(CPieChart(), codedLayout(picture));
    ResizePane(pane);
    show();
    Pane();
}

void TestView::ResizePane(QSize pane) { resize(pane + QSize(2, 2) * frameWidth()); }

QImage TestView::Pane() {
    QCoreApplication::processEvents();
    const QImage all = grab().toImage().convertToFormat(QImage::Format_RGB32);
    const qreal scale = devicePixelRatioF();
    return all.copy(QRect(viewport()->pos() * scale, viewport()->size() * scale));
}

QPoint TestView::Scroll() const { return {horizontalScrollBar()->value(), verticalScrollBar()->value()}; }

QPoint TestView::ScrollRange() const { return {horizontalScrollBar()->maximum(), verticalScrollBar()->maximum()}; }

QRect shownRect(const QImage& pane) {
    QRect shown;
    for (int y = 0; y < pane.height(); ++y)
        for (int x = 0; x < pane.width(); ++x)
            if (pane.pixel(x, y) != kSurround) shown |= QRect(x, y, 1, 1);
    return shown;
}

testing::AssertionResult showsNaturalSize(const QImage& pane, QPoint origin, QSize picture) {
    const QRect all(QPoint(), picture);
    for (int y = 0; y < pane.height(); ++y)
        for (int x = 0; x < pane.width(); ++x) {
            const QPoint from = origin + QPoint(x, y);
            const QRgb expected = all.contains(from) ? codeAt(from.x(), from.y()) : kSurround;
            if (pane.pixel(x, y) != expected)
                return testing::AssertionFailure() << std::hex << pane.pixel(x, y) << " instead of " << expected
                                                   << std::dec << " at " << x << ',' << y;
        }
    return testing::AssertionSuccess();
}
