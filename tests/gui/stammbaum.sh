#!/bin/bash
# What the command line makes of a family tree: a project that the program reads, exit codes, and that nothing is
# written otherwise.
set -u
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 1
export XDG_CONFIG_HOME=$folder XDG_STATE_HOME=$folder
unset DISPLAY WAYLAND_DISPLAY
cp "$KW_SRC"/tests/scenarios/stammbaum/*.ged .
failed=0
fault() { echo "FAILED: $*"; failed=1; }
# "call CODE WORD...": runs it; what it tells stands in the file told
call() {
    local expected=$1
    shift
    "$KW_KINWRIGHT" "$@" >printed 2>told
    local code=$?
    [ "$code" = "$expected" ] || fault "$* ends with $code: $(cat told)"
    [ -s printed ] && fault "$* prints on the standard output"
}

call 0 --familytree berger.ged --language en anna.kwp
grep -q '^13 persons, 4 generations' told || fault "no report: $(cat told)"
[ "$("$KW_KINWRIGHT" --describe --language en anna.kwp | grep -c Berger)" -gt 3 ] || fault "no project"
"$KW_KINWRIGHT" --describe anna.kwp | grep -q 'Łucja Иванова' || fault "letters of other scripts are lost"
call 0 --familytree berger.ged --person I11 --up 1 --down 0 --language de -- kim.kwp
grep -q '^3 Personen' told || fault "the report isn't in German: $(cat told)"
call 0 kim2.kwp --down 0 --person I11 --language de --up 1 --familytree berger.ged
cmp -s kim.kwp kim2.kwp || fault "the order of the words counts"
call 0 --familytree berger.ged --all all.kwp
rm -f out.kwp
call 2 --familytree berger.ged --person berger out.kwp
[ "$(grep -c '(I' told)" = 9 ] || fault "they aren't listed: $(cat told)"
call 2 --familytree berger.ged --person niemand out.kwp
call 1 --familytree breit.ged out.kwp
call 0 --familytree breit.ged --small small.kwp
call 1 --familytree missing.ged out.kwp
call 1 --familytree anna.kwp out.kwp
{ echo "0 HEAD"; for i in $(seq 1000); do printf '0 @I%s@ INDI\n' "$i"; done; } >crowd.ged
call 1 --familytree crowd.ged --all out.kwp
for wrong in "--familytree" "--familytree berger.ged" "--familytree berger.ged out.pdf" "--familytree berger.ged --up x out.kwp" \
    "--familytree berger.ged --down -1 out.kwp" "--familytree berger.ged --up 1 --up 2 out.kwp" "--familytree berger.ged out.kwp out.kwp" \
    "--familytree berger.ged --export a.pdf out.kwp" "--up 2 anna.kwp"; do
    # shellcheck disable=SC2086 # its words
    call 2 $wrong
done
[ -e out.kwp ] && fault "something was written that shouldn't be"
cp berger.ged same.kwp
call 2 --familytree same.kwp same.kwp
mkdir full && chmod 555 full
[ -w full ] || call 1 --familytree berger.ged full/out.kwp
call 1 --familytree berger.ged nowhere/out.kwp
exit $failed
