. scripts/show.sh
opt_value=leaked
eval "$(quenopt --table tables/bash_arrays.table --format bash -- "$@")" || exit
for name in opt_tag opt_value opt_files; do
    if declare -p "$name" >/dev/null 2>&1; then
        eval "count=\${#$name[@]}"
        printf '%s(%s):' "$name" "$count"
        eval "values=(\"\${$name[@]}\")"
        for value in "${values[@]}"; do
            printf ' <%s>' "$value"
        done
        printf '\n'
    else
        printf '%s unset\n' "$name"
    fi
done
show opt_tag_count opt_value_count opt_files_count
args "$@"
