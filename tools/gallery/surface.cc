#include "tools/gallery/surface.h"

#include <new>

namespace brisal::tools {

Surface::Surface(const host::Image &picture, int32_t format)
    : image_(picture.To(format)),
      desc_(BRSL_AllocSurfaceDesc(format, image_.Row(0), image_.Pitch(), image_.Width(),
                                  image_.Height())) {
  if (!desc_) throw std::bad_alloc();
}

Surface::~Surface() { BRSL_FreeSurfaceDesc(desc_); }

}  // namespace brisal::tools
