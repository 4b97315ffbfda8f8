#pragma once

#include <cstdint>

#include "brisal/brisal.h"
#include "host/image.h"

namespace brisal::tools {

// A picture in a format of choice, with the library's descriptor of it.
class Surface {
 public:
  Surface(const host::Image &picture, int32_t format);
  ~Surface();
  Surface(const Surface &) = delete;
  Surface &operator=(const Surface &) = delete;

  operator BRSL_SurfaceDesc *() const { return desc_; }
  BRSL_SurfaceDesc *operator->() const { return desc_; }

 private:
  host::Image image_;
  BRSL_SurfaceDesc *desc_;
};

}  // namespace brisal::tools
