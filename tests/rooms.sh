#!/bin/sh
# Holds the sources to the plan of the house: no Qt outside src/qt, no include that points up a floor, from room to
# room as within a room, no file that outgrows its reader, no type that two headers give one name (a program has one of
# them, whichever was meant), no test that the build has no pattern for.
# Prints each offender; then proves on a small tree with one offender of each kind that
# it would have found it.
set -eu

# What each room may include besides itself, platform/ and libraries.
below() {
    case $1 in
    platform | document | layout) ;;
    rendering) echo document ;;
    editing) echo document rendering ;;
    arrangement) echo layout document rendering editing familytree ;;
    familytree) echo document ;;
    anonymity) echo document layout rendering ;;
    dialogs) echo document rendering editing familytree arrangement anonymity ;;
    output) echo document rendering editing familytree anonymity ;;
    description | commands | keyboard) echo document rendering editing ;;
    app) echo document rendering editing arrangement familytree anonymity dialogs description output commands keyboard ;;
    qt) echo document rendering editing familytree anonymity dialogs description output commands keyboard app ;;
    replay) echo layout document rendering editing familytree dialogs description output commands keyboard app ;;
    *) return 1 ;;
    esac
}

# The floors within a room, from the ground up. A part is a file without its ending, several of one thing ("A+B"), or a
# folder ("name/"): it sees itself and what stands below, and parts on one floor don't see each other. What isn't named
# here stands on top.
floors_within() {
    case $1 in
    document) printf '%s\n' 'Felder Texte Zahlen Satzliste' saetze/ Nummernvergabe Dokument Nachschlagen Verweise ;;
    editing)
        printf '%s\n' 'Ablage Absagen Auflagen Fensterdienste Geometrie' 'Gruppenart Kreisumriss Leinwandlage' Werkbank 'Gesten Marker' Abwahl
        printf '%s\n' Linien+Linienzug Kinder+Zwillinge 'Personen+Symbolgroesse Pfeile Kreislinien Texte Legende Bildausschnitt'
        printf '%s\n' 'Gruppe Elemente' Zwischenablage Werkzeuge Leinwand
        ;;
    qt) printf '%s\n' grund/ malen/ 'drucken/ formulare/ zugang/' fenster/ start/ ;;
    esac
}

includes_of_rooms() {
    for folder in src/*; do
        room=${folder#src/}
        if ! allowed=$(below "$room"); then
            echo "src/$room: no room of this house"
            continue
        fi
        [ "$room" = platform ] || allowed="$allowed platform"
        pattern=$(echo "$room $allowed" | tr -s ' ' '|')
        grep -rnE '^ *# *include *"' "src/$room" | grep -vE "include *\"($pattern)/([^/.]+/)?[^/]+\"" | sed 's/$/   (points up, aside or out)/' || true
        includes_within "$room"
        [ "$room" = qt ] || grep -rnE '^ *# *include *[<"](Q|q[a-z]*\.h|[a-z]+/q)' "src/$room" | sed 's/$/   (Qt)/' || true
    done
}

# "includes_within ROOM": those that its floors forbid, and folders that have none. The program reads three sections with
# a blank line between: floors, source files, includes.
includes_within() {
    { floors_within "$1"; echo; find "src/$1" -name '*.h' -o -name '*.cpp'; echo; grep -rnE "^ *# *include *\"$1/" "src/$1"; } |
        awk -v room="$1" '
            function part(path) {
                sub("^(src/)?" room "/", "", path)
                if (!sub("/.*", "/", path)) sub("[.].*", "", path)
                return path in thing ? thing[path] : path
            }
            function named(whole,   files, i) {
                for (i = split(whole, files, "+"); i; i--) thing[files[i]] = whole
                floors[whole] = NR
            }
            !NF { section++; next }
            !section { for (i = 1; i <= NF; i++) named($i); next }
            { own = part($1) }
            section == 1 { if (own ~ "/" && !(own in floors) && !told[own]++) print "src/" room "/" own ": no folder of this room"; next }
            {
                split($0, quoted, "\"")
                other = part(quoted[2])
                below = other == own || !(own in floors) || (other in floors && floors[other] < floors[own])
                if (!below) print $0 "   (points up or aside within the room)"
            }'
}

long_files() { find src -type f -exec awk 'END { if (NR > 400) print FILENAME ": " NR " lines" }' {} \; ; }

twin_types() {
    find src -name '*.h' -exec sed -nE 's/^(struct|class) ([^ :;{]+)[^;]*$/\2: defined in two headers/p' {} + | sort | uniq -d
}

# The patterns and names are those that tests/CMakeLists.txt itself uses.
forgotten_tests() {
    set -f
    patterns=$(grep -oE '[A-Za-z_*][A-Za-z_*/]*\.(cpp|kws|sh)' tests/CMakeLists.txt)
    for file in $(cd tests && find . -name '*.cpp' -o -name '*.kws' -o -name '*.sh' | sed 's|^\./||'); do
        for pattern in $patterns; do
            [ "$(dirname "$pattern")" = "$(dirname "$file")" ] || continue
            # shellcheck disable=SC2254 # it is a pattern
            case $file in $pattern) continue 2 ;; esac
        done
        echo "tests/$file: no pattern of tests/CMakeLists.txt finds it"
    done
    for file in $(cd tests && find . -name '*.out' | sed 's|^\./||'); do
        [ -f "tests/${file%.out}.kws" ] || echo "tests/$file: no scenario prints it"
    done
    set +f
}

# "offenders FOLDER"
offenders() (
    cd "$1"
    includes_of_rooms
    long_files
    twin_types
    forgotten_tests
)

found=$(offenders "$KW_SRC")
if [ -n "$found" ]; then
    echo "$found"
    exit 1
fi

tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
mkdir -p "$tree/src/document/saetze" "$tree/src/editing" "$tree/src/output" "$tree/src/qt/malen" "$tree/src/qt/drucken" "$tree/tests/output" \
    "$tree/tests/scenarios"
echo 'file(GLOB core_tests output/*Test.cpp scenarios/*.kws)' >"$tree/tests/CMakeLists.txt"
echo '#include "platform/Uhr.h"' >"$tree/src/document/Clean.cpp"
printf '#include "document/saetze/Clean.h"\n#include "document/Felder.h"\n' >"$tree/src/document/Clean.h"
printf '#include "document/Felder.h"\n#include "document/saetze/Other.h"\n' >"$tree/src/document/saetze/Clean.h"
printf '#include <QString>\n#include "document/saetze/Clean.h"\n#include "qt/malen/Clean.h"\n' >"$tree/src/qt/drucken/Clean.cpp"
printf '#include "editing/Linien.h"\n#include "editing/Marker.h"\n' >"$tree/src/editing/Linienzug.cpp"
printf '#include "editing/Linien.h"\n#include "editing/Kinder.h"\n' >"$tree/src/editing/Symbolgroesse.cpp"
printf 'class Einmal;\nstruct Einmal {\n' >>"$tree/src/document/Clean.h"
touch "$tree/tests/output/CleanTest.cpp"
[ -z "$(offenders "$tree")" ] || { echo "finds fault with a clean tree"; offenders "$tree"; exit 1; }

echo '#include "rendering/Seite.h"' >"$tree/src/document/Up.cpp"
echo '#include "../qt/Fenster.h"' >"$tree/src/output/Out.cpp"
echo '#include "document/saetze/Clean.h"' >"$tree/src/document/Felder.h"
echo '#include "editing/Personen.h"' >"$tree/src/editing/Zwillinge.cpp"
echo '#include "editing/Symbolgroesse.h"' >"$tree/src/editing/Pfeile.cpp"
echo '#include "qt/formulare/Clean.h"' >"$tree/src/qt/drucken/Beside.h"
echo '# include <QString>' >"$tree/src/document/Qt1.cpp"
echo '#include <QtGui/QImage>' >"$tree/src/output/Qt3.cpp"
echo '#include "replay/Einblick.h"' >"$tree/src/qt/Inside.cpp"
echo 'struct Zwilling {' >"$tree/src/document/Zwilling.h"
echo 'class Zwilling final : public Einmal {' >"$tree/src/output/Zwilling.h"
mkdir "$tree/src/cellar" "$tree/src/qt/attic"
touch "$tree/src/qt/attic/Old.h"
yes '//' | head -n 401 >"$tree/src/qt/malen/Long.cpp"
touch "$tree/tests/output/Forgotten.cpp" "$tree/tests/scenarios/orphan.out" "$tree/tests/deep.sh"
found=$(offenders "$tree")
for offender in Up.cpp Out.cpp Felder.h Zwillinge.cpp Pfeile.cpp Beside.h attic Qt1.cpp Qt3.cpp Inside.cpp cellar \
    Long.cpp Zwilling Forgotten.cpp orphan.out deep.sh; do
    echo "$found" | grep -q "$offender" || { echo "would not have found $offender"; exit 1; }
done
[ "$(echo "$found" | wc -l)" = 16 ] || { echo "finds too much:"; echo "$found"; exit 1; }
