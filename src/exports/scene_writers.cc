#include <cmath>

#include "brisal/brisal.h"
#include "core/ints.h"
#include "scene/capture.h"

using namespace brisal;

void BRSL_CALL Scene_Write_Capture_SpriteNC(Scene_Record *record, int32_t sprite, int32_t x,
                                            int32_t y, int32_t hostA) {
  Capture(record, SCENE_SPRITE).Image(sprite).HostA(hostA).Vertex(x, y);
}

void BRSL_CALL Scene_Write_Capture_Dot(Scene_Record *record, int32_t flags, float x, float y, float,
                                       uint32_t colour) {
  const int32_t column = Truncate(std::floor(x));
  const int32_t row = Truncate(std::floor(y));
  Capture(record, SCENE_DOT, flags)
      .Extent(Bounds::At(column, row, 1, 1))
      .Vertex(column, row, colour);
}

void BRSL_CALL Scene_Write_Capture_Box(Scene_Record *record, int32_t flags, int32_t x1, int32_t y1,
                                       int32_t x2, int32_t y2, int32_t, uint32_t colour) {
  const Bounds box = Bounds::Between(x1, y1, x2, y2);
  Capture(record, SCENE_BOX, flags)
      .Extent(box)
      .Vertex(box.left, box.top, colour)
      .Vertex(box.right, box.bottom);
}

void BRSL_CALL Scene_Write_Capture_ShadeBox(Scene_Record *record, int32_t flags, int32_t x1,
                                            int32_t y1, int32_t x2, int32_t y2, int32_t,
                                            uint32_t colour0, uint32_t colour1, uint32_t colour2,
                                            uint32_t colour3) {
  const Bounds box = Bounds::Between(x1, y1, x2, y2);
  Capture(record, SCENE_SHADE_BOX, flags)
      .Extent(box)
      .Vertex(box.left, box.top, colour0)
      .Vertex(box.right, box.top, colour1)
      .Vertex(box.right, box.bottom, colour2)
      .Vertex(box.left, box.bottom, colour3);
}

void BRSL_CALL Scene_Write_Capture_Circle(Scene_Record *record, int32_t flags, int32_t cx,
                                          int32_t cy, int32_t hostA, int32_t radius,
                                          uint32_t colour) {
  const Bounds box = Bounds::Around(cx, cy, radius, radius);
  Capture(record, SCENE_CIRCLE, flags)
      .HostA(hostA)
      .Extent(box)
      .Vertex(cx, cy, colour)
      .Vertex(box.right, box.bottom);
}

void BRSL_CALL Scene_Write_Capture_Ellipse(Scene_Record *record, int32_t flags, int32_t cx,
                                           int32_t cy, int32_t hostA, int32_t rx, int32_t ry,
                                           uint32_t colour) {
  const Bounds box = Bounds::Around(cx, cy, rx, ry);
  Capture(record, SCENE_ELLIPSE, flags)
      .HostA(hostA)
      .Extent(box)
      .Vertex(cx, cy, colour)
      .Vertex(box.right, box.bottom);
}

void BRSL_CALL Scene_Write_Capture_Line(Scene_Record *record, int32_t flags, int32_t x1, int32_t y1,
                                        int32_t x2, int32_t y2, int32_t hostA, uint32_t colour) {
  Capture(record, SCENE_LINE, flags).HostA(hostA).Vertex(x1, y1, colour).Vertex(x2, y2);
}

void BRSL_CALL Scene_Write_Capture_Shape(Scene_Record *record, int32_t flags, int32_t image,
                                         int32_t x, int32_t y, int32_t hostA, int32_t shape1,
                                         int32_t shape2, int32_t shape3, uint32_t colour) {
  Capture(record, SCENE_SHAPE, flags)
      .HostA(hostA)
      .Image(image)
      .Shape(shape1, shape2, shape3)
      .Vertex(x, y, colour);
}

void BRSL_CALL Scene_Write_Capture_Image(Scene_Record *record, int32_t flags, int32_t image,
                                         int32_t x, int32_t y, int32_t hostA, int32_t width,
                                         int32_t height) {
  Capture(record, SCENE_IMAGE, flags)
      .HostA(hostA)
      .Image(image)
      .Extent(Bounds::At(x, y, width, height))
      .Vertex(x, y);
}

void BRSL_CALL Scene_Write_Capture_ImageBB(Scene_Record *record, int32_t flags, int32_t hostB,
                                           int32_t image, int32_t x, int32_t y, int32_t hostA,
                                           int32_t width, int32_t height) {
  Capture(record, SCENE_IMAGE_BB, flags)
      .HostA(hostA)
      .HostB(hostB)
      .Image(image)
      .Extent(Bounds::At(x, y, width, height))
      .Vertex(x, y);
}

void BRSL_CALL Scene_Write_Capture_Image_AlphaBlend(Scene_Record *record, int32_t flags,
                                                    int32_t image, int32_t x, int32_t y,
                                                    int32_t hostA, int32_t alpha, int32_t width,
                                                    int32_t height) {
  Capture(record, SCENE_IMAGE_ALPHA, flags)
      .HostA(hostA)
      .Image(image)
      .Alpha(alpha)
      .Extent(Bounds::At(x, y, width, height))
      .Vertex(x, y);
}

void BRSL_CALL Scene_Write_Capture_Text(Scene_Record *record, int32_t flags, int32_t hostB, int32_t,
                                        int32_t, int32_t x, int32_t y, int32_t hostA, int32_t width,
                                        int32_t height, uint32_t colour) {
  Capture(record, SCENE_TEXT, flags)
      .HostA(hostA)
      .HostB(hostB)
      .Extent(Bounds::At(x, y, width, height))
      .Vertex(x, y, colour);
}

void BRSL_CALL Scene_Write_Capture_Tri(Scene_Record *record, int32_t flags, int32_t x0, int32_t y0,
                                       int32_t x1, int32_t y1, int32_t x2, int32_t y2, int32_t,
                                       uint32_t colour, int32_t boundsMode) {
  Capture(record, SCENE_TRI, flags)
      .Vertex(x0, y0, colour)
      .Vertex(x1, y1, colour)
      .Vertex(x2, y2, colour)
      .ExtentOfVertices(boundsMode);
}

void BRSL_CALL Scene_Write_Capture_TriG(Scene_Record *record, int32_t flags, int32_t x0, int32_t y0,
                                        uint32_t colour0, int32_t x1, int32_t y1, uint32_t colour1,
                                        int32_t x2, int32_t y2, uint32_t colour2, int32_t,
                                        int32_t boundsMode) {
  Capture(record, SCENE_TRI_G, flags)
      .Vertex(x0, y0, colour0)
      .Vertex(x1, y1, colour1)
      .Vertex(x2, y2, colour2)
      .ExtentOfVertices(boundsMode);
}

void BRSL_CALL Scene_Write_Capture_TriT(Scene_Record *record, int32_t flags, int32_t x0, int32_t y0,
                                        int32_t tu0, int32_t tv0, int32_t x1, int32_t y1,
                                        int32_t tu1, int32_t tv1, int32_t x2, int32_t y2,
                                        int32_t tu2, int32_t tv2, int32_t, int32_t texture,
                                        int32_t boundsMode) {
  Capture(record, SCENE_POLYGON_T, flags)
      .Image(texture)
      .Vertex(x0, y0, tu0, tv0)
      .Vertex(x1, y1, tu1, tv1)
      .Vertex(x2, y2, tu2, tv2)
      .ExtentOfVertices(boundsMode);
}

void BRSL_CALL Scene_Write_Capture_Quad(Scene_Record *record, int32_t flags, int32_t x0, int32_t y0,
                                        int32_t x1, int32_t y1, int32_t x2, int32_t y2, int32_t x3,
                                        int32_t y3, int32_t, uint32_t colour, int32_t boundsMode) {
  Capture(record, SCENE_QUAD, flags)
      .Vertex(x0, y0, colour)
      .Vertex(x1, y1, colour)
      .Vertex(x2, y2, colour)
      .Vertex(x3, y3, colour)
      .ExtentOfVertices(boundsMode);
}

void BRSL_CALL Scene_Write_Capture_QuadG(Scene_Record *record, int32_t flags, int32_t x0,
                                         int32_t y0, uint32_t colour0, int32_t x1, int32_t y1,
                                         uint32_t colour1, int32_t x2, int32_t y2, uint32_t colour2,
                                         int32_t x3, int32_t y3, uint32_t colour3, int32_t,
                                         int32_t boundsMode) {
  Capture(record, SCENE_QUAD_G, flags)
      .Vertex(x0, y0, colour0)
      .Vertex(x1, y1, colour1)
      .Vertex(x2, y2, colour2)
      .Vertex(x3, y3, colour3)
      .ExtentOfVertices(boundsMode);
}

void BRSL_CALL Scene_Write_Capture_QuadT(Scene_Record *record, int32_t flags, int32_t x0,
                                         int32_t y0, int32_t tu0, int32_t tv0, int32_t x1,
                                         int32_t y1, int32_t tu1, int32_t tv1, int32_t x2,
                                         int32_t y2, int32_t tu2, int32_t tv2, int32_t x3,
                                         int32_t y3, int32_t tu3, int32_t tv3, int32_t,
                                         int32_t texture, int32_t boundsMode) {
  Capture(record, SCENE_POLYGON_T, flags)
      .Image(texture)
      .Vertex(x0, y0, tu0, tv0)
      .Vertex(x1, y1, tu1, tv1)
      .Vertex(x2, y2, tu2, tv2)
      .Vertex(x3, y3, tu3, tv3)
      .ExtentOfVertices(boundsMode);
}

void BRSL_CALL Scene_Write_Capture_GouraudStripH(Scene_Record *record, int32_t flags, int32_t x1,
                                                 uint32_t colour1, int32_t x2, uint32_t colour2,
                                                 int32_t y, int32_t) {
  Capture(record, SCENE_GOURAUD_STRIP_H, flags)
      .Extent(Bounds::Row(x1, x2, y))
      .Vertex(x1, y, colour1)
      .Vertex(x2, y, colour2);
}

void BRSL_CALL Scene_Write_Capture_GouraudStripV(Scene_Record *record, int32_t flags, int32_t y1,
                                                 uint32_t colour1, int32_t y2, uint32_t colour2,
                                                 int32_t x, int32_t) {
  const Bounds box = Bounds::Column(x, y1, y2);
  Capture(record, SCENE_GOURAUD_STRIP_V, flags)
      .Extent(box)
      .Vertex(x, y1, colour1)
      .Vertex(box.right, y2, colour2);
}

void BRSL_CALL Scene_Write_Capture_TextureStripH(Scene_Record *record, int32_t flags, int32_t x1,
                                                 int32_t tu1, int32_t tv1, int32_t x2, int32_t tu2,
                                                 int32_t tv2, int32_t y, int32_t, int32_t texture) {
  Capture(record, SCENE_TEXTURE_STRIP_H, flags)
      .Image(texture)
      .Extent(Bounds::Row(x1, x2, y))
      .Vertex(x1, y, tu1, tv1)
      .Vertex(x2, y, tu2, tv2);
}

void BRSL_CALL Scene_Write_Capture_TextureStripV(Scene_Record *record, int32_t flags, int32_t y1,
                                                 int32_t tu1, int32_t tv1, int32_t y2, int32_t tu2,
                                                 int32_t tv2, int32_t x, int32_t, int32_t texture) {
  Capture(record, SCENE_TEXTURE_STRIP_V, flags)
      .Image(texture)
      .Extent(Bounds::Column(x, y1, y2))
      .Vertex(x, y1, tu1, tv1)
      .Vertex(x, y2, tu2, tv2);
}

void BRSL_CALL Scene_Write_Capture_Map(Scene_Record *record, int32_t flags, int32_t hostB,
                                       int32_t image, int32_t x, int32_t y, int32_t hostA,
                                       int32_t width, int32_t height) {
  Capture(record, SCENE_MAP, flags)
      .HostA(hostA)
      .HostB(hostB)
      .Image(image)
      .Extent(Bounds::At(x, y, width, height))
      .Vertex(x, y);
}

void BRSL_CALL Scene_Poke_Bounding_Box(Scene_Record *record, int32_t x1, int32_t y1, int32_t x2,
                                       int32_t y2) {
  if (record != nullptr) PlaceBounds(record, Bounds::Between(x1, y1, x2, y2));
}

void BRSL_CALL Scene_Poke_Edge_Vectors(Scene_EdgeVectors *edge, float x1, float y1, float x2,
                                       float y2) {
  if (edge != nullptr) *edge = EdgeVectors(x1, y1, x2, y2);
}

void BRSL_CALL SceneVert_iXYcombined(Scene_Vertex *vertex, int32_t x, int32_t y) {
  if (vertex != nullptr) PlaceVertex(vertex, x, y);
}

void BRSL_CALL SceneVert_iXYZ(void *, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t,
                              int32_t, int32_t, int32_t, int32_t, int32_t) {}

void BRSL_CALL SceneVert_iTransXYZ(void *, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t,
                                   int32_t, int32_t, int32_t, int32_t, int32_t, int32_t) {}

void BRSL_CALL SceneVert_iXYZUV(void *, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t,
                                int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t,
                                int32_t) {}
