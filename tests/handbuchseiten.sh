#!/bin/bash
# What tells of the command line tells the same: "--help" of both programs, their manual pages in both languages, and the
# shell's completion.
set -u
pages=$KW_SRC/packaging/man
failed=0
fault() { echo "FAILED: $*"; failed=1; }
# Options of a text, each once. Hyphens of manual pages are escaped.
options() { sed 's/\\-/-/g; s/\\(rs/\\/g' "$@" | grep -oE '(^|[^[:alnum:]-])(--[a-z]+|[/\]dataimport)' | grep -oE -- '--[a-z]+|[/\]dataimport' | sort -u; }
# "offered FUNCTION WORD...": what the completion offers for the last word
offered() {
    (cd "$KW_SRC/samples" && bash -c '. "$0"; f=$1; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); $f; printf "%s\n" "${COMPREPLY[@]}"' \
        "$KW_SRC/packaging/completion/kinwright" "$@") | sort
}

for program in kinwright kinwright-replay; do
    binary=$KW_KINWRIGHT
    [ "$program" = kinwright ] || binary=$KW_REPLAY
    help=$("$binary" --help) || fault "$program --help"
    told=$(echo "$help" | options)
    [ "$(echo "$told" | wc -l)" -ge 2 ] || fault "$program --help tells no options"
    for language in de en; do
        page=$pages/$language/$program.1
        [ "$(options "$page")" = "$told" ] || fault "$page: its options are not those of --help: $(options "$page" | tr '\n' ' ')"
        [ "$(groff -man -Kutf8 -Tutf8 -ww -z "$page" 2>&1)" = "" ] || fault "$page: $(groff -man -Kutf8 -Tutf8 -ww -z "$page" 2>&1)"
    done
    [ "$(offered "_${program//-/_}" "$program" --)" = "$(echo "$told" | grep -e --)" ] ||
        fault "$program: the completion offers other options than --help"
done
[ "$(offered _kinwright kinwright hoch)" = hochformat-a5.kwp ] || fault "the completion offers no projects"

words=$("$KW_REPLAY" --help | sed -n '/its words:/,/^ *--/p' | grep '^  [a-z]' | tr -s ' ' '\n' | sed '/^$/d' | sort)
[ "$(echo "$words" | wc -l)" -gt 30 ] || fault "kinwright-replay --help tells no commands"
for language in de en; do
    page=$pages/$language/kinwright-replay.1
    [ "$(sed -nE '/^.SH (COMMANDS|BEFEHLE)/,/^.SH (EXIT|RÜCK)/s/^\.BI? ([a-z]+).*/\1/p' "$page" | sort)" = "$words" ] ||
        fault "$page: its commands are not those of the program"
done
exit $failed
