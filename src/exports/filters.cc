#include "surface/filters.h"

#include "brisal/brisal.h"
#include "exports/instance.h"
#include "surface/map_block.h"
#include "surface/scaling.h"

using namespace brisal;

void BRSL_CALL BRSL_PrepareFXSurface(const BRSL_SurfaceDesc *src, BRSL_SurfaceDesc *dst,
                                     int32_t mode) {
  if (mode == 0) PrepareEffectSurface(instance.canvas.isa, *src, *dst);
}

void BRSL_CALL BRSL_FillRect_Blur(BRSL_SurfaceDesc *desc, float divisor) {
  Blur(instance.canvas.isa, *desc, divisor);
}

void BRSL_CALL BRSL_FillRect_Fade(BRSL_SurfaceDesc *desc, int32_t percent) {
  Fade(instance.canvas.isa, *desc, percent);
}

void BRSL_CALL BRSL_FillRect_GreyScale(BRSL_SurfaceDesc *desc) {
  GreyScale(instance.canvas.isa, *desc);
}

void BRSL_CALL BRSL_FillRect_Light(BRSL_SurfaceDesc *desc, int32_t cx, int32_t cy, float intensity,
                                   float falloff, int32_t) {
  LightUp(instance.canvas.isa, *desc, {cx, cy, intensity, falloff});
}

void BRSL_CALL BRSL_FillRect_PhongMap(BRSL_SurfaceDesc *desc, int32_t cx, int32_t cy,
                                      uint32_t colour, float intensity, float falloff, int32_t) {
  PaintLight(instance.canvas.isa, *desc, {cx, cy, intensity, falloff}, colour);
}

void BRSL_CALL BRSL_MirrorRect(const int32_t *rect, int32_t horizontal, int32_t vertical) {
  MirrorRectangle(instance.canvas, {rect[0], rect[1], rect[2], rect[3]}, (horizontal & 1) != 0,
                  (vertical & 1) != 0);
}

void BRSL_CALL BRSL_ScaleSurface(const BRSL_SurfaceDesc *src, BRSL_SurfaceDesc *dst, int32_t mode) {
  ScaleSurface(instance.canvas.isa, *src, *dst, mode);
}

int32_t BRSL_CALL BRSL_CopyRect_MoveMapBlk(const BRSL_SurfaceDesc *src, int32_t x1, int32_t y1,
                                           int32_t x2, int32_t y2, BRSL_SurfaceDesc *dst,
                                           int32_t dx, int32_t dy, uint32_t *rowBuffer,
                                           uint32_t maskColour) {
  return CopyMapBlock(instance.canvas.isa, *src, {x1, y1, x2, y2}, *dst, dx, dy, rowBuffer,
                      maskColour);
}
