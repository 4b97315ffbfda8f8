# compare the instructions that some fixed jobs need with the committed table (--refresh writes it)
# shellcheck shell=bash

counts_command() {
  [[ $# -eq 0 || ($# -eq 1 && $1 == --refresh) ]] || fail "counts takes --refresh alone"
  need "${build_packages[@]}" valgrind
  build release brisal_counts
  step "Counting instructions"
  python3 "$root/scripts/check_counts.py" "$root/build/release/bench/brisal_counts" libbrisal.so \
    "$root/bench/counts.txt" "$(${CXX:-c++} --version | head -1)" "$@" ||
    fail "some jobs need another number of instructions than they did"
}
