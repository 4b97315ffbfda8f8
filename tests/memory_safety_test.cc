// What the drawing calls must never do: touch memory outside their rows.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <vector>

#include "support/cases.h"
#include "support/fenced_page.h"
#include "support/recording_host.h"
#include "support/switch_states.h"

namespace {

constexpr int32_t kLongest = 70;

void DrawEverywhere(int32_t length, int32_t mode) {
  BRSL_Box(0, 0, length, 1, 0x80123456, BRSL_FILLED | mode);
  BRSL_DrawStrip(0, 0, length, 0x4321, mode);
  BRSL_ShadeBox(0, 0, length, 1, 0x102030, 0xF0E0D0, 0x405060, 0x708090, mode);
  BRSL_Box(0, 0, length - 1, 0, 0x80123456, BRSL_OUTLINE | mode);
  for (int32_t x = 0; x < length; x++) BRSL_FastPoint(x, 0);
}

TEST(Fences, NothingBeforeOrAfterARowIsTouched) {
  FencedPage page;
  for (int32_t state : SwitchStates()) {
    BRSL_SetMMXState(state);
    for (int32_t format = 1; format <= 5; format++) {
      for (int32_t length = 1; length <= kLongest; length++) {
        const int32_t bytes = length * kFormatBytes[format];
        for (uint8_t *row : {page.Begin(), page.End() - bytes}) {
          BRSL_SetBuffer(row, bytes, format);
          BRSL_SetBufferViewPort(0, 0, length, 1);
          BRSL_SetInkAlpha(100);
          for (int32_t mode = 0; mode <= DRAW_REVSUB; mode = mode ? mode * 2 : 16) {
            DrawEverywhere(length, mode);
          }
        }
      }
    }
  }
}

// Every pair of formats, and every effect, from and into rows that end where memory ends.
TEST(Fences, BlitsKeepToTheirRows) {
  FencedPage source, blend, target;
  const auto row = [](const FencedPage &page, bool last, int32_t bytes) {
    return last ? page.End() - bytes : page.Begin();
  };
  for (int32_t state : SwitchStates()) {
    BRSL_SetMMXState(state);
    for (int32_t pair = 0; pair < 25; pair++) {
      const int32_t from = 1 + pair / 5, to = 1 + pair % 5;
      for (int32_t length = 1; length <= kLongest; length++) {
        const int32_t bytes = length * kFormatBytes[from], out = length * kFormatBytes[to];
        for (int ends = 0; ends < 4; ends++) {
          BRSL_SetSrcBuffer(row(source, ends & 1, bytes), bytes, from);
          BRSL_SetSrcBlendBuffer(row(blend, ends & 1, bytes), bytes, from);
          BRSL_SetBuffer(row(target, ends & 2, out), out, to);
          BRSL_SetBufferViewPort(0, 0, length, 1);
          BRSL_Blit(0, 0, length, 1, 0, 0, 0x204060, ends & 1);
          BRSL_Blit(0, 0, length, 1, 0, 0, 0x204060, !(ends & 1));
          for (uint32_t mode : {1, 32, 64, 128, 1024, 8192, 16384}) {
            BRSL_BlitFX(0, 0, length, 1, 0, 0, 0, 0, mode, 0x8090A0, 0, 0);
            BRSL_BlitFX(0, 0, length, 1, 0, 0, 0, 0, mode, 0x8090A0, 1, 0);
          }
        }
      }
    }
  }
}

// Textures of one row and of one column, point-sampled and filtered.
TEST(Fences, TexturesKeepToTheirTexels) {
  FencedPage texels, target;
  TPD_Pipeline *pipeline = TPD_Alloc();
  for (int32_t state : SwitchStates()) {
    BRSL_SetMMXState(state);
    for (int32_t pair = 0; pair < 25; pair++) {
      const int32_t from = 1 + pair / 5, to = 1 + pair % 5, size = kFormatBytes[from];
      for (int32_t length = 1; length <= kLongest; length++) {
        const int32_t out = length * kFormatBytes[to];
        BRSL_SetBuffer(length % 2 ? target.Begin() : target.End() - out, out, to);
        BRSL_SetBufferViewPort(0, 0, length, 1);
        for (int variant = 0; variant < 8; variant++) {
          const int32_t width = variant & 1 ? 1 : length, height = variant & 1 ? length : 1;
          uint8_t *first = variant & 2 ? texels.Begin() : texels.End() - length * size;
          BRSL_SurfaceDesc *desc = BRSL_AllocSurfaceDesc(from, first, width * size, width, height);
          TPD_UpdateSpriteDrawMode(pipeline, variant & 4 ? 0x80000001 : 1, ~0u, 0, 0);
          TPD_SetMaskCompression(pipeline, length / 2 % 2);
          TPD_SetOutputEffect(pipeline, 1 + length % 5, 0, 100);
          const int32_t u = width - 1, v = height - 1;
          BRSL_DrawTexture(desc, 0, 0, pipeline);
          BRSL_DrawSpriteQuad(desc, 0, 0, 0, 0, length, 0, u, v, length, 1, u, v, 0, 1, 0, 0,
                              pipeline, 0);
          BRSL_DrawSpriteQuad(desc, 0, 0, u, v, length, 0, 0, 0, length, 1, 0, 0, 0, 1, u, v,
                              pipeline, 0);
          BRSL_HoriTextureStrip(desc, 0, 0, 0, length, u * 65536, v * 65536, 0);
          BRSL_FreeSurfaceDesc(desc);
        }
      }
    }
  }
  TPD_Free(pipeline);
}

// Draws a texture turned and enlarged, as it is and tinted, on a fresh target.
std::vector<uint8_t> Turned(int32_t format, void *texels, int32_t pitch, int32_t width,
                            int32_t height) {
  constexpr int32_t kSide = 200;
  std::vector<uint8_t> target(kSide * kSide * 4);
  BRSL_SetBuffer(target.data(), kSide * 4, format);
  BRSL_SetBufferViewPort(0, 0, kSide, kSide);
  BRSL_SurfaceDesc *desc = BRSL_AllocSurfaceDesc(format, texels, pitch, width, height);
  const int32_t u = width - 1, v = height - 1, half = kSide / 2;
  int32_t y = 0;
  for (uint32_t tint : {0xFFFFFFFFu, 0x8090A0u}) {
    TPD_Pipeline *pipeline = TPD_BuildSpriteDrawMode(0, tint, 0, 0);
    BRSL_DrawSpriteQuad(desc, half, y, 0, 0, kSide, y + half / 2, u, 0, half, y + half, u, v, 0,
                        y + half / 2, 0, v, pipeline, 0);
    TPD_Free(pipeline);
    y += half;
  }
  BRSL_FreeSurfaceDesc(desc);
  return target;
}

// What reads words may read a texel's neighbours, but not the page that none of them is on.
TEST(Fences, TexelsKeepToTheirPages) {
  FencedPage one, other;
  uint8_t *const low = std::min(one.Begin(), other.Begin());
  uint8_t *const high = std::max(one.Begin(), other.Begin());
  const int32_t page = static_cast<int32_t>(one.End() - one.Begin());
  const int32_t apart = static_cast<int32_t>(high - low);
  for (int i = 0; i < page; i++) {
    for (uint8_t *begin : {low, high}) begin[i] = static_cast<uint8_t>(i * 31 + i / 7);
  }
  constexpr int32_t kWidth = 20;
  for (int32_t state : SwitchStates()) {
    BRSL_SetMMXState(state);
    for (int32_t format = 1; format <= 5; format++) {
      const int32_t bytes = kWidth * kFormatBytes[format], between = (page - bytes) / 4;
      struct Case {
        uint8_t *first;
        int32_t pitch;
        int32_t height;
      };
      uint8_t *const lowEnd = low + page - bytes;
      for (const Case &c : {Case{low, bytes, 5}, Case{low, between, 5}, Case{lowEnd, -between, 5},
                            Case{lowEnd - 4 * bytes, bytes, 5}, Case{lowEnd, apart - 64, 2},
                            Case{high + 64, -apart - 64, 2}}) {
        std::vector<uint8_t> copy(static_cast<size_t>(bytes * c.height) + 64);
        for (int32_t row = 0; row < c.height; row++) {
          std::memcpy(&copy[static_cast<size_t>(16 + row * bytes)], c.first + row * c.pitch,
                      static_cast<size_t>(bytes));
        }
        EXPECT_EQ(Turned(format, c.first, c.pitch, kWidth, c.height),
                  Turned(format, &copy[16], bytes, kWidth, c.height))
            << "format " << format << ", pitch " << c.pitch;
      }
    }
  }
}

// A row's list without runs may be the last thing that a glyph holds.
TEST(Fences, GlyphsKeepToTheirBlocks) {
  FencedPage glyph;
  RecordingHost host;
  GCF_Retrieve(&RecordingHost::Record());
  const int32_t words[] = {38, 5, 1, 8, 0, 1, 32, 32, 4};
  uint8_t *const block = glyph.End() - words[0];
  std::memcpy(block, words, sizeof words);
  CRF_Font *const font = CRF_Alloc(1);
  ASSERT_NE(font, nullptr);
  CRF_SetChrDepth(font, 8);
  CRF_SetMaxChrSize(font, 32, 32);
  CRF_SetChrBmp(font, 0, block);
  std::vector<uint8_t> pixels(64 * 4);
  for (int32_t state : SwitchStates()) {
    BRSL_SetMMXState(state);
    for (int32_t format = 1; format <= 5; format++) {
      BRSL_SetBuffer(pixels.data(), 64 * 4, format);
      BRSL_SetBufferViewPort(0, 0, 64, 1);
      CRF_Draw(font, "", 1, 0, 0, 0xFFFFFFFF);
    }
  }
  CRF_Free(font);
  EXPECT_EQ(pixels, std::vector<uint8_t>(64 * 4));
}

TEST(Fences, MemoryFunctionsKeepToTheirBytes) {
  FencedPage source, target;
  for (int32_t bytes = 1; bytes <= 300; bytes++) {
    (CopyMemory)(source.End() - bytes, target.Begin(), bytes);
    (CopyMemory)(source.Begin(), target.End() - bytes, bytes);
    CompareBytes(source.End() - bytes, target.End() - bytes, bytes);
    for (int32_t size = 1; size <= 4; size++) {
      (FillMemory)(target.End() - bytes / size * size, bytes / size, 0x12345678, size);
      (FillMemory)(target.Begin(), bytes / size, 0x12345678, size);
      BRSL_FindRunLength(target.End() - bytes / size * size, 1, bytes / size, size, 0);
    }
  }
}

}  // namespace
