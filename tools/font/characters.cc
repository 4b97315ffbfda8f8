#include "tools/font/characters.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "host/services.h"

namespace brisal::tools {

namespace {

// Where the pen and the baseline are in the images of all glyphs, and how large the images get.
struct Frame {
  int32_t left = 0;  // columns before the pen, for characters that reach back
  int32_t ascent = 0;
  int32_t width = 0;
  int32_t height = 0;

  explicit Frame(const Characters &characters) : ascent(characters.ascent) {
    int32_t descent = characters.descent;
    for (const auto &[code, c] : characters.byCode) {
      left = std::max(left, -c.left);
      ascent = std::max(ascent, c.top);
      descent = std::max(descent, c.height - c.top);
    }
    for (const auto &[code, c] : characters.byCode) {
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

host::Font FontOf(const Characters &characters, int32_t count, int32_t depth) {
  const Frame frame(characters);
  host::Font font = host::MakeFont(count);
  CRF_SetChrDepth(font.get(), depth);
  CRF_DrawMode(font.get(), 1);
  CRF_SetMaxChrSize(font.get(), frame.width, frame.height);
  for (const auto &[code, c] : characters.byCode) {
    CRF_ChrInfo *info = CRF_GetChrInfoPtr(font.get(), code);
    info->underHang = c.left;
    info->width = c.width;
    info->overHang = c.advance - c.left - c.width;
    if (HasPixels(c)) AddGlyph(font.get(), code, ImageOf(c, frame, depth));
  }
  return font;
}

}  // namespace brisal::tools
