#include "pixel/filter_kernels.h"

#include "pixel/column.h"
#include "pixel/format.h"

namespace brisal {
namespace {

BRISAL_INLINE uint32_t Byte(uint32_t colour, int shift) { return colour >> shift & 0xFF; }

struct FadeColours {
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

struct GreyColours {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(uint8_t *colours, int n) {
    for (int i = 0; i < n; ++i) {
      const uint32_t c = Xrgb32::Load(colours + 4 * i);
      const uint32_t grey = (Byte(c, 16) * 225 + Byte(c, 8) * 723 + Byte(c, 0) * 76) >> 10;
      Xrgb32::Store(colours + 4 * i, (c & 0xFF000000) | grey * 0x010101);
    }
  }
};

// One piece of a row at a time: sums down the columns first, then across.
struct BlurColours {
  static constexpr int kBlurPiece = 64;

  template <int VectorBytes>
  BRISAL_INLINE static void Run(const BlurRows *given) {
    const BlurRows blur = *given;
    for (int64_t x = 0; x < blur.width; x += kBlurPiece) {
      const int64_t rest = blur.width - x;
      DrawPiece(blur, x, static_cast<int>(rest < kBlurPiece ? rest : kBlurPiece));
    }
  }

  BRISAL_INLINE static void DrawPiece(const BlurRows &blur, int64_t x, int n) {
    // A pixel more at either end; beyond the row its last pixel counts again.
    uint16_t columns[4 * (kBlurPiece + 2)];
    const int first = x == 0 ? 0 : -1;
    const int last = x + n == blur.width ? n : n + 1;
    SumColumns(blur, x, first, last, columns + 4);
    if (first == 0) std::memcpy(columns, columns + 4, 4 * sizeof columns[0]);
    if (last == n) std::memcpy(columns + 4 * (n + 1), columns + 4 * n, 4 * sizeof columns[0]);

    uint8_t *out = reinterpret_cast<uint8_t *>(blur.out + x);
    if (blur.factor != 0) {
      for (int i = 0; i < 4 * n; ++i) {
        const uint16_t sum = static_cast<uint16_t>(columns[i] + columns[i + 4] + columns[i + 8]);
        const uint32_t part = sum * blur.factor >> 16;
        out[i] = static_cast<uint8_t>(part < 255 ? part : 255);
      }
      return;
    }
    for (int i = 0; i < 4 * n; ++i)
      out[i] = blur.table[columns[i] + columns[i + 4] + columns[i + 8]];
  }

  BRISAL_INLINE static void SumColumns(const BlurRows &blur, int64_t x, int first, int last,
                                       uint16_t *columns) {
    const auto bytes = [x](const uint32_t *row) __attribute__((always_inline)) {
      return reinterpret_cast<const uint8_t *>(row + x);
    };
    const uint8_t *above = bytes(blur.rows[0]);
    const uint8_t *own = bytes(blur.rows[1]);
    const uint8_t *below = bytes(blur.rows[2]);
    for (int i = 4 * first; i < 4 * last; ++i) {
      columns[i] = static_cast<uint16_t>(above[i] + own[i] + below[i]);
    }
  }
};

}  // namespace

FadeKernel FindFadeKernel(bool wide) {
  return Kernels<uint8_t *, int, uint32_t>::Of<FadeColours>().columns[wide];
}

GreyKernel FindGreyKernel(bool wide) {
  return Kernels<uint8_t *, int>::Of<GreyColours>().columns[wide];
}

BlurKernel FindBlurKernel(bool wide) {
  return Kernels<const BlurRows *>::Of<BlurColours>().columns[wide];
}

}  // namespace brisal
