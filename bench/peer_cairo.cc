#include <cairo.h>

#include <memory>

#include "bench/canvas.h"
#include "bench/picture.h"
#include "bench/text.h"

namespace brisal::bench {
namespace {

using Context = std::shared_ptr<cairo_t>;

cairo_format_t FormatOf(int format) {
  switch (format) {
    case BRSL_FORMAT_565: return CAIRO_FORMAT_RGB16_565;
    case BRSL_FORMAT_X32: return CAIRO_FORMAT_RGB24;
    case BRSL_FORMAT_A32: return CAIRO_FORMAT_ARGB32;
    default: return CAIRO_FORMAT_INVALID;
  }
}

bool OperatorOf(const Job &job, cairo_operator_t *op) {
  switch (job.mode) {
    case DRAW_SOLID:
    case DRAW_ALPHA:
    case DRAW_HALF: *op = CAIRO_OPERATOR_OVER; return true;
    case DRAW_ADD: *op = CAIRO_OPERATOR_ADD; return true;
    case DRAW_MULT: *op = CAIRO_OPERATOR_MULTIPLY; return true;
    default: return false;
  }
}

Context ContextOf(const Job &job, const Canvas &canvas) {
  cairo_operator_t op;
  const cairo_format_t format = FormatOf(canvas.format);
  if (format == CAIRO_FORMAT_INVALID || !OperatorOf(job, &op)) return nullptr;
  cairo_surface_t *surface = cairo_image_surface_create_for_data(
      canvas.pixels, format, Canvas::kWidth, Canvas::kHeight, canvas.pitch);
  Context context(cairo_create(surface), cairo_destroy);
  cairo_surface_destroy(surface);
  const auto channel = [](int shift) { return (kInk >> shift & 0xFF) / 255.0; };
  cairo_set_antialias(context.get(), CAIRO_ANTIALIAS_NONE);
  cairo_set_operator(context.get(), op);
  cairo_set_line_width(context.get(), 1);
  cairo_set_line_cap(context.get(), CAIRO_LINE_CAP_SQUARE);
  cairo_set_source_rgba(context.get(), channel(16), channel(8), channel(0), OpacityOf(job) / 255.0);
  return context;
}

void DrawTriangle(cairo_t *context, const std::array<Point, 3> &corners, Point spot) {
  for (const Point corner : corners) cairo_line_to(context, corner.x + spot.x, corner.y + spot.y);
  cairo_fill(context);
}

void DrawDisc(cairo_t *context, Point spot, int r) {
  constexpr double kWholeTurn = 6.283185307179586;
  cairo_arc(context, spot.x + r, spot.y + r, r - 1, 0, kWholeTurn);
  cairo_fill(context);
}

void DrawLine(cairo_t *context, const Job &job, Point spot) {
  cairo_move_to(context, spot.x + 0.5, spot.y + 0.5);
  cairo_line_to(context, spot.x + job.width - 0.5, spot.y + job.height - 0.5);
  cairo_stroke(context);
}

// The picture, and the pixels that the pattern has of its own.
struct Source {
  std::vector<uint32_t> pixels;
  std::shared_ptr<cairo_pattern_t> pattern;
};

// Nothing is left out by colour: the mask colour becomes transparent.
std::shared_ptr<Source> SourceOf(const Job &job) {
  const Picture picture = Picture::Of(job);
  auto source = std::make_shared<Source>();
  const bool isOpaque = job.texels == Texels::kOpaque;
  if (!isOpaque) source->pixels = PremultipliedPicture(job);
  auto *const pixels = reinterpret_cast<uint8_t *>(source->pixels.data());
  cairo_surface_t *surface = cairo_image_surface_create_for_data(
      isOpaque ? picture.pixels : pixels, isOpaque ? FormatOf(job.source) : CAIRO_FORMAT_ARGB32,
      picture.width, picture.height, isOpaque ? picture.Pitch() : picture.width * 4);
  source->pattern = {cairo_pattern_create_for_surface(surface), cairo_pattern_destroy};
  cairo_surface_destroy(surface);
  cairo_pattern_set_filter(source->pattern.get(),
                           job.IsBilinear() ? CAIRO_FILTER_BILINEAR : CAIRO_FILTER_NEAREST);
  if (!job.IsCopy()) {
    const Affine at = PlacesOf(job, picture);
    cairo_matrix_t matrix;
    cairo_matrix_init(&matrix, at.xx, at.yx, at.xy, at.yy, at.x0, at.y0);
    cairo_pattern_set_matrix(source->pattern.get(), &matrix);
  }
  if (job.IsScaling()) cairo_pattern_set_extend(source->pattern.get(), CAIRO_EXTEND_PAD);
  return source;
}

std::vector<Contender> Copy(const Job &job, const Context &context) {
  const bool is32BitKeyed = job.IsKeyed() && job.source == BRSL_FORMAT_X32;
  if (job.kind == Kind::kTexturedTriangle || job.mode == DRAW_HALF) return {};
  if (FormatOf(job.source) == CAIRO_FORMAT_INVALID || (job.IsKeyed() && !is32BitKeyed)) return {};
  const std::shared_ptr<Source> source = SourceOf(job);
  return {{"cairo", [=](unsigned i) {
             const auto [x, y] = SpotOf(job, i);
             cairo_t *const to = context.get();
             cairo_identity_matrix(to);
             cairo_translate(to, x, y);
             cairo_set_source(to, source->pattern.get());
             cairo_rectangle(to, 0, 0, job.width, job.height);
             cairo_fill(to);
           }}};
}

std::vector<Contender> Text(const Job &job, const Context &context) {
  using Mask = std::shared_ptr<cairo_surface_t>;
  const auto letters = std::make_shared<std::vector<Letter>>(Letters(job));
  std::vector<Mask> masks;
  for (Letter &letter : *letters) {
    masks.emplace_back(cairo_image_surface_create_for_data(letter.data(), CAIRO_FORMAT_A8,
                                                           kGlyphSize, kGlyphSize, kGlyphSize),
                       cairo_surface_destroy);
  }
  return {{"cairo", [=](unsigned i) {
             const auto [x, y] = SpotOf(job, i);
             for (int n = 0; n < kGlyphs; ++n) {
               const Point place = PlaceOf(n);
               cairo_mask_surface(context.get(), masks[LetterAt(n)].get(), x + place.x,
                                  y + place.y);
             }
             static_cast<void>(letters);
           }}};
}

std::vector<Contender> Offer(const Job &job, const Canvas &canvas) {
  const Context context = ContextOf(job, canvas);
  if (!context) return {};
  if (job.source != 0) return Copy(job, context);
  if (job.IsText()) return Text(job, context);
  cairo_t *const to = context.get();
  switch (job.kind) {
    case Kind::kBox:
    case Kind::kStrip:
      return {{"cairo", [context, to, job](unsigned i) {
                 const auto [x, y] = SpotOf(job, i);
                 cairo_rectangle(to, x, y, job.width, job.height);
                 cairo_fill(to);
               }}};
    case Kind::kTriangle:
      return {{"cairo", [context, to, job, corners = CornersOf(job)](unsigned i) {
                 DrawTriangle(to, corners, SpotOf(job, i));
               }}};
    case Kind::kDisc:
      return {{"cairo",
               [context, to, job](unsigned i) { DrawDisc(to, SpotOf(job, i), job.Radius()); }}};
    case Kind::kLine:
      return {{"cairo", [context, to, job](unsigned i) { DrawLine(to, job, SpotOf(job, i)); }}};
    default: return {};
  }
}

const Peer kCairo(Offer);

}  // namespace
}  // namespace brisal::bench
