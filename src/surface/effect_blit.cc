#include "surface/effect_blit.h"

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
void Tint(bool wide, const Buffer &buffer, Rule rule, uint32_t packed, int64_t x, int64_t y,
          const BlitArea &area) {
  Span row;
  row.Place(y, x, x + area.right - area.left);
  const Runs runs = Runs::Rows(&row, area.bottom - area.top);
  FindSpanKernel(wide, rule, buffer.format)(runs, buffer, packed, 0);
}

}  // namespace

void BlitWithEffect(const Canvas &canvas, const Buffer &source, const Buffer &blendSource,
                    const BlitArea &area, const BlitEffect &effect) {
  const Plan plan = PlanFor(effect);
  if (plan.way == Way::kNone || !IsFormat(source.format)) return;
  if ((plan.formats >> source.format & 1) == 0) return;
  if (canvas.target.format != source.format) return;
  const BlitArea part = Clip(area, canvas.viewport);
  if (part.IsEmpty()) return;

  const Transfer transfer = MakeTransfer(canvas.target, source, part);
  const uint32_t packed = PackColour(effect.colour, source.format);
  const auto copy = [&] {
    FindBlitKernel(canvas.wide, source.format, source.format, 0)(transfer, 0);
  };
  const auto tintSource = [&] {
    Tint(canvas.wide, source, plan.rule, packed, part.left, part.top, part);
  };
  switch (plan.way) {
    case Way::kNone: return;
    case Way::kMix: {
      const uint8_t *with =
          blendSource.Row(part.top) + ByteOffset(part.left, BytesPerPixel(source.format));
      FindMixKernel(canvas.wide, plan.rule, source.format)(transfer, with, blendSource.pitch);
      return;
    }
    case Way::kTint:
      copy();
      return Tint(canvas.wide, canvas.target, plan.rule, packed, part.x, part.y, part);
    case Way::kTintBoth: tintSource(); return copy();
    case Way::kMoveAndTint: copy(); return tintSource();
  }
}

}  // namespace brisal
