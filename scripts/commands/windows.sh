# build for Windows, 64 and 32 bits, and run the tests under Wine
# shellcheck shell=bash

windows_packages=(g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix wine wine64 googletest cmake
  ninja-build python3)

windows_build() {
  local bits=$1 target=$2 folder=$root/build/windows$1
  build "windows$bits" all -DBRISAL_TESTS=ON
  step "Looking at the library ($bits bits)"
  python3 "$root/tests/windows/check_library.py" "$target-objdump" \
    "$folder/windows/Brisal Library.dll" "$folder/generated/exports.txt" ||
    fail "the library for $bits bits is not what it should be"
}

# Whether programs of so many bits run here: the host says how it is called, and exits with 2.
windows_runs() {
  local status=0
  WINEPREFIX=$root/build/wine WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=' \
    wine "$root/build/windows$1/windows/windows_host.exe" >/dev/null 2>&1 || status=$?
  [[ $status -eq 2 ]]
}

hint() { [[ $1 != 32 ]] || echo " (./dev wine32 runs them)"; }

windows_test() {
  if windows_runs "$1"; then
    ctest_of "windows$1"
    step "All tests passed under Wine ($1 bits)"
  else
    echo "dev: Wine does not run programs of $1 bits here; their tests were not run$(hint "$1")" >&2
  fi
}

windows_command() {
  [[ $# -eq 0 ]] || fail "windows has no options"
  want "${windows_packages[@]}"
  local compiler
  for compiler in x86_64-w64-mingw32-g++ i686-w64-mingw32-g++; do
    command -v "$compiler" >/dev/null || { echo "dev: $compiler cannot be had; skipped" >&2; return; }
  done
  windows_build 64 x86_64-w64-mingw32
  windows_build 32 i686-w64-mingw32
  command -v wine >/dev/null || { echo "dev: Wine cannot be had; the tests were not run" >&2; return; }
  mkdir -p "$root/build"
  windows_test 64
  windows_test 32
}
