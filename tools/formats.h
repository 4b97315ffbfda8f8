#pragma once

#include <cstdint>

#include "brisal/brisal.h"

namespace brisal::tools {

struct FormatInfo {
  int32_t code;
  const char *name;     // on the command line and in file names
  const char *caption;  // for people
};

inline constexpr FormatInfo kFormats[] = {
    {BRSL_FORMAT_565, "565", "5:6:5, 16 bits"}, {BRSL_FORMAT_555, "555", "5:5:5, 16 bits"},
    {BRSL_FORMAT_RGB, "rgb", "RGB, 24 bits"},   {BRSL_FORMAT_X32, "x32", "XRGB, 32 bits"},
    {BRSL_FORMAT_A32, "a32", "ARGB, 32 bits"},
};

}  // namespace brisal::tools
