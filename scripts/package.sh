#!/usr/bin/env bash
# Makes the .deb packages (runtime, development, demo) in build-package/ and tries them.
#
#   scripts/package.sh [--no-trial]
#
# As root they are installed in a bare system of their own, below build-package/root; otherwise they are unpacked
# into an empty folder. Either way the README's host is built against them, with CMake and with pkg-config, and run.
set -euo pipefail
cd "$(dirname "$0")/.."
source=$PWD
build=$source/build-package

scripts/install-deps.sh --package
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr -DCHART_BUILD_TESTS=OFF \
    -DCHART_BUILD_BENCH=OFF >/dev/null
cmake --build "$build"
rm -f "$build"/*.deb
(cd "$build" && cpack >/dev/null)
ls "$build"/*.deb
[ "${1:-}" = --no-trial ] && exit 0

trial=$build/trial
rm -rf "$trial"
mkdir -p "$trial"
block() { # block LANGUAGE: the README's first block of code in that language
    awk -v fence="\`\`\`$1" '$0 == fence { on = !done; done = 1; next } /^```/ { on = 0 } on' "$source/README.md"
}
block cpp >"$trial/host.cpp"
{
    echo 'cmake_minimum_required(VERSION 3.22)'
    echo 'project(Host LANGUAGES CXX)'
    block cmake
} >"$trial/CMakeLists.txt"
block sh >"$trial/pkg-config.sh"
cat >"$trial/try.sh" <<'TRY'
set -euo pipefail
cd "$(dirname "$0")"
cmake -S . -B made -DCMAKE_PREFIX_PATH="${PREFIX:-/usr}" >/dev/null
cmake --build made >/dev/null
bash pkg-config.sh
export QT_QPA_PLATFORM=offscreen
for host in made/host ./host; do # the dialog waits for its user
    status=0
    timeout 3 "$host" || status=$?
    [ $status -eq 124 ] || { echo "FAILED: $host ended with $status"; exit 1; }
done
"${PREFIX:-/usr}/bin/chart-editors-demo" --pictures pictures
ls pictures | head -n 3
TRY

if [ "$(id -u)" -ne 0 ]; then
    for package in "$build"/*.deb; do
        dpkg -x "$package" "$trial/prefix"
    done
    library=$(dirname "$(find "$trial/prefix" -name 'libchartdraw.so.0')")
    export PREFIX=$trial/prefix/usr LD_LIBRARY_PATH=$library PKG_CONFIG_PATH=$library/pkgconfig
    bash "$trial/try.sh"
    echo "The packages work, unpacked into an empty folder."
    exit 0
fi

root=$build/root
if [ ! -e "$root/usr/bin/apt-get" ]; then
    # From where this system itself takes its packages.
    mirror=$(apt-get indextargets --format '$(REPO_URI)' | head -n 1)
    codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
    debootstrap --variant=minbase "$codename" "$root" "$mirror" >"$build/debootstrap.log"
fi
for settings in /etc/apt/sources.list /etc/apt/sources.list.d /etc/apt/apt.conf.d /etc/apt/trusted.gpg.d /etc/resolv.conf; do
    [ ! -e "$settings" ] || cp -r "$settings" "$root$(dirname "$settings")/"
done
rm -rf "$root/trial"
cp -r "$trial" "$root/trial"
cp "$build"/*.deb "$root/trial/"
chroot "$root" bash -euc '
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get purge -y -qq "charteditors-demo" "libcharteditors*" >/dev/null 2>&1 || true
    apt-get install -y -qq --no-install-recommends /trial/*.deb fonts-liberation >/dev/null
    apt-get install -y -qq --no-install-recommends g++ cmake make pkg-config >/dev/null
    bash /trial/try.sh'
echo "The packages work in a bare system."
