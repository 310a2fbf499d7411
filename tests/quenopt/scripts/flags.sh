. scripts/show.sh
# flags.sh TABLE FLAGS ARGUMENT...
table=$1
flags=$2
shift 2
eval "$(quenopt --table "tables/$table" --flags "$flags" -- "$@")" || exit
show opt_verbose opt_files opt_files_count
args "$@"
