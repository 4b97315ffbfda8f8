#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "pixel/gather.h"
#include "pixel/run.h"
#include "pixel/texel_loads.h"

namespace brisal {

// A source of the texels along a path, in the format of the pixels they are combined with, which is not
// one of three bytes.
template <class F, int ColumnBytes, class Rows>
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
      const typename Places::template Distances<G::kPixels> distances(places_);
      const auto *const distance = &distances;
      const uint8_t *const address = path_.address;
      const auto texelAt = [=](size_t i) __attribute__((always_inline)) {
        return static_cast<Word>(F::Load(address + (*distance)[i]));
      };
      return {{As<typename F::Lane>(Gather<Vector<Word, VectorBytes>, ColumnBytes>(texelAt))}};
    }

    BRISAL_INLINE G Ahead(ptrdiff_t pixels) const { return Cursor(From(path_, pixels)).Get(); }

    BRISAL_INLINE void Advance() { places_.Advance(G::kPixels); }

   private:
    using Word = std::conditional_t<F::kBytes == 2, uint16_t, uint32_t>;
    // Places are words, of which there are vectors of 16 bytes at the least.
    static constexpr int kPlaceBytes = std::clamp(G::kPixels * 4, 16, kMostPlaceBytes<ColumnBytes>);
    using Places = PlacesOf<Rows, F, kPlaceBytes>;

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
