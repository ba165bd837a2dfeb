#!/usr/bin/env bash
# Feeds the readers of images, fonts, tables, formats and markup, the layout of texts and the operations of the
# drawing library with hostile input under libFuzzer and the sanitizers.
#
#   scripts/fuzz.sh [SECONDS [NAME...]]     60 seconds each, all of tests/fuzz/fuzz_NAME.cpp
#
# What has been found stays in build-fuzz/NAME/ and is the start of the next run. Inputs that break something
# are left there as crash-*, and the script fails.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-60}
shift || true
names=("$@")
if [ ${#names[@]} -eq 0 ]; then
    for file in tests/fuzz/fuzz_*.cpp; do
        name=${file##*/fuzz_}
        names+=("${name%.cpp}")
    done
fi

scripts/install-deps.sh --ci

build=build-fuzz
mkdir -p "$build"
checks=address,undefined
# shellcheck disable=SC2046 # words of a list of flags
flags=(-std=c++20 -O1 -g1 -fPIC -I. -Iengine/include "-I$build" -fno-omit-frame-pointer -fno-sanitize-recover=undefined
    $(pkg-config --cflags Qt6Gui Qt6Core | sed 's/-I/-isystem /g'))
# shellcheck disable=SC2207
libraries=($(pkg-config --libs Qt6Gui Qt6Core))

# The rooms that read such input, each source compiled anew only if it or any header has changed.
newest_header=$(ls -t engine/*/*.h | head -n 1)
compile() {
    local source=$1 object
    object=$build/$(tr / _ <<<"${source%.cpp}").o
    if [ ! "$object" -nt "$source" ] || [ ! "$object" -nt "$newest_header" ]; then
        clang++ "${flags[@]}" -fsanitize=fuzzer-no-link,$checks -c "$source" -o "$object"
    fi
}
objects=()
for source in platform/fonts/*.cpp engine/*/*.cpp demo/csv.cpp editors/font/font_file.cpp platform/narrow_text.cpp; do
    compile "$source"
    objects+=("$build/$(tr / _ <<<"${source%.cpp}").o")
done

# The operations, by their names, for the calls that the input picks.
sed -nE 's/^CHARTDRAW_API [^(]*[ *]([A-Za-z0-9_]+)\(.*/OPERATION(\1)/p' engine/include/chartdraw/surface.h \
    >"$build/operations.inc"

# What to start from: valid files, from which the fuzzer soon makes hostile ones.
mkdir -p "$build/image" "$build/font"
clang++ "${flags[@]}" tests/fuzz/make_seeds.cpp "${libraries[@]}" -o "$build/make_seeds"
"$build/make_seeds" "$build/image"
# The smallest faces at hand, behind the byte that picks one of a collection.
mkdir -p "$build/face"
find /usr/share/fonts -name '*.tt[fc]' -size -60k | sort | head -n 6 | while read -r face; do
    { printf '\0'; cat "$face"; } >"$build/font/seed-${face##*/}"
    cp "$build/font/seed-${face##*/}" "$build/face/"
done

export QT_QPA_PLATFORM=offscreen
# The toolkit and the font system keep what they allocate once, which is no leak of ours.
export ASAN_OPTIONS=detect_leaks=0:allocator_may_return_null=1
failed=()
for name in "${names[@]}"; do
    echo "== $name, $seconds seconds"
    clang++ "${flags[@]}" -fsanitize=fuzzer,$checks "tests/fuzz/fuzz_$name.cpp" "${objects[@]}" \
        "${libraries[@]}" -o "$build/fuzz_$name"
    mkdir -p "$build/$name"
    [ -d "tests/fuzz/corpus/$name" ] && cp -n "tests/fuzz/corpus/$name/"* "$build/$name/"
    if ! "$build/fuzz_$name" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=3000 -print_final_stats=1 \
        -artifact_prefix="$build/$name/" "$build/$name" >"$build/$name.log" 2>&1; then
        failed+=("$name")
        tail -n 40 "$build/$name.log"
    else
        grep -E 'stat::(number_of_executed_units|peak_rss_mb)' "$build/$name.log"
    fi
done
if [ ${#failed[@]} -gt 0 ]; then
    echo "broken by fuzzing: ${failed[*]}" >&2
    exit 1
fi
