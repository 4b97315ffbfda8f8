#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "host/font.h"
#include "host/image.h"
#include "tools/animate/town.h"
#include "tools/gallery/surface.h"

namespace brisal::tools {

// An evening by the sea: a town that scrolls by and its reflection, butterflies, a cube and text. It
// ends as it begins.
class Animation {
 public:
  static constexpr double kSeconds = 8;

  // Throws Error where the machine has no font.
  Animation(int32_t width, int32_t height, int32_t format);

  // Draws the picture of a time, in seconds; the animation repeats itself.
  void Draw(double seconds);

  // Draws a line of text over the picture.
  void DrawNote(const std::string &text) const;

  host::Image &Page() { return page_; }

 private:
  void DrawSky();
  void DrawCube(double phase);
  void DrawButterflies(double phase);
  void DrawReflection(double phase);
  void DrawText(double phase) const;

  host::Image page_;
  int32_t horizon_;
  int32_t side_;  // the shorter one of the picture
  Town town_;
  int32_t butterflySize_;
  Surface butterflies_;
  std::unique_ptr<TPD_Pipeline, int32_t (*)(TPD_Pipeline *)> sprites_;
  host::Font title_;
  host::Font text_;
};

}  // namespace brisal::tools
