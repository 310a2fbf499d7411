# Helpers for the scripts under test: they print what the evaluated output
# of quenopt left behind.

# show NAME...: each variable as NAME=<value>, or NAME unset.
show() {
    for show_name in "$@"; do
        eval "show_set=\${$show_name+set}"
        if [ "$show_set" = set ]; then
            eval "show_value=\$$show_name"
            printf '%s=<%s>\n' "$show_name" "$show_value"
        else
            printf '%s unset\n' "$show_name"
        fi
    done
}

# args "$@": the positional parameters, counted and bracketed.
args() {
    printf 'args(%s):' "$#"
    for args_word in "$@"; do
        printf ' <%s>' "$args_word"
    done
    printf '\n'
}
