#pragma once

#include <cstdint>

#include "core/canvas.h"
#include "core/span.h"
#include "poly/texel_plan.h"

// Drawing texels that reach the target as they are stored.

namespace brisal {

void CopyStoredSpans(const Canvas &canvas, const TexelPlan &plan, const Span *spans, int64_t count);

// The texels that lie on a part of the target when the texture's first one is at (x, y).
void CopyStoredBlock(const Canvas &canvas, const TexelPlan &plan, const Viewport &part, int64_t x,
                     int64_t y);

}  // namespace brisal
