#!/usr/bin/env bash
# What looks longer and deeper than the checks of every change: random events and calls under the sanitizers, races
# between threads, two types of one name, a byte of a picture that nobody wrote. To be run by hand, from a clean tree.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh --ci
cmake --preset dev >/dev/null
cmake --build --preset dev --target chart-gallery
cmake --preset asan >/dev/null
cmake --build --preset asan
ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 ctest --preset asan -j"$(nproc)"
scripts/random_events.sh 60s "$(date +%-j)" # other events every day
# A minute of calls without sense, with ends of charts in between and nothing left behind.
CHART_RANDOM_SECONDS=60 QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=1 \
    LSAN_OPTIONS=suppressions=$PWD/tests/lsan.supp:print_suppressions=0 UBSAN_OPTIONS=print_stacktrace=1 \
    build-asan/test_surface --gtest_filter='Surface.AnyCalls*'

cmake --preset tsan >/dev/null
cmake --build --preset tsan --target test_threads
ctest --preset tsan -R '^test_threads$'

cmake --preset odr >/dev/null
cmake --build --preset odr

# Each drawing of the gallery is encoded and written, which looks at every byte of it.
QT_ENABLE_REGEXP_JIT=0 QT_QPA_PLATFORM=offscreen valgrind --quiet --error-exitcode=1 \
    build/chart-gallery build/gallery-checked >/dev/null
