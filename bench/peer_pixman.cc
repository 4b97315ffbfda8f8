#include <pixman.h>

#include <memory>

#include "bench/canvas.h"

namespace brisal::bench {
namespace {

using Image = std::shared_ptr<pixman_image_t>;

Image Own(pixman_image_t *image) { return {image, pixman_image_unref}; }

Image ImageOf(const Canvas &canvas) {
  static constexpr pixman_format_code_t kFormats[] = {PIXMAN_r5g6b5, PIXMAN_x1r5g5b5, PIXMAN_b8g8r8,
                                                      PIXMAN_x8r8g8b8, PIXMAN_a8r8g8b8};
  return Own(pixman_image_create_bits_no_clear(
      kFormats[canvas.format - 1], Canvas::kWidth, Canvas::kHeight,
      reinterpret_cast<uint32_t *>(canvas.pixels), canvas.pitch));
}

// Colours are premultiplied, 16 bits a channel.
pixman_color_t ColourOf(const Job &job) {
  const unsigned alpha = OpacityOf(job) * 0x101;
  const auto channel = [alpha](unsigned value) {
    return static_cast<uint16_t>((value & 0xFF) * 0x101 * alpha / 0xFFFF);
  };
  return {channel(kInk >> 16), channel(kInk >> 8), channel(kInk), static_cast<uint16_t>(alpha)};
}

bool OperatorOf(const Job &job, pixman_op_t *op) {
  switch (job.mode) {
    case DRAW_SOLID: *op = PIXMAN_OP_SRC; return true;
    case DRAW_ALPHA:
    case DRAW_HALF: *op = PIXMAN_OP_OVER; return true;
    case DRAW_ADD: *op = PIXMAN_OP_ADD; return true;
    case DRAW_MULT: *op = PIXMAN_OP_MULTIPLY; return true;
    default: return false;
  }
}

Contender Fill(const Job &job, const Canvas &canvas) {
  canvas.Target();
  const uint32_t ink = RGBForBuffer(kInk, 0);
  return {"pixman", [job, canvas, ink](unsigned i) {
            const auto [x, y] = SpotOf(job, i);
            pixman_fill(reinterpret_cast<uint32_t *>(canvas.pixels), canvas.pitch / 4,
                        canvas.bytesPerPixel * 8, x, y, job.width, job.height, ink);
          }};
}

Contender Composite(const Job &job, const Image &source, const Image &target, pixman_op_t op) {
  return {"pixman", [job, source, target, op](unsigned i) {
            const auto [x, y] = SpotOf(job, i);
            pixman_image_composite32(op, source.get(), nullptr, target.get(), 0, 0, 0, 0, x, y,
                                     job.width, job.height);
          }};
}

pixman_point_fixed_t FixedPoint(Point p) {
  return {pixman_int_to_fixed(p.x), pixman_int_to_fixed(p.y)};
}

Contender Triangle(const Job &job, const Image &source, const Image &target, pixman_op_t op) {
  const auto [a, b, c] = CornersOf(job);
  const pixman_triangle_t triangle = {FixedPoint(a), FixedPoint(b), FixedPoint(c)};
  return {"pixman", [job, source, target, op, triangle](unsigned i) {
            const auto [x, y] = SpotOf(job, i);
            pixman_composite_triangles(op, source.get(), target.get(), PIXMAN_a1, 0, 0, x, y, 1,
                                       &triangle);
          }};
}

std::vector<Contender> Offer(const Job &job, const Canvas &canvas) {
  pixman_op_t op;
  if (!OperatorOf(job, &op)) return {};
  const bool isBox = job.kind == Kind::kBox || job.kind == Kind::kStrip;
  // pixman_fill does not know 24-bit pixels.
  if (isBox && op == PIXMAN_OP_SRC && canvas.bytesPerPixel != 3) return {Fill(job, canvas)};
  const pixman_color_t colour = ColourOf(job);
  const Image source = Own(pixman_image_create_solid_fill(&colour));
  if (isBox) return {Composite(job, source, ImageOf(canvas), op)};
  // As a mask of the whole picture would have to be cleared, no operator SRC here.
  if (op == PIXMAN_OP_SRC) op = PIXMAN_OP_OVER;
  if (job.kind == Kind::kTriangle) return {Triangle(job, source, ImageOf(canvas), op)};
  return {};
}

const Peer kPixman(Offer);

}  // namespace
}  // namespace brisal::bench
