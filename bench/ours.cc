#include "bench/contenders.h"

namespace brisal::bench {
namespace {

std::function<void(unsigned)> DrawTriangle(const Job &job) {
  const auto [a, b, c] = CornersOf(job);
  return [job, a = a, b = b, c = c](unsigned i) {
    const auto [x, y] = SpotOf(job, i);
    BRSL_Tri(x + a.x, y + a.y, x + b.x, y + b.y, x + c.x, y + c.y, kInk, job.mode);
  };
}

std::function<void(unsigned)> DrawGouraudTriangle(const Job &job) {
  const auto [a, b, c] = CornersOf(job);
  return [job, a = a, b = b, c = c](unsigned i) {
    const auto [x, y] = SpotOf(job, i);
    BRSL_TriG(x + a.x, y + a.y, kCornerColours[0], x + b.x, y + b.y, kCornerColours[1], x + c.x,
              y + c.y, kCornerColours[2], job.mode);
  };
}

std::function<void(unsigned)> DrawLine(const Job &job) {
  const int flags = job.mode == DRAW_SOLID ? 0 : job.mode;
  return [job, flags](unsigned i) {
    const auto [x, y] = SpotOf(job, i);
    BRSL_WriteLine(x, y, x + job.width - 1, y + job.height - 1, kInk, flags);
  };
}

std::function<void(unsigned)> DrawEllipse(const Job &job, int flag) {
  const int r = job.Radius();
  const int flags = job.mode == DRAW_SOLID ? flag : flag | job.mode;
  return [job, r, flags](unsigned i) {
    const auto [x, y] = SpotOf(job, i);
    BRSL_Circle(x + r, y + r, r, kInk, flags);
  };
}

}  // namespace

std::function<void(unsigned)> Drawing(const Job &job, const Canvas &canvas) {
  switch (job.kind) {
    case Kind::kBox:
      return
          [job, flags = job.mode == DRAW_SOLID ? BRSL_FILLED : BRSL_FILLED | job.mode](unsigned i) {
            const auto [x, y] = SpotOf(job, i);
            BRSL_Box(x, y, x + job.width, y + job.height, kInk, flags);
          };
    case Kind::kStrip:
      canvas.Target();
      return [job, ink = RGBForBuffer(kInk, 0)](unsigned i) {
        const auto [x, y] = SpotOf(job, i);
        BRSL_DrawStrip(y, x, x + job.width, ink, job.mode);
      };
    case Kind::kShadeBox:
      return [job](unsigned i) {
        const auto [x, y] = SpotOf(job, i);
        BRSL_ShadeBox(x, y, x + job.width, y + job.height, kCornerColours[0], kCornerColours[1],
                      kCornerColours[2], kCornerColours[3], job.mode);
      };
    case Kind::kTriangle: return DrawTriangle(job);
    case Kind::kGouraudTriangle: return DrawGouraudTriangle(job);
    case Kind::kDisc: return DrawEllipse(job, BRSL_FILLED);
    case Kind::kRing: return DrawEllipse(job, BRSL_OUTLINE);
    case Kind::kLine: return DrawLine(job);
  }
  return {};
}

std::vector<Contender> OurContenders(const Job &job, const Canvas &canvas) {
  std::vector<Contender> contenders;
  for (const int state : {1, 0}) {
    contenders.push_back({state ? "wide" : "plain", Drawing(job, canvas), [canvas, state] {
                            canvas.Target();
                            BRSL_SetMMXState(state);
                          }});
  }
  return contenders;
}

}  // namespace brisal::bench
