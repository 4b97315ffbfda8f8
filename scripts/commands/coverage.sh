# which lines of src/ the tests reach, as pages in out/coverage; fails below 98 %
# shellcheck shell=bash

coverage_command() {
  [[ $# -eq 0 ]] || fail "coverage has no options"
  need "${build_packages[@]}" libgtest-dev gcovr
  local pages=$root/out/coverage failed=no
  # Counts of earlier runs would be added to.
  mkdir -p "$root/build/coverage"
  find "$root/build/coverage" -name '*.gcda' -delete
  build coverage all -DBRISAL_TESTS=ON
  ctest_of coverage
  step "Counting lines"
  rm -rf "$pages" && mkdir -p "$pages"
  (cd "$root" && gcovr --root src --object-directory build/coverage/src build/coverage/src \
    --txt "$pages/summary.txt" --html-details "$pages/index.html" --fail-under-line 98) ||
    failed=yes
  # The files with lines that are not reached.
  awk 'NF > 4 || $1 == "TOTAL"' "$pages/summary.txt"
  [[ $failed == no ]] || fail "the tests reach less than 98 % of the lines: see $pages/index.html"
  step "Done in $SECONDS s. Open $pages/index.html"
}
