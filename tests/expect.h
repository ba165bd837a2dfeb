#pragma once
// Several equalities in a line: EXPECT_EQS((a, 1), (b.size(), 2u)) is EXPECT_EQ(a, 1), then EXPECT_EQ(b.size(), 2u).

#include <gtest/gtest.h>

#define CHART_PARENS ()
#define CHART_AGAIN(...) CHART_AGAIN1(CHART_AGAIN1(CHART_AGAIN1(CHART_AGAIN1(__VA_ARGS__))))
#define CHART_AGAIN1(...) CHART_AGAIN2(CHART_AGAIN2(CHART_AGAIN2(CHART_AGAIN2(__VA_ARGS__))))
#define CHART_AGAIN2(...) __VA_ARGS__
#define CHART_EACH() CHART_EACH_OF
#define CHART_EACH_OF(pair, ...)                                                                                       \
    EXPECT_EQ pair;                                                                                                    \
    __VA_OPT__(CHART_EACH CHART_PARENS(__VA_ARGS__))
#define EXPECT_EQS(...)                                                                                                \
    do {                                                                                                               \
        CHART_AGAIN(CHART_EACH_OF(__VA_ARGS__))                                                                        \
    } while (false)
