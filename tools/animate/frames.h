#pragma once

#include <cstdint>
#include <filesystem>

#include "tools/animate/animation.h"

namespace brisal::tools {

struct FrameOptions {
  std::filesystem::path out;  // a file.apng, or a folder
  int32_t frames;
  int32_t rate;  // frames a second
};

// Writes the animation as one animated PNG, or as numbered PNG files with a page that plays them.
// Throws Error, and then leaves nothing behind.
void WriteFrames(Animation &animation, const FrameOptions &options);

}  // namespace brisal::tools
