#!/usr/bin/env bash
# Installs what the build, the demo and the tests need, by package name. Does nothing when all is there. With --ci
# also what the checks of a change need, with --package what making and trying packages does, with --windows what
# building for Windows does.
set -euo pipefail

packages=(
    g++ cmake ninja-build pkg-config python3
    qt6-base-dev qt6-image-formats-plugins
    libgtest-dev libgmock-dev libbenchmark-dev
    # The tests' screen, its window manager, and the hand on its mouse and keyboard.
    xvfb xauth openbox xdotool
    fontconfig
    # Faces: the default sans and its fallbacks for other scripts and symbols; the tests read some by name.
    fonts-liberation fonts-dejavu-core fonts-noto-cjk fonts-noto-core fonts-nanum fonts-vlgothic fonts-symbola
)
if [ "${1:-}" = --ci ]; then
    packages+=(clang clang-format valgrind doxygen)
elif [ "${1:-}" = --package ]; then
    packages+=(dpkg-dev file debootstrap)
elif [ "${1:-}" = --windows ]; then
    packages+=(dpkg-dev g++-mingw-w64-x86-64-posix wine64 wine zip)
fi

missing=()
for package in "${packages[@]}"; do
    if [ "$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null)" != "install ok installed" ]; then
        missing+=("$package")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=()
if [ "$(id -u)" -ne 0 ]; then
    sudo=(sudo)
fi
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -qq
"${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
