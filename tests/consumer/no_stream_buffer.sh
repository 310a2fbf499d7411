#!/usr/bin/env bash
# The library defines no stream buffer class of its own: the table of virtual
# functions of one refers to every member of the standard stream buffer, and
# the dynamic linker looks each of them up whenever a process loads the
# library. Usage: no_stream_buffer.sh LIBRARY [NM]
set -euo pipefail

lib="${1:?library}"
nm_tool="${2:-nm}"

hits="$("$nm_tool" -DC --undefined-only "$lib" | grep -E '^ *U std::basic_streambuf<.*>::' || true)"
if [[ -n "$hits" ]]; then
    echo "FAIL: $lib binds members of the standard stream buffer at load:" >&2
    echo "$hits" >&2
    exit 1
fi
echo "no member of the standard stream buffer bound at load"
