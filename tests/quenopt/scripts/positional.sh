. scripts/show.sh
eval "$(quenopt --table tables/positional.table -- "$@")" || exit
show opt_verbose opt_name opt_files opt_files_count
args "$@"
