// Worked values of the interface that pin a rounding, an order or an exception; the library and
// the reference are held to the same table.
#include <gtest/gtest.h>

#include "brisal/brisal.h"
#include "support/cases.h"

namespace {

// A call on a picture of one value; every pixel that it should draw is named by rows of text.
struct Shape {
  const char *name;
  Args args;
  reference::Rect viewport;
  std::vector<std::string> rows;  // from row 0 on: '.' stays, '#' drawn, rest as it is
};

constexpr int32_t kWhite = 0xFFFFFF;
constexpr reference::Rect kAll = {0, 0, 16, 16};

const Shape kShapes[] = {
    {"BRSL_Box", {2, 1, 6, 3, kWhite, 2}, kAll, {"", "..####", "..####", "......"}},
    {"BRSL_Box", {6, 3, 2, 1, kWhite, 2}, kAll, {"", "..####", "..####", "......"}},
    {"BRSL_Box", {2, 1, 6, 3, kWhite, 3}, kAll, {"", "..#####", "..#...#", "..#####"}},
    {"BRSL_Box", {2, 1, 6, 3, kWhite, 0}, kAll, {""}},
    {"BRSL_Box", {2, 1, 6, 3, kWhite, DRAW_OR | 1}, kAll, {"", "..#####", "..#...#", "..#####"}},
    {"BRSL_Box", {2, 1, 6, 1, kWhite, DRAW_XOR | 1}, kAll, {"", ""}},
    {"BRSL_Box", {2, 0, 2, 3, kWhite, DRAW_XOR | 1}, kAll, {"..#", "", "", "..#"}},
    {"BRSL_Box", {2, 0, 2, 3, kWhite, 2}, kAll, {""}},
    {"BRSL_Box", {1, 1, 8, 3, kWhite, DRAW_OR | 1}, {0, 0, 5, 9}, {"", ".####", ".#", ".####"}},
    {"BRSL_Box",
     {INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX, kWhite, 2},
     {1, 1, 4, 3},
     {"", ".###", ".###"}},
    {"BRSL_Circle", {5, 5, 1, kWhite, 0}, kAll, {""}},
    {"BRSL_Circle", {5, 5, 2, kWhite, 0}, kAll, {"", "", "", "", "....##", "....##"}},
    {"BRSL_Circle", {2, 2, 2, kWhite, 0}, {1, 0, 16, 16}, {"", "", ".##", ".##"}},
    {"BRSL_Circle",
     {10, 10, 10, kWhite, 0},
     {0, 0, 21, 21},
     {"", "......########", ".....##########", "...##############", "...##############",
      "..################", ".##################"}},
    {"BRSL_OpenCircle", {5, 5, 1, kWhite, 0}, kAll, {"", "", "", "", "", ".....#"}},
    {"BRSL_OpenCircle",
     {4, 4, 5, kWhite, 0},
     kAll,
     {"..#####", ".#.....#", "#.......#", "#.......#", "#.......#", "#.......#", "#.......#",
      ".#.....#", "..#####"}},
    {"BRSL_OpenEllipse",
     {2, 2, 3, 3, kWhite, DRAW_XOR},
     kAll,
     {".#.#", "#...#", "", "#...#", ".#.#"}},
    {"BRSL_WriteLine", {5, 0, 5, 0, kWhite, 1}, kAll, {".....#"}},
    {"BRSL_WriteLine", {0, 0, 10, 0, kWhite, 1}, kAll, {"###########"}},
    {"BRSL_WriteLine", {10, 0, 0, 0, kWhite, 0}, kAll, {"###########"}},
    {"BRSL_WriteLine", {0, 0, 10, 0, kWhite, DRAW_OR}, kAll, {"##########"}},
    {"BRSL_WriteLine", {0, 0, 0, 3, kWhite, DRAW_OR}, kAll, {"#", "#", "#", "#"}},
    {"BRSL_WriteLine", {0, 0, 3, 1, kWhite, 1}, kAll, {"##", "..##"}},
    {"BRSL_WriteLine", {3, 1, 0, 0, kWhite, 1}, kAll, {"##", "..##"}},
    {"BRSL_WriteLine_32Bit", {0, 0, 4, 1, kWhite, 0}, kAll, {"####", "....#"}},
    {"BRSL_Tri", {0, 0, 5, 0, 0, 5, kWhite, 3}, kAll, {"#####", "####", "###", "##", "#", ""}},
    {"BRSL_Tri", {0, 5, 5, 0, 0, 0, kWhite, 0}, kAll, {"#####", "####", "###", "##", "#", ""}},
    {"BRSL_Tri", {0, 2, 9, 2, 4, 2, kWhite, 0}, kAll, {""}},
    {"BRSL_Tri",
     {INT32_MIN, INT32_MIN, INT32_MAX, INT32_MIN, 0, INT32_MAX, kWhite, 0},
     {2, 1, 5, 3},
     {"", "..###", "..###"}},
    {"BRSL_Quad", {1, 0, 4, 0, 4, 2, 1, 2, kWhite, 1}, kAll, {".###", ".###", "...."}},
};

TEST(WorkedValues, Shapes) {
  for (const Shape &shape : kShapes) {
    Layout layout;
    layout.width = layout.height = 24;
    layout.pitch = 4 * layout.width;
    layout.viewport = shape.viewport;
    for (bool library : {true, false}) {
      Scene scene({.target = layout}, Painter::kLibrary);
      Picture &picture = scene.target;
      std::fill(picture.Bytes().begin(), picture.Bytes().end(), uint8_t{0});
      scene.UseInLibrary();
      const Function *function = FunctionNamed(shape.name);
      (library ? function->library : function->reference)(scene, shape.args);
      for (int32_t y = 0; y < static_cast<int32_t>(shape.rows.size()); y++) {
        std::string row;
        for (int32_t x = 0; x < layout.width; x++) row += picture.ColourAt(x, y) ? '#' : '.';
        std::string expected = shape.rows[y];
        expected.resize(layout.width, '.');
        EXPECT_EQ(row, expected) << (library ? "library, " : "reference, ") << "row " << y << " of "
                                 << Describe({{.target = layout}, {{function, shape.args}}});
      }
    }
  }
}

// A call on a row of pixels that all hold one value; pixel x must hold another afterwards.
struct Value {
  int32_t format, inkAlpha;
  uint32_t before;
  const char *name;
  std::array<uint32_t, 9> args;
  int32_t x;
  uint32_t after;
};

const Value kValues[] = {
    {1, 255, 0xFFFF, "BRSL_DrawPixel", {0, 0, 0xFFFF, DRAW_MULT}, 0, 0xF7DE},
    {1, 255, 0xFFFF, "BRSL_DrawPixel", {0, 0, 0xFFFF, DRAW_HALF}, 0, 0xF7DE},
    {1, 255, 0x0001, "BRSL_DrawPixel", {0, 0, 1, DRAW_HALF}, 0, 0},
    {3, 255, 0x010101, "BRSL_DrawPixel", {0, 0, 0x010101, DRAW_HALF}, 0, 0x010101},
    {1, 255, 0x0800, "BRSL_DrawPixel", {0, 0, 0xF800, DRAW_ADD}, 0, 0xF800},
    {4, 255, 0xFF080808, "BRSL_DrawPixel", {0, 0, 0x102030, DRAW_SUB}, 0, 0},
    {5, 255, 0xFF080808, "BRSL_DrawPixel", {0, 0, 0x102030, DRAW_ADD}, 0, 0x00182838},
    {4, 255, 0x102030, "BRSL_DrawPixel", {0, 0, 0xFFFFFF, DRAW_REVSUB}, 0, 0xEFDFCF},
    {4, 255, 0x804020, "BRSL_DrawPixel", {0, 0, 0xFFFFFF, DRAW_MULT}, 0, 0x7F3F1F},
    {5, 255, 0x80804020, "BRSL_DrawPixel", {0, 0, 0xFFFF0000, DRAW_XOR}, 0, 0x7F7F4020},
    {4, 128, 0xAA000000, "BRSL_DrawPixel", {0, 0, 0xBBFFFFFF, DRAW_ALPHA}, 0, 0x7F7F7F},
    {4, 128, 0xAAFFFFFF, "BRSL_DrawPixel", {0, 0, 0, DRAW_ALPHA}, 0, 0x7F7F7F},
    {4, 0, 0xAA123456, "BRSL_DrawPixel", {0, 0, 0, DRAW_ALPHA}, 0, 0xAA123456},
    {4, 255, 0xAA123456, "BRSL_DrawPixel", {0, 0, 0xBB000001, DRAW_ALPHA}, 0, 0xBB000001},
    {4, 255, 0x123456, "BRSL_DrawPixel", {0, 0, 0, 33}, 0, 0x123456},
    {4, 255, 0x123456, "BRSL_DrawPixel", {0, 0, 0, 8192}, 0, 0x123456},
    {1, 16, 0x0000, "BRSL_Box", {0, 0, 9, 1, 0xFFFFFF, DRAW_ALPHA | 2}, 3, 0x0000},
    {1, 17, 0x0000, "BRSL_Box", {0, 0, 9, 1, 0xFFFFFF, DRAW_ALPHA | 2}, 3, 0x1082},
    {1, 239, 0x0000, "BRSL_Box", {0, 0, 9, 1, 0xFFFFFF, DRAW_ALPHA | 2}, 3, 0xE75C},
    {1, 240, 0x0000, "BRSL_Box", {0, 0, 9, 1, 0xFFFFFF, DRAW_ALPHA | 2}, 3, 0xFFFF},
    {3, 5, 0x000000, "BRSL_Box", {0, 0, 9, 1, 0xFFFFFF, DRAW_ALPHA | 2}, 3, 0x040404},
    {4, 255, 0xAA123456, "BRSL_Box", {0, 0, 9, 1, 0, DRAW_ADD | 2}, 3, 0xAA123456},
    {5, 255, 0xAA123456, "BRSL_Box", {0, 0, 9, 1, 0x01000000, DRAW_ADD | 2}, 3, 0x123456},
    {4, 255, 0, "BRSL_Box", {0, 0, 9, 1, 0xAA123456, 2}, 3, 0xAA123456},
    {1, 14, 0x0000, "BRSL_DrawStrip", {0, 0, 9, 0xFFFF, DRAW_ALPHA}, 3, 0x0000},
    {1, 15, 0x0000, "BRSL_DrawStrip", {0, 0, 9, 0xFFFF, DRAW_ALPHA}, 3, 0x0861},
    {1, 240, 0x0000, "BRSL_DrawStrip", {0, 0, 9, 0xFFFF, DRAW_ALPHA}, 3, 0xEF7D},
    {2, 255, 0x7FFF, "BRSL_DrawStrip", {0, 0, 9, 0x7FFF, DRAW_MULT}, 3, 0x7FFF},
    {4, 255, 0xAA102030, "BRSL_DrawStrip", {0, 0, 9, 0, DRAW_ADD}, 3, 0x102030},
    {5, 255, 0xAA102030, "BRSL_DrawStrip", {0, 0, 9, 1, DRAW_ADD}, 3, 0xAA102030},
    {1, 255, 0x1234, "BRSL_DrawStrip", {0, 0, 9, 0xFFFF, DRAW_REVSUB}, 3, 0x1234},
    {4, 255, 9, "BRSL_ShadeBox", {0, 0, 256, 1, 0, 0xFF0000, 0xFF0000, 0, 0}, 1, 0},
    {4, 255, 9, "BRSL_ShadeBox", {0, 0, 256, 1, 0, 0xFF0000, 0xFF0000, 0, 0}, 255, 0xFE0000},
    {4, 255, 9, "BRSL_ShadeBox", {0, 0, 2, 1, 0xFF0000, 0, 0, 0xFF0000, 0}, 1, 0x7F0000},
    {1, 255, 9, "BRSL_ShadeBox", {0, 0, 8, 1, 0, 0xFF, 0xFF, 0, 0}, 7, 27},
    {4, 255, 0xAA000009, "BRSL_ShadeBox", {0, 0, 8, 1, 0, 0, 0, 0, DRAW_SUB}, 3, 0xAA000009},
    {4, 255, 0xAA000009, "BRSL_ShadeBox", {0, 0, 8, 1, 0, 0, 0, 0, DRAW_ALPHA}, 3, 0xAA000009},
};

TEST(WorkedValues, Pixels) {
  for (const Value &value : kValues) {
    const Function *function = FunctionNamed(value.name);
    Args args{};
    std::copy(value.args.begin(), value.args.end(), args.begin());
    Layout layout;
    layout.format = value.format;
    layout.width = 256;
    layout.pitch = layout.width * kFormatBytes[value.format];
    layout.viewport = {0, 0, layout.width, 1};
    layout.inkAlpha = value.inkAlpha;
    for (bool library : {true, false}) {
      Scene scene({.target = layout}, Painter::kLibrary);
      scene.reference.DrawStrip(0, 0, layout.width, value.before, DRAW_SOLID);
      scene.UseInLibrary();
      (library ? function->library : function->reference)(scene, args);
      Picture expected = scene.target;
      ReferenceFor(expected).DrawPixel(value.x, 0, value.after, DRAW_SOLID);
      EXPECT_EQ(Difference(scene.target, expected), "")
          << (library ? "library, " : "reference, ")
          << Describe({{.target = layout}, {{function, args}}});
    }
  }
}

TEST(WorkedValues, State) {
  EXPECT_EQ(BRSL_SetInkAlpha(-5), 0);
  EXPECT_EQ(BRSL_SetInkAlpha(300), 255);
  EXPECT_EQ(BRSL_SetInkAlpha(128), 128);
  EXPECT_EQ(BRSL_GetInkAlpha(), 128);
  EXPECT_EQ(BRSL_SetMMXState(3), CPU_CheckMMX());
  EXPECT_EQ(BRSL_GetMMXState(), CPU_CheckMMX());
  EXPECT_EQ(BRSL_SetMMXState(2), 0);
  EXPECT_EQ(BRSL_Init_Lib(), 1);
  EXPECT_EQ(BRSL_GetMMXState(), CPU_CheckMMX());
  EXPECT_EQ(RGBto565(0xFF123456), 0x11AAu);
  EXPECT_EQ(RGBto555(0xFF123456), 0x08CAu);
  uint8_t pixels[4] = {0x56, 0x34, 0x12, 0xAA};
  const uint32_t packed[] = {0x80FF8040, 0xFC08, 0x7E08, 0xFF8040, 0x80FF8040, 0x80FF8040};
  const uint32_t points[] = {0, 0x3088B0, 0x6810B0, 0x563412, 0xAA123456, 0xAA123456};
  BRSL_SetBufferViewPort(1, 1, 0, 0);
  for (int32_t format = 0; format <= 5; format++) {
    BRSL_SetBuffer(pixels, 4, format);
    EXPECT_EQ(RGBForBuffer(0x80FF8040, 7), packed[format]);
    EXPECT_EQ(BRSL_Point(0, 0), points[format]);
    EXPECT_EQ(BRSL_Point(1, 0), 0u);
  }
  EXPECT_EQ(BRSL_BankPTR(pixels), pixels);
}

TEST(WorkedValues, SlotsOutOfRangeHoldNothing) {
  EXPECT_EQ(BRSL_SetDebug(255, 77), 77);
  EXPECT_EQ(BRSL_GetDebug(255), 77);
  for (int32_t index : {-1, 256, INT32_MIN, INT32_MAX}) {
    EXPECT_EQ(BRSL_SetDebug(index, 5), 0);
    EXPECT_EQ(BRSL_GetDebug(index), 0);
    EXPECT_EQ(BRSL_StartCC(index), 0);
    EXPECT_EQ(BRSL_GetCCTP(index), 0u);
  }
  EXPECT_EQ(BRSL_StartCC(127), 1);
  const uint32_t elapsed = BRSL_GetCCTP(127);
  EXPECT_GT(elapsed, 0u);
  EXPECT_LT(elapsed, 1u << 30);
}

// A long run, where fills and comparisons take their wide paths: every length and alignment.
TEST(WorkedValues, MemoryFunctionsOfEveryLengthAndAlignment) {
  std::vector<uint8_t> source(1200), actual(1200), expected(1200);
  for (size_t i = 0; i < source.size(); i++) source[i] = static_cast<uint8_t>(i * 7 + i / 256);
  for (int32_t start = 0; start < 16; start++) {
    for (int32_t length = -1; length <= 260; length++) {
      for (int32_t size = 0; size <= 8; size++) {
        actual = expected = source;
        (FillMemory)(&actual[64 + start], length, 0x89ABCDEF, size);
        reference::Fill(&expected[64 + start], length, 0x89ABCDEF, size);
        ASSERT_EQ(actual, expected) << start << " " << length << " " << size;
      }
      if (length < 0) continue;
      actual = source;
      (CopyMemory)(&source[17], &actual[300 + start], length);
      EXPECT_EQ(CompareBytes(&source[17], &actual[300 + start], length), 1);
      if (length) actual[300 + start + length - 1] ^= 0x80;
      EXPECT_EQ(CompareBytes(&source[17], &actual[300 + start], length), length == 0);
      if (length) actual[300 + start + length - 1] ^= 0x80;
      std::copy_n(&source[300 + start], length, &actual[300 + start]);
      ASSERT_EQ(actual, source) << start << " " << length;
    }
  }
}

}  // namespace
