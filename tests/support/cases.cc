#include "support/cases.h"

#include <algorithm>
#include <cstring>

#include "brisal/brisal.h"
#include "support/random.h"

namespace {

constexpr int32_t kModes[] = {DRAW_NORMAL, DRAW_SOLID, DRAW_ALPHA, DRAW_HALF, DRAW_ADD,   DRAW_SUB,
                              DRAW_AND,    DRAW_OR,    DRAW_XOR,   DRAW_MULT, DRAW_REVSUB};
constexpr int32_t kNoModes[] = {0, 3, 8, 33, 48, 8192, -1, 0x10010, INT32_MIN};
constexpr int32_t kFar[] = {-32768, -32767, 32767, 32766, -1, 0};
constexpr int32_t kExtreme[] = {INT32_MIN, INT32_MIN + 1, INT32_MAX, INT32_MAX - 1,
                                1 << 30,   -(1 << 30),    65536,     -65536};

int32_t Anything(Random &random) { return static_cast<int32_t>(random.Next()); }

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

int32_t Colour(Random &random) {
  const int kind = random.Between(0, 7);
  if (kind == 0) return random.Pick({0, 0xFFFFFF, -1, 0x808080, 0x070307, 1, 0x1000000});
  if (kind == 1) return random.Between(0, 255) * 0x010101;
  if (kind == 2) return Anything(random) & 0x0F0F0F;
  return kind <= 5 ? Anything(random) & 0xFFFFFF : Anything(random);
}

int32_t PackedColour(Random &random, int32_t format) {
  const int32_t colour = random.OneIn(2) ? Anything(random) : Colour(random);
  return format <= 2 ? colour & 0xFFFF : format == 3 ? colour & 0xFFFFFF : colour;
}

int32_t Mode(Random &random) {
  return random.OneIn(25) ? random.Pick(kNoModes) : random.Pick(kModes);
}

int32_t Flags(Random &random) {
  const int32_t low = random.OneIn(2) ? random.Between(1, 2) : random.Between(0, 15);
  const int32_t mode = random.OneIn(6) ? 0 : Mode(random) & ~15;
  return mode | low | (random.OneIn(20) ? Anything(random) & ~0xFFFF : 0);
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

// The kinds of argument: x y a coordinate anywhere, i j a pixel of the buffer, e the end of a strip
// in it, r a radius, R S radii and u v the centre of a shape that fits into the buffer, c a colour,
// k a packed one, m a draw mode, f flags, n a number of vertices, w anything, 0 1 that number.
int32_t ArgumentOf(Random &random, char kind, const Layout &l, bool extreme, int index) {
  const reference::Rect &v = l.viewport;
  switch (kind) {
    case 'x': return Coordinate(random, l.width, v.left, v.right, extreme);
    case 'y': return Coordinate(random, l.height, v.top, v.bottom, extreme);
    case 'i': return random.Between(0, l.width - 1);
    case 'j': return random.Between(0, l.height - 1);
    case 'e': return random.Between(0, l.width);
    case 'r': return Radius(random, std::max(l.width, l.height), extreme);
    case 'R': return random.Between(0, l.width / 2);
    case 'S': return random.Between(0, l.height / 2);
    case 'c': return Colour(random);
    case 'k': return PackedColour(random, l.format);
    case 'm': return Mode(random);
    case 'f': return Flags(random);
    case 'n': return random.OneIn(9) ? random.Pick({-1, 0, 1, 9, 1 << 30}) : random.Between(2, 8);
    case 'w': return Anything(random);
    case '.': return MemoryArgumentOf(random, index);
    default: return kind == '1';
  }
}

// A centre that keeps the shape in the buffer, for functions that do not clip.
void Contain(Random &random, Args &args, const Layout &layout) {
  const int32_t rx = std::max(args[2], 1), ry = std::max(args[3], 1);
  args[0] = random.Between(std::min(rx, layout.width - rx), layout.width - rx);
  args[1] = random.Between(std::min(ry, layout.height - ry), layout.height - ry);
}

// A centre that makes one or two sides of the shape meet the viewport's, give or take a pixel.
void Touch(Random &random, const char *kinds, Args &args, const reference::Rect &v) {
  const int32_t rx = random.Between(0, (v.right - v.left + 1) / 2);
  const int32_t ry = random.Between(0, (v.bottom - v.top + 1) / 2);
  const auto centre = [&](int32_t low, int32_t high, int32_t r) {
    if (random.OneIn(2)) return (low + high) / 2;
    const int32_t touching = random.Pick({low + r, low - r, high - r, high + r});
    return touching + random.Between(-1, 1);
  };
  args[2] = rx;
  if (kinds[3] == 'r') args[3] = ry;
  args[0] = centre(v.left, v.right, rx);
  args[1] = centre(v.top, v.bottom, kinds[3] == 'r' ? ry : rx);
}

// Convex polygons on purpose: random corners seldom make one.
void MakeTrapezium(Random &random, Call &call) {
  const int stride = call.function->kinds[2] == 'c' ? 3 : 2;
  const auto x = [&](int i) -> int32_t & { return call.args[i * stride]; };
  const auto y = [&](int i) -> int32_t & { return call.args[i * stride + 1]; };
  y(1) = y(0);
  y(3) = y(2);
  if (x(1) < x(0)) std::swap(x(0), x(1));
  if (x(2) < x(3)) std::swap(x(2), x(3));
  if (random.OneIn(2)) std::swap(x(0), x(2));
}

const Function &RandomFunction(Random &random, Family family) {
  std::vector<const Function *> offered;
  for (const Function &function : Functions()) {
    if (function.family == family) offered.push_back(&function);
  }
  return *offered[random.Next() % offered.size()];
}

Call RandomCall(Random &random, Family family, const Layout &layout, bool extreme) {
  Call call{&RandomFunction(random, family), {}};
  for (int i = 0; call.function->kinds[i]; i++) {
    call.args[i] = ArgumentOf(random, call.function->kinds[i], layout, extreme, i);
  }
  if (call.function->kinds[0] == 'u') Contain(random, call.args, layout);
  if (call.function->kinds[2] == 'r' && random.OneIn(3)) {
    Touch(random, call.function->kinds, call.args, layout.viewport);
  }
  if (std::strstr(call.function->name, "Quad") && call.function->kinds[0] == 'x' &&
      random.OneIn(2)) {
    MakeTrapezium(random, call);
  }
  return call;
}

// The memory family's picture holds every range that MemoryArgumentOf asks for. Only long lines
// show how many bits of fraction their steps have, only tall pictures how lists of spans grow.
Layout LayoutFor(Random &random, Family family) {
  if (family == Family::kLines && random.OneIn(3)) {
    return random.OneIn(2) ? RandomLayout(random, 500, 60) : RandomLayout(random, 60, 500);
  }
  if (family != Family::kMemory && random.OneIn(100)) return RandomLayout(random, 6, 5000);
  if (family != Family::kMemory) return RandomLayout(random, 80, 30);
  Layout layout;
  layout.width = 64;
  layout.height = 8;
  layout.pitch = 256;
  layout.misalign = random.Between(0, 15);
  layout.seed = random.Next();
  return layout;
}

}  // namespace

Case RandomCase(Family family, uint64_t seed) {
  Random random(seed * kFamilyCount + static_cast<uint64_t>(family));
  Case c{LayoutFor(random, family), {}};
  const bool extreme = random.OneIn(6);
  for (int n = random.Between(1, 6); n > 0; n--) {
    c.calls.push_back(RandomCall(random, family, c.layout, extreme));
  }
  return c;
}
