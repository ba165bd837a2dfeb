#include "editors/colour/swatch_grids.h"

#include "editors/colour/color_text.h"
#include "editors/colour/palettes.h"
#include "editors/colour/swatch.h"
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

CSwatchGrid::CSwatchGrid(QWidget* parent, GridShape shape)
    : QWidget(parent), m_owner(parent), m_shape(shape), m_cache(static_cast<std::size_t>(shape.Count())) {
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
    const QSize pixels = size * devicePixelRatioF();
    if (cached.image.size() != pixels || !Same(cached.color, color))
        cached = {.color = color, .image = MakeSwatch(color, size, devicePixelRatioF())};
    return cached.image;
}

void CSwatchGrid::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Button));
    for (int i = 0; i < m_shape.Count(); ++i) {
        const QRect cell = m_shape.CellRect(i, size());
        if (HasCell(i))
            painter.drawImage(cell.topLeft(), SwatchOf(i, cell.size()));
        else
            DrawFrame(painter, cell, 0, palette().color(QPalette::Mid));
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
    if (event->button() == Qt::LeftButton && hit >= 0 && HasCell(hit)) {
        SetCursorCell(hit);
        Choose(hit);
    }
    update();
}

bool CSwatchGrid::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const int hit = m_shape.HitTest(help->pos(), size());
        if (hit >= 0 && HasCell(hit)) {
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
    setAccessibleDescription(CellText(index));
    update();
}

QString CSwatchGrid::CellText(int index) const {
    const QString color = HasCell(index) ? ColorText(CellColor(index)) : QStringLiteral("empty");
    return QStringLiteral("%1, row %2 of %3, column %4 of %5")
        .arg(color)
        .arg(index / m_shape.columns + 1)
        .arg(m_shape.rows)
        .arg(index % m_shape.columns + 1)
        .arg(m_shape.columns);
}

void CSwatchGrid::Tell(int message) const {
    SendFieldChanged(m_owner, message);
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
        if (HasCell(m_cursor))
            Choose(m_cursor);
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    SetCursorCell(next);
}

// ---- The grids

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
        Tell(ColorChanged);
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
    Tell(CustomChosen);
}

CRecentColorCtrl::CRecentColorCtrl(QWidget* parent)
    : CSwatchGrid(parent, {.columns = 4, .rows = kCount / 4}) {
    setAccessibleName(QStringLiteral("Recent colors"));
    setObjectName(QStringLiteral("RecentColors"));
}

std::vector<CChartColor>& CRecentColorCtrl::Colors() {
    static std::vector<CChartColor> colors;
    return colors;
}

void CRecentColorCtrl::Remember(const CChartColor& color) {
    std::vector<CChartColor>& colors = Colors();
    std::erase_if(colors, [&](const CChartColor& other) { return Same(other, color); });
    colors.insert(colors.begin(), color);
    if (colors.size() > kCount)
        colors.pop_back();
}

bool CRecentColorCtrl::HasCell(int index) const {
    return index < std::ssize(Colors());
}

CChartColor CRecentColorCtrl::CellColor(int index) const {
    return Colors()[static_cast<std::size_t>(index)];
}

void CRecentColorCtrl::Choose(int index) {
    m_selected = index;
    Tell(RecentChosen);
}
