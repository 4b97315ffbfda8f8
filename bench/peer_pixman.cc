#include <pixman.h>

#include <memory>

#include "bench/canvas.h"
#include "bench/picture.h"
#include "bench/text.h"

namespace brisal::bench {
namespace {

using Image = std::shared_ptr<pixman_image_t>;

Image Own(pixman_image_t *image) { return {image, pixman_image_unref}; }

constexpr pixman_format_code_t kFormats[] = {PIXMAN_r5g6b5, PIXMAN_x1r5g5b5, PIXMAN_b8g8r8,
                                             PIXMAN_x8r8g8b8, PIXMAN_a8r8g8b8};

Image ImageOf(const Canvas &canvas) {
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

// The picture, and the pixels that the image has of its own.
struct Source {
  std::vector<uint32_t> pixels;
  Image image;
};

// Nothing is left out by colour: the mask colour becomes transparent.
std::shared_ptr<Source> SourceOf(const Job &job) {
  const Picture picture = Picture::Of(job);
  auto source = std::make_shared<Source>();
  if (job.texels == Texels::kOpaque) {
    source->image = Own(pixman_image_create_bits_no_clear(
        kFormats[job.source - 1], picture.width, picture.height,
        reinterpret_cast<uint32_t *>(picture.pixels), picture.Pitch()));
  } else {
    source->pixels = PremultipliedPicture(job);
    source->image = Own(pixman_image_create_bits_no_clear(
        PIXMAN_a8r8g8b8, picture.width, picture.height, source->pixels.data(), picture.width * 4));
  }
  pixman_image_set_filter(source->image.get(),
                          job.IsBilinear() ? PIXMAN_FILTER_BILINEAR : PIXMAN_FILTER_NEAREST,
                          nullptr, 0);
  if (!job.IsCopy()) {
    const Affine at = PlacesOf(job, picture);
    const pixman_f_transform exact = {{{at.xx, at.xy, at.x0}, {at.yx, at.yy, at.y0}, {0, 0, 1}}};
    pixman_transform_t transform;
    pixman_transform_from_pixman_f_transform(&transform, &exact);
    pixman_image_set_transform(source->image.get(), &transform);
  }
  if (job.IsScaling()) pixman_image_set_repeat(source->image.get(), PIXMAN_REPEAT_PAD);
  return source;
}

std::vector<Contender> Copy(const Job &job, const Canvas &canvas) {
  if (job.kind == Kind::kTexturedTriangle) return {};
  // Its pictures for this have 32 bits.
  if (job.IsKeyed() && job.source != BRSL_FORMAT_X32) return {};
  const bool replaces = job.mode == DRAW_SOLID && job.texels == Texels::kOpaque && !job.IsTurned();
  pixman_op_t op;
  if (!OperatorOf(job, &op)) return {};
  if (job.mode == DRAW_SOLID) op = replaces ? PIXMAN_OP_SRC : PIXMAN_OP_OVER;
  const uint16_t opacity = OpacityOf(job) * 0x101;
  const pixman_color_t level = {0, 0, 0, opacity};
  const Image mask = job.mode == DRAW_HALF ? Own(pixman_image_create_solid_fill(&level)) : nullptr;
  return {{"pixman", [=, source = SourceOf(job), target = ImageOf(canvas)](unsigned i) {
             const auto [x, y] = SpotOf(job, i);
             pixman_image_composite32(op, source->image.get(), mask.get(), target.get(), 0, 0, 0, 0,
                                      x, y, job.width, job.height);
           }}};
}

std::vector<Contender> Blur(const Job &job, const Canvas &canvas) {
  const Image copy =
      Own(pixman_image_create_bits_no_clear(PIXMAN_x8r8g8b8, job.width, job.height, nullptr, 0));
  std::vector<pixman_fixed_t> kernel = {pixman_int_to_fixed(3), pixman_int_to_fixed(3)};
  kernel.resize(11, pixman_fixed_1 / 9 + 1);
  pixman_image_set_filter(copy.get(), PIXMAN_FILTER_CONVOLUTION, kernel.data(), 11);
  pixman_image_set_repeat(copy.get(), PIXMAN_REPEAT_PAD);
  return {{"pixman", [=, target = ImageOf(canvas)](unsigned i) {
             const auto [x, y] = SpotOf(job, i);
             pixman_image_composite32(PIXMAN_OP_SRC, target.get(), nullptr, copy.get(), x, y, 0, 0,
                                      0, 0, job.width, job.height);
             pixman_image_composite32(PIXMAN_OP_SRC, copy.get(), nullptr, target.get(), 0, 0, 0, 0,
                                      x, y, job.width, job.height);
           }}};
}

std::vector<Contender> Filter(const Job &job, const Canvas &canvas) {
  if (job.kind == Kind::kBlur) return Blur(job, canvas);
  if (job.kind != Kind::kFade) return {};
  const pixman_color_t shade = {0, 0, 0, 0xFFFF - 0xFFFF * kFadePercent / 100};
  return {
      Composite(job, Own(pixman_image_create_solid_fill(&shade)), ImageOf(canvas), PIXMAN_OP_OVER)};
}

using GlyphCache = std::shared_ptr<pixman_glyph_cache_t>;

std::vector<Contender> Text(const Job &job, const Canvas &canvas) {
  const GlyphCache cache(pixman_glyph_cache_create(), [](pixman_glyph_cache_t *owned) {
    pixman_glyph_cache_thaw(owned);
    pixman_glyph_cache_destroy(owned);
  });
  pixman_glyph_cache_freeze(cache.get());
  std::vector<const void *> entries;
  for (Letter letter : Letters(job)) {
    const Image image =
        Own(pixman_image_create_bits(PIXMAN_a8, kGlyphSize, kGlyphSize,
                                     reinterpret_cast<uint32_t *>(letter.data()), kGlyphSize));
    auto *const key = reinterpret_cast<void *>(entries.size() + 1);
    entries.push_back(pixman_glyph_cache_insert(cache.get(), key, key, 0, 0, image.get()));
  }
  std::vector<pixman_glyph_t> glyphs;
  for (int n = 0; n < kGlyphs; ++n) {
    glyphs.push_back({PlaceOf(n).x, PlaceOf(n).y, entries[LetterAt(n)]});
  }
  const pixman_color_t colour = ColourOf(job);
  return {{"pixman", [=, source = Own(pixman_image_create_solid_fill(&colour)),
                      target = ImageOf(canvas)](unsigned i) mutable {
             const auto [x, y] = SpotOf(job, i);
             pixman_composite_glyphs_no_mask(PIXMAN_OP_OVER, source.get(), target.get(), 0, 0, x, y,
                                             cache.get(), kGlyphs, glyphs.data());
           }}};
}

std::vector<Contender> Offer(const Job &job, const Canvas &canvas) {
  if (job.IsText()) return Text(job, canvas);
  if (job.source != 0) return Copy(job, canvas);
  if (job.IsFilter()) return Filter(job, canvas);
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
