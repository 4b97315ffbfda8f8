#include "tools/gallery/computed_font.h"

#include <algorithm>

#include "tools/font/characters.h"
#include "tools/gallery/noise.h"

namespace brisal::tools {

namespace {

uint8_t Intensity(float height, bool solid) {
  if (solid) return height > 0.5f ? 255 : 0;
  return static_cast<uint8_t>(std::clamp((height - 0.42f) * 6, 0.0f, 1.0f) * 255);
}

DrawnCharacter Blot(uint32_t code, int32_t size, bool solid) {
  const auto number = static_cast<int32_t>(code);
  DrawnCharacter blot{};
  blot.advance = size * (4 + number % 5) / 10;
  if (code <= ' ') return blot;
  blot.left = number % 4 - 1;
  blot.top = size * (5 + number % 3) / 8;
  blot.width = blot.advance;
  blot.height = size * (6 + number % 4) / 10;
  const float bumps = 5.0f / static_cast<float>(size);
  for (int32_t y = 0; y < blot.height; y++) {
    for (int32_t x = 0; x < blot.width; x++) {
      const float height =
          Noise(static_cast<float>(x) * bumps, static_cast<float>(y) * bumps, code);
      blot.pixels.push_back(Intensity(height, solid));
    }
  }
  return blot;
}

}  // namespace

host::Font ComputedFont(const RasterOptions &options) {
  Characters characters{{}, options.size * 9 / 10, options.size / 4};
  for (size_t code = 0; code < options.codes.size(); code++) {
    if (options.codes[code] == 0) continue;
    characters.byCode.emplace(static_cast<int32_t>(code),
                              Blot(options.codes[code], options.size, options.solid));
  }
  return FontOf(characters, static_cast<int32_t>(options.codes.size()), options.depth);
}

}  // namespace brisal::tools
