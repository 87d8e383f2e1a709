#!/bin/sh
# What is installed fits together and to the desktop's rules: program, menu entry, icon, file type, description.
set -eu
command -v desktop-file-validate >/dev/null || exit 77
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
cmake --install "$(dirname "$KW_KINWRIGHT")" --prefix "$root" >/dev/null
share=$root/share
entry=$share/applications/kinwright.desktop
value() { sed -n "s/^$1=//p" "$entry"; }

desktop-file-validate --no-hints "$entry"
appstreamcli validate --no-net "$share"/metainfo/*.xml >"$root/told" || { cat "$root/told"; exit 1; }
XDG_DATA_DIRS=$share update-mime-database "$share/mime"
type=$(value MimeType)
grep -qF "${type%;}:*.kwp" "$share/mime/globs" || { echo "the menu entry's file type is not that of *.kwp"; exit 1; }
[ -f "$share/icons/hicolor/scalable/apps/$(value Icon).svg" ] || { echo "the menu entry's icon is missing"; exit 1; }
program=$(value Exec)
[ "$("$root/bin/${program%% *}" --version | wc -l)" = 1 ] || { echo "the menu entry's program does not run"; exit 1; }
