#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "pixel/instructions.h"
#include "pixel/pixel_source.h"
#include "pixel/triples.h"

// Sources of which pixels of one stored colour, the key, are left out, and the rules for them.

namespace brisal {

// Leaves out the pixels that are the key. Words are compared whole; `Kept` are the bits that others keep.
template <class F, uint32_t Kept = 0xFFFFFFFF>
struct UnlessKey {
  static constexpr bool kReadsTarget = true;
  using Word = std::conditional_t<F::kBytes == 2, uint16_t, uint32_t>;
  explicit UnlessKey(uint32_t stored) : key(static_cast<Word>(stored)) {}

  template <class V>
  BRISAL_INLINE V operator()(V d, V s) const {
    const auto shown = As<Word>(s);
    return (V)(shown == key ? As<Word>(d) : shown & static_cast<Word>(Kept));
  }

  Word key;
};

// Pixels, and ones in every byte of those that are the key.
template <class V>
struct Masked {
  V pixels;
  V isKey;
};

struct UnlessMasked {
  static constexpr bool kReadsTarget = true;

  template <class V>
  BRISAL_INLINE V operator()(V d, const Masked<V> &s) const {
    return (d & s.isKey) | (s.pixels & ~s.isKey);
  }
};

// Pixels of three bytes, which are compared as words.
class KeyedTriples {
 public:
  BRISAL_INLINE KeyedTriples(const uint8_t *first, uint32_t key) : first_(first), key_(key) {}

  BRISAL_INLINE auto One(ptrdiff_t i) const {
    const auto pixel = LoadOne<Rgb24>(first_ + 3 * i);
    const uint8_t isKey = Rgb24::Load(first_ + 3 * i) == key_ ? 0xFF : 0;
    return Masked<Vector<uint8_t, 4>>{pixel, Splat<Vector<uint8_t, 4>>(isKey)};
  }

  template <int VectorBytes>
  struct Cursor {
    using G = Group<Rgb24, VectorBytes>;
    struct Parts {
      Masked<typename G::V> part[G::kVectors];
    };

    BRISAL_INLINE Parts Get() const { return Ahead(0); }

    BRISAL_INLINE Parts Ahead(ptrdiff_t pixels) const {
      using V = TripleWords<VectorBytes>;
      const uint8_t *const from = at + 3 * pixels;
      const G colours = G::Load(from);
      const G isKey =
          JoinTriples<Rgb24, VectorBytes>([ from, this ](int k) __attribute__((always_inline)) {
            constexpr ptrdiff_t kBytes = 3 * sizeof(V) / 4;
            return As<uint32_t>(LoadTriples<V>(from + k * kBytes) == Splat<V>(key));
          });
      Parts parts;
      for (int i = 0; i < G::kVectors; ++i) parts.part[i] = {colours.part[i], isKey.part[i]};
      return parts;
    }

    BRISAL_INLINE void Advance() { at += G::kBytes; }

    const uint8_t *at;
    uint32_t key;
  };

  template <int VectorBytes>
  BRISAL_INLINE Cursor<VectorBytes> Start() const {
    return {first_, key_};
  }

 private:
  const uint8_t *first_;
  uint32_t key_;
};

#if BRISAL_HAS_AVX512
// Copies a row of pixels of three bytes but for the key, with which `keys` is filled: 21 of them are
// compared and stored as they lie in memory.
BRISAL_INLINE void CopyUnlessTriples(uint8_t *to, const uint8_t *from, ptrdiff_t n,
                                     const Vector<uint8_t, 64> &keys) {
  constexpr ptrdiff_t kMost = 63;
  for (ptrdiff_t rest = n * 3; rest > 0; rest -= kMost, to += kMost, from += kMost) {
    const ptrdiff_t bytes = rest < kMost ? rest : kMost;
    Vector<uint8_t, 64> pixels;
    LoadFirst(from, bytes, pixels);
    StoreUnlessTriple(to, bytes, keys, pixels);
  }
}
#endif

}  // namespace brisal
