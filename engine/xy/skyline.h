#pragma once
// How far the bodies of a layer reach in each column of pixels, so that labels keep off those of neighbours.

#include <algorithm>
#include <limits>
#include <vector>

namespace chartdraw {

/// Columns run along the layer's x direction, what they reach along y, both in pixels of the picture.
class Skyline {
public:
    /// A body on the columns first to last; nothing where `from` or `to` is no number.
    void add(int first, int last, double from, double to) {
        const auto [low, high] = std::minmax(from, to);
        first = std::max(first, 0);
        last = std::min(last, kColumns - 1);
        if (!(low <= high) || first > last)
            return;
        if (m_columns.size() <= static_cast<std::size_t>(last))
            m_columns.resize(static_cast<std::size_t>(last) + 1);
        for (int i = first; i <= last; ++i) {
            Reach& reach = m_columns[static_cast<std::size_t>(i)];
            reach.low = std::min(reach.low, low);
            reach.high = std::max(reach.high, high);
        }
    }

    /// Whether a body stands between `low` and `high` on one of the columns first to last.
    bool stands(int first, int last, double low, double high) const {
        last = std::min(last, static_cast<int>(m_columns.size()) - 1);
        for (int i = std::max(first, 0); i <= last; ++i) {
            const Reach& reach = m_columns[static_cast<std::size_t>(i)];
            if (reach.low < high && reach.high > low)
                return true;
        }
        return false;
    }

private:
    static constexpr int kColumns = 1 << 15; // more than a picture has
    struct Reach {
        double low = std::numeric_limits<double>::infinity(), high = -low;
    };
    std::vector<Reach> m_columns;
};

} // namespace chartdraw
