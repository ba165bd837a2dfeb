#pragma once
// Arrays of a host's structures that begin with their size.

#include <cstddef>

/// An array as it stands in the host's memory. The host may have been built with a newer header, whose
/// structures are longer.
template <class Item>
class CSizedArray {
public:
    CSizedArray(const Item* items, int count) : m_items(items), m_count(count) {}

    int Count() const { return m_count; }
    /// Only for a good array and an index below its count.
    const Item& operator[](int index) const {
        const char* bytes = reinterpret_cast<const char*>(m_items);
        return *reinterpret_cast<const Item*>(bytes + static_cast<std::size_t>(index) * m_items->size);
    }
    /// Whether its items can be read.
    bool IsGood() const {
        if (m_count <= 0)
            return m_count == 0;
        constexpr std::size_t kMost = 16 * sizeof(Item); // no header grows as far: it is not a size
        if (!m_items || m_items->size < sizeof(Item) || m_items->size > kMost ||
            m_items->size % alignof(Item) != 0)
            return false;
        for (int i = 1; i < m_count; ++i)
            if ((*this)[i].size != m_items->size)
                return false;
        return true;
    }

private:
    const Item* m_items;
    int m_count;
};
