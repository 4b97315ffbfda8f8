#include "support/cases.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "brisal/brisal.h"
#include "support/arguments.h"

namespace {

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
  if (Vertices(kinds).size() == 4 && random.OneIn(2)) MakeTrapezium(random, call);
  if (function.family >= Family::kText) return call;
  if (kinds[0] == 'D' && std::strchr(kinds + 1, 'D')) ChooseSurfaces(call, scene);
  if (kinds[0] == 'A') MakeBlit(random, call, scene);
  if (kinds[0] == 'u') Contain(random, call.args, scene.target);
  if (std::strchr(kinds, 'r') && random.OneIn(3)) {
    Touch(random, kinds, call.args, scene.target.viewport);
  }
  return call;
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

// Names of functions that have something to work on after others.
struct Sequence {
  Family family;
  int chance;  // one in so many cases and times
  std::vector<const char *> names;
};

const Sequence kPreparations[] = {
    {Family::kCollisions, 1, {"BRSL_SpanBufferCollisionPolygon"}},
    {Family::kCollisions, 2, {"BRSL_SpanBufferCollisionPolygon", "CreateSpanCollision_Polygon"}},
    {Family::kEdgeBuffers, 1, {"Shape_BufferEdge", "Shape_BufferEdge", "Shape_AddVert"}},
    {Family::kEdgeBuffers, 2, {"Shape_BufferEdge", "Shape_BufferEdge", "Shape_BufferEdge"}},
};

// What draws a captured command, or reads what another call wrote; null for other calls.
const Function *Sequel(const std::string &name) {
  if (name == "CRF_Write") return FunctionNamed("CRF_Read");
  if (name == "CRF_Save") return FunctionNamed("CRF_Load");
  const std::string writer = "Scene_Write_Capture_";
  if (!name.starts_with(writer)) return nullptr;
  std::string command = name.substr(writer.size());
  for (const std::string polygon : {"Tri", "Quad"}) {
    if (command.starts_with(polygon)) command.replace(0, polygon.size(), "Polygon");
  }
  return FunctionNamed(("Scene_Render_Captured_" + command).c_str());
}

void AddSequel(Random &random, const SceneLayout &scene, std::vector<Call> &calls, bool extreme) {
  const Call &call = calls.back();
  const Function *sequel = Sequel(call.function->name);
  if (!sequel || random.OneIn(4)) return;
  Call next = RandomCallOf(random, *sequel, scene, extreme);
  if (scene.family == Family::kCaptures) next.args[0] = std::max(call.args[0], 1);
  if (scene.family == Family::kFonts) next.args[1] = call.args[1];
  calls.push_back(next);
}

}  // namespace

Case RandomCase(Family family, uint64_t seed) {
  Random random(seed * 64 + static_cast<uint64_t>(family));
  Case c{LayoutFor(random, family), {}};
  const bool extreme = random.OneIn(6);
  const bool textured = family == Family::kTextures || family == Family::kSprites;
  if (textured || family == Family::kCaptures) c.calls = RandomPipeline(random, c.layout);
  for (const Sequence &sequence : kPreparations) {
    if (sequence.family != family || !random.OneIn(sequence.chance)) continue;
    for (const char *name : sequence.names) {
      c.calls.push_back(RandomCallOf(random, *FunctionNamed(name), c.layout, extreme));
    }
  }
  for (int n = random.Between(1, textured ? 3 : 6); n > 0; n--) {
    const bool sets = textured && random.OneIn(6);
    const Function &function = RandomFunction(random, sets ? Family::kPipelines : family);
    c.calls.push_back(RandomCallOf(random, function, c.layout, extreme));
    AddSequel(random, c.layout, c.calls, extreme);
  }
  return c;
}
