#pragma once

#include <cstdint>
#include <string>

#include "host/image.h"
#include "tools/gallery/scene.h"

namespace brisal::tools {

struct Drawing {
  host::Image image;
  std::string code;
};

// Draws scenes over a background: those that have variants at half its size.
class Painter {
 public:
  Painter(const host::Image &background, FontMaker makeFont);

  // variant: one of the scene's, or null where it has none.
  Drawing Draw(const Scene &scene, const Variant *variant, int32_t format) const;

 private:
  const host::Image &background_;
  host::Image small_;
  FontMaker makeFont_;
};

}  // namespace brisal::tools
