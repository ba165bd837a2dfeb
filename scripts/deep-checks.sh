#!/usr/bin/env bash
# What looks longer than the checks of every change: two types of one name in all libraries, random models and random
# events under the sanitizers, and the fuzzers. To be run by hand, from a clean tree; a few hours.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh --ci
cmake --preset odr >/dev/null
cmake --build --preset odr

cmake --preset asan >/dev/null
cmake --build --preset asan --target test_render test_editors_xy
export QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1
CHART_RANDOM_MODELS=10000 build-asan/test_render --gtest_filter='Random*'
CHART_SEQUENCES=10000 build-asan/test_editors_xy --gtest_filter='*Relations*'
scripts/random_events.sh 1000000 "$(date +%-j)" # other events every day
scripts/fuzz.sh 600
