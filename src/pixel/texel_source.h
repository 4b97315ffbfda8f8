#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "pixel/run.h"
#include "pixel/texel_loads.h"

namespace brisal {

// A source of the texels along a path, in the format of the pixels they are combined with, which is not
// one of three bytes. The path has near rows; places are worked out in vectors of up to WideBytes.
template <class F, int WideBytes>
class Texels {
 public:
  BRISAL_INLINE explicit Texels(const TexelPath &path) : path_(path) {}

  BRISAL_INLINE auto One(ptrdiff_t i) const {
    const TexelPath place = From(path_, i);
    return LoadOne<F>(TexelAt<F>(place, Whole(place.u), Whole(place.v)));
  }

  template <int VectorBytes>
  class Cursor {
   public:
    using G = Group<F, VectorBytes>;

    BRISAL_INLINE explicit Cursor(const TexelPath &path) : path_(path), places_(path) {}

    BRISAL_INLINE G Get() const {
      ptrdiff_t distance[kVectors * kLanes];
      Places places = places_;
      for (int i = 0; i < kVectors; ++i, places.Advance()) places.Take(distance + i * kLanes);
      return {{Join(distance, std::make_index_sequence<G::kPixels>{})}};
    }

    BRISAL_INLINE G Ahead(ptrdiff_t pixels) const { return Cursor(From(path_, pixels)).Get(); }

    BRISAL_INLINE void Advance() {
      for (int i = 0; i < kVectors; ++i) places_.Advance();
    }

   private:
    // Places are words, of which there are vectors of 16 bytes at the least.
    static constexpr int kPlaceBytes = std::clamp(G::kPixels * 4, 16, WideBytes);
    static constexpr int kLanes = kPlaceBytes / 4;
    static constexpr int kVectors = (G::kPixels + kLanes - 1) / kLanes;
    using Places = NearTexels<F, kPlaceBytes>;
    using Lane = std::conditional_t<F::kBytes == 2, uint16_t, uint32_t>;

    template <size_t... I>
    BRISAL_INLINE auto Join(const ptrdiff_t *distance, std::index_sequence<I...>) const {
      using V = Vector<Lane, VectorBytes>;
      return As<typename F::Lane>(V{static_cast<Lane>(F::Load(path_.address + distance[I]))...});
    }

    TexelPath path_;
    Places places_;
  };

  template <int VectorBytes>
  BRISAL_INLINE Cursor<VectorBytes> Start() const {
    return Cursor<VectorBytes>(path_);
  }

 private:
  TexelPath path_;
};

}  // namespace brisal
