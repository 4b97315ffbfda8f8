#include <initializer_list>

#include "brisal/brisal.h"
#include "exports/instance.h"
#include "poly/pipeline.h"
#include "poly/textured.h"

using namespace brisal;

namespace {

TextureWork Work() { return {instance.spans, instance.vertices, instance.gouraud}; }

void PlaceTexel(int slot, int32_t x, int32_t y, int32_t u, int32_t v) {
  instance.vertices.Place(slot, x, y);
  instance.vertices.u[slot] = u;
  instance.vertices.v[slot] = v;
}

struct QuadVertex {
  int32_t x;
  int32_t y;
  int32_t u;
  int32_t v;
};

void PlaceCorner(int slot, const QuadVertex &corner, const uint32_t *colour) {
  PlaceTexel(slot, corner.x, corner.y, corner.u, corner.v);
  if (colour != nullptr) instance.vertices.colour[slot] = *colour;
}

void DrawSpriteCorners(const Surface *texture, const QuadVertex (&corners)[4],
                       const uint32_t *colours, const Pipeline *pipeline, int32_t split) {
  const auto colour = [colours](int i) { return colours != nullptr ? &colours[i] : nullptr; };
  if (split == 0) {
    for (int i = 0; i < 4; ++i) PlaceCorner(i, corners[i], colour(i));
    DrawSpritePoly(instance.canvas, Work(), texture, 4, pipeline);
  } else if (split == 1) {
    for (const int middle : {1, 2}) {
      PlaceCorner(0, corners[0], colour(0));
      PlaceCorner(1, corners[middle], colour(middle));
      PlaceCorner(2, corners[middle + 1], colour(middle + 1));
      DrawSpritePoly(instance.canvas, Work(), texture, 3, pipeline);
    }
  }
}

}  // namespace

TPD_Pipeline *BRSL_CALL TPD_Alloc(void) { return AllocPipeline(); }

int32_t BRSL_CALL TPD_Free(TPD_Pipeline *pipeline) {
  FreePipeline(pipeline);
  return 0;
}

int32_t BRSL_CALL TPD_AddTexelEffect(TPD_Pipeline *pipeline, int32_t code, int32_t inputBuffer,
                                     int32_t outputBuffer, uint32_t a, uint32_t b, uint32_t c,
                                     uint32_t d) {
  if (pipeline != nullptr) {
    AddTexelEffect(pipeline, {code, inputBuffer, outputBuffer, a, b, c, d});
  }
  return 0;
}

int32_t BRSL_CALL TPD_SetOutputEffect(TPD_Pipeline *pipeline, int32_t code, int32_t argument,
                                      int32_t level) {
  return pipeline != nullptr && SetOutputEffect(pipeline, code, argument, level);
}

void BRSL_CALL TPD_SetMaskCompression(TPD_Pipeline *pipeline, int32_t on) {
  if (pipeline != nullptr) pipeline->maskCompression = on & 1;
}

int32_t BRSL_CALL TPD_GetMaskCompression(const TPD_Pipeline *pipeline) {
  return pipeline != nullptr ? pipeline->maskCompression : 0;
}

int32_t BRSL_CALL TPD_GetGouruaudState(const TPD_Pipeline *pipeline) {
  return pipeline != nullptr ? pipeline->gouraudState : 0;
}

int32_t BRSL_CALL TPD_UpdateSpriteDrawMode(TPD_Pipeline *pipeline, uint32_t spriteMode,
                                           uint32_t tint, uint32_t colour, int32_t level) {
  if (pipeline == nullptr) return 0;
  UpdateSpriteDrawMode(pipeline, spriteMode, tint, colour, level);
  return 1;
}

TPD_Pipeline *BRSL_CALL TPD_BuildSpriteDrawMode(uint32_t spriteMode, uint32_t tint, uint32_t colour,
                                                int32_t level) {
  TPD_Pipeline *pipeline = AllocPipeline();
  TPD_UpdateSpriteDrawMode(pipeline, spriteMode, tint, colour, level);
  return pipeline;
}

void BRSL_CALL BRSL_DrawTexturedPoly(const BRSL_SurfaceDesc *texture, int32_t count,
                                     const TPD_Pipeline *pipeline) {
  DrawTexturedPoly(instance.canvas, Work(), texture, count, pipeline);
}

void BRSL_CALL BRSL_TriT(const BRSL_SurfaceDesc *texture, int32_t x0, int32_t y0, int32_t tu0,
                         int32_t tv0, int32_t x1, int32_t y1, int32_t tu1, int32_t tv1, int32_t x2,
                         int32_t y2, int32_t tu2, int32_t tv2, const TPD_Pipeline *pipeline) {
  PlaceTexel(0, x0, y0, tu0, tv0);
  PlaceTexel(1, x1, y1, tu1, tv1);
  PlaceTexel(2, x2, y2, tu2, tv2);
  BRSL_DrawTexturedPoly(texture, 3, pipeline);
}

void BRSL_CALL BRSL_QuadT(const BRSL_SurfaceDesc *texture, int32_t x0, int32_t y0, int32_t tu0,
                          int32_t tv0, int32_t x1, int32_t y1, int32_t tu1, int32_t tv1, int32_t x2,
                          int32_t y2, int32_t tu2, int32_t tv2, int32_t x3, int32_t y3, int32_t tu3,
                          int32_t tv3, const TPD_Pipeline *pipeline) {
  PlaceTexel(0, x0, y0, tu0, tv0);
  PlaceTexel(1, x1, y1, tu1, tv1);
  PlaceTexel(2, x2, y2, tu2, tv2);
  PlaceTexel(3, x3, y3, tu3, tv3);
  BRSL_DrawTexturedPoly(texture, 4, pipeline);
}

void BRSL_CALL BRSL_DrawTexture(const BRSL_SurfaceDesc *texture, int32_t x, int32_t y,
                                const TPD_Pipeline *pipeline) {
  DrawTexture(instance.canvas, Work(), texture, x, y, pipeline);
}

void BRSL_CALL BRSL_DrawSpritePoly(const BRSL_SurfaceDesc *texture, int32_t count,
                                   const TPD_Pipeline *pipeline) {
  DrawSpritePoly(instance.canvas, Work(), texture, count, pipeline);
}

void BRSL_CALL BRSL_DrawSpriteQuad(const BRSL_SurfaceDesc *texture, int32_t x0, int32_t y0,
                                   int32_t tu0, int32_t tv0, int32_t x1, int32_t y1, int32_t tu1,
                                   int32_t tv1, int32_t x2, int32_t y2, int32_t tu2, int32_t tv2,
                                   int32_t x3, int32_t y3, int32_t tu3, int32_t tv3,
                                   const TPD_Pipeline *pipeline, int32_t split) {
  const QuadVertex corners[] = {
      {x0, y0, tu0, tv0}, {x1, y1, tu1, tv1}, {x2, y2, tu2, tv2}, {x3, y3, tu3, tv3}};
  DrawSpriteCorners(texture, corners, nullptr, pipeline, split);
}

void BRSL_CALL BRSL_DrawSpriteRGBQuad(const BRSL_SurfaceDesc *texture, int32_t x0, int32_t y0,
                                      int32_t tu0, int32_t tv0, uint32_t colour0, int32_t x1,
                                      int32_t y1, int32_t tu1, int32_t tv1, uint32_t colour1,
                                      int32_t x2, int32_t y2, int32_t tu2, int32_t tv2,
                                      uint32_t colour2, int32_t x3, int32_t y3, int32_t tu3,
                                      int32_t tv3, uint32_t colour3, const TPD_Pipeline *pipeline,
                                      int32_t split) {
  const QuadVertex corners[] = {
      {x0, y0, tu0, tv0}, {x1, y1, tu1, tv1}, {x2, y2, tu2, tv2}, {x3, y3, tu3, tv3}};
  const uint32_t colours[] = {colour0, colour1, colour2, colour3};
  DrawSpriteCorners(texture, corners, colours, pipeline, split);
}
