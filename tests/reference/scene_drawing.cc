// Captured scenes drawn by the primitives that they were captured for.
#include <cstdlib>

#include "reference/records.h"
#include "reference/reference.h"

namespace reference {

// Vertex k of a record, moved to the target.
Scene_Vertex Reference::Mapped(const Scene_Record *r, int k, int32_t dx, int32_t dy) const {
  Scene_Vertex vertex = r->vertices[k];
  vertex.x = Add(Subtract(vertex.x, dx), viewport.left);
  vertex.y = Add(Subtract(vertex.y, dy), viewport.top);
  return vertex;
}

// Whether an extent reaches into the viewport.
bool Reference::Reaches(int64_t left, int64_t top, int64_t right, int64_t bottom) const {
  return bottom > viewport.top && top < viewport.bottom && right > viewport.left &&
         left < viewport.right;
}

int32_t Reference::ObjectVisible(const Scene_Record *r, int32_t dx, int32_t dy) const {
  const auto x = [&](int32_t value) { return Add(Subtract(value, dx), viewport.left); };
  const auto y = [&](int32_t value) { return Add(Subtract(value, dy), viewport.top); };
  return Reaches(x(r->left), y(r->top), x(r->right), y(r->bottom));
}

void Reference::RenderBox(const Scene_Record *r, int32_t dx, int32_t dy) {
  const Scene_Vertex a = Mapped(r, 0, dx, dy), b = Mapped(r, 1, dx, dy);
  if (Reaches(a.x, a.y, b.x, b.y)) Box(a.x, a.y, b.x, b.y, a.colour, r->flags);
}

void Reference::RenderShadeBox(const Scene_Record *r, int32_t dx, int32_t dy) {
  const Scene_Vertex a = Mapped(r, 0, dx, dy), b = Mapped(r, 2, dx, dy);
  if (!Reaches(a.x, a.y, b.x, b.y)) return;
  ShadeBox(a.x, a.y, b.x, b.y, a.colour, r->vertices[1].colour, b.colour, r->vertices[3].colour,
           r->flags);
}

void Reference::RenderCircle(const Scene_Record *r, int32_t dx, int32_t dy) {
  const Scene_Vertex centre = Mapped(r, 0, dx, dy), corner = Mapped(r, 1, dx, dy);
  const int64_t radius = std::abs(int64_t{Subtract(corner.x, centre.x)});
  if (!Reaches(centre.x - radius, centre.y - radius, centre.x + radius, centre.y + radius)) return;
  Circle(centre.x, centre.y, static_cast<int32_t>(radius), centre.colour, r->flags);
}

void Reference::RenderEllipse(const Scene_Record *r, int32_t dx, int32_t dy) {
  const Scene_Vertex centre = Mapped(r, 0, dx, dy), corner = Mapped(r, 1, dx, dy);
  const int64_t rx = std::abs(int64_t{Subtract(corner.x, centre.x)});
  const int64_t ry = std::abs(int64_t{Subtract(corner.y, centre.y)});
  if (!Reaches(centre.x - rx, centre.y - ry, centre.x + rx, centre.y + ry)) return;
  Ellipse(centre.x, centre.y, static_cast<int32_t>(rx), static_cast<int32_t>(ry), centre.colour,
          r->flags);
}

// Stores a polygon's points; false where the vertex list has no room for them.
bool Reference::SetCapturedVertices(const Scene_Record *r, int32_t dx, int32_t dy) {
  for (int i = 0; r->vertexCount <= 8 && i < r->vertexCount; i++) {
    const Scene_Vertex vertex = Mapped(r, i, dx, dy);
    SetVertex(i, vertex.x, vertex.y);
  }
  return r->vertexCount <= 8;
}

void Reference::RenderPolygon(const Scene_Record *r, int32_t dx, int32_t dy) {
  SetCapturedVertices(r, dx, dy);
  DrawFlatPoly(r->vertexCount, r->vertices[0].colour, r->flags);
}

void Reference::RenderPolygonG(const Scene_Record *r, int32_t dx, int32_t dy) {
  if (!SetCapturedVertices(r, dx, dy)) return;
  for (int i = 0; i < r->vertexCount; i++) vertices_[i].colour = r->vertices[i].colour;
  DrawGouraudPoly(r->vertexCount, r->flags);
}

void Reference::RenderPolygonT(const Scene_Record *r, int32_t dx, int32_t dy,
                               const BRSL_SurfaceDesc *texture, const TPD_Pipeline *p) {
  if (!SetCapturedVertices(r, dx, dy)) return;
  for (int i = 0; i < r->vertexCount; i++) {
    vertices_[i].u = r->vertices[i].tu;
    vertices_[i].v = r->vertices[i].tv;
  }
  DrawTexturedPoly(texture, r->vertexCount, p);
}

void Reference::RenderGouraudStripH(const Scene_Record *r, int32_t dx, int32_t dy) {
  const Scene_Vertex a = Mapped(r, 0, dx, dy), b = Mapped(r, 1, dx, dy);
  if (!Reaches(a.x, int64_t{a.y}, b.x, int64_t{a.y} + 1)) return;
  HoriGouraudStrip(a.x, a.colour, b.x, b.colour, a.y);
}

void Reference::RenderGouraudStripV(const Scene_Record *r, int32_t dx, int32_t dy) {
  const Scene_Vertex a = Mapped(r, 0, dx, dy), b = Mapped(r, 1, dx, dy);
  if (!Reaches(a.x, a.y, int64_t{a.x} + 1, b.y)) return;
  VertGouraudStrip(a.y, a.colour, b.y, b.colour, a.x);
}

// The right end may touch the viewport's left edge.
void Reference::RenderTextureStripH(const Scene_Record *r, int32_t dx, int32_t dy,
                                    const BRSL_SurfaceDesc *texture) {
  const Scene_Vertex a = Mapped(r, 0, dx, dy), b = Mapped(r, 1, dx, dy);
  if (!Reaches(a.x, a.y, int64_t{b.x} + 1, int64_t{a.y} + 1)) return;
  HoriTextureStrip(texture, a.x, a.tu, a.tv, b.x, b.tu, b.tv, a.y);
}

void Reference::RenderTextureStripV(const Scene_Record *r, int32_t dx, int32_t dy,
                                    const BRSL_SurfaceDesc *texture) {
  const Scene_Vertex a = Mapped(r, 0, dx, dy), b = Mapped(r, 1, dx, dy);
  if (!Reaches(a.x, a.y, int64_t{a.x} + 1, b.y)) return;
  VertTextureStrip(texture, a.y, a.tu, a.tv, b.y, b.tu, b.tv, a.x);
}

}  // namespace reference
