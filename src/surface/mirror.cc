#include <algorithm>

#include "pixel/format.h"
#include "raster/pixels.h"
#include "surface/filters.h"

namespace brisal {
namespace {

struct Point {
  int64_t x;
  int64_t y;
};

bool Before(Point a, Point b) { return a.y != b.y ? a.y < b.y : a.x < b.x; }

}  // namespace

void MirrorRectangle(const Canvas &canvas, const int32_t (&rectangle)[4], bool horizontal,
                     bool vertical) {
  const auto [x1, y1, x2, y2] = rectangle;
  const Viewport &view = canvas.viewport;
  const Buffer &target = canvas.target;
  if ((!horizontal && !vertical) || !IsFormat(target.format)) return;
  const auto read = [&](Point p) {
    return ReadPixel(target, static_cast<int32_t>(p.x), static_cast<int32_t>(p.y));
  };
  const auto write = [&](Point p, uint32_t colour) {
    PokeUnclipped(target, static_cast<int32_t>(p.x), static_cast<int32_t>(p.y), colour);
  };
  for (int64_t y = std::max(y1, view.top); y < std::min(y2, view.bottom); ++y) {
    for (int64_t x = std::max(x1, view.left); x < std::min(x2, view.right); ++x) {
      const Point here = {x, y};
      const Point there = {horizontal ? int64_t{x1} + x2 - 1 - x : x,
                           vertical ? int64_t{y1} + y2 - 1 - y : y};
      if (!view.Contains(there.x, there.y)) {
        write(here, 0);
      } else if (Before(here, there)) {
        const uint32_t colour = read(here);
        write(here, read(there));
        write(there, colour);
      }
    }
  }
}

}  // namespace brisal
