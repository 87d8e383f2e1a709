#!/bin/sh
# The manual holds together in both languages: every link, anchor and picture that a page names is there, every picture
# is used, and every caption of the commands' table is explained under just that name, in bold.
set -eu
help=$KW_SRC/help
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
failed=0
fault() { echo "$*"; failed=1; }
# "captions de|en": as menus show them; what comes behind a colon is a printer.
captions() {
    echo "captions $1" | "$KW_REPLAY" | sed 's/^[^ ]* //; s/&//g; s/^ *//; s/  .*//; s/: *$//; s/ *$//' |
        grep '[[:alpha:]]' | sort -u
}

for page in "$help"/*/index.htm; do
    language=$(basename "$(dirname "$page")")
    tr '\n' ' ' <"$page" >"$folder/page"
    grep -q "<html lang=\"$language\">" "$page" || fault "$page: its language is not $language"
    grep -oE '(href|src)="[^"]*"' "$folder/page" | sed 's/^[^"]*"//; s/"$//' | sort -u >"$folder/links"
    while read -r link; do
        case $link in
        '#'*) grep -qF "id=\"${link#?}\"" "$page" || fault "$page: no anchor $link" ;;
        *:*) fault "$page: $link is not local" ;;
        *) [ -f "$(dirname "$page")/$link" ] || fault "$page: no file $link" ;;
        esac
    done <"$folder/links"
    grep -oE ' id="[^"]*"' "$page" | sort | uniq -d | grep . && fault "$page: anchors stand twice"
    grep -oE '<b>[^<]*</b>' "$folder/page" | sed 's/&gt;/>/g; s/&amp;/\&/g; s/  */ /g' >"$folder/bold"
    captions "$language" >"$folder/captions"
    [ "$(wc -l <"$folder/captions")" -gt 80 ] || fault "the table's captions were not found"
    while read -r caption; do
        grep -qF "<b>$caption</b>" "$folder/bold" || fault "$page: does not tell of \"$caption\""
    done <"$folder/captions"
done
for picture in "$help"/bilder/*; do
    grep -qF "$(basename "$picture")\"" "$help"/*/index.htm || fault "$picture is used by no page"
done
exit $failed
