#!/usr/bin/env bash
# scripts/with-wine.sh [--prefix-dir DIR] [--] COMMAND...
#
# Runs one command with a virtual display of its own and a prepared Wine prefix of its own.
# A command that ends in .exe runs under Wine; any other is run as it is, with the same environment.
# --prefix-dir keeps the prefix in DIR instead of a copy that goes away with the run.

set -u
source "$(dirname "${BASH_SOURCE[0]}")/wine.sh"

prefix=
if [[ ${1-} == --prefix-dir ]]; then
    prefix=$(realpath -m -- "${2:?--prefix-dir needs a folder}")
    shift 2
fi
[[ ${1-} == -- ]] && shift
[[ $# -gt 0 ]] || fail "usage: scripts/with-wine.sh [--prefix-dir DIR] [--] COMMAND..."

start_wine ${prefix:+"$prefix"}

# Programs built by hand find the compiler's run-time libraries too.
compiler_folder=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")
export WINEPATH="Z:${compiler_folder//\//\\};Z:\\usr\\x86_64-w64-mingw32\\lib"

[[ $1 == *.exe ]] && set -- wine "$@"
attend "$@"
