#pragma once

#include <cstdint>

#include "core/random_state.h"

// Arithmetic on colours 0xAARRGGBB. Results have alpha 0 unless a function says otherwise.

namespace brisal {

// Channels give their low eight bits.
uint32_t Colour(int32_t red, int32_t green, int32_t blue);
uint32_t Colour(int32_t alpha, int32_t red, int32_t green, int32_t blue);
uint32_t ColourWithIntensity(int32_t red, int32_t green, int32_t blue);

int32_t AlphaOf(uint32_t colour);
int32_t RedOf(uint32_t colour);
int32_t GreenOf(uint32_t colour);
int32_t BlueOf(uint32_t colour);

uint32_t RandomColour(RandomState &state);

uint32_t GreyOf(uint32_t colour);
uint32_t FadeColour(uint32_t colour, float percent);
uint32_t ScaleColour(uint32_t colour, int32_t factor);

// From colour1 at level 0 to colour2 at 255; these two come back with their alpha.
uint32_t BlendColours(uint32_t colour1, uint32_t colour2, int32_t level);
uint32_t BlendColoursByPercent(uint32_t colour1, uint32_t colour2, float percent);
uint32_t BlendColoursByDepth(uint32_t colour1, uint32_t colour2, float depth, float nearDepth,
                             float farDepth);

uint32_t AddColours(uint32_t colour1, uint32_t colour2);
uint32_t SubtractColours(uint32_t colour1, uint32_t colour2);
uint32_t MultiplyColours(uint32_t colour1, uint32_t colour2);
uint32_t HalveColours(uint32_t colour1, uint32_t colour2);

}  // namespace brisal
