#include <algorithm>
#include <cmath>
#include <vector>

#include "reference/reference.h"

namespace reference {
namespace {

// Replaces every pixel of a surface's viewport by change(x, y, its colour).
template <class F>
void ForViewport(BRSL_SurfaceDesc *desc, F change) {
  for (int32_t y = desc->viewTop; y < desc->viewBottom; y++) {
    for (int32_t x = desc->viewLeft; x < desc->viewRight; x++) {
      PokeSurface(desc, x, y, change(x, y, PeekSurface(desc, x, y)));
    }
  }
}

template <class F>
uint32_t EveryChannel(int count, F f) {
  uint32_t colour = 0;
  for (int c = 0; c < count; c++) {
    colour |= static_cast<uint32_t>(std::clamp<int64_t>(f(c), 0, 255)) << 8 * c;
  }
  return colour;
}

int64_t Luminance(uint32_t colour) {
  return (Channel(colour, 2) * 225 + Channel(colour, 1) * 723 + Channel(colour, 0) * 76) >> 10;
}

// How strongly a light at (cx, cy) shines on (x, y), 1 being full brightness.
long double LightAt(int64_t x, int64_t y, int64_t cx, int64_t cy, float intensity, float falloff) {
  // Sums of 32 bits wrap around; without a root there is no light.
  const auto low = [](int64_t n) { return static_cast<uint64_t>(n) & 0xFFFFFFFF; };
  const auto squares = static_cast<int32_t>(low(x - cx) * low(x - cx) + low(y - cy) * low(y - cy));
  if (squares < 0) return 0;
  return (intensity - std::sqrt(static_cast<long double>(squares)) * falloff) * 0.0039215689f;
}

}  // namespace

void PrepareFxSurface(const BRSL_SurfaceDesc *src, BRSL_SurfaceDesc *dst, int32_t mode) {
  if (mode != 0) return;
  const uint32_t key = Widened(src->format, PackFor(src->format, src->maskColour));
  for (int32_t y = 0; y < dst->height; y++) {
    for (int32_t x = 0; x < dst->width; x++) {
      if (dst->format != 5) {
        PokeSurface(dst, x, y, PeekSurface(src, x, y) & 0xFFFFFF);
        continue;
      }
      const uint32_t texel = Widened(src->format, BufferOf(*src).Load(x, y));
      const bool opaque = src->format <= 3 && texel != key;
      PokeSurfaceNc(dst, x, y, opaque ? texel | 0xFF000000 : texel);
    }
  }
}

void Blur(BRSL_SurfaceDesc *desc, float divisor) {
  if (divisor == 0 || std::isnan(divisor) || desc->viewRight < 1 || desc->viewBottom < 1) return;
  const double by = std::clamp(divisor, -255.0f, 255.0f);
  std::vector<uint32_t> before;
  ForViewport(desc, [&](int32_t, int32_t, uint32_t colour) {
    before.push_back(colour);
    return colour;
  });
  const int32_t width = desc->viewRight - desc->viewLeft;
  ForViewport(desc, [&](int32_t x, int32_t y, uint32_t) {
    return EveryChannel(4, [&](int c) {
      int64_t sum = 0;
      for (int32_t dy = -1; dy <= 1; dy++) {
        for (int32_t dx = -1; dx <= 1; dx++) {
          const int32_t nx = std::clamp(x + dx, desc->viewLeft, desc->viewRight - 1);
          const int32_t ny = std::clamp(y + dy, desc->viewTop, desc->viewBottom - 1);
          sum += Channel(before[(ny - desc->viewTop) * width + nx - desc->viewLeft], c);
        }
      }
      return static_cast<int64_t>(std::clamp(static_cast<double>(sum) / by, -1.0, 256.0));
    });
  });
}

void Fade(BRSL_SurfaceDesc *desc, int32_t percent) {
  const long double exact = static_cast<long double>(percent) * 0.01f * 256;
  const auto factor = static_cast<int64_t>(std::clamp<long double>(exact, 0, 1024));
  ForViewport(desc, [&](int32_t, int32_t, uint32_t colour) {
    return EveryChannel(4, [&](int c) { return Channel(colour, c) * factor >> 8; });
  });
}

void GreyScale(BRSL_SurfaceDesc *desc) {
  ForViewport(desc, [](int32_t, int32_t, uint32_t colour) {
    return (colour & 0xFF000000) | static_cast<uint32_t>(Luminance(colour)) * 0x010101;
  });
}

void Light(BRSL_SurfaceDesc *desc, int32_t cx, int32_t cy, float intensity, float falloff,
           int32_t /*reserved*/) {
  ForViewport(desc, [&](int32_t x, int32_t y, uint32_t colour) {
    const long double level = LightAt(x, y, cx, cy, intensity, falloff);
    if (level <= 0) return 0u;
    const auto factor = static_cast<int64_t>(level * 65536);
    return EveryChannel(3, [&](int c) { return Channel(colour, c) * factor >> 16; });
  });
}

void PhongMap(BRSL_SurfaceDesc *desc, int32_t cx, int32_t cy, uint32_t colour, float intensity,
              float falloff, int32_t /*reserved*/) {
  ForViewport(desc, [&](int32_t x, int32_t y, uint32_t) {
    const long double level = LightAt(x, y, cx, cy, intensity, falloff);
    if (level <= 0) return 0u;
    const uint32_t lit = EveryChannel(3, [&](int c) {
      return static_cast<int64_t>(level * static_cast<long double>(Channel(colour, c)));
    });
    return lit | static_cast<uint32_t>(Luminance(lit)) << 24;
  });
}

// Every pixel but the middle takes its partner's colour, through BRSL_Point and BRSL_Dot.
void Reference::MirrorRect(const int32_t (&rect)[4], int32_t horizontal, int32_t vertical) {
  if (!FormatKnown() || !((horizontal | vertical) & 1)) return;
  struct Move {
    int64_t x, y;
    uint32_t colour;
  };
  std::vector<Move> moves;
  for (int64_t y = std::max(rect[1], viewport.top); y < std::min(rect[3], viewport.bottom); y++) {
    for (int64_t x = std::max(rect[0], viewport.left); x < std::min(rect[2], viewport.right); x++) {
      const int64_t px = horizontal & 1 ? int64_t{rect[0]} + rect[2] - 1 - x : x;
      const int64_t py = vertical & 1 ? int64_t{rect[1]} + rect[3] - 1 - y : y;
      const uint32_t colour = Inside(px, py) ? Widened(format, Load(px, py)) : 0;
      if (px != x || py != y) moves.push_back({x, y, colour});
    }
  }
  for (const Move &move : moves) Store(move.x, move.y, Pack(move.colour));
}

}  // namespace reference
