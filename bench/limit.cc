#include <algorithm>
#include <cstring>

#include "bench/contenders.h"
#include "bench/moves.h"
#include "bench/picture.h"

namespace brisal::bench {
namespace {

std::vector<Run> RowsOf(const Job &job, const Canvas &canvas) {
  std::vector<Run> rows;
  rows.reserve(job.height);
  for (int y = 0; y < job.height; ++y) {
    rows.push_back({int64_t{y} * canvas.pitch, int64_t{job.width} * canvas.bytesPerPixel});
  }
  return rows;
}

// Runs come from the job's own drawing, solid and of a white texture, on black.
std::vector<Run> RunsOf(Job job, const Canvas &canvas) {
  if (job.IsRectangle()) return RowsOf(job, canvas);
  job.mode = DRAW_SOLID;
  const size_t size = static_cast<size_t>(canvas.pitch) * Canvas::kHeight;
  std::memset(canvas.pixels, 0, size);
  canvas.Target();
  const auto draw = Drawing(job, canvas);
  if (job.source != 0) {
    const Picture picture = Picture::Of(job);
    std::memset(picture.pixels, 0xFF, picture.Pitch() * picture.height);
  }
  draw(0);
  if (job.source != 0) Picture::Of(job);
  const Point spot = SpotOf(job, 0);
  const int bottom = std::min(Canvas::kHeight, spot.y + job.height + 2);
  std::vector<Run> runs;
  for (int y = std::max(0, spot.y - 2); y < bottom; ++y) {
    const uint8_t *row = canvas.At(0, y);
    bool inside = false;
    for (int x = 0; x < Canvas::kWidth; ++x) {
      const uint8_t *pixel = row + int64_t{x} * canvas.bytesPerPixel;
      const bool touched =
          std::any_of(pixel, pixel + canvas.bytesPerPixel, [](uint8_t byte) { return byte != 0; });
      if (touched && !inside) runs.push_back({pixel - canvas.At(spot.x, spot.y), 0});
      if (touched) runs.back().size += canvas.bytesPerPixel;
      inside = touched;
    }
  }
  return runs;
}

// A copy reads its source and writes the target; one that leaves pixels out or mixes them reads the target as well.
std::vector<Contender> CopyLimits(const Job &job, const Canvas &canvas) {
  const bool copies = job.texels == Texels::kOpaque && job.mode == DRAW_SOLID;
  const Picture picture = Picture::Of(job);
  const int64_t rowSize = int64_t{job.width} * canvas.bytesPerPixel;
  std::vector<Contender> contenders;
  for (const auto &[name, move] : MoversOf(copies, picture.Pitch(), rowSize)) {
    contenders.push_back({name, [=, move = move](unsigned i) {
                            const Point spot = SpotOf(job, i);
                            for (int y = 0; y < job.height; ++y) {
                              move(picture.At(0, y), picture.Pitch(), canvas.At(spot.x, spot.y + y),
                                   rowSize);
                            }
                          }});
  }
  return contenders;
}

}  // namespace

std::vector<Contender> LimitContenders(const Job &job, const Canvas &canvas) {
  if (job.IsCopy()) return CopyLimits(job, canvas);
  const std::vector<Run> runs = RunsOf(job, canvas);
  if (runs.empty()) return {};
  const bool isSolid = job.mode == DRAW_SOLID && !job.IsFilter() && job.kind != Kind::kSoftText;
  std::vector<Contender> contenders;
  for (const auto &[name, write] : WritersOf(isSolid, runs, canvas.bytesPerPixel)) {
    contenders.push_back({name, [runs, job, canvas, write = write](unsigned i) {
                            const Point spot = SpotOf(job, i);
                            write(runs, canvas.At(spot.x, spot.y));
                          }});
  }
  return contenders;
}

}  // namespace brisal::bench
