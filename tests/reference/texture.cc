#include <algorithm>
#include <initializer_list>

#include "reference/reference.h"

namespace reference {
namespace {

// One operation on each of the four bytes.
template <class F>
uint32_t Bytewise(uint32_t x, uint32_t y, F f) {
  uint32_t result = 0;
  for (int b = 0; b < 4; b++)
    result |= static_cast<uint32_t>(f(Channel(x, b), Channel(y, b))) << 8 * b;
  return result;
}

int64_t Lerp(int64_t a, int64_t b, int64_t f) { return a + ((b - a) * f >> 8); }

// The mask colour as stored pixels of a texture have it, and as its texels have it.
uint32_t StoredMask(const BRSL_SurfaceDesc &texture) {
  return PackFor(texture.format, texture.maskColour);
}
uint32_t TexelMask(const BRSL_SurfaceDesc &texture) {
  return Widened(texture.format, StoredMask(texture));
}

uint32_t Effect(const TPD_TexelEffect &e, uint32_t in, uint32_t out) {
  const int64_t level = e.b & 255, rest = (256 - level) & 255;
  switch (e.code) {
    case 1: return Bytewise(in, e.a, [](int64_t x, int64_t y) { return x * y >> 8; });
    case 2:
      return Bytewise(in, e.a, [](int64_t x, int64_t y) { return std::min<int64_t>(x + y, 255); });
    case 3:
      return Bytewise(in, e.a, [](int64_t x, int64_t y) { return std::max<int64_t>(x - y, 0); });
    case 4:
      return Bytewise(in, e.a, [&](int64_t x, int64_t y) { return (x * level + y * rest) >> 8; });
    case 5: return Bytewise(out, in, [](int64_t x, int64_t y) { return (x >> 1) + (y >> 1); });
    case 6:
      return Bytewise(out, in, [](int64_t x, int64_t y) { return std::min<int64_t>(x + y, 255); });
    case 7: return Bytewise(out, in, [](int64_t x, int64_t y) { return x * y >> 8; });
    case 10: return e.a;
    case 11: return in & e.a;
    case 12: return in | e.a;
    case 15: return in == e.a ? e.c : in;
    default: return out;
  }
}

// A texel after the effects of a pipeline, which change its Gouraud colour too.
uint32_t AfterEffects(const TPD_Pipeline &p, uint32_t texel, uint32_t &gouraud) {
  uint32_t *const buffers[2] = {&texel, &gouraud};
  for (int i = 0; i < p.effectCount && p.effects[i].code != 0; i++) {
    const TPD_TexelEffect &e = p.effects[i];
    *buffers[e.output & 1] = Effect(e, *buffers[e.input & 1], *buffers[e.output & 1]);
  }
  return texel;
}

uint32_t GouraudColour(const TexturedRow &row, int64_t i) {
  uint32_t colour = 0;
  for (int c = 0; c < 3; c++) {
    const int64_t from = Channel(row.leftColour, c) * 65536;
    const int64_t step = (Channel(row.rightColour, c) * 65536 - from) / (row.right - row.left);
    colour |= static_cast<uint32_t>((from + i * step) >> 16) << 8 * c;
  }
  return colour;
}

}  // namespace

uint32_t FilteredTexel(const BRSL_SurfaceDesc &texture, int64_t u, int64_t v, bool compression) {
  const int64_t column = u >> 16, row = v >> 16, fu = u >> 8 & 255, fv = v >> 8 & 255;
  const int64_t right = column + 1 < texture.width ? column + 1 : column;
  const int64_t below = row + 1 < texture.height ? row + 1 : row;
  const auto texel = [&](int64_t x, int64_t y) {
    return Widened(texture.format, BufferOf(texture).Load(x, y));
  };
  const auto neighbour = [&](int64_t x, int64_t y) {
    return compression && texel(x, y) == TexelMask(texture) ? 0 : texel(x, y);
  };
  const auto across = [&](int64_t a, int64_t b) { return Lerp(a, b, fu); };
  const uint32_t upper = Bytewise(texel(column, row), neighbour(right, row), across);
  const uint32_t lower = Bytewise(neighbour(column, below), neighbour(right, below), across);
  return Bytewise(upper, lower, [&](int64_t a, int64_t b) { return Lerp(a, b, fv); });
}

void Reference::TexturedSpan(const BRSL_SurfaceDesc &texture, const TPD_Pipeline &p,
                             const TexturedRow &row) {
  const Buffer texels = BufferOf(texture);
  if (!FormatKnown() || !texels.FormatKnown() || p.outputEffect == 0) return;
  const auto stored = [&](int64_t i) {
    return texels.Load((row.u + i * row.du) >> 16, (row.v + i * row.dv) >> 16);
  };
  const int64_t width = row.right - row.left;
  const bool effects = p.effectCount > 0 && p.effects[0].code != 0;
  const bool direct =
      format == 4 && texture.format == 4 && p.outputEffect == 1 && !p.filterFlag && !effects;
  const bool compression = direct ? p.maskFlag : p.maskCompression;
  bool allCut = compression;
  for (int64_t i = 0; i < width; i++) allCut &= stored(i) == StoredMask(texture);
  if (allCut) return;
  size_t shown = 0;
  for (int64_t i = 0; i < width; i++) {
    const int64_t x = row.left + i, u = row.u + i * row.du, v = row.v + i * row.dv;
    if (compression && stored(i) == StoredMask(texture)) {
      if (!p.maskFlag) Store(x, row.y, Pack(TexelMask(texture)));
      continue;
    }
    const uint32_t texel = p.filterFlag ? FilteredTexel(texture, u, v, compression)
                                        : Widened(texture.format, stored(i));
    if (gouraud_.size() <= shown) gouraud_.resize(shown + 1);
    uint32_t &gouraud = gouraud_[shown++];
    if (shown > 4096) gouraud = 0;
    if (p.gouraudState && !direct) gouraud = GouraudColour(row, i);
    PlotTexel(p, texture.format == 5, x, row.y, AfterEffects(p, texel, gouraud));
  }
}

void Reference::PlotTexel(const TPD_Pipeline &p, bool withAlpha, int64_t x, int64_t y,
                          uint32_t texel) {
  if (p.maskFlag && withAlpha) return PlotTexelByAlpha(x, y, texel);
  const uint32_t t = Pack(texel), d = Load(x, y);
  const bool wide = format >= 4, halves = p.outputEffect == 3;
  if (halves && wide) return Store(x, y, Combine(format, d, t, DRAW_HALF, 255));
  if (!p.maskFlag || p.outputEffect == 1) return Store(x, y, t);
  if (halves) {
    const auto half = [](int64_t a, int64_t b) { return (a >> 1) + (b >> 1); };
    return Store(x, y, format == 3 ? Bytewise(t, d, half) : Combine(format, d, t, DRAW_HALF, 255));
  }
  const int32_t mode = p.outputEffect == 2 ? DRAW_ALPHA : p.outputEffect == 4 ? DRAW_ADD : DRAW_SUB;
  const uint32_t result = Combine(format, d, t, mode, p.outputLevel);
  if (!wide) return Store(x, y, result);
  // The top byte is a fourth channel.
  const uint32_t top = Combine(format, d >> 24, t >> 24, mode, p.outputLevel);
  Store(x, y, (result & 0xFFFFFF) | top << 24);
}

void Reference::PlotTexelByAlpha(int64_t x, int64_t y, uint32_t texel) {
  const int bits = format <= 2 ? 5 : 8;
  const int64_t alpha = texel >> (32 - bits), opaque = bits == 5 ? 29 : 253;
  if (alpha == 0) return;
  if (alpha >= opaque) return Store(x, y, Pack(texel));
  const uint32_t d = Widened(format, Load(x, y));
  const uint32_t mixed =
      Bytewise(d, texel, [&](int64_t dc, int64_t tc) { return dc + ((tc - dc) * alpha >> bits); });
  Store(x, y, Pack(mixed & 0xFFFFFF));
}

void Reference::DrawTexturedPoly(const BRSL_SurfaceDesc *texture, int32_t count,
                                 const TPD_Pipeline *p) {
  TexturedPolygon(texture, count, p, false);
}

void Reference::DrawTexturedCorners(const BRSL_SurfaceDesc *texture, const Vertex *corners,
                                    int count, const TPD_Pipeline *p) {
  for (int i = 0; i < count; i++) SetCorner(i, corners[i]);
  TexturedPolygon(texture, count, p, false);
}

void Reference::DrawTexture(const BRSL_SurfaceDesc *texture, int32_t x, int32_t y,
                            const TPD_Pipeline *p) {
  if (!texture || !p) return;
  const int64_t left = std::max(x, viewport.left);
  const int64_t right = std::min<int64_t>(int64_t{x} + texture->width, viewport.right);
  const int64_t bottom = std::min<int64_t>(int64_t{y} + texture->height, viewport.bottom);
  if (left >= right) return;
  for (int64_t row = std::max(y, viewport.top); row < bottom; row++) {
    TexturedSpan(
        *texture, *p,
        {row, left, right, (left - x) * 65536, (row - y) * 65536, 65536, 0, 0xFFFFFF, 0xFFFFFF});
  }
}

void Reference::DrawSpritePoly(const BRSL_SurfaceDesc *texture, int32_t count,
                               const TPD_Pipeline *p) {
  TexturedPolygon(texture, count, p, true);
}

void Reference::DrawSprite(const BRSL_SurfaceDesc *texture, const Vertex *corners, bool coloured,
                           const TPD_Pipeline *p, int32_t split) {
  const auto draw = [&](std::initializer_list<int> chosen) {
    int slot = 0;
    for (int i : chosen) {
      SetCorner(slot, corners[i]);
      if (coloured) SetVertex(slot, corners[i].x, corners[i].y, corners[i].colour);
      slot++;
    }
    TexturedPolygon(texture, slot, p, true);
  };
  if (split == 0) draw({0, 1, 2, 3});
  if (split == 1) {
    draw({0, 1, 2});
    draw({0, 2, 3});
  }
}

}  // namespace reference
