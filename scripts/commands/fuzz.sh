# let libFuzzer look for input that breaks the library ([TARGET [SECONDS]]; each target for 60 s)
# shellcheck shell=bash

fuzz_targets=(calls font_stream glyph_image)

fuzz_one() {
  local target=$1 seconds=$2 found=$root/out/fuzz/$1 corpus=$root/build/fuzz/corpus/$1
  rm -rf "$found"
  mkdir -p "$found" "$corpus"
  step "Fuzzing $target for $seconds s"
  "$root/build/fuzz/fuzz/fuzz_$target" -max_total_time="$seconds" -max_len=4096 -timeout=25 \
    -artifact_prefix="$found/" "$corpus" 2>&1 | tee "$root/build/fuzz/$target.log" |
    grep -E --line-buffered 'pulse|DONE|ERROR|SUMMARY' || true
  [[ -z $(ls -A "$found") ]] ||
    fail "$target broke: run build/fuzz/fuzz/fuzz_$target $(echo "$found"/*)"
  grep -q '^Done [1-9]' "$root/build/fuzz/$target.log" || fail "$target did not run"
}

fuzz_command() {
  [[ $# -le 2 ]] || fail "fuzz takes a target and seconds"
  local targets=("${fuzz_targets[@]}") target
  if [[ -n ${1:-} ]]; then
    [[ " ${fuzz_targets[*]} " == *" $1 "* ]] || fail "there is no target '$1': ${fuzz_targets[*]}"
    targets=("$1")
  fi
  [[ ${2:-60} =~ ^[1-9][0-9]*$ ]] || fail "'$2' is no number of seconds"
  need "${build_packages[@]}" clang libclang-rt-14-dev libgtest-dev
  for target in "${targets[@]}"; do build fuzz "fuzz_$target"; done
  for target in "${targets[@]}"; do fuzz_one "$target" "${2:-60}"; done
  step "Nothing broke: ${targets[*]}"
}
