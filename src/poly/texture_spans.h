#pragma once

#include <cstdint>

#include "core/canvas.h"
#include "core/span.h"
#include "core/texel_buffer.h"
#include "poly/pipeline.h"
#include "surface/surface.h"

namespace brisal {

// Draws spans of a texture through a pipeline. Texel coordinates must lie inside the texture.
void DrawTexturedSpans(const Canvas &canvas, const Surface &texture, const Span *spans,
                       int64_t count, const Pipeline &pipeline, GouraudBuffer &gouraud);

// Copies the texels that lie on a part of the target when the texture's first one is at (x, y). False,
// and nothing is drawn, where the pipeline makes more of them than a copy.
bool CopyTexture(const Canvas &canvas, const Surface &texture, const Viewport &part, int64_t x,
                 int64_t y, const Pipeline &pipeline);

}  // namespace brisal
