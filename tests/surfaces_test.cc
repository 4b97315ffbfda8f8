// Surfaces, blits and textures without the reference: worked values, and calls of the library
// against other calls that must draw the same.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <vector>

#include "brisal/brisal.h"
#include "support/calls.h"
#include "support/random.h"
#include "support/sanitizers.h"
#include "support/switch_states.h"

namespace {

Layout Sheet(int32_t format, int32_t width, int32_t height, uint64_t seed) {
  Layout layout;
  layout.format = format;
  layout.width = width;
  layout.height = height;
  layout.pitch = width * kFormatBytes[format] + 3;
  layout.seed = seed;
  layout.viewport = {0, 0, width, height};
  return layout;
}

// A pipeline from a sprite draw mode without a tint, and the compression and output effect given.
class Pipeline {
 public:
  explicit Pipeline(uint32_t spriteMode, int32_t compression = 1, int32_t output = 1,
                    int32_t level = 0)
      : pipeline_(TPD_BuildSpriteDrawMode(spriteMode, 0xFFFFFF, 0x302010, 200), TPD_Free) {
    TPD_SetMaskCompression(get(), compression);
    TPD_SetOutputEffect(get(), output, 0, level);
  }
  TPD_Pipeline *get() const { return pipeline_.get(); }

 private:
  std::unique_ptr<TPD_Pipeline, int32_t(BRSL_CALL *)(TPD_Pipeline *)> pipeline_;
};

TEST(Surfaces, RecordsAndNull) {
  uint8_t pixels[4] = {};
  for (int32_t pitch : {1, 2, 1024, 960, 1 << 23, 1 << 24, -4, 0}) {
    BRSL_SurfaceDesc *desc = BRSL_AllocSurfaceDesc(7, pixels, pitch, 320, 200);
    int32_t shift = 0;
    while (shift < 24 && 1 << shift != pitch) shift++;
    EXPECT_EQ(desc->pitchShift, shift == 24 ? 0 : shift) << pitch;
    EXPECT_EQ(desc->address, pixels);
    EXPECT_EQ(desc->maskColour, 0u);
    EXPECT_EQ(desc->viewRight, 320);
    EXPECT_EQ(desc->viewBottom, 200);
    EXPECT_EQ(BRSL_PeekSurface(desc, 0, 0), 0u) << "no such format";
    EXPECT_EQ(BRSL_FreeSurfaceDesc(desc), 1);
  }
  EXPECT_EQ(BRSL_FreeSurfaceDesc(nullptr), 1);
  EXPECT_EQ(TPD_Free(TPD_Alloc()), 0);
  EXPECT_EQ(TPD_Free(nullptr), 0);
  uint32_t out = 7;
  BRSL_PeekPixelStrip(nullptr, 0, 1, 0, &out);
  EXPECT_EQ(out, 7u);
}

TEST(Surfaces, AnyNumbersForFiltersArePrompt) {
  Scene scene({.target = Sheet(4, 20, 9, 1), .source = Sheet(5, 20, 9, 2)}, Painter::kLibrary);
  scene.UseInLibrary();
  BRSL_SurfaceDesc *desc = scene.SurfaceAt(1);
  const int32_t numbers[] = {INT32_MIN, -40000, 0, 40000, INT32_MAX};
  for (float a : {0.0f, 1e-40f, 3e38f, -3e38f, INFINITY, -INFINITY, NAN}) {
    BRSL_FillRect_Blur(desc, a);
    for (float b : {0.0f, 1.0f, 3e38f, -3e38f, INFINITY, NAN}) {
      for (int32_t x : numbers) {
        for (int32_t y : numbers) {
          BRSL_FillRect_Light(desc, x, y, a, b, 0);
          BRSL_FillRect_PhongMap(desc, x, y, 0xFFFFFF, a, b, 0);
        }
      }
    }
  }
}

// Sprites show texel centres and both end texels, and the row of a flat bottom.
TEST(Textures, SpriteQuadOfTheSizeOfItsTexture) {
  for (int32_t split : {0, 1, 2}) {
    Scene scene({.target = Sheet(4, 60, 60, 1), .source = Sheet(4, 32, 32, 2)}, Painter::kLibrary);
    Picture expected = scene.target;
    scene.UseInLibrary();
    const Pipeline plain(0);
    BRSL_DrawSpriteQuad(scene.SurfaceAt(1), 10, 10, 0, 0, 41, 10, 31, 0, 41, 41, 31, 31, 10, 41, 0,
                        31, plain.get(), split);
    const auto reference = ReferenceFor(expected);
    int32_t wrong = 0;
    for (int32_t y = 10; y < 42; y++) {
      for (int32_t x = 10; x < 41; x++) {
        const uint32_t drawn = scene.target.ColourAt(x, y), old = reference.Load(x, y) & 0xFFFFFF;
        if (split == 2 || (split == 1 && y == 41)) wrong += drawn != old;
        if (split == 0 && x == 10) wrong += drawn != scene.source.ColourAt(0, y - 10);
        if (split == 0 && x == 40) wrong += drawn != scene.source.ColourAt(31, y - 10);
      }
    }
    EXPECT_EQ(wrong, 0) << "split " << split;
    EXPECT_EQ(scene.target.ColourAt(41, 20), reference.Load(41, 20) & 0xFFFFFF);
  }
}

TEST(Textures, TexturedQuadLeavesOutTheLastColumnAndRow) {
  Scene scene({.target = Sheet(4, 40, 40, 1), .source = Sheet(4, 32, 32, 2)}, Painter::kLibrary);
  Picture expected = scene.target;
  scene.UseInLibrary();
  const Pipeline plain(0);
  BRSL_QuadT(scene.SurfaceAt(1), 3, 2, -5, 0, 34, 2, 40, 0, 34, 33, 31, 31, 3, 33, 0, 31,
             plain.get());
  const auto reference = ReferenceFor(expected);
  for (int32_t y = 0; y < 31; y++) {
    for (int32_t x = 0; x < 31; x++) {
      reference.Store(3 + x, 2 + y, ReferenceFor(scene.source).Load(x, y));
    }
  }
  EXPECT_EQ(Difference(scene.target, expected), "");
}

// The polygon after it begins with the texel that is left, as its corner stays in the vertex list.
TEST(Textures, OneVertexIsClampedButNotDrawn) {
  Scene scene({.target = Sheet(4, 20, 20, 1), .source = Sheet(4, 16, 16, 2)}, Painter::kLibrary);
  const Picture before = scene.target;
  scene.UseInLibrary();
  const Pipeline plain(0);
  const BRSL_SurfaceDesc *const texture = scene.SurfaceAt(1);
  BRSL_QuadT(nullptr, 2, 2, 15, 15, 12, 2, 15, 15, 12, 12, 15, 15, 2, 12, 15, 15, plain.get());
  BRSL_SurfaceDesc corner = *texture;
  corner.width = 4;
  corner.height = 7;
  BRSL_DrawTexturedPoly(&corner, 1, plain.get());
  EXPECT_EQ(scene.target.Bytes(), before.Bytes());
  BRSL_DrawTexturedPoly(texture, 4, plain.get());
  EXPECT_EQ(scene.target.ColourAt(2, 2), scene.source.ColourAt(3, 6));
}

TEST(Textures, WithoutSizeOrPartsDrawNothing) {
  const Pipeline plain(0);
  for (int32_t without : {0, 1, 2, 3}) {
    Scene scene({.target = Sheet(4, 20, 20, 1), .source = Sheet(4, 9, 9, 2)}, Painter::kLibrary);
    const Picture before = scene.target;
    scene.UseInLibrary();
    BRSL_SurfaceDesc *texture = without == 0 ? nullptr : scene.SurfaceAt(1);
    if (without == 1) texture->width = 0;
    if (without == 2) texture->height = -1;
    const TPD_Pipeline *pipeline = without == 3 ? nullptr : plain.get();
    BRSL_DrawTexture(texture, 0, 0, pipeline);
    BRSL_QuadT(texture, 0, 0, 0, 0, 9, 0, 8, 0, 9, 9, 8, 8, 0, 9, 0, 8, pipeline);
    BRSL_DrawSpriteQuad(texture, 0, 0, 0, 0, 9, 0, 8, 0, 9, 9, 8, 8, 0, 9, 0, 8, pipeline, 1);
    if (without != 3) BRSL_HoriTextureStrip(texture, 0, 0, 0, 9, 0, 0, 0);
    EXPECT_EQ(scene.target.Bytes(), before.Bytes()) << without;
  }
}

// Packing clears the unused bit of 5:5:5, copying keeps it.
void ClearUnusedBits(Picture &picture) {
  const auto pixels = ReferenceFor(picture);
  for (int32_t i = 0; i < picture.layout().width * picture.layout().height; i++) {
    const int32_t x = i % picture.layout().width, y = i / picture.layout().width;
    if (pixels.format == 2) pixels.Store(x, y, pixels.Load(x, y) & 0x7FFF);
  }
}

// Blits and plain textures convert alike.
TEST(Textures, DrawTextureDrawsWhatABlitCopies) {
  for (int32_t state : SwitchStates()) {
    BRSL_SetMMXState(state);
    for (int32_t pair = 0; pair < 20; pair++) {
      const int32_t target = 1 + pair % 4, source = 1 + pair / 4;
      const bool masks = target == source;
      const SceneLayout layout{.target = Sheet(target, 90, 20, 1),
                               .source = Sheet(source, 70, 30, 2)};
      Scene drawn(layout, Painter::kLibrary), copied(layout, Painter::kLibrary);
      ClearUnusedBits(drawn.source);
      ClearUnusedBits(copied.source);
      const uint32_t mask = BRSL_PeekSurface(drawn.SurfaceAt(1), 13, 9);
      const Pipeline plain(masks);
      TPD_SetMaskCompression(plain.get(), masks);
      drawn.UseInLibrary();
      BRSL_SetSurfaceDescMaskColour(drawn.SurfaceAt(1), mask);
      BRSL_DrawTexture(drawn.SurfaceAt(1), -3, -7, plain.get());
      copied.UseInLibrary();
      BRSL_Blit(0, 0, 70, 30, -3, -7, mask, masks);
      EXPECT_EQ(Difference(drawn.target, copied.target), "") << target << " from " << source;
    }
  }
}

// A span against fetch, effect and write done one texel at a time by other calls.
TEST(Textures, SpansAreTexelsOneByOne) {
  const struct {
    int32_t output, mode;
  } outputs[] = {{1, DRAW_NORMAL}, {4, DRAW_ADD}, {5, DRAW_SUB}};
  for (int32_t state : SwitchStates()) {
    BRSL_SetMMXState(state);
    for (const auto &[output, mode] : outputs) {
      for (int32_t pair = 0; pair < 12; pair++) {
        const int32_t width = BRISAL_SANITIZED ? 600 : 5000;
        const SceneLayout layout{.target = Sheet(1 + pair % 3, width, 1, 3),
                                 .source = Sheet(1 + pair / 3, width, 1, 4)};
        Scene whole(layout, Painter::kLibrary), single(layout, Painter::kLibrary);
        const Pipeline adds(0x1001, 0, output);
        whole.UseInLibrary();
        BRSL_DrawTexture(whole.SurfaceAt(1), 0, 0, adds.get());
        single.UseInLibrary();
        for (int32_t x = 0; x < width; x++) {
          const uint32_t texel = BRSL_PeekSurface(single.SurfaceAt(1), x, 0);
          BRSL_Dot(x, 0, TQ_RGB_ALPHA_ADD(texel, 0x302010), mode);
        }
        EXPECT_EQ(Difference(whole.target, single.target), "") << output << " " << pair;
      }
    }
  }
}

// Rows wider than any buffer, gaps and all, are the same drawn through a viewport of one column.
TEST(Textures, WideRowsAreTheirColumns) {
  const int32_t width = BRISAL_SANITIZED ? 4500 : 9000;
  for (int32_t format = 1; format <= 5; format++) {
    for (uint32_t mode : {0x00000001u, 0x80000001u, 0x80000341u}) {
      Layout source = Sheet(1 + (format + 2) % 5, width, 2, 4);
      source.mask = 0x80C0FF;
      source.maskShare = 50;
      const SceneLayout layout{.target = Sheet(format, width, 2, 3), .source = source};
      Scene whole(layout, Painter::kLibrary), columns(layout, Painter::kLibrary);
      const Pipeline pipeline(mode, 1, 2, 77);
      whole.UseInLibrary();
      BRSL_DrawTexture(whole.SurfaceAt(1), 0, 0, pipeline.get());
      columns.UseInLibrary();
      for (int32_t x = 0; x < width; x++) {
        BRSL_SetBufferViewPort(x, 0, x + 1, 2);
        BRSL_DrawTexture(columns.SurfaceAt(1), 0, 0, pipeline.get());
      }
      EXPECT_EQ(Difference(whole.target, columns.target), "") << format << std::hex << " " << mode;
    }
  }
}

// A texture's rows may lie far apart, or the other way round, without a difference to what is drawn.
TEST(Textures, DistancesOfRowsDoNotMatter) {
  constexpr int32_t kSize = 20, kEdge = 31;
  for (int32_t format = 1; format <= 5; format++) {
    const int32_t bytes = kSize * kFormatBytes[format];
    for (uint32_t mode : {0u, 1u, 0x80000000u, 0x80000001u}) {
      const auto drawnWith = [&](int32_t pitch) {
        std::vector<uint8_t> texels(static_cast<size_t>(std::abs(pitch) * kSize));
        uint8_t *const first = texels.data() + (pitch < 0 ? -pitch * (kSize - 1) : 0);
        Random random(5);
        for (int32_t i = 0; i < kSize * bytes; i++) {
          first[i / bytes * pitch + i % bytes] = static_cast<uint8_t>(random.Between(0, 3) * 80);
        }
        std::vector<uint8_t> target(kEdge * kEdge * 4);
        BRSL_SetBuffer(target.data(), kEdge * 4, format);
        BRSL_SetBufferViewPort(0, 0, kEdge, kEdge);
        BRSL_SurfaceDesc *texture = BRSL_AllocSurfaceDesc(format, first, pitch, kSize, kSize);
        BRSL_SetSurfaceDescMaskColour(texture, BRSL_PeekSurface(texture, 3, 3));
        BRSL_DrawSpriteQuad(texture, 9, 0, 0, 0, 30, 9, 19, 0, 21, 30, 19, 19, 0, 21, 0, 19,
                            Pipeline(mode).get(), 0);
        BRSL_FreeSurfaceDesc(texture);
        return target;
      };
      for (int32_t state : SwitchStates()) {
        BRSL_SetMMXState(state);
        const std::vector<uint8_t> expected = drawnWith(bytes);
        for (int32_t pitch : {-bytes, 32767, 32768, -32768, -32769, 70000, -70000}) {
          EXPECT_EQ(drawnWith(pitch), expected) << format << " " << mode << " " << pitch;
        }
      }
    }
  }
}

struct FilterValue {
  const char *name;
  uint32_t before, after;
  void (*filter)(BRSL_SurfaceDesc *);
};

// A surface of one colour, looked at in its middle.
const FilterValue kFilterValues[] = {
    {"box blur", 0x12345678, 0x12345678, [](auto *d) { BRSL_FillRect_Blur(d, 9); }},
    {"zero", 0x12345678, 0x12345678, [](auto *d) { BRSL_FillRect_Blur(d, 0); }},
    {"clamped", 0xFFFFFFFF, 0x09090909, [](auto *d) { BRSL_FillRect_Blur(d, 1000); }},
    {"negative", 0x12345678, 0, [](auto *d) { BRSL_FillRect_Blur(d, -1); }},
    {"fade 100", 0xFFFFFFFF, 0xFEFEFEFE, [](auto *d) { BRSL_FillRect_Fade(d, 100); }},
    {"fade 0", 0xFFFFFFFF, 0, [](auto *d) { BRSL_FillRect_Fade(d, 0); }},
    {"fade 401", 0x30405060, 0xC0FFFFFF, [](auto *d) { BRSL_FillRect_Fade(d, 401); }},
    {"grey", 0xAA00FF00, 0xAAB4B4B4, [](auto *d) { BRSL_FillRect_GreyScale(d); }},
    {"dark", 0xAA00FF00, 0, [](auto *d) { BRSL_FillRect_Light(d, 4, 4, 0, 1, 0); }},
    {"phong", 0, 0xFFFFFFFF, [](auto *d) { BRSL_FillRect_PhongMap(d, 4, 4, 0xFFFFFF, 510, 1, 0); }},
};

TEST(WorkedValues, Filters) {
  for (const FilterValue &value : kFilterValues) {
    Scene scene({.source = Sheet(5, 9, 9, 1)}, Painter::kLibrary);
    BRSL_SurfaceDesc *desc = scene.SurfaceAt(1);
    for (int32_t i = 0; i < 81; i++) BRSL_PokeSurface(desc, i % 9, i / 9, value.before);
    value.filter(desc);
    EXPECT_EQ(BRSL_PeekSurface(desc, 4, 4), value.after) << value.name;
  }
}

}  // namespace
