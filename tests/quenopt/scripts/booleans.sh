. scripts/show.sh
eval "$(quenopt --table tables/booleans.table -- "$@")" || exit
show opt_verbose opt_verbose_count opt_color opt_color_count
