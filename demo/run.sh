#!/usr/bin/env bash
# Builds the library if needed and runs the demo. Without a display it runs
# under a virtual X server and writes the screenshot demo/screenshot.png.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
if [ ! -f "$root/build/libtclcoreutils.so" ]; then
  bash "$root/scripts/install-deps.sh"
  cmake -S "$root" -B "$root/build" -DCMAKE_BUILD_TYPE=Release >/dev/null
  cmake --build "$root/build" -j"$(nproc)" --target tclcoreutils
fi
wish=$(command -v wish8.6 || command -v wish)
if [ -n "${DISPLAY:-}" ]; then
  exec "$wish" "$root/demo/demo.tcl" "$root/build/libtclcoreutils.so"
fi
xvfb-run -a -s "-screen 0 1280x1024x24" "$wish" "$root/demo/demo.tcl" \
  "$root/build/libtclcoreutils.so" "$root/demo/screenshot.png"
echo "wrote $root/demo/screenshot.png"
