#include <algorithm>

#include "brisal/brisal.h"
#include "exports/instance.h"
#include "surface/blit.h"
#include "surface/effect_blit.h"
#include "surface/strips.h"
#include "surface/surface.h"

using namespace brisal;

BRSL_SurfaceDesc *BRSL_CALL BRSL_AllocSurfaceDesc(int32_t format, void *address, int32_t pitch,
                                                  int32_t width, int32_t height) {
  return AllocSurface(format, address, pitch, width, height);
}

int32_t BRSL_CALL BRSL_FreeSurfaceDesc(BRSL_SurfaceDesc *desc) {
  FreeSurface(desc);
  return 1;
}

void BRSL_CALL BRSL_SetSurfaceDescVP(BRSL_SurfaceDesc *desc, int32_t x1, int32_t y1, int32_t x2,
                                     int32_t y2) {
  if (desc == nullptr) return;
  desc->viewLeft = std::min(x1, x2);
  desc->viewTop = std::min(y1, y2);
  desc->viewRight = std::max(x1, x2);
  desc->viewBottom = std::max(y1, y2);
}

void BRSL_CALL BRSL_SetSurfaceDescMaskColour(BRSL_SurfaceDesc *desc, uint32_t colour) {
  if (desc != nullptr) desc->maskColour = colour;
}

int32_t BRSL_CALL BRSL_GetSurfaceDescType(const BRSL_SurfaceDesc *desc) {
  return desc != nullptr ? desc->format : 0;
}

uint32_t BRSL_CALL BRSL_PeekSurface(const BRSL_SurfaceDesc *desc, int32_t x, int32_t y) {
  return Peek(*desc, x, y);
}

void BRSL_CALL BRSL_PokeSurface(BRSL_SurfaceDesc *desc, int32_t x, int32_t y, uint32_t colour) {
  Poke(*desc, x, y, colour);
}

void BRSL_CALL BRSL_PokeSurfaceNC(BRSL_SurfaceDesc *desc, int32_t x, int32_t y, uint32_t colour) {
  PokeUnclipped(BufferOf(*desc), x, y, colour);
}

void BRSL_CALL BRSL_PeekPixelStrip(const BRSL_SurfaceDesc *desc, int32_t x1, int32_t x2, int32_t y,
                                   uint32_t *out) {
  if (desc == nullptr || out == nullptr) return;
  ReadRow(instance.canvas.isa, BufferOf(*desc), x1, y, int64_t{x2} - x1, out);
}

int32_t BRSL_CALL BRSL_PixelRunLength(int32_t x, int32_t y, int32_t xStep, int32_t yStep,
                                      uint32_t colour) {
  return PixelRunLength(instance.canvas, x, y, xStep, yStep, colour);
}

int32_t BRSL_CALL BRSL_ImageInViewPort(int32_t x, int32_t y, int32_t w, int32_t h) {
  const Viewport &view = instance.canvas.viewport;
  const bool misses =
      x > view.right || y > view.bottom || int64_t{x} + w < view.left || int64_t{y} + h < view.top;
  return !misses;
}

void BRSL_CALL BRSL_HoriGouraudStrip(int32_t x1, uint32_t colour1, int32_t x2, uint32_t colour2,
                                     int32_t y) {
  DrawGouraudStrip(instance.canvas, Axis::kRow, x1, colour1, x2, colour2, y);
}

void BRSL_CALL BRSL_VertGouraudStrip(int32_t y1, uint32_t colour1, int32_t y2, uint32_t colour2,
                                     int32_t x) {
  DrawGouraudStrip(instance.canvas, Axis::kColumn, y1, colour1, y2, colour2, x);
}

void BRSL_CALL BRSL_HoriTextureStrip(const BRSL_SurfaceDesc *texture, int32_t x1, int32_t uA,
                                     int32_t vA, int32_t x2, int32_t uB, int32_t vB, int32_t y) {
  DrawTextureStrip(instance.canvas, Axis::kRow, texture, x1, {uA, vA}, x2, {uB, vB}, y);
}

void BRSL_CALL BRSL_VertTextureStrip(const BRSL_SurfaceDesc *texture, int32_t y1, int32_t uA,
                                     int32_t vA, int32_t y2, int32_t uB, int32_t vB, int32_t x) {
  DrawTextureStrip(instance.canvas, Axis::kColumn, texture, y1, {uA, vA}, y2, {uB, vB}, x);
}

void BRSL_CALL BRSL_Blit(int32_t sx1, int32_t sy1, int32_t sx2, int32_t sy2, int32_t dx, int32_t dy,
                         uint32_t maskColour, uint32_t flags) {
  Blit(instance.canvas, instance.source, {sx1, sy1, sx2, sy2, dx, dy}, maskColour, flags);
}

void BRSL_CALL BRSL_BlitFX(int32_t sx1, int32_t sy1, int32_t sx2, int32_t sy2, int32_t dx,
                           int32_t dy, uint32_t blitFlags, uint32_t blitMaskColour, uint32_t fxMode,
                           uint32_t fxColour, uint32_t useBlendSource, int32_t) {
  if (fxMode == 0) return BRSL_Blit(sx1, sy1, sx2, sy2, dx, dy, blitMaskColour, blitFlags);
  BlitWithEffect(instance.canvas, instance.source, instance.blendSource,
                 {sx1, sy1, sx2, sy2, dx, dy}, {fxMode, fxColour, useBlendSource});
}
