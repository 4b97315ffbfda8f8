#include <agg_pixfmt_rgb.h>
#include <agg_pixfmt_rgb_packed.h>
#include <agg_pixfmt_rgba.h>
#include <agg_rasterizer_scanline_aa.h>
#include <agg_renderer_base.h>
#include <agg_renderer_primitives.h>
#include <agg_renderer_scanline.h>
#include <agg_rendering_buffer.h>
#include <agg_scanline_bin.h>
#include <agg_span_allocator.h>
#include <agg_span_gouraud_rgba.h>

#include <memory>

#include "bench/canvas.h"

namespace brisal::bench {
namespace {

agg::rgba8 ColourOf(uint32_t colour, int opacity) {
  return agg::rgba8(colour >> 16 & 0xFF, colour >> 8 & 0xFF, colour & 0xFF, opacity);
}

template <class PixelFormat>
struct Target {
  agg::rendering_buffer buffer;
  PixelFormat pixels;
  agg::renderer_base<PixelFormat> base;
  agg::rasterizer_scanline_aa<> rasterizer;
  agg::scanline_bin line;
  agg::span_allocator<agg::rgba8> spans;

  explicit Target(const Canvas &canvas)
      : buffer(canvas.pixels, Canvas::kWidth, Canvas::kHeight, canvas.pitch),
        pixels(buffer),
        base(pixels) {}

  void AddTriangle(const std::array<Point, 3> &corners, Point spot) {
    rasterizer.reset();
    rasterizer.move_to_d(corners[0].x + spot.x, corners[0].y + spot.y);
    rasterizer.line_to_d(corners[1].x + spot.x, corners[1].y + spot.y);
    rasterizer.line_to_d(corners[2].x + spot.x, corners[2].y + spot.y);
  }

  void DrawTriangle(const std::array<Point, 3> &corners, Point spot, agg::rgba8 ink) {
    AddTriangle(corners, spot);
    agg::render_scanlines_bin_solid(rasterizer, line, base, ink);
  }

  void DrawGouraudTriangle(const std::array<Point, 3> &corners, Point spot) {
    agg::span_gouraud_rgba<agg::rgba8> gouraud;
    gouraud.colors(ColourOf(kCornerColours[0], 255), ColourOf(kCornerColours[1], 255),
                   ColourOf(kCornerColours[2], 255));
    const auto &[a, b, c] = corners;
    gouraud.triangle(a.x + spot.x, a.y + spot.y, b.x + spot.x, b.y + spot.y, c.x + spot.x,
                     c.y + spot.y, 0);
    AddTriangle(corners, spot);
    agg::render_scanlines_bin(rasterizer, line, base, spans, gouraud);
  }

  void DrawDisc(Point spot, int r, agg::rgba8 ink) {
    agg::renderer_primitives<agg::renderer_base<PixelFormat>> primitives(base);
    primitives.fill_color(ink);
    primitives.line_color(ink);
    primitives.solid_ellipse(spot.x + r, spot.y + r, r - 1, r - 1);
  }

  void DrawRing(Point spot, int r, agg::rgba8 ink) {
    agg::renderer_primitives<agg::renderer_base<PixelFormat>> primitives(base);
    primitives.line_color(ink);
    primitives.ellipse(spot.x + r, spot.y + r, r - 1, r - 1);
  }

  void DrawLine(Point spot, int width, int height, agg::rgba8 ink) {
    using Primitives = agg::renderer_primitives<agg::renderer_base<PixelFormat>>;
    Primitives primitives(base);
    primitives.line_color(ink);
    // From the middle of one pixel to the middle of the other.
    const auto middle = [](int k) { return Primitives::coord(k + 0.5); };
    primitives.line(middle(spot.x), middle(spot.y), middle(spot.x + width - 1),
                    middle(spot.y + height - 1), true);
  }
};

template <class PixelFormat>
std::function<void(unsigned)> Drawing(const Job &job, const Canvas &canvas) {
  const auto target = std::make_shared<Target<PixelFormat>>(canvas);
  const agg::rgba8 ink = ColourOf(kInk, OpacityOf(job));
  switch (job.kind) {
    case Kind::kBox:
      return [=](unsigned i) {
        const auto [x, y] = SpotOf(job, i);
        target->base.blend_bar(x, y, x + job.width - 1, y + job.height - 1, ink, agg::cover_full);
      };
    case Kind::kStrip:
      return [=](unsigned i) {
        const auto [x, y] = SpotOf(job, i);
        target->base.blend_hline(x, y, x + job.width - 1, ink, agg::cover_full);
      };
    case Kind::kTriangle:
      return [=, corners = CornersOf(job)](unsigned i) {
        target->DrawTriangle(corners, SpotOf(job, i), ink);
      };
    case Kind::kGouraudTriangle:
      return [=, corners = CornersOf(job)](unsigned i) {
        target->DrawGouraudTriangle(corners, SpotOf(job, i));
      };
    case Kind::kDisc:
      return [=](unsigned i) { target->DrawDisc(SpotOf(job, i), job.Radius(), ink); };
    case Kind::kRing:
      return [=](unsigned i) { target->DrawRing(SpotOf(job, i), job.Radius(), ink); };
    case Kind::kLine:
      return [=](unsigned i) { target->DrawLine(SpotOf(job, i), job.width, job.height, ink); };
    default: return nullptr;
  }
}

std::function<void(unsigned)> DrawingOf(const Job &job, const Canvas &canvas) {
  switch (job.format) {
    case BRSL_FORMAT_565: return Drawing<agg::pixfmt_rgb565>(job, canvas);
    case BRSL_FORMAT_555: return Drawing<agg::pixfmt_rgb555>(job, canvas);
    case BRSL_FORMAT_RGB: return Drawing<agg::pixfmt_rgb24>(job, canvas);
    default: return Drawing<agg::pixfmt_bgra32>(job, canvas);
  }
}

std::vector<Contender> Offer(const Job &job, const Canvas &canvas) {
  const bool isBlend = job.mode == DRAW_ALPHA || job.mode == DRAW_HALF;
  if (job.mode != DRAW_SOLID && (!isBlend || job.IsGouraud())) return {};
  std::function<void(unsigned)> draw = DrawingOf(job, canvas);
  if (!draw) return {};
  return {{"AGG", draw}};
}

const Peer kAgg(Offer);

}  // namespace
}  // namespace brisal::bench
