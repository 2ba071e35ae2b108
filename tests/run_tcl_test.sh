#!/usr/bin/env bash
# Runs one tcltest file in tclsh, under a private virtual X display unless
# a display is already given.
set -eu
test_file=$1
tclsh=$(command -v tclsh8.6 || command -v tclsh)
if [ -n "${DISPLAY:-}" ]; then
  exec "$tclsh" "$test_file"
fi
exec xvfb-run -a -s "-screen 0 1280x1024x24 -nolisten tcp" "$tclsh" "$test_file"
