#pragma once

#include <string>

namespace brisal::tools {

// One number, in 16 digits, for all pictures of the gallery in all formats, as the library leaves them
// in memory, over the computed landscape. It is the same on both sides of the MMX switch, which returns
// to where it was, and on every machine: an Error where a picture depends on the switch.
std::string GalleryHash();

}  // namespace brisal::tools
