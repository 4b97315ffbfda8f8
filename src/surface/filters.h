#pragma once

#include <cstdint>

#include "core/canvas.h"
#include "surface/surface.h"

namespace brisal {

// All but the mirror work on the surface's viewport.
void Blur(Isa isa, const Surface &surface, float divisor);
void Fade(Isa isa, const Surface &surface, int32_t percent);
void GreyScale(Isa isa, const Surface &surface);

// A light whose level falls off linearly with the distance from its centre.
struct Light {
  int32_t x;
  int32_t y;
  float intensity;
  float falloff;
};

void LightUp(Isa isa, const Surface &surface, const Light &light);
void PaintLight(Isa isa, const Surface &surface, const Light &light, uint32_t colour);

// Fills an effect surface from an ordinary one: format 5 gets an alpha that marks mask-coloured
// pixels as transparent.
void PrepareEffectSurface(Isa isa, const Surface &source, const Surface &destination);

// Exchanges the pixels of a rectangle of the target, right and bottom exclusive, with their mirror
// images; what lies outside the viewport reads as 0.
void MirrorRectangle(const Canvas &canvas, const int32_t (&rectangle)[4], bool horizontal,
                     bool vertical);

}  // namespace brisal
