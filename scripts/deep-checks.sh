#!/usr/bin/env bash
# What looks longer and deeper than the checks of every change: all tests under the sanitizers, many random models and
# events, and the fuzzers. To be run by hand, from a clean tree; a few hours.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh --ci
cmake --preset asan >/dev/null
cmake --build --preset asan
export UBSAN_OPTIONS=print_stacktrace=1 ASAN_OPTIONS=detect_leaks=1
export LSAN_OPTIONS=suppressions=$PWD/tests/lsan.supp:print_suppressions=0
ctest --preset asan -j"$(nproc)"
export QT_QPA_PLATFORM=offscreen

export ASAN_OPTIONS=detect_leaks=0
CHART_RANDOM_MODELS=10000 build-asan/test_render --gtest_filter='Random*'
CHART_SEQUENCES=10000 build-asan/test_editors_xy --gtest_filter='*Relations*'
scripts/random_events.sh 1000000 "$(date +%-j)" # other events every day
scripts/fuzz.sh 600
