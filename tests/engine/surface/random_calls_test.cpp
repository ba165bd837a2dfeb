// Every operation with what a careless or hostile caller may hand in: no handle at all, a handle of another
// kind, and whole charts made by calls in random order with random arguments. The last case can only fail by
// a crash, a hang, or a sanitizer's complaint in the builds that have one.

#include "tests/engine/surface/caller.h"
#include <chrono>
#include <gtest/gtest.h>
#include <random>
#include <string_view>

namespace {
using surface::Caller;

/// Calls an operation of a family with a handle that is not of its kind, and nothing else.
template <class Result, class Handle, class... Args>
requires(!std::is_const_v<Handle>) void expectNothing(const char* name, Result (*operation)(Handle*, Args...),
                                                      void* handle) {
    if constexpr (std::is_void_v<Result>) {
        operation(static_cast<Handle*>(handle), Args{}...);
    } else {
        const Result result = operation(static_cast<Handle*>(handle), Args{}...);
        if constexpr (std::is_same_v<Result, const char*>)
            EXPECT_EQ(std::string(result), "") << name;
        else if constexpr (std::is_same_v<Result, int>)
            EXPECT_TRUE(result == 0 || result == CHART_TRANSPARENT) << name;
        else
            EXPECT_EQ(result, Result{}) << name;
    }
}

/// Operations without a handle: nothing to expect.
template <class Result, class First, class... Args>
requires(!std::is_pointer_v<First> ||
         std::is_const_v<std::remove_pointer_t<First>>) void expectNothing(const char*, Result (*)(First, Args...),
                                                                           void*) {}

bool endsWith(std::string_view name, std::string_view end) {
    return name.size() >= end.size() && name.substr(name.size() - end.size()) == end;
}
} // namespace

TEST(Surface, HandlesOfNoOrAnotherKindGiveNothing) {
    ArrayMath* array = CArrayMath_create(nullptr, 0);
    RanTable* table = CRanTable_create(0, 0, 0);
#define OPERATION(name)                                                                                                \
    expectNothing(#name, &name, nullptr);                                                                              \
    expectNothing(#name, &name,                                                                                        \
                  std::string_view(#name).starts_with("CArrayMath") ? static_cast<void*>(table)                        \
                                                                    : static_cast<void*>(array));
#include "operations.inc"
#undef OPERATION
    CRanTable_destroy(table);
    CArrayMath_destroy(array);
}

TEST(Surface, AnyCallsWithAnyArguments) {
    using Call = void (*)(Caller&);
    std::vector<Call> creators, others;
#define OPERATION(name)                                                                                                \
    if (!endsWith(#name, "_destroy"))                                                                                  \
        (endsWith(#name, "_create") ? creators : others).push_back([](Caller& caller) { caller.call(&name); });
#include "operations.inc"
#undef OPERATION
    ASSERT_GE(creators.size() + others.size(), 200u);         // the header was read
    const char* wanted = std::getenv("CHART_RANDOM_SECONDS"); // else a handful
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(wanted != nullptr ? std::atoi(wanted) : 0);
    for (unsigned seed = 0; seed < 12 || std::chrono::steady_clock::now() < end; ++seed) {
        std::mt19937 random(seed);
        Caller caller([&] { return static_cast<unsigned>(random()); });
        for (const Call create : creators) {
            create(caller);
            create(caller);
        }
        for (int round = 0; round < 6; ++round) {
            for (int i = 0; i < 250; ++i) others[caller.below(others.size())](caller);
            caller.drawAll();
            caller.destroyOne();
        }
        EXPECT_GT(caller.pictures(), 0);
    }
}
