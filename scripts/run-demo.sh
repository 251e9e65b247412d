#!/usr/bin/env bash
# Runs the gallery in a window when there is a display; without one it renders
# the gallery off-screen, in the light and in the dark palette, writes the two
# PNGs and prints where.
set -euo pipefail
gallery="$1"
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$gallery"
fi
out="${GALLERY_PNG:-$PWD/gallery.png}"
QT_QPA_PLATFORM=offscreen "$gallery" --screenshot "$out"
QT_QPA_PLATFORM=offscreen "$gallery" --dark --screenshot "${out%.png}-dark.png"
