# render the reference and the tutorial to out/docs, and check both
# shellcheck shell=bash

docs_packages=(doxygen netpbm pkg-config)

draw_pictures() {
  step "Drawing the reference's pictures"
  build release brisal_doc_pictures -DBRISAL_TESTS=OFF -DBRISAL_TOOLS=ON -DBRISAL_DOCS=ON
  "$root/build/release/docs/pictures/brisal_doc_pictures" "$built/pictures" ||
    fail "the pictures cannot be drawn"
}

# The programs of the pages, built and run by the pages' own commands against an installed tree.
run_tutorial() {
  local folder=$built/tutorial prefix=$built/installed names name PKG_CONFIG_PATH LD_LIBRARY_PATH
  build release all -DBRISAL_TESTS=OFF -DBRISAL_TOOLS=ON
  step "Running the tutorial"
  cmake --install "$root/build/release" --prefix "$prefix" >/dev/null || fail "installing failed"
  names=$(cd "$root" && python3 scripts/tutorial.py "$folder" docs/tutorial/*.md) ||
    fail "the tutorial's programs cannot be taken out"
  cp "$root"/examples/{ppm.h,services.h,services.c} "$folder"
  PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name brisal.pc)")
  LD_LIBRARY_PATH=$(dirname "$(find "$prefix" -name libbrisal.so)")
  for name in $names; do
    (cd "$folder" && PATH=$prefix/bin:$PATH && export PKG_CONFIG_PATH LD_LIBRARY_PATH PATH &&
      sh -eu "$name.sh") || fail "the program of the page $name failed"
    pnmtopng -quiet "$folder/$name.ppm" >"$folder/$name.png" || fail "$name left no picture"
    echo "$name: runs"
  done
}

render_reference() {
  step "Rendering"
  local major minor patch
  read -r major minor patch < <(sed -n 's/^#define BRSL_VERSION_[A-Z]* //p' \
    "$root/include/brisal/brisal.h" | xargs)
  (cd "$root" && BUILT=$built VERSION=$major.$minor.$patch PYTHONDONTWRITEBYTECODE=1 \
    doxygen docs/Doxyfile) || fail "doxygen has warnings"
  python3 "$root/scripts/check_reference.py" "$root/include/brisal/brisal.h" "$built/xml" ||
    fail "the reference is not complete"
}

docs_command() {
  [[ $# -eq 0 ]] || fail "docs has no options"
  need "${build_packages[@]}" "${docs_packages[@]}"
  local built=$root/build/docs
  rm -rf "$built" && mkdir -p "$built"
  draw_pictures
  run_tutorial
  render_reference
  rm -rf "$root/out/docs"
  mkdir -p "$root/out" && mv "$built/html" "$root/out/docs"
  step "Done. Open $root/out/docs/index.html"
}
