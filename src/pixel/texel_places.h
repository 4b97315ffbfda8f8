#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "pixel/format.h"
#include "pixel/instructions.h"
#include "pixel/texel_kernels.h"

// Where the texels along a path are. Places give the distances of the next N of them from the texture's
// first texel, and move on by any number. How they are worked out is up to how far apart the texture's
// rows are.

namespace brisal {

constexpr uint32_t kOneTexel = 0x10000;

BRISAL_INLINE int32_t Whole(uint32_t coordinate) { return static_cast<int32_t>(coordinate) >> 16; }

template <class F>
BRISAL_INLINE ptrdiff_t DistanceOf(const TexelPath &path, int32_t column, int32_t row) {
  return row * path.pitch + ptrdiff_t{column} * F::kBytes;
}

template <class F>
BRISAL_INLINE const uint8_t *TexelAt(const TexelPath &path, int32_t column, int32_t row) {
  return path.address + DistanceOf<F>(path, column, row);
}

// The path from its i-th texel on.
BRISAL_INLINE TexelPath From(const TexelPath &path, ptrdiff_t i) {
  TexelPath rest = path;
  rest.u += path.du * static_cast<uint32_t>(i);
  rest.v += path.dv * static_cast<uint32_t>(i);
  return rest;
}

// The 16.16 coordinates of as many texels of a path as a vector has words.
template <int VectorBytes>
class Coordinates {
 public:
  using Words = Vector<uint32_t, VectorBytes>;

  BRISAL_INLINE explicit Coordinates(const TexelPath &path) : du_(path.du), dv_(path.dv) {
    const Words numbers = LaneNumbers<Words>(std::make_index_sequence<VectorBytes / 4>{});
    u_ = Splat<Words>(path.u) + Splat<Words>(path.du) * numbers;
    v_ = Splat<Words>(path.v) + Splat<Words>(path.dv) * numbers;
  }

  BRISAL_INLINE Words U() const { return u_; }
  BRISAL_INLINE Words V() const { return v_; }
  // Without their fractions: columns in the low halves, rows in the high ones.
  BRISAL_INLINE Words Whole() const { return HighHalves(v_, u_ >> 16); }

  BRISAL_INLINE void Advance(int n) {
    u_ += Splat<Words>(du_ * static_cast<uint32_t>(n));
    v_ += Splat<Words>(dv_ * static_cast<uint32_t>(n));
  }

 private:
  uint32_t du_;
  uint32_t dv_;
  Words u_;
  Words v_;
};

// Rows of any distance.
struct FarRows {
  template <class F, int VectorBytes>
  class Places {
   public:
    static constexpr int kLanes = VectorBytes / 4;

    BRISAL_INLINE explicit Places(const TexelPath &path) : path_(path) {}

    template <int N>
    class Distances {
     public:
      BRISAL_INLINE explicit Distances(const Places &places) : path_(places.path_) {}

      BRISAL_INLINE ptrdiff_t operator[](size_t i) const {
        const TexelPath place = From(path_, static_cast<ptrdiff_t>(i));
        return DistanceOf<F>(path_, Whole(place.u), Whole(place.v));
      }

     private:
      const TexelPath &path_;
    };

    BRISAL_INLINE void Advance(int n) { path_ = From(path_, n); }

   private:
    TexelPath path_;
  };
};

// A row's distance is a factor for 16-bit lanes. Columns and rows, which are below 2^15, always are.
struct NearRows {
  BRISAL_INLINE static bool Hold(const TexelPath &path) {
    return path.pitch == static_cast<int16_t>(path.pitch);
  }

  // What a row and a column are multiplied with.
  template <class F>
  BRISAL_INLINE static uint32_t Factors(const TexelPath &path) {
    return static_cast<uint32_t>(path.pitch) << 16 | static_cast<uint32_t>(F::kBytes);
  }

  template <class F, int VectorBytes>
  class Places {
   public:
    static constexpr int kLanes = VectorBytes / 4;

    BRISAL_INLINE explicit Places(const TexelPath &path)
        : factors_(Factors<F>(path)), coordinates_(path) {}

    template <int N>
    class Distances {
     public:
      BRISAL_INLINE explicit Distances(Places places) {
        for (int i = 0; i < N; i += kLanes, places.Advance(kLanes)) places.Take(distance_ + i);
      }

      BRISAL_INLINE ptrdiff_t operator[](size_t i) const { return distance_[i]; }

     private:
      ptrdiff_t distance_[N < kLanes ? kLanes : N];
    };

    BRISAL_INLINE void Advance(int n) { coordinates_.Advance(n); }

   private:
    // Distances leave the vector two by two.
    BRISAL_INLINE void Take(ptrdiff_t *distance) const {
      using Words = Vector<uint32_t, VectorBytes>;
      Words distances;
      MultiplyAdd(As<uint16_t>(coordinates_.Whole()), As<uint16_t>(Splat<Words>(factors_)),
                  distances);
      int64_t pairs[kLanes / 2];
      if constexpr (VectorBytes == 16) {
        // GCC would take the upper pair by an instruction that waits for what its register held before.
        pairs[0] = As<int64_t>(distances)[0];
        pairs[1] = As<int64_t>(__builtin_shufflevector(distances, distances, 2, 3, 2, 3))[0];
      } else {
        StoreVector(reinterpret_cast<uint8_t *>(pairs), distances);
      }
      for (int i = 0; i < kLanes; i += 2) {
        distance[i] = static_cast<int32_t>(pairs[i / 2]);
        distance[i + 1] = static_cast<ptrdiff_t>(pairs[i / 2] >> 32);
      }
    }

    uint32_t factors_;
    Coordinates<VectorBytes> coordinates_;
  };
};

#if BRISAL_HAS_AVX512
// Rows are a power of two of texels apart: a texel's number is made of bits of its coordinates, which one
// instruction puts together. Nothing has to be taken out of a vector.
struct PackedRows {
  template <class F>
  BRISAL_INLINE static bool Hold(const TexelPath &path) {
    const ptrdiff_t texels = path.pitch / F::kBytes;
    return texels > 0 && texels * F::kBytes == path.pitch && (texels & (texels - 1)) == 0 &&
           path.width <= texels;
  }

  template <class F, int VectorBytes>
  class Places {
   public:
    static constexpr int kLanes = VectorBytes / 4;

    BRISAL_INLINE explicit Places(const TexelPath &path)
        : numberBits_(uint64_t{0x7FFF} << 48 | static_cast<uint64_t>(path.pitch / F::kBytes - 1)
                                                   << 16),
          place_(uint64_t{path.v} << 32 | path.u),
          step_((uint64_t{path.dv} << 32) + static_cast<uint64_t>(static_cast<int32_t>(path.du))),
          steps3_(step_ * 3) {}

    template <int N>
    class Distances {
     public:
      BRISAL_INLINE explicit Distances(const Places &places) : places_(places) {}

      // By sums that the processor has as part of an address.
      BRISAL_INLINE ptrdiff_t operator[](size_t i) const {
        const uint64_t fours = places_.place_ + i / 4 * 4 * places_.step_;
        const uint64_t place = fours + (i % 4 == 3 ? places_.steps3_ : i % 4 * places_.step_);
        return static_cast<ptrdiff_t>(ExtractBits(place, places_.numberBits_)) * F::kBytes;
      }

     private:
      const Places &places_;
    };

    BRISAL_INLINE void Advance(int n) { place_ += step_ * static_cast<uint64_t>(n); }

   private:
    uint64_t numberBits_;
    uint64_t place_;  // v above u
    uint64_t step_;
    uint64_t steps3_;
  };
};
#endif

template <class Rows, class F, int VectorBytes>
using PlacesOf = typename Rows::template Places<F, VectorBytes>;

// Calls draw(rows) with what the rows of the path's texture are.
template <class F, int ColumnBytes, class Draw>
BRISAL_INLINE void WithRows(const TexelPath &path, Draw draw) {
#if BRISAL_HAS_AVX512
  if constexpr (ColumnBytes == 64) {
    if (PackedRows::Hold<F>(path)) return draw(PackedRows{});
  }
#endif
  if (NearRows::Hold(path)) return draw(NearRows{});
  draw(FarRows{});
}

// Places leave a wider vector no faster.
template <int ColumnBytes>
constexpr int kMostPlaceBytes = ColumnBytes < 32 ? ColumnBytes : 32;

}  // namespace brisal
