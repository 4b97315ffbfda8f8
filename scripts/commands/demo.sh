# install what is missing, build, draw the gallery (options go to `brisal gallery`)
# shellcheck shell=bash
# shellcheck source=scripts/commands/gallery.sh
source "$root/scripts/commands/gallery.sh"

demo_command() {
  need "${build_packages[@]}"
  gallery_command "$@"
}
