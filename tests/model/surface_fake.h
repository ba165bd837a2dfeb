#pragma once

// The operations of the drawing surface that values call, as a record of how they were called.

#include <string>
#include <vector>

namespace model_test {
extern std::vector<std::string> surfaceCalls;

/// What the fake gives for a filter that nothing passes.
constexpr int encodedNonePass = 8000;
} // namespace model_test
