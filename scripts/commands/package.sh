# make Debian packages and an archive in out/packages, and try them
# shellcheck shell=bash

package_packages=(dpkg-dev libsdl2-dev man-db)
soname_version=$(sed -n 's/^#define BRSL_VERSION_MAJOR //p' "$root/include/brisal/brisal.h")
library_package=libbrisal$soname_version
package_names=("$library_package" libbrisal-dev brisal-tools)

# make_archives GENERATOR [CMAKE OPTIONS]: the options say where files lie.
make_archives() {
  local generator=$1
  shift
  build release all -DBRISAL_TESTS=OFF -DBRISAL_TOOLS=ON "$@"
  step "Packing ($generator)"
  (cd "$root/build/release" && cpack -G "$generator" -B packages >packages.log) ||
    { cat "$root/build/release/packages.log" >&2; fail "cpack failed"; }
}

# The files and links of a package or of the archive, without what depends on machine and version.
contents_of() {
  case $1 in
    *.deb) dpkg-deb --fsys-tarfile "$1" | tar -t ;;
    *) tar -tzf "$1" | sed 's,^[^/]*,.,' ;;
  esac | grep -v '/$' |
    sed -E -e 's,^\./(usr/)?,,' -e "s,$multiarch/,," -e 's,([0-9]+\.){2}[0-9]+,VERSION,' |
    LC_ALL=C sort
}

# hold_contents FILE EXPECTED...
hold_contents() {
  local file=$1
  shift
  diff <(printf '%s\n' "$@" | LC_ALL=C sort) <(contents_of "$file") ||
    fail "$(basename "$file") holds other files than it should (< missing, > too many)"
  echo "$(basename "$file"): $# files"
}

check_contents() {
  local config=lib/cmake/Brisal/BrisalConfig papers=({changelog.gz,copyright})
  local shared=(lib/libbrisal.so."$soname_version" lib/libbrisal.so.VERSION)
  local dev=(include/brisal/brisal.h lib/libbrisal.so lib/pkgconfig/brisal.pc
    "$config.cmake" "${config}Version.cmake" "$config-release.cmake")
  hold_contents "$out/$library_package"_*.deb "${shared[@]}" \
    "${papers[@]/#/share/doc/$library_package/}"
  hold_contents "$out"/libbrisal-dev_*.deb "${dev[@]}" \
    "${papers[@]/#/share/doc/libbrisal-dev/}"
  hold_contents "$out"/brisal-tools_*.deb bin/brisal share/man/man1/brisal.1.gz \
    "${papers[@]/#/share/doc/brisal-tools/}"
  hold_contents "$out"/brisal-*.tar.gz "${shared[@]}" "${dev[@]}" bin/brisal \
    share/man/man1/brisal.1 share/doc/brisal/{CHANGELOG.md,LICENSE,README.md}
}

# The library asks for nothing but the C library; the others for exactly this library.
check_dependencies() {
  local version depends package
  version=$(dpkg-deb -f "$out/$library_package"_*.deb Version)
  depends=$(dpkg-deb -f "$out/$library_package"_*.deb Depends)
  [[ $depends =~ ^libc6\ \([^,]*\)$ ]] ||
    fail "$library_package depends on more than libc6: $depends"
  for package in libbrisal-dev brisal-tools; do
    [[ $(dpkg-deb -f "$out/$package"_*.deb Depends) == *"$library_package (= $version)"* ]] ||
      fail "$package does not depend on $library_package of its version"
  done
}

# try_tool PROGRAM FOLDER: draws something with an installed tool.
try_tool() {
  [[ $("$1" --version) =~ ^brisal\ [0-9.]+$ ]] || fail "$1 does not run"
  "$1" animate --frames 1 --size 160x120 --out "$2/frames" >/dev/null 2>&1 ||
    fail "$1 does not draw"
  [[ -s $2/frames/frame-00000.png ]] || fail "$1 left no picture"
}

check_archive() {
  local folder=$root/build/package
  rm -rf "$folder" && mkdir -p "$folder/elsewhere"
  tar -xzf "$out"/brisal-*.tar.gz -C "$folder/elsewhere" --strip-components=1
  # Read to its end: ldd would fail where grep stops listening.
  [[ $(ldd "$folder/elsewhere/bin/brisal") == *"$folder/elsewhere/bin/../lib/libbrisal"* ]] ||
    fail "the archive's tool does not find the library beside it"
  try_tool "$folder/elsewhere/bin/brisal" "$folder"
  echo "the archive's tool runs from any folder"
}

options_of() {
  "$root/build/release/tools/brisal" "$@" --help | sed -nE 's/^ +(-[a-z],)?(--[a-z]+).*/\2/p'
}

# Every option that --help of any command shows stands in the manual, which has no faults of format.
check_manual() {
  local page=$root/docs/man/brisal.1 faults command option text
  faults=$(man --warnings -l "$page" 2>&1 >/dev/null)
  [[ -z $faults ]] || fail "brisal.1: $faults"
  text=$(man -l "$page" | col -b | tr '‐−' '--')
  for command in "" gallery animate font "font make" "font show" "font info" info; do
    # shellcheck disable=SC2086
    for option in $(options_of $command); do
      grep -qF -- "$option" <<<"$text" || fail "brisal.1 does not explain $option of '$command'"
    done
  done
  echo "brisal.1 explains every option"
}

remove_packages() { dpkg --purge "${package_names[@]}" >/dev/null 2>&1; }

# Into the system itself, where that can be taken back: as root, with nothing of it there before.
try_packages() {
  if [[ $(id -u) -ne 0 ]]; then
    echo "not root: the packages were not installed for a trial"
    return
  fi
  if dpkg-query -W "${package_names[@]}" >/dev/null 2>&1; then
    echo "Brisal is installed on this machine: the packages were not installed for a trial"
    return
  fi
  trap remove_packages EXIT
  dpkg -i "$out"/*.deb >"$root/build/package/dpkg.log" 2>&1 ||
    { cat "$root/build/package/dpkg.log" >&2; fail "dpkg cannot install the packages"; }
  rm -rf "$root/build/package/frames"
  try_tool /usr/bin/brisal "$root/build/package"
  printf '#include <brisal/brisal.h>\nint main(void) { return BRSL_Init_Lib() - 1; }\n' |
    cc -x c - -o "$root/build/package/program" -lbrisal ||
    fail "libbrisal-dev is not enough to build"
  "$root/build/package/program" || fail "a program does not run with $library_package"
  remove_packages
  trap - EXIT
  ! [[ -e /usr/bin/brisal ]] || fail "removing the packages left files behind"
  echo "installed, tried and removed"
}

package_command() {
  [[ $# -eq 0 ]] || fail "package has no options"
  need "${build_packages[@]}" "${package_packages[@]}"
  local out=$root/out/packages multiarch
  multiarch=$(dpkg-architecture -qDEB_HOST_MULTIARCH)
  rm -rf "$root/build/release/packages"
  make_archives DEB -DBRISAL_DEBIAN=ON -DCMAKE_INSTALL_PREFIX=/usr \
    -DCMAKE_INSTALL_LIBDIR="lib/$multiarch"
  make_archives TGZ -DBRISAL_DEBIAN=OFF -DCMAKE_INSTALL_PREFIX=/usr/local -DCMAKE_INSTALL_LIBDIR=lib
  mkdir -p "$out"
  rm -f "$out"/*.deb "$out"/*.tar.gz
  cp "$root"/build/release/packages/*.{deb,tar.gz} "$out"
  step "Checking"
  check_contents
  check_dependencies
  check_manual
  check_archive
  try_packages
  step "The packages are in $out"
}
