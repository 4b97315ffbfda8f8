#pragma once

#include <cstdint>

#include "pixel/texel_kernels.h"
#include "poly/pipeline.h"
#include "surface/surface.h"

namespace brisal {

// What a pipeline makes of the texels of a texture on a target.
struct TexelPlan {
  TexelPlan(const Surface &texture, const Pipeline &pipeline, int32_t targetFormat);

  // Whether texels that are cut out are written all the same, in the mask colour.
  bool FillsGaps() const { return cutsMask && !keepsTarget; }

  TexelPath path;  // all of it but the coordinates
  Output output;
  int effects;
  bool cutsMask;      // texels of the mask colour are cut out
  bool keepsTarget;   // where they are
  bool usesShades;    // Gouraud colours are made, or read
  bool copiesStored;  // texels reach the target as they are stored, all channels of them, and leave
                      // nothing behind
};

}  // namespace brisal
