. ./lib.sh
# The library's trace goes to standard error, never into the evaluated text.
run trace.sh quenoption=quenlogenable=1 -v
run trace.sh -v quenoption=quenlogenable=1
