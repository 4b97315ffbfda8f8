#pragma once

#include <cstdint>

#include "host/image.h"

namespace brisal::tools {

// Textures and sprites, computed pixel by pixel, in BRSL_FORMAT_A32. Those with an outline have
// alpha 0 outside it and soft edges.

// A hot-air balloon in one of four liveries, size x size.
host::Image Balloon(int32_t size, int32_t livery);

// A soap bubble, mostly transparent, size x size.
host::Image Bubble(int32_t size);

// A butterfly, size x size. spread: 0 to 1, how far its wings are open.
host::Image Butterfly(int32_t size, float spread);

// The colour of a butterfly's upper wings; every format can hold it.
inline constexpr uint32_t kWing = 0xE87020;

// Eight steps of a butterfly's beat, four in a row, each size x size.
host::Image ButterflySheet(int32_t size);

// A map of a planet, 256 x 128.
const host::Image &Planet();

// A part of that map, enlarged, 288 x 432.
const host::Image &Coast();

// A wall of stones, 128 x 128, that joins itself on all sides.
const host::Image &Stones();

// A side of a wooden crate, 64 x 64.
const host::Image &Crate();

// A floor of marble, 128 x 128, that joins itself on all sides.
const host::Image &Marble();

// Six tiles of a map in a row: grass, water and sand, and keyed a tree, bushes and a house.
inline constexpr int32_t kTile = 32;
const host::Image &MapSheet();

// Every hue from black to white, above steps of grey.
host::Image Spectrum(int32_t width, int32_t height);

// A round spot of light on black.
host::Image Spotlight(int32_t width, int32_t height);

// Marks what is transparent, with alpha 0 where a format has alpha.
inline constexpr uint32_t kKeyColour = 0xFF00FF;

// A picture for formats without alpha: opaque where it was more than half opaque, elsewhere of the
// key colour.
host::Image Keyed(const host::Image &picture);

}  // namespace brisal::tools
