#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tools/formats.h"

// Values of options that several commands have. What they do not understand is an Error.

namespace brisal::tools {

struct Size {
  int32_t width;
  int32_t height;
};

// WIDTHxHEIGHT.
Size ParseSize(const std::string &text);

// The name of a format; for ParseFormats also "all", which is every one.
FormatInfo ParseFormat(const std::string &text);
std::vector<FormatInfo> ParseFormats(const std::string &text);

}  // namespace brisal::tools
