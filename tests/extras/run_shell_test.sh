#!/usr/bin/env bash
# Runs one shell's completion test, or skips it (exit 77) when that shell is
# not installed. Usage: run_shell_test.sh SHELL TEST_SCRIPT HOST
set -u
shell="${1:?shell}"
script="${2:?test script}"
host="${3:?host}"
if ! command -v "$shell" >/dev/null 2>&1; then
    echo "SKIP: $shell is not installed; install it (tools/packages.txt lists it) to run this test"
    exit 77
fi
case "$shell" in
zsh) exec zsh -f "$script" "$host" ;;
fish) exec fish --no-config "$script" "$host" ;;
*) exec "$shell" "$script" "$host" ;;
esac
