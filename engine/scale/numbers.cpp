#include "engine/scale/numbers.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <mutex>
#include <new>
#include <utility>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace chartdraw {

namespace {

constexpr std::size_t kKept = std::size_t{128} << 10; // bytes, from which on memory is kept
constexpr std::size_t kMostKept = std::size_t{32} << 20;
constexpr std::size_t kLarge = std::size_t{4} << 20; // from which on the system is asked for large pages
constexpr std::align_val_t kLargePage{std::size_t{2} << 20};

double* newMemory(std::size_t bytes) {
    if (bytes < kLarge)
        return static_cast<double*>(::operator new(bytes));
    void* memory = ::operator new(bytes, kLargePage);
#if defined(__linux__) && defined(MADV_HUGEPAGE)
    // Whole ones only: what is not used of a large page would be memory all the same.
    constexpr auto page = static_cast<std::size_t>(kLargePage);
    madvise(memory, bytes / page * page, MADV_HUGEPAGE);
#endif
    return static_cast<double*>(memory);
}

void deleteMemory(double* values, std::size_t bytes) {
    if (bytes < kLarge)
        ::operator delete(values);
    else
        ::operator delete(values, kLargePage);
}

/// Memory of charts that are gone, for the next ones: the allocator would give it back to the system, and new
/// pages cost more than the numbers on them.
class Spare {
public:
    /// Memory of no more than twice the size; null where there is none.
    double* take(std::size_t& bytes) {
        const std::lock_guard lock(m_mutex);
        const auto found = std::find_if(m_blocks.begin(), m_blocks.end(), [bytes](const Block& block) {
            return block.bytes >= bytes && block.bytes / 2 <= bytes;
        });
        if (found == m_blocks.end())
            return nullptr;
        const Block block = std::exchange(*found, {});
        std::rotate(found, found + 1, m_blocks.end());
        m_bytes -= block.bytes;
        bytes = block.bytes;
        return block.values;
    }
    /// The oldest go where it becomes too much.
    void keep(double* values, std::size_t bytes) {
        const std::lock_guard lock(m_mutex);
        m_bytes += bytes - drop(m_blocks.back());
        std::rotate(m_blocks.begin(), m_blocks.end() - 1, m_blocks.end());
        m_blocks.front() = {values, bytes};
        for (auto block = m_blocks.rbegin(); m_bytes > kMostKept; ++block)
            m_bytes -= drop(*block);
    }

private:
    struct Block {
        double* values = nullptr;
        std::size_t bytes = 0;
    };
    static std::size_t drop(Block& block) {
        const Block dropped = std::exchange(block, {});
        if (dropped.values != nullptr)
            deleteMemory(dropped.values, dropped.bytes);
        return dropped.bytes;
    }

    std::mutex m_mutex;
    std::array<Block, 8> m_blocks; ///< the newest first
    std::size_t m_bytes = 0;
};

/// Charts may end after everything else, so this never does.
Spare& spare() {
    static auto* const instance = new Spare;
    return *instance;
}

} // namespace

void Numbers::Free::operator()(double* values) const {
    if (bytes >= kKept && bytes <= kMostKept)
        spare().keep(values, bytes);
    else
        deleteMemory(values, bytes);
}

Numbers::Memory Numbers::allocate(std::size_t bytes) {
    double* values = bytes >= kKept && bytes <= kMostKept ? spare().take(bytes) : nullptr;
    return {values != nullptr ? values : newMemory(bytes), Free{bytes}};
}

Numbers::Numbers(std::span<const double> values) : m_size(values.size()) {
    if (values.empty())
        return;
    m_values = allocate(values.size_bytes());
    m_blocks.reserve(values.size() / kBlock);
    for (std::size_t at = 0; at < values.size(); at += kBlock) {
        const std::span<const double> block = values.subspan(at, std::min(kBlock, values.size() - at));
        std::memcpy(m_values.get() + at, block.data(), block.size_bytes());
        DataRange range;
        range.add(block);
        m_range.add(range);
        if (block.size() == kBlock)
            m_blocks.push_back(range);
    }
}

DataRange Numbers::range(std::size_t begin, std::size_t end) const {
    begin = std::min(begin, m_size);
    end = std::clamp(end, begin, m_size);
    return begin == 0 && end == m_size ? m_range : NumberView(*this).range(begin, end);
}

DataRange NumberView::range(std::size_t begin, std::size_t end) const {
    DataRange range;
    while (begin < end) {
        const std::size_t block = begin / Numbers::kBlock, next = (block + 1) * Numbers::kBlock;
        if (begin % Numbers::kBlock == 0 && next <= end && block < blocks.size())
            range.add(blocks[block]);
        else
            range.add(values.subspan(begin, std::min(next, end) - begin));
        begin = std::min(next, end);
    }
    return range;
}

} // namespace chartdraw
