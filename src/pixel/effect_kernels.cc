#include "pixel/column.h"
#include "pixel/flat_source.h"
#include "pixel/pixel_source.h"
#include "pixel/run.h"
#include "pixel/shaded_source.h"
#include "pixel/texel_kernels.h"

namespace brisal {
namespace {

BRISAL_INLINE uint8_t *Bytes(uint32_t *texels) { return reinterpret_cast<uint8_t *>(texels); }

BRISAL_INLINE const uint8_t *Bytes(const uint32_t *texels) {
  return reinterpret_cast<const uint8_t *>(texels);
}

// out = rule(in, colour)
template <template <class> class R>
struct WithColour {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const TexelEffect *effect, int n) {
    CombineRun<Texel32, VectorBytes>(Bytes(effect->out), Bytes(effect->in), n, R<Texel32>(0),
                                     Flat<Texel32>(effect->colour));
  }
};

// out = rule(out, in)
template <template <class> class R>
struct WithInput {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const TexelEffect *effect, int n) {
    uint8_t *out = Bytes(effect->out);
    CombineRun<Texel32, VectorBytes>(out, out, n, R<Texel32>(0),
                                     Pixels<Texel32>(Bytes(effect->in)));
  }
};

// Towards the colour; a level of 0 is the colour's absence as well, and gives 0.
struct BlendToColour {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const TexelEffect *effect, int n) {
    const uint32_t level = effect->level & 255;
    const uint32_t colour = level == 0 ? 0 : effect->colour;
    CombineRun<Texel32, VectorBytes>(Bytes(effect->out), Bytes(effect->in), n,
                                     Alpha<Texel32>(256 - level), Flat<Texel32>(colour));
  }
};

struct Replace {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const TexelEffect *given, int n) {
    const TexelEffect effect = *given;
    for (int i = 0; i < n; ++i) {
      const uint32_t in = effect.in[i];
      effect.out[i] = in == effect.colour ? effect.replacement : in;
    }
  }
};

struct RampColours {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const Span *span, int64_t first, int n, uint32_t *colours) {
    const FixedColour left = Fixed(static_cast<uint32_t>(span->leftColour));
    const FixedColour right = Fixed(static_cast<uint32_t>(span->rightColour));
    const auto source = Shaded<Xrgb32>(left, right, Length(*span)).From(first);
    CombineRun<Xrgb32, VectorBytes>(Bytes(colours), Bytes(colours), n, Solid<Xrgb32>(0), source);
  }
};

using Effects = Kernels<const TexelEffect *, int>;

constexpr Effects kNoEffect = {};
constexpr Effects kEffects[16] = {kNoEffect,
                                  Effects::Of<WithColour<Mult>>(),
                                  Effects::Of<WithColour<Add>>(),
                                  Effects::Of<WithColour<Sub>>(),
                                  Effects::Of<BlendToColour>(),
                                  Effects::Of<WithInput<Half>>(),
                                  Effects::Of<WithInput<Add>>(),
                                  Effects::Of<WithInput<Mult>>(),
                                  kNoEffect,
                                  kNoEffect,
                                  Effects::Of<WithColour<Solid>>(),
                                  Effects::Of<WithColour<And>>(),
                                  Effects::Of<WithColour<Or>>(),
                                  kNoEffect,
                                  kNoEffect,
                                  Effects::Of<Replace>()};

}  // namespace

RampKernel FindRampKernel(Isa isa) {
  return Kernels<const Span *, int64_t, int, uint32_t *>::Of<RampColours>().For(isa);
}

EffectKernel FindEffectKernel(Isa isa, int32_t code) {
  return 0 <= code && code < 16 ? kEffects[code].For(isa) : nullptr;
}

}  // namespace brisal
