#!/bin/bash
# Kills the replay at every system call of net writes and of a save. Afterwards the project is the old or the new one, the
# net has what the project lacks, a start offers it, and the next save leaves nothing stray.
# Every third call, all of them when KW_LONG is set. Exits 77 when strace cannot trace on this machine.
set -u
export ASAN_OPTIONS=detect_leaks=0 # the leak check cannot run while the program is traced
strace -f -o /dev/null true 2>/dev/null || exit 77
ordner=$(TMPDIR=$([ -w /dev/shm ] && echo /dev/shm || echo "${TMPDIR:-/tmp}") mktemp -d)
trap 'rm -rf "$ordner"' EXIT
cd "$ordner" || exit 1
export TMPDIR=$ordner
fehler=0
laeufe=0
scheitert() { echo "FAILED: $*"; fehler=1; }

printf 'tool 1\nclick 6 6\nsave alt.kwp\n' | "$KW_REPLAY" >antwort || scheitert "$(cat antwort)"
cat >sitzung.kws <<'ENDE'
start state=netz ini=prog.ini
load p.kwp
tool 1
click 9 6
tool 2
click 12 6
save p.kwp
ENDE
cat >danach.kws <<'ENDE'
start state=netz ini=prog.ini
print net
form frmFassungen
press cmdÖffnen
end
wait 100
save p.kwp
ENDE

# "gespielt FLAGS...": the session from its beginning, traced into `spur`.
gespielt() {
    rm -rf netz .kw-* prog.ini kinwright-replay-*
    cp alt.kwp p.kwp
    { strace -f -o spur "$@" "$KW_REPLAY" sitzung.kws >antwort; } 2>/dev/null
}

# "personen FILE": how many a project file has.
personen() { sed -n '/^\[OBJECTS\]/,/^\[/p' "$1" | grep -c '='; }

# "nachgesehen TEXT": what is left after a kill.
nachgesehen() {
    laeufe=$((laeufe + 1))
    local gehalten sagt im_netz
    gehalten=$(grep -cE 'rename\(.*\.stand"\) = 0' spur) # net writes that came to their end
    cmp -s p.kwp alt.kwp || cmp -s p.kwp neu.kwp || scheitert "$1: the project is neither old nor new"
    cmp -s p.kwp neu.kwp && gehalten=neu
    sagt=$("$KW_REPLAY" danach.kws)
    im_netz=$(echo "$sagt" | sed -n 's/^  p.kwp //p')
    case "$gehalten-$im_netz" in
    0- | 0-2 | 1-2 | 1-3 | 2-3 | neu- | neu-3) ;;
    *) scheitert "$1: after $gehalten net writes the net has ${im_netz:-no} persons: $sagt" ;;
    esac
    [ -z "$im_netz" ] || [ "$(personen p.kwp)" = "$im_netz" ] || scheitert "$1: opened, it has $(personen p.kwp) persons"
    [ -z "$(find . netz -maxdepth 1 -name ".kw-*" 2>/dev/null)" ] || scheitert "$1: a stray file outlived the next save"
}

gespielt
cp p.kwp neu.kwp
cp spur ganz.spur
[ "$(personen neu.kwp)" = 3 ] || scheitert "the session saves $(personen neu.kwp) persons"

# What the session does itself begins with its script.
nummer=0
for ruf in $(sed '1,/sitzung.kws/d' ganz.spur | grep -oE '^[0-9]+ +[a-z0-9_]+\(' | tr -d ' (0-9' | sort -u); do
    case $ruf in brk | m*map | mprotect | rt_* | clone* | exit*) continue ;; esac
    name=$(grep -oE "^[0-9]+ +$ruf[0-9]*\(" ganz.spur | head -n 1 | sed 's/^[0-9]* *//; s/(//')
    vorher=$(sed '/sitzung.kws/q' ganz.spur | grep -cE " $name\(")
    anzahl=$(grep -cE " $name\(" ganz.spur)
    for mal in $(seq $((vorher + 1)) "$anzahl"); do
        nummer=$((nummer + 1))
        [ -n "${KW_LONG:-}" ] || [ $((nummer % 3)) = 0 ] || continue
        gespielt -e inject="$name:signal=KILL:when=$mal"
        nachgesehen "$name $mal"
    done
done
[ "$laeufe" -gt 25 ] || scheitert "only $laeufe kills were tried"
echo "$laeufe kills, $([ "$fehler" = 0 ] && echo all well || echo see above)"
exit "$fehler"
