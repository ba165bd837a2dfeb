#include "editors/colour/spectrum_ctrl.h"

#include "editors/colour/spectrum_event.h"

#include <QApplication>
#include <QHash>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cstdlib>

QEvent::Type RegisteredEventType(const char* name) {
    static QHash<QByteArray, int> types;
    const auto known = types.constFind(name);
    const int type = known != types.constEnd() ? *known : *types.insert(name, QEvent::registerEventType());
    return static_cast<QEvent::Type>(type);
}

namespace {

constexpr int kMiddleLum = 120; // at which hues are purest

QColor ToQColor(std::uint32_t color) {
    return {RedOf(color), GreenOf(color), BlueOf(color)};
}

} // namespace

XColorSpectrumCtrl::XColorSpectrumCtrl() {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true); // a button that was let go elsewhere ends a drag
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(QStringLiteral("Hue, saturation and lightness"));
    setLayoutDirection(Qt::LeftToRight);
}

void XColorSpectrumCtrl::Create(QWidget* parent, int id, std::uint32_t color, int tooltipFormat) {
    setParent(parent);
    m_owner = parent;
    m_id = id;
    m_tooltipFormat = tooltipFormat;
    SetRGB(color);
    show();
}

void XColorSpectrumCtrl::SetRGB(std::uint32_t color) {
    m_color = color;
    m_hsl = HslOf(color);
    Show();
}

QSize XColorSpectrumCtrl::sizeHint() const {
    const int line = fontMetrics().height();
    return {line * 8 + 35, line * 7};
}

void XColorSpectrumCtrl::Show() {
    setAccessibleDescription(
        QString::asprintf("Hue %d, saturation %d, lightness %d", m_hsl.hue, m_hsl.sat, m_hsl.lum));
    update();
}

void XColorSpectrumCtrl::Notify(const char* message) {
    if (m_owner != nullptr && m_color != 0xFFFFFFFF) {
        CSpectrumEvent event(message, m_color, m_id);
        QCoreApplication::sendEvent(m_owner, &event);
    }
}

void XColorSpectrumCtrl::TakeHsl(const Hsl& hsl) {
    m_hsl = hsl;
    m_color = RgbOf(hsl.hue, hsl.sat, hsl.lum);
    Show();
    Notify(WM_XCOLORPICKER_SELCHANGE);
}

// ---- Painting

void XColorSpectrumCtrl::paintEvent(QPaintEvent* /*event*/) {
    const SpectrumGeometry geometry = Geometry();
    QPainter painter(this);
    PaintSpectrum(painter, geometry);
    PaintSlider(painter, geometry);
    PaintCrosshair(painter, geometry);
    PaintArrow(painter, geometry);
}

void XColorSpectrumCtrl::PaintSpectrum(QPainter& painter, const SpectrumGeometry& geometry) {
    const QSize size = geometry.spectrum.size();
    if (m_image.size() != size && !size.isEmpty()) {
        m_image = QImage(size, QImage::Format_RGB32);
        for (int i = 0; i < size.height(); ++i) {
            auto* row = reinterpret_cast<QRgb*>(m_image.scanLine(size.height() - 1 - i));
            const double sat = i * 240.0 / std::max(1, size.height() - 1);
            for (int j = 0; j < size.width(); ++j)
                row[j] = ToQColor(RgbOf(j * 240.0 / std::max(1, size.width() - 1), sat, kMiddleLum)).rgb();
        }
    }
    if (!size.isEmpty())
        painter.drawImage(geometry.spectrum.topLeft(), m_image);
}

void XColorSpectrumCtrl::PaintSlider(QPainter& painter, const SpectrumGeometry& geometry) const {
    const QRect& bar = geometry.bar;
    for (int i = 0; i < bar.height(); ++i) {
        const double lum = std::min(240.0, 240.0 * i / std::max(1, bar.height() - 1));
        painter.fillRect(QRect(bar.left(), bar.bottom() - i, bar.width(), 1),
                         ToQColor(RgbOf(m_hsl.hue, m_hsl.sat, lum)));
    }
}

void XColorSpectrumCtrl::PaintCrosshair(QPainter& painter, const SpectrumGeometry& geometry) const {
    // A plus of four arms, 5 by 2 each, round a hole of 4.
    static constexpr QRect kArms[] = {{6, 0, 2, 5}, {6, 9, 2, 5}, {0, 6, 5, 2}, {9, 6, 5, 2}};
    const QPoint corner = geometry.Crosshair(m_hsl) - QPoint(7, 7);
    const QColor color = palette().color(m_focus == Part::Crosshair ? QPalette::WindowText : QPalette::Base);
    for (const QRect& arm : kArms)
        painter.fillRect(arm.translated(corner) & geometry.spectrum, color);
}

void XColorSpectrumCtrl::PaintArrow(QPainter& painter, const SpectrumGeometry& geometry) const {
    const QPoint tip = geometry.Arrow(m_hsl.lum) + QPoint(0, 4);
    const QColor border = palette().color(QPalette::WindowText);
    const QColor fill = m_focus == Part::Slider ? border : palette().color(QPalette::Dark);
    // Seven by nine with the point to the left: columns of 1, 3, 5, 7, 9 rows, then two of 9.
    for (int x = 0; x < 7; ++x) {
        const int reach = std::min(x, 4);
        painter.fillRect(QRect(tip.x() + x, tip.y() - reach, 1, 2 * reach + 1), x == 6 ? border : fill);
        painter.fillRect(QRect(tip.x() + x, tip.y() - reach, 1, 1), border);
        painter.fillRect(QRect(tip.x() + x, tip.y() + reach, 1, 1), border);
    }
}

// ---- Mouse

XColorSpectrumCtrl::Part XColorSpectrumCtrl::PartAt(const QPoint& place) const {
    const SpectrumGeometry geometry = Geometry();
    if (geometry.spectrum.contains(place))
        return Part::Crosshair;
    return geometry.slider.contains(place) ? Part::Slider : Part::None;
}

void XColorSpectrumCtrl::Drag(Part part, const QPoint& place) {
    const SpectrumGeometry geometry = Geometry();
    Hsl hsl = m_hsl;
    if (part == Part::Crosshair) {
        hsl.hue = geometry.HueAt(place.x());
        hsl.sat = geometry.SatAt(place.y());
    } else {
        hsl.lum = geometry.LumAt(place.y());
    }
    TakeHsl(hsl);
}

void XColorSpectrumCtrl::mousePressEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    const Part part = PartAt(place);
    if (event->button() != Qt::LeftButton || part == Part::None)
        return;
    setFocus(Qt::MouseFocusReason);
    m_focus = part;
    m_drag = part;
    Drag(part, place);
}

void XColorSpectrumCtrl::mouseMoveEvent(QMouseEvent* event) {
    if (!event->buttons().testFlag(Qt::LeftButton))
        m_drag = Part::None;
    const QPoint place = event->position().toPoint();
    if (m_drag != Part::None && PartAt(place) == m_drag)
        Drag(m_drag, place);
}

void XColorSpectrumCtrl::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        m_drag = Part::None;
}

void XColorSpectrumCtrl::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && PartAt(event->position().toPoint()) != Part::None)
        Notify(WM_XCOLORPICKER_SELENDOK);
}

// ---- Keyboard

bool XColorSpectrumCtrl::focusNextPrevChild(bool next) {
    const Part from = next ? Part::Crosshair : Part::Slider;
    if (m_focus != from)
        return QWidget::focusNextPrevChild(next);
    m_focus = next ? Part::Slider : Part::Crosshair;
    update();
    return true;
}

void XColorSpectrumCtrl::keyPressEvent(QKeyEvent* event) {
    constexpr int kToTheEnd = 20000;
    const Qt::KeyboardModifiers held = event->modifiers();
    const int step = held.testFlag(Qt::ControlModifier) ? 1 : held.testFlag(Qt::ShiftModifier) ? 10 : 5;
    const bool slider = m_focus == Part::Slider;
    int across = 0; // steps of hue
    int up = 0;     // steps of saturation, or of lightness on the slider
    switch (event->key()) {
    case Qt::Key_Left:
        across = -step;
        break;
    case Qt::Key_Right:
        across = step;
        break;
    case Qt::Key_Up:
        up = step;
        break;
    case Qt::Key_Down:
        up = -step;
        break;
    case Qt::Key_PageUp:
        up = kToTheEnd;
        break;
    case Qt::Key_PageDown:
        up = -kToTheEnd;
        break;
    case Qt::Key_Home:
    case Qt::Key_End: {
        const int end = event->key() == Qt::Key_Home ? kToTheEnd : -kToTheEnd;
        (slider ? up : across) = slider ? end : -end;
        break;
    }
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    if (m_focus == Part::None || (slider && up == 0))
        return;
    Hsl hsl = m_hsl;
    if (slider) {
        hsl.lum = std::clamp(hsl.lum + up, 0, kLumMax);
    } else {
        hsl.hue = std::clamp(hsl.hue + across, 0, kHueMax);
        hsl.sat = std::clamp(hsl.sat + up, 0, kSatMax);
    }
    TakeHsl(hsl);
}

void XColorSpectrumCtrl::focusInEvent(QFocusEvent* /*event*/) {
    const bool back = QApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
    m_focus = back ? Part::Slider : Part::Crosshair;
    update();
}

void XColorSpectrumCtrl::focusOutEvent(QFocusEvent* /*event*/) {
    m_focus = Part::None;
    update();
}

// ---- Tool tip

bool XColorSpectrumCtrl::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && m_tooltipFormat != 0) {
        const auto* help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), ToolTipAt(help->pos()), this);
        return true;
    }
    return QWidget::event(event);
}

QString XColorSpectrumCtrl::ToolTipAt(const QPoint& place) const {
    const SpectrumGeometry geometry = Geometry();
    std::uint32_t color = 0;
    if (geometry.spectrum.contains(place)) {
        const QPoint pixel = place - geometry.spectrum.topLeft();
        const QColor shown = m_image.valid(pixel) ? m_image.pixelColor(pixel) : QColor();
        color = Rgb(shown.red(), shown.green(), shown.blue());
    } else if (geometry.bar.contains(place)) {
        const int above = geometry.bar.bottom() - place.y();
        color = RgbOf(m_hsl.hue, m_hsl.sat, 240.0 * above / std::max(1, geometry.bar.height() - 1));
    } else {
        return {};
    }
    const int red = RedOf(color);
    const int green = GreenOf(color);
    const int blue = BlueOf(color);
    switch (m_tooltipFormat) {
    case 2:
        return QString::asprintf("#%02X%02X%02X", red, green, blue);
    case 3:
        return QString::asprintf("%02X%02X%02X", blue, green, red);
    case 4: {
        const Hsl hsl = HslOf(color);
        return QString::asprintf("HSL(%d,%d,%d)", hsl.hue, hsl.sat, hsl.lum);
    }
    default:
        return QString::asprintf("RGB(%d,%d,%d)", red, green, blue);
    }
}
