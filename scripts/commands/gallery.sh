# draw the gallery without installing anything (same options)
# shellcheck shell=bash

gallery_command() {
  local out="" previous="" argument
  for argument in "$@"; do
    [[ $previous == --out ]] && out=$argument
    [[ $argument == --out=* ]] && out=${argument#--out=}
    [[ $argument == --help || $argument == -h ]] && out=none
    previous=$argument
  done
  build release all -DBRISAL_TESTS=OFF
  step "Drawing the gallery"
  if [[ -n $out ]]; then
    "$root/build/release/tools/brisal" gallery "$@"
  else
    out=$root/out/gallery
    "$root/build/release/tools/brisal" gallery --out "$out" "$@"
  fi
  [[ $out == none ]] || step "Done. Open $out/index.html"
}
