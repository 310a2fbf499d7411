. scripts/show.sh
eval "$(quenopt --table tables/kinds.table -- "$@")" || exit
show opt_flag opt_flag_count opt_count opt_count_count opt_size opt_size_count opt_offset opt_offset_count
show opt_mask opt_mask_count opt_ratio opt_ratio_count opt_name opt_name_count opt_dry_run opt_dry_run_count
args "$@"
