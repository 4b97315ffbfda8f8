#include "reference/reference.h"

namespace reference {
namespace {

// Whether a pair of formats is copied at all, given the flags.
bool Offers(int32_t target, int32_t source, uint32_t flags) {
  const bool transparent = flags & 1, others = flags & ~1u;
  if (target == 5) return source == 5 && !others;
  if (target == source || (target == 4 && source == 5)) return !others;
  if (source == 5) return !(transparent && others);
  return true;
}

// The average of two 5:5:5 pixels, rounded down only once.
uint32_t Average555(uint32_t s, uint32_t b) {
  uint32_t average = 0;
  for (uint32_t field : {0x7C00u, 0x3E0u, 0x1Fu}) {
    average |= ((s & field) + (b & field)) >> 1 & field;
  }
  return average;
}

bool EffectOffers(uint32_t mode, int32_t format) {
  if (mode == 8192) return format >= 1 && format <= 5;
  if (mode == 16384) return format == 1 || format == 2 || format == 4 || format == 5;
  return format == 1 || format == 2 || format == 4;
}

}  // namespace

// Calls visit(sx, sy, x, y) for the pixels of the source rectangle that land in the viewport.
template <class Visit>
void Reference::VisitBlit(int32_t sx1, int32_t sy1, int32_t sx2, int32_t sy2, int32_t dx,
                          int32_t dy, Visit visit) {
  for (int64_t y = viewport.top; y < viewport.bottom; y++) {
    for (int64_t x = viewport.left; x < viewport.right; x++) {
      const int64_t sx = x - dx + sx1, sy = y - dy + sy1;
      if (sx >= sx1 && sx < sx2 && sy >= sy1 && sy < sy2) visit(sx, sy, x, y);
    }
  }
}

uint32_t Reference::ConvertFromSource(uint32_t stored) const {
  if (format == source.format) return stored;
  return Pack(Widened(source.format, stored));
}

bool Reference::IsMasked(uint32_t stored, uint32_t maskColour) const {
  if (source.format <= 2) return stored == PackFor(source.format, maskColour);
  if (source.format == 3 && format <= 3) return ConvertFromSource(stored) == Pack(maskColour);
  return stored == maskColour;
}

void Reference::BlitByAlpha(int64_t x, int64_t y, uint32_t stored) {
  const int bits = format == 1 ? 6 : format == 2 ? 5 : 8;
  const int64_t alpha = stored >> (32 - bits), opaque = bits == 8 ? 254 : (1 << bits) - 1;
  if (alpha == 0) return;
  if (alpha >= opaque) return Store(x, y, ConvertFromSource(stored));
  const uint32_t d = Widened(format, Load(x, y)), s = Widened(format, Pack(stored));
  uint32_t mixed = 0;
  for (int c = 0; c < 3; c++) {
    const int64_t dc = Channel(d, c), sc = Channel(s, c);
    mixed |= static_cast<uint32_t>(dc + ((sc - dc) * alpha >> bits)) << 8 * c;
  }
  Store(x, y, Pack(mixed));
}

void Reference::Blit(int32_t sx1, int32_t sy1, int32_t sx2, int32_t sy2, int32_t dx, int32_t dy,
                     uint32_t maskColour, uint32_t flags) {
  if (!FormatKnown() || !source.FormatKnown() || !Offers(format, source.format, flags)) return;
  const bool transparent = flags & 1;
  const bool byAlpha = transparent && source.format == 5 && format != 5;
  const bool byColour = transparent && (source.format != 5 || format >= 4);
  VisitBlit(sx1, sy1, sx2, sy2, dx, dy, [&](int64_t sx, int64_t sy, int64_t x, int64_t y) {
    const uint32_t stored = source.Load(sx, sy);
    if (byColour && IsMasked(stored, maskColour)) return;
    if (byAlpha) return BlitByAlpha(x, y, stored);
    Store(x, y, ConvertFromSource(stored));
  });
}

void Reference::BlitFx(int32_t sx1, int32_t sy1, int32_t sx2, int32_t sy2, int32_t dx, int32_t dy,
                       uint32_t blitFlags, uint32_t blitMaskColour, uint32_t fxMode,
                       uint32_t fxColour, uint32_t useBlendSource, int32_t /*reserved*/) {
  if (fxMode == 0) return Blit(sx1, sy1, sx2, sy2, dx, dy, blitMaskColour, blitFlags);
  const uint32_t mode = fxMode & ~1u;
  if (format != source.format || !EffectOffers(mode, format)) return;
  const bool blend = useBlendSource == 1;
  Buffer other = blendSource;
  other.format = format;
  const uint32_t colour = Pack(fxColour);
  VisitBlit(sx1, sy1, sx2, sy2, dx, dy, [&](int64_t sx, int64_t sy, int64_t x, int64_t y) {
    const uint32_t s = source.Load(sx, sy);
    const uint32_t o = blend ? other.Load(sx, sy) : colour;
    const auto result = [&](int32_t drawMode) { return Combine(format, s, o, drawMode, 255); };
    const auto leave = [&](uint32_t behind) {
      Store(x, y, s);
      source.Store(sx, sy, behind);
    };
    const auto both = [&](uint32_t value) {
      Store(x, y, value);
      if (!blend) source.Store(sx, sy, value);
    };
    if (mode == 0) leave(colour);
    if (mode == 32 && blend) Store(x, y, format == 2 ? Average555(s, o) : result(DRAW_HALF));
    if (mode == 32 && !blend) leave(result(DRAW_HALF));
    if (mode == 64) both(result(DRAW_ADD));
    if (mode == 128) both(result(DRAW_SUB));
    if (mode == 8192 || (mode == 1024 && blend)) Store(x, y, result(DRAW_MULT));
    if (mode == 16384 && useBlendSource == 0) leave(result(DRAW_MULT));
  });
}

}  // namespace reference
