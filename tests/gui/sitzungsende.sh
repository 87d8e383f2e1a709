#!/bin/sh
# A signal ends the program in order, with its settings written: with the page alone, and while a form is open.
set -eu
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir "$folder/run" "$folder/home"
cp "$KW_KINWRIGHT" "$folder/kinwright" # its settings stand beside it
export QT_QPA_PLATFORM=offscreen HOME="$folder/home" XDG_RUNTIME_DIR="$folder/run"
failed=0

# "ends SIGNAL SETTINGS": the first start of all asks for the language, which is a form
ends() {
    rm -f "$folder/prog.ini"
    [ -z "$2" ] || printf '[DEFAULT]\n%s\n' "$2" >"$folder/prog.ini"
    "$folder/kinwright" &
    pid=$!
    for _ in $(seq 100); do # until it listens to SIGTERM, its bit 14
        caught=$(sed -n 's/^SigCgt:.*\(....\)$/\1/p' "/proc/$pid/status" 2>/dev/null) || break
        [ "$((0x$caught & 0x4000))" = 0 ] || break
        sleep 0.1
    done
    sleep 1
    kill "-$1" "$pid"
    code=0
    wait "$pid" || code=$?
    [ "$code" = 0 ] || { echo "$1: exit code $code"; failed=1; }
    grep -q '^toolbar=1' "$folder/prog.ini" || { echo "$1: the settings are not written"; failed=1; }
}

ends TERM language=en
ends HUP ''
exit $failed
