#include "brisal/brisal.h"
#include "reference/reference.h"

namespace reference {
namespace {

bool AddsOrSubtracts(int32_t mode) { return mode == DRAW_ADD || mode == DRAW_SUB; }

bool OfferedByGouraud(int32_t mode) {
  return mode == DRAW_NORMAL || mode == DRAW_SOLID || mode == DRAW_HALF || mode == DRAW_ADD ||
         mode == DRAW_SUB || mode == DRAW_MULT || mode == DRAW_REVSUB;
}

bool OfferedByStrip(int32_t mode, int32_t format) {
  switch (mode) {
    case DRAW_ADD:
    case DRAW_SUB: return format <= 4;
    case DRAW_MULT: return format == 1;
    case DRAW_REVSUB: return false;
    default: return true;
  }
}

}  // namespace

void Reference::Span(int64_t y, int64_t left, int64_t right, uint32_t packed, int32_t mode) {
  if (AddsOrSubtracts(mode) && packed == 0) return;
  if (mode == DRAW_ALPHA && format <= 2) {
    if (inkAlpha <= 16) return;
    if (inkAlpha >= 240) mode = DRAW_SOLID;
  }
  for (int64_t x = left; x < right; x++) Plot(x, y, packed, mode);
}

void Reference::GouraudSpan(int64_t y, int64_t left, int64_t right, uint32_t leftColour,
                            uint32_t rightColour, int32_t mode) {
  if (!OfferedByGouraud(mode)) return;
  if (AddsOrSubtracts(mode) && Pack(leftColour) == 0 && Pack(rightColour) == 0) return;
  const int64_t n = right - left;
  for (int64_t i = 0; i < n; i++) {
    uint32_t colour = 0;
    for (int c = 0; c < 3; c++) {
      const int64_t from = Channel(leftColour, c) * 65536;
      const int64_t step = (Channel(rightColour, c) * 65536 - from) / n;
      colour |= static_cast<uint32_t>((from + i * step) >> 16) << 8 * c;
    }
    Plot(left + i, y, Pack(colour), mode);
  }
}

void Reference::DrawStrip(int32_t y, int32_t x1, int32_t x2, uint32_t packed, int32_t mode) {
  if (!OfferedByStrip(mode, format)) return;
  if (mode == DRAW_ALPHA && format <= 2 && inkAlpha < 15) return;
  for (int64_t x = x1; x < x2; x++) Plot(x, y, packed, mode);
}

}  // namespace reference
