#!/bin/sh
# Runs one scenario and compares what it prints with the .out file beside it. KW_UPDATE=1 writes that file anew.
replay=$1
script=$2
expected="${script%.kws}.out"
actual=$(mktemp)
trap 'rm -f "$actual"' EXIT
cd "$(mktemp -d)" || exit 1
"$replay" "$script" >"$actual"
code=$?
if [ "${KW_UPDATE:-}" = 1 ]; then cp "$actual" "$expected"; fi
[ "$code" = 0 ] || { echo "exit code $code"; cat "$actual"; exit 1; }
diff -u "$expected" "$actual"
