eval "$(quenopt --table "$1" -- x)" || exit
echo "the script goes on"
