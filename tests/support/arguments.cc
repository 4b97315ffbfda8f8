#include "support/arguments.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "brisal/brisal.h"

namespace {

constexpr int32_t kModes[] = {DRAW_NORMAL, DRAW_SOLID, DRAW_ALPHA, DRAW_HALF, DRAW_ADD,   DRAW_SUB,
                              DRAW_AND,    DRAW_OR,    DRAW_XOR,   DRAW_MULT, DRAW_REVSUB};
constexpr int32_t kNoModes[] = {0, 3, 8, 33, 48, 8192, -1, 0x10010, INT32_MIN};
constexpr int32_t kFar[] = {-32768, -32767, 32767, 32766, -1, 0};
constexpr int32_t kExtreme[] = {INT32_MIN, INT32_MIN + 1, INT32_MAX, INT32_MAX - 1,
                                1 << 30,   -(1 << 30),    65536,     -65536};

// Most coordinates lie around the buffer or on an edge of the viewport, some far away.
int32_t Coordinate(Random &random, int32_t size, int32_t low, int32_t high, bool extreme) {
  if (extreme && random.OneIn(2)) return random.OneIn(2) ? random.Pick(kExtreme) : Anything(random);
  const int kind = random.Between(0, 9);
  if (kind == 0) return random.OneIn(2) ? random.Pick(kFar) : random.Between(-32768, 32767);
  if (kind <= 2) return low + random.Between(-1, 1);
  if (kind <= 4) return high + random.Between(-1, 1);
  return kind <= 6 ? random.Between(0, size) : random.Between(-size, 2 * size);
}

int32_t Radius(Random &random, int32_t size, bool extreme) {
  if (extreme && random.OneIn(2)) return random.OneIn(2) ? random.Pick(kExtreme) : Anything(random);
  if (random.OneIn(12)) return random.OneIn(2) ? random.Between(-40, 3) : random.Between(0, 40000);
  return random.Between(0, size);
}

int32_t PackedColour(Random &random, int32_t format) {
  const int32_t colour = random.OneIn(2) ? Anything(random) : RandomColour(random);
  return format <= 2 ? colour & 0xFFFF : format == 3 ? colour & 0xFFFFFF : colour;
}

int32_t Mode(Random &random) {
  return random.OneIn(25) ? random.Pick(kNoModes) : random.Pick(kModes);
}

int32_t MemoryArgumentOf(Random &random, int index) {
  switch (index) {
    case kFrom: return random.OneIn(2) ? random.Between(512, 515) : random.Between(512, 900);
    case kTo: return random.OneIn(2) ? random.Between(1400, 1403) : random.Between(1400, 1700);
    case kCount: return random.OneIn(8) ? random.Between(-3, 3) : random.Between(0, 120);
    case kValue: return random.OneIn(2) ? random.Pick({0, 255, -1, 0xFFFF}) : Anything(random);
    case kSize: return random.OneIn(6) ? Anything(random) : random.Between(0, 5);
    default: return random.Between(-3, 3);
  }
}

// Most texel columns lie in a texture, some around it, a few anywhere.
int32_t Texel(Random &random, int32_t size, bool extreme) {
  if (extreme && random.OneIn(4)) return random.OneIn(2) ? random.Pick(kExtreme) : Anything(random);
  if (random.OneIn(3)) return random.Pick({0, size - 1, size, -1});
  return random.OneIn(4) ? random.Between(-size, 2 * size) : random.Between(0, size - 1);
}

int32_t FixedTexel(Random &random, int32_t size, bool extreme) {
  if (extreme && random.OneIn(3)) return random.OneIn(2) ? random.Pick(kExtreme) : Anything(random);
  return random.Between(-65536 * int64_t{size} / 4, 65536 * int64_t{size} * 5 / 4);
}

int32_t SpriteMode(Random &random) {
  uint32_t mode = static_cast<uint32_t>(random.Between(0, 1));
  if (random.OneIn(3)) mode |= 1u << 31;
  for (int n = random.OneIn(2) ? random.Between(1, 3) : 0; n > 0; n--) {
    mode |= random.Pick({0x40u, 0x400u, 0x800u, 0x1000u, 0x2000u, 0x10000u, 0x20000u, 0x4000u,
                         0x80u, 0x100u, 0x200u, 0x80u, 0x100u, 0x200u, 2u, 0x8000u});
  }
  return static_cast<int32_t>(random.OneIn(30) ? mode | static_cast<uint32_t>(random.Next())
                                               : mode);
}

int32_t Level(Random &random) {
  if (random.OneIn(3)) return random.Pick({0, 1, 2, 128, 253, 254, 255, 256, -1, INT32_MIN});
  return random.OneIn(8) ? Anything(random) : random.Between(1, 253);
}

int32_t EffectCode(Random &random) {
  if (random.OneIn(8)) return random.Pick({0, 8, 9, 13, 14, 16, 17, -1, INT32_MIN, INT32_MAX});
  return random.Pick({1, 2, 3, 4, 5, 6, 7, 10, 11, 12, 15});
}

int32_t Float(float value) { return std::bit_cast<int32_t>(value); }

float Divisor(Random &random) {
  if (random.OneIn(3)) return static_cast<float>(random.Between(1, 18));
  if (random.OneIn(3)) return static_cast<float>(random.Between(-30000, 30000)) / 64;
  return random.Pick({0.0f, -0.0f, 1e-40f, 1e-5f, 4.4f, 8.8f, 8.999999f, 9.000001f, 255.5f, 1e30f,
                      -1e30f, INFINITY, -INFINITY, NAN});
}

}  // namespace

int32_t ArgumentOf(Random &random, const SceneLayout &scene, const Call &call, int index,
                   bool extreme) {
  const bool drawing = call.function->family < Family::kText;
  return (drawing ? DrawingArgumentOf : HostArgumentOf)(random, scene, call, index, extreme);
}

int32_t Anything(Random &random) { return static_cast<int32_t>(random.Next()); }

int32_t Clamped(int64_t value) {
  return static_cast<int32_t>(std::clamp<int64_t>(value, INT32_MIN, INT32_MAX));
}

int32_t RandomColour(Random &random) {
  const int kind = random.Between(0, 7);
  if (kind == 0) return random.Pick({0, 0xFFFFFF, -1, 0x808080, 0x070307, 1, 0x1000000});
  if (kind == 1) return random.Between(0, 255) * 0x010101;
  if (kind == 2) return Anything(random) & 0x0F0F0F;
  return kind <= 5 ? Anything(random) & 0xFFFFFF : Anything(random);
}

int32_t RandomFlags(Random &random) {
  const int32_t low = random.OneIn(2) ? random.Between(1, 2) : random.Between(0, 15);
  const int32_t mode = random.OneIn(6) ? 0 : Mode(random) & ~15;
  return mode | low | (random.OneIn(20) ? Anything(random) & ~0xFFFF : 0);
}

// The kinds of argument: x y a coordinate anywhere, i j a pixel of the target, e the end of a strip
// in it, r a radius, R S radii and u v the centre of a shape that fits into the buffer, c a colour,
// k a packed one, M a colour that the source is rich in, m a draw mode, f flags, n a number of
// vertices, w anything, 0 1 that number. T a surface or null, D a surface, of which X Y is a
// coordinate around, p q a pixel, l h an end of columns or rows, U V a texel column or row, Q one in
// 16.16. A the source rectangle of a blit, F its flags, E an effect, B a small number, g a step. P a
// pipeline, a the code of a texel effect, G of a buffer, o of an output effect, N a level, z a sprite
// draw mode, t a tint, s a split. d a divisor, I an
// intensity, O a falloff, C a centre, H percent, L a mode of scaling, Z of effect surfaces.
int32_t DrawingArgumentOf(Random &random, const SceneLayout &scene, const Call &call, int index,
                          bool extreme) {
  const Layout &l = scene.target, &surface = call.args[0] == 2 ? scene.blendSource : scene.source;
  const reference::Rect &v = l.viewport;
  switch (call.function->kinds[index]) {
    case 'x': return Coordinate(random, l.width, v.left, v.right, extreme);
    case 'y': return Coordinate(random, l.height, v.top, v.bottom, extreme);
    case 'i': return random.Between(0, l.width - 1);
    case 'j': return random.Between(0, l.height - 1);
    case 'e': return random.Between(0, l.width);
    case 'r': return Radius(random, std::max(l.width, l.height), extreme);
    case 'R': return random.Between(0, l.width / 2);
    case 'S': return random.Between(0, l.height / 2);
    case 'c': return RandomColour(random);
    case 'k': return PackedColour(random, l.format);
    case 'M':
      return random.OneIn(4) ? RandomColour(random) : static_cast<int32_t>(scene.source.mask);
    case 'm': return Mode(random);
    case 'f': return RandomFlags(random);
    case 'n': return random.OneIn(9) ? random.Pick({-1, 0, 1, 9, 1 << 30}) : random.Between(2, 8);
    case 'w': return Anything(random);
    case 'T': return random.OneIn(40) ? 0 : random.OneIn(4) ? 2 : 1;
    case 'D': return random.Between(1, 2);
    case 'X': {
      const reference::Rect &view = surface.viewport;
      return Coordinate(random, surface.width, view.left, view.right, extreme);
    }
    case 'Y': {
      const reference::Rect &view = surface.viewport;
      return Coordinate(random, surface.height, view.top, view.bottom, extreme);
    }
    case 'p': return random.Between(0, surface.width - 1);
    case 'q': return random.Between(0, surface.height - 1);
    case 'l': return random.Between(0, surface.width);
    case 'h': return random.Between(0, surface.height);
    case 'U': return Texel(random, surface.width, extreme);
    case 'V': return Texel(random, surface.height, extreme);
    case 'Q': return FixedTexel(random, std::max(surface.width, surface.height), extreme);
    case 'F': return random.OneIn(6) ? Anything(random) & 7 : random.Between(0, 1);
    case 'E': {
      if (random.OneIn(12)) return random.OneIn(2) ? Anything(random) : random.Pick({2, 16, 96});
      return random.Pick({0, 1, 32, 33, 64, 65, 128, 129, 8192, 8193, 16384, 16385, 1024, 1025});
    }
    case 'B': return random.OneIn(6) ? random.Pick({2, 3, -1}) : random.Between(0, 1);
    case 'g': return extreme && random.OneIn(3) ? Anything(random) : random.Between(-2, 2);
    case 'P': return !random.OneIn(30);
    case 'a': return EffectCode(random);
    case 'G': return random.OneIn(6) ? random.Pick({2, 3, -1, -2}) : random.Between(0, 1);
    case 'o': return random.OneIn(12) ? random.Pick({0, 6, -1, INT32_MAX}) : random.Between(1, 5);
    case 'N': return Level(random);
    case 'z': return SpriteMode(random);
    case 't': {
      if (random.OneIn(3)) return RandomColour(random);
      return random.Pick({0xFFFFFF, -1, 0xFFFFF, 0xEFFFFF});
    }
    case 's': return random.OneIn(20) ? random.Pick({2, -1, INT32_MIN}) : random.Between(0, 1);
    case 'd': return Float(Divisor(random));
    case 'I': return Float(static_cast<float>(random.Between(-1000, 20000)) / 16);
    case 'O': return Float(static_cast<float>(random.Between(-300, 3000)) / 256);
    case 'H': return random.OneIn(6) ? Anything(random) : random.Between(-50, 450);
    case 'C': return random.OneIn(9) ? random.Between(-90000, 90000) : random.Between(-20, 60);
    case 'L': return random.OneIn(20) ? random.Pick({2, -1, 1110}) : random.Pick({0, 1, 1111});
    case 'Z': return random.OneIn(12);
    case '.': return MemoryArgumentOf(random, index);
    default: return call.function->kinds[index] == '1';
  }
}
