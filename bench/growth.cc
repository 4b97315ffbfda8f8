#include "bench/growth.h"

#include <cmath>
#include <memory>
#include <numbers>

#include "bench/canvas.h"
#include "bench/contenders.h"

namespace brisal::bench {
namespace {

// A target that is wide and high enough for the largest shapes; it fits into any canvas of 32 bits.
constexpr int kWidth = 2080;
constexpr int kHeight = 1000;

Contender On(const Canvas &canvas, std::function<void(unsigned)> draw) {
  return {"ours", std::move(draw), [canvas] {
            canvas.Target();
            BRSL_SetBuffer(canvas.pixels, kWidth * canvas.bytesPerPixel, canvas.format);
            BRSL_SetBufferViewPort(0, 0, kWidth, kHeight);
            BRSL_SetMMXState(1);
          }};
}

Canvas CanvasOf(int format) { return Canvas::Of(Job{Kind::kBox, 0, 0, format, DRAW_SOLID}); }

// Work in pixels: the area of the shape.
Series Boxes(const char *name, int format, int flags) {
  constexpr int kRows = 32;
  Series series = {name, "pixel", "pixels", {}};
  for (int width = 1; width <= 2048; width *= 2) {
    series.steps.push_back({static_cast<double>(width * kRows), [=] {
                              return On(CanvasOf(format), [=](unsigned i) {
                                const int y = static_cast<int>(i & 31);
                                BRSL_Box(8, y, 8 + width, y + kRows, kInk, flags);
                              });
                            }});
  }
  return series;
}

Series Triangles(const char *name, Job job) {
  Series series = {name, "pixel", "pixels", {}};
  for (const int size : {2, 4, 8, 16, 32, 64, 125, 250, 500, 950}) {
    job.width = job.height = size;
    const auto [a, b, c] = CornersOf(job);
    const double area = std::abs((b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y)) / 2.0;
    series.steps.push_back({area, [job] {
                              const Canvas canvas = CanvasOf(job.format);
                              return On(canvas, Drawing(job, canvas));
                            }});
  }
  return series;
}

Contender Polygon(int count) {
  constexpr int kRadius = 8;
  BRSL_VertexBuffer corners{};
  for (int k = 0; k < count; ++k) {
    const double angle = 2 * std::numbers::pi * k / count;
    corners.x[k] = static_cast<int32_t>(std::lround(kRadius * std::cos(angle)));
    corners.y[k] = static_cast<int32_t>(std::lround(kRadius * std::sin(angle)));
  }
  struct List {
    BRSL_CollisionSpans head;
    BRSL_CollisionSpan rows[2 * kRadius];
  };
  return {"ours", [=, list = std::make_shared<List>()](unsigned) {
            CreateSpanCollision_Polygon(&corners, count, &list->head);
          }};
}

Series Polygons() {
  Series series = {"span lists of polygons, 16 rows", "vertex", "vertices", {}};
  for (int count = 3; count <= 8; ++count) {
    series.steps.push_back({static_cast<double>(count), [count] { return Polygon(count); }});
  }
  return series;
}

Series Fonts(const char *name, Kind kind) {
  Series series = {name, "character", "characters", {}};
  for (int count = 16; count <= 65536; count *= 4) {
    series.steps.push_back({static_cast<double>(count), [=] {
                              const Job job = {kind, count, 1, BRSL_FORMAT_X32, DRAW_SOLID};
                              return On(CanvasOf(job.format), Drawing(job, CanvasOf(job.format)));
                            }});
  }
  return series;
}

Contender Scene(int count) {
  const auto records = std::make_shared<std::vector<Scene_Record>>(count);
  for (int k = 0; k < count; ++k) {
    const int x = k * 37 % 1900;
    const int y = k * 91 % 900;
    Scene_Write_Capture_Box(&(*records)[static_cast<size_t>(k)], BRSL_FILLED, x, y, x + 16, y + 16,
                            0, kInk);
  }
  return On(CanvasOf(BRSL_FORMAT_X32), [records](unsigned) {
    for (const Scene_Record &record : *records) Scene_Render_Captured_Box(&record, 0, 0);
  });
}

Series Scenes() {
  Series series = {"captured boxes of 16 pixels", "command", "commands", {}};
  for (int count = 10; count <= 100000; count *= 10) {
    series.steps.push_back({static_cast<double>(count), [count] { return Scene(count); }});
  }
  return series;
}

}  // namespace

std::vector<Series> AllSeries() {
  constexpr int kX32 = BRSL_FORMAT_X32, k565 = BRSL_FORMAT_565;
  return {Boxes("solid boxes, 32 bits", kX32, BRSL_FILLED),
          Boxes("solid boxes, 5:6:5", k565, BRSL_FILLED),
          Boxes("alpha boxes, 32 bits", kX32, BRSL_FILLED | DRAW_ALPHA),
          Boxes("alpha boxes, 24 bits", BRSL_FORMAT_RGB, BRSL_FILLED | DRAW_ALPHA),
          Triangles("flat triangles, 32 bits", {Kind::kTriangle, 0, 0, kX32, DRAW_SOLID}),
          Triangles("shaded triangles, 32 bits", {Kind::kGouraudTriangle, 0, 0, kX32, DRAW_SOLID}),
          Triangles("textured triangles, 32 bits",
                    {Kind::kTexturedTriangle, 0, 0, kX32, DRAW_SOLID, kX32}),
          Triangles("textured triangles, 5:6:5",
                    {Kind::kTexturedTriangle, 0, 0, k565, DRAW_SOLID, k565}),
          Polygons(),
          Scenes(),
          Fonts("fonts loaded", Kind::kFontLoad),
          Fonts("fonts saved", Kind::kFontSave)};
}

Growth Measure(const Series &series, int rounds) {
  Growth growth = {series.name, series.unit, series.units, {}};
  for (const Series::Step &step : series.steps) {
    growth.steps.push_back({step.size, Measure(step.make(), rounds)});
  }
  return growth;
}

}  // namespace brisal::bench
