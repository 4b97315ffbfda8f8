#include "tools/gallery/painter.h"

#include <algorithm>

#include "tools/gallery/fit.h"

namespace brisal::tools {

namespace {

constexpr int32_t kOpaqueInk = 255;

}  // namespace

Painter::Painter(const host::Image &background, FontMaker makeFont)
    : background_(background),
      small_(Fit(background, std::max(1, background.Width() / 2),
                 std::max(1, background.Height() / 2))),
      makeFont_(makeFont) {}

Drawing Painter::Draw(const Scene &scene, const Variant *variant, int32_t format) const {
  Drawing drawing{(variant ? small_ : background_).To(format), {}};
  drawing.image.Target();
  BRSL_SetInkAlpha(kOpaqueInk);
  Stage stage(drawing.image, variant ? variant->value : 0, makeFont_);
  scene.draw(stage);
  drawing.code = stage.Code();
  return drawing;
}

}  // namespace brisal::tools
