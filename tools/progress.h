#pragma once

#include <cstddef>
#include <string>

namespace brisal::tools {

// Tells on stderr how far the work is: one changing line on a terminal, a line a step elsewhere.
class Progress {
 public:
  explicit Progress(size_t steps);
  ~Progress();
  Progress(const Progress &) = delete;
  Progress &operator=(const Progress &) = delete;

  // The next step begins.
  void Step(const std::string &what);

 private:
  size_t steps_;
  size_t step_ = 0;
  bool terminal_;
};

}  // namespace brisal::tools
