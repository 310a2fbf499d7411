# Helpers for the cases: each prints a transcript of one command that the
# runner compares with the expected file.

# Prints the arguments, one bracketed word each, after the command's name;
# control characters other than the newline show as '?'.
quenopt_print_command() {
    {
        printf '$'
        for quenopt_word in "$@"; do
            printf ' [%s]' "$quenopt_word"
        done
        printf '\n'
    } | tr '\001-\011\013-\037\177' '?'
}

# Prints what a command wrote to its two outputs and its exit status.
quenopt_print_outputs() {
    cat "$QUENOPT_WORK/out"
    sed 's/^/stderr: /' "$QUENOPT_WORK/err"
    echo "status: $1"
    echo
}

# run SCRIPT [ARGUMENT...]: runs scripts/SCRIPT under the shell being tested.
run() {
    quenopt_print_command "$@"
    quenopt_script=$1
    shift
    "$QUENOPT_SHELL" "scripts/$quenopt_script" "$@" >"$QUENOPT_WORK/out" 2>"$QUENOPT_WORK/err"
    quenopt_print_outputs $?
}

# runq [ARGUMENT...]: runs quenopt itself.
runq() {
    quenopt_print_command quenopt "$@"
    quenopt "$@" >"$QUENOPT_WORK/out" 2>"$QUENOPT_WORK/err"
    quenopt_print_outputs $?
}

# table TEXT [ARGUMENT...]: runs quenopt with TEXT as its table on standard input.
table() {
    printf 'table:\n%s\n' "$1"
    quenopt_text=$1
    shift
    quenopt_print_command quenopt --table - "$@"
    printf '%s\n' "$quenopt_text" | quenopt --table - "$@" >"$QUENOPT_WORK/out" 2>"$QUENOPT_WORK/err"
    quenopt_print_outputs $?
}
