#pragma once

#include <array>
#include <cstdint>

#include "brisal/brisal.h"
#include "pixel/lanes.h"

// The five pixel formats, each a type that knows its storage, its channels and how a colour is
// packed and widened. A code becomes a type in WithFormat and nowhere else.

namespace brisal {

// One channel of a 16-bit pixel.
template <int Shift, int Bits>
struct Channel16 {
  static constexpr int kShift = Shift;
  static constexpr int kBits = Bits;
  static constexpr uint16_t kMask = ((1 << Bits) - 1) << Shift;
  static constexpr bool kTop = Shift + Bits == 16;

  // The channel's value in each lane.
  template <class V>
  BRISAL_INLINE static V Value(V pixels) {
    if constexpr (kTop) return pixels >> Shift;
    if constexpr (Shift == 0) return pixels & kMask;
    return (pixels >> Shift) & static_cast<uint16_t>(kMask >> Shift);
  }

  // Products carry Fraction bits below the channel's value. A factor lifted by kLift lands them where
  // the channel belongs, or above; FromLifted puts them there and drops the fraction.
  template <int Fraction>
  static constexpr int kLift = Shift > Fraction ? Shift - Fraction : 0;

  template <int Fraction, class V>
  BRISAL_INLINE static V FromLifted(V product) {
    if constexpr (Shift == 0) return product >> Fraction;
    if constexpr (Shift >= Fraction) return product & kMask;
    return (product >> (Fraction - Shift)) & kMask;
  }
};

template <class R, class G, class B>
struct Packed16 {
  static constexpr int kBytes = 2;
  using Lane = uint16_t;
  using Red = R;
  using Green = G;
  using Blue = B;
  // All bits but the lowest of each channel, one place down: where halves land.
  static constexpr uint16_t kHalves =
      ((R::kMask & R::kMask << 1) | (G::kMask & G::kMask << 1) | (B::kMask & B::kMask << 1)) >> 1;

  static uint32_t Load(const uint8_t *p) {
    uint16_t stored;
    std::memcpy(&stored, p, sizeof stored);
    return stored;
  }

  static void Store(uint8_t *p, uint32_t packed) {
    const uint16_t stored = static_cast<uint16_t>(packed);
    std::memcpy(p, &stored, sizeof stored);
  }
};

struct Rgb565 : Packed16<Channel16<11, 5>, Channel16<5, 6>, Channel16<0, 5>> {
  static constexpr uint32_t kPrecision = 0xF8FCF8;
  static constexpr int kAlphaBits = 6;  // of a source that is blended by its alpha

  // Also packs vectors of colours.
  template <class C>
  BRISAL_INLINE static C Pack(C colour) {
    return ((colour >> 8) & 0xF800u) | ((colour >> 5) & 0x7E0u) | ((colour >> 3) & 0x1Fu);
  }

  // The stored word of channels in 8.8.
  template <class V>
  BRISAL_INLINE static V FromFixed(V red, V green, V blue) {
    return (red & 0xF800u) | ((green >> 5) & 0x7E0u) | (blue >> 11);
  }

  // Also widens vectors of pixels in words.
  template <class P>
  BRISAL_INLINE static P Widen(P p) {
    return ((p & 0xF800u) << 8) | ((p & 0x7E0u) << 5) | ((p & 0x1Fu) << 3);
  }
};

struct Rgb555 : Packed16<Channel16<10, 5>, Channel16<5, 5>, Channel16<0, 5>> {
  static constexpr uint32_t kPrecision = 0xF8F8F8;
  static constexpr int kAlphaBits = 5;

  template <class C>
  BRISAL_INLINE static C Pack(C colour) {
    return ((colour >> 9) & 0x7C00u) | ((colour >> 6) & 0x3E0u) | ((colour >> 3) & 0x1Fu);
  }

  template <class V>
  BRISAL_INLINE static V FromFixed(V red, V green, V blue) {
    return ((red >> 1) & 0x7C00u) | ((green >> 6) & 0x3E0u) | (blue >> 11);
  }

  // Also widens vectors of pixels in words.
  template <class P>
  BRISAL_INLINE static P Widen(P p) {
    return ((p & 0x7C00u) << 9) | ((p & 0x3E0u) << 6) | ((p & 0x1Fu) << 3);
  }
};

struct Rgb24 {
  static constexpr int kBytes = 3;
  static constexpr uint32_t kPrecision = 0xFFFFFF;
  using Lane = uint8_t;

  static uint32_t Pack(uint32_t colour) { return colour & 0xFFFFFF; }
  template <class P>
  BRISAL_INLINE static P Widen(P p) {
    return p;
  }

  // Of channels in 16.16, each 0 to 255 before the point. Its low three bytes are the pixel as it
  // lies in memory.
  template <class V>
  BRISAL_INLINE static V FromFixed(V red, V green, V blue) {
    return HighHalves(blue, red >> 16) | ((green >> 8) & 0xFF00u);
  }

  static uint32_t Load(const uint8_t *p) {
    return static_cast<uint32_t>(p[0]) << 16 | static_cast<uint32_t>(p[1]) << 8 | p[2];
  }

  static void Store(uint8_t *p, uint32_t packed) {
    p[0] = static_cast<uint8_t>(packed >> 16);
    p[1] = static_cast<uint8_t>(packed >> 8);
    p[2] = static_cast<uint8_t>(packed);
  }
};

struct Xrgb32 {
  static constexpr int kBytes = 4;
  static constexpr uint32_t kPrecision = 0xFFFFFF;
  using Lane = uint8_t;

  static uint32_t Pack(uint32_t colour) { return colour; }
  template <class P>
  BRISAL_INLINE static P Widen(P p) {
    return p;
  }

  // The stored word of channels in 16.16, each 0 to 255 before the point.
  template <class V>
  BRISAL_INLINE static V FromFixed(V red, V green, V blue) {
    return HighHalves(red, blue >> 16) | ((green >> 8) & 0xFF00u);
  }

  static uint32_t Load(const uint8_t *p) {
    uint32_t stored;
    std::memcpy(&stored, p, sizeof stored);
    return stored;
  }

  static void Store(uint8_t *p, uint32_t packed) { std::memcpy(p, &packed, sizeof packed); }
};

struct Argb32 : Xrgb32 {};

// What is kept of a stored pixel that is read and drawn again: bit 15 of 5:5:5 belongs to no channel.
template <class F>
constexpr uint32_t kShownBits = 0xFFFFFFFF;
template <>
inline constexpr uint32_t kShownBits<Rgb555> = 0x7FFF;

// Not a format of buffers: texels, whose four bytes are all channels.
struct Texel32 : Xrgb32 {};

template <class... T>
struct TypeList {
  static constexpr int kSize = sizeof...(T);
};

// In the order of their codes, from 1.
using Formats = TypeList<Rgb565, Rgb555, Rgb24, Xrgb32, Argb32>;

constexpr bool IsFormat(int32_t code) { return 1 <= code && code <= Formats::kSize; }

// Calls f with the format that the code names, or returns `otherwise`.
template <class F, class R>
R WithFormat(int32_t code, R otherwise, F f) {
  switch (code) {
    case BRSL_FORMAT_565: return f(Rgb565{});
    case BRSL_FORMAT_555: return f(Rgb555{});
    case BRSL_FORMAT_RGB: return f(Rgb24{});
    case BRSL_FORMAT_X32: return f(Xrgb32{});
    case BRSL_FORMAT_A32: return f(Argb32{});
    default: return otherwise;
  }
}

template <class... F>
constexpr std::array<uint8_t, sizeof...(F)> BytesOf(TypeList<F...>) {
  return {F::kBytes...};
}

// Of a code that is a format.
inline int BytesOfFormat(int32_t code) {
  static constexpr auto kBytes = BytesOf(Formats{});
  return kBytes[static_cast<size_t>(code - 1)];
}

// 0 for codes that are no format.
inline int BytesPerPixel(int32_t code) { return IsFormat(code) ? BytesOfFormat(code) : 0; }

// A colour in the storage of a target; other codes leave it unchanged.
inline uint32_t PackColour(uint32_t colour, int32_t format) {
  return WithFormat(format, colour, [colour](auto f) { return f.Pack(colour); });
}

// A mask colour as pixels of a surface store it; 32-bit ones are compared in all bits.
inline uint32_t MaskAsStored(uint32_t colour, int32_t format) { return PackColour(colour, format); }

// A mask colour as pixels of a surface read, that is, without the bits that the format drops.
inline uint32_t MaskAsColour(uint32_t colour, int32_t format) {
  return WithFormat(format, colour,
                    [colour](auto f) { return f.kBytes == 4 ? colour : colour & f.kPrecision; });
}

}  // namespace brisal
