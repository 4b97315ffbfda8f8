#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "brisal/brisal.h"
#include "host/font.h"
#include "host/image.h"
#include "tools/font/raster_options.h"

// Runs statements and keeps their source for the page. It stands at the top level of a scene, one
// paragraph of code each: what is declared inside stays in scope, what needs no showing goes
// between.
#define SHOW(...)           \
  stage.Show(#__VA_ARGS__); \
  __VA_ARGS__

namespace brisal::tools {

// One of several drawings of a scene that differ by a number, such as the draw mode.
struct Variant {
  const char *name;     // in file names
  const char *caption;  // for people
  int32_t value;
};

// Makes the fonts that scenes write with.
using FontMaker = host::Font (*)(const RasterOptions &);

// What a scene draws on: the library's target is a photograph, page.
class Stage {
 public:
  Stage(host::Image &page, int32_t value, FontMaker makeFont)
      : page_(page), value_(value), makeFont_(makeFont) {}

  host::Image &Page() { return page_; }
  int32_t Width() const { return page_.Width(); }
  int32_t Height() const { return page_.Height(); }
  int32_t Format() const { return page_.Format(); }
  int32_t Value() const { return value_; }  // of the variant; 0 where the scene has none
  host::Font Font(const RasterOptions &options) const { return makeFont_(options); }

  void Show(const char *statements);
  const std::string &Code() const { return code_; }

 private:
  host::Image &page_;
  int32_t value_;
  FontMaker makeFont_;
  std::string code_;
};

struct Scene {
  const char *name;  // in file names
  const char *title;
  const char *text;
  void (*draw)(Stage &stage);
  std::span<const Variant> variants = {};
  int32_t lead = BRSL_FORMAT_A32;  // the format that shows it best
};

// All scenes in the order of the page. A new one is a function and a line in scenes/list.cc.
std::span<const Scene> Scenes();

// Statements on one line, as the preprocessor gives them, laid out for reading.
std::string LayOutCode(const std::string &statements);

}  // namespace brisal::tools
