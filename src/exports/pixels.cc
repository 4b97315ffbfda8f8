#include "raster/pixels.h"

#include "brisal/brisal.h"
#include "exports/instance.h"
#include "pixel/format.h"
#include "raster/spans.h"

using namespace brisal;

void BRSL_CALL BRSL_DrawPixel(int32_t x, int32_t y, uint32_t packedColour, int32_t mode) {
  DrawPixel(instance.canvas, x, y, packedColour, mode);
}

void BRSL_CALL BRSL_Dot(int32_t x, int32_t y, uint32_t colour, int32_t mode) {
  if (instance.canvas.viewport.Contains(x, y)) BRSL_FastDot(x, y, colour, mode);
}

void BRSL_CALL BRSL_FastDot(int32_t x, int32_t y, uint32_t colour, int32_t mode) {
  DrawPixel(instance.canvas, x, y, PackColour(colour, instance.canvas.target.format), mode);
}

uint32_t BRSL_CALL BRSL_Point(int32_t x, int32_t y) {
  const Canvas &canvas = instance.canvas;
  if (!canvas.viewport.Contains(x, y) || !IsFormat(canvas.target.format)) return 0;
  return ReadPixel(canvas.target, x, y);
}

uint32_t BRSL_CALL BRSL_FastPoint(int32_t x, int32_t y) {
  return ReadPixel(instance.canvas.target, x, y);
}

uint32_t BRSL_CALL BRSL_FastPoint_JT(int32_t x, int32_t y) {
  return ReadPixelByTable(instance.canvas.target, x, y);
}

void BRSL_CALL BRSL_DrawStrip(int32_t y, int32_t x1, int32_t x2, uint32_t packedColour,
                              int32_t mode) {
  DrawStrip(instance.canvas, y, x1, x2, packedColour, mode);
}
