#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "brisal/brisal.h"

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

// What a scene draws on: the library's target is a photograph of this size.
class Stage {
 public:
  Stage(int32_t width, int32_t height, int32_t value)
      : width_(width), height_(height), value_(value) {}

  int32_t Width() const { return width_; }
  int32_t Height() const { return height_; }
  int32_t Value() const { return value_; }  // of the variant; 0 where the scene has none

  void Show(const char *statements);
  const std::string &Code() const { return code_; }

 private:
  int32_t width_;
  int32_t height_;
  int32_t value_;
  std::string code_;
};

struct Scene {
  const char *name;  // in file names
  const char *title;
  const char *text;
  void (*draw)(Stage &stage);
  std::span<const Variant> variants = {};
};

// All scenes in the order of the page. A new one is a function and a line in scenes/list.cc.
std::span<const Scene> Scenes();

// Statements on one line, as the preprocessor gives them, laid out for reading.
std::string LayOutCode(const std::string &statements);

}  // namespace brisal::tools
