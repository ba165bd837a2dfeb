#pragma once
// A second implementation of the drawing surface for tests: it writes every call down as a line of text and
// passes it on to the drawing library. Link `chart_recorder` into a test program, before the library.
//
// A line is "Name(argument, ...)". Whole numbers are decimal, or 0x and eight hexadecimal digits beyond 16
// bits, where they are colours; others are the shortest decimals that read back the same. A handle is its
// kind and a number that counts from 1 for each kind, as "PieChart#1"; texts are quoted, arrays stand in
// brackets without their count, null is "null". Out-parameters are left out. An operation that the library
// does not have answers null or 0.

#include <string>
#include <vector>

namespace recorder {
extern const int operationCount;

/// Writes down the calls of this thread while it lives; recordings do not nest. Handles are numbered from the
/// beginning of the recording.
class Recording {
public:
    Recording();
    ~Recording();
    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;

    const std::vector<std::string>& Lines() const;
    int Count(const std::string& operation) const;
    /// Forgets the calls so far; handles keep their numbers.
    void Clear();
};
} // namespace recorder
