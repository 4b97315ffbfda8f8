# compare exports, signatures and records with the committed interface (--refresh writes it)
# shellcheck shell=bash

# Of the unoptimised build, which ./dev test makes anyway: exports and types are those of every build.
abi_dump() {
  build debug brisal -DBRISAL_TESTS=OFF
  abidw --headers-dir "$root/include" --drop-private-types --exported-interfaces-only \
    --no-corpus-path --no-comp-dir-path --no-show-locs --no-elf-needed --type-id-style hash \
    "$root/build/debug/src/libbrisal.so" | sed "s,$root/,," >"$1" || fail "abidw cannot read the library"
}

# What is harmless to abidiff may still keep a program from compiling: another name of a field.
abi_compare() {
  local known=$1 built=$2 differences=(abidiff --harmless --no-show-locs)
  step "Comparing with ${known#"$root/"}"
  if "${differences[@]}" "$known" "$built"; then
    echo "the interface is the committed one"
    return
  fi
  ! "${differences[@]}" --no-added-syms "$known" "$built" >/dev/null ||
    fail "no program breaks, but nothing guards the new exports yet; write them down: ./dev abi --refresh"
  fail "programs made for this interface may break. Take the change back; or, if it is meant, say so in
     CHANGELOG.md, count the version up and write it down: ./dev abi --refresh"
}

abi_command() {
  [[ $# -eq 0 || ($# -eq 1 && $1 == --refresh) ]] || fail "abi takes --refresh alone"
  need "${build_packages[@]}" abigail-tools
  local known=$root/tests/abi.xml built=$root/build/debug/abi.xml compiler
  compiler=$(${CXX:-c++} -v 2>&1)
  if [[ $compiler != *x86_64* || $compiler != *"gcc version"* ]]; then
    echo "Left out: the committed interface is as GCC describes it for x86-64."
    return
  fi
  abi_dump "$built"
  if [[ $# -eq 1 ]]; then
    cp "$built" "$known"
    step "Wrote ${known#"$root/"}"
    return
  fi
  abi_compare "$known" "$built"
}
