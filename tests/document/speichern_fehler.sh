#!/bin/bash
# speichern_fehler.sh [PROGRAM]: saves with every system call failing in turn, killed at it, or onto a disk
# that is full. Afterwards the file must be the old one or the new one, whole, and the answer must agree; with a keeper
# no version may be lost, whoever wrote it when; and the next save leaves no stray file.
# Exits 77 when everything else passed but strace cannot trace on this machine.
set -u
programm=$(realpath "${1:-$KW_SCHREIBEN}")
export ASAN_OPTIONS=detect_leaks=0 # the leak check cannot run while the program is traced
# In memory where there is such a folder: thousands of flushes else.
ordner=$(TMPDIR=$([ -w /dev/shm ] && echo /dev/shm || echo "${TMPDIR:-/tmp}") mktemp -d)
trap 'mountpoint -q "$ordner/platte" && umount "$ordner/platte"; rm -rf "$ordner"' EXIT
cd "$ordner" || exit 1
fehler=0
laeufe=0

scheitert() { echo "FAILED: $*"; fehler=1; }
bytes() { head -c "$2" /dev/zero | tr '\0' "$1"; }
ist() { cmp -s "$1" <(bytes "$2" "$3"); } # FILE LETTER SIZE

# befund TEXT CODE FILE OLDSIZE NEWSIZE: the file held "a"s and should hold "b"s.
befund() {
    laeufe=$((laeufe + 1))
    if ist "$3" b "$5"; then
        [ "$2" != 1 ] || scheitert "$1: said it failed, but the file is new"
    elif ist "$3" a "$4"; then
        [ "$2" != 0 ] || scheitert "$1: said ok, but the file is old"
    else
        scheitert "$1: neither the old nor the new file (exit $2)"
    fi
    if [ "$2" = 1 ] && [ -n "$(find . -maxdepth 1 -name '.kw-*')" ]; then scheitert "$1: left its temporary file"; fi
    rm -f .kw-*
}

# antwortet CODE TEXT PATH SIZE: exit code and message of one plain save of "b"s.
antwortet() {
    local text
    text=$("$programm" "$3" "$4" b)
    local code=$?
    [ "$code" = "$1" ] && [ "$text" = "$2" ] || scheitert "$3: exit $code, '$text' instead of $1, '$2'"
}

ziele() {
    bytes a 100 >geschützt && chmod 444 geschützt
    antwortet 1 "Permission denied" geschützt 50
    ist geschützt a 100 || scheitert "a write-protected file was replaced"
    mkdir -p unten ein_ordner
    antwortet 1 "Is a directory" ein_ordner 50
    antwortet 1 "Is a directory" ein_ordner/ 50
    antwortet 1 "No such file or directory" nirgends/datei 50
    antwortet 1 "No such file or directory" "" 50
    ln -s kreis kreis2 && ln -s kreis2 kreis
    antwortet 1 "Too many levels of symbolic links" kreis 50
    ln -s unten/zweiter erster && ln -s ziel unten/zweiter
    antwortet 0 ok erster 50 # dangling at its second link
    antwortet 0 ok erster 60
    [ -L erster ] && [ -L unten/zweiter ] && ist unten/ziel b 60 || scheitert "links were not followed and kept"
    bytes a 100 >privat && chmod 640 privat
    antwortet 0 ok privat 20000
    ist privat b 20000 && [ "$(stat -c %a privat)" = 640 ] || scheitert "the mode was not kept"
    (umask 027 && antwortet 0 ok neu 0)
    [ "$(stat -c %a-%s neu)" = 640-0 ] || scheitert "a new, empty file is not as the umask says"
    local lang
    lang=$(bytes n 250)
    antwortet 0 ok "$lang" 70 && antwortet 0 ok "$lang" 80
    ist "$lang" b 80 || scheitert "a name of 250 bytes"
    antwortet 1 "File name too long" "$(bytes n 300)" 70
    antwortet 1 "No space left on device" /dev/full 50
    [ -c /dev/full ] || scheitert "a device was replaced"
    [ "$("$programm" /dev/stdout 50 b | cat)" = "$(bytes b 50)ok" ] || scheitert "a pipe was not written straight"
    [ -z "$(find . -name '.kw-*')" ] || scheitert "temporary files are left"
}

voll() { # a disk without room, and a limit on the size of files, for documents below and above 16 KiB
    local groesse
    for groesse in 12000 60000; do
        bytes a 5000 >datei
        (trap '' XFSZ && ulimit -f 8 && "$programm" datei "$groesse" b >/dev/null)
        befund "ulimit, $groesse" $? datei 5000 "$groesse"
        ist datei a 5000 || scheitert "ulimit, $groesse: the limit did not hold"
    done
    mkdir -p platte && mount -t tmpfs -o size=128k kw platte 2>/dev/null || return
    cd platte || return
    for groesse in 12000 60000; do
        rm -f ./* && bytes a 5000 >datei
        head -c 1000000 /dev/zero >füllung 2>/dev/null
        antwortet 1 "No space left on device" datei "$groesse"
        befund "full disk, $groesse" 1 datei 5000 "$groesse"
    done
    cd ..
}

# gestoert NAME CALL INJECTION SIZE: one save with one fault in it; sets `code`.
gestoert() {
    bytes a 300 >datei
    { strace -f -o /dev/null -e trace="$2" -e inject="$2:$3" "$programm" datei "$4" b >antwort; code=$?; } 2>/dev/null
    # A sanitizer that missed its options by such a fault has its own exit code; what was said before it counts.
    [ "$(cat antwort)" != ok ] || code=0
    befund "$1 $2 $3, $4" "$code" datei 300 "$4"
}

stoerungen() {
    local ruf groesse art mal anzahl code
    bytes a 300 >datei
    strace -f -o spur "$programm" datei 40000 b >/dev/null
    # Names differ from machine to machine: those are taken that a save is seen to make.
    for ruf in $(grep -oE ' (open|openat|write|fsync|fdatasync|close|read|fchmod|fchown|rename|renameat|renameat2|faccessat|faccessat2)\(' spur |
        tr -d ' (' | sort -u); do
        anzahl=$(grep -cE " $ruf\(" spur)
        for mal in $(seq 1 "$anzahl"); do
            # What the loader calls before the program begins fails alike with every error: one is enough.
            for art in error=EIO error=ENOSPC error=EACCES signal=KILL; do
                [ "$art" = error=EIO ] || [ "$mal" -gt $((anzahl - 6)) ] || continue
                for groesse in 200 40000; do gestoert fault "$ruf" "$art:when=$mal" "$groesse"; done
            done
        done
    done
    [ "$laeufe" -gt 60 ] || scheitert "only $laeufe faults were tried"
    # Where the disk says last that it has not got the bytes: they are there now, and may be gone tomorrow.
    local schluss
    schluss=$(sed '/ fsync(/q' spur | grep -cE ' close\(')
    for art in "fsync:error=EIO:when=1" "close:error=EIO:when=$((schluss + 1))"; do
        gestoert unsafe "${art%%:*}" "${art#*:}" 40000
        [ "$code" = 1 ] || scheitert "$art was taken for a whole save"
    done
    # What is no failure: a call that a signal broke off, and a file system that cannot sync.
    local gut
    for gut in write:error=EINTR fsync:error=EINTR fsync:error=EINVAL fsync:error=ENOSYS; do
        gestoert harmless "${gut%%:*}" "${gut#*:}:when=1" 40000
        [ "$code" = 0 ] || scheitert "$gut ended the save"
    done
    # A disk that says it wrote and did not: only reading back finds it.
    gestoert lying write retval=40000:when=1 40000
    gestoert lying write retval=7:when=1 40000
    ist datei a 300 || scheitert "a write that never happened went unseen"
}

# gewahrt LETTER SIZE: whether the keeper has that version.
gewahrt() {
    local version
    for version in netz/*; do ist "$version" "$1" "$2" && return; done
    return 1
}

# bewahrt CASE CALL INJECTION: one save over somebody else's version with one fault in it. What it says must be true;
# after the next save no version is lost, and no stray file is left. Sets `code`.
bewahrt() {
    local text="$1 $2 $3"
    rm -rf netz .kw-* datei zweiter c77 && mkdir netz && bytes a 300 >datei
    [ "$1" != dazwischen ] || bytes c 77 >c77
    [ "$1" != vorort ] || ln datei zweiter
    { strace -f -o spur -e inject="$2:$3" "$programm" datei 40000 b netz x1 c77 >antwort; code=$?; } 2>/dev/null
    laeufe=$((laeufe + 1))
    [ "$(cat antwort)" != ok ] || code=0
    [ -s antwort ] || code=137 # it said nothing: killed, or ended by a sanitizer whose own call failed
    if ist datei b 40000; then
        [ "$code" != 1 ] || scheitert "$text: said it failed, but the file is new"
    elif ist datei a 300 || ist datei c 77; then
        [ "$code" != 0 ] || scheitert "$text: said ok, but the file is old"
    elif ! { [ -f netz/vorort ] && gewahrt a 300 && gewahrt b 40000; }; then
        scheitert "$text: torn, and the keeper hasn't both versions (exit $code)"
    fi
    [ "$("$programm" datei 50 d netz x1)" = ok ] && ist datei d 50 || scheitert "$text: the next save failed"
    gewahrt a 300 || scheitert "$text: the old version is lost"
    [ "$1" != dazwischen ] || [ -f c77 ] || gewahrt c 77 || scheitert "$text: the version that came between is lost"
    [ -z "$(find . -name '.kw-*')" ] || scheitert "$text: a stray file outlived the next save"
}

# Every seventh fault, as four kinds take turns; all of them when KW_LONG is set.
bewahren() {
    local fall ruf art mal vorher anzahl code nummer=0
    for fall in fremd dazwischen vorort; do
        bewahrt "$fall" fsync error=EINTR:when=1
        cp spur "$fall.spur"
        for ruf in $(sed '1,/"datei", {/d' "$fall.spur" | grep -oE ' [a-z0-9_]+\(' | tr -d ' (' | sort -u); do
            case $ruf in brk | m*map | mprotect | rt_* | futex | exit*) continue ;; esac
            # What the loader calls was tried above.
            vorher=$(sed '/"datei", {/q' "$fall.spur" | grep -cE " $ruf\(")
            anzahl=$(grep -cE " $ruf\(" "$fall.spur")
            for mal in $(seq $((vorher + 1)) "$anzahl"); do
                for art in error=EIO error=EACCES error=EINTR signal=KILL; do
                    nummer=$((nummer + 1))
                    [ -n "${KW_LONG:-}" ] || [ $((nummer % 7)) = 0 ] || continue
                    bewahrt "$fall" "$ruf" "$art:when=$mal"
                    [ "$art $code" != "error=EINTR 1" ] || scheitert "$fall $ruf $mal: a signal ended the save"
                done
            done
        done
        # File systems that cannot exchange two names.
        bewahrt "$fall" renameat2 error=EINVAL
    done
}

ziele
voll
kann=1
strace -f -o /dev/null -e inject=fsync:error=EIO true 2>/dev/null || kann=0
[ "$kann" = 0 ] || { stoerungen && bewahren; }
echo "$laeufe faults, $([ "$fehler" = 0 ] && echo all well || echo see above)"
[ "$fehler" = 0 ] || exit 1
[ "$kann" = 1 ] || exit 77
