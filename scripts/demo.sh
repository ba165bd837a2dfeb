#!/usr/bin/env bash
# Installs what is missing, builds into build/ and starts the demo; arguments go to it. Where there is no
# display, the demo runs off screen and leaves its pictures in build/pictures/.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)

"$root/scripts/install-deps.sh"
(
    cd "$root"
    # Once configured, the build looks by itself whether it must be configured anew.
    [ -f build/build.ninja ] || cmake --preset dev >/dev/null
    cmake --build --preset dev --target chart-editors-demo
)

if [ "$(uname)" = Linux ] && [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ]; then
    echo "There is no display: the demo runs off screen and leaves pictures in build/pictures/."
    set -- --pictures "$root/build/pictures" "$@"
fi
exec "$root/build/chart-editors-demo" "$@"
