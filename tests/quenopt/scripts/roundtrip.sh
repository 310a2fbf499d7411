. scripts/show.sh
eval "$(quenopt --table tables/roundtrip.table -- "$@")" || exit
show opt_value opt_value_count opt_files_count
args "$@"
