#!/usr/bin/env bash
# Installs what is missing, builds into build/ and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
cmake --preset dev >/dev/null
cmake --build --preset dev
ctest --preset dev -j"$(nproc)" "$@"
