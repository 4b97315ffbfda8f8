#include "tools/gallery/hash.h"

#include <cinttypes>
#include <cstdio>
#include <vector>

#include "host/error.h"
#include "tools/formats.h"
#include "tools/gallery/computed_font.h"
#include "tools/gallery/landscape.h"
#include "tools/gallery/painter.h"

namespace brisal::tools {

namespace {

constexpr int32_t kWidth = 320, kHeight = 240;
constexpr uint64_t kEmpty = 0xCBF29CE484222325;

uint64_t Fold(uint64_t hash, uint64_t value) { return (hash ^ value) * 0x100000001B3; }

// What lies between rows does not count.
uint64_t HashOf(const host::Image &image) {
  const int32_t bytes = image.Width() * host::BytesPerPixel(image.Format());
  uint64_t hash = kEmpty;
  for (int32_t y = 0; y < image.Height(); y++) {
    const uint8_t *row = image.Row(y);
    for (int32_t i = 0; i < bytes; i++) hash = Fold(hash, row[i]);
  }
  return hash;
}

// Of a picture that is drawn on both sides of the switch.
uint64_t HashOf(const Painter &painter, const Scene &scene, const Variant *variant,
                int32_t format) {
  uint64_t hashes[2];
  for (const int32_t side : {0, 1}) {
    BRSL_SetMMXState(side);
    hashes[side] = HashOf(painter.Draw(scene, variant, format).image);
  }
  if (hashes[0] != hashes[1]) {
    throw host::Error(std::string(scene.name) + (variant ? std::string(" ") + variant->name : "") +
                      ": format " + std::to_string(format) + " depends on the MMX switch");
  }
  return hashes[0];
}

std::vector<const Variant *> VariantsOf(const Scene &scene) {
  std::vector<const Variant *> variants;
  for (const Variant &variant : scene.variants) variants.push_back(&variant);
  if (variants.empty()) variants.push_back(nullptr);
  return variants;
}

uint64_t HashAll() {
  const host::Image background = Landscape(kWidth, kHeight);
  const Painter painter(background, ComputedFont);
  uint64_t hash = HashOf(background);
  for (const Scene &scene : Scenes()) {
    for (const Variant *variant : VariantsOf(scene)) {
      for (const FormatInfo &format : kFormats) {
        hash = Fold(hash, HashOf(painter, scene, variant, format.code));
      }
    }
  }
  return hash;
}

// Sets the switch back where it was.
class SwitchKeeper {
 public:
  ~SwitchKeeper() { BRSL_SetMMXState(state_); }

 private:
  int32_t state_ = BRSL_GetMMXState();
};

}  // namespace

std::string GalleryHash() {
  const SwitchKeeper keeper;
  char digits[17];
  std::snprintf(digits, sizeof digits, "%016" PRIx64, HashAll());
  return digits;
}

}  // namespace brisal::tools
