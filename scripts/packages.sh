# Debian packages for the commands of ./dev, and how to get them. Sourced by dev.
# shellcheck shell=bash disable=SC2034

build_packages=(g++ cmake ninja-build python3 libpng-dev libcli11-dev libfreetype-dev
  fonts-dejavu-core)
test_packages=(libgtest-dev clang binutils libsdl2-dev xvfb xauth)
check_packages=(clang-format clang-tidy shellcheck)
peer_packages=(libpixman-1-dev libsdl2-dev libyuv-dev liballegro4-dev libagg-dev libcairo2-dev)
package_lists_fresh=no

# The program by which a package counts as present wherever it came from.
program_of() {
  case $1 in
    ninja-build) echo ninja ;;
    clang) echo clang++ ;;
    binutils) echo objdump ;;
    emscripten) echo emcc ;;
    nodejs) echo node ;;
    abigail-tools) echo abidiff ;;
    lib*) echo '' ;;
    *) echo "$1" ;;
  esac
}

is_present() {
  local program
  program=$(program_of "$1")
  [[ -n $program ]] && command -v "$program" >/dev/null && return
  [[ $(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null) == installed ]]
}

missing_of() {
  local package
  for package in "$@"; do
    is_present "$package" || echo "$package"
  done
}

as_root() {
  if [[ $(id -u) -eq 0 ]]; then
    "$@"
  else
    sudo "$@"
  fi
}

can_install() {
  command -v apt-get >/dev/null || return 1
  [[ $(id -u) -eq 0 ]] && return
  command -v sudo >/dev/null || return 1
  sudo -n true 2>/dev/null || [[ -t 0 ]]
}

apt_install() {
  local apt=(env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=120)
  if [[ $package_lists_fresh == no ]]; then
    as_root "${apt[@]}" update || echo "dev: apt-get update failed, trying with what is known" >&2
    package_lists_fresh=yes
  fi
  as_root "${apt[@]}" install -y --no-install-recommends "$@"
}

# need PACKAGE...: installs those that are missing, or stops.
need() {
  local missing
  mapfile -t missing < <(missing_of "$@")
  [[ ${#missing[@]} -gt 0 ]] || return 0
  if ! command -v dpkg-query >/dev/null; then
    echo "dev: not a Debian system; going on in the hope that it has: ${missing[*]}" >&2
    return 0
  fi
  can_install || {
    echo "dev: packages are missing and neither root nor sudo is at hand. As root, run:" >&2
    echo "  apt-get install --no-install-recommends ${missing[*]}" >&2
    exit 1
  }
  echo "Installing ${missing[*]}"
  apt_install "${missing[@]}" || {
    echo "dev: apt-get could not install ${missing[*]}" >&2
    exit 1
  }
}

# want PACKAGE...: installs those that are missing where that works, and goes on without the others.
want() {
  local package
  for package in $(missing_of "$@"); do
    can_install && apt_install "$package" || echo "dev: going on without $package" >&2
  done
}
