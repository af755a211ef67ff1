#!/usr/bin/env bash
# install_test.sh BUILD SOURCE CXX GENERATOR: what is installed can be moved, used with CMake and with pkg-config, and run.
set -euo pipefail
build=$1 source=$2 cxx=$3 generator=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export RADIO_LOG=warn RADIO_DEVICE_ROOT=$work/moved/share/radio_apis/device
unset RADIO_VORN_DEVICE

cmake --install "$build" --strip --prefix "$work/installed" >"$work/log"
mv "$work/installed" "$work/moved"
if grep -rlF "$build" "$work/moved"; then
    echo "these name the build folder"
    exit 1
fi

expect_answer() {
    local answer
    answer=$("$@")
    [ "$answer" = "EARFCN 1300, PCI 44" ] || { echo "$1: $answer"; exit 1; }
}
cmake -G "$generator" -S "$source/tests/install/find_package" -B "$work/cmake" -DCMAKE_PREFIX_PATH="$work/moved" \
    -DCMAKE_CXX_COMPILER="$cxx" -DCLIENT="$source/examples/client/main.cpp" >>"$work/log"
cmake --build "$work/cmake" >>"$work/log"
expect_answer "$work/cmake/consumer"

pc=$(find "$work/moved" -name radio_apis.pc -printf %h)
lib=$(dirname "$pc")
# shellcheck disable=SC2046 # the flags are words
"$cxx" -std=c++20 "$source/examples/client/main.cpp" -o "$work/client" \
    $(PKG_CONFIG_PATH=$pc pkg-config --cflags --libs radio_apis) -Wl,-rpath,"$lib"
expect_answer "$work/client"

"$work/moved/bin/radioctl" --device "embedded:$work/moved/share/radio_apis/scenarios/cell-edge.json" get-lte-cell-info
"$work/moved/bin/modem-sim" --help >"$work/log"
[ -s "$work/moved/share/man/man1/radioctl.1" ]
