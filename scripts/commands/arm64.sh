# build for 64-bit ARM and test it there by an emulator
# shellcheck shell=bash

arm64_packages=(g++-aarch64-linux-gnu qemu-user googletest cmake ninja-build python3)

# Random calls against the reference take half an hour in the emulator; their checksums say the same of
# fewer of them.
arm64_command() {
  [[ $# -eq 0 ]] || fail "arm64 has no options"
  want "${arm64_packages[@]}"
  if ! command -v aarch64-linux-gnu-g++ >/dev/null || ! command -v qemu-aarch64 >/dev/null; then
    echo "dev: the compiler for ARM or its emulator cannot be had; skipped" >&2
    return
  fi
  build arm64 all -DBRISAL_TESTS=ON
  ctest_of arm64 -E EqualTheReference
  step "Tests, checksums and the gallery's hash are those of x86 (all but EqualTheReference)"
}
