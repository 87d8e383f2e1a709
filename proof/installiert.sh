#!/bin/bash
# The package in a bare system, made for this run by debootstrap: it installs with what it depends on and nothing else, a
# double click opens a project, exports and thumbnails need no display, and its removal leaves the user's own files and
# nothing else. Prints a line for each step.
# For the long check only; exits 77 with a plain line where root, or what it takes, isn't to be had. Downloaded packages are
# kept in build/bare.
set -u
skip() { echo "skipped: $*"; exit 77; }
[ -n "${KW_LONG:-}" ] || skip "only in the long check"
[ "$(id -u)" = 0 ] || skip "no root here, which a bare system takes"
for tool in debootstrap unshare Xvfb xwininfo; do command -v "$tool" >/dev/null || skip "no $tool here"; done
codename=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
mirror=$(apt-get indextargets --format '$(ORIGIN) $(CODENAME) $(REPO_URI)' 'Created-By: Packages' 2>/dev/null |
    awk -v name="$codename" '$1 == "Debian" && $2 == name { print $3; exit }')
[ -n "$mirror" ] || skip "apt knows of no Debian archive; try apt-get update"
# Mounts that vanish with this run, however it ends.
if [ -z "${KW_MOUNTS:-}" ]; then
    unshare --mount true 2>/dev/null || skip "mounting is forbidden here"
    KW_MOUNTS=own exec unshare --mount --propagation private "$0"
fi

kept=$KW_SRC/build/bare
mkdir -p "$kept"
root=$(mktemp -d)
chmod 755 "$root"
started=()
clean_up() {
    for process in "${started[@]}"; do kill "$process" 2>/dev/null; done
    umount -R "$root/proc" "$root/tmp/.X11-unix" 2>/dev/null
    rm -rf --one-file-system "$root"
}
trap clean_up EXIT
trap 'exit 1' HUP INT TERM
failed=0
fault() { echo "FAILED: $*"; failed=1; }
stop() { fault "$@"; exit 1; }
# "inside COMMAND...": as that system's root
inside() { DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 PATH=/usr/sbin:/usr/bin:/sbin:/bin timeout 900 chroot "$root" "$@"; }
# "user HOME COMMAND...": as its user, without a display but for what the call says
user() {
    local home=$1
    shift
    timeout 120 chroot --userspec=anna:anna "$root" env -i HOME="$home" PATH=/usr/bin:/bin LANG=C.UTF-8 "$@"
}
apt_install() { inside apt-get install -qq -y --no-install-recommends "$@" >"$kept/apt.log" 2>&1 || { tail -n 20 "$kept/apt.log"; stop "apt-get install $*"; }; }
# "begins_with FILE BYTES"
begins_with() { [ "$(head -c ${#2} "$root$1" | tr '\211' P)" = "$2" ] || fault "$1 is no such file: $(head -c 100 "$root$1")"; }

"$KW_SRC/package" >"$kept/package.log" 2>&1 || { tail -n 20 "$kept/package.log"; stop "./package"; }
package=$KW_SRC/$(tail -n 1 "$kept/package.log")
echo "package: $(basename "$package"), $(stat -c %s "$package") bytes; lintian finds nothing"

debootstrap --variant=minbase --cache-dir="$kept" "$codename" "$root" "$mirror" >"$kept/debootstrap.log" 2>&1 ||
    { tail -n 5 "$kept/debootstrap.log"; stop "debootstrap"; }
mount -t proc proc "$root/proc" || stop "mounting"
cp -n "$kept"/*.deb "$root/var/cache/apt/archives/"
inside apt-get update -qq >"$kept/apt.log" 2>&1 || stop "apt-get update: $(cat "$kept/apt.log")"
inside useradd -m anna
echo "bare system: $codename, $(inside dpkg-query -W | wc -l) packages"

cp "$package" "$root/kinwright.deb"
apt_install /kinwright.deb
inside dpkg -L kinwright | sort >"$kept/files"
for name in $(inside dpkg-query -W -f '${Recommends}' kinwright | tr -d ,); do
    inside apt-cache show "$name" >/dev/null 2>&1 || fault "recommends $name, which $codename doesn't have"
done
echo "installed: $(inside dpkg-query -W -f '${Package} ${Version}' kinwright), $(wc -l <"$kept/files") files and folders, with $(inside dpkg-query -W | wc -l) packages in all"

mkdir "$root/home/anna/Genogramme" && chroot "$root" chown anna: /home/anna/Genogramme
project=/home/anna/Genogramme/Familie\ Groß.kwp
user /home/anna cp /usr/share/doc/kinwright/examples/familie.kwp "$project"
for kind in pdf:%PDF png:PPNG svg:'<?xml'; do
    user /home/anna kinwright --export "/home/anna/page.${kind%%:*}" "$project" || fault "no export as ${kind%%:*}"
    begins_with "/home/anna/page.${kind%%:*}" "${kind#*:}"
done
echo "exported without a display: $(cd "$root/home/anna" && stat -c '%n %s' page.* | tr '\n' ' ')"

# The file manager's sandbox: no network, a home that can't be written.
mkdir -m 555 "$root/srv/home"
line=$(sed -n 's/^Exec=//p' "$root/usr/share/thumbnailers/kinwright.thumbnailer" | sed "s|%s|256|; s|%i|'$project'|; s|%o|/tmp/thumbnail.png|")
begun=$(date +%s%N)
unshare --net -- chroot --userspec=anna:anna "$root" env -i HOME=/srv/home PATH=/usr/bin sh -c "$line" || fault "no thumbnail by: $line"
begins_with /tmp/thumbnail.png PPNG
[ -z "$(ls -A "$root/srv/home")" ] || fault "the thumbnail left $(ls -A "$root/srv/home")"
echo "thumbnail without network, in a home that can't be written: $(stat -c %s "$root/tmp/thumbnail.png") bytes, $((($(date +%s%N) - begun) / 1000000)) ms"

mkdir -p "$root/tmp/.X11-unix" && mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x900x24 2>/dev/null)
started+=($!)
read -r -t 60 -u 3 number || stop "Xvfb"
# "opens NAME COMMAND...": the user's command puts a window with the project there, which ends when it is told to.
opens() {
    local name=$1 found='' process
    shift
    user /home/anna DISPLAY=":$number" "$@" >"$kept/window.log" 2>&1 &
    for _ in $(seq 600); do
        found=$(xwininfo -display ":$number" -root -tree 2>/dev/null | grep -m 1 -o '"[^"]*Familie Gro[^"]*"') && break
        sleep 0.1
    done
    [ -z "${KW_PICTURE:-}" ] || { sleep 2; import -display ":$number" -window root "$KW_PICTURE"; }
    process=$(for p in /proc/[0-9]*; do [ "$(readlink "$p/root")" = "$root" ] && [ "$(cat "$p/comm")" = kinwright ] && echo "${p#/proc/}"; done)
    [ -n "$found" ] && [ -n "$process" ] || fault "$name: no window with the project; $(cat "$kept/window.log")"
    [ -z "$process" ] || kill -TERM $process
    wait $! || fault "$name: ended with $?; $(cat "$kept/window.log")"
    echo "$name: the window $found"
}
entry=$(sed -n 's/^Exec=//p' "$root/usr/share/applications/kinwright.desktop")
opens "the menu entry's line" sh -c "${entry%%%f*} \"\$0\"" "$project"

# What a desktop brings along: from here on the file type is known, and a double click is what "gio open" does.
apt_install libglib2.0-bin shared-mime-info desktop-file-utils hicolor-icon-theme
user /home/anna cp "$project" /home/anna/nameless
for file in "$project" /home/anna/nameless; do
    user /home/anna gio info -a standard::content-type "$file" | grep -q application/x-kinwright || fault "$file is of no known type"
done
user /home/anna gio mime application/x-kinwright | grep -q '^Default.*kinwright.desktop' || fault "no program for the file type"
opens "a double click" gio open "$project"

inside apt-get purge -qq -y kinwright >"$kept/apt.log" 2>&1 || stop "apt-get purge"
rm "$root/kinwright.deb"
left=$(find "$root" -xdev -iname '*kinwright*' -not -path "$root/home/*" -not -path "$root/var/cache/apt/*" -not -path "$root/proc/*")
while read -r file; do [ -d "$root$file" ] || [ ! -e "$root$file" ] || left="$left $file"; done <"$kept/files"
left=$left$(grep -rlis kinwright "$root/usr/share/mime" "$root/usr/share/applications" "$root/var/lib/dpkg/info" "$root/etc")
[ -z "$left" ] || fault "the removal left $left"
for file in "$project" /home/anna/page.pdf /home/anna/.config/kinwright/prog.ini; do
    [ -s "$root$file" ] || fault "the user's $file is gone"
done
cmp -s "$root$project" "$KW_SRC/samples/familie.kwp" || fault "the user's project has changed"
echo "removed: nothing of it is left but the user's $(cd "$root/home/anna" && find . -type f -not -name '.[bp]*rofile' -not -name '.bash*' | sort | tr '\n' ' ')"
cp -n "$root"/var/cache/apt/archives/*.deb "$kept"
[ "$failed" = 0 ] && echo "the package installs, works and goes in a bare $codename"
exit $failed
