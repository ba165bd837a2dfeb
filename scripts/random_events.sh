#!/usr/bin/env bash
# Lets random events loose on every dialog, under AddressSanitizer and UBSan: no crash, no report, legal values.
#
#   scripts/random_events.sh [EVENTS [SEED]]     a million events to each dialog, seed 0
#
# With the time that is left as EVENTS ("60s"), each test program gets its share of it.
set -euo pipefail
cd "$(dirname "$0")/.."

events=${1:-1000000}
seed=${2:-0}
scripts/install-deps.sh
cmake --preset asan >/dev/null

# Test programs of dialogs: those that know the random person.
programs=()
for file in $(grep -rlE 'RandomPerson|TestAnybody|TestEditor\(' tests/editors --include='*.cpp' --include='*.h'); do
    programs+=("$(sed -n 's/.*chart_test(\([a-z_]*\).*/\1/p' "$(dirname "$file")/CMakeLists.txt")")
done
mapfile -t programs < <(printf '%s\n' "${programs[@]}" | sort -u)
cmake --build --preset asan --target "${programs[@]}"

limit=()
if [[ $events == *s ]]; then
    limit=(timeout --preserve-status --signal=TERM "$((${events%s} / ${#programs[@]} + 1))")
    events=1000000
fi
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
export ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1
export CHART_EVENTS=$events CHART_RANDOM_SEED=$seed
failed=()
for program in "${programs[@]}"; do
    echo "== $program, $events events, seed $seed"
    status=0
    "${limit[@]}" "build-asan/$program" --gtest_filter='*Random*:*KeepsIts*' >"build-asan/$program.log" 2>&1 || status=$?
    # 143: the time was up.
    if [ $status -ne 0 ] && { [ $status -ne 143 ] || [ ${#limit[@]} -eq 0 ]; }; then
        failed+=("$program")
        tail -n 40 "build-asan/$program.log"
    else
        grep -E '^\[ +OK \]' "build-asan/$program.log" || echo "   as many as the time allowed"
    fi
done
if [ ${#failed[@]} -gt 0 ]; then
    echo "broken by random events: ${failed[*]}" >&2
    exit 1
fi
