#!/bin/sh
# The example of the manual page and the README, with its table in a here-document.
eval "$(quenopt --table - -- "$@" <<'EOF_TABLE'
help,h     | none   | general:Options | | Show this help
verbose,v  | bool   | general | default=0 | Say what is done
level,l    | int    | general | default=1 allow=1,2,3 | How hard to try
mode       | string | general | allow=fast,safe default=safe | How to work
tag,t      | string | general | split=none | A tag; may be repeated
files      | string | | positional split=none |
EOF_TABLE
)" || exit

[ "$opt_verbose" = 1 ] && echo "level $opt_level, mode $opt_mode" >&2
for file; do
    echo "working on $file"
done
