# measure against the plain limit and other libraries, or as jobs grow (--help lists the options)
# shellcheck shell=bash

bench_command() {
  local name=index json="" previous="" argument
  for argument in "$@"; do
    case $argument in
      --growth) name=growth ;;
      --list | --help) name=none ;;
    esac
    [[ $previous == --json ]] && json=$argument
    previous=$argument
  done
  need "${build_packages[@]}" libbenchmark-dev
  want "${peer_packages[@]}"
  build bench brisal_bench
  local program=$root/build/bench/bench/brisal_bench
  [[ $name != none ]] || { "$program" "$@"; return; }
  step "Measuring"
  mkdir -p "$root/out/bench"
  [[ -n $json ]] || json=$root/out/bench/$name.json
  "$program" "$@" --json "$json"
  local page=$root/out/bench/$name.html
  python3 "$root/scripts/bench_page.py" "$json" --html "$page"
  step "Done. Open $page"
}
