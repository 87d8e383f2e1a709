#!/bin/sh
# Runs one scenario in a folder of its own and compares what it prints with the .out file beside it.
# Files that the script reads stand in a folder of its name. KW_UPDATE=1 writes what it prints anew.
replay=$1
script=$2
expected="${script%.kws}.out"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 1
if [ -d "${script%.kws}" ]; then cp "${script%.kws}"/* .; fi
"$replay" "$script" >printed
code=$?
[ "$code" = 0 ] || { echo "exit code $code"; cat printed; exit 1; }
if [ "${KW_UPDATE:-}" = 1 ]; then cp printed "$expected"; fi
diff -u "$expected" printed
