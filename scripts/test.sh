#!/usr/bin/env bash
# Installs what is missing, builds tclcoreutils and runs every test.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
bash "$root/scripts/install-deps.sh"
cmake -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build "$build" -j"$(nproc)"
cd "$build"
# One virtual display for the whole run of the Tcl tests.
if [ -n "${DISPLAY:-}" ]; then
  ctest --output-on-failure
else
  xvfb-run -a -s "-screen 0 1280x1024x24 -nolisten tcp" ctest --output-on-failure
fi
