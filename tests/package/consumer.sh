#!/usr/bin/env bash
# consumer.sh BUILD CONFIG CMAKE_OPTION...: builds and runs a program with the library of a build, which
# is installed and then moved elsewhere, or, for BUILD -, with the checkout as a folder of the program.
build=$1 config=$2
shift 2
root=$(cd "$(dirname "$0")/../.." && pwd)
hull=$root/tests/data/torture/input/box.dat
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
set -e
if [ "$build" = - ]; then
    from=-DSORVIK_SOURCE=$root
else
    cmake --install "$build" --config "$config" --prefix "$work/first" >/dev/null
    mv "$work/first" "$work/moved"
    from=-DCMAKE_PREFIX_PATH=$work/moved
    "$work/moved/bin/sorvik-run" -meshConvert "$hull" "$work/box.stl" >/dev/null
fi
cmake -S "$root/tests/package/consumer" -B "$work/build" -DCMAKE_BUILD_TYPE="$config" "$from" "$@" >/dev/null
cmake --build "$work/build" --config "$config" --target consumer --parallel "$(nproc)" >/dev/null
[ "$("$work/build/consumer" "$hull" | tail -n 1)" = "13 panels, 14. " ]
