#include "tools/font/command.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

#include "host/error.h"
#include "host/font.h"
#include "host/png.h"
#include "tools/font/facts.h"
#include "tools/font/outlines.h"
#include "tools/font/raster.h"
#include "tools/font/specimen.h"

namespace brisal::tools {

namespace {

struct Arguments {
  std::string file;
  std::string out;
  std::string text;
  std::string codes = "latin1";
  int32_t size = 0;
  int32_t depth = 8;
  bool solid = false;
};

void CheckOut(const Arguments &arguments) {
  if (arguments.out.empty()) throw host::Error("--out: the file has no name");
}

void Make(const Arguments &arguments) {
  CheckOut(arguments);
  if (arguments.size < Outlines::kSmallest || arguments.size > Outlines::kLargest) {
    throw host::Error("--size: " + std::to_string(arguments.size) + " is not " +
                      std::to_string(Outlines::kSmallest) + " to " +
                      std::to_string(Outlines::kLargest));
  }
  if (arguments.depth != 8 && arguments.depth != 32) {
    throw host::Error("--depth: " + std::to_string(arguments.depth) + " is not 8 or 32");
  }
  const RasterOptions options{arguments.size, arguments.depth, arguments.solid,
                              ParseCodes(arguments.codes)};
  const host::Font font = RasterFont(arguments.file, options);
  host::SaveFont(arguments.out, font.get());
  std::printf("The font is in %s\n", arguments.out.c_str());
}

void Show(const Arguments &arguments) {
  CheckOut(arguments);
  host::WritePng(arguments.out, Specimen(arguments.file, arguments.text));
  std::printf("The sheet is in %s\n", arguments.out.c_str());
}

void AddOut(CLI::App *command, const std::shared_ptr<Arguments> &arguments, const char *what) {
  command->add_option("-o,--out", arguments->out, what)->type_name("FILE")->required();
}

}  // namespace

void AddFont(CLI::App &app) {
  const auto arguments = std::make_shared<Arguments>();
  CLI::App *font = app.add_subcommand("font", "Make raster fonts, and look at them");
  font->require_subcommand(1);

  CLI::App *make = font->add_subcommand("make", "Make a raster font from outlines");
  make->add_option("outlines", arguments->file, "TrueType or other scalable font")
      ->type_name("FONT.ttf")
      ->required();
  make->add_option("--size", arguments->size, "Pixels of the em square, 4 to 512")->required();
  make->add_option("--depth", arguments->depth, "8 for intensities, 32 for white pixels with alpha")
      ->capture_default_str();
  make->add_flag("--solid", arguments->solid, "Pixels that are covered or not, without soft edges");
  make->add_option("--codes", arguments->codes,
                   "What the character codes are: latin1, cp437 or a range such as 32-126")
      ->type_name("CODES")
      ->capture_default_str();
  AddOut(make, arguments, "The raster font");
  make->callback([arguments] { Make(*arguments); });

  CLI::App *show = font->add_subcommand("show", "Draw a sheet that shows a raster font");
  show->add_option("font", arguments->file, "Raster font")->type_name("FILE")->required();
  show->add_option("--text", arguments->text, "Text in place of the paragraph");
  AddOut(show, arguments, "The sheet, a PNG file");
  show->callback([arguments] { Show(*arguments); });

  CLI::App *info = font->add_subcommand("info", "Print what is in a raster font");
  info->add_option("font", arguments->file, "Raster font")->type_name("FILE")->required();
  info->callback([arguments] { PrintFacts(arguments->file); });
}

}  // namespace brisal::tools
