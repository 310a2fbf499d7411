. scripts/show.sh
eval "$(quenopt --table tables/split_positional.table -- "$@")" || exit
show opt_numbers opt_numbers_count
args "$@"
