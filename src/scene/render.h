#pragma once

#include <cstdint>

#include "brisal/brisal.h"
#include "core/canvas.h"
#include "core/quarter_circle.h"
#include "poly/textured.h"
#include "surface/strips.h"

namespace brisal {

// What drawing captured commands works with.
struct SceneWork {
  const Canvas &canvas;
  const QuarterCircle &quarter;
  TextureWork texture;  // its spans and vertices serve every shape
};

// A captured command as it lies on the target: scene point (dx, dy) lands on the viewport's top left
// corner. Places wrap around at 32 bits, so distances are those of the scene.
class CapturedCommand {
 public:
  CapturedCommand(const SceneWork &work, const Scene_Record &record, int32_t dx, int32_t dy);

  // Whether the captured extent meets the viewport.
  bool IsVisible() const;

  // Each draws the record as what it names, whatever the record's code.
  void RenderBox() const;
  void RenderShadeBox() const;
  void RenderCircle() const;
  void RenderEllipse() const;
  void RenderFlatPoly() const;
  void RenderGouraudPoly() const;
  void RenderTexturedPoly(const Surface *texture, const Pipeline *pipeline) const;
  void RenderGouraudStrip(Axis axis) const;
  void RenderTextureStrip(Axis axis, const Surface *texture) const;

 private:
  struct Point {
    int32_t x;
    int32_t y;
  };
  struct Strip {
    int32_t place0;
    int32_t place1;
    int32_t line;
  };

  Point Place(int32_t x, int32_t y) const;
  const Scene_Vertex &Vertex(int i) const;
  Point At(int i) const { return Place(Vertex(i).x, Vertex(i).y); }
  bool Shows(int64_t left, int64_t top, int64_t right, int64_t bottom) const;
  void RenderRound(Point centre, int64_t rx, int64_t ry) const;
  int PlaceVertices() const;
  Strip StripAlong(Axis axis) const;
  bool ShowsStrip(Axis axis, const Strip &strip, int64_t end) const;

  SceneWork work_;
  const Scene_Record &record_;
  int32_t dx_;
  int32_t dy_;
};

}  // namespace brisal
