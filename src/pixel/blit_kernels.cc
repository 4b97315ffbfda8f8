#include "pixel/blit_kernels.h"

#include <algorithm>

#include "core/ints.h"
#include "pixel/argb_source.h"
#include "pixel/blit_rules.h"
#include "pixel/column.h"
#include "pixel/convert_source.h"
#include "pixel/flat_source.h"
#include "pixel/keyed_source.h"
#include "pixel/pixel_source.h"

namespace brisal {
namespace {

// A rule or a source, with the key if it takes one.
template <class T, class... First>
BRISAL_INLINE T Make(uint32_t key, First... first) {
  if constexpr (std::is_constructible_v<T, First..., uint32_t>) {
    return T(first..., key);
  } else {
    return T(first...);
  }
}

// One pixel after the other; the compiler makes vectors of it where the rows do not overlap.
template <class T, class S, class R>
struct BlitRows : UpTo64Bytes {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const Transfer &given, uint32_t key) {
    const Transfer transfer = given;
    for (int64_t row = 0; row < transfer.rows; ++row) {
      uint8_t *to = transfer.to + ByteOffset(row, transfer.toPitch);
      const uint8_t *from = transfer.from + ByteOffset(row, transfer.fromPitch);
      for (ptrdiff_t i = 0; i < transfer.width; ++i) {
        const uint32_t s = S::Load(from + i * S::kBytes);
        const uint32_t d = T::Load(to + i * T::kBytes);
        T::Store(to + i * T::kBytes, R::Combine(d, s, key));
      }
    }
  }
};

// The bytes from the first to the last of a block.
struct Reach {
  Reach(const uint8_t *first, ptrdiff_t pitch, int64_t rows, ptrdiff_t rowBytes)
      : begin(reinterpret_cast<uintptr_t>(first)), end(begin + static_cast<uintptr_t>(rowBytes)) {
    const auto distance = static_cast<uintptr_t>(ByteOffset(rows - 1, pitch));
    (pitch < 0 ? begin : end) += distance;
  }

  uintptr_t begin;
  uintptr_t end;
};

template <class T, class S>
BRISAL_INLINE bool Overlap(const Transfer &t) {
  const Reach to(t.to, t.toPitch, t.rows, t.width * T::kBytes);
  const Reach from(t.from, t.fromPitch, t.rows, t.width * S::kBytes);
  return to.begin < from.end && from.begin < to.end;
}

// Pixels of a source object meet the target by a rule, in vectors; where the blocks overlap, one after
// the other.
template <class T, class S, class Source, class R>
struct CombineRows : UpTo64Bytes {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const Transfer &given, uint32_t key) {
    const Transfer t = given;
    const R rule = Make<R>(key);
    const auto sourceOf = [&](int64_t row) __attribute__((always_inline)) {
      return Make<Source>(key, t.from + ByteOffset(row, t.fromPitch));
    };
    if (!Overlap<T, S>(t)) {
      return CombineBlock<T, VectorBytes>(t.to, t.toPitch, t.width, t.rows, rule, sourceOf);
    }
    for (int64_t row = 0; row < t.rows; ++row) {
      uint8_t *to = t.to + ByteOffset(row, t.toPitch);
      CombineSinglePixels<T>(to, to, t.width, rule, sourceOf(row));
    }
  }
};

// Pixels of three bytes but for the key.
struct KeyedTripleRows : UpTo64Bytes {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const Transfer &given, uint32_t key) {
#if BRISAL_HAS_AVX512
    if constexpr (VectorBytes == 64) {
      if (!Overlap<Rgb24, Rgb24>(given)) return CopyMasked(given, key);
    }
#endif
    CombineRows<Rgb24, Rgb24, KeyedTriples, UnlessMasked>::Run<VectorBytes>(given, key);
  }

#if BRISAL_HAS_AVX512
 private:
  BRISAL_INLINE static void CopyMasked(const Transfer &given, uint32_t key) {
    const Transfer t = given;
    const auto keys = Flat<Rgb24>(key).Start<64>().Get().part[0];
    for (int64_t row = 0; row < t.rows; ++row) {
      CopyUnlessTriples(t.to + ByteOffset(row, t.toPitch), t.from + ByteOffset(row, t.fromPitch),
                        t.width, keys);
    }
  }
#endif
};

// Pixels that keep their bytes. Where the blocks overlap, as copying one pixel after the other does.
template <class T>
struct CopyRows : UpTo64Bytes {
  // Bytes from which on the C library is faster.
  template <int VectorBytes>
  static constexpr ptrdiff_t kLongRow = VectorBytes == 64 ? 8192 : 1024;

  template <int VectorBytes>
  BRISAL_INLINE static void Run(const Transfer &given, uint32_t) {
    const Transfer t = given;
    const size_t bytes = static_cast<size_t>(t.width) * T::kBytes;
    if (t.width * T::kBytes < kLongRow<VectorBytes> && !Overlap<T, T>(t)) {
      return CombineBlock<T, VectorBytes>(
          t.to, t.toPitch, t.width, t.rows,
          Solid<T>(0), [&](int64_t row) __attribute__((always_inline)) {
            return Pixels<T>(t.from + ByteOffset(row, t.fromPitch));
          });
    }
    for (int64_t row = 0; row < t.rows; ++row) {
      uint8_t *to = t.to + ByteOffset(row, t.toPitch);
      const uint8_t *from = t.from + ByteOffset(row, t.fromPitch);
      const uintptr_t ahead = reinterpret_cast<uintptr_t>(to) - reinterpret_cast<uintptr_t>(from);
      if (ahead == 0 || ahead >= bytes) {
        std::memmove(to, from, bytes);
        continue;
      }
      for (size_t i = 0; i < bytes; i += T::kBytes) std::memmove(to + i, from + i, T::kBytes);
    }
  }
};

using Blits = Kernels<const Transfer &, uint32_t>;

template <class T, class S, class R>
BlitKernel Pick(Isa isa) {
  return Blits::Of<BlitRows<T, S, R>>().For(isa);
}

// Formats whose pixels are of one size are copied alike.
template <class T>
using Storage =
    std::conditional_t<T::kBytes == 2, Rgb565, std::conditional_t<T::kBytes == 3, Rgb24, Xrgb32>>;

// Pixels of one storage, but for the key.
template <class T>
BlitKernel PickKeyed(Isa isa) {
  if constexpr (T::kBytes == 3) {
    return Blits::Of<KeyedTripleRows>().For(isa);
  } else {
    return Blits::Of<CombineRows<T, T, Pixels<T>, UnlessKey<T>>>().For(isa);
  }
}

// A source blended by its alpha.
template <class T>
BlitKernel PickOver(Isa isa) {
  if constexpr (T::kBytes == 2) {
    return Blits::Of<CombineRows<T, Argb32, ArgbTo16<T>, Over16<T>>>().For(isa);
  } else if constexpr (T::kBytes == 4) {
    return Blits::Of<CombineRows<T, Argb32, Pixels<Argb32>, Over32<254>>>().For(isa);
  } else {
    return Pick<T, Argb32, BlendAlpha<T, 254>>(isa);
  }
}

// Pairs that take no flag but transparency.
template <class T, class S>
constexpr bool kStrict = std::is_same_v<T, S> ||
                         (std::is_same_v<T, Xrgb32> && std::is_same_v<S, Argb32>);

template <class T, class S>
BlitKernel Find(Isa isa, uint32_t flags) {
  const bool transparent = (flags & 1) != 0;
  const bool others = (flags & ~1u) != 0;
  if (std::is_same_v<T, Argb32> && !std::is_same_v<S, Argb32>) return nullptr;
  if (kStrict<T, S> && others) return nullptr;
  if (!transparent) {
    if constexpr (kSameStorage<T, S>) {
      return Blits::Of<CopyRows<Storage<T>>>().For(isa);
    } else {
      return Blits::Of<CombineRows<T, S, Converted<T, S>, Solid<T>>>().For(isa);
    }
  }
  if constexpr (std::is_same_v<S, Argb32> && !std::is_same_v<T, Argb32>) {
    if (others) return nullptr;
    return PickOver<T>(isa);
  } else if constexpr (kSameStorage<T, S>) {
    return PickKeyed<Storage<T>>(isa);
  } else if constexpr (std::is_same_v<S, Rgb24> && T::kBytes == 2) {
    return Pick<T, S, CopyUnlessConvertedKey<T, S>>(isa);
  } else {
    return Pick<T, S, CopyUnlessKey<T, S>>(isa);
  }
}

}  // namespace

BlitKernel FindBlitKernel(Isa isa, int32_t target, int32_t source, uint32_t flags) {
  const BlitKernel none = nullptr;
  return WithFormat(target, none, [&](auto t) {
    return WithFormat(source, none,
                      [&](auto s) { return Find<decltype(t), decltype(s)>(isa, flags); });
  });
}

uint32_t BlitKey(int32_t target, int32_t source, uint32_t maskColour) {
  // A 24-bit source is compared as what it becomes.
  return PackColour(maskColour, source == BRSL_FORMAT_RGB ? target : source);
}

}  // namespace brisal
