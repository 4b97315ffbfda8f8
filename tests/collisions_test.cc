// Span lists and comparisons against pixels.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>
#include <vector>

#include "brisal/brisal.h"
#include "support/cover.h"
#include "support/picture.h"
#include "support/random.h"
#include "support/sanitizers.h"

namespace {

struct TexturedList {
  BRSL_TexturedSpans head{};
  BRSL_TexturedSpan entry[kEntries]{};
};

BRSL_VertexBuffer Corners(std::vector<std::pair<int32_t, int32_t>> points) {
  BRSL_VertexBuffer buffer{};
  for (size_t i = 0; i < points.size(); i++) {
    buffer.x[i] = points[i].first;
    buffer.y[i] = points[i].second;
  }
  return buffer;
}

TEST(SpanLists, CoverWhatIsDrawn) {
  for (int seed = 0; seed < Scaled(3000); seed++) {
    Random random(seed);
    const auto place = [&] { return random.Between(0, kSide - 1); };
    const int32_t x[] = {place(), place(), place()}, y[] = {place(), place(), place()};
    PlainList list;
    const BRSL_VertexBuffer corners = Corners({{x[0], y[0]}, {x[1], y[1]}, {x[2], y[2]}});
    CreateSpanCollision_Polygon(&corners, 3, &list.head);
    ASSERT_EQ(CoverOf(list, list.head.count),
              Drawn([&] { BRSL_Tri(x[0], y[0], x[1], y[1], x[2], y[2], 1, 0); }))
        << "triangle, seed " << seed;

    const int32_t rx = random.Between(1, 60), ry = random.Between(1, 60);
    CreateSpanCollision_Ellipse(&list.head, x[0], y[0], rx, ry);
    ASSERT_EQ(CoverOf(list, 2 * ry - 2),
              Drawn([&] { BRSL_FilledEllipse(x[0], y[0], rx, ry, 1, 0); }))
        << "ellipse, seed " << seed;

    CreateSpanCollision_Rect(&list.head, x[0], y[0], x[1], y[1]);
    ASSERT_EQ(CoverOf(list, list.head.count),
              Drawn([&] { BRSL_Box(x[0], y[0], x[1], y[1], 1, BRSL_FILLED); }));

    // Lists of lines are a little wider than the line. The last run of a shallow one may be listed
    // on the row that the line would reach next.
    CreateSpanCollision_Line(&list.head, x[0], y[0], x[1], y[1]);
    const bool steep = std::abs(y[1] - y[0]) >= std::abs(x[1] - x[0]) && y[0] != y[1];
    const int entries = y[0] == y[1] ? 1 : list.head.count + (steep ? 1 : 0);
    const int32_t lastRun = steep ? kSide : list.entry[entries - 1].left;
    const Cover cover = CoverOf(list, entries);
    const Cover line = Drawn([&] { BRSL_WriteDrawModeLine(x[0], y[0], x[1], y[1], 1, DRAW_OR); });
    for (int32_t i = 0; i < kSide * kSide; i++) {
      const int32_t column = i % kSide, row = i / kSide;
      if (!line.At(column, row) || column >= lastRun) continue;
      ASSERT_TRUE(cover.At(column, row))
          << "line, seed " << seed << " at " << column << ", " << row;
    }
  }
}

TEST(SpanLists, WorkedValues) {
  PlainList list;
  CreateSpanCollision_Line(&list.head, 0, 0, 2, 10);
  EXPECT_TRUE(list.head.count == 10 && list.head.top == 0 && list.head.bottom == 10);
  EXPECT_TRUE(list.entry[0].left == 0 && list.entry[0].right == 2 && list.entry[10].y == 10);
  CreateSpanCollision_Line(&list.head, 9, 4, 3, 4);
  EXPECT_TRUE(list.head.count == 2 && list.entry[0].left == 3 && list.entry[0].right == 9);
  CreateSpanCollision_Line(&list.head, 5, 1, 5, 4);
  EXPECT_TRUE(list.entry[0].y == 4 && list.entry[3].y == 1) << "from the second end on";
  // Rows are cut towards zero: one of both signs around row 0.
  CreateSpanCollision_Line(&list.head, 0, -2, 12, 1);
  const BRSL_CollisionSpan expected[] = {{-1, 0, 4}, {0, 3, 11}, {1, 10, 15}};
  EXPECT_EQ(list.head.count, 3);
  EXPECT_EQ(std::memcmp(list.entry, expected, sizeof expected), 0);

  // Far away and flat, in no time.
  CreateSpanCollision_Line(&list.head, INT32_MAX, 1 << 20, INT32_MIN, (1 << 20) - 9);
  EXPECT_TRUE(list.head.count == 1 && list.entry[0].y == (1 << 20) - 9);
  BRSL_VertexBuffer corners =
      Corners({{INT32_MIN, INT32_MAX - 9}, {INT32_MAX, INT32_MAX - 9}, {0, INT32_MAX}});
  CreateSpanCollision_Polygon(&corners, 3, &list.head);
  EXPECT_TRUE(list.head.count == 9 && list.entry[0].left == INT32_MIN &&
              list.entry[0].right == INT32_MAX);
  for (int32_t count : {INT32_MIN, 0, 1, 9, INT32_MAX}) {
    CreateSpanCollision_Polygon(&corners, count, &list.head);
    EXPECT_TRUE(list.head.count == 0 && list.head.top == INT32_MAX - 9) << count;
  }
  CreateSpanCollision_Ellipse(&list.head, 10, 10, 5, 1);
  EXPECT_TRUE(list.head.count == 2 && list.head.top == 10 && list.head.bottom == 11);
  EXPECT_EQ(BRSL_GetVertexBufferModulo(), 32);
}

// A picture in which one half of the pixels, in runs, has the mask colour.
class Image {
 public:
  Image(int32_t format, uint64_t seed) : picture_(LayoutOf(format, seed)) {}

  static constexpr uint32_t kMask = 0xFF00FF;

  // The image drawn unscaled with its top left corner at (x, y).
  void ListAt(int32_t x, int32_t y, TexturedList *list) {
    const int32_t width = picture_.layout().width, height = picture_.layout().height;
    BRSL_VertexBuffer corners =
        Corners({{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}});
    corners.u[1] = corners.u[2] = width;
    corners.v[2] = corners.v[3] = height;
    BRSL_SetSrcBuffer(picture_.Address(), picture_.layout().pitch, picture_.layout().format);
    BRSL_SpanBufferCollisionPolygon(&corners, 4, &list->head, kMask);
  }

  bool IsOpaque(int32_t x, int32_t y) {
    return ReferenceFor(picture_).Load(x, y) != reference::PackFor(picture_.layout().format, kMask);
  }
  int32_t width() const { return picture_.layout().width; }
  int32_t height() const { return picture_.layout().height; }

 private:
  static Layout LayoutOf(int32_t format, uint64_t seed) {
    Random random(seed);
    Layout layout;
    layout.format = format;
    layout.width = random.Between(1, 24);
    layout.height = random.Between(1, 24);
    layout.pitch = layout.width * kFormatBytes[format] + 1;
    layout.seed = seed;
    layout.mask = kMask;
    layout.maskShare = 95;
    return layout;
  }

  Picture picture_;
};

struct Place {
  int32_t x;
  int32_t y;
};

// Whether two shapes have a pixel in common in a row where they share at least two columns.
template <class IsOpaque>
bool Touches(Place a, int32_t aWidth, int32_t aBottom, Place b, int32_t bWidth, int32_t bBottom,
             IsOpaque isOpaque) {
  const int32_t left = std::max(a.x, b.x), right = std::min(a.x + aWidth, b.x + bWidth);
  if (right - left < 2) return false;
  for (int32_t y = std::max(a.y, b.y); y < std::min(aBottom, bBottom); y++) {
    for (int32_t x = left; x < right; x++) {
      if (isOpaque(x, y)) return true;
    }
  }
  return false;
}

TEST(TexturedLists, SampleFromPixelMiddlesAndStartAnewAtVertices) {
  BRSL_VertexBuffer corners = Corners({{10, 0}, {20, 4}, {10, 9}, {-7, 3}});
  const int32_t u[] = {3, 8, 5, 0}, v[] = {1, 0, 1, 7};
  std::copy_n(u, 4, corners.u);
  std::copy_n(v, 4, corners.v);
  TexturedList list;
  BRSL_SetSrcBuffer(&corners, 7, BRSL_FORMAT_X32);
  BRSL_SpanBufferCollisionPolygon(&corners, 4, &list.head, 0xFF123456);
  EXPECT_TRUE(list.head.bottom == 9 && list.head.image == &corners && list.head.pitch == 7);
  EXPECT_EQ(list.head.maskColour, 0x123456u);
  EXPECT_TRUE(list.entry[0].leftU == 0x38000 && list.entry[0].rightV == 0x18000);
  EXPECT_TRUE(list.entry[3].left == -7 && list.entry[3].leftU == 0x8000);
  EXPECT_TRUE(list.entry[4].left == -4 && list.entry[4].leftU == 0x8000 + 5 * 65536 / 6);
  EXPECT_TRUE(list.entry[4].right == 20 && list.entry[4].rightU == 0x88000);
  EXPECT_EQ(list.entry[8].rightU, 0x88000 + 4 * (-3 * 65536 / 5));
  const BRSL_TexturedSpan closing = {};
  EXPECT_EQ(std::memcmp(&list.entry[9], &closing, sizeof closing), 0);

  const Cover ends = Drawn([&] { BRSL_DrawSpansEdges(&list.head); });
  EXPECT_TRUE(ends.At(20, 4) && ends.At(list.entry[7].right, 7) &&
              !ends.At(list.entry[8].right, 8));
}

TEST(Comparisons, EqualPixelOverlap) {
  int touching[2] = {};
  for (int seed = 0; seed < Scaled(20000); seed++) {
    Random random(seed);
    const int32_t format = random.Between(1, 5);
    Image a(format, random.Next()), b(format, random.Next());
    const Place atA = {random.Between(-9, 15), random.Between(-9, 15)};
    const Place atB = {random.Between(-9, 15), random.Between(-9, 15)};
    TexturedList listA, listB;
    a.ListAt(atA.x, atA.y, &listA);
    b.ListAt(atB.x, atB.y, &listB);
    const int32_t common = std::min(atA.y + a.height(), atB.y + b.height()) - 1;
    const bool both =
        Touches(atA, a.width(), common, atB, b.width(), common, [&](int32_t x, int32_t y) {
          return a.IsOpaque(x - atA.x, y - atA.y) && b.IsOpaque(x - atB.x, y - atB.y);
        });
    ASSERT_EQ(BRSL_CompareTexturedSpans(&listA.head, &listB.head), both && format != 3)
        << "seed " << seed;

    PlainList filled;
    CreateSpanCollision_Rect(&filled.head, atB.x, atB.y, atB.x + b.width(), atB.y + b.height());
    const bool opaque =
        Touches(atA, a.width(), atA.y + a.height(), atB, b.width(), atB.y + b.height() - 1,
                [&](int32_t x, int32_t y) { return a.IsOpaque(x - atA.x, y - atA.y); });
    ASSERT_EQ(BRSL_CompareFilledToTexturedSpans(&filled.head, &listA.head), opaque)
        << "seed " << seed;
    filled.head.bottom = atA.y - 1;
    ASSERT_EQ(BRSL_CompareFilledToTexturedSpans(&filled.head, &listA.head), 0) << "by the heads";
    touching[0] += both;
    touching[1] += opaque;
  }
  EXPECT_GT(touching[0], Scaled(400));
  EXPECT_GT(touching[1], Scaled(2000));
}

TEST(Comparisons, SkipWhatLiesBehindAnEarlyEnd) {
  TexturedList list, whole;
  // A polygon that turns upwards after two rows; what lies behind would be read far outside.
  for (BRSL_TexturedSpan &entry : list.entry) {
    entry = {-5, 0, 1 << 30, 1 << 30, 90, 1 << 30, 1 << 30};
  }
  BRSL_VertexBuffer corners = Corners({{0, 0}, {40, 2}, {80, 0}, {80, 60}, {0, 60}});
  uint32_t pixel = 0;
  BRSL_SetSrcBuffer(&pixel, 4, 4);
  BRSL_SpanBufferCollisionPolygon(&corners, 5, &list.head, 0);
  ASSERT_EQ(list.head.bottom, 60);
  corners = Corners({{0, 0}, {80, 0}, {80, 70}, {0, 70}});
  BRSL_SpanBufferCollisionPolygon(&corners, 4, &whole.head, 0);
  PlainList filled;
  CreateSpanCollision_Rect(&filled.head, 0, -100, 90, 250);
  EXPECT_EQ(BRSL_CompareFilledToTexturedSpans(&filled.head, &list.head), 0);
  EXPECT_EQ(BRSL_CompareTexturedSpans(&list.head, &whole.head), 0);
  EXPECT_EQ(BRSL_CompareFilledToTexturedSpans(nullptr, &list.head), 0);
  EXPECT_EQ(BRSL_CompareTexturedSpans(&list.head, nullptr), 0);
  BRSL_DrawSpansEdges(nullptr);
}

}  // namespace
