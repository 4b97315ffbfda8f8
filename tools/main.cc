#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <new>
#include <string>

#include "brisal/brisal.h"
#include "host/error.h"
#include "tools/animate/command.h"
#include "tools/arguments.h"
#include "tools/font/command.h"
#include "tools/gallery/gallery.h"
#include "tools/gallery/hash.h"
#include "tools/info.h"
#include "tools/interrupt.h"

namespace brisal::tools {

namespace {

constexpr int kFailure = 1;

struct GalleryArguments {
  std::string picture;
  std::string format = "all";
  std::string out = "out/gallery";
  std::string size = "640x480";
  bool hash = false;
};

GalleryOptions ToOptions(const GalleryArguments &arguments) {
  GalleryOptions options{};
  options.picture = arguments.picture;
  options.formats = ParseFormats(arguments.format);
  options.out = arguments.out;
  if (options.out.empty()) throw host::Error("--out: the folder has no name");
  const Size size = ParseSize(arguments.size);
  options.width = size.width;
  options.height = size.height;
  return options;
}

void AddGallery(CLI::App &app, GalleryArguments &arguments) {
  CLI::App *gallery =
      app.add_subcommand("gallery", "Draw a page of scenes that shows what the library can do");
  gallery
      ->add_option("--picture", arguments.picture,
                   "PNG photograph to draw over, scaled and cropped to the size; without it the "
                   "tool computes a landscape")
      ->type_name("FILE.png");
  gallery
      ->add_option("--format", arguments.format,
                   "Pixel format to draw in: 565, 555, rgb, x32, a32 or all")
      ->type_name("FORMAT")
      ->capture_default_str();
  gallery
      ->add_option("--out", arguments.out,
                   "Folder for index.html and its pictures; files of others in it stay")
      ->type_name("DIR")
      ->capture_default_str();
  gallery->add_option("--size", arguments.size, "Size of the pictures")
      ->type_name("WxH")
      ->capture_default_str();
  gallery
      ->add_flag(
          "--hash", arguments.hash,
          "Draw nothing to look at: print one number for all pictures, in all formats and on "
          "both sides of the MMX switch, that is the same on every machine")
      ->excludes("--picture", "--format", "--out", "--size");
  gallery->callback([&arguments] {
    if (arguments.hash) {
      std::puts(GalleryHash().c_str());
      return;
    }
    const GalleryOptions options = ToOptions(arguments);
    CatchInterrupts();
    RunGallery(options);
  });
}

std::string UsageMessage(const CLI::App *, const CLI::Error &error) {
  return std::string("brisal: ") + error.what() + "; see brisal --help\n";
}

int Run(int argc, char **argv) {
  BRSL_Init_Lib();
  CLI::App app("Brisal, a software rasteriser: what it draws and what it can use here", "brisal");
  app.set_version_flag("--version", "brisal " + Version(), "Print the version and exit");
  app.require_subcommand(0, 1);
  app.failure_message(UsageMessage);
  GalleryArguments arguments;
  AddGallery(app, arguments);
  AddAnimate(app);
  AddFont(app);
  app.add_subcommand("info", "Print version, pixel formats and the instruction set in use")
      ->callback(PrintInfo);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError &error) {
    return app.exit(error) == 0 ? 0 : kFailure;
  }
  if (app.get_subcommands().empty()) throw host::Error("no command given; see brisal --help");
  return 0;
}

}  // namespace

}  // namespace brisal::tools

int main(int argc, char **argv) {
  try {
    return brisal::tools::Run(argc, argv);
  } catch (const std::bad_alloc &) {
    std::fputs("brisal: not enough memory\n", stderr);
  } catch (const std::exception &error) {
    std::fprintf(stderr, "brisal: %s\n", error.what());
  }
  return 1;
}
