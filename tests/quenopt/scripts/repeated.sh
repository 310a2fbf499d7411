. scripts/show.sh
eval "$(quenopt --table tables/repeated.table -- "$@")" || exit
show opt_tag opt_tag_count opt_path opt_path_count opt_word opt_word_count opt_count opt_count_count
