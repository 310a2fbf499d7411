#!/bin/sh
# Runs one quenopt test case under a given shell and compares its transcript
# with the expected one, byte for byte.
#   run_case.sh SHELL QUENOPT CASE
# Exits 77 (skipped) when SHELL is not installed.
shell=$1
quenopt=$2
case_name=$3

if ! command -v "$shell" >/dev/null 2>&1; then
    echo "skipped: '$shell' is not installed, so scripts cannot be run under it"
    exit 77
fi

here=$(cd "$(dirname "$0")" && pwd) || exit 1
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

# Scripts find quenopt on PATH, as installed scripts would.
PATH=$(cd "$(dirname "$quenopt")" && pwd):$PATH
QUENOPT_SHELL=$(command -v "$shell")
QUENOPT_TESTS=$here
QUENOPT_WORK=$work
LC_ALL=C
export PATH QUENOPT_SHELL QUENOPT_TESTS QUENOPT_WORK LC_ALL

cd "$here" || exit 1
"$QUENOPT_SHELL" "cases/$case_name.sh" >"$work/transcript" 2>&1
status=$?
if [ "$status" -ne 0 ]; then
    echo "the case itself exited with $status"
    cat "$work/transcript"
    exit 1
fi
if ! diff -u "cases/$case_name.expected" "$work/transcript"; then
    echo "the transcript of '$case_name' under $shell differs from cases/$case_name.expected"
    exit 1
fi
echo "'$case_name' under $shell: transcript as expected"
