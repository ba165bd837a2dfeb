#include "engine/scale/numbers.h"

#include <algorithm>
#include <cstring>
#include <new>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace chartdraw {

namespace {

// From here on the system is asked for large pages: most of the copy is else its work on small ones. Less
// than that the allocator keeps for the next chart, which needs no new pages at all.
constexpr std::size_t kLarge = std::size_t{8} << 20; // bytes
constexpr std::align_val_t kLargePage{std::size_t{2} << 20};
constexpr std::size_t kBlock = 2048; // numbers, which stay in the cache for the second look

} // namespace

void Numbers::Free::operator()(double* values) const {
    if (large)
        ::operator delete(values, kLargePage);
    else
        ::operator delete(values);
}

std::unique_ptr<double, Numbers::Free> Numbers::allocate(std::size_t count) {
    const std::size_t bytes = count * sizeof(double);
    if (bytes < kLarge)
        return {static_cast<double*>(::operator new(bytes)), Free{false}};
    void* memory = ::operator new(bytes, kLargePage);
#if defined(__linux__) && defined(MADV_HUGEPAGE)
    // Whole ones only: what is not used of a large page would be memory all the same.
    constexpr auto page = static_cast<std::size_t>(kLargePage);
    madvise(memory, bytes / page * page, MADV_HUGEPAGE);
#endif
    return {static_cast<double*>(memory), Free{true}};
}

Numbers::Numbers(std::span<const double> values) : m_size(values.size()) {
    if (values.empty())
        return;
    m_values = allocate(values.size());
    for (std::size_t at = 0; at < values.size(); at += kBlock) {
        const std::span<const double> block = values.subspan(at, std::min(kBlock, values.size() - at));
        std::memcpy(m_values.get() + at, block.data(), block.size_bytes());
        m_range.add(block);
    }
}

DataRange Numbers::range(std::size_t begin, std::size_t end) const {
    if (begin == 0 && end >= m_size)
        return m_range;
    DataRange range;
    const std::span<const double> all = *this;
    begin = std::min(begin, m_size);
    range.add(all.subspan(begin, std::max(begin, std::min(end, m_size)) - begin));
    return range;
}

} // namespace chartdraw
