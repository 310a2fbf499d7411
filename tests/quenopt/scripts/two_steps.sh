code=$(quenopt --table "$1" -- "$2") || exit
eval "$code"
echo "the script goes on"
