#!/usr/bin/env bash
# Builds and runs the host of tests/consumer/host the ways an application
# consumes the library. Usage: consumer_test.sh MODE, where MODE is
#   install           install the build tree into $WORK/prefix and check its layout
#   find-package      host built with CMake, find_package(quen_3_1 CONFIG) on the prefix
#   pkg-config        host compiled by hand with the flags pkg-config gives for the prefix
#   add-subdirectory  host built with CMake, add_subdirectory on the source tree
# The environment, set by tests/consumer/CMakeLists.txt: QUEN_SOURCE, QUEN_BUILD,
# WORK, LIBDIR, INCLUDEDIR, CMAKE, GENERATOR, CONFIG, CXX, HOST_FLAGS (extra
# compile and link flags of a sanitized build), SANITIZE, WERROR.
set -euo pipefail

mode="${1:?mode}"
prefix="$WORK/prefix"
host_src="$QUEN_SOURCE/tests/consumer/host"
expected_output="count=42 log-file=run.log"

fail() {
    echo "FAIL: $*" >&2
    exit 1
}

# Runs the host and compares its whole output.
run_host() {
    local exe="$1" out
    out="$("$exe")" || fail "host exited with $? and printed: $out"
    [[ "$out" == "$expected_output" ]] || fail "host printed '$out', expected '$expected_output'"
    echo "host printed: $out"
}

# The host must load the library from where this test put it, not from elsewhere.
check_loaded_from() {
    local exe="$1" dir="$2" line
    line="$(ldd "$exe" | grep 'libquen_3_1\.so' || true)"
    [[ "$line" == *"=> $dir/libquen_3_1.so.3 "* ]] || fail "host does not load the library from $dir: '$line'"
}

cmake_host() {
    local build="$1"
    shift
    rm -rf "$build"
    "$CMAKE" -S "$host_src" -B "$build" -G "$GENERATOR" -DCMAKE_BUILD_TYPE="$CONFIG" \
        -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_CXX_FLAGS="$HOST_FLAGS" -DCMAKE_EXE_LINKER_FLAGS="$HOST_FLAGS" \
        -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF -DCMAKE_FIND_USE_SYSTEM_PACKAGE_REGISTRY=OFF "$@"
    "$CMAKE" --build "$build" --config "$CONFIG" -j2
}

check_link() {
    local link="$1" target="$2"
    [[ -L "$link" ]] || fail "$link is not a symbolic link"
    [[ "$(readlink "$link")" == "$target" ]] || fail "$link points to '$(readlink "$link")', expected '$target'"
}

check_file() {
    [[ -f "$1" && ! -L "$1" ]] || fail "missing file $1"
}

case "$mode" in
install)
    rm -rf "$prefix"
    "$CMAKE" --install "$QUEN_BUILD" --config "$CONFIG" --prefix "$prefix"
    lib="$prefix/$LIBDIR"
    check_file "$prefix/$INCLUDEDIR/quen_3_1/quen.h"
    cmp "$QUEN_SOURCE/include/quen_3_1/quen.h" "$prefix/$INCLUDEDIR/quen_3_1/quen.h" ||
        fail "the installed header differs from the source"
    check_file "$lib/libquen_3_1.so.3.1.0"
    check_link "$lib/libquen_3_1.so.3" libquen_3_1.so.3.1.0
    check_link "$lib/libquen_3_1.so" libquen_3_1.so.3
    soname="$(readelf -d "$lib/libquen_3_1.so.3.1.0" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p')"
    [[ "$soname" == libquen_3_1.so.3 ]] || fail "SONAME is '$soname', expected 'libquen_3_1.so.3'"
    check_file "$lib/cmake/quen_3_1/quen_3_1Config.cmake"
    check_file "$lib/cmake/quen_3_1/quen_3_1ConfigVersion.cmake"
    check_file "$lib/cmake/quen_3_1/quen_3_1Targets.cmake"
    check_file "$lib/pkgconfig/quen_3_1.pc"
    grep -qx "prefix=$prefix" "$lib/pkgconfig/quen_3_1.pc" ||
        fail "quen_3_1.pc does not name the install prefix $prefix: $(head -1 "$lib/pkgconfig/quen_3_1.pc")"
    echo "install layout under $prefix is complete"
    ;;
find-package)
    build="$WORK/find-package-host"
    cmake_host "$build" -DCMAKE_PREFIX_PATH="$prefix"
    found="$(sed -n 's/^quen_3_1_DIR:[A-Z]*=//p' "$build/CMakeCache.txt")"
    [[ "$found" == "$prefix/$LIBDIR/cmake/quen_3_1" ]] || fail "find_package used '$found', not the test prefix"
    check_loaded_from "$build/host" "$prefix/$LIBDIR"
    run_host "$build/host"
    ;;
pkg-config)
    export PKG_CONFIG_PATH="$prefix/$LIBDIR/pkgconfig"
    version="$(pkg-config --modversion quen_3_1)"
    [[ "$version" == 3.1.0 ]] || fail "pkg-config reports version '$version', expected 3.1.0"
    libdir="$(pkg-config --variable=libdir quen_3_1)"
    [[ "$libdir" == "$prefix/$LIBDIR" ]] || fail "pkg-config libdir is '$libdir', expected '$prefix/$LIBDIR'"
    build="$WORK/pkg-config-host"
    rm -rf "$build"
    mkdir -p "$build"
    # shellcheck disable=SC2046,SC2086 # flags are word lists
    "$CXX" -std=c++17 $HOST_FLAGS -o "$build/host" "$host_src/main.cpp" \
        $(pkg-config --cflags --libs quen_3_1) -Wl,-rpath,"$libdir"
    check_loaded_from "$build/host" "$prefix/$LIBDIR"
    run_host "$build/host"
    ;;
add-subdirectory)
    build="$WORK/add-subdirectory-host"
    cmake_host "$build" -DQUEN_SOURCE_DIR="$QUEN_SOURCE" -DQUEN_WARNINGS_AS_ERRORS="$WERROR" -DQUEN_SANITIZE="$SANITIZE"
    check_loaded_from "$build/host" "$build/quen_3_1"
    run_host "$build/host"
    ;;
*)
    fail "unknown mode '$mode'"
    ;;
esac
