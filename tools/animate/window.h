#pragma once

#include <cstdint>

#include "tools/arguments.h"

namespace brisal::tools {

struct WindowOptions {
  Size size;
  int32_t format;
  int32_t frames;  // after which it closes; 0: when it is closed
};

// Whether this build can show windows at all.
bool HasWindow();

// Plays the animation in a window until it is closed. Throws Error where there is no display.
void PlayInWindow(const WindowOptions &options);

}  // namespace brisal::tools
