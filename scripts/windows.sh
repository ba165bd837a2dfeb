#!/usr/bin/env bash
# Builds for 64-bit Windows into build-windows/ and tries all of it under Wine, on a screen that nobody sees.
#
#   scripts/windows.sh [CACHE]
#
# The toolkit and the test library are built once, from the sources of the system's own packages, into CACHE: else the
# folder charteditors-windows of the user's cache. What was broken off goes on where it stopped.
set -euo pipefail
cd "$(dirname "$0")/.."
source=$PWD
build=$source/build-windows
cache=$(realpath -m "${1:-${XDG_CACHE_HOME:-$HOME/.cache}/charteditors-windows}")
mkdir -p "$cache/apt/partial" "$cache/src"

scripts/install-deps.sh
scripts/install-deps.sh --windows

fetch() { # fetch PACKAGE VERSION: its sources, below src/. Their lists stand in the cache, the system's stay as they are.
    compgen -G "$cache/src/$1-*/CMakeLists.txt" >/dev/null && return
    apt-get indextargets --format 'deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' 'Origin: Debian' >"$cache/sources.list"
    local options=(-qq -o "Dir::Etc::SourceList=$cache/sources.list" -o Dir::Etc::SourceParts=/dev/null
        -o "Dir::State::Lists=$cache/apt" -o Dir::Cache::pkgcache= -o Dir::Cache::srcpkgcache=
        -o APT::Sandbox::User=root)
    apt-get "${options[@]}" update
    rm -rf "$cache/src/new"
    mkdir "$cache/src/new"
    (cd "$cache/src/new" && apt-get "${options[@]}" source "$1=$2" && mv -- */ ..)
}

# Where the toolkit is looked for again, whatever becomes of this tree.
cmp -s cmake/mingw.cmake "$cache/mingw.cmake" || cp cmake/mingw.cmake "$cache"

build() { # build NAME SOURCES ARGUMENTS...: the build folder NAME of the cache
    local name=$1 sources=$2
    shift 2
    [ -e "$cache/$name/build.ninja" ] ||
        cmake -S "$sources" -B "$cache/$name" -G Ninja -DCMAKE_BUILD_TYPE=Release \
            -DCMAKE_TOOLCHAIN_FILE="$cache/mingw.cmake" "$@" >"$cache/$name.log"
    ninja -C "$cache/$name"
}

version() { dpkg-query -W -f '${source:Version}' "$1"; }

# Of the toolkit only what programs for Windows need, of its tools those of this system.
off=(network sql dbus opengl xml concurrent printsupport vulkan tabletevent directwrite3 androiddeployqt direct2d
    direct2d1_1 dynamicgl qmake sessionmanager picture movie pdf textodfwriter textmarkdownreader textmarkdownwriter
    undocommand undogroup undostack systemtrayicon tuiotouch graphicsview graphicseffect mdiarea wizard lcdnumber
    dial columnview datawidgetmapper fontdialog errormessage splashscreen zstd icu glib
    system_zlib system_png system_jpeg system_freetype system_harfbuzz system_pcre2 system_doubleconversion)
host_qt=(-DQT_HOST_PATH=/usr "-DQT_HOST_PATH_CMAKE_DIR=/usr/lib/$(gcc -print-multiarch)/cmake")
fetch qt6-base "$(version qt6-base-dev)"
build qt-build "$cache"/src/qt6-base-*/ "${host_qt[@]}" -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF \
    -DBUILD_WITH_PCH=ON $(printf -- '-DQT_FEATURE_%s=OFF ' "${off[@]}")
fetch googletest "$(version libgtest-dev)"
build gtest-build "$cache"/src/googletest-*/ -DCMAKE_INSTALL_PREFIX="$cache/gtest"
cmake --install "$cache/gtest-build" >/dev/null

cmake --preset windows "${host_qt[@]}" -DCMAKE_FIND_ROOT_PATH="$cache/qt-build;$cache/gtest" >/dev/null
cmake --build --preset windows

runtime() { x86_64-w64-mingw32-g++-posix -print-file-name="$1"; }
bring() { # bring LIBRARIES PLUGINS: what our programs load of the toolkit and the compiler, into these folders
    cp -u "$cache"/qt-build/bin/Qt6{Core,Gui,Widgets}.dll "$(runtime libstdc++-6.dll)" \
        "$(runtime libgcc_s_seh-1.dll)" "$(runtime libwinpthread-1.dll)" "$1"
    mkdir -p "$2"
    cp -ru "$cache"/qt-build/plugins/* "$2"
}
bring "$build" "$build"
cp -u "$cache/qt-build/bin/Qt6Test.dll" "$build"

# What a user unpacks, and a host is built against.
installed=$build/chart-editors
cmake --install "$build" --prefix "$installed" --strip >/dev/null
bring "$installed/bin" "$installed/plugins"
(cd "$build" && rm -f chart-editors.zip && zip -qr chart-editors.zip chart-editors)

# Wine's computer, with the fonts of this one.
export WINEPREFIX=$cache/wine WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml='
[ -e "$WINEPREFIX/system.reg" ] || wineboot --init >/dev/null 2>&1
find /usr/share/fonts \( -name '*.ttf' -o -name '*.ttc' -o -name '*.otf' \) \
    -exec ln -sf -t "$WINEPREFIX/drive_c/windows/Fonts" {} +
screen() { # screen COMMAND...: on a screen of its own, with a manager without which no window becomes active
    xvfb-run -a -s '-screen 0 1920x1080x24' bash -c 'openbox & "$@"; status=$?; kill %1; exit $status' -- "$@"
    wineserver -w
}

screen wine "$build/chart-gallery.exe" "$build/gallery"
screen wine "$installed/bin/chart-editors-demo.exe" --pictures "$build/pictures"

# The README's host, without the toolkit.
trial=$build/trial
mkdir -p "$trial"
block() { # block LANGUAGE: the README's first block of code in that language
    awk -v fence="\`\`\`$1" '$0 == fence { on = !done; done = 1; next } /^```/ { on = 0 } on' README.md
}
block cpp >"$trial/host.cpp"
{
    echo 'cmake_minimum_required(VERSION 3.22)'
    echo 'project(Host LANGUAGES CXX)'
    block cmake
} >"$trial/CMakeLists.txt"
cmake -S "$trial" -B "$trial/made" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$source/cmake/mingw.cmake" \
    -DCMAKE_FIND_ROOT_PATH="$installed" >/dev/null
cmake --build "$trial/made" >/dev/null
(cd "$trial" && WINEPATH=$installed/bin "$source/tests/readme/answer_dialog.sh" wine made/host.exe)

screen ctest --preset windows -j"$(nproc)"
echo "Everything works under Wine. For Windows: $build/chart-editors.zip"
