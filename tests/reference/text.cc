// Text: glyphs decoded run by run, pixels combined one by one.
#include <algorithm>

#include "reference/fonts.h"
#include "reference/reference.h"

namespace reference {
namespace {

int64_t LengthOf(const char *text, int32_t length) {
  if (length > 0) return length;
  for (int64_t i = 0; i < 32000; i++) {
    if (text[i] == 0) return i;
  }
  return 0;
}

int64_t Advance(const CRF_Font &font, uint8_t code) {
  if (code >= font.count) return 0;
  const CRF_ChrInfo &info = font.infos[code];
  return int64_t{info.underHang} + info.width + info.overHang;
}

// One operation on red, green and blue; the top byte becomes 0.
template <class F>
uint32_t PerChannel(uint32_t a, uint32_t b, F f) {
  uint32_t result = 0;
  for (int c = 0; c < 3; c++) {
    result |= static_cast<uint32_t>(f(Channel(a, c), Channel(b, c)) & 255) << 8 * c;
  }
  return result;
}

}  // namespace

void Reference::DrawText(const CRF_Font *font, const char *text, int32_t length, int32_t x,
                         int32_t y, uint32_t colour) {
  if (!font || !text || !FormatKnown()) return;
  if (y > viewport.bottom || int64_t{y} + font->maxHeight < viewport.top) return;
  int64_t pen = x;
  const int64_t count = LengthOf(text, length);
  for (int64_t i = 0; i < count; i++) {
    const auto code = static_cast<uint8_t>(text[i]);
    const uint8_t *block = code < font->count ? font->bitmaps[code] : nullptr;
    if (block && pen + font->maxWidth > viewport.left) DrawGlyph(*font, block, pen, y, colour);
    pen += Advance(*font, code);
    if (pen > viewport.right) return;
  }
}

void Reference::DrawGlyph(const CRF_Font &font, const uint8_t *block, int64_t x, int64_t y,
                          uint32_t colour) {
  const uint32_t width = WordAt(block + 4), depth = WordAt(block + 12);
  const uint32_t runTable = WordAt(block + 24), pixelTable = WordAt(block + 28);
  const int64_t first = WordAt(block + 16), end = WordAt(block + 20);
  if (static_cast<int32_t>(depth) != font.depth || runTable == 0) return;
  if (depth == 32 && pixelTable == 0) return;
  if (x >= viewport.right || x + width < viewport.left) return;
  const int size = static_cast<int>(depth / 8);
  for (int64_t row = first; row < end; row++) {
    const int64_t entry = (row - first) * 4;
    const uint32_t offset = WordAt(block + runTable + entry);
    if (offset == 0) continue;
    const uint8_t *runs = block + runTable + offset, *pixels = block + pixelTable;
    pixels += pixelTable ? WordAt(pixels + entry) : 0;
    for (int32_t n = 0; n < ShortAt(runs); n++) {
      const int64_t start = ShortAt(runs + 2 + 4 * n), length = ShortAt(runs + 4 + 4 * n);
      for (int64_t i = 0; i < length; i++, pixels += pixelTable ? size : 0) {
        if (!Inside(x + start + i, y + row)) continue;
        const uint32_t pixel = pixelTable == 0 ? 255 : size == 1 ? *pixels : WordAt(pixels);
        PlotGlyphPixel(font, x + start + i, y + row, pixel, colour);
      }
    }
  }
}

void Reference::PlotGlyphPixel(const CRF_Font &font, int64_t x, int64_t y, uint32_t pixel,
                               uint32_t colour) {
  const bool grey = font.depth == 8, blends = font.drawMode == 1;
  const int64_t alpha = colour >> 24;
  if (grey && font.drawMode == 0) {
    const auto scaled = [&](int c) { return Channel(colour >> 8 * c & 255, 0) * pixel / 256; };
    uint32_t entry = 0;
    for (int c = 0; c < 4; c++) entry |= static_cast<uint32_t>(scaled(c)) << 8 * c;
    return Store(x, y, Pack(entry));
  }
  if (grey && font.drawMode != 1 && font.drawMode != 2) return;
  if (blends && format <= 2 && alpha < (grey ? 1 : 7)) return;
  if (blends && format >= 4 && !grey && colour == 0) return;
  if (font.drawMode == 2 && format == 2 && !grey && colour < 8) return;

  const uint32_t ink =
      grey ? colour
           : PerChannel(pixel, colour, [](int64_t p, int64_t c) { return p * (c + 1) / 256; });
  const int64_t weight = (grey ? pixel : pixel >> 24) * (alpha + 1) / 256;
  const uint32_t behind = font.drawMode == 2 ? font.backdrop : Widened(format, Load(x, y));
  const uint32_t mixed =
      PerChannel(behind, ink, [&](int64_t d, int64_t s) { return d + ((s - d) * weight >> 8); });
  Store(x, y, Pack(blends || font.drawMode == 2 ? mixed : ink));
}

int32_t TextWidth(const CRF_Font *font, const char *text, int32_t length) {
  if (!font || !text) return 0;
  int64_t width = 0;
  const int64_t count = LengthOf(text, length);
  for (int64_t i = 0; i < count; i++) width += Advance(*font, static_cast<uint8_t>(text[i]));
  return static_cast<int32_t>(width);
}

int32_t TextHeight(const CRF_Font *font, const char *text, int32_t length, int32_t mode) {
  if (!font || mode != 1) return 0;
  int32_t height = font->maxHeight;
  const int64_t count = text ? LengthOf(text, length) : 0;
  for (int64_t i = 0; i < count; i++) {
    const void *block = GetChrBitmap(font, static_cast<uint8_t>(text[i]));
    if (!block) continue;
    height =
        std::max(height, static_cast<int32_t>(WordAt(static_cast<const uint8_t *>(block) + 20)));
  }
  return height;
}

}  // namespace reference
