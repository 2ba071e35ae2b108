#!/usr/bin/env bash
# Installs the Debian 12 packages needed to build and test tclcoreutils.
# Idempotent: only missing packages are installed.
set -euo pipefail
PKGS=(build-essential cmake pkg-config tcl8.6-dev tk8.6-dev libmagickcore-6.q16-dev
      libboost-dev libgtest-dev xvfb xauth x11-utils imagemagick)
missing=()
for p in "${PKGS[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  SUDO=""
  [ "$(id -u)" -ne 0 ] && SUDO="sudo"
  export DEBIAN_FRONTEND=noninteractive
  $SUDO apt-get update
  $SUDO apt-get install -y --no-install-recommends "${missing[@]}"
fi
