#include "host/error.h"
#include "tools/animate/window.h"

namespace brisal::tools {

bool HasWindow() { return false; }

void PlayInWindow(const WindowOptions &) {
  throw host::Error("--window: this build shows no windows; it was made without SDL 2");
}

}  // namespace brisal::tools
