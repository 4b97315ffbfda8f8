// Random blocks of glyphs, well formed in every way that blocks may be, and plain images of glyphs.
#pragma once

#include <cstdint>
#include <vector>

#include "support/random.h"

// depth: 8 or 32.
std::vector<uint8_t> RandomGlyph(Random &random, int32_t depth);

std::vector<uint8_t> RandomGlyphImage(Random &random);
