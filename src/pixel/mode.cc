#include "pixel/mode.h"

namespace brisal {
namespace {

bool Is16Bit(int32_t format) { return format <= 2; }

// Full alpha stores the colour exactly, alpha 0 is no drawing at all.
Rule AtAlpha(uint32_t alpha) {
  if (alpha == 0) return Rule::kNone;
  return alpha == 255 ? Rule::kSolid : Rule::kAlpha;
}

}  // namespace

Rule RuleOfMode(int32_t mode) {
  switch (mode) {
    case 1:
    case 2: return Rule::kSolid;
    case 16: return Rule::kAlpha;
    case 32: return Rule::kHalf;
    case 64: return Rule::kAdd;
    case 128: return Rule::kSub;
    case 256: return Rule::kAnd;
    case 512: return Rule::kOr;
    case 1024: return Rule::kXor;
    case 2048: return Rule::kMult;
    case 4096: return Rule::kRevSub;
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
    case Rule::kSub: return format == 5 ? Rule::kNone : rule;
    case Rule::kMult: return format == 1 ? rule : Rule::kNone;
    case Rule::kRevSub: return Rule::kNone;
    default: return rule;
  }
}

}  // namespace brisal
