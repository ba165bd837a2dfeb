#include "engine/xy/plot_area.h"

#include "engine/chart/chart.h"
#include "engine/paint/picture.h"

#include <algorithm>

namespace chartdraw {

namespace {

constexpr Colour kLightGrey = 0xc0c0c0;

} // namespace

void PlotArea::setRect(int x, int y, int width, int height) {
    const auto limited = [](int value, int least) { return std::clamp(value, least, kMaxSide); };
    m_rect = QRect(limited(x, -kMaxSide), limited(y, -kMaxSide), limited(width, 0), limited(height, 0));
}

void PlotArea::setBackground(Colour background, Colour alternate, Colour edge) {
    m_background = orDefault(background, kTransparent);
    m_alternate = alternate;
    m_edge = orDefault(edge, kLineColour);
    m_hasQuadrants = false;
}

void PlotArea::setImage(std::string path, int alignment) {
    m_imagePath = std::move(path);
    m_imageAlignment = alignment;
}

void PlotArea::setQuadrants(const std::array<Colour, 4>& colours, Colour edge) {
    for (std::size_t i = 0; i < colours.size(); ++i)
        m_quadrants[i] = orDefault(colours[i], m_quadrants[i]);
    m_edge = orDefault(edge, m_edge);
    m_hasQuadrants = true;
}

void PlotArea::setGridColours(const std::array<Colour, 4>& colours) {
    for (std::size_t i = 0; i < colours.size(); ++i)
        m_grids[i].colour = orDefault(colours[i], m_grids[i].colour);
}

void PlotArea::setFirstGrid(Colour horizontal, Colour vertical) {
    m_grids[MajorHorizontal].colour = orDefault(horizontal, kLightGrey);
    m_grids[MajorVertical].colour = orDefault(vertical, kTransparent);
}

void PlotArea::setGridWidths(const std::array<int, 4>& widths) {
    for (std::size_t i = 0; i < widths.size(); ++i)
        m_grids[i].width = std::clamp(widths[i], 0, kMaxSide);
}

void PlotArea::drawBackground(Canvas& canvas, QPoint offset, const Lines& lines) const {
    const QRect frame = this->frame().translated(offset);
    if (m_hasQuadrants) {
        const QPoint at = lines.origin + offset;
        const QRect right(QPoint(at.x(), frame.top()), frame.bottomRight());
        const QRect left(frame.topLeft(), QPoint(at.x() - 1, frame.bottom()));
        const auto fill = [&](const QRect& half, bool upper, Colour colour) {
            QRect part = half;
            upper ? part.setBottom(at.y() - 1) : part.setTop(at.y());
            canvas.fillRect(part, colour);
        };
        fill(right, true, m_quadrants[0]);
        fill(left, true, m_quadrants[1]);
        fill(left, false, m_quadrants[2]);
        fill(right, false, m_quadrants[3]);
    } else {
        canvas.fillRect(frame, m_background);
        drawBands(canvas, frame, offset, lines);
    }
    if (!m_imagePath.empty())
        drawImage(canvas, loadPicture(m_imagePath), frame, m_imageAlignment);
}

void PlotArea::drawBands(Canvas& canvas, const QRect& frame, QPoint offset, const Lines& lines) const {
    if (m_alternate == kDefaultColour || m_alternate == m_background)
        return;
    // The band at the lower or left end has the background's colour, the next one the alternate, and so on.
    const bool upright = lines.bandsUpright;
    std::vector<int> borders = lines.bands;
    for (int& border : borders)
        border += upright ? offset.x() : offset.y();
    std::sort(borders.begin(), borders.end());
    if (!upright)
        std::reverse(borders.begin(), borders.end());
    int begin = upright ? frame.left() : frame.bottom();
    borders.push_back(upright ? frame.right() : frame.top());
    bool alternate = false;
    for (const int border : borders) {
        if (border == begin)
            continue; // a tick on the frame's own line begins no band
        const int low = std::min(begin, border), high = std::max(begin, border) - 1;
        if (alternate) {
            canvas.fillRect(upright ? QRect(QPoint(low, frame.top()), QPoint(high, frame.bottom()))
                                    : QRect(QPoint(frame.left(), low), QPoint(frame.right(), high)),
                            m_alternate);
        }
        alternate = !alternate;
        begin = border;
    }
}

void PlotArea::drawEdge(Canvas& canvas, QPoint offset) const {
    canvas.box(frame().translated(offset), kTransparent, m_edge, 0);
}

} // namespace chartdraw
