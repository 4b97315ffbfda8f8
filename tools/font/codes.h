#pragma once

#include <string>
#include <vector>

namespace brisal::tools {

// What the character codes of a font stand for: Unicode code points, 0 for codes without a glyph.
using CodePoints = std::vector<char32_t>;

// Of "latin1" or "cp437", which have 256 codes, or of a range of code points such as "32-126", which
// are their own codes. Anything else is an Error.
CodePoints ParseCodes(const std::string &text);

CodePoints Latin1();

}  // namespace brisal::tools
