#include "pixel/mode.h"

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
  switch (mode) {
    case DRAW_NORMAL:
    case DRAW_SOLID: return Rule::kSolid;
    case DRAW_ALPHA: return Rule::kAlpha;
    case DRAW_HALF: return Rule::kHalf;
    case DRAW_ADD: return Rule::kAdd;
    case DRAW_SUB: return Rule::kSub;
    case DRAW_AND: return Rule::kAnd;
    case DRAW_OR: return Rule::kOr;
    case DRAW_XOR: return Rule::kXor;
    case DRAW_MULT: return Rule::kMult;
    case DRAW_REVSUB: return Rule::kRevSub;
    default: return Rule::kNone;
  }
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
