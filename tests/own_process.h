#pragma once
// What a host's process begins and ends with can be tried once in a process.

#include <cstdlib>
#include <gtest/gtest.h>

inline int s_count = 1;
inline char s_name[] = "host";
inline char* s_arguments[] = {s_name, nullptr};

/// Runs `act` in a process of its own, which begins anew and ends with its static destructors, and expects it to return
/// true.
template <class Act> void expectInOwnProcess(Act act) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(std::exit(act() ? 0 : 1), testing::ExitedWithCode(0), "");
}
