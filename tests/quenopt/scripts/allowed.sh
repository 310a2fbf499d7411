. scripts/show.sh
eval "$(quenopt --table tables/allowed.table -- "$@")" || exit
show opt_mode opt_mode_count opt_level opt_level_count opt_speed opt_speed_count
