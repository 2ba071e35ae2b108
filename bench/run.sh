#!/usr/bin/env bash
# Runs every benchmark: each bench/*.tcl in tclsh with Tk (under a virtual X
# display when none is given) and each built bench/*.cpp program.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build}
cmake -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$build" -j"$(nproc)" >/dev/null
export TCU_LIB=$build/libtclcoreutils.so TCU_PROBE=$build/tests/libphotoprobe.so
tclsh=$(command -v tclsh8.6 || command -v tclsh)
for b in "$root"/bench/*.tcl; do
  [ "$(basename "$b")" = common.tcl ] && continue
  echo "== $(basename "$b")"
  if [ -n "${DISPLAY:-}" ]; then "$tclsh" "$b"; else xvfb-run -a "$tclsh" "$b"; fi
done
for src in "$root"/bench/*.cpp; do
  [ -e "$src" ] || continue
  name=$(basename "$src" .cpp)
  echo "== $name"
  "$build/bench/$name"
done
