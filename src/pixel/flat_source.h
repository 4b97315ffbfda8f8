#pragma once

#include <cstddef>
#include <cstdint>

#include "pixel/run.h"

namespace brisal {

// One pixel of a packed colour, as LoadOne gives it.
template <class F>
BRISAL_INLINE auto OneOf(uint32_t packed) {
  if constexpr (F::kBytes == 3) {
    packed = (packed >> 16 & 0xFF) | (packed & 0xFF00) | (packed & 0xFF) << 16;
  }
  Vector<typename F::Lane, F::kBytes == 2 ? 2 : 4> pixel;
  std::memcpy(&pixel, &packed, sizeof pixel);
  return pixel;
}

// A source of one packed colour, repeated.
template <class F>
class Flat {
 public:
  BRISAL_INLINE explicit Flat(uint32_t packed) {
    if constexpr (F::kBytes == 2) packed = (packed & 0xFFFF) * 0x10001u;
    if constexpr (F::kBytes == 3) {
      const uint64_t pixel = (packed >> 16 & 0xFF) | (packed & 0xFF00) | (packed & 0xFF) << 16;
      const uint64_t words[3] = {pixel | pixel << 24 | pixel << 48,
                                 pixel >> 16 | pixel << 8 | pixel << 32 | pixel << 56,
                                 pixel >> 8 | pixel << 16 | pixel << 40};
      for (size_t i = 0; i < sizeof bytes_; i += sizeof words) {
        std::memcpy(bytes_ + i, words, sizeof words);
      }
    } else {
      const auto words = Splat<Vector<uint32_t, kBytes>>(packed);
      std::memcpy(bytes_, &words, sizeof words);
    }
  }

  BRISAL_INLINE auto One(ptrdiff_t) const { return LoadOne<F>(bytes_); }

  template <int VectorBytes>
  struct Cursor {
    BRISAL_INLINE const Group<F, VectorBytes> &Get() const { return group; }
    BRISAL_INLINE const Group<F, VectorBytes> &Ahead(ptrdiff_t) const { return group; }
    BRISAL_INLINE void Advance() {}
    Group<F, VectorBytes> group;
  };

  template <int VectorBytes>
  BRISAL_INLINE Cursor<VectorBytes> Start() const {
    return {Group<F, VectorBytes>::Load(bytes_)};
  }

 private:
  static constexpr int kBytes = 32;  // the widest vector
  alignas(32) uint8_t bytes_[F::kBytes == 3 ? 3 * kBytes : kBytes];
};

}  // namespace brisal
