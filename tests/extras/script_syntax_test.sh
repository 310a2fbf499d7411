#!/usr/bin/env bash
# Checks the completion scripts of one shell without running them: the
# template file as it is kept in the tree, and the scripts the library
# generates for the sample host's tables (names that would run commands
# among them) and for the tables of tests/extras/expected. Bash goes through
# shellcheck, zsh and fish through their own parsers (shellcheck reads
# neither). Exits 77 when the checker is not installed.
# Usage: script_syntax_test.sh SHELL HOST TEMPLATE EXPECTED_DIR
set -u
shell="${1:?shell}"
host="${2:?host}"
template="${3:?template}"
expected="${4:?expected dir}"

# Two findings are what the scripts mean to do, so they are not reported:
# SC2016  names and values are single-quoted precisely so that nothing in
#         them expands;
# SC2034  the values_N arrays are read through an indirect reference.
# The template alone also reads variables that only its @DATA@ line sets:
# SC2154.
generated_exclusions=SC2016,SC2034
template_exclusions=SC2016,SC2034,SC2154

case "$shell" in
bash) checker=shellcheck ;;
*) checker="$shell" ;;
esac
if ! command -v "$checker" >/dev/null 2>&1; then
    echo "SKIP: $checker is not installed; install it (tools/packages.txt lists it) to run this test"
    exit 77
fi

scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT

# check FILE EXCLUSIONS: prints the checker's findings, fails on any.
check() {
    case "$shell" in
    bash) shellcheck --shell=bash --norc --exclude="$2" "$1" ;;
    zsh) zsh -f -n "$1" ;;
    fish) fish --no-config --no-execute "$1" ;;
    esac
}

failures=0
check "$template" "$template_exclusions" || failures=$((failures + 1))
for table in sample without-positional hostile; do
    script="$scratch/$table.$shell"
    if ! "$host" "$shell" "$table" >"$script" || [[ ! -s $script ]]; then
        echo "FAIL: the host printed no $shell script for the $table table"
        failures=$((failures + 1))
        continue
    fi
    check "$script" "$generated_exclusions" || failures=$((failures + 1))
done
for script in "$expected"/*."$shell"; do
    check "$script" "$generated_exclusions" || failures=$((failures + 1))
done
if ((failures > 0)); then
    echo "FAIL: $failures $shell script(s) with findings"
    exit 1
fi
echo "PASS: $shell scripts checked by $checker"
