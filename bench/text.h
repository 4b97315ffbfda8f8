#pragma once

#include <array>
#include <functional>
#include <vector>

#include "bench/job.h"

// Text of two lines, and fonts in memory.

namespace brisal::bench {

constexpr int kGlyphs = 200;
constexpr int kGlyphSize = 16;

// Coverage of the pixels, row after row.
using Letter = std::array<uint8_t, kGlyphSize * kGlyphSize>;

// Letters of stems, bars, bowls and diagonals, with soft edges or without.
const std::vector<Letter> &Letters(const Job &job);

// The n-th glyph of the text: which letter, and where from the job's spot.
size_t LetterAt(int n);
Point PlaceOf(int n);

// The library draws the text, or writes or reads its font.
std::function<void(unsigned)> TextDrawing(const Job &job);
std::function<void(unsigned)> FontTransfer(const Job &job);

}  // namespace brisal::bench
