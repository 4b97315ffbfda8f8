// Scaling by whole factors, which random sizes hardly ever meet, in rows of every length of piece.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "brisal/brisal.h"
#include "reference/reference.h"
#include "support/picture.h"
#include "support/random.h"
#include "support/sanitizers.h"
#include "support/switch_states.h"

namespace {

// Pixels of random bytes, with a surface over them that does not begin at the allocation's start.
class Sheet {
 public:
  Sheet(int32_t format, int32_t width, int32_t height, uint64_t seed)
      : format_(format), width_(width), height_(height), pitch_(width * kFormatBytes[format] + 5) {
    Random random(seed);
    bytes_.resize(static_cast<size_t>(pitch_) * static_cast<size_t>(height + 2));
    for (uint8_t &byte : bytes_) byte = static_cast<uint8_t>(random.Between(0, 255));
  }

  BRSL_SurfaceDesc Surface() {
    const std::unique_ptr<BRSL_SurfaceDesc, int32_t(BRSL_CALL *)(BRSL_SurfaceDesc *)> surface(
        BRSL_AllocSurfaceDesc(format_, bytes_.data() + pitch_, pitch_, width_, height_),
        BRSL_FreeSurfaceDesc);
    return *surface;
  }

  const std::vector<uint8_t> &Bytes() const { return bytes_; }

 private:
  int32_t format_;
  int32_t width_;
  int32_t height_;
  int32_t pitch_;
  std::vector<uint8_t> bytes_;
};

struct Scaling {
  int32_t width;
  int32_t height;
  int32_t factor;
  int32_t firstColumn;     // that the destination's viewport shows
  bool backwards = false;  // the source's width is negative
};

constexpr Scaling kScalings[] = {
    {1, 1, 2, 0},   {2, 3, 2, 1},   {9, 2, 2, 0},       {17, 2, 2, 3},      {33, 3, 3, 1},
    {40, 2, 1, 0},  {64, 2, 4, 5},  {130, 3, 2, 1},     {70, 2, 2, 0},      {600, 2, 2, 0},
    {520, 2, 2, 7}, {300, 2, 8, 9}, {9, 2, 4, 0, true}, {40, 2, 3, 1, true}};

TEST(Scaling, ByWholeFactors) {
  for (const Scaling &scaling : kScalings) {
    for (int32_t pair = 0; pair < 25; pair++) {
      const int32_t format = 1 + pair % 5;
      if (BRISAL_SANITIZED && pair % 6 != 0) continue;
      for (int32_t mode : {0, 1, 1111}) {
        const auto scale = [&](auto draw) {
          Sheet source(1 + pair / 5, scaling.width, scaling.height, 1);
          Sheet target(format, scaling.width * scaling.factor, scaling.height * scaling.factor, 2);
          BRSL_SurfaceDesc from = source.Surface(), to = target.Surface();
          to.viewLeft = scaling.firstColumn;
          if (scaling.backwards) from.width = -from.width;
          draw(&from, &to, mode);
          return target.Bytes();
        };
        const std::vector<uint8_t> expected = scale(reference::ScaleSurface);
        for (int32_t state : SwitchStates()) {
          BRSL_SetMMXState(state);
          EXPECT_TRUE(scale(BRSL_ScaleSurface) == expected)
              << scaling.width << " by " << scaling.factor << " from column " << scaling.firstColumn
              << ", format " << format << " from " << 1 + pair / 5 << ", mode " << mode
              << ", switch " << state;
        }
      }
    }
  }
}

}  // namespace
