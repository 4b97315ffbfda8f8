#include "font/text.h"

#include <algorithm>
#include <cstring>

#include "core/ints.h"
#include "pixel/format.h"
#include "pixel/glyph_kernels.h"

namespace brisal {
namespace {

int32_t LengthOf(const void *codes, int32_t count) {
  constexpr int32_t kLongest = 32000;  // of a text whose end is looked for
  if (codes == nullptr || count > 0) return codes != nullptr ? count : 0;
  const void *end = std::memchr(codes, 0, kLongest);
  if (end == nullptr) return 0;
  return static_cast<int32_t>(static_cast<const uint8_t *>(end) -
                              static_cast<const uint8_t *>(codes));
}

int64_t Advance(const Font &font, uint8_t code) {
  if (!font.Has(code)) return 0;
  const ChrInfo &info = font.info[code];
  return int64_t{info.underHang} + info.width + info.overHang;
}

// Draws one glyph after the other with what they have in common.
class GlyphDrawing {
 public:
  GlyphDrawing(const Canvas &canvas, const Font &font, uint32_t colour)
      : canvas_(canvas), depth_(font.depth), ink_(InkOf(font, colour)) {
    if (IsInvisible(font, colour)) return;
    const auto find = [&](GlyphPixels pixels) {
      return FindGlyphKernel(canvas.isa, canvas.target.format, pixels, RuleOf(font));
    };
    if (depth_ == 8 && 0 <= font.drawMode && font.drawMode <= 2) {
      withPixels_ = find(GlyphPixels::kSoft);
      solid_ = find(GlyphPixels::kSolid);
    } else if (depth_ == 32) {
      withPixels_ = find(GlyphPixels::kColours);
    }
  }

  bool DrawsNothing() const { return withPixels_ == nullptr; }

  void Draw(const GlyphBlock &glyph, int64_t x, int32_t y) const {
    const Viewport &view = canvas_.viewport;
    if (!glyph.IsDrawn(depth_)) return;
    if (x >= view.right || x + glyph.Width() < view.left) return;
    const int64_t first = std::max<int64_t>(glyph.FirstRow(), int64_t{view.top} - y);
    const int64_t end = std::min<int64_t>(glyph.EndRow(), int64_t{view.bottom} - y);
    const int64_t left = std::max<int64_t>(INT16_MIN, view.left - x);
    const int64_t right = std::min<int64_t>(2 * INT16_MAX, view.right - x);
    if (first >= end || left >= right) return;
    const Buffer &target = canvas_.target;
    const auto row = [&](int64_t r) { return static_cast<int32_t>(r - glyph.FirstRow()); };
    const GlyphPart part = {
        glyph,
        row(first),
        row(end),
        static_cast<int32_t>(left),
        static_cast<int32_t>(right),
        target.Row(y + first) + ByteOffset(x + left, BytesPerPixel(target.format)),
        target.pitch};
    (glyph.IsSolid() ? solid_ : withPixels_)(part, ink_);
  }

 private:
  static GlyphRule RuleOf(const Font &font) {
    if (font.drawMode == 1) return GlyphRule::kOnTarget;
    return font.drawMode == 2 || font.depth == 8 ? GlyphRule::kOnBackdrop : GlyphRule::kReplace;
  }

  static GlyphInk InkOf(const Font &font, uint32_t colour) {
    const uint32_t opacity = (colour >> 24) + 1;
    const uint32_t opaque = colour & 0xFFFFFF;
    if (font.drawMode == 1) return {opaque, 0, opacity};
    if (font.drawMode == 2) return {opaque, font.backdrop & 0xFFFFFF, opacity};
    return {colour, 0, 256};
  }

  // Some formats take a very transparent colour for none.
  bool IsInvisible(const Font &font, uint32_t colour) const {
    const bool soft = font.depth == 8;
    const uint32_t alpha = colour >> 24;
    if (font.drawMode == 2) {
      return canvas_.target.format == BRSL_FORMAT_555 && !soft && colour < 8;
    }
    if (font.drawMode != 1) return false;
    switch (canvas_.target.format) {
      case BRSL_FORMAT_565:
      case BRSL_FORMAT_555: return alpha < (soft ? 1u : 7u);
      case BRSL_FORMAT_RGB: return false;
      default: return !soft && colour == 0;
    }
  }

  const Canvas &canvas_;
  int32_t depth_;
  GlyphInk ink_;
  GlyphKernel solid_ = nullptr;
  GlyphKernel withPixels_ = nullptr;
};

}  // namespace

Text::Text(const void *text, int32_t count)
    : codes(static_cast<const uint8_t *>(text)), length(LengthOf(text, count)) {}

void DrawText(const Canvas &canvas, const Font &font, const Text &text, int32_t x, int32_t y,
              uint32_t colour) {
  const Viewport &view = canvas.viewport;
  if (y > view.bottom || int64_t{y} + font.maxHeight < view.top) return;
  const GlyphDrawing drawing(canvas, font, colour);
  if (drawing.DrawsNothing()) return;
  int64_t pen = x;
  for (const uint8_t code : text) {
    const uint8_t *bitmap = font.Bitmap(code);
    if (bitmap != nullptr && pen + font.maxWidth > view.left) {
      drawing.Draw(GlyphBlock(bitmap), pen, y);
    }
    pen += Advance(font, code);
    if (pen > view.right) return;
  }
}

int32_t TextWidth(const Font &font, const Text &text) {
  int64_t width = 0;
  for (const uint8_t code : text) width = Wrap(width + Advance(font, code));
  return static_cast<int32_t>(width);
}

int32_t TextHeight(const Font &font, const Text &text, int32_t mode) {
  if (mode != 1) return 0;
  int32_t height = font.maxHeight;
  for (const uint8_t code : text) {
    const uint8_t *bitmap = font.Bitmap(code);
    if (bitmap != nullptr) height = std::max(height, GlyphBlock(bitmap).EndRow());
  }
  return height;
}

}  // namespace brisal
