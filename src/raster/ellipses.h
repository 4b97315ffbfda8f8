#pragma once

#include <cstdint>

#include "core/canvas.h"
#include "core/quarter_circle.h"
#include "core/span.h"

namespace brisal {

struct Ellipse {
  int64_t cx;
  int64_t cy;
  int64_t rx;
  int64_t ry;
};

enum class Extent { kOutside, kPartly, kInside };

Extent ClassifyEllipse(const Viewport &viewport, const Ellipse &e);

// Filled and outlined shapes of any kind; what is left of them after clipping.
void DrawEllipse(const Canvas &canvas, const QuarterCircle &quarter, SpanBuffer &spanBuffer,
                 const Ellipse &e, uint32_t colour, int32_t flags);
void DrawOpenEllipse(const Canvas &canvas, const QuarterCircle &quarter, const Ellipse &e,
                     uint32_t colour, int32_t flags);

// Every point of the outline by the one-pixel rule, clipped or not.
void DrawOutline(const Canvas &canvas, const QuarterCircle &quarter, const Ellipse &e,
                 uint32_t packed, int32_t mode, bool clip);

// The filled shape. Clipped, it lies one row lower than it does unclipped.
void FillEllipseClipped(const Canvas &canvas, const QuarterCircle &quarter, SpanBuffer &spanBuffer,
                        const Ellipse &e, uint32_t packed, int32_t flags);
void FillEllipseUnclipped(const Canvas &canvas, const QuarterCircle &quarter,
                          SpanBuffer &spanBuffer, const Ellipse &e, uint32_t packed, int32_t flags);

}  // namespace brisal
