#pragma once

#include <stdexcept>

namespace brisal::host {

// What the host throws: one line for a person, which names the file and what is wrong with it.
class Error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace brisal::host
