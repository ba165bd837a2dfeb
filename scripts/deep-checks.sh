#!/usr/bin/env bash
# What looks longer and deeper than the checks of every change: all tests under the sanitizers, races between threads,
# two types of one name, a byte of a picture that nobody wrote, random models, events and calls, and the fuzzers. To be
# run by hand, from a clean tree; a few hours.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh --ci
cmake --preset dev >/dev/null
cmake --build --preset dev --target chart-gallery
cmake --preset asan >/dev/null
cmake --build --preset asan
export UBSAN_OPTIONS=print_stacktrace=1 ASAN_OPTIONS=detect_leaks=1
export LSAN_OPTIONS=suppressions=$PWD/tests/lsan.supp:print_suppressions=0
ctest --preset asan -j"$(nproc)"
export QT_QPA_PLATFORM=offscreen
# A minute of calls without sense, with ends of charts in between and nothing left behind.
CHART_RANDOM_SECONDS=60 build-asan/test_surface --gtest_filter='Surface.AnyCalls*'

cmake --preset tsan >/dev/null
cmake --build --preset tsan --target test_threads
ctest --preset tsan -R '^test_threads$'

cmake --preset odr >/dev/null
cmake --build --preset odr

# Each drawing of the gallery is encoded and written, which looks at every byte of it.
QT_ENABLE_REGEXP_JIT=0 valgrind --quiet --error-exitcode=1 build/chart-gallery build/gallery-checked >/dev/null

export ASAN_OPTIONS=detect_leaks=0
CHART_RANDOM_MODELS=10000 build-asan/test_render --gtest_filter='Random*'
CHART_SEQUENCES=10000 build-asan/test_editors_xy --gtest_filter='*Relations*'
scripts/random_events.sh 1000000 "$(date +%-j)" # other events every day
scripts/fuzz.sh 600
