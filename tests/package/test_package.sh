#!/usr/bin/env bash
# Installs the build into a folder of its own and uses it as a host would, from outside the tree.
#   test_package.sh BUILD_FOLDER CONSUMER_FOLDER [SANITIZERS]
# With SANITIZERS, those that the libraries were built with, the host is built with them too, and nothing else
# is tried: a host without them cannot load such libraries.
set -euo pipefail

build=$1
consumer=$2
sanitizers=${3:-}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix
cp -r "$consumer" "$work/source"

step() { # step NAME COMMAND...: runs quietly, and shows what it said if it fails
    local name=$1
    shift
    if "$@" >"$work/log" 2>&1; then
        echo "ok: $name"
    else
        cat "$work/log"
        echo "FAILED: $name"
        exit 1
    fi
}

use() { # use NAME COMPILER STANDARD FLAGS...: builds the host's project and runs its programs
    local name=$1 compiler=$2 standard=$3
    shift 3
    local folder=$work/build-$name
    step "configure $name" cmake -S "$work/source" -B "$folder" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" \
        -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_STANDARD="$standard" -DCMAKE_BUILD_TYPE=Debug \
        -DCMAKE_C_FLAGS="$*" -DCMAKE_CXX_FLAGS="$*"
    step "build $name" cmake --build "$folder"
    for program in host drawing rendering; do
        if [ -x "$folder/$program" ]; then
            step "run $program, $name" "$folder/$program"
        fi
    done
}

step install cmake --install "$build" --prefix "$prefix"

for header in "$prefix"/include/*/*.h; do
    name=${header#"$prefix"/include/}
    echo "#include <$name>" >"$work/alone.cpp"
    step "header $name alone" g++ -std=c++17 -fsyntax-only -Wall -Wextra -Wpedantic -Werror \
        -I "$prefix/include" "$work/alone.cpp"
done
cp "$work/source/drawing.c" "$work/alone.c"
step "drawing surface in C11" gcc -std=c11 -fsyntax-only -Wall -Wextra -Wpedantic -Werror \
    -I "$prefix/include" "$work/alone.c"

# Hosts are spared our toolkit, and standard templates whose layout may differ from compiler to compiler.
g++ -std=c++17 -M -I "$prefix/include" -include charteditors/charteditors.h -x c++ /dev/null >"$work/included"
step "headers without the toolkit" bash -c "! grep -iE '/Q[A-Z]|/qt6|/qglobal' '$work/included'"
step "headers without standard templates" \
    bash -c "! grep -nE 'std::(string|vector|map|unique_ptr|shared_ptr|function|array|optional)' '$prefix'/include/charteditors/*.h"

if [ -n "$sanitizers" ]; then
    use sanitized g++ 17 "-fsanitize=$sanitizers"
    exit 0
fi

for standard in 17 20; do
    use "g++-$standard" g++ "$standard"
    if command -v clang++ >/dev/null; then
        use "clang++-$standard" clang++ "$standard"
    fi
done
step "host does not name the toolkit" bash -c "! readelf -d '$work/build-g++-17/host' | grep -i 'NEEDED.*Qt'"
use asan g++ 20 -fsanitize=address
if command -v valgrind >/dev/null; then
    step "host under valgrind" valgrind --quiet --leak-check=full --errors-for-leak-kinds=definite,indirect,possible \
        --error-exitcode=1 "$work/build-g++-17/host"
fi

export PKG_CONFIG_PATH
PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name charteditors.pc)")
read -ra flags <<<"$(pkg-config --cflags --libs charteditors)"
step "build with pkg-config" g++ -std=c++17 "$work/source/host.cpp" "${flags[@]}" -o "$work/host"
step "run what pkg-config built" env LD_LIBRARY_PATH="$(pkg-config --variable=libdir charteditors)" "$work/host"
