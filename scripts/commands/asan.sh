# run the tests under the address and undefined behaviour sanitizers (--preset asan-clang)
# shellcheck shell=bash

asan_command() {
  local preset
  preset=$(preset_option asan "$@")
  need "${build_packages[@]}" libgtest-dev
  [[ $preset == asan ]] || need clang libclang-rt-14-dev
  build "$preset" all -DBRISAL_TESTS=ON
  ctest_of "$preset"
  step "No sanitizer report ($preset)"
}
