# formatting, clang-tidy, shellcheck, direction of includes, contracts in the header
# shellcheck shell=bash

sources() {
  local folders=() folder
  for folder in include src host tools tests bench examples fuzz docs web; do
    [[ -d $root/$folder ]] && folders+=("$root/$folder")
  done
  find "${folders[@]}" -type f '(' -name '*.cc' -o -name '*.c' -o -name '*.h' ')' -print0
}

check_leftovers() {
  local mark
  for mark in 'TO''DO' 'FIX''ME'; do
    ! grep -rIn --exclude-dir=.git --exclude-dir=build --exclude-dir=out "$mark" "$root" ||
      { echo "finish or drop what is marked $mark" >&2; return 1; }
  done
}

check_tidy() {
  find "$root/src" "$root/host" "$root/tools" -name '*.cc' -print0 |
    xargs -0 -P "$CMAKE_BUILD_PARALLEL_LEVEL" -n 1 clang-tidy -p "$root/build/release" --quiet \
      -extra-arg=-Wno-ignored-optimization-argument 2>&1 |
    { grep -vE '^[0-9]+ warnings?( and [0-9]+ errors?)? generated|^$' || true; }
}

check_command() {
  [[ $# -eq 0 ]] || fail "check has no options"
  need "${build_packages[@]}" "${check_packages[@]}"
  local failed=()
  step "Formatting"
  sources | xargs -0 clang-format --dry-run -Werror || failed+=(formatting)
  step "Direction of includes"
  python3 "$root/scripts/check_includes.py" "$root" || failed+=(includes)
  step "Contracts"
  python3 "$root/scripts/interface.py" "$root/include/brisal/brisal.h" --check || failed+=(contracts)
  step "Scripts"
  shellcheck -x "$root/dev" "$root"/.ci/run "$root"/scripts/*.sh "$root"/scripts/commands/*.sh ||
    failed+=(scripts)
  step "Leftovers"
  check_leftovers || failed+=(leftovers)
  step "clang-tidy"
  (cd "$root" && cmake --preset release -DBRISAL_TESTS=OFF >/dev/null)
  check_tidy || failed+=(clang-tidy)
  [[ ${#failed[@]} -eq 0 ]] || fail "failed: ${failed[*]}"
  step "All checks passed in $SECONDS s"
}
