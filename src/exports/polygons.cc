#include "brisal/brisal.h"
#include "exports/instance.h"
#include "poly/fill.h"

using namespace brisal;

namespace {

void Place(int slot, int32_t x, int32_t y) { instance.vertices.Place(slot, x, y); }

void Place(int slot, int32_t x, int32_t y, uint32_t colour) {
  Place(slot, x, y);
  instance.vertices.colour[slot] = colour;
}

void FillFlat(int count, uint32_t colour, int32_t drawMode) {
  DrawFlatPoly(instance.canvas, instance.spans, instance.vertices, count, colour, drawMode);
}

}  // namespace

void BRSL_CALL BRSL_Tri(int32_t x0, int32_t y0, int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                        uint32_t colour, int32_t drawMode) {
  Place(0, x0, y0);
  Place(1, x1, y1);
  Place(2, x2, y2);
  FillFlat(3, colour, drawMode);
}

void BRSL_CALL BRSL_Quad(int32_t x0, int32_t y0, int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                         int32_t x3, int32_t y3, uint32_t colour, int32_t drawMode) {
  Place(0, x0, y0);
  Place(1, x1, y1);
  Place(2, x2, y2);
  Place(3, x3, y3);
  FillFlat(4, colour, drawMode);
}

void BRSL_CALL BRSL_DrawGouraudPoly(int32_t count, int32_t drawMode) {
  DrawGouraudPoly(instance.canvas, instance.spans, instance.vertices, count, drawMode);
}

void BRSL_CALL BRSL_TriG(int32_t x0, int32_t y0, uint32_t colour0, int32_t x1, int32_t y1,
                         uint32_t colour1, int32_t x2, int32_t y2, uint32_t colour2,
                         int32_t drawMode) {
  Place(0, x0, y0, colour0);
  Place(1, x1, y1, colour1);
  Place(2, x2, y2, colour2);
  BRSL_DrawGouraudPoly(3, drawMode);
}

void BRSL_CALL BRSL_QuadG(int32_t x0, int32_t y0, uint32_t colour0, int32_t x1, int32_t y1,
                          uint32_t colour1, int32_t x2, int32_t y2, uint32_t colour2, int32_t x3,
                          int32_t y3, uint32_t colour3, int32_t drawMode) {
  Place(0, x0, y0, colour0);
  Place(1, x1, y1, colour1);
  Place(2, x2, y2, colour2);
  Place(3, x3, y3, colour3);
  BRSL_DrawGouraudPoly(4, drawMode);
}

void BRSL_CALL BRSL_QuadSetGouraud(uint32_t colour0, uint32_t colour1, uint32_t colour2,
                                   uint32_t colour3) {
  const uint32_t colours[] = {colour0, colour1, colour2, colour3};
  for (int slot = 0; slot < 4; ++slot) instance.vertices.colour[slot] = colours[slot];
}
