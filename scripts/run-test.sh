#!/usr/bin/env bash
# scripts/run-test.sh PROGRAM.exe [ARGUMENT...]
#
# Runs a test program under Wine in the environment that it finds. Once in thousands of starts Wine's
# loader ends within hundredths of a second, without a word and without success, and nothing of the
# program has run. A program of the tests prints before it does anything else, so one that failed and
# printed nothing is started again, twice at most, and that is said.

set -u
readonly MOST_STARTS=3
printed=$(mktemp) || exit 1
trap 'rm -f "$printed"' EXIT

for ((start = 1; start <= MOST_STARTS; ++start)); do
    wine "$@" | tee "$printed"
    status=${PIPESTATUS[0]}
    [[ $status == 0 || -s $printed ]] && break
    printf '%s: start %d ended with the status %d and printed nothing.\n' "$1" "$start" "$status" >&2
done
exit "$status"
