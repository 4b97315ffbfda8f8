#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "tools/formats.h"

namespace brisal::tools {

struct GalleryOptions {
  std::filesystem::path picture;  // empty: the tool makes its own
  std::vector<FormatInfo> formats;
  std::filesystem::path out;
  int32_t width;
  int32_t height;
};

// Draws every scene in every format and writes PNG files and a page that shows them. Throws Error,
// and then leaves nothing behind.
void RunGallery(const GalleryOptions &options);

}  // namespace brisal::tools
