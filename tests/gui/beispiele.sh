#!/bin/sh
# Every sample is a file as the program writes it, and its PDF has every name on it as text, as its
# description has. Exported without names it has none of them, and the project that comes of that is one as the program
# writes it too.
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

    case=$folder/case.kwp
    rm -f "$case"
    for out in "$case" "$pdf"; do "$KW_KINWRIGHT" --export "$out" --anonymous "$sample" || fault "no export without names"; done
    printf 'load "%s"\nsave "%s"\n' "$case" "$copy" | "$KW_REPLAY" && cmp "$case" "$copy" || fault "load and save changes it without names"
    { pdftotext -layout "$pdf" - && pdfinfo "$pdf" && iconv -f WINDOWS-1252 -t UTF-8 "$case"; } >"$folder/text"
    grep -q 'A1' "$folder/text" || fault "nobody is there without names"
    grep '...' "$folder/names" | grep -F -f - "$folder/text" && fault "it has names without names"
done
ln -s "$samples/familie.kwp" "$folder/link.kwp"
code=0
"$KW_KINWRIGHT" --export "$folder/link.kwp" --anonymous "$samples/familie.kwp" 2>"$folder/told" || code=$?
[ $code = 2 ] && grep -q 'would replace the project' "$folder/told" || { echo "a link to the project is written: $(cat "$folder/told")"; failed=1; }
exit $failed
