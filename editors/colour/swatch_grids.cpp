#include "editors/colour/swatch_grids.h"

#include "editors/colour/palettes.h"
#include "editors/colour/swatch.h"
#include "platform/narrow_text.h"
#include "platform/widgets/field_changed.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

namespace {

constexpr QRgb kSelectedFrame = 0xFF3F3F3F;
constexpr QRgb kHoverFrame = 0xFFA0A0A0;

bool Same(const CChartColor& a, const CChartColor& b) {
    return a.m_type == b.m_type && a.m_color == b.m_color && a.m_direction == b.m_direction &&
           qstrcmp(a.m_patternFile.data(), b.m_patternFile.data()) == 0;
}

/// A frame of one pixel, `distance` pixels outside of a cell.
void DrawFrame(QPainter& painter, const QRect& cell, int distance, const QColor& color) {
    painter.setPen(color);
    painter.drawRect(cell.adjusted(-distance, -distance, distance - 1, distance - 1));
}

} // namespace

QString ColorText(const CChartColor& color) {
    if (color.m_type == 1)
        return QStringLiteral("Pattern: ") + platform::NarrowToText(color.m_patternFile.data());
    const auto byte = [&](int shift) { return static_cast<int>(color.m_color >> shift & 0xFF); };
    const QString text =
        QString::asprintf("R: %d, G: %d, B: %d, A: %d", byte(16), byte(8), byte(0), byte(24));
    return color.m_type == 2
               ? QStringLiteral("Metal, ") + text + QString::asprintf(", Angle: %d", color.m_direction)
               : text;
}

CSwatchGrid::CSwatchGrid(QWidget* parent, GridShape shape)
    : QWidget(parent), m_shape(shape), m_cache(static_cast<std::size_t>(shape.Count())) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setLayoutDirection(Qt::LeftToRight);
}

QSize CSwatchGrid::sizeHint() const {
    const int cell = fontMetrics().height();
    const auto length = [&](int count) {
        return 2 * m_shape.margin + count * cell + (count - 1) * m_shape.gap;
    };
    return {length(m_shape.columns), length(m_shape.rows)};
}

const QImage& CSwatchGrid::SwatchOf(int index, QSize size) {
    Cached& cached = m_cache[static_cast<std::size_t>(index)];
    const CChartColor color = CellColor(index);
    if (cached.image.size() != size || !Same(cached.color, color))
        cached = {.color = color, .image = MakeSwatch(color, size)};
    return cached.image;
}

void CSwatchGrid::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Button));
    for (int i = 0; i < m_shape.Count(); ++i) {
        const QRect cell = m_shape.CellRect(i, size());
        painter.drawImage(cell.topLeft(), SwatchOf(i, cell.size()));
        if (i == m_cursor && hasFocus())
            for (int distance = 1; distance <= m_shape.margin; ++distance)
                DrawFrame(painter, cell, distance, palette().color(QPalette::Highlight));
        if (i == m_hover)
            DrawFrame(painter, cell, m_shape.margin, kHoverFrame);
        if (i == m_selected)
            DrawFrame(painter, cell, m_shape.margin, kSelectedFrame);
    }
}

// ---- Mouse

void CSwatchGrid::mouseMoveEvent(QMouseEvent* event) {
    m_hover = m_shape.HitTest(event->position().toPoint(), size());
    update();
}

void CSwatchGrid::leaveEvent(QEvent* /*event*/) {
    m_hover = -1;
    update();
}

void CSwatchGrid::mouseReleaseEvent(QMouseEvent* event) {
    const int hit = m_shape.HitTest(event->position().toPoint(), size());
    if (event->button() == Qt::LeftButton && hit >= 0) {
        SetCursorCell(hit);
        Choose(hit);
    }
    update();
}

bool CSwatchGrid::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const int hit = m_shape.HitTest(help->pos(), size());
        if (hit >= 0) {
            QToolTip::showText(help->globalPos(), ColorText(CellColor(hit)), this,
                               m_shape.CellRect(hit, size()));
        } else {
            QToolTip::hideText();
        }
        return true;
    }
    return QWidget::event(event);
}

// ---- Keyboard

void CSwatchGrid::SetCursorCell(int index) {
    m_cursor = index;
    setAccessibleDescription(ColorText(CellColor(index)));
    update();
}

void CSwatchGrid::focusInEvent(QFocusEvent* event) {
    SetCursorCell(m_cursor);
    QWidget::focusInEvent(event);
}

void CSwatchGrid::keyPressEvent(QKeyEvent* event) {
    const int column = m_cursor % m_shape.columns;
    const int row = m_cursor / m_shape.columns;
    int next = m_cursor;
    switch (event->key()) {
    case Qt::Key_Left:
        next -= column > 0 ? 1 : 0;
        break;
    case Qt::Key_Right:
        next += column + 1 < m_shape.columns ? 1 : 0;
        break;
    case Qt::Key_Up:
        next -= row > 0 ? m_shape.columns : 0;
        break;
    case Qt::Key_Down:
        next += row + 1 < m_shape.rows ? m_shape.columns : 0;
        break;
    case Qt::Key_Home:
        next = 0;
        break;
    case Qt::Key_End:
        next = m_shape.Count() - 1;
        break;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Choose(m_cursor);
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    SetCursorCell(next);
}

// ---- The two grids

CColorPaletteCtrl::CColorPaletteCtrl(QWidget* parent) : CSwatchGrid(parent, {.columns = 8, .rows = 5}) {
    setAccessibleName(QStringLiteral("Palette colors"));
    setObjectName(QStringLiteral("PaletteColors"));
}

void CColorPaletteCtrl::SetPalette(int palette) {
    if (palette >= 0 && palette < kPaletteCount) {
        m_palette = palette;
        update();
    }
}

std::uint32_t CColorPaletteCtrl::GetSelectedColor() const {
    return m_selected >= 0 ? kPalettes[m_palette][m_selected] : 0;
}

CChartColor CColorPaletteCtrl::CellColor(int index) const {
    CChartColor color;
    color.m_color = kPalettes[m_palette][index];
    return color;
}

void CColorPaletteCtrl::Choose(int index) {
    if (index != m_selected) {
        m_selected = index;
        SendFieldChanged(parentWidget(), ColorChanged);
    }
}

CCustomColorCtrl::CCustomColorCtrl(QWidget* parent) : CSwatchGrid(parent, {.columns = 3, .rows = 6}) {
    setAccessibleName(QStringLiteral("Custom colors"));
    setObjectName(QStringLiteral("CustomColors"));
}

std::array<CChartColor, CCustomColorCtrl::kCount>& CCustomColorCtrl::Colors() {
    static auto colors = [] {
        std::array<CChartColor, kCount> white;
        for (CChartColor& color : white)
            color.m_color = 0xFFFFFF;
        return white;
    }();
    return colors;
}

void CCustomColorCtrl::Keep(const CChartColor& color) {
    Colors()[static_cast<std::size_t>(m_nextSlot)] = color;
    m_nextSlot = (m_nextSlot + 1) % kCount;
    update();
}

CChartColor CCustomColorCtrl::CellColor(int index) const {
    return Colors()[static_cast<std::size_t>(index)];
}

void CCustomColorCtrl::Choose(int index) {
    m_selected = index;
    m_nextSlot = index;
    SendFieldChanged(parentWidget(), CustomChosen);
}
