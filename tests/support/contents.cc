#include "support/contents.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <limits>

#include "support/arguments.h"
#include "support/random.h"

namespace {

constexpr int32_t kSpans = 220;  // in a list
constexpr int32_t kNodes = 420;  // in an edge buffer
constexpr int32_t kListBytes = 1024;

template <class T>
void Scatter(Random &random, std::vector<T> &records) {
  auto *bytes = reinterpret_cast<uint8_t *>(records.data());
  for (size_t i = 0; i < records.size() * sizeof(T); i++) {
    bytes[i] = static_cast<uint8_t>(random.Next());
  }
}

// Any bytes, but what a renderer reads is plausible.
void MakeRecords(Random &random, const Layout &target, std::vector<Scene_Record> &records) {
  records.resize(2);
  Scatter(random, records);
  for (Scene_Record &record : records) {
    record.flags = RandomFlags(random);
    record.vertexCount =
        random.OneIn(9) ? random.Pick({-1, 0, 1, 9, INT32_MAX}) : random.Between(2, 4);
    for (Scene_Vertex &vertex : record.vertices) {
      vertex.x = random.Between(-9, target.width + 9);
      vertex.y = random.Between(-9, target.height + 9);
      vertex.tu = random.Between(-2, 20);
      vertex.tv = random.Between(-2, 20);
    }
  }
}

// Half of the polygons are the first corners of an octagon, from any of them on, either way around.
void MakeCorners(Random &random, const Layout &target, const Layout &image,
                 BRSL_VertexBuffer &corners) {
  constexpr int8_t kOctagon[8][2] = {{0, -4}, {3, -3}, {4, 0},  {3, 3},
                                     {0, 4},  {-3, 3}, {-4, 0}, {-3, -3}};
  const bool convex = random.OneIn(2), back = random.OneIn(2);
  const int32_t height = std::min(target.height, kSpans / 2);
  const int32_t cx = random.Between(0, target.width), cy = random.Between(0, height);
  const int32_t rx = random.Between(1, 50), ry = random.Between(1, 40),
                start = random.Between(0, 7);
  for (int i = 0; i < 8; i++) {
    const int8_t *corner = kOctagon[(start + (back ? 8 - i : i)) % 8];
    corners.x[i] = convex ? cx + corner[0] * rx / 4 : random.Between(-20, target.width + 20);
    corners.y[i] = convex ? cy + corner[1] * ry / 4 : random.Between(-20, height + 20);
    corners.u[i] = random.Between(0, image.width - 1);
    corners.v[i] = random.Between(0, image.height - 1);
    if (random.OneIn(60)) corners.x[i] = random.Pick({40000, -40000});
  }
}

void MakeTransform(Random &random, BRSL_Transform &t) {
  for (float *field : {&t.x, &t.y, &t.z, &t.angleX, &t.angleY, &t.angleZ, &t.scaleX, &t.scaleY,
                       &t.scaleZ, &t.factorX, &t.factorY}) {
    *field = random.OneIn(4) ? 0.0f : static_cast<float>(random.Between(-9999, 9999)) / 16;
  }
  t.order = random.OneIn(9) ? random.Pick({2, -1, INT32_MIN}) : random.Between(0, 1);
  t.output = random.OneIn(9) ? random.Pick({2, -1, INT32_MIN}) : random.Between(0, 1);
}

void MakeProgram(Random &random, std::vector<int32_t> &program) {
  program = {random.Between(0, Contents::kVariables - 1)};
  for (int i = 0; i < Contents::kInstructions; i++) {
    const bool nothing = random.OneIn(6);
    const int32_t code =
        nothing ? random.Pick({0, 7, 9, 11, 14, 20, 25, 30, 35, 50, 55, 60, 65, -1, -24, INT32_MAX})
                : random.Pick({1,  2,  3,  4,  5,  6,  10, 21, 22, 23, 24, 31, 32, 33,
                               34, 41, 42, 43, 44, 51, 52, 53, 54, 61, 62, 63, 64});
    program.push_back(code);
    if (nothing) continue;
    const int32_t firstConstant = Contents::kVariables - Contents::kConstants;
    const bool draws = code > 50 && code < 60;
    program.push_back(draws ? random.Between(firstConstant, Contents::kVariables - 1)
                            : random.Between(0, firstConstant - 1));
  }
}

}  // namespace

uint32_t BitsOf(float value) {
  return std::bit_cast<uint32_t>(std::isnan(value) ? std::numeric_limits<float>::quiet_NaN()
                                                   : value);
}

Contents::Contents(const SceneLayout &layout) {
  Random random(layout.seed);
  const Family family = layout.family;
  if (family == Family::kCaptures) {
    MakeRecords(random, layout.target, records);
    edges.resize(1);
  }
  if (family == Family::kCollisions || family == Family::kEdgeBuffers) {
    for (auto &list : plain) list.resize(3 + 3 * kSpans);
  }
  if (family == Family::kCollisions) {
    corners.resize(2);
    for (auto &corner : corners) MakeCorners(random, layout.target, layout.source, corner);
    for (auto &list : textured) {
      list.resize((sizeof(BRSL_TexturedSpans) + kSpans * sizeof(BRSL_TexturedSpan)) / 8);
    }
  }
  if (family == Family::kEdgeBuffers) {
    for (int i = 0; i < 2; i++) {
      rowTables[i].resize(1 + kRows);
      rowTables[i][0] = 12 * random.Between(1, 3);
      pools[i].resize(3 * kNodes);
      Scatter(random, pools[i]);
    }
  }
  if (family == Family::kTransforms) {
    transforms.resize(2);
    for (BRSL_Transform &transform : transforms) MakeTransform(random, transform);
    for (auto &list : vertices) {
      for (int i = 0; i < kListBytes / 4; i++) {
        const auto value = std::bit_cast<std::array<uint8_t, 4>>(RandomFloat(random));
        list.insert(list.end(), value.begin(), value.end());
      }
    }
  }
  if (family == Family::kCalculator) {
    for (int i = 0; i < kVariables - kConstants; i++) variables.push_back(RandomFloat(random));
    for (int i = 0; i < kConstants; i++) variables.push_back(RandomLimit(random));
    for (auto &program : programs) MakeProgram(random, program);
  }
}

void Contents::AppendTo(std::vector<uint32_t> &words, const void *image1,
                        const void *image2) const {
  const auto append = [&](const void *first, size_t count) {
    const auto *bytes = static_cast<const uint8_t *>(first);
    for (size_t i = 0; i < count; i++) {
      uint32_t word;
      std::memcpy(&word, bytes + 4 * i, 4);
      words.push_back(word);
    }
  };
  const auto appendFloats = [&](const void *first, size_t count) {
    const size_t start = words.size();
    append(first, count);
    for (size_t i = start; i < words.size(); i++) words[i] = BitsOf(std::bit_cast<float>(words[i]));
  };
  append(records.data(), records.size() * sizeof(Scene_Record) / 4);
  appendFloats(edges.data(), edges.size() * 6);
  append(corners.data(), corners.size() * 32);
  for (const auto &list : plain) append(list.data(), list.size());
  for (const auto &list : textured) {
    if (list.empty()) continue;
    const auto &head = *reinterpret_cast<const BRSL_TexturedSpans *>(list.data());
    const int32_t image = head.image == image1   ? 1
                          : head.image == image2 ? 2
                                                 : head.image != nullptr;
    for (int32_t field : {head.top, head.bottom, image, head.format, head.pitch}) {
      words.push_back(static_cast<uint32_t>(field));
    }
    words.push_back(head.maskColour);
    append(&head + 1, kSpans * sizeof(BRSL_TexturedSpan) / 4);
  }
  for (const auto &table : rowTables) append(table.data(), table.size());
  for (const auto &pool : pools) append(pool.data(), pool.size());
  for (size_t i = 0; i < 3; i++) {
    if (!vertices[i].empty()) appendFloats(vertices[i].data() + i, vertices[i].size() / 4 - 1);
  }
  appendFloats(variables.data(), variables.size());
}
