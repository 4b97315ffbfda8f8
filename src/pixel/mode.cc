#include "pixel/mode.h"

#include <bit>

namespace brisal {
namespace {

bool Is16Bit(int32_t format) { return format == BRSL_FORMAT_565 || format == BRSL_FORMAT_555; }

// Full alpha stores the colour exactly, alpha 0 is no drawing at all.
Rule AtAlpha(uint32_t alpha) {
  if (alpha == 0) return Rule::kNone;
  return alpha == 255 ? Rule::kSolid : Rule::kAlpha;
}

}  // namespace

Rule RuleOfMode(int32_t mode) {
  // By far the commonest, and what short runs would wait for.
  if (mode == DRAW_SOLID) return Rule::kSolid;
  // In the order of the modes' bits.
  static constexpr Rule kRules[] = {
      Rule::kSolid, Rule::kSolid, Rule::kNone, Rule::kNone, Rule::kAlpha, Rule::kHalf,  Rule::kAdd,
      Rule::kSub,   Rule::kAnd,   Rule::kOr,   Rule::kXor,  Rule::kMult,  Rule::kRevSub};
  const uint32_t bits = static_cast<uint32_t>(mode);
  if (bits == 0 || bits > DRAW_REVSUB || (bits & (bits - 1)) != 0) return Rule::kNone;
  return kRules[std::countr_zero(bits)];
}

Rule PixelRule(int32_t mode, uint32_t inkAlpha) {
  const Rule rule = RuleOfMode(mode);
  return rule == Rule::kAlpha ? AtAlpha(inkAlpha) : rule;
}

Rule SpanRule(int32_t mode, int32_t format, uint32_t inkAlpha, uint32_t packedColour) {
  const Rule rule = PixelRule(mode, inkAlpha);
  if (rule == Rule::kAlpha && Is16Bit(format)) {
    if (inkAlpha <= 16) return Rule::kNone;
    if (inkAlpha >= 240) return Rule::kSolid;
  }
  if ((rule == Rule::kAdd || rule == Rule::kSub) && packedColour == 0) return Rule::kNone;
  return rule;
}

Rule StripRule(int32_t mode, int32_t format, uint32_t inkAlpha) {
  const Rule rule = PixelRule(mode, inkAlpha);
  switch (rule) {
    case Rule::kAlpha: return Is16Bit(format) && inkAlpha < 15 ? Rule::kNone : rule;
    case Rule::kAdd:
    case Rule::kSub: return format == BRSL_FORMAT_A32 ? Rule::kNone : rule;
    case Rule::kMult: return format == BRSL_FORMAT_565 ? rule : Rule::kNone;
    case Rule::kRevSub: return Rule::kNone;
    default: return rule;
  }
}

}  // namespace brisal
