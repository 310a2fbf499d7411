. scripts/show.sh
eval "$(quenopt --table tables/abbreviations.table -- "$@")" || exit
show opt_log_file opt_log_level opt_dry_run_count opt_verbose opt_version_count opt_output
