#include "support/picture.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

#include "brisal/brisal.h"
#include "support/random.h"

namespace {

constexpr size_t kGuardRows = 2;

// Random bytes, with the values at both ends of a channel more frequent than the others.
void Scatter(std::vector<uint8_t> &bytes, uint64_t seed) {
  Random random(seed);
  for (size_t i = 0; i + 8 <= bytes.size(); i += 8) {
    const uint64_t value = random.Next(), style = random.Next();
    for (size_t b = 0; b < 8; b++) {
      const uint8_t kind = style >> 8 * b & 7;
      bytes[i + b] = kind == 0 ? 0 : kind == 1 ? 255 : static_cast<uint8_t>(value >> 8 * b);
    }
  }
}

// Runs of pixels of the mask colour; now and then one with other unused or top bits.
void PlantMask(Picture &picture) {
  const Layout &layout = picture.layout();
  const reference::Buffer pixels = ReferenceFor(picture);
  Random random(layout.seed + 1);
  int32_t left = 0;
  bool masked = false;
  for (int32_t y = 0; y < layout.height && pixels.FormatKnown(); y++) {
    for (int32_t x = 0; x < layout.width; x++) {
      if (left-- <= 0) {
        masked = random.Between(0, 99) < layout.maskShare;
        left = random.OneIn(3) ? random.Between(1, 40) : random.Between(1, 4);
      }
      if (!masked && layout.format == 5 && random.OneIn(2)) {
        const uint32_t alpha = random.Pick({0u, 1u, 3u, 4u, 7u, 8u, 128u, 223u, 224u, 231u, 232u,
                                            247u, 248u, 251u, 252u, 253u, 254u, 255u});
        pixels.Store(x, y, (pixels.Load(x, y) & 0xFFFFFF) | alpha << 24);
      }
      if (!masked) continue;
      const uint32_t unused = layout.format == 2 ? 0x8000 : layout.format >= 4 ? 0x80000000 : 0;
      const uint32_t other = random.OneIn(40) ? unused : 0;
      pixels.Store(x, y, reference::PackFor(layout.format, layout.mask) ^ other);
    }
  }
}

}  // namespace

Picture::Picture(const Layout &layout) : layout_(layout) {
  const auto row = static_cast<size_t>(std::abs(layout.pitch));
  const auto rows = static_cast<size_t>(layout.height);
  const size_t guard = kGuardRows * ((row + 63) / 64 * 64) + static_cast<size_t>(layout.misalign);
  bytes_.resize((guard + row * (rows + kGuardRows) + 127) / 64 * 64);
  Scatter(bytes_, layout.seed);
  origin_ = layout.pitch < 0 ? guard + row * (rows - 1) : guard;
  if (layout.maskShare > 0) PlantMask(*this);
}

uint32_t Picture::ColourAt(int32_t x, int32_t y) {
  return ReferenceFor(*this).FastPointJt(x, y) & 0xFFFFFF;
}

Layout RandomLayout(Random &random, int32_t maxWidth, int32_t maxHeight) {
  Layout layout;
  layout.format = random.OneIn(40) ? random.Pick({0, 6}) : random.Between(1, 5);
  layout.width = random.Between(1, maxWidth);
  layout.height = random.Between(1, maxHeight);
  layout.pitch = layout.width * kFormatBytes[layout.format] + random.Between(0, 9);
  if (random.OneIn(3)) layout.pitch = -layout.pitch;
  layout.misalign = random.OneIn(2) ? random.Between(0, 15) : 0;
  layout.seed = random.Next();
  layout.inkAlpha = random.OneIn(2) ? random.Between(0, 255)
                                    : random.Pick({0, 1, 14, 15, 16, 17, 128, 239, 240, 254, 255});
  reference::Rect &v = layout.viewport;
  v = {0, 0, layout.width, layout.height};
  if (random.OneIn(3)) return layout;
  v.left = random.Between(0, layout.width);
  v.right = random.Between(v.left, layout.width);
  v.top = random.Between(0, layout.height);
  v.bottom = random.Between(v.top, layout.height);
  return layout;
}

void Target(Picture &picture) {
  const Layout &layout = picture.layout();
  BRSL_SetBufferViewPort(0, 0, 0, 0);
  BRSL_QuadG(0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, DRAW_NORMAL);
  BRSL_QuadT(nullptr, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, nullptr);
  BRSL_SetBuffer(picture.Address(), layout.pitch, layout.format);
  const reference::Rect &v = layout.viewport;
  BRSL_SetBufferViewPort(v.right, v.top, v.left, v.bottom);
  BRSL_SetInkAlpha(layout.inkAlpha);
}

reference::Reference ReferenceFor(Picture &picture) {
  const Layout &layout = picture.layout();
  reference::Reference reference;
  reference.address = picture.Address();
  reference.pitch = layout.pitch;
  reference.format = layout.format;
  reference.viewport = layout.viewport;
  reference.inkAlpha = layout.inkAlpha;
  return reference;
}

std::string Difference(Picture &actual, Picture &expected) {
  if (actual.Bytes() == expected.Bytes()) return "";
  const Layout &layout = actual.layout();
  const auto at =
      std::mismatch(actual.Bytes().begin(), actual.Bytes().end(), expected.Bytes().begin());
  const int64_t offset = &*at.first - actual.Address();
  const int64_t row = std::abs(layout.pitch),
                fromLowest = layout.pitch < 0 ? offset + row * (layout.height - 1) : offset;
  const int64_t line = fromLowest / row, bpp = kFormatBytes[layout.format];
  std::ostringstream text;
  text << "byte " << offset << std::hex << ": " << int{*at.first} << " instead of "
       << int{*at.second} << std::dec;
  if (fromLowest < 0 || line >= layout.height || fromLowest % row >= layout.width * bpp) {
    return text.str() + ", outside the buffer";
  }
  const auto x = static_cast<int32_t>(fromLowest % row / bpp);
  const auto y = static_cast<int32_t>(layout.pitch < 0 ? layout.height - 1 - line : line);
  text << ", pixel (" << x << ", " << y << "): " << std::hex << actual.ColourAt(x, y)
       << " instead of " << expected.ColourAt(x, y);
  return text.str();
}

std::string Describe(const Layout &layout) {
  std::ostringstream text;
  const reference::Rect &v = layout.viewport;
  text << "format " << layout.format << ", " << layout.width << "x" << layout.height << ", pitch "
       << layout.pitch << ", misaligned by " << layout.misalign << ", viewport (" << v.left << ", "
       << v.top << ", " << v.right << ", " << v.bottom << "), ink alpha " << layout.inkAlpha;
  return text.str();
}
