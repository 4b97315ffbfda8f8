#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "pixel/format.h"
#include "pixel/instructions.h"
#include "pixel/large_fill.h"

// Combining a run of pixels with a source of colours, in vectors of whatever width the caller's
// column has. A source gives single pixels (One) and a cursor at its start (Start), which gives the
// group it stands at (Get), the one any number of pixels ahead (Ahead), and moves on by a group.

namespace brisal {

// As many pixels as fill whole vectors: one vector, or three where a pixel has three bytes.
template <class F, int VectorBytes>
struct Group {
  static constexpr int kVectors = F::kBytes == 3 ? 3 : 1;
  static constexpr int kBytes = VectorBytes * kVectors;
  static constexpr int kPixels = kBytes / F::kBytes;
  using V = Vector<typename F::Lane, VectorBytes>;

  BRISAL_INLINE static Group Load(const uint8_t *p) {
    Group g;
    for (int i = 0; i < kVectors; ++i) g.part[i] = LoadVector<V>(p + i * VectorBytes);
    return g;
  }

  BRISAL_INLINE void Store(uint8_t *p) const {
    for (int i = 0; i < kVectors; ++i) StoreVector(p + i * VectorBytes, part[i]);
  }

  // A source's group has as many parts, of whatever the rule takes.
  template <class R, class S>
  BRISAL_INLINE static Group Combine(const R &rule, const Group &d, const S &s) {
    Group g;
    for (int i = 0; i < kVectors; ++i) g.part[i] = rule(d.part[i], s.part[i]);
    return g;
  }

  V part[kVectors];
};

// One pixel in a vector of its own, four bytes at the least. Three bytes go by way of a word, since
// vectors of what was stored piecemeal are slow to load.
template <class F>
BRISAL_INLINE auto LoadOne(const uint8_t *p) {
  if constexpr (F::kBytes == 3) {
    const uint32_t word =
        p[0] | static_cast<uint32_t>(p[1]) << 8 | static_cast<uint32_t>(p[2]) << 16;
    Vector<uint8_t, 4> pixel;
    std::memcpy(&pixel, &word, sizeof pixel);
    return pixel;
  } else {
    return LoadVector<Vector<typename F::Lane, F::kBytes>>(p);
  }
}

template <class F, class V>
BRISAL_INLINE void StoreOne(uint8_t *p, V pixel) {
  if constexpr (F::kBytes == 3) {
    uint32_t word;
    std::memcpy(&word, &pixel, sizeof word);
    const uint16_t low = static_cast<uint16_t>(word);
    std::memcpy(p, &low, sizeof low);
    p[2] = static_cast<uint8_t>(word >> 16);
  } else {
    StoreVector(p, pixel);
  }
}

// The target's pixels at p; a rule that does not look at them gets the source instead.
template <class R, class G, class S>
BRISAL_INLINE G TargetOr(const S &source, const uint8_t *p) {
  if constexpr (R::kReadsTarget) {
    return G::Load(p);
  } else {
    return source;
  }
}

// A run of one group to two: two groups that overlap in the middle, both read before either is written.
template <class F, int VectorBytes, class R, class Source>
BRISAL_INLINE void CombineTwoGroups(uint8_t *to, const uint8_t *from, ptrdiff_t n, const R &rule,
                                    const Source &source) {
  using G = Group<F, VectorBytes>;
  const ptrdiff_t last = n - G::kPixels;
  const ptrdiff_t end = last * F::kBytes;
  const auto cursor = source.template Start<VectorBytes>();
  const auto tailSource = cursor.Ahead(last);
  const auto headSource = cursor.Get();
  const G tail = G::Combine(rule, TargetOr<R, G>(tailSource, from + end), tailSource);
  const G head = G::Combine(rule, TargetOr<R, G>(headSource, from), headSource);
  head.Store(to);
  tail.Store(to + end);
}

template <class F, class R, class Source>
BRISAL_INLINE void CombineSinglePixels(uint8_t *to, const uint8_t *from, ptrdiff_t n, const R &rule,
                                       const Source &source) {
  for (ptrdiff_t i = 0; i < n; ++i) {
    const auto pixel = rule(LoadOne<F>(from + i * F::kBytes), source.One(i));
    StoreOne<F>(to + i * F::kBytes, pixel);
  }
}

// A run of a group or more. The last group overlaps the one before it; it is read before anything is
// written.
template <class F, int VectorBytes, class R, class Source>
BRISAL_INLINE void CombineGroups(uint8_t *to, const uint8_t *from, ptrdiff_t n, const R &rule,
                                 const Source &source) {
  using G = Group<F, VectorBytes>;
  const ptrdiff_t last = n - G::kPixels;
  uint8_t *const end = to + last * F::kBytes;
  auto cursor = source.template Start<VectorBytes>();
  const auto tailSource = cursor.Ahead(last);
  const G tail = G::Combine(rule, TargetOr<R, G>(tailSource, from + last * F::kBytes), tailSource);
#pragma GCC unroll 2
  for (; to < end; to += G::kBytes, from += G::kBytes) {
    const auto s = cursor.Get();
    G::Combine(rule, TargetOr<R, G>(s, from), s).Store(to);
    cursor.Advance();
  }
  tail.Store(end);
}

// A source that can begin later pays for it where runs are long: they go on behind their first group where
// no vector crosses lines of the cache. Rules that read the target gain nothing.
template <class Source>
concept CanBeginLater = requires(const Source &source, ptrdiff_t pixels) {
  source.Behind(pixels);
};

// A source of one word, over and over.
template <class Source>
concept RepeatsWord = requires(const Source &source) {
  source.Word();
};

template <class F, class R, class Source>
BRISAL_INLINE bool IsAligned(ptrdiff_t n) {
  constexpr ptrdiff_t kLongBytes = 1024;
  return CanBeginLater<Source> && !R::kReadsTarget && n * F::kBytes >= kLongBytes;
}

template <class F, int VectorBytes, class R, class Source>
BRISAL_INLINE void CombineAligned(uint8_t *to, ptrdiff_t n, const R &rule, const Source &source) {
  if constexpr (CanBeginLater<Source>) {
    const auto group = source.template Start<VectorBytes>().Get();
    Group<F, VectorBytes>::Combine(rule, group, group).Store(to);
    ptrdiff_t bytes = static_cast<ptrdiff_t>(-reinterpret_cast<uintptr_t>(to) % VectorBytes);
    if constexpr (F::kBytes == 3) {
      while (bytes % F::kBytes != 0) bytes += VectorBytes;
    }
    const ptrdiff_t pixels = bytes / F::kBytes;
    to += pixels * F::kBytes;
    CombineGroups<F, VectorBytes>(to, to, n - pixels, rule, source.Behind(pixels));
  }
}

// Whether runs shorter than a group are fastest as one of which only the first bytes are loaded and
// stored. The source must read no memory then.
template <class Source, class R>
constexpr bool kPaysInParts = false;

template <class F, int VectorBytes, class R, class Source>
BRISAL_INLINE void CombinePart(uint8_t *to, const uint8_t *from, ptrdiff_t n, const R &rule,
                               const Source &source) {
  const auto s = source.template Start<VectorBytes>().Get();
  int part = 0;
  for (ptrdiff_t rest = n * F::kBytes; rest > 0; rest -= VectorBytes, ++part) {
    const ptrdiff_t bytes = rest < VectorBytes ? rest : VectorBytes;
    Vector<uint8_t, VectorBytes> d = {};
    if constexpr (R::kReadsTarget) LoadFirst(from + part * VectorBytes, bytes, d);
    const auto combined = rule(As<typename F::Lane>(d), s.part[part]);
    StoreFirst(to + part * VectorBytes, bytes, As<uint8_t>(combined));
  }
}

// Combines the n >= 1 pixels at `from` with the source and stores them at `to`, mostly the same
// place. A run that no wide group fits into takes narrower ones, so that hardly any length needs single
// pixels; there are at most two then.
template <class F, int VectorBytes, bool kIsLong = true, class R, class Source>
BRISAL_INLINE void CombineRun(uint8_t *to, const uint8_t *from, ptrdiff_t n, const R &rule,
                              const Source &source) {
  if (n < Group<F, VectorBytes>::kPixels) {
    if constexpr (VectorBytes == 64 && kPaysInParts<Source, R>) {
      return CombinePart<F, VectorBytes>(to, from, n, rule, source);
    } else if constexpr (VectorBytes > 4) {
      return CombineRun<F, VectorBytes / 2, false>(to, from, n, rule, source);
    } else {
      return CombineSinglePixels<F>(to, from, n, rule, source);
    }
  }
  if constexpr (kIsLong) {
    if (IsAligned<F, R, Source>(n)) return CombineAligned<F, VectorBytes>(to, n, rule, source);
  }
  // What reads the target is not worth working out twice.
  const bool isOne = R::kReadsTarget && n == Group<F, VectorBytes>::kPixels;
  if (kIsLong || isOne) return CombineGroups<F, VectorBytes>(to, from, n, rule, source);
  CombineTwoGroups<F, VectorBytes>(to, from, n, rule, source);
}

// A run on each of some rows, with the source that sourceOf(row number) gives. What to do with the
// length is decided once.
template <class F, int VectorBytes, bool kIsLong = true, class R, class SourceOf>
BRISAL_INLINE void CombineBlock(uint8_t *row, ptrdiff_t pitch, ptrdiff_t n, ptrdiff_t rows,
                                const R &rule, const SourceOf &sourceOf) {
  const bool fits = n >= Group<F, VectorBytes>::kPixels;
  if constexpr (VectorBytes > 4) {
    if (!fits) return CombineBlock<F, VectorBytes / 2, false>(row, pitch, n, rows, rule, sourceOf);
  }
  if constexpr (kIsLong) {
    using Source = std::remove_cvref_t<decltype(sourceOf(0))>;
    if (IsAligned<F, R, Source>(n)) {
      if constexpr (kRepeatsStores && RepeatsWord<Source>) {
        const ptrdiff_t bytes = n * F::kBytes;
        if (IsLargeFill(bytes, rows)) return FillLarge(row, pitch, bytes, rows, sourceOf(0).Word());
      }
      for (ptrdiff_t y = 0; y < rows; ++y, row += pitch) {
        CombineAligned<F, VectorBytes>(row, n, rule, sourceOf(y));
      }
      return;
    }
  }
  for (ptrdiff_t y = 0; y < rows; ++y, row += pitch) {
    if (!fits) {
      CombineSinglePixels<F>(row, row, n, rule, sourceOf(y));
    } else if (kIsLong || n == Group<F, VectorBytes>::kPixels) {
      CombineGroups<F, VectorBytes>(row, row, n, rule, sourceOf(y));
    } else {
      CombineTwoGroups<F, VectorBytes>(row, row, n, rule, sourceOf(y));
    }
  }
}

}  // namespace brisal
