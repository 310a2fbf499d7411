. scripts/show.sh
eval "$(quenopt --table tables/help.table -- "$@")" || exit
echo "the script goes on"
show opt_help_count opt_verbose
