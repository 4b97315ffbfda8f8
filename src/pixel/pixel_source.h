#pragma once

#include <cstddef>
#include <cstdint>

#include "pixel/run.h"

namespace brisal {

// A source of pixels in memory, in the format of the pixels they are combined with.
template <class F>
class Pixels {
 public:
  BRISAL_INLINE explicit Pixels(const uint8_t *first) : first_(first) {}

  BRISAL_INLINE auto One(ptrdiff_t i) const { return LoadOne<F>(first_ + i * F::kBytes); }

  template <int VectorBytes>
  struct Cursor {
    using G = Group<F, VectorBytes>;

    BRISAL_INLINE G Get() const { return G::Load(at); }
    BRISAL_INLINE G Ahead(ptrdiff_t pixels) const { return G::Load(at + pixels * F::kBytes); }
    BRISAL_INLINE void Advance() { at += G::kBytes; }

    const uint8_t *at;
  };

  template <int VectorBytes>
  BRISAL_INLINE Cursor<VectorBytes> Start() const {
    return {first_};
  }

 private:
  const uint8_t *first_;
};

}  // namespace brisal
