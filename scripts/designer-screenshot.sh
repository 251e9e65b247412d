#!/usr/bin/env bash
# Takes docs/designer.png: the real Qt Designer with the plugin from the
# build tree, showing the widget box groups and docs/designer-panel.ui,
# under Xvfb with openbox as the window manager.
#     scripts/designer-screenshot.sh [build folder]
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(realpath "${1:-build}")
work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$work"' EXIT

# A grabber of the whole screen, built here (Qt's xcb screen grab).
cat > "$work/grab.cpp" <<'CPP'
#include <QGuiApplication>
#include <QScreen>
#include <QPixmap>
int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    return QGuiApplication::primaryScreen()->grabWindow(0).save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
CPP
g++ -std=c++17 -fPIC "$work/grab.cpp" -o "$work/grab" $(pkg-config --cflags --libs Qt6Gui)

export DISPLAY=:97
Xvfb $DISPLAY -screen 0 1280x800x24 -nolisten tcp &
sleep 1
openbox >/dev/null 2>&1 &
sleep 1
export HOME="$work" XDG_CONFIG_HOME="$work/config" QT_QPA_PLATFORM=xcb
mkdir -p "$XDG_CONFIG_HOME/QtProject"
# Docked mode, so that the widget box, the form and the property editor
# share one window.
printf '[UI]\nCurrentMode=1\n' > "$XDG_CONFIG_HOME/QtProject/designer.conf"
QT_PLUGIN_PATH="$build/plugins" /usr/lib/qt6/bin/designer "$PWD/docs/designer-panel.ui" >/dev/null 2>&1 &
sleep 6
xdotool search --onlyvisible --name "Qt Designer" windowactivate --sync windowsize 1280 800 windowmove 0 0 2>/dev/null || true
sleep 2
# Only the collection in the widget box; the segment label selected, its
# colour properties in the property editor.
xdotool mousemove 128 110 click 1 type --delay 50 "Tq"
xdotool mousemove 400 140 click 1
xdotool mousemove 970 337 click 1 type --delay 50 "Color"
sleep 2
"$work/grab" "$PWD/docs/designer.png"
echo "designer-screenshot: wrote docs/designer.png"
