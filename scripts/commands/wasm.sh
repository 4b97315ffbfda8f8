# build the library for WebAssembly and the live gallery of it, and test that (--serve [PORT])
# shellcheck shell=bash

wasm_packages=(emscripten nodejs)
playwright="playwright-core@1.65.1"

wasm_module() {
  step "Building the module of WebAssembly"
  # Debian's emscripten finds its parts by itself, unless another one's cache is named.
  (cd "$root" && unset EM_CACHE && export NODE_PATH=/usr/share/nodejs &&
    emcmake cmake -Wno-dev -S web -B build/wasm/module -G Ninja -DCMAKE_BUILD_TYPE=Release \
      >/dev/null &&
    cmake --build build/wasm/module --target brisal_web brisal_hash) || fail "the module could not be built"
}

wasm_site() {
  local site=$1
  build release brisal_tool -DBRISAL_TESTS=OFF
  step "Putting the page together"
  rm -rf "$site"
  mkdir -p "$site"
  cp -r "$root"/web/page/. "$root"/build/wasm/module/brisal.{js,wasm} \
    "$root/build/wasm/module/interface/brisal.json" "$site"
  "$root/build/release/tools/brisal" font make /usr/share/fonts/truetype/dejavu/DejaVuSerif.ttf \
    --size 40 -o "$site/text.crf" >/dev/null || fail "there is no font for the page"
}

wasm_hash() {
  step "Comparing the gallery's hash"
  local hash
  hash=$(node --no-experimental-fetch "$root/build/wasm/module/brisal/tools/gallery/brisal_hash.js") ||
    fail "the gallery cannot be drawn"
  [[ $hash == "$(<"$root/tests/gallery_hash.txt")" ]] || fail "the hash of the gallery differs: $hash"
}

wasm_test() {
  local site=$1 tools=$root/build/wasm/node
  want chromium
  command -v npm >/dev/null || want npm
  if ! command -v chromium >/dev/null || ! command -v npm >/dev/null ||
    ! npm install --silent --no-save --prefix "$tools" "$playwright" >/dev/null; then
    echo "dev: chromium, npm or $playwright cannot be had; skipping the tests of the page" >&2
    return
  fi
  step "Comparing every picture with the native library's, and using the page"
  BRISAL_SITE=$site BRISAL_LIBRARY=$root/build/release/src/libbrisal.so BRISAL_SHOTS=$root/out/web \
    BRISAL_MODULES=$tools/node_modules node --test "$root/web/tests/" ||
    fail "tests of the page failed"
}

wasm_command() {
  local site=$root/build/wasm/site
  if [[ ${1:-} == --serve && $# -le 2 ]]; then
    [[ -f $site/index.html ]] || fail "there is no page yet: run ./dev wasm first"
    step "Serving http://localhost:${2:-8000}/ until Ctrl-C"
    python3 -m http.server --bind localhost --directory "$site" "${2:-8000}"
    return
  fi
  [[ $# -eq 0 ]] || fail "unknown option '$1' (wasm has --serve [PORT])"
  need "${build_packages[@]}" "${wasm_packages[@]}"
  wasm_module
  wasm_hash
  wasm_site "$site"
  wasm_test "$site"
  step "Done in $SECONDS s. ./dev wasm --serve shows the page; pictures of it are in $root/out/web"
}
