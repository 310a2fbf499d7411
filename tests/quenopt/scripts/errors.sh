. scripts/show.sh
eval "$(quenopt --table tables/kinds.table -- "$@")" || exit
# Reached only when the arguments were accepted.
echo "the script goes on"
show opt_count
