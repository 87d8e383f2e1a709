#!/bin/sh
# What is installed fits together and to the desktop's rules: program, menu entry, icon, file type, thumbnails, manual
# pages, description.
set -eu
command -v desktop-file-validate >/dev/null || exit 77
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
cmake --install "$(dirname "$KW_KINWRIGHT")" --prefix "$root" >/dev/null
share=$root/share
entry=$share/applications/kinwright.desktop
fault() { echo "$*"; exit 1; }
# "value NAME [FILE]"
value() { sed -n "s/^$1=//p" "${2:-$entry}"; }

desktop-file-validate --no-hints "$entry"
appstreamcli validate --no-net "$share"/metainfo/*.xml >"$root/told" || { cat "$root/told"; exit 1; }
grep -q project_license "$share"/metainfo/*.xml && fault "the metainfo names a licence that nobody has chosen"
program=$(value Exec)
version=$("$root/bin/${program%% *}" --version) || fault "the menu entry's program does not run"
# The program's last number has three digits.
release=$(sed -n 's/.*<release version="\([^"]*\)".*/\1/p' "$share"/metainfo/*.xml | sed -n 1p)
[ "$version" = "kinwright ${release%.*}.$(printf %03d "${release##*.}")" ] || fault "$version, but release notes of $release"
for size in 16 22 24 32 48 64 128 256 512; do
    icon=$share/icons/hicolor/${size}x$size/apps/$(value Icon).png
    [ "$(od -An -tu1 -j16 -N8 "$icon" | awk '{ print ($3 * 256 + $4) "x" ($7 * 256 + $8) }')" = "${size}x$size" ] || fault "$icon is of another size"
done
[ -f "$share/icons/hicolor/scalable/apps/$(value Icon).svg" ] || fault "the menu entry's icon is missing"

# The file type: by a name's ending; without one by the first section, and no other profile's.
export XDG_DATA_DIRS="$share" XDG_DATA_HOME="$root/home"
update-mime-database "$share/mime"
type=$(value MimeType)
type=${type%;}
grep -qF "$type:*.kwp" "$share/mime/globs" || fault "the menu entry's file type is not that of *.kwp"
[ "$(value MimeType "$share/thumbnailers/kinwright.thumbnailer")" = "$type;" ] || fault "thumbnails are of another file type"
# "type_is NO|YES FILE"
type_is() {
    is=NO
    gio info -a standard::content-type "$2" | grep -qF "$type" && is=YES
    [ "$is" = "$1" ] || fault "$2: of the program's type: $is"
}
for sample in "$share"/doc/kinwright/examples/*.kwp; do
    cp "$sample" "$root/nameless" && type_is YES "$root/nameless"
done
printf '[DEFAULT]\npapersize=9\n' >"$root/unix" && type_is YES "$root/unix"
printf '[DEFAULT]\r\nname=orientation=\r\n' >"$root/settings" && type_is NO "$root/settings"
printf '; [DEFAULT]\norientation=1\n' >"$root/comment" && type_is NO "$root/comment"
echo anything >"$root/new.kwp" && type_is YES "$root/new.kwp"

# The thumbnailer's line, as a file manager fills it in.
line=$(value Exec "$share/thumbnailers/kinwright.thumbnailer" | sed "s|%s|64|; s|%i|'$sample'|; s|%o|'$root/thumbnail'|")
PATH=$root/bin:$PATH sh -c "$line" && [ -s "$root/thumbnail" ] || fault "the thumbnailer's line makes no picture: $line"

for page in man1/kinwright.1 man1/kinwright-replay.1 de/man1/kinwright.1 de/man1/kinwright-replay.1; do
    gzip -dc "$share/man/$page.gz" | head -n 1 | grep -qF "\"Kinwright $release\"" || fault "$page is of another version"
done
gzip -dc "$share/doc/kinwright/changelog.gz" | head -n 1 | grep -qF "($release)" || fault "the changelog is of another version"
grep -qi 'no licence has been chosen' "$share/doc/kinwright/copyright" || fault "the copyright file does not say that no licence is chosen"
for link in de/index.htm en/index.htm; do [ -f "$share/kinwright/help/$link" ] || fault "the manual is missing"; done
