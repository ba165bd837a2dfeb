#include "engine/chart/title.h"

#include "engine/chart/chart.h"
#include "engine/text/fitted_text.h"

#include <algorithm>
#include <utility>

namespace chartdraw {

namespace {

constexpr int kBorder = 4; // pixels that a long title keeps from the sides of the picture

} // namespace

QPoint TitleStacks::place(QSize size, int alignment) {
    const int column = horizontalOf(alignment);
    const int row = verticalOf(alignment);
    int& used = m_used[static_cast<std::size_t>((row + 1) * 3 + column + 1)];
    const int freeX = m_picture.width() - size.width();
    const int freeY = m_picture.height() - size.height();
    QPoint at((column + 1) * freeX / 2, (row + 1) * freeY / 2);
    if (row != 0) {
        at.ry() -= row * used;
        used += size.height();
    } else if (column != 0) {
        at.rx() -= column * used;
        used += size.width();
    } else {
        at.ry() += used;
        used += size.height();
    }
    return at;
}

QPoint TitleStacks::placeStrip(QSize size) {
    int top = 0;
    for (std::size_t column = 0; column < 3; ++column)
        top = std::max(top, m_used[column]);
    std::fill_n(m_used.begin(), 3, top + size.height());
    return {0, top};
}

Title::Title(Chart& chart, std::string text, const TextLook& look, int alignment, bool strip)
    : TextBox(chart, std::move(text), look), m_alignment(alignment), m_strip(strip) {}

TextBlock Title::laidOut() const {
    TextLook full = look();
    if (m_strip && full.width <= 0)
        full.width = chart().width();
    const int most = chart().width() - (m_strip ? 0 : 2 * kBorder);
    return fittedText(full, text(), chart().fonts(),
                      QSize(std::max(1, most), std::max(1, chart().height() / 2)));
}

int Title::measuredHeight() const {
    return laidOut().size().height();
}

PlacedText Title::placed(TitleStacks& stacks) const {
    TextBlock laid = laidOut();
    const auto automatic = [&] {
        return m_strip ? stacks.placeStrip(laid.size()) : stacks.place(laid.size(), m_alignment);
    };
    const QPoint corner = pos() ? *pos() : automatic();
    return {std::move(laid), corner, TopLeft};
}

} // namespace chartdraw
