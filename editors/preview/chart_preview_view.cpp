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
    setFrameStyle(QFrame::Box | QFrame::Plain);
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

void CChartPreviewView::RunDrawRoutine() {
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
    if (m_dirty) {
        m_picture.Clear();
        m_dirty = false;
    }
    if (m_picture.Empty())
        RunDrawRoutine();
    if (m_picture.Empty())
        return;
    QPainter painter(viewport());
    const QRect shown = m_fitMode ? PaintFitted(painter) : PaintScrolled(painter, event->rect());
    for (const QRect& rest : event->region() - shown)
        painter.fillRect(rest, QColor(kSurround));
}

QRect CChartPreviewView::PaintFitted(QPainter& painter) const {
    const QRect place = FitRect(viewport()->size(), PictureSize());
    if (place.isEmpty())
        return {};
    QImage image = BitmapPart(m_picture.Bytes(), QRect(QPoint(), PictureSize()));
    if (place.size() != PictureSize())
        image = image.convertToFormat(QImage::Format_RGB32)
                    .scaled(place.size() * painter.device()->devicePixelRatio(), Qt::IgnoreAspectRatio,
                            Qt::SmoothTransformation);
    painter.drawImage(place, image);
    return place;
}

QRect CChartPreviewView::PaintScrolled(QPainter& painter, const QRect& clip) const {
    const QPoint scroll(horizontalScrollBar()->value(), verticalScrollBar()->value());
    const QRect part = clip & QRect(-scroll, PictureSize());
    if (part.isEmpty())
        return {};
    painter.drawImage(part, BitmapPart(m_picture.Bytes(), part.translated(scroll)));
    return part;
}

void CChartPreviewView::PaintSample(const char* bytes, int length) {
    const QRect pane = viewport()->rect();
    QPainter painter(viewport());
    if (length > 0)
        painter.drawImage(pane, BitmapPart({bytes, static_cast<std::size_t>(length)}, pane));
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
    if (m_fitMode)
        viewport()->unsetCursor();
    else
        viewport()->setCursor(m_dragging ? ClosedHandCursor() : OpenHandCursor());
}

void CChartPreviewView::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
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

void CChartPreviewView::SetSample(PreviewKind kind) {
    m_fitMode = false;
    m_kind = kind;
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
    m_kind = kind;
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
    m_kind = PreviewXYChart;
    m_chart = chart;
    m_layout = layout;
    m_singleLayerMode = true;
    m_previewLayer = nullptr;
}

void CChartPreviewView::AttachChart(CPolarChart* chart, const CChartLayout* layout) {
    m_kind = PreviewPolarChart;
    m_polarChart = chart;
    m_layout = layout;
    m_singleLayerMode = true;
    m_polarLayer = nullptr;
}
