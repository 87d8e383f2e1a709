#!/bin/sh
# What a screen reader finds of the real window: on a display, a session bus and an accessibility bus of its own. The
# questions are asked by tests/accessibility/fragen.py.
set -eu
for tool in Xvfb dbus-run-session xdotool openbox gdbus /usr/bin/python3; do
    command -v $tool >/dev/null || { echo "no accessibility bus can be had here: $tool is missing"; exit 77; }
done
/usr/bin/python3 -c 'import gi; gi.require_version("Atspi", "2.0"); from gi.repository import Atspi' 2>/dev/null ||
    { echo "no accessibility bus can be had here: the bindings of its library are missing"; exit 77; }

home=$(mktemp -d)
display=
trap 'kill $display 2>/dev/null || true; rm -rf "$home"' EXIT
mkdir -m 700 "$home/run"
export HOME="$home" XDG_RUNTIME_DIR="$home/run" LANG=C.UTF-8 NO_AT_BRIDGE=0 PYTHONDONTWRITEBYTECODE=1
unset WAYLAND_DISPLAY XDG_CONFIG_HOME XDG_STATE_HOME QT_QPA_PLATFORM QT_SCALE_FACTOR
mkfifo "$home/number"
Xvfb -displayfd 5 -screen 0 1280x1000x24 -nolisten tcp 5>"$home/number" >/dev/null 2>&1 &
display=$!
read -r number <"$home/number"
export DISPLAY=":$number"

# Whoever was started by the bus ends with it.
# shellcheck disable=SC2016 # the inner shell expands
dbus-run-session -- sh -c '
    openbox >/dev/null 2>&1 &
    gdbus call --session --dest org.a11y.Bus --object-path /org/a11y/bus \
        --method org.freedesktop.DBus.Properties.Set org.a11y.Status IsEnabled "<true>" >/dev/null ||
        { echo "no accessibility bus can be had here: it does not start"; exit 77; }
    timeout 300 /usr/bin/python3 -W ignore::DeprecationWarning "$KW_SRC/tests/accessibility/fragen.py"
    code=$?
    kill $! 2>/dev/null
    exit $code' 2>"$home/errors" || {
    code=$?
    grep -vE 'dbus-daemon|SpiRegistry' "$home/errors" || true
    exit $code
}
