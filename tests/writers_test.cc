// Every writer of runs of pixels against the one-pixel rule and its named exceptions: every draw
// mode, format, length and alignment, both sides of the MMX switch.
#include <gtest/gtest.h>

#include "support/cases.h"
#include "support/random.h"
#include "support/sanitizers.h"
#include "support/switch_states.h"

namespace {

constexpr int32_t kModes[] = {DRAW_NORMAL, DRAW_SOLID, DRAW_ALPHA, DRAW_HALF, DRAW_ADD,   DRAW_SUB,
                              DRAW_AND,    DRAW_OR,    DRAW_XOR,   DRAW_MULT, DRAW_REVSUB};
constexpr int32_t kInks[] = {0, 1, 14, 15, 16, 17, 60, 128, 200, 239, 240, 254, 255};
constexpr int32_t kLongest = 140;

struct Writer {
  const char *name;
  void (*library)(int32_t x, int32_t end, const uint32_t *colours, int32_t mode);
  void (*reference)(reference::Reference &, int32_t x, int32_t end, const uint32_t *colours,
                    int32_t mode);
};

const Writer kWriters[] = {
    {"span",
     [](int32_t x, int32_t end, const uint32_t *c, int32_t mode) {
       BRSL_Box(x, 0, end, 1, c[0], BRSL_FILLED | (mode & ~15));
     },
     [](reference::Reference &r, int32_t x, int32_t end, const uint32_t *c, int32_t mode) {
       r.Box(x, 0, end, 1, c[0], BRSL_FILLED | (mode & ~15));
     }},
    {"strip",
     [](int32_t x, int32_t end, const uint32_t *c, int32_t mode) {
       BRSL_DrawStrip(0, x, end, RGBForBuffer(c[0], 0), mode);
     },
     [](reference::Reference &r, int32_t x, int32_t end, const uint32_t *c, int32_t mode) {
       r.DrawStrip(0, x, end, r.Pack(c[0]), mode);
     }},
    {"gouraud",
     [](int32_t x, int32_t end, const uint32_t *c, int32_t mode) {
       BRSL_ShadeBox(x, 0, end, 1, c[0], c[1], c[2], c[3], mode & ~15);
     },
     [](reference::Reference &r, int32_t x, int32_t end, const uint32_t *c, int32_t mode) {
       r.ShadeBox(x, 0, end, 1, c[0], c[1], c[2], c[3], mode & ~15);
     }}};

Layout Row(int32_t format, int32_t width, uint64_t seed) {
  Layout layout;
  layout.format = format;
  layout.width = width;
  layout.pitch = width * kFormatBytes[format];
  layout.seed = seed;
  layout.viewport = {0, 0, width, 1};
  return layout;
}

// Draws the same runs with the library and the reference on fresh copies of one random row.
class Bench {
 public:
  explicit Bench(const Layout &layout)
      : actual_(layout),
        expected_(layout),
        clean_(actual_.Bytes()),
        reference_(ReferenceFor(expected_)) {
    Target(actual_);
  }

  void SetInkAlpha(int32_t inkAlpha) { reference_.inkAlpha = BRSL_SetInkAlpha(inkAlpha); }
  void Clean() { actual_.Bytes() = expected_.Bytes() = clean_; }

  testing::AssertionResult Same(const Writer &writer, int32_t x, int32_t end,
                                const uint32_t *colours, int32_t mode) {
    writer.library(x, end, colours, mode);
    writer.reference(reference_, x, end, colours, mode);
    const std::string difference = Difference(actual_, expected_);
    if (difference.empty()) return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << difference << "; " << writer.name << " " << x << ".." << end << ", mode " << mode
           << ", ink alpha " << reference_.inkAlpha << ", switch " << BRSL_GetMMXState() << std::hex
           << ", colours " << colours[0] << " " << colours[1] << ", " << Describe(actual_.layout());
  }

 private:
  Picture actual_, expected_;
  std::vector<uint8_t> clean_;
  reference::Reference reference_;
};

class Writers : public testing::TestWithParam<int> {
 protected:
  // Calls visit(mode, inkAlpha) for every draw mode, DRAW_ALPHA at every level listed.
  template <class Visit>
  void ForEveryModeAndInk(Bench &bench, Visit visit) {
    for (int32_t mode : kModes) {
      for (int32_t ink : kInks) {
        if (mode != DRAW_ALPHA && ink != 128) continue;
        bench.SetInkAlpha(ink);
        visit(mode);
      }
    }
  }
};

TEST_P(Writers, EveryLengthAndAlignment) {
  Random random(GetParam());
  const int32_t alignments = BRISAL_SANITIZED ? 4 : 16;
  for (int32_t state : SwitchStates()) {
    BRSL_SetMMXState(state);
    Bench bench(Row(GetParam(), kLongest + 16, random.Next()));
    ForEveryModeAndInk(bench, [&](int32_t mode) {
      for (const Writer &writer : kWriters) {
        for (int32_t x = 0; x < alignments; x++) {
          for (int32_t length = -1; length <= kLongest; length++) {
            uint32_t colours[4];
            for (uint32_t &colour : colours) colour = static_cast<uint32_t>(random.Next());
            if (random.OneIn(8)) colours[0] &= 0x070707;
            if (random.OneIn(8)) colours[1] = colours[0];
            bench.Clean();
            ASSERT_TRUE(bench.Same(writer, x, x + length, colours, mode));
          }
        }
      }
    });
  }
}

// All pairs of target and source channel: the picture's row holds every byte, or every 16-bit
// pixel, and is drawn over with every value of a channel.
TEST_P(Writers, EveryPairOfChannels) {
  const int32_t format = GetParam();
  Layout layout = Row(format, format <= 2 ? 65536 : 256, 0);
  Picture row(layout);
  for (int32_t x = 0; x < layout.width; x++) {
    uint8_t *p = row.Address() + x * kFormatBytes[format];
    for (int b = 0; b < kFormatBytes[format]; b++) {
      p[b] = static_cast<uint8_t>(format <= 2 ? x >> 8 * b : (x * (2 * b + 1) + 85 * b));
    }
  }
  const std::vector<uint8_t> clean = row.Bytes();
  Picture expected(layout);
  reference::Reference reference = ReferenceFor(expected);
  Target(row);
  for (int32_t mode : kModes) {
    const int step = format <= 2 ? (BRISAL_SANITIZED ? 96 : 8) : (BRISAL_SANITIZED ? 16 : 1);
    for (int32_t s = 7; s < 256; s += step) {
      const uint32_t colour = s * 0x010101u ^ 0xC3004F00u;
      reference.inkAlpha = BRSL_SetInkAlpha(17 + s * 5 % 223);
      expected.Bytes() = clean;
      reference.Box(0, 0, layout.width, 1, colour, BRSL_FILLED | (mode & ~15));
      for (int32_t state : SwitchStates()) {
        BRSL_SetMMXState(state);
        row.Bytes() = clean;
        BRSL_Box(0, 0, layout.width, 1, colour, BRSL_FILLED | (mode & ~15));
        ASSERT_EQ(Difference(row, expected), "")
            << "mode " << mode << ", colour " << std::hex << colour << ", switch " << state;
      }
    }
  }
}

// What caches do not hold is filled in another way.
TEST_P(Writers, LargeBoxesAreTheirRows) {
  constexpr int32_t kWidth = 2047, kHeight = 1600;
  for (int32_t state : SwitchStates()) {
    BRSL_SetMMXState(state);
    for (bool hasGaps : {false, true}) {
      Layout layout = Row(GetParam(), kWidth, 1);
      layout.height = kHeight;
      if (hasGaps) layout.pitch = -layout.pitch - 5;
      layout.viewport.bottom = kHeight;
      Picture whole(layout), rows(layout);
      Target(rows);
      for (int32_t y = 0; y < kHeight; y++) BRSL_Box(0, y, kWidth, y + 1, 0x96A5C3, BRSL_FILLED);
      Target(whole);
      BRSL_Box(0, 0, kWidth, kHeight, 0x96A5C3, BRSL_FILLED);
      ASSERT_EQ(Difference(whole, rows), "") << "switch " << state << ", gaps " << hasGaps;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Formats, Writers, testing::Range(1, 6));

}  // namespace
