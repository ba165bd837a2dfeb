#pragma once
// The control that shows hue and saturation as a field, and lightness as a slider beside it.

#include "editors/colour/spectrum_geometry.h"

#include <QImage>
#include <QWidget>

/// Colours are 0x00BBGGRR. What a person does sends the owner the events of spectrum_event.h; the colour
/// 0xFFFFFFFF is never sent.
class XColorSpectrumCtrl : public QWidget {
public:
    XColorSpectrumCtrl();

    /// Makes the control a child of `parent`, which gets its events for good. `tooltipFormat` says how the
    /// tool tip writes the colour under the pointer: 0 no tool tip, 2 "#RRGGBB", 3 "BBGGRR", 4 HSL, any other
    /// RGB.
    void Create(QWidget* parent, int id, std::uint32_t color, int tooltipFormat);

    std::uint32_t GetRGB() const { return m_color; }
    /// Shows a colour; sends nothing.
    void SetRGB(std::uint32_t color);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    enum class Part { None, Crosshair, Slider };

    SpectrumGeometry Geometry() const { return SpectrumGeometry(size()); }
    void PaintSpectrum(QPainter& painter, const SpectrumGeometry& geometry);
    void PaintSlider(QPainter& painter, const SpectrumGeometry& geometry) const;
    void PaintCrosshair(QPainter& painter, const SpectrumGeometry& geometry) const;
    void PaintArrow(QPainter& painter, const SpectrumGeometry& geometry) const;
    Part PartAt(const QPoint& place) const;
    void Drag(Part part, const QPoint& place);
    /// Takes hue, saturation and lightness, and tells the parent.
    void TakeHsl(const Hsl& hsl);
    void Notify(const char* message);
    void Show();
    QString ToolTipAt(const QPoint& place) const;

    QImage m_image; ///< the spectrum
    std::uint32_t m_color = 0;
    Hsl m_hsl{};
    Part m_focus = Part::None;
    Part m_drag = Part::None;
    QWidget* m_owner = nullptr;
    int m_id = 0;
    int m_tooltipFormat = 0;
};
