#pragma once

// The program's own operator new: it counts, and can run out of memory at a chosen allocation.

#include "tests/expect.h"
#include <exception>
#include <new>

namespace model_test {
long allocations();

/// Lets the allocation after the next `granted` ones fail, as long as it lives.
class MemoryLimit {
public:
    explicit MemoryLimit(long granted);
    ~MemoryLimit();
    MemoryLimit(const MemoryLimit&) = delete;
    MemoryLimit& operator=(const MemoryLimit&) = delete;
};

/// Runs `action` again and again, with one more allocation granted each time, until it gets by. After each
/// failure `check` is called. Returns the number of failures.
template <class Action, class Check> int failEachAllocation(Action action, Check check) {
    for (int granted = 0;; granted++) {
        try {
            const MemoryLimit limit(granted);
            action();
            return granted;
        } catch (const std::bad_alloc&) {
        }
        check();
    }
}
} // namespace model_test
