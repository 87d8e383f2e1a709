#!/bin/bash
# Exports from the command line with each system call of their writing failing in turn, or killed at it. Afterwards the file
# is the old one or a whole new one, exit code and message agree with that, and the next export leaves nothing stray.
# Every seventeenth fault, all of them when KW_LONG is set. Exits 77 when strace cannot trace on this machine.
set -u
export ASAN_OPTIONS=detect_leaks=0 # the leak check cannot run while the program is traced
strace -f -o /dev/null true 2>/dev/null || exit 77
ordner=$(TMPDIR=$([ -w /dev/shm ] && echo /dev/shm || echo "${TMPDIR:-/tmp}") mktemp -d)
trap 'rm -rf "$ordner"' EXIT
cd "$ordner" || exit 1
# A program that is killed mustn't spoil what all others read.
cat >schriften.conf <<ENDE
<?xml version="1.0"?><fontconfig><cachedir>$ordner/schriften</cachedir><include>/etc/fonts/fonts.conf</include></fontconfig>
ENDE
export FONTCONFIG_FILE=$ordner/schriften.conf HOME=$ordner XDG_RUNTIME_DIR=$ordner
fehler=0
laeufe=0
nummer=0
scheitert() { echo "FAILED: $*"; fehler=1; }
ausgegeben() { "$@" "$KW_KINWRIGHT" --export "aus/x.$art" "$KW_SRC/samples/familie.kwp" 2>gesagt; }

# "ganz FILE": by its end.
ganz() {
    case $1 in
    *.pdf) tail -c 10 "$1" | grep -q '%%EOF' ;;
    *.svg) tail -n 1 "$1" | grep -q '</svg>' ;;
    *.png) tail -c 8 "$1" | grep -q IEND ;;
    esac
}

# "gestoert CALL INJECTION"
gestoert() {
    laeufe=$((laeufe + 1))
    rm -rf aus && mkdir aus && echo alt >"aus/x.$art"
    { ausgegeben strace -f -o /dev/null -e inject="$1:$2"; code=$?; } 2>/dev/null
    if head -n 1 "aus/x.$art" | grep -aqx alt; then
        [ "$code" != 0 ] || scheitert "$art $1 $2: said nothing, but the file is old"
        case $2 in *KILL*) ;; *) [ "$(grep -c . gesagt)" -ge 1 ] || scheitert "$art $1 $2: failed without a word" ;; esac
    elif ganz "aus/x.$art"; then
        [ "$code" = 0 ] || [ "$code" = 137 ] || scheitert "$art $1 $2: exit $code, but the file is new: $(cat gesagt)"
    else
        scheitert "$art $1 $2: torn"
    fi
    ausgegeben env || scheitert "$art $1 $2: the next export fails: $(cat gesagt)"
    [ "$(ls -A aus)" = "x.$art" ] || scheitert "$art $1 $2: left $(ls -A aus)"
}

for art in pdf svg png; do
    mkdir -p aus && echo alt >"aus/x.$art"
    ausgegeben env # the fonts' cache is made
    echo alt >"aus/x.$art"
    ausgegeben strace -f -o spur || scheitert "$art: $(cat gesagt)"
    for ruf in openat write fsync rename close read fchmod flock newfstatat unlink; do
        vorher=$(sed '/aus\/\.kw-/q' spur | grep -cE " $ruf\(")
        [ "$ruf" != openat ] || vorher=$((vorher - 1)) # its own opening too
        # Behind the program's end the toolkit's libraries still close what they have.
        anzahl=$(sed '/exit_group/q' spur | grep -cE " $ruf\(")
        [ "$anzahl" -le $((vorher + 8)) ] || anzahl=$((vorher + 8))
        for mal in $(seq $((vorher + 1)) "$anzahl"); do
            for wie in error=ENOSPC error=EIO error=EACCES error=EDQUOT error=EINTR signal=KILL; do
                nummer=$((nummer + 1))
                [ -n "${KW_LONG:-}" ] || [ $((nummer % 17)) = 0 ] || continue
                gestoert "$ruf" "$wie:when=$mal"
            done
        done
    done
done
[ "$laeufe" -gt 15 ] || scheitert "only $laeufe faults were tried"
echo "$laeufe faults, $([ "$fehler" = 0 ] && echo all well || echo see above)"
exit "$fehler"
