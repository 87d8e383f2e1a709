#!/bin/sh
# Runs one scenario in a folder of its own, with what it reads (families) beside it, and compares what it prints with the
# .out file of its name.
# KW_UPDATE=1 writes that file anew.
replay=$1
script=$2
expected="${script%.kws}.out"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp "$(dirname "$script")"/*.fam "$folder"
cd "$folder" || exit 1
"$replay" "$script" >printed
code=$?
[ "$code" = 0 ] || { echo "exit code $code"; cat printed; exit 1; }
if [ "${KW_UPDATE:-}" = 1 ]; then cp printed "$expected"; fi
diff -u "$expected" printed
