#!/usr/bin/env bash
# Installs the build tree given into a fresh prefix and builds the program of the README against it,
# once by find_package and once by pkg-config; both must run. Usage: check.sh BUILD_DIR
set -euo pipefail
build=$1
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cmake --install "$build" --prefix "$work/prefix" >/dev/null
libdir=$(dirname "$(find "$work/prefix" -name 'libtarvex.so')")

mkdir "$work/source"
cp "$here/CMakeLists.txt" "$work/source/"
sed -n '/^```cpp$/,/^```$/{/^```/!p}' "$here/../../README.md" >"$work/source/main.cpp"
expect_turned() {
  local said
  said=$("$1")
  [ "$said" = "turned, starts at node 2" ] || {
    echo "the program of the README said: $said" >&2
    exit 1
  }
}

cmake -S "$work/source" -B "$work/cmake" -DCMAKE_PREFIX_PATH="$work/prefix" >/dev/null
cmake --build "$work/cmake" >/dev/null
expect_turned "$work/cmake/consumer"

export PKG_CONFIG_PATH="$libdir/pkgconfig"
# shellcheck disable=SC2046
c++ "$work/source/main.cpp" -o "$work/consumer" $(pkg-config --cflags --libs tarvex) "-Wl,-rpath,$libdir"
expect_turned "$work/consumer"

# Nothing but the project's own names may be exported.
foreign=$(nm -DC --defined-only "$libdir"/libtarvex*.so | awk '$2 ~ /^[TDBR]$/' | grep -v 'Tarvex' || true)
if [ -n "$foreign" ]; then
  echo "foreign names are exported:" "$foreign" >&2
  exit 1
fi
echo "the installed package works"
