#pragma once
// The one picture pane of the library: holds private copies of what it shows, keeps the picture, and paints
// it fitted to the pane or at natural size with scroll bars.

#include "render/chart_preview.h"
#include <QAbstractScrollArea>

/// A preview pane. It shows what the last setter gave it, redrawn once after each RefreshPreview. Setters
/// only store; the caller asks for the redraw. Pages edit the working copy in the members of CChartPreview.
///
/// A picture larger than the pane can be switched between fit and scroll mode, by double click or from the
/// menu of the right button, and is dragged in scroll mode. The samples of the pickers cannot be switched.
/// A chart is drawn in the pixels of the screen, at the size that it is shown at, so that it is as sharp as
/// the screen; drawn anew when that size changes. All sizes here are those of the chart itself. The memory of
/// the last picture stays allocated when the view goes; see CPictureBlock.
class CChartPreviewView : public QAbstractScrollArea, public CChartPreview {
    Q_OBJECT
public:
    explicit CChartPreviewView(QWidget* parent = nullptr);

    void SetSampleColor(const CChartColor& color);
    void SetSampleFont(const CChartFont& font);
    /// `path` is narrow text in the locale's encoding.
    void SetSampleImage(const CChartString& path);

    // These take copies of chart and layout.
    void SetLayout(const CChartLayout& layout);
    void SetChart(const CXYChart& chart, const CChartLayout& layout);
    void SetChart(const CPolarChart& chart, const CChartLayout& layout);
    void SetChart(const CPieChart& chart, const CChartLayout& layout);
    void SetChart(const CFinanceChart& chart, const CChartLayout& layout);
    void SetChart(const CAngularMeter& chart, const CChartLayout& layout);
    void SetChart(const CLinearMeter& chart, const CChartLayout& layout);

    // These take no copies: chart and layout must outlive their use by the view. Null shows nothing.
    void AttachChart(CXYChart* chart, const CChartLayout* layout);
    void AttachChart(CPolarChart* chart, const CChartLayout* layout);

    /// The one layer that an attached chart is drawn with; not owned.
    void SetPreviewLayer(CXYChartLayer* layer) { m_previewLayer = layer; }
    void SetPreviewLayer(CPolarLayer* layer) { m_polarLayer = layer; }

    /// Marks the picture stale; the next paint draws a new one. The only way to ask for it.
    void RefreshPreview();

    /// Draws the picture at once, of what is there now; it stays until the next RefreshPreview.
    void DrawNow();
    /// A few words in the corner of the pane; none when empty.
    void SetCaption(const QString& caption);

    /// Carries out fitModeCommand or scrollModeCommand; ignores others.
    void OnCommand(int command);

    int ClientWidth() const override { return viewport()->width(); }
    int ClientHeight() const override { return viewport()->height(); }
    void SetScrollSizes() override;
    int PictureFormat() const override;
    void PaintSample(const char* bytes, int length) override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void SetKind(PreviewKind kind);
    void SetSample(PreviewKind kind);
    void CopyLayout(PreviewKind kind, const CChartLayout& layout);
    QSize PictureSize() const { return {m_pictureWidth, m_pictureHeight}; }
    double ScaleFor(QSize picture) const;
    void DrawPicture();
    void RunDrawRoutine(double scale);
    QRect PicturePlace() const;
    void PaintPicture(QPainter& painter, const QRect& place, const QRect& clip) const;
    void PaintFocus(QPainter& painter) const;
    void SetMarked(bool marked);
    void PaintCaption(QPainter& painter) const;
    void SetFitMode(bool fit);
    void TakeScrollSizes();
    void UpdateScrollBars();
    void UpdateCursor();
    bool CanSwitchMode() const;
    void PopUpMenu(const QPoint& place);

    QString m_caption;
    double m_scale = 1;       // pixels of the screen to one of the chart, in the picture that is there
    QSize m_scrollSize{0, 0}; // what the bars scroll over
    bool m_marked = false;    // shows that it has the focus, which came by the keyboard
    bool m_dragging = false;
    QPoint m_dragStart;  // pointer at the start of the drag
    QPoint m_dragScroll; // scroll position at the start of the drag
};
