#!/usr/bin/env bash
# Installs everything the build, the tests and the gallery need on a fresh
# Debian 12 machine. Safe to run again: it only calls apt-get when a package
# is missing, and never prompts.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config
  qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools
  qt6-documentation-tools qt6-tools-private-dev designer-qt6 assistant-qt6 libqt6designercomponents6
  libqt6opengl6-dev libgl-dev
  xvfb xauth fonts-dejavu-core openbox x11-utils xdotool trayer libxcb1-dev
  clang libclang-rt-14-dev
  libmuparser-dev
  locales-all
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

echo "setup: installing ${missing[*]}"
SUDO=""
if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
$SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
