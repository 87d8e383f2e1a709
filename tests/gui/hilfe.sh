#!/bin/sh
# The manual holds together in both languages: every link, anchor and picture that a page names is there, every picture
# is used, every caption of the commands' table is explained under just that name, in bold, and what is in bold is a
# caption of the program. The documents' links hold too.
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

# Texts in both languages, as the program's sources have them.
find "$KW_SRC/src" -name '*.cpp' -o -name '*.h' | xargs cat | tr '\n' ' ' |
    grep -oE '\{"([^"\\]|\\.)*", *"([^"\\]|\\.)*"\}' >"$folder/texts"
# "texts de|en": the captions among them, as a reader sees them.
texts() {
    if [ "$1" = de ]; then word='\1'; else word='\3'; fi
    sed -E 's/^\{"(([^"\\]|\\.)*)", *"(([^"\\]|\\.)*)"\}$/'"$word"'/; s/&//g; s/^ *//; s/  .*//; s/[: ]*$//' "$folder/texts"
    # One that is only a sign, one in two lines, and the languages' names, which are in no language but their own.
    printf '%s\n' ... 'Konflikthaft / verschmolzen' Deutsch English
}
# "shape PAGE": how much of each kind there is.
shape() { grep -oE '<(h[234]|li|tr|img|dt|p|figure|table|b|kbd|strong)\b' "$1" | sort | uniq -c; }

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
    texts "$language" >"$folder/named"
    sed 's/<[^>]*>//g' "$folder/bold" | sort -u | grep -vxF -f "$folder/named" >"$folder/unknown" || continue
    fault "$page: the program has no caption $(tr '\n' ',' <"$folder/unknown")"
done
shape "$help/de/index.htm" >"$folder/de"
shape "$help/en/index.htm" | diff "$folder/de" - || fault "the two languages don't tell the same"
for picture in "$help"/bilder/*; do
    grep -qF "$(basename "$picture")\"" "$help"/*/index.htm || fault "$picture is used by no page"
done
for page in "$KW_SRC"/*.md "$KW_SRC"/docs/*.md; do
    for link in $(grep -oE '\]\([^)]*\)' "$page" | sed 's/^](//; s/)$//; s/#.*//'); do
        case $link in *://*) continue ;; esac
        [ -e "$(dirname "$page")/$link" ] || fault "$page: no file $link"
    done
done
exit $failed
