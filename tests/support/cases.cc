#include "support/cases.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string>

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

// The kinds of argument: x y a coordinate anywhere, i j a pixel of the target, e the end of a strip
// in it, r a radius, R S radii and u v the centre of a shape that fits into the buffer, c a colour,
// k a packed one, M a colour that the source is rich in, m a draw mode, f flags, n a number of
// vertices, w anything, 0 1 that number. T a surface or null, D a surface, of which X Y is a
// coordinate around, p q a pixel, l h an end of columns or rows, U V a texel column or row, Q one in
// 16.16. A the source rectangle of a blit, F its flags, E an effect, B a small number, g a step. P a
// pipeline, a the code of a texel effect, G of a buffer, o of an output effect, N a level, z a sprite
// draw mode, t a tint, s a split. d a divisor, I an
// intensity, O a falloff, C a centre, H percent, L a mode of scaling, Z of effect surfaces.
int32_t ArgumentOf(Random &random, const SceneLayout &scene, const Call &call, int index,
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
    case 'c': return Colour(random);
    case 'k': return PackedColour(random, l.format);
    case 'M': return random.OneIn(4) ? Colour(random) : static_cast<int32_t>(scene.source.mask);
    case 'm': return Mode(random);
    case 'f': return Flags(random);
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
      if (random.OneIn(3)) return Colour(random);
      return random.Pick({0xFFFFFF, -1, 0xFFFFF, 0xEFFFFF});
    }
    case 's': return random.OneIn(20) ? random.Pick({2, -1, INT32_MIN}) : random.Between(0, 1);
    case 'd': return Float(Divisor(random));
    case 'I': return Float(static_cast<float>(random.Between(-1000, 20000)) / 16);
    case 'O': return Float(static_cast<float>(random.Between(-300, 3000)) / 256);
    case 'H': return random.OneIn(6) ? Anything(random) : random.Between(-50, 450);
    case 'C': return random.OneIn(9) ? random.Between(-30000, 30000) : random.Between(-20, 60);
    case 'L': return random.OneIn(20) ? random.Pick({2, -1, 1110}) : random.Pick({0, 1, 1111});
    case 'Z': return random.OneIn(12);
    case '.': return MemoryArgumentOf(random, index);
    default: return call.function->kinds[index] == '1';
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

// Where the arguments of each vertex begin.
std::vector<int> Vertices(const char *kinds) {
  std::vector<int> at;
  for (int i = 0; kinds[i]; i++) {
    if (kinds[i] == 'x') at.push_back(i);
  }
  return at;
}

// Convex polygons on purpose: random corners seldom make one.
void MakeTrapezium(Random &random, Call &call) {
  const std::vector<int> at = Vertices(call.function->kinds);
  const auto x = [&](int i) -> int32_t & { return call.args[at[i]]; };
  const auto y = [&](int i) -> int32_t & { return call.args[at[i] + 1]; };
  y(1) = y(0);
  y(3) = y(2);
  if (x(1) < x(0)) std::swap(x(0), x(1));
  if (x(2) < x(3)) std::swap(x(2), x(3));
  if (random.OneIn(2)) std::swap(x(0), x(2));
  if (random.OneIn(3)) {  // upright
    x(3) = x(0);
    x(2) = x(1);
  }
}

int32_t Clamped(int64_t value) {
  return static_cast<int32_t>(std::clamp<int64_t>(value, INT32_MIN, INT32_MAX));
}

// One axis of a blit. What lands inside the viewport lies in the source; what does not may lie
// anywhere.
void MakeBlitAxis(Random &random, int32_t size, int32_t low, int32_t high, int32_t &s1, int32_t &s2,
                  int32_t &d) {
  s1 = random.Between(0, size);
  s2 = random.OneIn(12) ? random.Between(0, size) : random.Between(s1, size);
  if (random.OneIn(3)) d = random.Pick({low, high - (s2 - s1), low - (s2 - s1), high});
  if (random.OneIn(4)) d = Clamped(int64_t{d} + random.Between(-1, 1));
  const int64_t far = random.OneIn(3) ? random.Between(0, INT32_MAX) : random.Between(0, 70);
  if (d <= low && random.OneIn(3)) {
    const int64_t moved = std::min({far, d - int64_t{INT32_MIN}, s1 - int64_t{INT32_MIN}});
    s1 = Clamped(s1 - moved);
    d = Clamped(d - moved);
  }
  if (s2 > s1 && int64_t{d} + s2 - s1 >= high && random.OneIn(3)) s2 = Clamped(s2 + far);
  if (d >= high && random.OneIn(3)) {
    s1 = Anything(random);
    s2 = random.OneIn(2) ? Anything(random) : Clamped(s1 + far);
  }
}

// Source and target must not overlap where both are written.
bool WritesTheSource(const Args &args) {
  const uint32_t mode = static_cast<uint32_t>(args[8]), other = mode & ~1u;
  return mode == 1 || other == 16384 ||
         (args[10] != 1 && (other == 32 || other == 64 || other == 128));
}

void MakeBlit(Random &random, Call &call, const SceneLayout &scene) {
  Args &a = call.args;
  const reference::Rect &v = scene.target.viewport;
  MakeBlitAxis(random, scene.source.width, v.left, v.right, a[0], a[2], a[4]);
  MakeBlitAxis(random, scene.source.height, v.top, v.bottom, a[1], a[3], a[5]);
  if (call.function->family == Family::kEffectBlits && scene.overlapping && WritesTheSource(a)) {
    a[8] = 8192;
  }
}

// Copies go from one surface to the other; an effect surface needs a source of its size.
void ChooseSurfaces(Call &call, const SceneLayout &scene) {
  int32_t &to = call.args[call.function->kinds[1] == 'D' ? 1 : 5];
  to = 3 - call.args[0];
  const Layout &src = call.args[0] == 2 ? scene.blendSource : scene.source;
  const Layout &dst = to == 2 ? scene.blendSource : scene.source;
  const bool contained = dst.width <= src.width && dst.height <= src.height;
  if (call.function->family == Family::kFilters && dst.format == 5 && !contained) call.args[2] = 1;
}

const Function &RandomFunction(Random &random, Family family) {
  std::vector<const Function *> offered;
  for (const Function &function : Functions()) {
    if (function.family == family) offered.push_back(&function);
  }
  return *offered[random.Next() % offered.size()];
}

Call RandomCallOf(Random &random, const Function &function, const SceneLayout &scene,
                  bool extreme) {
  Call call{&function, {}};
  const char *kinds = function.kinds;
  for (int i = 0; kinds[i]; i++) call.args[i] = ArgumentOf(random, scene, call, i, extreme);
  if (kinds[0] == 'D' && std::strchr(kinds + 1, 'D')) ChooseSurfaces(call, scene);
  if (kinds[0] == 'A') MakeBlit(random, call, scene);
  if (kinds[0] == 'u') Contain(random, call.args, scene.target);
  if (std::strchr(kinds, 'r') && random.OneIn(3)) {
    Touch(random, kinds, call.args, scene.target.viewport);
  }
  if (Vertices(kinds).size() == 4 && random.OneIn(2)) MakeTrapezium(random, call);
  return call;
}

Call RandomCall(Random &random, Family family, const SceneLayout &scene, bool extreme) {
  return RandomCallOf(random, RandomFunction(random, family), scene, extreme);
}

// The calls that make a pipeline; each stage often stays as it is.
std::vector<Call> RandomPipeline(Random &random, const SceneLayout &scene) {
  std::vector<Call> calls;
  const auto add = [&](const char *name) {
    calls.push_back(RandomCallOf(random, *FunctionNamed(name), scene, false));
  };
  if (!random.OneIn(6)) add("TPD_UpdateSpriteDrawMode");
  if (random.OneIn(2)) add("TPD_SetMaskCompression");
  if (!random.OneIn(3)) add("TPD_SetOutputEffect");
  for (int n = random.OneIn(3) ? random.Between(1, 3) : 0; n > 0; n--) add("TPD_AddTexelEffect");
  return calls;
}

// The memory family's picture holds every range that MemoryArgumentOf asks for. Only long lines
// show how many bits of fraction their steps have, only tall pictures how lists of spans grow, only
// wide ones where buffers of texels end.
Layout TargetFor(Random &random, Family family) {
  if (family == Family::kLines && random.OneIn(3)) {
    return random.OneIn(2) ? RandomLayout(random, 500, 60) : RandomLayout(random, 60, 500);
  }
  if (family == Family::kTextures || family == Family::kSprites || family == Family::kGradients) {
    if (random.OneIn(150)) return RandomLayout(random, 9000, 3);
    if (random.OneIn(30)) return RandomLayout(random, 700, 4);
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

Layout Masked(Random &random, Layout layout) {
  layout.mask = static_cast<uint32_t>(random.OneIn(3) ? Anything(random) : Colour(random));
  if (random.OneIn(2)) layout.mask &= 0xFFFFFF;
  if (random.OneIn(5)) layout.mask |= 0xFF000000;
  layout.maskShare = random.Pick({0, 1, 30, 60, 60, 90, 100});
  return layout;
}

void SetFormat(Random &random, Layout &layout, int32_t format) {
  layout.format = format;
  const int32_t pitch = layout.width * kFormatBytes[format] + random.Between(0, 9);
  layout.pitch = layout.pitch < 0 ? -pitch : pitch;
}

SceneLayout LayoutFor(Random &random, Family family) {
  SceneLayout scene{.target = TargetFor(random, family)};
  if (family < Family::kSurfaces) return scene;
  const bool large = family != Family::kFilters && random.OneIn(12);
  for (Layout *layout : {&scene.source, &scene.blendSource}) {
    *layout = Masked(random, RandomLayout(random, large ? 300 : 40, 30));
    if (random.OneIn(8)) (random.OneIn(2) ? layout->height : layout->width) = 1;
    SetFormat(random, *layout, random.OneIn(3) ? scene.target.format : layout->format);
    reference::Rect &v = layout->viewport;
    v.right = std::min(v.right, layout->width);
    v.left = std::min(v.left, v.right);
    v.bottom = std::min(v.bottom, layout->height);
    v.top = std::min(v.top, v.bottom);
  }
  if (scene.target.format == 4 && random.OneIn(4)) SetFormat(random, scene.source, 4);
  if (family == Family::kSurfaces) {
    scene.target = Masked(random, scene.target);
    scene.target.mask = scene.source.mask;
  }
  if (family == Family::kFilters || family == Family::kScaling) {
    for (Layout *layout : {&scene.source, &scene.blendSource}) {
      if (layout->format == 0 || layout->format == 6) SetFormat(random, *layout, 5);
    }
  }
  if (family == Family::kEffectBlits) {
    if (!random.OneIn(10)) SetFormat(random, scene.source, scene.target.format);
    const uint64_t seed = scene.blendSource.seed;
    scene.blendSource = scene.source;
    scene.blendSource.seed = seed;
    SetFormat(random, scene.blendSource, scene.source.format);
  }
  if ((family == Family::kBlits || family == Family::kEffectBlits) && random.OneIn(6)) {
    scene.overlapping = true;
    const int32_t format = random.OneIn(2) ? scene.target.format : scene.source.format;
    scene.source = scene.blendSource = scene.target;
    scene.source.mask = static_cast<uint32_t>(Colour(random));
    scene.source.format = scene.blendSource.format = format;
    scene.source.width = scene.blendSource.width =
        std::abs(scene.target.pitch) / kFormatBytes[format];
    SetFormat(random, scene.blendSource, format);
  }
  return scene;
}

// The Gouraud buffer holds what a call before left in it unless the pipeline makes Gouraud colours.
void KeepToTexelsWithoutGouraud(std::vector<Call> &calls) {
  bool gouraud = false;
  for (Call &call : calls) {
    const std::string name = call.function->name;
    if (name == "TPD_UpdateSpriteDrawMode" && call.args[0]) gouraud = call.args[1] & 0x380;
    if (name == "TPD_AddTexelEffect" && !gouraud) call.args[2] = call.args[3] = 0;
  }
}

}  // namespace

Case RandomCase(Family family, uint64_t seed) {
  Random random(seed * 64 + static_cast<uint64_t>(family));
  Case c{LayoutFor(random, family), {}};
  const bool extreme = random.OneIn(6);
  const bool textured = family == Family::kTextures || family == Family::kSprites;
  if (textured) c.calls = RandomPipeline(random, c.layout);
  for (int n = random.Between(1, textured ? 3 : 6); n > 0; n--) {
    const bool sets = textured && random.OneIn(6);
    c.calls.push_back(RandomCall(random, sets ? Family::kPipelines : family, c.layout, extreme));
  }
  KeepToTexelsWithoutGouraud(c.calls);
  return c;
}
