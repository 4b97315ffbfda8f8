#include "scene/render.h"

#include <cstddef>
#include <cstdlib>

#include "core/ints.h"
#include "poly/fill.h"
#include "raster/boxes.h"
#include "raster/ellipses.h"

namespace brisal {

CapturedCommand::CapturedCommand(const SceneWork &work, const Scene_Record &record, int32_t dx,
                                 int32_t dy)
    : work_(work), record_(record), dx_(dx), dy_(dy) {}

CapturedCommand::Point CapturedCommand::Place(int32_t x, int32_t y) const {
  const Viewport &view = work_.canvas.viewport;
  return {Wrap(int64_t{x} - dx_ + view.left), Wrap(int64_t{y} - dy_ + view.top)};
}

// Hosts may lay out records with more vertices than the writers store.
const Scene_Vertex &CapturedCommand::Vertex(int i) const {
  const auto *bytes = reinterpret_cast<const uint8_t *>(&record_);
  return reinterpret_cast<const Scene_Vertex *>(bytes + offsetof(Scene_Record, vertices))[i];
}

bool CapturedCommand::Shows(int64_t left, int64_t top, int64_t right, int64_t bottom) const {
  const Viewport &view = work_.canvas.viewport;
  return bottom > view.top && top < view.bottom && right > view.left && left < view.right;
}

bool CapturedCommand::IsVisible() const {
  const Point topLeft = Place(record_.left, record_.top);
  const Point bottomRight = Place(record_.right, record_.bottom);
  return Shows(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y);
}

void CapturedCommand::RenderBox() const {
  const Point a = At(0);
  const Point b = At(1);
  if (!Shows(a.x, a.y, b.x, b.y)) return;
  DrawBox(work_.canvas, a.x, a.y, b.x, b.y, Vertex(0).colour, record_.flags);
}

void CapturedCommand::RenderShadeBox() const {
  const Point a = At(0);
  const Point b = At(2);
  if (!Shows(a.x, a.y, b.x, b.y)) return;
  DrawShadeBox(work_.canvas, work_.texture.spans, a.x, a.y, b.x, b.y,
               {Vertex(0).colour, Vertex(1).colour, Vertex(2).colour, Vertex(3).colour},
               record_.flags);
}

void CapturedCommand::RenderRound(Point centre, int64_t rx, int64_t ry) const {
  const int64_t cx = centre.x;
  const int64_t cy = centre.y;
  if (!Shows(cx - rx, cy - ry, cx + rx, cy + ry)) return;
  // Radii have 32 bits, in which 2^31 is below 0.
  DrawEllipse(work_.canvas, work_.quarter, work_.texture.spans, {cx, cy, Wrap(rx), Wrap(ry)},
              Vertex(0).colour, record_.flags);
}

void CapturedCommand::RenderCircle() const {
  const Point centre = At(0);
  const int64_t r = std::abs(int64_t{Wrap(int64_t{At(1).x} - centre.x)});
  RenderRound(centre, r, r);
}

void CapturedCommand::RenderEllipse() const {
  const Point centre = At(0);
  const Point corner = At(1);
  RenderRound(centre, std::abs(int64_t{Wrap(int64_t{corner.x} - centre.x)}),
              std::abs(int64_t{Wrap(int64_t{corner.y} - centre.y)}));
}

// Puts the record's vertices with all they carry into the vertex list; how many there are.
int CapturedCommand::PlaceVertices() const {
  if (record_.vertexCount > VertexList::kSlots) return 0;
  VertexList &list = work_.texture.vertices;
  for (int i = 0; i < record_.vertexCount; ++i) {
    const Point point = At(i);
    list.Place(i, point.x, point.y);
  }
  return record_.vertexCount;
}

void CapturedCommand::RenderFlatPoly() const {
  const TextureWork &work = work_.texture;
  const int count = PlaceVertices();
  DrawFlatPoly(work_.canvas, work.spans, work.vertices, count, Vertex(0).colour, record_.flags);
}

void CapturedCommand::RenderGouraudPoly() const {
  const TextureWork &work = work_.texture;
  const int count = PlaceVertices();
  for (int i = 0; i < count; ++i) work.vertices.colour[i] = Vertex(i).colour;
  DrawGouraudPoly(work_.canvas, work.spans, work.vertices, count, record_.flags);
}

void CapturedCommand::RenderTexturedPoly(const Surface *texture, const Pipeline *pipeline) const {
  const int count = PlaceVertices();
  for (int i = 0; i < count; ++i) {
    work_.texture.vertices.u[i] = Vertex(i).tu;
    work_.texture.vertices.v[i] = Vertex(i).tv;
  }
  DrawTexturedPoly(work_.canvas, work_.texture, texture, count, pipeline);
}

// The first vertex alone says on which line the strip lies.
CapturedCommand::Strip CapturedCommand::StripAlong(Axis axis) const {
  const Point a = At(0);
  const Point b = At(1);
  return axis == Axis::kRow ? Strip{a.x, b.x, a.y} : Strip{a.y, b.y, a.x};
}

bool CapturedCommand::ShowsStrip(Axis axis, const Strip &strip, int64_t end) const {
  const int64_t next = int64_t{strip.line} + 1;
  return axis == Axis::kRow ? Shows(strip.place0, strip.line, end, next)
                            : Shows(strip.line, strip.place0, next, end);
}

void CapturedCommand::RenderGouraudStrip(Axis axis) const {
  const Strip strip = StripAlong(axis);
  if (!ShowsStrip(axis, strip, strip.place1)) return;
  DrawGouraudStrip(work_.canvas, axis, strip.place0, Vertex(0).colour, strip.place1,
                   Vertex(1).colour, strip.line);
}

void CapturedCommand::RenderTextureStrip(Axis axis, const Surface *texture) const {
  const Strip strip = StripAlong(axis);
  // A row that ends on the viewport's left edge counts: given backwards, it begins there.
  const int64_t end = int64_t{strip.place1} + (axis == Axis::kRow ? 1 : 0);
  if (!ShowsStrip(axis, strip, end)) return;
  DrawTextureStrip(work_.canvas, axis, texture, strip.place0, {Vertex(0).tu, Vertex(0).tv},
                   strip.place1, {Vertex(1).tu, Vertex(1).tv}, strip.line);
}

}  // namespace brisal
