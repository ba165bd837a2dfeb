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

private:
    struct Free {
        bool large;
        void operator()(double* values) const;
    };
    static std::unique_ptr<double, Free> allocate(std::size_t count);

    std::size_t m_size = 0;
    std::unique_ptr<double, Free> m_values{nullptr, Free{false}};
    DataRange m_range;
};

} // namespace chartdraw
