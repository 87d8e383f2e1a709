#!/bin/bash
# A thumbnail as a file manager has it made: no display, a home that can't be written, nobody called, nothing written but
# the one file; and none of a file that isn't a whole project, in one line.
# Exits 77 when strace cannot trace on this machine.
set -u
export ASAN_OPTIONS=detect_leaks=0 # the leak check cannot run while the program is traced
strace -f -o /dev/null true 2>/dev/null || exit 77
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 1
failed=0
fault() { echo "FAILED: $*"; failed=1; }
calls=open,openat,creat,mkdir,mkdirat,rename,renameat,renameat2,unlink,connect,prlimit64,setrlimit
# "thumbnail IN": into out/picture, a file that is there already, as desktops name one; its home is a file.
touch home && mkdir out
thumbnail() {
    echo old >out/picture
    env -i PATH="$PATH" HOME="$folder/home" ASAN_OPTIONS=$ASAN_OPTIONS \
        strace -f -q -o trace -e trace=$calls "$KW_KINWRIGHT" --thumbnail 256 "$1" "$folder/out/picture" >told 2>&1
}

for sample in "$KW_SRC"/samples/*.kwp; do
    thumbnail "$sample" || fault "$sample: $(cat told)"
    [ ! -s told ] || fault "$sample: it says $(cat told)"
    [ "$(head -c 8 out/picture | od -An -tx1 | tr -d ' ')" = 89504e470d0a1a0a ] || fault "$sample: no PNG"
    [ "$(ls -A out)" = picture ] || fault "$sample: it left $(ls -A out)"
    grep -E 'O_WRONLY|O_RDWR|O_CREAT|mkdir|rename|unlink' trace | grep -vE "\"$folder/out/|\"/dev/|\"/proc/self/|\"/var/cache/fontconfig/|= -1 " &&
        fault "$sample: written elsewhere"
    [ "${KW_BUILD:-}${KW_SANITIZE:-OFF}" != ReleaseOFF ] || grep -q 'RLIMIT_CORE, {rlim_cur=1,\|RLIMIT_CORE, {rlim_cur=0,' trace ||
        fault "$sample: a crash would leave a dump of it"
    grep 'connect(' trace | grep -v /nscd/socket && fault "$sample: somebody was called"
done

printf '[DEFAULT]\r\norientation=2\r\n[OBJECTS]\r\n0=001_1_5_5\r\n' >short.kwp
head -c 900 "$KW_SRC/samples/familie.kwp" >torn.kwp
echo hello >foreign.kwp
: >empty.kwp
for file in short.kwp torn.kwp foreign.kwp empty.kwp missing.kwp; do
    thumbnail "$file"
    [ $? = 1 ] || fault "$file: no refusal"
    [ "$(wc -l <told)" = 1 ] && grep -q "^kinwright: $file: " told || fault "$file: told $(cat told)"
    [ "$(cat out/picture)" = old ] && [ "$(ls -A out)" = picture ] || fault "$file: something was written"
done
exit $failed
