#pragma once

#include <cstdint>

#include "brisal/brisal.h"
#include "pixel/rules.h"

// From the draw mode that crosses the interface to the rule that a writer runs. The writers differ
// in what they let through; that is said here, once.

namespace brisal {

// In the order of `Rules`; kNone draws nothing.
enum class Rule { kSolid, kHalf, kAdd, kSub, kMult, kRevSub, kAlpha, kAnd, kOr, kXor, kNone };

template <template <class> class... R>
struct RuleList {
  static constexpr int kSize = sizeof...(R);
};

using Rules = RuleList<Solid, Half, Add, Sub, Mult, RevSub, Alpha, And, Or, Xor>;
// The first of them are offered to shaded spans too.
using ShadedRules = RuleList<Solid, Half, Add, Sub, Mult, RevSub>;

Rule RuleOfMode(int32_t mode);

// The draw mode in a shape's flags, solid where there is none.
constexpr int32_t ModeOfFlags(int32_t flags) {
  const int32_t mode = flags & 0xFFF0;
  return mode != 0 ? mode : DRAW_SOLID;
}

Rule PixelRule(int32_t mode, uint32_t inkAlpha);
Rule SpanRule(int32_t mode, int32_t format, uint32_t inkAlpha, uint32_t packedColour);
Rule StripRule(int32_t mode, int32_t format, uint32_t inkAlpha);

}  // namespace brisal
