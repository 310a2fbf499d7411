#!/bin/sh
# A table is read in memory that grows with the options it can hold, not with
# its lines: two million blank lines before one option read under a limit
# that a reservation for every line would exceed.
#   blank_lines.sh QUENOPT
# Exits 77 (skipped) when quenopt cannot run under a memory limit at all (a
# sanitizer reserves more than any limit).
quenopt=$1

if ! (ulimit -v 200000 && "$quenopt" --version) >/dev/null 2>&1; then
    echo "skipped: quenopt does not start under a memory limit (a sanitizer build reserves more)"
    exit 77
fi

work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT
awk 'BEGIN { for (i = 0; i < 2000000; i++) print ""; print "a | none | g |  | A flag." }' >"$work/table"
(ulimit -v 200000 && "$quenopt" --table "$work/table" -- -a) >"$work/out" 2>&1
status=$?
expected='unset opt_a
opt_a_count=1
set --'
if [ "$status" -ne 0 ] || [ "$(cat "$work/out")" != "$expected" ]; then
    echo "not ok - quenopt exited with $status and wrote:"
    sed 's/^/    /' "$work/out"
    exit 1
fi
echo "ok - two million blank lines and one option read under a limit of 200000 KB"
