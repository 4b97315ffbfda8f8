#pragma once

#include <cstdint>

#include "brisal/brisal.h"

namespace brisal {

using Pipeline = TPD_Pipeline;

// Null when there is no memory.
Pipeline *AllocPipeline();
void FreePipeline(Pipeline *pipeline);

// Appends an effect while there is room.
void AddTexelEffect(Pipeline *pipeline, const TPD_TexelEffect &effect);
void ResetTexelEffects(Pipeline *pipeline);

// False where the code is no output effect.
bool SetOutputEffect(Pipeline *pipeline, int32_t code, int32_t argument, int32_t level);

// Rebuilds mask and filter flag, effects and Gouraud state from a sprite draw mode.
void UpdateSpriteDrawMode(Pipeline *pipeline, uint32_t spriteMode, uint32_t tint, uint32_t colour,
                          int32_t level);

}  // namespace brisal
