#!/bin/sh
# Every sample is a file as the program writes it, and its PDF is whole: right page, all fonts inside, every
# name on it as text.
set -eu
command -v pdfinfo >/dev/null || exit 77
samples=$KW_SRC/samples
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
failed=0
fault() { echo "$name: $*"; failed=1; }

# "page PROJECT": its page in points as pdfinfo shows it, rounded.
page() {
    paper=$(sed -n 's/^papersize=\([0-9]*\).*/\1/p' "$1")
    case $paper in
    9) short=595 long=842 ;;
    11) short=420 long=595 ;;
    1) short=612 long=792 ;;
    esac
    if grep -q '^orientation=1' "$1"; then echo "$short x $long"; else echo "$long x $short"; fi
}

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

    "$KW_KINWRIGHT" --export "$pdf" "$sample" || { fault "no export"; continue; }
    found=$(pdfinfo "$pdf" | awk '/^Pages:/ { pages = $2 } /^Page size:/ { printf "%d x %d", $3 + 0.5, $5 + 0.5 } END { print " on " pages }')
    [ "$found" = "$(page "$sample") on 1" ] || fault "page of $found instead of $(page "$sample") on 1"
    pdffonts "$pdf" | awk 'NR > 2 { n++; if ($(NF - 4) != "yes") bad = 1 } END { exit bad || !n }' || fault "a font is not embedded"
    pdftotext -layout "$pdf" "$folder/text"
    names "$sample" >"$folder/names"
    [ -s "$folder/names" ] || fault "no names found in it"
    while read -r wanted; do
        grep -qF -- "$wanted" "$folder/text" || fault "$wanted is not in the PDF's text"
    done <"$folder/names"
done
exit $failed
