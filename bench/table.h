#pragma once
// How the tables of figures are taken and printed: what is measured and its floor run in turn, so that a busy
// machine slows both, and of several rounds the median counts.

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <functional>
#include <string_view>

namespace bench {

using Work = std::function<void()>;

constexpr std::size_t kRounds = 7;

/// Milliseconds of processor time of the whole process since some moment.
inline double cpuTime() {
    return static_cast<double>(std::clock()) * 1e3 / CLOCKS_PER_SEC;
}

/// Milliseconds of the wall clock since some moment.
inline double wallTime() {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

inline double median(std::array<double, kRounds> values) {
    std::ranges::sort(values);
    return values[kRounds / 2];
}

/// Milliseconds that one call takes, of calls enough for the clock.
inline double timeOf(const Work& work, double (*now)()) {
    constexpr double kEnough = 4;
    const double start = now();
    for (int calls = 1;; ++calls) {
        work();
        if (const double passed = now() - start; passed >= kEnough)
            return passed / calls;
    }
}

struct Figures {
    double value = 0, floor = 0, ratio = 0;
};

/// The ratio is the median of the rounds' own.
inline Figures compare(const Work& work, const Work& floor, double (*now)() = cpuTime) {
    work();
    floor();
    std::array<double, kRounds> values{}, floors{}, ratios{};
    for (std::size_t i = 0; i < kRounds; ++i) {
        values[i] = timeOf(work, now);
        floors[i] = timeOf(floor, now);
        ratios[i] = values[i] / floors[i];
    }
    return {median(values), median(floors), median(ratios)};
}

inline void print(const char* name, const Figures& figures, const char* unit = "ms") {
    std::printf("%-46s %9.3f %9.3f %8.2f  %s\n", name, figures.value, figures.floor, figures.ratio, unit);
    std::fflush(stdout);
}

/// The only row that is to be measured; empty for all.
inline std::string_view wanted;

inline void row(const char* name, const Work& work, const Work& floor, double (*now)() = cpuTime) {
    if (wanted.empty() || wanted == name)
        print(name, compare(work, floor, now));
}

inline void heading(const char* what, const char* floor) {
    std::printf("\n%-46s %9s %9s %8s\n", what, "taken", floor, "ratio");
}

} // namespace bench
