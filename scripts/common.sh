# What the scripts share. Sourced, never run.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
jobs=$(nproc)

# build PRESET [target...]: configure and build one preset.
build() {
  local preset=$1
  shift
  cmake --preset "$preset" >"build/$preset.configure.log" 2>&1 || {
    cat "build/$preset.configure.log" >&2
    return 1
  }
  cmake --build --preset "$preset" -j "$jobs" ${1:+--target "$@"} -- --quiet
}

# stage NAME command...: run one stage, say how long it took; a failure ends the script.
stage() {
  local name=$1 start=$SECONDS
  shift
  echo "== $name"
  "$@"
  printf '== %s: %d min %02d s\n' "$name" $(((SECONDS - start) / 60)) $(((SECONDS - start) % 60))
}

mkdir -p build
