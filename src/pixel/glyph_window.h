#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

#include "pixel/glyph_kernels.h"
#include "pixel/rules.h"

// Runs of glyphs are short and of every length: a kernel that branches on lengths mostly guesses wrong.
// Sixteen columns are drawn at once instead, whatever runs are in them.

namespace brisal {

constexpr int kWindow = 16;
using WindowBytes = Vector<uint8_t, kWindow>;

// All bits of the lanes from `first` on.
BRISAL_INLINE WindowBytes LanesFrom(ptrdiff_t first) {
  static constexpr uint8_t kSteps[2 * kWindow] = {
      0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,
      255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255};
  return LoadVector<WindowBytes>(kSteps + kWindow - first);
}

struct Window {
  // Adds a run of columns that are read from lanes of the same numbers.
  BRISAL_INLINE void Cover(ptrdiff_t first, ptrdiff_t end, WindowBytes read) {
    const WindowBytes lanes = LanesFrom(first) & ~LanesFrom(end);
    intensity |= read & lanes;
    covered |= lanes;
  }

  WindowBytes intensity = {};
  WindowBytes covered = {};  // all bits of columns that runs cover
};

// Where windows read the intensities of runs.
template <GlyphPixels kPixels>
class WindowSource;

template <>
class WindowSource<GlyphPixels::kSolid> {
 public:
  BRISAL_INLINE explicit WindowSource(const GlyphBlock &) {}
  BRISAL_INLINE WindowBytes Read(const uint8_t *, ptrdiff_t) const { return LanesFrom(0); }
};

// A copy of the block's last bytes keeps windows from reading on behind it. Before pixels there always
// is the header.
template <>
class WindowSource<GlyphPixels::kSoft> {
 public:
  BRISAL_INLINE explicit WindowSource(const GlyphBlock &glyph)
      : last_(glyph.Bytes() + glyph.Size() - kWindow) {
    StoreVector(copy_, LoadVector<WindowBytes>(last_));
    StoreVector(copy_ + kWindow, WindowBytes{});
  }

  // The pixels in the lanes from `lane` on; in those before it, anything.
  BRISAL_INLINE WindowBytes Read(const uint8_t *pixels, ptrdiff_t lane) const {
    const uint8_t *const from = pixels - lane;
    const ptrdiff_t behind = from - last_;
    return LoadVector<WindowBytes>(behind > 0 ? copy_ + behind : from);
  }

 private:
  const uint8_t *last_;
  uint8_t copy_[2 * kWindow];
};

// Blends the ink by weights in lanes of 16 bits onto d, which is the target or the backdrop:
// d + floor((s - d) * w / 256) on channels of eight bits, to which narrower ones are widened by zeros.
template <class F, GlyphRule kRule, int VectorBytes>
class InkRule {
 public:
  using V = Vector<typename F::Lane, VectorBytes>;
  using Words = Vector<uint16_t, VectorBytes>;

  BRISAL_INLINE explicit InkRule(const GlyphInk &ink)
      : opacity_(Splat<Words>(uint16_t(ink.opacity))) {
    for (int part = 0; part < kParts; ++part) {
      ink_[part] = PartOf(ink.colour, part);
      backdrop_[part] = PartOf(ink.backdrop, part) << 8;
    }
  }

  BRISAL_INLINE Words WeightsOf(Words intensity) const { return (intensity * opacity_) >> 8; }

  // In 32-bit formats a pixel has two weights.
  BRISAL_INLINE V operator()(V d, Words weights) const {
    if constexpr (kIs16<F>) {
      return Channel<typename F::Red, 2>(d, weights) | Channel<typename F::Green, 1>(d, weights) |
             Channel<typename F::Blue, 0>(d, weights);
    } else {
      const auto dd = As<uint16_t>(d);
      const Words even = Blend<0>(dd << 8, weights) >> 8;
      const Words odd = Blend<1>(dd & 0xFF00, weights) & 0xFF00;
      const V blended = As<uint8_t>(even | odd);
      return kOnTarget ? WithoutTopByte<F>(blended) : blended;
    }
  }

 private:
  static constexpr bool kOnTarget = kRule == GlyphRule::kOnTarget;
  // Channels of 16-bit formats; of others, bytes at even places and those at odd places.
  static constexpr int kParts = kIs16<F> ? 3 : 2;

  BRISAL_INLINE static Words PartOf(uint32_t colour, int part) {
    if constexpr (kIs16<F>) {
      return Splat<Words>(static_cast<uint16_t>(colour >> 8 * part & 0xFF));
    } else {
      return As<uint16_t>(Splat<Vector<uint32_t, VectorBytes>>(colour >> 8 * part & 0xFF00FF));
    }
  }

  // Channels of the target come, and results leave, with eight bits of fraction.
  template <int kPart>
  BRISAL_INLINE Words Blend(Words target, Words weights) const {
    const Words d = kOnTarget ? target : backdrop_[kPart];
    return d + (ink_[kPart] - (d >> 8)) * weights;
  }

  template <class C, int kPart>
  BRISAL_INLINE Words Channel(V d, Words weights) const {
    constexpr int kFraction = 16 - C::kBits;
    return C::template FromLifted<kFraction>(Blend<kPart>(C::Value(d) << kFraction, weights));
  }

  Words opacity_;
  Words ink_[kParts];
  Words backdrop_[kParts];
};

// Each lane of a half of v twice; of vectors of 32 bytes, the halves of their two halves.
template <int Half, class V, size_t... I>
BRISAL_INLINE V TwiceOf(V v, std::index_sequence<I...>) {
  constexpr size_t kLanes = sizeof...(I) * 16 / sizeof(V);  // of 16 bytes
  return __builtin_shufflevector(v, v,
                                 (I / kLanes * kLanes + Half * kLanes / 2 + I % kLanes / 2)...);
}

template <int Half, class V>
BRISAL_INLINE V Twice(V v) {
  return TwiceOf<Half>(v, std::make_index_sequence<sizeof(V) / sizeof(v[0])>{});
}

template <class F, GlyphRule kRule, int VectorBytes>
class WindowDrawing {
 public:
  using R = InkRule<F, kRule, VectorBytes>;

  // Draws the window's columns into the sixteen pixels at `to`.
  BRISAL_INLINE static void Draw(uint8_t *to, const R &rule, const Window &window) {
    DrawPart<0>(to, rule, window);
    if constexpr (VectorBytes == kWindow) DrawPart<1>(to, rule, window);
  }

 private:
  using V = Vector<typename F::Lane, VectorBytes>;
  using Words = Vector<uint16_t, VectorBytes>;

  // As many columns as make a vector of words.
  template <int Part>
  BRISAL_INLINE static void DrawPart(uint8_t *to, const R &rule, const Window &window) {
    const Words weights = rule.WeightsOf(WordsOf<Part>(window.intensity) & 0xFF);
    const Words covered = WordsOf<Part>(window.covered);
    to += Part * VectorBytes * F::kBytes / 2;
    if constexpr (F::kBytes == 2) {
      DrawVector(to, rule, weights, covered);
    } else {
      DrawVector(to, rule, Twice<0>(weights), Twice<0>(covered));
      DrawVector(to + VectorBytes, rule, Twice<1>(weights), Twice<1>(covered));
    }
  }

  BRISAL_INLINE static void DrawVector(uint8_t *to, const R &rule, Words weights, Words covered) {
    const V d = LoadVector<V>(to);
    const V mask = As<typename F::Lane>(covered);
    StoreVector(to, (rule(d, weights) & mask) | (d & ~mask));
  }

  // The columns' bytes, each one twice. Columns that Twice is to double once more are in an order that
  // it puts right.
  template <int Part>
  BRISAL_INLINE static Words WordsOf(WindowBytes bytes) {
    if constexpr (VectorBytes == kWindow) {
      return As<uint16_t>(Twice<Part>(bytes));
    } else {
      return As<uint16_t>(DoubleAll(bytes, std::make_index_sequence<VectorBytes>{}));
    }
  }

  template <size_t... I>
  BRISAL_INLINE static auto DoubleAll(WindowBytes bytes, std::index_sequence<I...>) {
    constexpr auto kColumn = [](size_t i) {
      if (F::kBytes == 2) return i / 2;
      return i % 8 / 2 + i / 16 * 4 + i / 8 % 2 * 8;
    };
    return __builtin_shufflevector(bytes, bytes, kColumn(I)...);
  }
};

}  // namespace brisal
