#pragma once

#include <cstddef>
#include <cstdint>

#include "pixel/run.h"

// Where a run's colours come from: one colour, or one that changes linearly. A source gives the
// group at any pixel (At), a cursor that walks on from there (From) and single pixels (One).

namespace brisal {

// One packed colour, repeated.
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
      const Vector<uint32_t, kBytes> words = Vector<uint32_t, kBytes>{} + packed;
      std::memcpy(bytes_, &words, sizeof words);
    }
  }

  template <int VectorBytes>
  BRISAL_INLINE Group<F, VectorBytes> At(ptrdiff_t) const {
    return Group<F, VectorBytes>::Load(bytes_);
  }

  BRISAL_INLINE auto One(ptrdiff_t) const { return LoadOne<F>(bytes_); }

  template <int VectorBytes>
  struct Cursor {
    BRISAL_INLINE const Group<F, VectorBytes> &Get() const { return group; }
    BRISAL_INLINE void Advance() {}
    Group<F, VectorBytes> group;
  };

  template <int VectorBytes>
  BRISAL_INLINE Cursor<VectorBytes> From(ptrdiff_t i) const {
    return {At<VectorBytes>(i)};
  }

 private:
  static constexpr int kBytes = 32;  // the widest vector
  alignas(32) uint8_t bytes_[F::kBytes == 3 ? 3 * kBytes : kBytes];
};

// The channels of a Gouraud row in 16.16: their values at the row's first pixel and the step from
// pixel to pixel.
struct Ramp {
  uint32_t start[3];
  uint32_t step[3];
};

template <class V>
BRISAL_INLINE V FirstLanes() {
  V v = {};
  for (int i = 0; i < static_cast<int>(sizeof(V) / sizeof(v[0])); ++i) v[i] = i;
  return v;
}

// Channels in lanes of 32 bits, joined to the words that a format stores them in.
template <class F, class V>
BRISAL_INLINE V JoinChannels(const V (&c)[3]) {
  if constexpr (F::kBytes == 3) return (c[0] >> 16) | ((c[1] >> 8) & 0xFF00u) | (c[2] & 0xFF0000u);
  const V colour = (c[0] & 0xFF0000u) | ((c[1] >> 8) & 0xFF00u) | (c[2] >> 16);
  if constexpr (F::kBytes == 2) return F::Pack(colour);
  return colour;
}

template <class F>
class Shaded {
 public:
  BRISAL_INLINE explicit Shaded(const Ramp &ramp) : ramp_(ramp) {}

  BRISAL_INLINE auto One(ptrdiff_t i) const {
    using V = Vector<uint32_t, 4>;
    V channels[3];
    for (int c = 0; c < 3; ++c) channels[c] = V{} + Channel(c, i);
    const V joined = JoinChannels<F>(channels);
    return LoadOne<F>(reinterpret_cast<const uint8_t *>(&joined));
  }

  template <int VectorBytes>
  class Cursor {
   public:
    static constexpr int kPixels = Group<F, VectorBytes>::kPixels;
    static constexpr int kLanes = VectorBytes / 4;
    static constexpr int kPixelsPerLane = F::kBytes == 2 ? 2 : 1;
    using V = Vector<uint32_t, VectorBytes>;

    BRISAL_INLINE Cursor(const Shaded &source, ptrdiff_t first) {
      for (int c = 0; c < 3; ++c) {
        const uint32_t step = source.ramp_.step[c];
        channels_[c] = FirstLanes<V>() * (step * kPixelsPerLane) + source.Channel(c, first);
        step_[c] = V{} + step;
      }
    }

    BRISAL_INLINE Group<F, VectorBytes> Get() const {
      Group<F, VectorBytes> group;
      if constexpr (F::kBytes == 4) group.part[0] = As<uint8_t>(JoinChannels<F>(channels_));
      if constexpr (F::kBytes == 2) group.part[0] = Pairs();
      if constexpr (F::kBytes == 3) group = Triples();
      return group;
    }

    BRISAL_INLINE void Advance() { Move(channels_, kPixels); }

   private:
    BRISAL_INLINE void Move(V (&channels)[3], int pixels) const {
      for (int c = 0; c < 3; ++c) channels[c] += step_[c] * static_cast<uint32_t>(pixels);
    }

    // Lanes hold every second pixel; the ones between them are a step away.
    BRISAL_INLINE auto Pairs() const {
      const V odd[3] = {channels_[0] + step_[0], channels_[1] + step_[1], channels_[2] + step_[2]};
      return As<uint16_t>(JoinChannels<F>(channels_) | JoinChannels<F>(odd) << 16);
    }

    // Pixels of three bytes, moved together: two pixels to a word of eight bytes, of which the next
    // word overwrites the last two.
    BRISAL_INLINE auto Triples() const {
      alignas(32) uint8_t bytes[Group<F, VectorBytes>::kBytes + 2];
      V channels[3] = {channels_[0], channels_[1], channels_[2]};
      uint8_t *to = bytes;
      for (int i = 0; i < kPixels; i += kLanes) {
        const V joined = JoinChannels<F>(channels);
        if constexpr (kLanes == 1) {
          std::memcpy(to, &joined, sizeof joined);
          to += 3;
        } else {
          const auto pairs = As<uint64_t>(joined);
          const auto packed = (pairs & 0xFFFFFFu) | ((pairs >> 8) & 0xFFFFFF000000u);
          for (int k = 0; k < kLanes / 2; ++k, to += 6) {
            const uint64_t word = packed[k];
            std::memcpy(to, &word, sizeof word);
          }
        }
        Move(channels, kLanes);
      }
      return Group<F, VectorBytes>::Load(bytes);
    }

    V channels_[3];
    V step_[3];
  };

  template <int VectorBytes>
  BRISAL_INLINE auto From(ptrdiff_t i) const {
    return Cursor<VectorBytes>(*this, i);
  }

  template <int VectorBytes>
  BRISAL_INLINE Group<F, VectorBytes> At(ptrdiff_t i) const {
    if constexpr (VectorBytes == 2) {
      Group<F, 2> group;
      group.part[0] = One(i);
      return group;
    } else {
      return Cursor<VectorBytes>(*this, i).Get();
    }
  }

 private:
  BRISAL_INLINE uint32_t Channel(int c, ptrdiff_t i) const {
    return ramp_.start[c] + static_cast<uint32_t>(i) * ramp_.step[c];
  }

  Ramp ramp_;
};

}  // namespace brisal
