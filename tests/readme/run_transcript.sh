#!/usr/bin/env bash
# Replays a README transcript against the program built from its example.
#   run_transcript.sh PROGRAM TRANSCRIPT
# A transcript line `$ ./NAME ARGS...` runs PROGRAM with ARGS (quoted as in
# a shell; a trailing `# exit code N` gives the expected exit code, else 0).
# `$ VARIABLE=value ./NAME ARGS...` runs it with that environment variable.
# The lines up to the next `$ ` line are its expected output: standard output
# followed by standard error, compared exactly.
set -uo pipefail

program=$1
transcript=$2
name=$(basename "$program")
failures=0
runs=0

check() {
    local command=$1 expected=$2 code=0 actual status
    if [[ "$command" =~ ^(.*[^[:space:]])[[:space:]]+#[[:space:]]*exit\ code\ ([0-9]+)$ ]]; then
        command=${BASH_REMATCH[1]}
        code=${BASH_REMATCH[2]}
    fi
    local -a argv=() environment=()
    eval "argv=($command)"
    while [[ ${#argv[@]} -gt 0 && "${argv[0]}" =~ ^[A-Za-z_][A-Za-z0-9_]*= ]]; do
        environment+=("${argv[0]}")
        argv=("${argv[@]:1}")
    done
    if [[ ${#argv[@]} -eq 0 || "${argv[0]}" != "./$name" ]]; then
        echo "transcript runs '$command', not ./$name" >&2
        failures=$((failures + 1))
        return
    fi
    argv=("${argv[@]:1}")
    local out err
    out=$(mktemp) err=$(mktemp)
    env "${environment[@]}" "$program" "${argv[@]}" >"$out" 2>"$err"
    status=$?
    actual=$(cat "$out" "$err"; echo x)
    actual=${actual%x}
    rm -f "$out" "$err"
    runs=$((runs + 1))
    if [[ "$status" != "$code" ]]; then
        echo "\$ $command: exit code $status, expected $code" >&2
        failures=$((failures + 1))
    fi
    if [[ "$actual" != "$expected" ]]; then
        echo "\$ $command: output differs" >&2
        diff -u <(printf '%s' "$expected") <(printf '%s' "$actual") >&2
        failures=$((failures + 1))
    fi
}

command=""
expected=""
while IFS= read -r line || [[ -n "$line" ]]; do
    if [[ "$line" == '$ '* ]]; then
        if [[ -n "$command" ]]; then
            check "$command" "$expected"
        fi
        command=${line#'$ '}
        expected=""
    elif [[ -n "$command" ]]; then
        expected+="$line"$'\n'
    else
        echo "transcript starts with '$line', not with a \$ line" >&2
        exit 1
    fi
done <"$transcript"
if [[ -n "$command" ]]; then
    check "$command" "$expected"
fi

if [[ $runs -eq 0 ]]; then
    echo "no runs in $transcript" >&2
    exit 1
fi
echo "$runs runs, $failures failures"
[[ $failures -eq 0 ]]
