#pragma once
// Rows that share one column of pixels, painted from the last one to the first: what is covered already is
// passed over, so that rows without number cost hardly more than a look at them.

#include "engine/paint/canvas.h"

#include <algorithm>
#include <vector>

namespace chartdraw {

class CoveredColumn {
public:
    /// Whether all pixels between two are painted. Ends in either order.
    bool covers(int a, int b) const { return std::min(a, b) >= m_from && std::max(a, b) <= m_to; }

    /// Paints the pixels between two, ends included, that are not painted yet.
    void paint(int a, int b, Colour colour) {
        if (covers(a, b))
            return;
        const auto [from, to] = std::minmax(a, b);
        reach(from, to);
        for (int y = from; y <= to; ++y) {
            Colour& pixel = m_pixels[static_cast<std::size_t>(y - m_first)];
            pixel = pixel == kNone ? colour : pixel;
        }
        if (from <= m_to + 1 && to >= m_from - 1) { // else the covered part is two; the first one will do
            m_from = std::min(m_from, from);
            m_to = std::max(m_to, to);
        }
    }

    /// Gives `fill(from, to, colour)` every run of one colour, and begins a new column.
    template <class Fill>
    void finish(const Fill& fill) {
        for (std::size_t i = 0, end = 0; i < m_pixels.size(); i = end) {
            for (end = i; end < m_pixels.size() && m_pixels[end] == m_pixels[i]; ++end) {
            }
            if (m_pixels[i] != kNone)
                fill(m_first + static_cast<int>(i), m_first + static_cast<int>(end) - 1, m_pixels[i]);
        }
        m_pixels.clear();
        m_from = 0;
        m_to = -1;
    }

private:
    static constexpr Colour kNone = kDefaultColour;

    /// Makes room for the pixels between two.
    void reach(int from, int to) {
        if (m_pixels.empty()) {
            m_first = m_from = from;
            m_to = from - 1;
        }
        if (from < m_first) {
            m_pixels.insert(m_pixels.begin(), static_cast<std::size_t>(m_first - from), kNone);
            m_first = from;
        }
        const auto length = static_cast<std::size_t>(to - m_first + 1);
        if (m_pixels.size() < length)
            m_pixels.resize(length, kNone);
    }

    std::vector<Colour> m_pixels;
    int m_first = 0;           ///< the place of the first of them
    int m_from = 0, m_to = -1; ///< what is covered without a gap
};

} // namespace chartdraw
