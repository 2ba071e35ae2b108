#!/usr/bin/env bash
# Installs what is missing, builds tclcoreutils and runs every test.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
bash "$root/scripts/install-deps.sh"
cmake -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build "$build" -j"$(nproc)"
cd "$build"
ctest --output-on-failure
