#!/bin/bash
# Exports against the system's limits, and a name that would steer the terminal: one plain line, the old file stays, nothing
# else does.
set -u
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 1
export HOME=$folder
# Its own cache of fonts: one written under these limits would be cut, and root's is the whole machine's.
cat >fonts.conf <<END
<?xml version="1.0"?><fontconfig><cachedir>$folder/fonts</cachedir><include>/etc/fonts/fonts.conf</include></fontconfig>
END
export FONTCONFIG_FILE=$folder/fonts.conf
sample=$KW_SRC/samples/familie.kwp
failed=0
fault() { echo "FAILED: $*"; failed=1; }

# "refused TEXT LIMIT WORDS...": an export of page.EXT fails with that line under that limit, and leaves the old file
refused() {
    local text=$1 limit=$2 code
    shift 2
    echo old >"$1"
    (eval "$limit" && "$KW_KINWRIGHT" --export "$@" "$sample") >told 2>&1
    code=$?
    [ "$code" = 1 ] && [ "$(cat told)" = "kinwright: $1: $text" ] || fault "$*: exit $code, '$(head -c 300 told)'"
    [ "$(cat "$1")" = old ] || fault "$*: the old file is gone"
    [ "$(ls -A | grep -vxF -e told -e .config -e fonts -e fonts.conf)" = "$1" ] || fault "$*: it left $(ls -A | tr '\n' ' ')"
    rm -f "$1"
}

for name in page.pdf page.svg page.png page.bmp; do refused "File too large" "ulimit -f 8" "$name"; done
printf 'save "%s"\nprint boxes\n' "$folder/x.kwp" | (ulimit -f 0; "$KW_REPLAY") >told 2>&1
[ $? -le 1 ] || fault "the replay died of a file that may not grow: $(cat told)"
rm -f x.kwp

if [ "${KW_SANITIZE:-OFF}" != ON ]; then # which needs more memory than there is
    for name in page.png page.jpg page.bmp; do
        refused "not enough memory for the page" "ulimit -v 450000" "$name" --dpi 1200
    done
fi

nasty=$(printf 'a\033[31mb\177c\302\233d\342\200\256e\377f.kwp')
"$KW_KINWRIGHT" --export x.pdf "$nasty" 2>told && fault "there is no such file"
[ "$(cat told)" = "kinwright: a?[31mb?c?d?e?f.kwp: No such file or directory" ] || fault "told: $(od -c told)"
exit $failed
