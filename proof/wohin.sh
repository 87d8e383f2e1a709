#!/bin/bash
# Where a client's data goes: a session of the window with pointer and keys, a start with a project, exports. Every file
# that is opened for writing lies in the project's folder, the settings', the safety net's or the runtime's, nothing but
# project, net and exports holds the name, and nobody else hears of it.
# Exits 77 when strace cannot trace on this machine.
set -u
export ASAN_OPTIONS=detect_leaks=0 # the leak check cannot run while the program is traced
strace -f -o /dev/null true 2>/dev/null || exit 77
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
fehler=0
scheitert() { echo "FAILED: $*"; fehler=1; }

mkdir -p "$ordner"/{bin,heim,zustand,lauf,tmp,schriften,projekt} && chmod 700 "$ordner/lauf"
cp "$KW_KINWRIGHT" "$KW_ABSTURZ" "$ordner/bin"
printf '[DEFAULT]\nlanguage=en\n' >"$ordner/bin/prog.ini"
cat >"$ordner/schriften.conf" <<ENDE
<?xml version="1.0"?><fontconfig><cachedir>$ordner/schriften</cachedir><include>/etc/fonts/fonts.conf</include></fontconfig>
ENDE
export FONTCONFIG_FILE=$ordner/schriften.conf HOME=$ordner/heim XDG_STATE_HOME=$ordner/zustand TMPDIR=$ordner/tmp
export XDG_RUNTIME_DIR=$ordner/lauf XDG_CONFIG_HOME=$ordner/heim/konfig XDG_CACHE_HOME=$ordner/heim/cache QT_QPA_PLATFORM=offscreen
unset DISPLAY WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS
cd "$ordner/projekt" || exit 1
sed 's/Anna/Quellwasser/; s/_Maria_/_Quellwasser_/' "$KW_SRC/samples/familie.kwp" >klient.kwp
grep -q Quellwasser klient.kwp || sed -i '0,/^\(0=\([^_]*_\)\{11\}\)[^_]*/s//\1Quellwasser/' klient.kwp
grep -q Quellwasser klient.kwp || scheitert "the sample has changed: no name could be put in"

rufe=open,openat,creat,rename,renameat,renameat2,link,linkat,symlink,symlinkat,mknod,mknodat,socket,connect,bind,sendto,sendmsg
# "verfolgt COMMAND...": what it writes and whom it calls comes into ../spur, one for all.
verfolgt() { strace -f -q -A -o ../spur -e trace=$rufe "$@" 2>>../gesagt >>../gesagt; }

for saat in 2 5; do verfolgt ../bin/absturz --window $saat "$PWD/klient.kwp" 250; done
mkdir -p ../export
for art in pdf svg png; do
    (cd ../export && verfolgt ../bin/kinwright --export "klient.$art" ../projekt/klient.kwp) || scheitert "the export as $art failed"
done
for art in pdf svg png kwp; do
    (cd ../export && verfolgt ../bin/kinwright --export "fall.$art" --anonymous ../projekt/klient.kwp) ||
        scheitert "the export without names as $art failed"
done

# The program itself, until it has opened the project and listens to signals.
../bin/kinwright "$PWD/klient.kwp" 2>>../gesagt &
pid=$!
for _ in $(seq 100); do
    gefangen=$(sed -n 's/^SigCgt:.*\(....\)$/\1/p' "/proc/$pid/status" 2>/dev/null) || break
    [ "$((0x$gefangen & 0x4000))" = 0 ] || break
    sleep 0.1
done
grenze=$(sed -n 's/^Max core file size *\([0-9a-z]*\).*/\1/p' "/proc/$pid/limits")
if [ "${KW_SANITIZE:-OFF}" = OFF ] && [ "${KW_BUILD:-Release}" = Release ]; then
    # One byte: none at all would hand the dump to a program that collects them.
    [ "$grenze" = 0 ] || [ "$grenze" = 1 ] || scheitert "a core dump of $grenze bytes is possible"
fi
kill "$pid" && wait "$pid"

# Files opened for writing, and the new names of others.
erlaubt="^($ordner/(projekt|export|zustand/kinwright|lauf|schriften)/|$ordner/protokoll$|$ordner/bin/(prog.ini|\.kw-)|/dev/(null|tty|shm/[^/]*$)|/proc/self/)"
{
    sed -nE 's/^[0-9]+ +(open|openat|creat)\((AT_FDCWD, )?"([^"]*)".*(O_WRONLY|O_RDWR|O_CREAT).*\) = [0-9].*/\3/p' ../spur
    sed -nE 's/^[0-9]+ +(rename|link|symlink)[a-z0-9]*\(.*"([^"]*)"[^"]*\) = 0.*/\2/p' ../spur
    sed -nE 's/^[0-9]+ +mknod[a-z0-9]*\((AT_FDCWD, )?"([^"]*)".*\) = 0.*/\2/p' ../spur
} | sort -u | while read -r datei; do realpath -m "$datei"; done | sort -u >../geschrieben
[ "$(grep -c . ../geschrieben)" -gt 5 ] || scheitert "only $(grep -c . ../geschrieben) files were seen"
grep -vE "$erlaubt" ../geschrieben >../fremd && scheitert "written elsewhere: $(cat ../fremd)"

# The print system may be asked for printers; else nobody is called beyond this machine, and none but by a name of ours.
grep -E ' connect\(' ../spur | grep -vE 'sun_path="('"$ordner/lauf"'|/run/cups|/var/run/cups|/var/run/nscd)|sin6?_port=htons\(631\)' >../fremd &&
    scheitert "connected to: $(cat ../fremd)"

name='Quellwasser|Q\x00u\x00e\x00l\x00l\x00w'
grep -rlaP "$name" "$ordner" | grep -vE "^$ordner/((projekt|export|zustand/kinwright)/|protokoll$|bin/kinwright)" >../fremd.liste &&
    scheitert "the name stands in: $(cat ../fremd.liste)"
grep -laP "$name" ../export/fall.* && scheitert "it stands in an export without names"
grep -qaP "$name" ../gesagt && scheitert "the name was told: $(cat ../gesagt)"
[ -z "$(ls -A ../tmp)" ] || scheitert "left in the temporary folder: $(ls -A ../tmp)"
for datei in ../zustand/kinwright/*; do
    [ ! -e "$datei" ] || [ "$(stat -c %a "$datei")" = 600 ] || scheitert "$datei is readable by others"
done
echo "$(grep -c . ../geschrieben) files written, $([ "$fehler" = 0 ] && echo all where they belong || echo see above)"
exit "$fehler"
