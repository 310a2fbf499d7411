. scripts/show.sh
# A value that the environment brings in must not survive the evaluation.
opt_name=leaked
opt_name_count=99
export opt_name opt_name_count
eval "$(quenopt --table tables/defaults.table -- "$@")" || exit
show opt_verbose opt_verbose_count opt_quiet opt_quiet_count opt_level opt_level_count opt_size opt_size_count
show opt_offset opt_offset_count opt_limit opt_limit_count opt_ratio opt_ratio_count opt_mode opt_mode_count
show opt_tags opt_tags_count opt_title opt_title_count opt_name opt_name_count
args "$@"
