#include "editors/preview/chart_preview_view.h"
#include "editors/preview/bitmap.h"
#include "editors/preview/draw_routines.h"
#include "editors/preview/fit_geometry.h"
#include "editors/preview/hand_cursors.h"
#include "resources/preview_menu.h"
#include <QContextMenuEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <qdrawutil.h>

static constexpr QRgb kSurround = 0xffeeeeee;
static constexpr int kScrollStep = 20; // pixels

CChartPreviewView::CChartPreviewView(QWidget* parent) : QAbstractScrollArea(parent) {
    setFrameStyle(QFrame::NoFrame); // samples have a frame of their own, and they are what is shown at first
    setLayoutDirection(Qt::LeftToRight); // a picture does not run with the text
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleName(previewMenuTitle);
    horizontalScrollBar()->setSingleStep(kScrollStep);
    verticalScrollBar()->setSingleStep(kScrollStep);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent); // not erased before a paint, so it does not flicker
}

void CChartPreviewView::RefreshPreview() {
    m_dirty = true;
    viewport()->update();
}

void CChartPreviewView::DrawNow() {
    m_picture.Clear();
    m_dirty = false;
    DrawPicture();
    viewport()->update();
}

void CChartPreviewView::SetCaption(const QString& caption) {
    m_caption = caption;
    viewport()->update();
}

bool CChartPreviewView::event(QEvent* event) {
    // The first thing that happens to a widget about to be seen.
    if (event->type() == QEvent::Polish && m_kind == PreviewLayout && !m_fitMode && m_layout) {
        m_pictureWidth = m_layout->m_width;
        m_pictureHeight = m_layout->m_height;
        TakeScrollSizes();
    }
    return QAbstractScrollArea::event(event);
}

// ---- Painting

/// What a chart of that size is to be drawn at. Images are shown from their own pixels.
double CChartPreviewView::ScaleFor(QSize picture) const {
    constexpr double kMaxSide = 16384; // pixels of a picture that can be made
    constexpr double kLargest = 64;
    if (m_kind == PreviewImage)
        return 1;
    double scale = devicePixelRatioF();
    if (m_kind >= PreviewLayout) {
        if (picture.isEmpty())
            return 1;
        if (m_fitMode)
            scale *= FitRect(viewport()->size(), picture).width() * 1.0 / picture.width();
        scale = std::min(scale, kMaxSide / std::max(picture.width(), picture.height()));
    }
    return scale > 0 ? std::min(scale, kLargest) : 1;
}

int CChartPreviewView::PictureFormat() const {
    return PictureFormatAt(m_scale);
}

void CChartPreviewView::DrawPicture() {
    // The size of a chart is that of its layout, but for those that are made of several: these tell it first.
    const bool told = m_kind < PreviewLayout || m_kind == PreviewFinanceChart || m_layout == nullptr;
    const QSize expected = told ? PictureSize() : QSize(m_layout->m_width, m_layout->m_height);
    RunDrawRoutine(ScaleFor(expected));
    if (!m_picture.Empty() && ScaleFor(PictureSize()) != m_scale) {
        m_picture.Clear();
        RunDrawRoutine(ScaleFor(PictureSize()));
    }
}

void CChartPreviewView::RunDrawRoutine(double scale) {
    m_scale = scale;
    const DrawRoutine routine = FindDrawRoutine(m_kind);
    const bool lacksModel = (m_kind >= PreviewLayout && !m_layout) ||
                            (m_kind == PreviewXYChart && !m_chart) ||
                            (m_kind == PreviewPolarChart && !m_polarChart);
    if (!routine || lacksModel)
        return;
    const bool fitMode = m_fitMode;
    routine(*this);
    if (m_fitMode != fitMode) {
        UpdateCursor();
        SetScrollSizes();
    }
}

void CChartPreviewView::paintEvent(QPaintEvent* event) {
    if (m_dirty || (!m_picture.Empty() && m_scale != ScaleFor(PictureSize()))) {
        m_picture.Clear();
        m_dirty = false;
    }
    if (m_picture.Empty())
        DrawPicture();
    if (m_picture.Empty())
        return;
    QPainter painter(viewport());
    const QRect place = PicturePlace();
    // Up to a pixel into the picture, which may begin between two pixels of the pane.
    for (const QRect& rest : event->region() - place.adjusted(1, 1, -1, -1))
        painter.fillRect(rest, QColor(kSurround));
    PaintPicture(painter, place, event->rect());
    if (m_marked)
        PaintFocus(painter);
    if (!m_caption.isEmpty())
        PaintCaption(painter);
}

/// To be seen on any picture.
void CChartPreviewView::PaintFocus(QPainter& painter) const {
    const QRect mark = viewport()->rect().adjusted(1, 1, -2, -2);
    painter.setPen(Qt::white);
    painter.drawRect(mark);
    painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
    painter.drawRect(mark);
}

void CChartPreviewView::PaintCaption(QPainter& painter) const {
    constexpr int kGap = 6;
    const QSize text = fontMetrics().size(0, m_caption);
    const QRect tag(kGap, kGap, text.width() + 2 * kGap, text.height() + kGap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Highlight));
    painter.drawRoundedRect(tag, kGap / 2.0, kGap / 2.0);
    painter.setPen(palette().color(QPalette::HighlightedText));
    painter.drawText(tag, Qt::AlignCenter, m_caption);
}

/// Where the picture is, in the pane's pixels.
QRect CChartPreviewView::PicturePlace() const {
    return m_fitMode
               ? FitRect(viewport()->size(), PictureSize())
               : QRect(QPoint(-horizontalScrollBar()->value(), -verticalScrollBar()->value()), PictureSize());
}

void CChartPreviewView::PaintPicture(QPainter& painter, const QRect& place, const QRect& clip) const {
    if (place.isEmpty())
        return;
    // In pixels of the screen, on which the picture stands pixel on pixel.
    const double ratio = devicePixelRatioF();
    const auto ofScreen = [ratio](const QRect& rect) {
        return QRect((QPointF(rect.topLeft()) * ratio).toPoint(), (QSizeF(rect.size()) * ratio).toSize());
    };
    const auto ofPane = [ratio](const QRect& rect) {
        return QRectF(QPointF(rect.topLeft()) / ratio, QSizeF(rect.size()) / ratio);
    };
    const QRect whole = ofScreen(place);
    const bool shrunk = m_fitMode && place.size() != PictureSize();
    if (m_scale == ratio && !shrunk) {
        const QRect part = ofScreen(clip.adjusted(-1, -1, 1, 1)) & whole;
        if (!part.isEmpty())
            painter.drawImage(ofPane(part), BitmapPart(m_picture.Bytes(), part.translated(-whole.topLeft())));
        return;
    }
    QImage image = WholeBitmap(m_picture.Bytes());
    if (shrunk && image.size() != whole.size())
        image = image.convertToFormat(QImage::Format_RGB32)
                    .scaled(whole.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.drawImage(ofPane(whole), image);
}

void CChartPreviewView::PaintSample(const char* bytes, int length) {
    const QRect pane = viewport()->rect();
    QPainter painter(viewport());
    if (length > 0)
        painter.drawImage(QRectF(pane), WholeBitmap({bytes, static_cast<std::size_t>(length)}));
    qDrawPlainRect(&painter, pane, Qt::black);
}

// ---- Scrolling and modes

void CChartPreviewView::SetScrollSizes() {
    // Drawing routines call this in the middle of a paint, when the pane must not change its size.
    QMetaObject::invokeMethod(
        this,
        [this] {
            TakeScrollSizes();
            viewport()->update();
        },
        Qt::QueuedConnection);
}

void CChartPreviewView::TakeScrollSizes() {
    m_scrollSize = m_fitMode ? QSize(0, 0) : PictureSize();
    UpdateScrollBars();
}

void CChartPreviewView::UpdateScrollBars() {
    const QSize most = maximumViewportSize();
    const bool whole = m_scrollSize.width() <= most.width() && m_scrollSize.height() <= most.height();
    const QSize pane = whole ? most : viewport()->size();
    // A bar that comes or goes resizes the pane, and this runs again before setRange returns.
    horizontalScrollBar()->setRange(0, std::max(0, m_scrollSize.width() - pane.width()));
    verticalScrollBar()->setRange(0, std::max(0, m_scrollSize.height() - pane.height()));
}

void CChartPreviewView::resizeEvent(QResizeEvent*) {
    horizontalScrollBar()->setPageStep(ClientWidth());
    verticalScrollBar()->setPageStep(ClientHeight());
    UpdateScrollBars();
}

void CChartPreviewView::scrollContentsBy(int dx, int dy) {
    if (m_marked)
        viewport()->update(); // the mark stays where it is
    else
        viewport()->scroll(dx, dy);
}

void CChartPreviewView::SetFitMode(bool fit) {
    m_fitMode = fit;
    TakeScrollSizes();
    UpdateCursor();
    viewport()->update();
}

bool CChartPreviewView::CanSwitchMode() const {
    return m_kind >= PreviewLayout && m_kind <= PreviewPolarChart &&
           (m_pictureWidth > ClientWidth() || m_pictureHeight > ClientHeight());
}

void CChartPreviewView::OnCommand(int command) {
    if (command == fitModeCommand || command == scrollModeCommand)
        SetFitMode(command == fitModeCommand);
}

void CChartPreviewView::PopUpMenu(const QPoint& place) {
    auto* menu = new QMenu(previewMenuTitle, this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const MenuCommand& entry : previewMenu) {
        QAction* action = menu->addAction(entry.text, [this, &entry] { OnCommand(entry.command); });
        action->setCheckable(true);
        action->setChecked(m_fitMode == (entry.command == fitModeCommand));
    }
    menu->popup(place);
}

// ---- Mouse

void CChartPreviewView::UpdateCursor() {
    if (m_kind == PreviewColor || m_kind == PreviewFont)
        return; // nothing to drag
    if (m_fitMode)
        viewport()->unsetCursor();
    else
        viewport()->setCursor(m_dragging ? ClosedHandCursor() : OpenHandCursor());
}

void CChartPreviewView::focusInEvent(QFocusEvent* event) {
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
        SetMarked(true);
}

void CChartPreviewView::focusOutEvent(QFocusEvent* event) {
    // To its own menu, or to another window, it is not gone.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        SetMarked(false);
}

void CChartPreviewView::SetMarked(bool marked) {
    m_marked = marked;
    viewport()->update();
}

void CChartPreviewView::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
    SetMarked(false);
    if (event->button() == Qt::RightButton && CanSwitchMode())
        PopUpMenu(event->globalPosition().toPoint());
    if (event->button() != Qt::LeftButton || m_fitMode)
        return;
    m_dragging = true;
    m_dragStart = event->position().toPoint();
    m_dragScroll = {horizontalScrollBar()->value(), verticalScrollBar()->value()};
    UpdateCursor();
}

void CChartPreviewView::mouseMoveEvent(QMouseEvent* event) {
    if (!m_dragging)
        return;
    const QPoint scroll = m_dragScroll + m_dragStart - event->position().toPoint();
    horizontalScrollBar()->setValue(scroll.x()); // the bars keep within their range
    verticalScrollBar()->setValue(scroll.y());
}

void CChartPreviewView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    m_dragging = false;
    UpdateCursor();
}

void CChartPreviewView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && CanSwitchMode())
        SetFitMode(!m_fitMode);
}

void CChartPreviewView::contextMenuEvent(QContextMenuEvent* event) {
    // The button itself opens the menu in mousePressEvent; this is for the menu key.
    if (event->reason() == QContextMenuEvent::Keyboard && CanSwitchMode())
        PopUpMenu(event->globalPos());
}

// ---- What is shown

void CChartPreviewView::SetKind(PreviewKind kind) {
    m_kind = kind;
    const bool framed = kind != PreviewColor && kind != PreviewFont; // these are painted with a frame
    setFrameStyle(framed ? QFrame::Box | QFrame::Plain : QFrame::NoFrame);
}

void CChartPreviewView::SetSample(PreviewKind kind) {
    m_fitMode = false;
    SetKind(kind);
    UpdateCursor();
}

void CChartPreviewView::SetSampleColor(const CChartColor& color) {
    SetSample(PreviewColor);
    m_sampleColor = color;
}

void CChartPreviewView::SetSampleFont(const CChartFont& font) {
    SetSample(PreviewFont);
    m_sampleFont = font;
}

void CChartPreviewView::SetSampleImage(const CChartString& path) {
    SetSample(PreviewImage);
    m_sampleImage = path;
}

void CChartPreviewView::CopyLayout(PreviewKind kind, const CChartLayout& layout) {
    SetKind(kind);
    m_ownLayout = layout;
    m_layout = &m_ownLayout;
    m_singleLayerMode = false;
}

void CChartPreviewView::SetLayout(const CChartLayout& layout) {
    CopyLayout(PreviewLayout, layout);
}

void CChartPreviewView::SetChart(const CXYChart& chart, const CChartLayout& layout) {
    CopyLayout(PreviewXYChart, layout);
    m_ownXYChart = chart;
    m_chart = &m_ownXYChart;
    m_previewLayer = nullptr;
}

void CChartPreviewView::SetChart(const CPolarChart& chart, const CChartLayout& layout) {
    CopyLayout(PreviewPolarChart, layout);
    m_ownPolarChart = chart;
    m_polarChart = &m_ownPolarChart;
    m_polarLayer = nullptr;
}

void CChartPreviewView::SetChart(const CPieChart& chart, const CChartLayout& layout) {
    CopyLayout(PreviewPieChart, layout);
    m_ownPieChart = chart;
}

void CChartPreviewView::SetChart(const CFinanceChart& chart, const CChartLayout& layout) {
    CopyLayout(PreviewFinanceChart, layout);
    m_ownFinanceChart = chart;
}

void CChartPreviewView::SetChart(const CAngularMeter& chart, const CChartLayout& layout) {
    CopyLayout(PreviewAngularMeter, layout);
    m_ownAngularMeter = chart;
}

void CChartPreviewView::SetChart(const CLinearMeter& chart, const CChartLayout& layout) {
    CopyLayout(PreviewLinearMeter, layout);
    m_ownLinearMeter = chart;
}

void CChartPreviewView::AttachChart(CXYChart* chart, const CChartLayout* layout) {
    SetKind(PreviewXYChart);
    m_chart = chart;
    m_layout = layout;
    m_singleLayerMode = true;
    m_previewLayer = nullptr;
}

void CChartPreviewView::AttachChart(CPolarChart* chart, const CChartLayout* layout) {
    SetKind(PreviewPolarChart);
    m_polarChart = chart;
    m_layout = layout;
    m_singleLayerMode = true;
    m_polarLayer = nullptr;
}
