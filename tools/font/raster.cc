#include "tools/font/raster.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <system_error>

#include "host/services.h"
#include "tools/font/outlines.h"

namespace brisal::tools {

namespace fs = std::filesystem;

namespace {

using Characters = std::map<int32_t, DrawnCharacter>;  // by code

Characters DrawAll(const Outlines &outlines, const CodePoints &codes) {
  Characters characters;
  for (size_t code = 0; code < codes.size(); code++) {
    if (codes[code] == 0) continue;
    if (auto character = outlines.Draw(codes[code])) {
      characters.emplace(static_cast<int32_t>(code), std::move(*character));
    }
  }
  return characters;
}

// Where the pen and the baseline are in the images of all glyphs, and how large the images get.
struct Frame {
  int32_t left = 0;  // columns before the pen, for characters that reach back
  int32_t ascent = 0;
  int32_t width = 0;
  int32_t height = 0;

  Frame(const Outlines &outlines, const Characters &characters) : ascent(outlines.Ascent()) {
    int32_t descent = outlines.Descent();
    for (const auto &[code, c] : characters) {
      left = std::max(left, -c.left);
      ascent = std::max(ascent, c.top);
      descent = std::max(descent, c.height - c.top);
    }
    for (const auto &[code, c] : characters) {
      width = std::max({width, left + c.left + c.width, c.advance});
    }
    height = ascent + descent;
  }
};

// What CRF_CompressChr takes.
std::vector<uint8_t> ImageOf(const DrawnCharacter &c, const Frame &frame, int32_t depth) {
  const int32_t first = frame.left + c.left;
  const int32_t header[] = {first + c.width, frame.height, depth, 0};
  const size_t bytes = static_cast<size_t>(depth / 8);
  const size_t width = static_cast<size_t>(header[0]);
  std::vector<uint8_t> image(sizeof header + width * static_cast<size_t>(frame.height) * bytes);
  std::memcpy(image.data(), header, sizeof header);
  const size_t left = static_cast<size_t>(first);
  const size_t top = static_cast<size_t>(frame.ascent - c.top);
  const size_t across = static_cast<size_t>(c.width);
  for (size_t i = 0; i < c.pixels.size(); i++) {
    const size_t x = left + i % across;
    const size_t y = top + i / across;
    uint8_t *pixel = &image[sizeof header + (y * width + x) * bytes];
    const uint8_t intensity = c.pixels[i];
    if (intensity == 0) continue;
    std::memset(pixel, 255, bytes);
    pixel[bytes - 1] = intensity;
  }
  return image;
}

bool HasPixels(const DrawnCharacter &c) {
  return std::any_of(c.pixels.begin(), c.pixels.end(), [](uint8_t pixel) { return pixel != 0; });
}

void AddGlyph(CRF_Font *font, int32_t code, const std::vector<uint8_t> &image) {
  const uintptr_t block = CRF_CompressChr(image.data());
  if (block == 0) throw host::Error("character " + std::to_string(code) + " is too large");
  CRF_SetChrBmp(font, code, host::BlockAddress(block));
}

}  // namespace

host::Font RasterFont(const fs::path &path, const RasterOptions &options) {
  const Outlines outlines(path, options.size, options.solid);
  const Characters characters = DrawAll(outlines, options.codes);
  if (characters.empty()) throw host::Error(path.string() + ": has none of the characters");
  const Frame frame(outlines, characters);
  host::Font font = host::MakeFont(static_cast<int32_t>(options.codes.size()));
  CRF_SetChrDepth(font.get(), options.depth);
  CRF_DrawMode(font.get(), 1);
  CRF_SetMaxChrSize(font.get(), frame.width, frame.height);
  for (const auto &[code, c] : characters) {
    CRF_ChrInfo *info = CRF_GetChrInfoPtr(font.get(), code);
    info->underHang = c.left;
    info->width = c.width;
    info->overHang = c.advance - c.left - c.width;
    if (HasPixels(c)) AddGlyph(font.get(), code, ImageOf(c, frame, options.depth));
  }
  return font;
}

host::Font DejaVuFont(const RasterOptions &options) {
  constexpr const char *kPlaces[] = {
      "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",   "/usr/share/fonts/dejavu/DejaVuSans.ttf",
      "/usr/share/fonts/dejavu-sans-fonts/DejaVuSans.ttf", "/usr/share/fonts/TTF/DejaVuSans.ttf",
      "/usr/local/share/fonts/dejavu/DejaVuSans.ttf",      "/Library/Fonts/DejaVuSans.ttf",
  };
  std::error_code ignored;
  for (const char *place : kPlaces) {
    if (fs::exists(place, ignored)) return RasterFont(place, options);
  }
  throw host::Error(
      "DejaVuSans.ttf is nowhere on this machine (Debian has it in fonts-dejavu-core)");
}

}  // namespace brisal::tools
