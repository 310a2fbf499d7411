. scripts/show.sh
eval "$(quenopt --table tables/booleans.table -- "$@")" || exit
show opt_verbose
