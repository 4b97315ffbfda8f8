# run the tests of 32-bit Windows in a small 32-bit Debian of its own (build/wine32, 1.1 GB, as root)
# shellcheck shell=bash

# shellcheck source=scripts/commands/windows.sh
source "$root/scripts/commands/windows.sh"

# The tree is made whole or not at all.
wine32_tree() {
  local tree=$1
  [[ ! -x $tree/usr/bin/wine ]] || return 0
  step "Making a 32-bit Debian with Wine (two minutes)"
  as_root rm -rf "$tree.new"
  as_root debootstrap --arch=i386 --variant=minbase --include=wine,wine32 bookworm "$tree.new" &&
    as_root mv "$tree.new" "$tree"
}

# wine32_run TREE PROGRAM [ARGUMENTS]: the same paths lead to the programs and their files in the tree.
wine32_run() {
  local tree=$1
  shift
  # shellcheck disable=SC2016
  as_root unshare --mount --fork sh -c '
    tree=$1; folder=$2; shift 2
    mount -t proc proc "$tree/proc" &&
      chroot "$tree" env HOME=/root WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" \
        sh -c "cd \"\$1\" && shift && exec wine \"\$@\"" sh "$folder" "$@"
  ' sh "$tree" "$root/build/windows32/windows" "$@"
}

wine32_copy() {
  local tree=$1 file
  for file in build/windows32/windows build/windows32/generated/exports.txt tests/digest/expected.txt \
    tests/gallery_hash.txt; do
    as_root mkdir -p "$tree$root/$(dirname "$file")"
    as_root cp -r "$root/$file" "$tree$root/$(dirname "$file")/"
  done
}

wine32_command() {
  [[ $# -eq 0 ]] || fail "wine32 has no options"
  want g++-mingw-w64-i686-posix debootstrap googletest cmake ninja-build python3
  if ! command -v i686-w64-mingw32-g++ >/dev/null || ! as_root sh -c 'command -v debootstrap' >/dev/null; then
    echo "dev: the compiler for Windows or debootstrap cannot be had; skipped" >&2
    return
  fi
  local tree=$root/build/wine32
  windows_build 32 i686-w64-mingw32
  wine32_tree "$tree" || { echo "dev: a 32-bit Debian cannot be had; skipped" >&2; return; }
  wine32_copy "$tree"
  step "Testing (windows32)"
  wine32_run "$tree" ./windows_host.exe "$root/build/windows32/generated/exports.txt" || fail "windows_host failed"
  wine32_run "$tree" ./brisal_digest.exe || fail "the digest differs"
  wine32_run "$tree" ./brisal_hash.exe "$root/tests/gallery_hash.txt" || fail "the gallery's hash differs"
  wine32_run "$tree" ./brisal_tests.exe --gtest_brief=1 || fail "tests failed (windows32)"
  step "All tests passed under Wine (32 bits)"
}
