#pragma once

#include <cstdint>

#include "core/canvas.h"
#include "surface/blit.h"

namespace brisal {

struct BlitEffect {
  uint32_t mode;  // bit 0 tells in mode 0 whether the source is left filled
  uint32_t colour;
  uint32_t useBlendSource;
};

// Any effect but the plain copy. May write the source too.
void BlitWithEffect(const Canvas &canvas, const Buffer &source, const Buffer &blendSource,
                    const BlitArea &area, const BlitEffect &effect);

}  // namespace brisal
