#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <new>
#include <string>

#include "brisal/brisal.h"
#include "host/error.h"
#include "tools/formats.h"
#include "tools/gallery/gallery.h"
#include "tools/info.h"
#include "tools/interrupt.h"

namespace brisal::tools {

namespace {

constexpr int kFailure = 1;
constexpr int32_t kMaxSide = 16384;
constexpr int64_t kMaxPixels = int64_t{64} << 20;

struct GalleryArguments {
  std::string picture;
  std::string format = "all";
  std::string out = "out/gallery";
  std::string size = "640x480";
};

void ParseSize(const std::string &text, GalleryOptions &options) {
  int used = 0;
  char after = 0;
  if (text.size() > 11 || text.find_first_not_of("0123456789x") != std::string::npos ||
      std::sscanf(text.c_str(), "%5dx%5d%n%c", &options.width, &options.height, &used, &after) !=
          2 ||
      static_cast<size_t>(used) != text.size()) {
    throw host::Error("--size: '" + text + "' is not WIDTHxHEIGHT, such as 640x480");
  }
  if (options.width < 1 || options.height < 1) {
    throw host::Error("--size: a picture of " + text + " has no pixels");
  }
  if (options.width > kMaxSide || options.height > kMaxSide ||
      int64_t{options.width} * options.height > kMaxPixels) {
    throw host::Error("--size: " + text + " is too large (at most " + std::to_string(kMaxSide) +
                      " a side and " + std::to_string(kMaxPixels >> 20) + " megapixels)");
  }
}

std::vector<FormatInfo> ParseFormat(const std::string &text) {
  std::vector<FormatInfo> formats;
  for (const FormatInfo &format : kFormats) {
    if (text == "all" || text == format.name) formats.push_back(format);
  }
  if (formats.empty()) {
    throw host::Error("--format: '" + text + "' is not one of 565, 555, rgb, x32, a32, all");
  }
  return formats;
}

GalleryOptions ToOptions(const GalleryArguments &arguments) {
  GalleryOptions options{};
  options.picture = arguments.picture;
  options.formats = ParseFormat(arguments.format);
  options.out = arguments.out;
  if (options.out.empty()) throw host::Error("--out: the folder has no name");
  ParseSize(arguments.size, options);
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
  gallery->callback([&arguments] {
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
