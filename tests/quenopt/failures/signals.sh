#!/bin/sh
# A crash or a signal that ends quenopt leaves "exit 70" on its standard
# output, so that a script that evaluates it stops. quenopt is caught while
# it waits for its table on a pipe, and sent the signal.
#   signals.sh SHELL QUENOPT
shell=$1
quenopt=$2

if ! command -v "$shell" >/dev/null 2>&1; then
    echo "skipped: '$shell' is not installed"
    exit 77
fi
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT
mkfifo "$work/table"

# Waits until process $1 runs quenopt and sleeps (on the table's pipe).
wait_for_reading() {
    tries=0
    while [ "$tries" -lt 500 ]; do
        if [ "$(readlink "/proc/$1/exe")" = "$quenopt_path" ] &&
            [ "$(cut -d ' ' -f 3 "/proc/$1/stat")" = S ]; then
            return 0
        fi
        sleep 0.02
        tries=$((tries + 1))
    done
    return 1
}

quenopt_path=$(readlink -f "$quenopt")
failed=0
for signal in SEGV BUS FPE ILL ABRT TERM HUP; do
    "$quenopt" --table - -- --mode=fast a <"$work/table" >"$work/out" 2>"$work/err" &
    pid=$!
    exec 3>"$work/table"
    if ! wait_for_reading "$pid"; then
        echo "not ok - quenopt did not wait for its table"
        kill "$pid"
        exec 3>&-
        exit 1
    fi
    kill -s "$signal" "$pid"
    wait "$pid"
    status=$?
    exec 3>&-
    out=$(cat "$work/out")
    ran=$("$shell" -c 'eval "$1" || exit; echo "the script goes on"' sh "$out")
    if [ "$out" = "exit 70" ] && [ "$status" -eq 70 ] && [ -z "$ran" ]; then
        echo "ok - SIG$signal: standard output '$out', status $status, the script stops"
    else
        echo "not ok - SIG$signal: standard output '$out', status $status, '$ran'"
        sed 's/^/    stderr: /' "$work/err"
        failed=1
    fi
done
exit $failed
