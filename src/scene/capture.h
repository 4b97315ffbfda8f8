#pragma once

#include <cstdint>

#include "brisal/brisal.h"

namespace brisal {

// Extent of a command in the scene, right and bottom excluded.
struct Bounds {
  static Bounds Between(int32_t x1, int32_t y1, int32_t x2, int32_t y2);  // corners in either order
  static Bounds At(int32_t x, int32_t y, int32_t width, int32_t height);
  static Bounds Row(int32_t x1, int32_t x2, int32_t y);
  static Bounds Column(int32_t x, int32_t y1, int32_t y2);
  static Bounds Around(int32_t cx, int32_t cy, int32_t rx, int32_t ry);

  int32_t left;
  int32_t top;
  int32_t right;
  int32_t bottom;
};

void PlaceBounds(Scene_Record *record, const Bounds &bounds);
void PlaceVertex(Scene_Vertex *vertex, int32_t x, int32_t y);

// Fills a record step by step. What no step stores stays as the host left it; a null record is
// ignored.
class Capture {
 public:
  Capture(Scene_Record *record, int16_t code);
  Capture(Scene_Record *record, int16_t code, int32_t flags);

  Capture &HostA(int32_t word) { return Set(record_->hostA, word); }
  Capture &HostB(int32_t word) { return Set(record_->hostB, word); }
  Capture &Image(int32_t word) { return Set(record_->image, word); }
  Capture &Alpha(int32_t alpha) { return Set(record_->alpha, alpha); }
  Capture &Shape(int32_t word1, int32_t word2, int32_t word3);
  Capture &Extent(const Bounds &bounds);

  // The next vertex, and what it has beside its place.
  Capture &Vertex(int32_t x, int32_t y);
  Capture &Vertex(int32_t x, int32_t y, uint32_t colour);
  Capture &Vertex(int32_t x, int32_t y, int32_t tu, int32_t tv);

  // The extent of the vertices so far, where the host asks for it.
  void ExtentOfVertices(int32_t boundsMode);

 private:
  Capture &Set(int32_t &field, int32_t value) {
    field = value;
    return *this;
  }
  Scene_Vertex &Last() { return record_->vertices[record_->vertexCount - 1]; }

  Scene_Record ignored_;
  Scene_Record *record_;
};

// An edge and its normal, of length 1 or, where the edge has none, 0.
Scene_EdgeVectors EdgeVectors(float x1, float y1, float x2, float y2);

}  // namespace brisal
