#include "brisal/brisal.h"
#include "collide/compare.h"
#include "collide/edge_buffer.h"
#include "collide/span_lists.h"
#include "collide/textured_list.h"
#include "exports/instance.h"

using namespace brisal;

void BRSL_CALL CreateSpanCollision_Polygon(const BRSL_VertexBuffer *vertices, int32_t count,
                                           BRSL_CollisionSpans *list) {
  if (vertices != nullptr && list != nullptr) ListPolygon(*vertices, count, list);
}

void BRSL_CALL CreateSpanCollision_Line(BRSL_CollisionSpans *list, int32_t x1, int32_t y1,
                                        int32_t x2, int32_t y2) {
  if (list != nullptr) ListLine(list, x1, y1, x2, y2);
}

void BRSL_CALL CreateSpanCollision_Ellipse(BRSL_CollisionSpans *list, int32_t cx, int32_t cy,
                                           int32_t rx, int32_t ry) {
  if (list != nullptr) ListEllipse(instance.quarterCircle, list, cx, cy, rx, ry);
}

void BRSL_CALL CreateSpanCollision_Rect(BRSL_CollisionSpans *list, int32_t x1, int32_t y1,
                                        int32_t x2, int32_t y2) {
  if (list != nullptr) ListRectangle(list, x1, y1, x2, y2);
}

void BRSL_CALL BRSL_SpanBufferCollisionPolygon(const BRSL_VertexBuffer *vertices, int32_t count,
                                               BRSL_TexturedSpans *list, uint32_t maskColour) {
  if (vertices == nullptr || list == nullptr) return;
  ListTexturedPolygon(*vertices, count, instance.source, maskColour, list);
}

int32_t BRSL_CALL BRSL_CompareFilledToTexturedSpans(const BRSL_CollisionSpans *filled,
                                                    const BRSL_TexturedSpans *textured) {
  return filled != nullptr && textured != nullptr && FilledMeetsTextured(*filled, *textured);
}

int32_t BRSL_CALL BRSL_CompareTexturedSpans(const BRSL_TexturedSpans *a,
                                            const BRSL_TexturedSpans *b) {
  return a != nullptr && b != nullptr && TexturedMeetsTextured(*a, *b);
}

void BRSL_CALL BRSL_DrawSpansEdges(const BRSL_TexturedSpans *list) {
  if (list != nullptr) DrawSpanEnds(instance.canvas, *list);
}

int32_t BRSL_CALL BRSL_GetVertexBufferModulo(void) { return sizeof(BRSL_VertexBuffer::x); }

void BRSL_CALL Shape_Set_Buffers(int32_t *rowTable, void *nodePool) {
  instance.edges = {rowTable, static_cast<uint8_t *>(nodePool)};
}

void BRSL_CALL Shape_AddVert(float x, int32_t row) { AddCrossing(instance.edges, x, row); }

void BRSL_CALL Shape_BufferEdge(float x1, float y1, float x2, float y2, int32_t firstRow,
                                int32_t endRow) {
  AddEdge(instance.edges, x1, y1, x2, y2, firstRow, endRow);
}

void BRSL_CALL BRSL_Draw_Shape_Span_Buffer(int32_t *rowHeads, const void *, uint32_t colour,
                                           int32_t mode) {
  if (rowHeads == nullptr) return;
  DrawEdges(instance.canvas, instance.edges.nodes, rowHeads, colour, mode);
}

int32_t BRSL_CALL CreateSpanCollision_ShapeSpanBuffer(BRSL_CollisionSpans *list, int32_t left,
                                                      int32_t top, int32_t right, int32_t bottom,
                                                      int32_t *rowTable, const void *) {
  if (list == nullptr || rowTable == nullptr) return 0;
  return ListEdges(instance.edges.nodes, {left, top, right, bottom}, rowTable + 1, list);
}
