#!/bin/bash
# What the command line makes of a project for genealogy programs: a file of that version, what is told of the rest, exit
# codes, and that nothing is written otherwise.
set -u
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 1
export XDG_CONFIG_HOME=$folder XDG_STATE_HOME=$folder
unset DISPLAY WAYLAND_DISPLAY
cp "$KW_SRC"/samples/familie.kwp .
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
facts() { echo "familytree $1" | "$KW_REPLAY"; }

call 0 --export new.ged --language en familie.kwp
grep -q '^2 VERS 7.0' new.ged || fault "another version than 7.0"
grep -qx 'kinwright: left out: 8 relationship lines' told || fault "what is left out isn't told: $(cat told)"
grep -q 'FACT' new.ged && fault "marks of health go along unasked"
call 0 --export OLD.GED --gedcom 5.5.1 --health --relationships --language de -- familie.kwp
grep -q '^2 VERS 5.5.1' OLD.GED || fault "another version than 5.5.1"
grep -q 'Sucht' told && fault "what goes along is told as left out: $(cat told)"
# The line that is left leads to an institution.
grep -qx 'kinwright: weggelassen: 1 Beziehungslinie' told || fault "it isn't told in German: $(cat told)"
[ "$(grep -c 'TYPE Addiction' OLD.GED)" = 2 ] || fault "marks of health don't go along"
facts new.ged >one
facts OLD.GED >two
[ "$(grep -c '^P' one)" = 20 ] || fault "not everybody went along"
diff <(grep '^[PC]' one) <(grep '^[PC]' two) >told || fault "the versions tell different facts: $(cat told)"

call 0 --export nobody.ged --anonymous=years familie.kwp
facts nobody.ged | grep '^P' | cut -f4-6 >told
grep -qE '[a-z]|[0-9]{5}| [A-Z]{3} ' told && fault "names or dates go along: $(cat told)"
grep -q '^B1.*19' told || fault "no letters and years: $(cat told)"
for wrong in "--export out.ged --dpi 96 familie.kwp" "--export out.ged --gedcom 6 familie.kwp" "--export out.pdf --health familie.kwp" \
    "--gedcom 7.0 familie.kwp" "--relationships familie.kwp" "--export out.ged" "--export out.ged --gedcom"; do
    # shellcheck disable=SC2086 # its words
    call 2 $wrong
done
call 1 --export out.ged missing.kwp
printf '[DEFAULT]\norientation=2\n[TEXT]\n0=1_1_Arial_8_0_0_0_0_0_Text\n' >empty.kwp
call 1 --export out.ged empty.kwp
grep -q 'no person' told || fault "why isn't told: $(cat told)"
[ -e out.ged ] && fault "something was written that shouldn't be"
printf '[OBJECTS]\n0=001_1_2_2_1.2_0__0_0_A____\n1=002_1\n' >damaged.kwp
call 1 --export damaged.ged damaged.kwp
[ "$(facts damaged.ged | cut -f4)" = A ] || fault "what could be read isn't exported"
call 1 --export nowhere/out.ged familie.kwp
exit $failed
