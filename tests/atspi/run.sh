#!/bin/bash
# run.sh JOBEDIT: the job editor on a display and buses of its own, driven by test_jobedit_atspi.py as a screen reader would.
# Ends with status 77, which CTest takes for skipped, where a tool is missing.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

skip()
{
    echo "Skipped: $1 is missing (Debian: apt-get install at-spi2-core dbus python3-pyatspi xvfb)." >&2
    exit 77
}

if [ "${1-}" != --inside ]; then
    for tool in Xvfb dbus-run-session /usr/bin/python3; do
        command -v "$tool" >/dev/null || skip "$tool"
    done
    [ -x /usr/libexec/at-spi-bus-launcher ] || skip "at-spi2-core"
    /usr/bin/python3 -c 'import pyatspi' 2>/dev/null || skip "python3-pyatspi"
    scratch=$(mktemp -d)
    trap 'rm -rf "$scratch"' EXIT
    export HOME=$scratch XDG_RUNTIME_DIR=$scratch XDG_CONFIG_HOME=$scratch XDG_DATA_HOME=$scratch XDG_CACHE_HOME=$scratch
    chmod 700 "$scratch"
    unset DBUS_SESSION_BUS_ADDRESS AT_SPI_BUS_ADDRESS DISPLAY WAYLAND_DISPLAY
    dbus-run-session -- "${BASH_SOURCE[0]}" --inside "$@"
    exit
fi

shift
Xvfb -displayfd 3 -screen 0 1600x1200x24 -nolisten tcp -noreset >"$HOME/xvfb.log" 2>&1 3>"$HOME/display" &
server=$!
trap 'kill "$server" 2>/dev/null || true' EXIT
for _ in $(seq 100); do
    [ -s "$HOME/display" ] && break
    sleep 0.1
done
[ -s "$HOME/display" ] || { cat "$HOME/xvfb.log" >&2; exit 1; }
export DISPLAY=:$(cat "$HOME/display")
/usr/libexec/at-spi-bus-launcher --launch-immediately &
launcher=$!
trap 'kill "$server" "$launcher" 2>/dev/null || true' EXIT
export QT_QPA_PLATFORM=xcb QT_ACCESSIBILITY=1 QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 LC_ALL=C.UTF-8
/usr/bin/python3 "$here/test_jobedit_atspi.py" "$1" "$HOME"
