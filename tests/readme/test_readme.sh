#!/usr/bin/env bash
# Follows the README: builds its code against an installed copy in both ways that it tells, and runs it.
#   test_readme.sh SOURCE_FOLDER BUILD_FOLDER [SANITIZERS]
set -euo pipefail
source=$1
build=$2
sanitizers=${3:-}
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

block() { # block FENCE: the README's only block of code in that language
    awk -v fence="\`\`\`$1" '$0 == fence { on = 1; next } /^```/ { on = 0 } on' "$source/README.md"
}

quietly() { # quietly COMMAND...: shows what it said if it fails
    "$@" >log 2>&1 || { cat log; echo "FAILED: $*"; exit 1; }
}

block cpp >host.cpp
[ "$(wc -l <host.cpp)" -ge 20 ] || { echo "FAILED: the README has no host's code"; exit 1; }
for command in scripts/demo.sh scripts/test.sh; do
    grep -q "^    $command " "$source/README.md" && [ -x "$source/$command" ] ||
        { echo "FAILED: $command"; exit 1; }
done
for picture in $(sed -n 's/^!\[.*\](\(.*\))$/\1/p' "$source/README.md"); do
    [ "$(stat -c %s "$source/$picture")" -lt 100000 ] || { echo "FAILED: $picture is large"; exit 1; }
done

quietly cmake --install "$build" --prefix "$work/installed"
{
    echo 'cmake_minimum_required(VERSION 3.22)'
    echo 'project(Host LANGUAGES CXX)'
    block cmake
    # The host with the toolkit, built beside it.
    echo 'find_package(Qt6 REQUIRED COMPONENTS Widgets)'
    echo 'add_executable(qthost qthost.cpp)'
    echo 'target_link_libraries(qthost PRIVATE ChartEditors::charteditors ChartEditors::chartrender Qt6::Widgets)'
} >CMakeLists.txt
block c++ >qthost.cpp
flags="-Wall -Wextra -Werror ${sanitizers:+-fsanitize=$sanitizers}"
quietly cmake -S . -B made -G Ninja -DCMAKE_PREFIX_PATH="$work/installed" -DCMAKE_CXX_FLAGS="$flags"
quietly cmake --build made
# The dialog, and the window, wait for their user.
for host in host qthost; do
    status=0
    QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0 timeout 3 "made/$host" >log 2>&1 || status=$?
    [ $status -eq 124 ] || { cat log; echo "FAILED: the $host ended with $status"; exit 1; }
done

if [ -z "$sanitizers" ]; then
    if command -v xvfb-run >/dev/null && command -v xdotool >/dev/null && command -v openbox >/dev/null; then
        quietly "$here/answer_dialog.sh" made/host
    fi
    PKG_CONFIG_PATH=$(dirname "$(find installed -name charteditors.pc)")
    export PKG_CONFIG_PATH=$work/$PKG_CONFIG_PATH
    quietly bash -c "$(block sh)"

    # The drawing library from C and from Python: each leaves a bitmap file.
    LD_LIBRARY_PATH=${PKG_CONFIG_PATH%/pkgconfig}
    export LD_LIBRARY_PATH
    block c >draw.c
    block python >draw.py
    # shellcheck disable=SC2046 # words of a list of flags
    quietly cc -std=c11 -Wall -Wextra -Werror draw.c $(pkg-config --cflags --libs chartdraw) -o draw
    for host in ./draw "python3 draw.py"; do
        rm -f costs.bmp
        quietly env QT_QPA_PLATFORM=offscreen $host
        [ "$(head -c 2 costs.bmp)" = BM ] && [ "$(stat -c %s costs.bmp)" -gt 100000 ] ||
            { echo "FAILED: no picture by $host"; exit 1; }
    done
fi
echo ok
