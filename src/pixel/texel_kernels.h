#pragma once

#include <cstddef>
#include <cstdint>

#include "core/canvas.h"
#include "core/span.h"

// The stages that texels pass on their way from a texture to a row of the target. They work on
// pieces of a span, so that their buffers stay small.

namespace brisal {

constexpr int kPiece = 256;

// Consecutive pixels of a piece that are not transparent, counted from its left end.
struct TexelRun {
  int32_t start;
  int32_t length;
};

struct TexelRuns {
  TexelRun run[kPiece / 2 + 1];
  int count = 0;
};

// Where texels are read: a texture and 16.16 coordinates that step from pixel to pixel.
struct TexelPath {
  const uint8_t *address;
  ptrdiff_t pitch;
  int32_t width;
  int32_t height;
  uint32_t u;
  uint32_t v;
  uint32_t du;
  uint32_t dv;
  uint32_t storedKey;  // the mask colour as it is stored, and as a texel
  uint32_t texelKey;
};

// Reads n texels, 0xAARRGGBB, to where there is room for a multiple of 16. Runs are those of the texels
// that are not the mask colour, or the whole piece where the sampling does not look for it.
using FetchKernel = void (*)(const TexelPath *path, int n, uint32_t *texels, TexelRuns *runs);
FetchKernel FindFetchKernel(Isa isa, int32_t format, bool filtered, bool compressed);

// What becomes of texels that are the mask colour: they are copied as all others are, or only in spans
// that have others, or not.
enum class MaskTexels { kCopied, kCopiedAmongOthers, kLeftOut };

// Copies the texels of spans to a target of the texture's format, as they are stored.
using CopyKernel = void (*)(const TexelPath &texture, const Span *spans, int64_t count,
                            const Buffer &target);
CopyKernel FindCopyKernel(Isa isa, int32_t format, MaskTexels mask);

// How many rows there are above the first one, of `rows`, whose n texels are all the mask colour; each
// row's path begins a texel below the one before it.
using MaskKernel = int32_t (*)(const TexelPath &path, ptrdiff_t n, int32_t rows);
MaskKernel FindMaskKernel(int32_t format);

// The colours of n pixels of a shaded span from the `first` on.
using RampKernel = void (*)(const Span *span, int64_t first, int n, uint32_t *colours);
RampKernel FindRampKernel(Isa isa);

// Combines n texels with a colour, or with the entries of another buffer, into `out`.
struct TexelEffect {
  const uint32_t *in;
  uint32_t *out;
  uint32_t colour;
  uint32_t level;        // the weight of a blend
  uint32_t replacement;  // for the colour
};
using EffectKernel = void (*)(const TexelEffect *effect, int n);
// Null for codes without an effect.
EffectKernel FindEffectKernel(Isa isa, int32_t code);

// How texels meet the target.
enum class Output { kPlain, kLevel, kHalf, kAdd, kSub, kOwnAlpha };

// Combines the runs of a piece with the target's pixels at `pixels`.
using OutputKernel = void (*)(const uint32_t *texels, const TexelRuns *runs, uint8_t *pixels,
                              uint32_t level);
OutputKernel FindOutputKernel(Isa isa, Output output, int32_t format);

}  // namespace brisal
