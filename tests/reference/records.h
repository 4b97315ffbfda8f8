// Records in the host's memory: captured scenes, lists of spans, vertex transforms.
#pragma once

#include <cstdint>

#include "brisal/brisal.h"

namespace reference {

// 32-bit sums that wrap around.
constexpr int32_t Add(int32_t a, int32_t b) {
  return static_cast<int32_t>(static_cast<uint32_t>(a) + static_cast<uint32_t>(b));
}
constexpr int32_t Subtract(int32_t a, int32_t b) {
  return static_cast<int32_t>(static_cast<uint32_t>(a) - static_cast<uint32_t>(b));
}

// What the writer of a command does with its arguments after the record, of which kinds tells one
// by one: f flags, A B host words, I image, 1 2 3 shape words, a alpha, x y a point (X Y in floats),
// s a size, c a colour, u v a texel, b the bounds mode; others are not stored.
void Capture(Scene_Record *record, int code, const char *kinds, const int32_t *args);
void PokeBoundingBox(Scene_Record *record, int32_t x1, int32_t y1, int32_t x2, int32_t y2);
void PokeEdgeVectors(Scene_EdgeVectors *edge, float x1, float y1, float x2, float y2);
void PlaceVertex(Scene_Vertex *vertex, int32_t x, int32_t y);

void ListPolygon(const BRSL_VertexBuffer *corners, int32_t count, BRSL_CollisionSpans *list);
void ListLine(BRSL_CollisionSpans *list, int32_t x1, int32_t y1, int32_t x2, int32_t y2);
void ListEllipse(BRSL_CollisionSpans *list, int32_t cx, int32_t cy, int32_t rx, int32_t ry);
void ListRect(BRSL_CollisionSpans *list, int32_t x1, int32_t y1, int32_t x2, int32_t y2);
int32_t FilledMeetsTextured(const BRSL_CollisionSpans *filled, const BRSL_TexturedSpans *textured);
int32_t TexturedMeetsTextured(const BRSL_TexturedSpans *a, const BRSL_TexturedSpans *b);

void RotateList(const BRSL_Transform *transform, const void *source, int32_t sourceStride,
                void *destination, int32_t destinationStride, int32_t count);
void RotateListToCamera(const BRSL_Transform *camera, const BRSL_Transform *object,
                        const void *source, int32_t sourceStride, void *destination,
                        int32_t destinationStride, int32_t count);
void RotateListXyz(const void *source, int32_t sourceStride, void *destination,
                   int32_t destinationStride, float tx, float ty, float tz, float ax, float ay,
                   float az, int32_t count);
void RotateListZyx(const void *source, int32_t sourceStride, void *destination,
                   int32_t destinationStride, float tx, float ty, float tz, float ax, float ay,
                   float az, int32_t count);
void Rotate2DList(const void *source, int32_t sourceStride, void *destination,
                  int32_t destinationStride, float ox, float oy, float angle, float sx, float sy,
                  int32_t count);
void LerpList(const void *a, int32_t strideA, const void *b, int32_t strideB, void *destination,
              int32_t destinationStride, int32_t count, float t);

}  // namespace reference
