#include "pixel/filter_kernels.h"

#include "pixel/column.h"
#include "pixel/format.h"
#include "pixel/instructions.h"

namespace brisal {
namespace {

struct FadeColours : UpTo64Bytes {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(uint8_t *bytes, int n, uint32_t factor) {
    if (factor <= 256) {
      const uint16_t weight = static_cast<uint16_t>(factor);
      for (int i = 0; i < 4 * n; ++i) {
        bytes[i] = static_cast<uint8_t>(static_cast<uint16_t>(bytes[i] * weight) >> 8);
      }
      return;
    }
    for (int i = 0; i < 4 * n; ++i) {
      const uint32_t faded = bytes[i] * factor >> 8;
      bytes[i] = static_cast<uint8_t>(faded < 255 ? faded : 255);
    }
  }
};

struct GreyColours : UpTo64Bytes {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(uint8_t *colours, int n) {
    constexpr int kLanes = VectorBytes / 4;
    uint8_t *const end = colours + 4 * ptrdiff_t{n};
    for (; n >= kLanes; n -= kLanes, colours += VectorBytes) {
      StoreVector(colours, Grey(LoadVector<Vector<uint32_t, VectorBytes>>(colours)));
    }
    for (; colours < end; colours += 4) {
      Xrgb32::Store(colours, Grey(Splat<Vector<uint32_t, 16>>(Xrgb32::Load(colours)))[0]);
    }
  }

  // Red and blue are weighed by one instruction, green by another.
  template <class V>
  BRISAL_INLINE static V Grey(V c) {
    V redAndBlue, green;
    MultiplyAdd(As<uint16_t>(c & 0xFF00FFu), As<uint16_t>(Splat<V>(225u << 16 | 76)), redAndBlue);
    MultiplyAdd(As<uint16_t>((c >> 8) & 0xFFu), As<uint16_t>(Splat<V>(723u)), green);
    const V grey = (redAndBlue + green) >> 10;
    return (c & 0xFF000000u) | grey << 16 | grey << 8 | grey;
  }
};

// Sums of bytes, those at even and those at odd places, in 16-bit lanes: two for each pixel.
constexpr int kBlurPiece = 64;
constexpr int kMargin = 2 * kBlurStep;  // for a pixel more at either end
struct ColumnSums {
  uint16_t even[2 * kBlurPiece + 2 * kMargin];
  uint16_t odd[2 * kBlurPiece + 2 * kMargin];
};

// One piece of a row at a time: sums down the columns first, then across.
struct BlurColours : UpTo64Bytes {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const BlurRows *given) {
    const BlurRows blur = *given;
    for (int64_t x = 0; x < blur.width; x += kBlurPiece) {
      const int64_t rest = blur.width - x;
      DrawPiece<VectorBytes>(blur, x, static_cast<int>(rest < kBlurPiece ? rest : kBlurPiece));
    }
  }

  template <int VectorBytes>
  BRISAL_INLINE static void DrawPiece(const BlurRows &blur, int64_t x, int n) {
    ColumnSums sums;
    using H = Vector<uint16_t, VectorBytes>;
    const auto add = [&](int pixel, auto lanes) __attribute__((always_inline)) {
      using V = decltype(lanes);
      const V above = At<V>(blur.rows[0], x + pixel);
      const V own = At<V>(blur.rows[1], x + pixel);
      const V below = At<V>(blur.rows[2], x + pixel);
      Put<V>(sums.even, pixel, (above & 0xFF) + (own & 0xFF) + (below & 0xFF));
      Put<V>(sums.odd, pixel, (above >> 8) + (own >> 8) + (below >> 8));
    };
    static_assert(VectorBytes / 4 <= kBlurStep && kBlurPiece % kBlurStep == 0);
    for (int i = 0; i < n; i += VectorBytes / 4) add(i, H{});
    // Beyond the row its last pixel counts again.
    using Pixel = Vector<uint16_t, 4>;
    const bool first = x == 0;
    const bool last = x + n == blur.width;
    if (!first) add(-1, Pixel{});
    if (!last) add(n, Pixel{});
    for (uint16_t *columns : {sums.even, sums.odd}) {
      if (first) Put<Pixel>(columns, -1, Take<Pixel>(columns, 0));
      if (last) Put<Pixel>(columns, n, Take<Pixel>(columns, n - 1));
    }
    if (blur.factor != 0) {
      Multiply<H>(sums, static_cast<uint16_t>(blur.factor), n, blur.out + x);
    } else {
      LookUp(sums, blur.table, n, reinterpret_cast<uint8_t *>(blur.out + x));
    }
  }

  template <class V>
  BRISAL_INLINE static V At(const uint32_t *row, int64_t pixel) {
    return LoadVector<V>(reinterpret_cast<const uint8_t *>(row + pixel));
  }

  template <class V>
  BRISAL_INLINE static V Take(const uint16_t *columns, int pixel) {
    return LoadVector<V>(reinterpret_cast<const uint8_t *>(columns + kMargin + 2 * pixel));
  }

  template <class V>
  BRISAL_INLINE static void Put(uint16_t *columns, int pixel, V v) {
    StoreVector(reinterpret_cast<uint8_t *>(columns + kMargin + 2 * pixel), v);
  }

  template <class V>
  BRISAL_INLINE static V Across(const uint16_t *columns, int pixel) {
    return Take<V>(columns, pixel - 1) + Take<V>(columns, pixel) + Take<V>(columns, pixel + 1);
  }

  template <class V>
  BRISAL_INLINE static void Multiply(const ColumnSums &sums, uint16_t factor, int n,
                                     uint32_t *out) {
    const V factors = Splat<V>(factor);
    const V most = Splat<V>(static_cast<uint16_t>(255));
    for (int i = 0; i < n; i += static_cast<int>(sizeof(V) / 4)) {
      V even;
      V odd;
      MultiplyHigh(Across<V>(sums.even, i), factors, even);
      MultiplyHigh(Across<V>(sums.odd, i), factors, odd);
      StoreVector(reinterpret_cast<uint8_t *>(out + i), Least(even, most) | Least(odd, most) << 8);
    }
  }

  BRISAL_INLINE static void LookUp(const ColumnSums &sums, const uint8_t *table, int n,
                                   uint8_t *out) {
    using Pixel = Vector<uint16_t, 4>;
    for (int i = 0; i < n; ++i) {
      const Pixel even = Across<Pixel>(sums.even, i);
      const Pixel odd = Across<Pixel>(sums.odd, i);
      for (const int part : {0, 1}) {
        out[4 * i + 2 * part] = table[even[part]];
        out[4 * i + 2 * part + 1] = table[odd[part]];
      }
    }
  }
};

}  // namespace

FadeKernel FindFadeKernel(Isa isa) {
  return Kernels<uint8_t *, int, uint32_t>::Of<FadeColours>().For(isa);
}

GreyKernel FindGreyKernel(Isa isa) { return Kernels<uint8_t *, int>::Of<GreyColours>().For(isa); }

BlurKernel FindBlurKernel(Isa isa) { return Kernels<const BlurRows *>::Of<BlurColours>().For(isa); }

}  // namespace brisal
