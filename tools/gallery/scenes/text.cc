#include "tools/gallery/scenes/scenes.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace brisal::tools {

namespace {

int32_t Pixels(double size) { return std::clamp(int32_t(size), 4, 512); }

// The letters that fall, each its own way.
constexpr const char kRain[] = "typography";

}  // namespace

// The value of a variant: the draw mode, plus 8 for solid glyphs, plus 16 for glyphs of depth 32.
void DrawFontModes(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);
  const int32_t depth = stage.Value() & 16 ? 32 : 8;
  const bool solid = stage.Value() & 8;
  const host::Font large = stage.Font({.size = Pixels(s * 0.24), .depth = depth, .solid = solid});
  const host::Font small = stage.Font({.size = Pixels(s * 0.06), .depth = depth, .solid = solid});

  SHOW(
    BRSL_ShadeBox(0, h * 2 / 3, w, h, 0x102040, 0x802040, 0x204010, 0x101010, DRAW_SOLID);
    for (CRF_Font *font : {large.get(), small.get()}) {
      CRF_DrawMode(font, stage.Value() & 3);
      CRF_BackdropColour(font, 0x00203050);
    }
    const int32_t line = CRF_GetMaxChrSize(small.get(), 1);
    CRF_Draw(large.get(), "Ragtime", 0, w / 20, h / 20, 0xFFFFFFFF);
    CRF_Draw(large.get(), "Ragtime", 0, w / 20, h / 3, 0xA0FFC040);
    CRF_Draw(small.get(), "alpha 255 and 160", 0, w / 20, h * 2 / 3 - line * 5 / 4, 0xFFFFFFFF);
    for (int32_t i = 0; i < 4; i++) {
      const uint32_t alpha = 255 - i * 70;
      CRF_Draw(small.get(), "Five dozen jugs of liquid veneer", 0, w / 20, h * 2 / 3 + line * i * 9 / 8, alpha << 24 | 0xF0E8D0);
    }
  )
}

void DrawText(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);
  const host::Font title = stage.Font({.size = Pixels(s * 0.2)});
  const host::Font body = stage.Font({.size = Pixels(s * 0.05)});
  const host::Font hero = stage.Font({.size = Pixels(s * 0.62)});

  // A title with a shadow under it, as wide as it measures.
  SHOW(
    const int32_t x = (w - CRF_TextWidth(title.get(), "Typecase", 0)) / 2;
    const int32_t rise = CRF_TextHeight(title.get(), "Typecase", 0, 1);
    for (int32_t i = 6; i > 0; i--) CRF_Draw(title.get(), "Typecase", 0, x + i * s / 300, h / 24 + i * s / 300, 0x28000000);
    CRF_Draw(title.get(), "Typecase", 0, x, h / 24, 0xFFFFF4D8);
  )
  // A column of text on darkened ground, broken into lines by its width.
  const std::string words =
      "A line of type is set letter by letter: each glyph is a handful of runs, blended where its edge is soft. "
      "Spacing moves the pen, the viewport trims what leaves the page, and nothing is drawn twice.";
  SHOW(
    const int32_t left = w / 16;
    const int32_t top = h / 24 + rise * 5 / 4;
    const int32_t column = w * 7 / 16;
    BRSL_Box(left, top, left + column, h - h / 16, 0x405060, BRSL_FILLED | DRAW_MULT);
    const int32_t pad = s / 32;
    std::string line;
    int32_t y = top + pad;
    for (size_t at = 0; at < words.size();) {
      const size_t end = std::min(words.find(' ', at), words.size());
      const std::string longer = line + words.substr(at, end - at);
      if (CRF_TextWidth(body.get(), longer.c_str(), 0) > column - 2 * pad) {
        CRF_Draw(body.get(), line.c_str(), 0, left + pad, y, 0xFFF0F4FF);
        y += CRF_GetMaxChrSize(body.get(), 1) * 9 / 8;
        line.clear();
      } else {
        line = longer + " ";
        at = end + 1;
      }
      if (y > h) break;
    }
    CRF_Draw(body.get(), line.c_str(), 0, left + pad, y, 0xFFF0F4FF);
  )
  // Windows in the page through which huge letters show, each clipped to its own.
  SHOW(
    const int32_t panes = 6;
    const int32_t right = w - w / 16;
    const int32_t from = left + column + w / 20;
    const int32_t pane = std::max((right - from) / panes, 1);
    for (int32_t i = 0; i < panes; i++) {
      const int32_t shift = i % 2 * s / 24;
      BRSL_SetBufferViewPort(std::min(from + i * pane, w), std::min(top + shift, h), std::min(from + (i + 1) * pane - pane / 10, w), std::max(h - h / 8 + shift - s / 24, 0));
      BRSL_Box(0, 0, w, h, 0xF4ECDC, BRSL_FILLED | DRAW_HALF);
      const uint32_t ink = 0xD0A02818 + i * 0x0C06 - i * 0x140000;
      CRF_Draw(hero.get(), "&a", 0, from - s / 20, top - s / 14 + shift, ink);
    }
    BRSL_SetBufferViewPort(0, 0, w, h);
  )
  // Letters on a wave, each as wide as it is.
  SHOW(
    int32_t pen = from;
    for (int32_t i = 0; kRain[i] != 0; i++) {
      const double turn = i * 0.8;
      const uint32_t ink = 0xFF000000 | uint32_t(200 + 55 * std::cos(turn)) << 16 | uint32_t(180 + 60 * std::sin(turn)) << 8 | 0x60;
      CRF_Draw(body.get(), &kRain[i], 1, pen, h - h / 10 + int32_t(s * 0.02 * std::sin(turn)), ink);
      pen += CRF_TextWidth(body.get(), &kRain[i], 1) + s / 80;
    }
  )
}

}  // namespace brisal::tools
