#!/usr/bin/env bash
# Installs the library into a scratch prefix and builds and runs the example
# project against it, as another project would use it.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
cmake --install "$build" --prefix "$prefix" >/dev/null
cmake -S examples/panel -B "$prefix/build-panel" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$prefix/build-panel"
for f in libqcoldesigner.so QuovarCollectionConfig.cmake qcol.qch tqsegment.html qseg.h; do
  find "$prefix" -name "$f" | grep -q . || { echo "example: $f was not installed"; exit 1; }
done
QT_QPA_PLATFORM=offscreen "$prefix/build-panel/panel" --once
# Qt's form loader finds every component through the installed plugin alone,
# whatever the prefix.
cmake -S examples/formload -B "$prefix/build-formload" -G Ninja >/dev/null
cmake --build "$prefix/build-formload"
plugins=$(dirname "$(dirname "$(find "$prefix" -name libqcoldesigner.so | head -n 1)")")
QT_QPA_PLATFORM=offscreen QT_PLUGIN_PATH="$plugins" "$prefix/build-formload/formload" tests/data/panel.ui
echo "example: built and ran against the installed library in $prefix"
