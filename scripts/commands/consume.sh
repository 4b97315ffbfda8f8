# install into a scratch folder, and build and run programs and the examples against it
# shellcheck shell=bash

consume_packages=(pkg-config)
consume_wishes=(libsdl2-dev xvfb xauth)

# Installed in one place and used in another: what is installed may be moved.
install_to() {
  step "Installing"
  cmake --install "$root/build/release" --prefix "$folder/elsewhere" >"$folder/install.log" ||
    { cat "$folder/install.log" >&2; fail "installing failed"; }
  mv "$folder/elsewhere" "$1"
}

# cmake_project SOURCE: builds it, with nothing of Brisal but the installed tree in reach.
cmake_project() {
  local binary log
  binary=$folder/$(basename "$1")
  log=$binary.log
  if ! { cmake -S "$1" -B "$binary" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" &&
    cmake --build "$binary"; } >"$log" 2>&1; then
    cat "$log" >&2
    fail "$1 does not build"
  fi
}

consume_by_cmake() {
  step "find_package"
  cmake_project "$root/tests/consumer"
  "$folder/consumer/consumer" || fail "the program does not work"
}

consume_by_pkg_config() {
  step "pkg-config"
  local PKG_CONFIG_PATH flags version
  PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name brisal.pc)")
  export PKG_CONFIG_PATH
  version=$(pkg-config --modversion brisal)
  mapfile -t flags < <(pkg-config --cflags --libs brisal | xargs -n 1)
  cc -std=c99 -DPACKAGE_VERSION="\"$version\"" "$root/tests/consumer/consumer.c" \
    -o "$folder/by-pkg-config" "${flags[@]}" || fail "the program does not build"
  LD_LIBRARY_PATH=$(pkg-config --variable=libdir brisal) "$folder/by-pkg-config" ||
    fail "the program does not work"
}

# hold_picture FILE.ppm: a picture of the size that examples have, and not a plain one.
hold_picture() {
  python3 - "$1" <<'END' || fail "$1 is not the picture that it should be"
import sys
head, pixels = open(sys.argv[1], "rb").read().split(b" 255\n", 1)
kind, width, height = head.split()
colours = {pixels[i:i + 3] for i in range(0, len(pixels), 3)}
print(f"{sys.argv[1]}: {len(colours)} colours")
sys.exit(kind != b"P6" or len(pixels) != int(width) * int(height) * 3 or len(colours) < 100)
END
}

run_examples() {
  step "Examples"
  local out=$root/out/examples name
  cmake_project "$root/examples"
  rm -rf "$out" && mkdir -p "$out"
  for name in draw sprites scene; do
    "$folder/examples/$name" "$out/$name.ppm" || fail "the example $name failed"
    hold_picture "$out/$name.ppm"
  done
  "$prefix/bin/brisal" font make /usr/share/fonts/truetype/dejavu/DejaVuSans.ttf --size 22 \
    -o "$folder/sans.crf" >/dev/null || fail "the installed tool makes no font"
  "$folder/examples/font" "$folder/sans.crf" "$out/font.ppm" || fail "the example font failed"
  hold_picture "$out/font.ppm"
  run_window "$out/window.ppm"
}

run_window() {
  if [[ ! -x $folder/examples/window ]] || ! command -v xvfb-run >/dev/null; then
    echo "SKIPPED: the example window needs libsdl2-dev, xvfb and xauth"
    return
  fi
  timeout 60 xvfb-run -a "$folder/examples/window" 30 "$1" || fail "the example window failed"
  hold_picture "$1"
}

consume_command() {
  [[ $# -eq 0 ]] || fail "consume has no options"
  need "${build_packages[@]}" "${consume_packages[@]}"
  want "${consume_wishes[@]}"
  local folder=$root/build/consume
  local prefix=$folder/installed
  build release all -DBRISAL_TESTS=OFF -DBRISAL_TOOLS=ON -DBRISAL_EXAMPLES=ON
  rm -rf "$folder" && mkdir -p "$folder"
  install_to "$prefix"
  consume_by_cmake
  consume_by_pkg_config
  run_examples
  step "Everything works as installed; the examples' pictures are in $root/out/examples"
}
