#pragma once

#include "pixel/texel_kernels.h"
#include "surface/surface.h"

namespace brisal {

// A path along a texture's texels, without coordinates or mask colour yet.
inline TexelPath PathAlong(const Surface &texture) {
  TexelPath path = {};
  path.address = static_cast<const uint8_t *>(texture.address);
  path.pitch = texture.pitch;
  path.width = texture.width;
  path.height = texture.height;
  return path;
}

}  // namespace brisal
