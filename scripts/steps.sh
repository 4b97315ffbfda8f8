# What the commands of ./dev share. Sourced by dev.
# shellcheck shell=bash

step() { printf '\n== %s\n' "$*"; }
fail() { printf 'dev: %s\n' "$*" >&2; exit 1; }

# build PRESET TARGET [CMAKE OPTIONS]
build() {
  local preset=$1 target=$2
  shift 2
  step "Building $target ($preset)"
  (cd "$root" && cmake --preset "$preset" "$@" >/dev/null && \
    cmake --build "build/$preset" --target "$target") || fail "the $preset build failed"
}

# preset_option DEFAULT [--preset NAME]
preset_option() {
  [[ $# -eq 1 ]] && { echo "$1"; return; }
  [[ $# -eq 3 && $2 == --preset ]] || fail "unknown option '$2' (see ./dev --help)"
  grep -q "\"name\": \"$3\", \"inherits\"" "$root/CMakePresets.json" ||
    fail "there are no tests for a preset '$3'"
  echo "$3"
}

# ctest_of PRESET [OPTION...]
ctest_of() {
  local preset=$1
  shift
  step "Testing ($preset)"
  (cd "$root" && ctest --preset "$preset" -j "$CMAKE_BUILD_PARALLEL_LEVEL" "$@") ||
    fail "tests failed ($preset)"
}
