#!/usr/bin/env bash
# quenopt's work grows linearly with the number of arguments and with the
# number of options in its table. Each is measured at two sizes in the same
# run, the two sizes in turns (the best of five runs each, so that a slow
# spell of a shared machine falls on both) and the ratio of the times is
# checked: ten times the input must not cost much more than ten times the time.
# Usage: scaling.sh QUENOPT
set -u
quenopt=${1:?quenopt}
small=10000
large=100000
# Linear work measures 8 to 10 times here (7 under the sanitizers): at the
# larger size the options (quenopt's and the library's) no longer fit in the
# caches, and every hash lookup waits for memory. Work that compares every
# item with every other measures 40 (arguments) to 100 (table) times. The
# bound leaves room for a machine busy with other work, where one run in a
# few measures up to 15 times.
limit=30

work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT
printf '%s\n' 'mode | string | g |  | How.' 'flag | none | g |  | A flag.' \
    'file | string | g | positional | Files.' 'help | none | g |  | Help.' >"$work/fixed.table"
for size in $small $large; do
    for ((i = 0; i < size; i++)); do
        printf 'o%d | string | g |  | Option %d.\n' "$i" "$i"
    done >"$work/table$size"
done

# Runs quenopt once with the given arguments and prints the wall-clock time
# in microseconds.
timed_run() {
    local start end
    start=$EPOCHREALTIME
    "$quenopt" "$@" >"$work/out" || { echo "quenopt failed: exit $?" >&2; return 1; }
    end=$EPOCHREALTIME
    echo $((10#${end/./} - 10#${start/./}))
}

# best_in_turns SMALL_ARGS_VAR LARGE_ARGS_VAR: five runs of each, small and
# large in turns; prints the best time of each, small first.
best_in_turns() {
    local -n small_args=$1 large_args=$2
    local best_small='' best_large='' elapsed
    for _ in 1 2 3 4 5; do
        elapsed=$(timed_run "${small_args[@]}") || return 1
        if [[ -z $best_small ]] || ((elapsed < best_small)); then best_small=$elapsed; fi
        elapsed=$(timed_run "${large_args[@]}") || return 1
        if [[ -z $best_large ]] || ((elapsed < best_large)); then best_large=$elapsed; fi
    done
    echo "$best_small $best_large"
}

# Arguments that take every path: options with values, repeated flags and
# positional arguments, one third each.
arguments() {
    local i
    arguments=()
    for ((i = 0; i < $1; i++)); do
        case $((i % 3)) in
        0) arguments+=("--mode=v$i") ;;
        1) arguments+=(--flag) ;;
        *) arguments+=("a$i") ;;
        esac
    done
}

failed=0
# check WHAT SMALL_TIME LARGE_TIME
check() {
    local ratio=$(($3 * 10 / $2))
    echo "$1: $small take ${2} us, $large take ${3} us: $((ratio / 10)).$((ratio % 10)) times as long (at most $limit)"
    if ((ratio > limit * 10)); then
        echo "not ok - $1 do not scale linearly"
        failed=1
    fi
}

arguments $small
small_run=(--table "$work/fixed.table" -- "${arguments[@]}")
arguments $large
large_run=(--table "$work/fixed.table" -- "${arguments[@]}")
read -r small_time large_time < <(best_in_turns small_run large_run) || exit 1
[[ -n ${large_time:-} ]] || exit 1
check arguments "$small_time" "$large_time"

# shellcheck disable=SC2034 # read by best_in_turns through its namerefs
small_run=(--table "$work/table$small" -- --o5=x)
# shellcheck disable=SC2034
large_run=(--table "$work/table$large" -- --o5=x)
read -r small_time large_time < <(best_in_turns small_run large_run) || exit 1
[[ -n ${large_time:-} ]] || exit 1
check "table options" "$small_time" "$large_time"
exit $failed
