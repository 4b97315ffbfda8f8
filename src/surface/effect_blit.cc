#include "surface/effect_blit.h"

#include <algorithm>

#include "pixel/blit_kernels.h"
#include "pixel/format.h"
#include "pixel/mix_kernels.h"
#include "pixel/mode.h"
#include "pixel/span_kernels.h"

namespace brisal {
namespace {

// What an effect does with source and target, besides combining by a rule.
enum class Way {
  kNone,
  kMix,          // the target gets source and blend source combined
  kTint,         // the target gets source and colour combined
  kTintBoth,     // so does the source
  kMoveAndTint,  // the target gets the source, then the source is combined with the colour
};

struct Plan {
  Way way;
  Rule rule;
  uint32_t formats;  // bit n for format n
};

constexpr uint32_t kFormats124 = 1 << 1 | 1 << 2 | 1 << 4;
constexpr uint32_t kFormats1245 = kFormats124 | 1 << 5;
constexpr uint32_t kAllFormats = kFormats1245 | 1 << 3;
constexpr Plan kNothing = {Way::kNone, Rule::kNone, 0};

Plan PlanFor(const BlitEffect &effect) {
  const bool mix = effect.useBlendSource == 1;
  switch (effect.mode & ~1u) {
    case 0: return {Way::kMoveAndTint, Rule::kSolid, kFormats124};
    case 32: return {mix ? Way::kMix : Way::kMoveAndTint, Rule::kHalf, kFormats124};
    case 64: return {mix ? Way::kMix : Way::kTintBoth, Rule::kAdd, kFormats124};
    case 128: return {mix ? Way::kMix : Way::kTintBoth, Rule::kSub, kFormats124};
    case 8192: return {mix ? Way::kMix : Way::kTint, Rule::kMult, kAllFormats};
    case 1024: return mix ? Plan{Way::kMix, Rule::kMult, kFormats124} : kNothing;
    case 16384:
      if (effect.useBlendSource != 0) return kNothing;
      return {Way::kMoveAndTint, Rule::kMult, kFormats1245};
    default: return kNothing;
  }
}

// Combines a rectangle of a buffer with the effect colour, in place.
void Tint(Isa isa, const Buffer &buffer, Rule rule, uint32_t packed, int64_t x, int64_t y,
          const BlitArea &area) {
  FindBlockKernel(isa, rule, buffer.format)(
      buffer.Row(y) + ByteOffset(x, BytesPerPixel(buffer.format)), buffer.pitch,
      area.right - area.left, area.bottom - area.top, packed, 0);
}

// The buffers and the way of one call, for any part of its area.
struct EffectBlit {
  const Canvas &canvas;
  const Buffer &source;
  const Buffer &blendSource;
  Plan plan;
  uint32_t packed;

  void Draw(const BlitArea &part) const {
    switch (plan.way) {
      case Way::kNone: return;
      case Way::kMix: return Mix(part);
      case Way::kTint:
        Copy(part);
        return Tint(canvas.isa, canvas.target, plan.rule, packed, part.x, part.y, part);
      case Way::kTintBoth: TintSource(part); return Copy(part);
      case Way::kMoveAndTint: Copy(part); return TintSource(part);
    }
  }

  void Copy(const BlitArea &part) const {
    const Transfer transfer = MakeTransfer(canvas.target, source, part);
    FindBlitKernel(canvas.isa, source.format, source.format, 0)(transfer, 0);
  }

  void TintSource(const BlitArea &part) const {
    Tint(canvas.isa, source, plan.rule, packed, part.left, part.top, part);
  }

  void Mix(const BlitArea &part) const {
    const Transfer transfer = MakeTransfer(canvas.target, source, part);
    const Transfer blend = MakeTransfer(canvas.target, blendSource, part);
    FindMixKernel(canvas.isa, plan.rule, source.format)(transfer, blend.from, blend.fromPitch);
  }

  // Whether the pixels to be written share memory with those of another buffer, other than by being
  // the very same ones.
  bool Meets(const Buffer &from, const BlitArea &part) const {
    const Transfer transfer = MakeTransfer(canvas.target, from, part);
    if (transfer.to == transfer.from && transfer.toPitch == transfer.fromPitch) return false;
    const MemoryRange to = RangeOf(transfer.to, transfer.toPitch, transfer);
    const MemoryRange at = RangeOf(transfer.from, transfer.fromPitch, transfer);
    return to.first < at.last && at.first < to.last;
  }

  struct MemoryRange {
    uintptr_t first;
    uintptr_t last;
  };

  MemoryRange RangeOf(const uint8_t *first, ptrdiff_t pitch, const Transfer &transfer) const {
    const uint8_t *last = first + ByteOffset(transfer.rows - 1, pitch);
    const ptrdiff_t bytes = transfer.width * BytesPerPixel(source.format);
    return {reinterpret_cast<uintptr_t>(std::min(first, last)),
            reinterpret_cast<uintptr_t>(std::max(first, last) + bytes)};
  }

  void DrawPixelByPixel(const BlitArea &part) const {
    for (int64_t y = 0; y < part.bottom - part.top; ++y) {
      for (int64_t x = 0; x < part.right - part.left; ++x) {
        const int64_t left = part.left + x;
        const int64_t top = part.top + y;
        Draw({left, top, left + 1, top + 1, part.x + x, part.y + y});
      }
    }
  }
};

}  // namespace

void BlitWithEffect(const Canvas &canvas, const Buffer &source, const Buffer &blendSource,
                    const BlitArea &area, const BlitEffect &effect) {
  const Plan plan = PlanFor(effect);
  if (plan.way == Way::kNone || !IsFormat(source.format)) return;
  if ((plan.formats >> source.format & 1) == 0) return;
  if (canvas.target.format != source.format) return;
  const BlitArea part = Clip(area, canvas.viewport);
  if (part.IsEmpty()) return;

  // The blend source is taken to have the source's format.
  const Buffer blend = {blendSource.address, blendSource.pitch, source.format};
  const EffectBlit blit = {canvas, source, blend, plan, PackColour(effect.colour, source.format)};
  const bool overlaps =
      blit.Meets(source, part) || (plan.way == Way::kMix && blit.Meets(blend, part));
  if (overlaps) return blit.DrawPixelByPixel(part);
  blit.Draw(part);
}

}  // namespace brisal
