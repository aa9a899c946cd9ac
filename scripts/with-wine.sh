#!/usr/bin/env bash
# scripts/with-wine.sh [--prefix-dir DIR] [--picture FILE.png] [--] COMMAND...
#
# Runs one command with a virtual display of its own and a prepared Wine prefix of its own.
# A command that ends in .exe runs under Wine; any other is run as it is, with the same environment.
# --prefix-dir keeps the prefix in DIR instead of a copy that goes away with the run.
# --picture writes the display as the command shows itself there, once it has come to rest, and then
# ends the command.

set -u
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
for part in wine packages; do
    source "$root/scripts/$part.sh"
done

prefix=
picture=
while [[ ${1-} == --* ]]; do
    case $1 in
        --prefix-dir) prefix=$(realpath -m -- "${2:?--prefix-dir needs a folder}") ;;
        --picture) picture=$(realpath -m -- "${2:?--picture needs a file}") ;;
        *) break ;;
    esac
    shift 2
done
[[ ${1-} == -- ]] && shift
[[ $# -gt 0 ]] ||
    fail "usage: scripts/with-wine.sh [--prefix-dir DIR] [--picture FILE.png] [--] COMMAND..."
if [[ -n $picture ]]; then
    needed_packages=(imagemagick)
    ensure_packages
fi

see_display() { import -silent -window root "$1"; }
look() { see_display ppm:- | sha256sum; }

# The display is at rest when two looks, a second apart, are alike and show more than there was; a
# program that never rests is taken as it is after half a minute.
take_picture() {
    local before last= now=
    before=$(look)
    "$@" <&0 &
    program_pid=$!
    for _ in {1..30}; do
        sleep 1
        kill -0 "$program_pid" 2> /dev/null || fail "$1 has ended and left nothing to be seen."
        now=$(look)
        [[ $now != "$before" && $now == "$last" ]] && break
        last=$now
    done
    [[ $now != "$before" ]] || fail "$1 shows nothing."
    see_display "$picture" || fail "The picture could not be written."
    printf '%s\n' "$picture"
}

start_wine ${prefix:+"$prefix"}

# Programs built by hand find the compiler's run-time libraries too.
compiler_folder=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")
export WINEPATH="Z:${compiler_folder//\//\\};Z:\\usr\\x86_64-w64-mingw32\\lib"

[[ $1 == *.exe ]] && set -- wine "$@"
if [[ -n $picture ]]; then
    take_picture "$@"
else
    attend "$@"
fi
