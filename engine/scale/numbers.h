#pragma once
// The numbers of a data set, copied from the host's once, with their range, which is found in the same pass.

#include "engine/scale/auto_scale.h"

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <span>
#include <vector>

namespace chartdraw {

class Numbers {
public:
    /// Rows whose ranges are kept, so that none of them has to be looked at again.
    static constexpr std::size_t kBlock = 256;

    Numbers() = default;
    Numbers(std::span<const double> values);
    Numbers(const std::vector<double>& values) : Numbers(std::span(values)) {}
    Numbers(std::initializer_list<double> values) : Numbers(std::span(values.begin(), values.size())) {}

    operator std::span<const double>() const { return {m_values.get(), m_size}; }
    std::size_t size() const { return m_size; }
    bool empty() const { return m_size == 0; }
    double operator[](std::size_t row) const { return m_values.get()[row]; }
    /// Of the rows [begin, end), as far as there are so many.
    DataRange range(std::size_t begin, std::size_t end) const;
    /// Of kBlock rows each, from the first on.
    std::span<const DataRange> blocks() const { return m_blocks; }

private:
    struct Free {
        std::size_t bytes;
        void operator()(double* values) const;
    };
    using Memory = std::unique_ptr<double, Free>;
    static Memory allocate(std::size_t bytes);

    std::size_t m_size = 0;
    Memory m_values{nullptr, Free{0}};
    DataRange m_range;
    std::vector<DataRange> m_blocks;
};

/// Numbers as they lie in memory, with the ranges of their blocks where these are kept.
struct NumberView {
    std::span<const double> values;
    std::span<const DataRange> blocks = {};

    NumberView(const Numbers& numbers) : values(numbers), blocks(numbers.blocks()) {}
    NumberView(const std::vector<double>& numbers) : values(numbers) {}

    /// Of the rows [begin, end), which are there.
    DataRange range(std::size_t begin, std::size_t end) const;
};

} // namespace chartdraw
