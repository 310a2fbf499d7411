#!/usr/bin/env bash
# quenopt's work grows linearly with the number of arguments and with the
# number of options in its table. Each is measured at two sizes in the same
# run (the best of three runs each) and the ratio of the times is checked:
# ten times the input must not cost much more than ten times the time.
# Usage: scaling.sh QUENOPT
set -u
quenopt=${1:?quenopt}
small=10000
large=100000
# Linear work measures 7 to 12 times here, more on a loaded machine: at the
# larger size the options (quenopt's and the library's) no longer fit in the
# caches, and every hash lookup waits for memory. Work that compares every
# item with every other measures 40 (arguments) to 100 (table) times.
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

# Prints the best of three wall-clock times, in microseconds, of quenopt
# with the given arguments; its output must be as long as on the first run.
best_of_three() {
    local best='' start end elapsed
    for _ in 1 2 3; do
        start=$EPOCHREALTIME
        "$quenopt" "$@" >"$work/out" || { echo "quenopt failed: exit $?" >&2; return 1; }
        end=$EPOCHREALTIME
        elapsed=$((10#${end/./} - 10#${start/./}))
        if [[ -z $best ]] || ((elapsed < best)); then
            best=$elapsed
        fi
    done
    echo "$best"
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
small_arguments=$(best_of_three --table "$work/fixed.table" -- "${arguments[@]}") || exit 1
arguments $large
large_arguments=$(best_of_three --table "$work/fixed.table" -- "${arguments[@]}") || exit 1
check arguments "$small_arguments" "$large_arguments"

small_table=$(best_of_three --table "$work/table$small" -- --o5=x) || exit 1
large_table=$(best_of_three --table "$work/table$large" -- --o5=x) || exit 1
check "table options" "$small_table" "$large_table"
exit $failed
