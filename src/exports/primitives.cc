#include "brisal/brisal.h"
#include "exports/instance.h"
#include "raster/boxes.h"
#include "raster/ellipses.h"
#include "raster/lines.h"

using namespace brisal;

void BRSL_CALL BRSL_Box(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour,
                        int32_t flags) {
  DrawBox(instance.canvas, x1, y1, x2, y2, colour, flags);
}

void BRSL_CALL BRSL_ShadeBox(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour1,
                             uint32_t colour2, uint32_t colour3, uint32_t colour4, int32_t flags) {
  DrawShadeBox(instance.canvas, instance.spans, x1, y1, x2, y2,
               {colour1, colour2, colour3, colour4}, flags);
}

void BRSL_CALL BRSL_Circle(int32_t cx, int32_t cy, int32_t r, uint32_t colour, int32_t flags) {
  BRSL_Ellipse(cx, cy, r, r, colour, flags);
}

void BRSL_CALL BRSL_Ellipse(int32_t cx, int32_t cy, int32_t rx, int32_t ry, uint32_t colour,
                            int32_t flags) {
  DrawEllipse(instance.canvas, instance.quarterCircle, instance.spans, {cx, cy, rx, ry}, colour,
              flags);
}

void BRSL_CALL BRSL_OpenCircle(int32_t cx, int32_t cy, int32_t r, uint32_t colour, int32_t flags) {
  BRSL_OpenEllipse(cx, cy, r, r, colour, flags);
}

void BRSL_CALL BRSL_OpenEllipse(int32_t cx, int32_t cy, int32_t rx, int32_t ry, uint32_t colour,
                                int32_t flags) {
  DrawOpenEllipse(instance.canvas, instance.quarterCircle, {cx, cy, rx, ry}, colour, flags);
}

void BRSL_CALL BRSL_OpenEllipseFX(int32_t cx, int32_t cy, int32_t rx, int32_t ry, uint32_t colour,
                                  int32_t flags, int32_t inside) {
  DrawOutline(instance.canvas, instance.quarterCircle, {cx, cy, rx, ry}, RGBForBuffer(colour, 0),
              flags & 0xFFF0, inside == 0);
}

void BRSL_CALL BRSL_FilledEllipse(int32_t cx, int32_t cy, int32_t rx, int32_t ry,
                                  uint32_t packedColour, int32_t flags) {
  FillEllipseClipped(instance.canvas, instance.quarterCircle, instance.spans, {cx, cy, rx, ry},
                     packedColour, flags);
}

void BRSL_CALL BRSL_FilledEllipseNC(int32_t cx, int32_t cy, int32_t rx, int32_t ry,
                                    uint32_t packedColour, int32_t flags) {
  FillEllipseUnclipped(instance.canvas, instance.quarterCircle, instance.spans, {cx, cy, rx, ry},
                       packedColour, flags);
}

void BRSL_CALL BRSL_WriteLine(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour,
                              int32_t flags) {
  WriteLine(instance.canvas, x1, y1, x2, y2, colour, flags);
}

void BRSL_CALL BRSL_WriteDrawModeLine(int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                                      uint32_t packedColour, int32_t mode) {
  WriteDrawModeLine(instance.canvas, x1, y1, x2, y2, packedColour, mode);
}

void BRSL_CALL BRSL_WriteLine_32Bit(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour,
                                    int32_t) {
  WriteLine32(instance.canvas, x1, y1, x2, y2, colour);
}
