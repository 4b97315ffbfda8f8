#include "tools/progress.h"

#include <unistd.h>

#include <cstdio>

namespace brisal::tools {

namespace {

constexpr const char *kClearLine = "\r\033[K";

}  // namespace

Progress::Progress(size_t steps) : steps_(steps), terminal_(isatty(STDERR_FILENO)) {}

Progress::~Progress() {
  if (terminal_) std::fputs(kClearLine, stderr);
}

void Progress::Step(const std::string &what) {
  step_++;
  std::fprintf(stderr, "%s[%zu/%zu] %s%s", terminal_ ? kClearLine : "", step_, steps_, what.c_str(),
               terminal_ ? "" : "\n");
  std::fflush(stderr);
}

}  // namespace brisal::tools
