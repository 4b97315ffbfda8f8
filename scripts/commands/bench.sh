# measure against the plain limit and other libraries (--filter RE, --rounds N, --json FILE)
# shellcheck shell=bash

bench_command() {
  need "${build_packages[@]}" libbenchmark-dev
  want "${peer_packages[@]}"
  build bench brisal_bench
  step "Measuring"
  "$root/build/bench/bench/brisal_bench" "$@"
}
