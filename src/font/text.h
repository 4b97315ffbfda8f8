#pragma once

#include <cstdint>

#include "core/canvas.h"
#include "font/font.h"

namespace brisal {

// Character codes; none where there is no text.
struct Text {
  // A count of 0 or less means the codes before the first 0 byte.
  Text(const void *text, int32_t count);

  const uint8_t *begin() const { return codes; }
  const uint8_t *end() const { return codes + length; }

  const uint8_t *codes;
  int32_t length;
};

void DrawText(const Canvas &canvas, const Font &font, const Text &text, int32_t x, int32_t y,
              uint32_t colour);
int32_t TextWidth(const Font &font, const Text &text);
// Mode 1 measures the text; any other gives 0.
int32_t TextHeight(const Font &font, const Text &text, int32_t mode);

}  // namespace brisal
