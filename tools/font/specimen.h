#pragma once

#include <filesystem>
#include <string>

#include "host/image.h"

namespace brisal::tools {

// A sheet that shows a font file: its name, its sizes, the alphabet, a paragraph, the three draw modes,
// its pixels enlarged and every glyph. text, in UTF-8, takes the paragraph's place where it is not empty.
host::Image Specimen(const std::filesystem::path &path, const std::string &text);

}  // namespace brisal::tools
