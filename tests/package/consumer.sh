#!/usr/bin/env bash
# consumer.sh BUILD SOURCE CMAKE_OPTION...: installs the build, moves the tree, and builds and runs a
# program that finds the library there.
build=$1 source=$2
shift 2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
set -e
cmake --install "$build" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/moved"
cmake -S "$source/package/consumer" -B "$work/build" -DCMAKE_PREFIX_PATH="$work/moved" "$@" >/dev/null
cmake --build "$work/build"
hull=$source/data/torture/input/box.dat
[ "$("$work/build/consumer" "$hull" | tail -n 1)" = "13 panels, 14. " ]
"$work/moved/bin/sorvik-run" -meshConvert "$hull" "$work/box.stl" >/dev/null
