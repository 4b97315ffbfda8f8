#pragma once

#include <cstdint>
#include <span>

#include "brisal/brisal.h"
#include "host/image.h"
#include "tools/gallery/surface.h"

namespace brisal::docs {

inline constexpr int32_t kWidth = 120, kHeight = 90;
inline constexpr int32_t kFormat = BRSL_FORMAT_X32;

// A small picture of what one drawing function does, named after it. The target is a dark page of
// kWidth x kHeight, page its descriptor.
struct Picture {
  const char *name;
  void (*draw)(BRSL_SurfaceDesc *page);
};

std::span<const Picture> ShapePictures();
std::span<const Picture> PolygonPictures();
std::span<const Picture> SurfacePictures();
std::span<const Picture> TexturePictures();
std::span<const Picture> ScenePictures();

// A picture of the gallery as texture of the page's format.
inline tools::Surface TextureOf(const host::Image &picture) { return {picture, kFormat}; }

// The coast of the gallery, over all of the page.
void DrawCoast(BRSL_SurfaceDesc *page);

}  // namespace brisal::docs
