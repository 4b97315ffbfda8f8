#pragma once

#include "host/font.h"
#include "tools/font/raster_options.h"

namespace brisal::tools {

// A font of computed blots in place of letters: soft edges, holes, columns before the pen, every width.
// It is the same on every machine, where outlines and what makes pixels of them differ.
host::Font ComputedFont(const RasterOptions &options);

}  // namespace brisal::tools
