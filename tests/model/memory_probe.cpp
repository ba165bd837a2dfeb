#include "tests/model/memory_probe.h"
#include <cstdlib>

namespace {
long s_allocations = 0;
long s_left = -1; // allocations until one fails; less than 0: none does
} // namespace

namespace model_test {
long allocations() { return s_allocations; }

MemoryLimit::MemoryLimit(long granted) { s_left = granted; }

MemoryLimit::~MemoryLimit() { s_left = -1; }
} // namespace model_test

void* operator new(std::size_t size) {
    if (s_left == 0) throw std::bad_alloc();
    if (s_left > 0) s_left--;
    s_allocations++;
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }

void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
