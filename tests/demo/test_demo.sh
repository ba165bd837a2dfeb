#!/usr/bin/env bash
# The demo as a program: what it writes, and what it says of bad input.
#   test_demo.sh DEMO
set -euo pipefail
demo=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM

fail() {
    echo "FAILED: $1"
    exit 1
}

printf 'What,Value\nSpam,3\nEggs,"4"\n' >"$work/good.csv"
printf 'Spam,3\nEggs,four\n' >"$work/bad.csv"

"$demo" --data "$work/good.csv" --pictures "$work/made/pictures" >"$work/said"
for name in window pie-editor pie-chart finance-chart angular-meter-chart linear-meter-chart polar-chart; do
    picture=$work/made/pictures/$name.png
    [ "$(head -c 4 "$picture" | tail -c 3)" = PNG ] || fail "$name.png is no picture"
    grep -qF "$picture" "$work/said" || fail "$name.png is not told of"
    [ "$(stat -c %s "$picture")" -gt 5000 ] || fail "$name.png is empty"
done

expect() { # expect TEXT ARGUMENTS...: fails at once and says so on the error output
    local text=$1
    shift
    if "$demo" "$@" 2>"$work/error"; then
        fail "accepted: $*"
    fi
    grep -qF "$text" "$work/error" || fail "'$text' is not in: $(cat "$work/error")"
}
expect 'bad.csv: Line 2: "four" is not a number.' --data "$work/bad.csv" --pictures "$work/p"
expect 'missing.csv: The file cannot be read' --data "$work/missing.csv"
expect 'cannot be made' --pictures "$work/good.csv/folder"
expect 'There is no display.' --data "$work/good.csv"
echo ok
