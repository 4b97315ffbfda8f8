#include <algorithm>
#include <cstdlib>
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

// The texels that a job shows, each once, as far as there is not more than one for each pixel.
int64_t TexelsShown(const Job &job, const Picture &picture, int64_t pixels) {
  int64_t texels = int64_t{picture.width} * picture.height;
  if (job.kind == Kind::kTexturedTriangle) {
    const auto [a, b, c] = TexelsOf(job, picture);
    texels = std::abs((b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x)) / 2;
  }
  return std::min(texels, pixels);
}

// Every run shows its share of the picture, one behind the other.
std::vector<Run> ReadsOf(const Job &job, const Picture &picture, int bytesPerPixel,
                         const std::vector<Run> &writes) {
  int64_t pixels = 0;
  for (const Run &run : writes) pixels += run.size / bytesPerPixel;
  const int64_t texels = TexelsShown(job, picture, pixels);
  std::vector<Run> reads;
  int64_t done = 0;
  for (const Run &run : writes) {
    const int64_t first = done * texels / pixels;
    done += run.size / bytesPerPixel;
    const int64_t end = done * texels / pixels;
    reads.push_back({first * picture.bytesPerPixel, (end - first) * picture.bytesPerPixel});
  }
  return reads;
}

// What leaves pixels out, or mixes them, reads the target as well.
bool IsSolid(const Job &job) {
  return job.mode == DRAW_SOLID && job.texels == Texels::kOpaque && !job.IsFilter() &&
         job.kind != Kind::kSoftText;
}

}  // namespace

std::vector<Contender> LimitContenders(const Job &job, const Canvas &canvas) {
  Moves moves = {RunsOf(job, canvas), {}};
  if (moves.writes.empty()) return {};
  const uint8_t *pixels = nullptr;
  if (job.source != 0) {
    const Picture picture = Picture::Of(job);
    moves.reads = ReadsOf(job, picture, canvas.bytesPerPixel, moves.writes);
    pixels = picture.pixels;
  }
  std::vector<Contender> contenders;
  for (const auto &[name, move] : MoversOf(IsSolid(job), moves, canvas.bytesPerPixel)) {
    contenders.push_back({name, [=, move = move](unsigned i) {
                            const Point spot = SpotOf(job, i);
                            move(moves, pixels, canvas.At(spot.x, spot.y));
                          }});
  }
  return contenders;
}

}  // namespace brisal::bench
