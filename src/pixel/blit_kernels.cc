#include "pixel/blit_kernels.h"

#include "core/ints.h"
#include "pixel/argb_source.h"
#include "pixel/blit_rules.h"
#include "pixel/column.h"
#include "pixel/convert_source.h"
#include "pixel/pixel_source.h"

namespace brisal {
namespace {

template <class R>
BRISAL_INLINE R MakeRule(uint32_t key) {
  if constexpr (std::is_constructible_v<R, uint32_t>) {
    return R(key);
  } else {
    return R();
  }
}

// One pixel after the other; the compiler makes vectors of it where the rows do not overlap.
template <class T, class S, class R>
struct BlitRows {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const Transfer &given, uint32_t key) {
    const Transfer transfer = given;
    for (int64_t row = 0; row < transfer.rows; ++row) {
      uint8_t *to = transfer.to + ByteOffset(row, transfer.toPitch);
      const uint8_t *from = transfer.from + ByteOffset(row, transfer.fromPitch);
      for (ptrdiff_t i = 0; i < transfer.width; ++i) {
        const uint32_t s = S::Load(from + i * S::kBytes);
        const uint32_t d = R::kReadsTarget ? T::Load(to + i * T::kBytes) : 0;
        T::Store(to + i * T::kBytes, R::Combine(d, s, key));
      }
    }
  }
};

// Pixels of a source object meet the target by a rule, in vectors; where the rows overlap, one after
// the other.
template <class T, class S, class Source, class R>
struct CombineRows {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const Transfer &given, uint32_t key) {
    const Transfer transfer = given;
    const R rule = MakeRule<R>(key);
    for (int64_t row = 0; row < transfer.rows; ++row) {
      uint8_t *to = transfer.to + ByteOffset(row, transfer.toPitch);
      const uint8_t *from = transfer.from + ByteOffset(row, transfer.fromPitch);
      if (Overlap(to, transfer.width * T::kBytes, from, transfer.width * S::kBytes)) {
        CombineOneByOne(to, from, transfer.width, rule);
      } else {
        CombineRun<T, VectorBytes>(to, to, transfer.width, rule, Source(from));
      }
    }
  }

  BRISAL_INLINE static bool Overlap(const uint8_t *to, ptrdiff_t toBytes, const uint8_t *from,
                                    ptrdiff_t fromBytes) {
    const uintptr_t ahead = reinterpret_cast<uintptr_t>(to) - reinterpret_cast<uintptr_t>(from);
    return ahead < static_cast<uintptr_t>(fromBytes) || -ahead < static_cast<uintptr_t>(toBytes);
  }

  BRISAL_INLINE static void CombineOneByOne(uint8_t *to, const uint8_t *from, ptrdiff_t width,
                                            const R &rule) {
    for (ptrdiff_t i = 0; i < width; ++i, to += T::kBytes, from += S::kBytes) {
      StoreOne<T>(to, rule(LoadOne<T>(to), Source(from).One(0)));
    }
  }
};

// Pixels that keep their bytes. Where the rows overlap, as copying one pixel after the other does.
template <int PixelBytes>
void CopyRows(const Transfer &transfer, uint32_t) {
  const size_t bytes = static_cast<size_t>(transfer.width) * PixelBytes;
  for (int64_t row = 0; row < transfer.rows; ++row) {
    uint8_t *to = transfer.to + ByteOffset(row, transfer.toPitch);
    const uint8_t *from = transfer.from + ByteOffset(row, transfer.fromPitch);
    const uintptr_t ahead = reinterpret_cast<uintptr_t>(to) - reinterpret_cast<uintptr_t>(from);
    if (ahead == 0 || ahead >= bytes) {
      std::memmove(to, from, bytes);
      continue;
    }
    for (size_t i = 0; i < bytes; i += PixelBytes) std::memmove(to + i, from + i, PixelBytes);
  }
}

using Blits = Kernels<const Transfer &, uint32_t>;

template <class T, class S, class R>
BlitKernel Pick(bool wide) {
  return Blits::Of<BlitRows<T, S, R>>().columns[wide];
}

// A source blended by its alpha.
template <class T>
BlitKernel PickOver(bool wide) {
  if constexpr (T::kBytes == 2) {
    return Blits::Of<CombineRows<T, Argb32, ArgbTo16<T>, Over16<T>>>().columns[wide];
  } else if constexpr (T::kBytes == 4) {
    return Blits::Of<CombineRows<T, Argb32, Pixels<Argb32>, Over32>>().columns[wide];
  } else {
    return Pick<T, Argb32, BlendAlpha<T>>(wide);
  }
}

// Pairs that take no flag but transparency.
template <class T, class S>
constexpr bool kStrict = std::is_same_v<T, S> ||
                         (std::is_same_v<T, Xrgb32> && std::is_same_v<S, Argb32>);

template <class T, class S>
BlitKernel Find(bool wide, uint32_t flags) {
  const bool transparent = (flags & 1) != 0;
  const bool others = (flags & ~1u) != 0;
  if (std::is_same_v<T, Argb32> && !std::is_same_v<S, Argb32>) return nullptr;
  if (kStrict<T, S> && others) return nullptr;
  if (!transparent) {
    if constexpr (kSameStorage<T, S>) {
      return &CopyRows<T::kBytes>;
    } else if constexpr (T::kBytes == 4 && S::kBytes == 2) {
      // Widening pixel by pixel the compiler does a tenth faster.
      return Pick<T, S, CopyPixel<T, S>>(wide);
    } else {
      return Blits::Of<CombineRows<T, S, Converted<T, S>, Solid<T>>>().columns[wide];
    }
  }
  if constexpr (std::is_same_v<S, Argb32> && !std::is_same_v<T, Argb32>) {
    if (others) return nullptr;
    return PickOver<T>(wide);
  } else if constexpr (std::is_same_v<S, Rgb24> && T::kBytes == 2) {
    return Pick<T, S, CopyUnlessConvertedKey<T, S>>(wide);
  } else {
    return Pick<T, S, CopyUnlessKey<T, S>>(wide);
  }
}

}  // namespace

BlitKernel FindBlitKernel(bool wide, int32_t target, int32_t source, uint32_t flags) {
  const BlitKernel none = nullptr;
  return WithFormat(target, none, [&](auto t) {
    return WithFormat(source, none,
                      [&](auto s) { return Find<decltype(t), decltype(s)>(wide, flags); });
  });
}

uint32_t BlitKey(int32_t target, int32_t source, uint32_t maskColour) {
  // A 24-bit source is compared as what it becomes.
  return PackColour(maskColour, source == BRSL_FORMAT_RGB ? target : source);
}

}  // namespace brisal
