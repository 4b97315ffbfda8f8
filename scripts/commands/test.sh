# install what is missing, build, run every test (--preset NAME: that preset's alone)
# shellcheck shell=bash

# The digest and the gallery's hash are the same for every compiler and optimisation level.
# $1: the preset. Others: further options of its.
digest_of() {
  build "$1" brisal_digest -DBRISAL_TESTS=ON "${@:2}"
  build "$1" brisal_hash "${@:2}"
  step "Comparing the digest and the gallery's hash ($1)"
  "$(program_in "$1" brisal_digest)" &
  "$(program_in "$1" brisal_hash)" "$root/tests/gallery_hash.txt" ||
    fail "the gallery's hash of the $1 build differs"
  wait $! || fail "the digest of the $1 build differs"
}

program_in() { find "$root/build/$1" -name "$2" -type f -perm -u+x -print -quit; }

# A processor with AVX-512 has run nothing yet of what others will run: all tests for those with AVX2, and
# the digest for the two ways with texels. The tests run in two halves at once.
test_other_sets() {
  local tests digest isa shard
  local -a running
  grep -qi 'avx512_\?vbmi' /proc/cpuinfo || return 0
  tests=$(program_in release brisal_tests)
  digest=$(program_in release brisal_digest)
  step "Testing the kernels for AVX2"
  for shard in 0 1; do
    BRISAL_ISA=avx2 GTEST_TOTAL_SHARDS=2 GTEST_SHARD_INDEX=$shard "$tests" --gtest_brief=1 &
    running[shard]=$!
  done
  for shard in "${running[@]}"; do
    wait "$shard" || fail "tests failed (BRISAL_ISA=avx2)"
  done
  for isa in avx512 gathering; do
    step "Comparing the digest ($isa)"
    BRISAL_ISA=$isa "$digest" || fail "the digest differs (BRISAL_ISA=$isa)"
  done
}

# By an emulator where the kernel runs no 32-bit programs; random calls against the reference would take
# too long there, and their checksums say the same of fewer of them.
test_m32() {
  local -a filter=()
  need g++-12-multilib googletest
  if ! /lib/ld-linux.so.2 --version >/dev/null 2>&1; then
    need qemu-user
    filter=(-E EqualTheReference)
    step "This kernel runs no 32-bit programs: an emulator does (all tests but EqualTheReference)"
  fi
  build m32 all -DBRISAL_TESTS=ON
  ctest_of m32 "${filter[@]}"
}

columns() {
  step "Looking for wide instructions"
  python3 "$root/scripts/check_columns.py" "$root/build/release/src/libbrisal.so" ||
    fail "the columns of the library are mixed up"
}

test_command() {
  local preset
  preset=$(preset_option all "$@")
  need "${build_packages[@]}" "${test_packages[@]}"
  if [[ $preset != all ]]; then
    if [[ $preset == m32 ]]; then
      test_m32
    else
      [[ $preset != arm64 ]] || need g++-aarch64-linux-gnu qemu-user googletest
      build "$preset" all -DBRISAL_TESTS=ON
      ctest_of "$preset"
    fi
    step "All tests passed ($preset)"
    return
  fi
  build release all -DBRISAL_TESTS=ON
  ctest_of release
  digest_of clang
  # Unoptimised, the widest kernels and what debuggers read take half of the time to build.
  digest_of debug -DBRISAL_AVX512=OFF -DCMAKE_CXX_FLAGS_DEBUG=-O0
  test_other_sets
  columns
  step "All tests passed in $SECONDS s: every instruction set of this processor, digest and hash with Clang and at -O0"
}
