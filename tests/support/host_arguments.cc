#include <bit>
#include <cmath>
#include <optional>

#include "support/arguments.h"

namespace {

using Argument = std::optional<int32_t>;

int32_t Bits(float value) { return std::bit_cast<int32_t>(value); }

// Numbers with few bits, on integers often, and far away sometimes.
float EdgePoint(Random &random, int32_t size) {
  if (random.OneIn(40)) return random.Pick({1e9f, -1e9f, 3e9f, -3e9f, 1e30f, -1e30f, -0.5f});
  const auto number = static_cast<float>(random.Between(-8 * size, 24 * size)) / 16;
  return random.OneIn(4) ? std::floor(number) : number;
}

// F a font or null, t a text or null, l a length, c a colour, m a draw mode, s a size, D a depth.
Argument OfText(Random &random, char kind) {
  switch (kind) {
    case 'F': return random.OneIn(30) ? 0 : random.Between(1, 2);
    case 't': return random.OneIn(30) ? 0 : random.Between(1, 2);
    case 'l': return random.OneIn(3) ? random.Pick({0, 0, -1, INT32_MIN}) : random.Between(1, 40);
    case 'c': {
      if (random.OneIn(2)) return Anything(random);
      return random.Pick({0, 1, 7, 8, 0x5FFFFFF, 0x6FFFFFF, 0x7FFFFFF, 0xFFFFFF, -1, 0x1000000});
    }
    case 'm': return random.OneIn(9) ? random.Pick({3, -1, INT32_MIN}) : random.Between(0, 2);
    case 's': {
      if (random.OneIn(20)) return random.Pick({INT32_MIN, INT32_MAX});
      return random.Between(-9, 60);
    }
    case 'D': return random.OneIn(6) ? random.Pick({0, 16, -8}) : random.Pick({8, 32});
    default: return {};
  }
}

// F a font or null, S the place of a font, n a count, k a code, b a bitmap, N the name of a file or
// null, B the opened file or null, X how a stream is damaged.
Argument OfFonts(Random &random, char kind) {
  switch (kind) {
    case 'F': return random.OneIn(20) ? 0 : random.Between(1, 2);
    case 'S': return random.Between(1, 2);
    case 'n': {
      if (random.OneIn(300)) return random.Pick({65536, 65537, INT32_MAX});
      return random.OneIn(9) ? random.Pick({0, -5, INT32_MIN}) : random.Between(1, 12);
    }
    case 'k':
      return random.OneIn(9) ? random.Pick({-1, INT32_MIN, INT32_MAX}) : random.Between(0, 13);
    case 'b': return random.OneIn(5) ? 0 : random.Between(-12, 6);
    case 'N': return random.OneIn(12) ? 0 : random.OneIn(12) ? 3 : random.Between(1, 2);
    case 'B': return random.OneIn(20) ? 0 : 1;
    case 'X': return random.OneIn(3) ? random.Between(1, random.OneIn(3) ? 400 : 6) : 0;
    default: return {};
  }
}

// r a record or null, R one; x y a point (X Y in floats), c a colour, u v a texel, s a size, A B I a
// 1 2 3 - any word, b a bounds mode, p q an offset; e the vectors of an edge or null, g its
// coordinates; V a vertex.
Argument OfCaptures(Random &random, char kind, const Layout &target, bool extreme) {
  const reference::Rect &v = target.viewport;
  switch (kind) {
    case 'r': return random.OneIn(30) ? 0 : random.Between(1, 2);
    case 'R':
    case 'V': return random.Between(1, 2);
    case 'e': return random.Between(0, 1);
    case 'X':
      return Bits(random.OneIn(9) ? random.Pick({1e30f, -1e30f, -0.5f, -0.0f})
                                  : static_cast<float>(random.Between(-500, 1500)) / 16);
    case 'g': return Bits(RandomFloat(random));
    case 'u':
    case 'v': return random.OneIn(2) ? random.Between(-5, 45) : random.Between(-99999, 1 << 21);
    case 's': return extreme ? Anything(random) : random.Between(-9, 60);
    case 'b': return random.OneIn(2) ? 2 : random.Between(-1, 3);
    case 'p': return extreme && random.OneIn(3) ? Anything(random) : v.left + random.Between(-9, 9);
    case 'q': return extreme && random.OneIn(3) ? Anything(random) : v.top + random.Between(-9, 9);
    case 'A':
    case 'B':
    case 'I':
    case 'a':
    case '1':
    case '2':
    case '3':
    case '-': return Anything(random);
    default: return {};
  }
}

// D V L an image, a vertex buffer, a list; i j a point near the target, q a height.
Argument OfCollisions(Random &random, char kind, bool extreme) {
  switch (kind) {
    case 'D':
    case 'V':
    case 'L': return random.Between(1, 2);
    case 'i': return random.Between(-20, 100);
    case 'j': return random.Between(-20, 60);
    case 'r': return extreme && random.OneIn(2) ? Anything(random) : random.Between(-3, 60);
    case 'q': return random.OneIn(20) ? random.Pick({INT32_MIN, -7}) : random.Between(0, 45);
    default: return {};
  }
}

// t an edge buffer, L a list, X Y a point in floats, R h e o a row, the first row, the end of rows.
Argument OfEdgeBuffers(Random &random, char kind) {
  switch (kind) {
    case 't': return random.OneIn(5) ? 2 : 1;
    case 'L': return random.Between(1, 2);
    case 'X':
    case 'Y': return Bits(EdgePoint(random, kind == 'X' ? 80 : 30));
    case 'R': return random.Between(0, Contents::kRows - 1);
    case 'h': return random.OneIn(2) ? 0 : random.Between(0, Contents::kRows + 5);
    case 'e': return random.OneIn(2) ? Contents::kRows : random.Between(-3, Contents::kRows);
    case 'o': return random.Between(0, Contents::kRows);
    default: return {};
  }
}

// t a transform, v d lists of vertices to read and to write, s e their strides, n a count, f a
// float, a an angle.
Argument OfTransforms(Random &random, char kind) {
  switch (kind) {
    case 't':
    case 'v': return random.Between(1, 2);
    case 'd': return 3;
    case 's': return random.Pick({12, 16, 20, 24, 32, 0, -16, 4});
    case 'e': return random.Pick({20, 24, 28, 32, -20, -32});
    case 'n': return random.OneIn(9) ? random.Pick({0, -1, -2, INT32_MIN}) : random.Between(1, 6);
    case 'f': return Bits(RandomFloat(random));
    case 'a':
      return Bits(static_cast<float>(random.Between(-9999, 9999)) / (random.OneIn(3) ? 1 : 16));
    default: return {};
  }
}

// P a program, n how many instructions, R a limit of random numbers, S a seed.
Argument OfCalculator(Random &random, char kind) {
  switch (kind) {
    case 'P': return random.Between(1, 2);
    case 'n': return random.Between(-2, Contents::kInstructions);
    case 'R': return Bits(RandomLimit(random));
    case 'S': return random.OneIn(4) ? 0 : Anything(random);
    default: return {};
  }
}

Argument Of(Random &random, const SceneLayout &scene, Family family, char kind, bool extreme) {
  switch (family) {
    case Family::kText: return OfText(random, kind);
    case Family::kFonts: return OfFonts(random, kind);
    case Family::kCompression: return random.OneIn(30) ? 0 : random.Between(1, 2);
    case Family::kCaptures: return OfCaptures(random, kind, scene.target, extreme);
    case Family::kCollisions: return OfCollisions(random, kind, extreme);
    case Family::kEdgeBuffers: return OfEdgeBuffers(random, kind);
    case Family::kTransforms: return OfTransforms(random, kind);
    case Family::kCalculator: return OfCalculator(random, kind);
    default: return {};
  }
}

}  // namespace

float RandomFloat(Random &random) {
  if (random.OneIn(16)) {
    return random.Pick(
        {0.0f, -0.0f, 1.0f, 0.5f, 0.999f, 90.0f, 1e30f, -1e30f, 1e-40f, INFINITY, -INFINITY, NAN});
  }
  const auto number = static_cast<float>(random.Between(-99999, 99999));
  return random.OneIn(4) ? number / 4096 : number / 64;
}

float RandomLimit(Random &random) {
  return random.Pick({0.0f, -5.0f, -0.5f, -0.99f, 1.0f, 0.75f, 255.0f, 1e9f, 4e9f, NAN});
}

int32_t HostArgumentOf(Random &random, const SceneLayout &scene, const Call &call, int index,
                       bool extreme) {
  const Function &function = *call.function;
  const Argument own = Of(random, scene, function.family, function.kinds[index], extreme);
  return own ? *own : DrawingArgumentOf(random, scene, call, index, extreme);
}
