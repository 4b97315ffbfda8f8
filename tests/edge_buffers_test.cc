// Edge buffers against a point in polygon test.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "brisal/brisal.h"
#include "support/cover.h"
#include "support/random.h"
#include "support/sanitizers.h"

namespace {

// An edge buffer of the square's rows.
class Edges {
 public:
  Edges() { Reset(); }

  void Reset() {
    rows_.assign(kSide + 1, 0);
    rows_[0] = 12;
    Shape_Set_Buffers(rows_.data(), pool_.data());
  }
  int32_t *Table() { return rows_.data(); }
  int32_t *Heads() { return rows_.data() + 1; }

 private:
  std::vector<int32_t> rows_;
  std::vector<uint8_t> pool_ = std::vector<uint8_t>(12 * 4000);
};

TEST(EdgeBuffers, FillStarsByTheEvenOddRule) {
  Edges edges;
  for (int seed = 0; seed < Scaled(400); seed++) {
    Random random(seed);
    std::vector<std::pair<float, float>> points(static_cast<size_t>(random.Between(3, 11)));
    for (auto &[x, y] : points) {
      x = static_cast<float>(random.Between(-20, kSide + 20));
      y = static_cast<float>(random.Between(-20, kSide + 20));
    }
    edges.Reset();
    for (size_t i = 0; i < points.size(); i++) {
      const auto &[x1, y1] = points[i];
      const auto &[x2, y2] = points[(i + 1) % points.size()];
      Shape_BufferEdge(x1, y1, x2, y2, 0, kSide);
    }
    const std::vector<int32_t> filled(edges.Heads(), edges.Heads() + kSide);
    const auto draw = [&] { BRSL_Draw_Shape_Span_Buffer(edges.Heads(), nullptr, 1, DRAW_SOLID); };
    const Cover cover = Drawn(draw);
    for (int32_t y = 0; y < kSide; y++) {
      for (int32_t x = 0; x < kSide; x++) {
        int crossings = 0;
        bool close = false;  // too close to a crossing for single precision
        for (size_t i = 0; i < points.size(); i++) {
          const auto &[x1, y1] = points[i];
          const auto &[x2, y2] = points[(i + 1) % points.size()];
          if ((y1 <= y) == (y2 <= y)) continue;
          const double at = x1 + (double{x2} - x1) * (y - double{y1}) / (double{y2} - y1);
          crossings += at < x + 1;
          close |= std::abs(at - x - 1) < 0.01;
        }
        ASSERT_TRUE(close || cover.At(x, y) == (crossings % 2 == 1))
            << "seed " << seed << " at " << x << ", " << y;
      }
    }
    ASSERT_EQ(Drawn(draw), Cover()) << "rows are emptied";

    std::copy(filled.begin(), filled.end(), edges.Heads());
    PlainList list;
    const int32_t count =
        CreateSpanCollision_ShapeSpanBuffer(&list.head, 0, 0, kSide, kSide, edges.Table(), nullptr);
    ASSERT_EQ(count, list.head.count);
    ASSERT_EQ(CoverOf(list, count), cover);
    ASSERT_EQ(std::vector<int32_t>(edges.Heads(), edges.Heads() + kSide),
              std::vector<int32_t>(kSide));
  }
}

TEST(EdgeBuffers, AnyNumbersArePromptAndOrdered) {
  Edges edges;
  for (const float x : {5.0f, 2.0f, 7.0f, 2.0f, 3e38f, -3e38f}) Shape_AddVert(x, 3);
  PlainList list;
  EXPECT_EQ(CreateSpanCollision_ShapeSpanBuffer(&list.head, INT32_MIN, 0, INT32_MAX, kSide,
                                                edges.Table(), nullptr),
            3);
  EXPECT_TRUE(list.entry[0].left == INT32_MIN && list.entry[0].right == 2);
  EXPECT_TRUE(list.entry[1].left == 2 && list.entry[1].right == 5);
  EXPECT_TRUE(list.entry[2].left == 7 && list.entry[2].right == INT32_MAX);

  edges.Reset();
  Shape_BufferEdge(0, 0.5f, 10, 3.5f, 0, 100);
  Shape_BufferEdge(20, 1, 30, 1.75f, 0, 100);
  Shape_BufferEdge(20, 2, 30, 2.75f, 3, 100);
  CreateSpanCollision_ShapeSpanBuffer(&list.head, 0, 0, kSide, kSide, edges.Table(), nullptr);
  EXPECT_TRUE(list.head.count == 1 && list.entry[0].left == 0 && list.entry[0].right == 20);

  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  const float places[] = {-kInfinity, -3e38f, -1e10f, 0, 7.5f, 1e10f, 3e38f, kInfinity, NAN};
  int32_t added = 0;
  for (const float x1 : places) {
    for (const float y1 : places) {
      for (const float y2 : places) {
        edges.Reset();
        Shape_BufferEdge(x1, y1, 1, y2, 0, 5);
        Shape_BufferEdge(x1, y1, 1, y2, INT32_MAX, INT32_MIN);
        const int32_t crossings = edges.Table()[0] / 12 - 1;
        ASSERT_LE(crossings, 5);
        if (!std::isfinite(x1) || !std::isfinite(y1) || !std::isfinite(y2)) {
          ASSERT_EQ(crossings, 0);
        }
        added += crossings;
        BRSL_Draw_Shape_Span_Buffer(edges.Heads(), nullptr, 1, DRAW_SOLID);
      }
    }
  }
  EXPECT_GT(added, 0);

  Shape_Set_Buffers(nullptr, nullptr);
  Shape_AddVert(1, 1);
  Shape_BufferEdge(0, 0, 9, 9, 0, 9);
  BRSL_Draw_Shape_Span_Buffer(nullptr, nullptr, 1, DRAW_SOLID);
  EXPECT_EQ(CreateSpanCollision_ShapeSpanBuffer(&list.head, 0, 9, 9, 9, edges.Table(), nullptr), 0);
  EXPECT_TRUE(list.head.count == 0 && list.head.top == 9);
}

}  // namespace
