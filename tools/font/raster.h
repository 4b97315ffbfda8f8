#pragma once

#include <filesystem>

#include "host/font.h"
#include "tools/font/raster_options.h"

namespace brisal::tools {

// A raster font made from a file of outlines, as FontOf makes it. Throws Error.
host::Font RasterFont(const std::filesystem::path &path, const RasterOptions &options);

// The same from DejaVu Sans, wherever the machine has it; an Error says how to get it.
host::Font DejaVuFont(const RasterOptions &options);

}  // namespace brisal::tools
