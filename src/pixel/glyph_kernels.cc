#include "pixel/glyph_kernels.h"

#include <array>

#include "pixel/blit_rules.h"
#include "pixel/column.h"
#include "pixel/flat_source.h"
#include "pixel/glyph_rows.h"
#include "pixel/glyph_window.h"

namespace brisal {
namespace {

// Glyphs of intensities on targets of 16 and of 32 bits, in windows.
template <class F, GlyphPixels kPixels, GlyphRule kRule>
struct DrawInWindows {
  using Source = WindowSource<kPixels>;
  template <int VectorBytes>
  using R = InkRule<F, kRule, VectorBytes>;

  template <int VectorBytes>
  BRISAL_INLINE static void Run(const GlyphPart &part, const GlyphInk &ink) {
    const R<VectorBytes> rule(ink);
    const Source source(part.glyph);
    ForGlyphRows<kPixels>(
        part, [&](const RunList &runs, const uint8_t *pixels, uint8_t *to)
                  __attribute__((always_inline)) {
                    if (!DrawNarrowRow<VectorBytes>(part, source, runs, pixels, to, rule)) {
                      DrawAnyRow<VectorBytes>(part, source, runs, pixels, to, rule);
                    }
                  });
  }

  // A row whose runs are all in one window inside the columns to draw.
  template <int VectorBytes>
  BRISAL_INLINE static bool DrawNarrowRow(const GlyphPart &part, const Source &source,
                                          const RunList &runs, const uint8_t *pixels, uint8_t *to,
                                          const R<VectorBytes> &rule) {
    const int32_t count = runs.Count();
    if (count <= 0) return false;
    const int32_t first = runs.Start(0);
    if (first < part.left || first + kWindow > part.right) return false;
    Window window;
    for (int32_t i = 0; i < count; ++i) {
      const auto lane = static_cast<uint32_t>(runs.Start(i) - first);
      const uint32_t end = lane + static_cast<uint32_t>(runs.Length(i));
      if (lane > end || end > kWindow) return false;
      window.Cover(lane, end, source.Read(pixels, lane));
      pixels += end - lane;
    }
    WindowDrawing<F, kRule, VectorBytes>::Draw(to + ptrdiff_t{first - part.left} * F::kBytes, rule,
                                               window);
    return true;
  }

  template <int VectorBytes>
  BRISAL_INLINE static void DrawAnyRow(const GlyphPart &part, const Source &source,
                                       const RunList &runs, const uint8_t *pixels, uint8_t *to,
                                       const R<VectorBytes> &rule) {
    const int32_t columns = part.right - part.left;
    ForRunsInside(
        part, runs, [&](int32_t column, int32_t n, int32_t pixel) __attribute__((always_inline)) {
          for (const int32_t end = column + n; column < end; column += kWindow, pixel += kWindow) {
            Window window;
            window.Cover(0, std::min(end - column, kWindow), source.Read(pixels + pixel, 0));
            DrawClipped<VectorBytes>(to + ptrdiff_t{column} * F::kBytes, columns - column, rule,
                                     window);
          }
        });
  }

  // Draws a window that may reach behind the columns to draw, by way of a copy.
  template <int VectorBytes>
  BRISAL_INLINE static void DrawClipped(uint8_t *to, int32_t columns, const R<VectorBytes> &rule,
                                        const Window &window) {
    using Drawing = WindowDrawing<F, kRule, VectorBytes>;
    if (columns >= kWindow) return Drawing::Draw(to, rule, window);
    uint8_t copy[kWindow * F::kBytes] = {};
    std::memcpy(copy, to, static_cast<size_t>(columns) * F::kBytes);
    Drawing::Draw(copy, rule, window);
    std::memcpy(to, copy, static_cast<size_t>(columns) * F::kBytes);
  }
};

// d + floor((s - d) * weight / 256) on all four channels.
BRISAL_INLINE uint32_t BlendColours(uint32_t d, uint32_t s, uint32_t weight) {
  return BlendField<8>(d, s, weight, 0xFF00FF) | BlendField<8>(d >> 8, s >> 8, weight, 0xFF00FF)
                                                     << 8;
}

// A pixel's colour and weight.
struct Dab {
  uint32_t colour;
  uint32_t weight;
};

template <GlyphPixels kPixels>
BRISAL_INLINE Dab DabOf(const uint8_t *pixels, int32_t i, const GlyphInk &ink) {
  if constexpr (kPixels == GlyphPixels::kSolid) return {ink.colour, 255 * ink.opacity >> 8};
  if constexpr (kPixels == GlyphPixels::kSoft) return {ink.colour, pixels[i] * ink.opacity >> 8};
  const uint32_t p = LoadAs<uint32_t>(pixels + 4 * ptrdiff_t{i});
  uint32_t tinted = 0;
  for (int shift = 0; shift < 24; shift += 8) {
    tinted |= ((p >> shift & 0xFF) * ((ink.colour >> shift & 0xFF) + 1) >> 8) << shift;
  }
  return {tinted, (p >> 24) * ink.opacity >> 8};
}

// One pixel after the other.
template <class F, GlyphPixels kPixels, GlyphRule kRule>
struct DrawPixels {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const GlyphPart &part, const GlyphInk &ink) {
    ForGlyphRows<kPixels>(
        part, [&](const RunList &runs, const uint8_t *pixels,
                  uint8_t *to) __attribute__((always_inline)) {
          ForRunsInside(
              part,
              runs, [&](int32_t column, int32_t n, int32_t pixel) __attribute__((always_inline)) {
                for (int32_t i = 0; i < n; ++i) {
                  DrawPixel(to + ptrdiff_t{column + i} * F::kBytes,
                            DabOf<kPixels>(pixels, pixel + i, ink), ink);
                }
              });
        });
  }

  BRISAL_INLINE static void DrawPixel(uint8_t *to, const Dab &dab, const GlyphInk &ink) {
    if constexpr (kRule == GlyphRule::kReplace) return F::Store(to, F::Pack(dab.colour));
    const uint32_t d = kRule == GlyphRule::kOnTarget ? F::Widen(F::Load(to)) : ink.backdrop;
    F::Store(to, F::Pack(BlendColours(d & 0xFFFFFF, dab.colour, dab.weight)));
  }
};

// Solid glyphs, whose runs are spans of one colour.
template <class F, GlyphRule kRule>
struct FillRuns {
  static constexpr bool kOnTarget = kRule == GlyphRule::kOnTarget;
  using R = std::conditional_t<kOnTarget, Alpha<F>, Solid<F>>;

  template <int VectorBytes>
  BRISAL_INLINE static void Run(const GlyphPart &part, const GlyphInk &ink) {
    const uint32_t weight = 255 * ink.opacity >> 8;
    const R rule(weight);
    const Flat<F> source(
        F::Pack(kOnTarget ? ink.colour : BlendColours(ink.backdrop, ink.colour, weight)));
    ForGlyphRows<GlyphPixels::kSolid>(
        part, [&](const RunList &runs, const uint8_t *,
                  uint8_t *to) __attribute__((always_inline)) {
          ForRunsInside(
              part, runs, [&](int32_t column, int32_t n, int32_t) __attribute__((always_inline)) {
                uint8_t *const first = to + ptrdiff_t{column} * F::kBytes;
                CombineRun<F, VectorBytes>(first, first, n, rule, source);
              });
        });
  }
};

using Glyphs = Kernels<const GlyphPart &, const GlyphInk &>;

template <class F, GlyphPixels kPixels, GlyphRule kRule>
constexpr Glyphs KernelsOf() {
  using T = typename FoldAlpha<F, Solid>::type;
  constexpr bool kBlends16 = kIs16<T> && kRule == GlyphRule::kOnTarget;
  if constexpr (kPixels == GlyphPixels::kSolid && !kBlends16) {
    return Glyphs::Of<FillRuns<T, kRule>>();
  } else if constexpr (kPixels == GlyphPixels::kColours || T::kBytes == 3) {
    return Glyphs::PlainOf<DrawPixels<T, kPixels, kRule>>();
  } else {
    return Glyphs::Of<DrawInWindows<T, kPixels, kRule>>();
  }
}

template <GlyphPixels kPixels, GlyphRule kRule, class... F>
constexpr auto RowOf(TypeList<F...>) {
  return std::array{KernelsOf<F, kPixels, kRule>()...};
}

template <GlyphPixels kPixels, GlyphRule... kRules>
constexpr std::array kTable = {RowOf<kPixels, kRules>(Formats{})...};

constexpr auto kSolidGlyphs =
    kTable<GlyphPixels::kSolid, GlyphRule::kOnBackdrop, GlyphRule::kOnTarget>;
constexpr auto kSoftGlyphs =
    kTable<GlyphPixels::kSoft, GlyphRule::kOnBackdrop, GlyphRule::kOnTarget>;
constexpr auto kColourGlyphs = kTable<GlyphPixels::kColours, GlyphRule::kOnBackdrop,
                                      GlyphRule::kOnTarget, GlyphRule::kReplace>;

template <class Table>
GlyphKernel Find(const Table &table, Isa isa, int32_t format, GlyphRule rule) {
  const size_t row = static_cast<size_t>(rule);
  if (row >= table.size() || !IsFormat(format)) return nullptr;
  return table[row][static_cast<size_t>(format - 1)].For(isa);
}

}  // namespace

GlyphKernel FindGlyphKernel(Isa isa, int32_t format, GlyphPixels pixels, GlyphRule rule) {
  switch (pixels) {
    case GlyphPixels::kSolid: return Find(kSolidGlyphs, isa, format, rule);
    case GlyphPixels::kSoft: return Find(kSoftGlyphs, isa, format, rule);
    default: return Find(kColourGlyphs, isa, format, rule);
  }
}

}  // namespace brisal
