#!/bin/sh
# Every sample is a file as the program writes it, and its PDF has every name on it as text, as its
# description has.
set -eu
command -v pdftotext >/dev/null || exit 77
samples=$KW_SRC/samples
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
failed=0
fault() { echo "$name: $*"; failed=1; }

names() {
    iconv -f WINDOWS-1252 -t UTF-8 "$1" | awk -F_ '/^\[/ { persons = /OBJECTS/; next } persons { print $10; print $11 }' |
        grep -v '^ *$' | sort -u
}

for sample in "$samples"/*.kwp; do
    name=$(basename "$sample" .kwp)
    copy=$folder/$name.kwp
    pdf=$folder/$name.pdf
    printf 'load "%s"\nsave "%s"\n' "$sample" "$copy" | "$KW_REPLAY" || fault "the replay failed"
    cmp "$sample" "$copy" || fault "load and save changes it"

    env -u DISPLAY "$KW_KINWRIGHT" --describe --language de "$sample" >"$folder/words" || fault "no description"
    "$KW_KINWRIGHT" --export "$pdf" "$sample" || { fault "no export"; continue; }
    pdftotext -layout "$pdf" "$folder/text"
    names "$sample" >"$folder/names"
    [ -s "$folder/names" ] || fault "no names found in it"
    while read -r wanted; do
        grep -qF -- "$wanted" "$folder/text" || fault "$wanted is not in the PDF's text"
        grep -qF -- "$wanted" "$folder/words" || fault "$wanted is not in the description"
    done <"$folder/names"
done
exit $failed
