# build the Python package, install it into build/python, test it and draw its example
# shellcheck shell=bash

python_packages=(g++ cmake ninja-build python3 python3-venv python3-pip python3-pytest python3-numpy)

python_check_types() {
  local python=$1
  want mypy
  if ! /usr/bin/python3 -c 'import mypy' 2>/dev/null; then
    echo "dev: mypy is not there; skipping the check of the type stubs" >&2
    return
  fi
  step "Holding the type stubs against the package"
  (cd "$root/build/python" && "$python" -m mypy.stubtest brisal._interface --concise &&
    "$python" -m mypy "$root/bindings/python/examples") ||
    fail "the type stubs do not agree with the package"
}

python_command() {
  [[ $# -eq 0 ]] || fail "python has no options"
  need "${python_packages[@]}"
  local folder=$root/build/python python=$root/build/python/venv/bin/python picture
  step "Installing the package into build/python/venv"
  rm -rf "$folder/venv"
  # Debian's interpreter has Debian's numpy and pytest; another one in the path has not.
  /usr/bin/python3 -m venv --system-site-packages "$folder/venv" || fail "there is no virtual environment"
  "$python" -m pip install --quiet --no-index "$root/bindings/python" ||
    fail "the package could not be installed"
  step "Testing it"
  (cd "$folder" && "$python" -m pytest -q -p no:cacheprovider "$root/bindings/python/tests") ||
    fail "tests of the package failed"
  python_check_types "$python"
  step "Drawing its example"
  picture=$root/out/python/harbour.png
  mkdir -p "${picture%/*}"
  "$python" "$root/bindings/python/examples/harbour.py" "$picture"
  step "Done in $SECONDS s. Open $picture"
}
