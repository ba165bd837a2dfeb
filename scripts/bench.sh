#!/usr/bin/env bash
# scripts/bench.sh [BUILD]: builds the tables of bench/ in a build folder, build-release if none is named, and prints
# them: figures of charts and editors beside their floors and limits. bench/README.md tells how to read them.
set -euo pipefail
cd "$(dirname "$0")/.."

build=${1:-build-release}
[ -d "$build" ] || cmake --preset release >/dev/null
cmake --build "$build" --target bench_frames bench_editors >/dev/null
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
"$build/bench_frames"
"$build/bench_editors"
