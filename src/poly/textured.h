#pragma once

#include <cstdint>

#include "core/canvas.h"
#include "core/span.h"
#include "core/texel_buffer.h"
#include "core/vertex_list.h"
#include "poly/pipeline.h"
#include "surface/surface.h"

namespace brisal {

// What textured drawing works with besides the canvas.
struct TextureWork {
  SpanBuffer &spans;
  VertexList &vertices;  // its texel coordinates are clamped to the texture
  GouraudBuffer &gouraud;
};

// The polygon in the first `count` slots of the vertex list. Null textures and pipelines draw nothing.
void DrawTexturedPoly(const Canvas &canvas, const TextureWork &work, const Surface *texture,
                      int count, const Pipeline *pipeline);

// The same by the rules of sprites: coordinates name texel centres, both ends of a row show the end
// texels, and a flat bottom edge is drawn.
void DrawSpritePoly(const Canvas &canvas, const TextureWork &work, const Surface *texture,
                    int count, const Pipeline *pipeline);

// The whole texture, unscaled.
void DrawTexture(const Canvas &canvas, const TextureWork &work, const Surface *texture, int32_t x,
                 int32_t y, const Pipeline *pipeline);

}  // namespace brisal
