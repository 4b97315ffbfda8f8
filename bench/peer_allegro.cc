#define ALLEGRO_NO_MAGIC_MAIN
#include <allegro.h>

#include <memory>

#include "bench/canvas.h"
#include "bench/picture.h"
#include "bench/text.h"

namespace brisal::bench {
namespace {

using Bitmap = std::shared_ptr<BITMAP>;

bool Start() {
  if (install_allegro(SYSTEM_NONE, &errno, nullptr) != 0) return false;
  _rgb_r_shift_15 = 10, _rgb_g_shift_15 = 5, _rgb_b_shift_15 = 0;
  _rgb_r_shift_16 = 11, _rgb_g_shift_16 = 5, _rgb_b_shift_16 = 0;
  _rgb_r_shift_24 = 0, _rgb_g_shift_24 = 8, _rgb_b_shift_24 = 16;
  _rgb_r_shift_32 = 16, _rgb_g_shift_32 = 8, _rgb_b_shift_32 = 0, _rgb_a_shift_32 = 24;
  return true;
}

int DepthOf(int format) {
  static constexpr int kDepths[] = {16, 15, 24, 32, 32};
  return kDepths[format - 1];
}

// A bitmap reaches its pixels through its row pointers: led to the canvas, it draws there.
Bitmap BitmapOf(const Canvas &canvas) {
  Bitmap bitmap(create_bitmap_ex(DepthOf(canvas.format), Canvas::kWidth, Canvas::kHeight),
                destroy_bitmap);
  for (int y = 0; bitmap && y < Canvas::kHeight; ++y) bitmap->line[y] = canvas.At(0, y);
  return bitmap;
}

Bitmap BitmapOf(const Picture &picture) {
  Bitmap bitmap(create_bitmap_ex(DepthOf(picture.format), picture.width, picture.height),
                destroy_bitmap);
  for (int y = 0; bitmap && y < picture.height; ++y) bitmap->line[y] = picture.At(0, y);
  return bitmap;
}

void SetMode(const Job &job) {
  if (job.HasAlpha() || job.kind == Kind::kSoftText) return set_alpha_blender();
  switch (job.mode) {
    case DRAW_XOR: drawing_mode(DRAW_MODE_XOR, nullptr, 0, 0); return;
    case DRAW_ALPHA:
    case DRAW_HALF: set_trans_blender(0, 0, 0, OpacityOf(job)); break;
    case DRAW_ADD: set_add_blender(0, 0, 0, 255); break;
    case DRAW_MULT: set_multiply_blender(0, 0, 0, 255); break;
    default: drawing_mode(DRAW_MODE_SOLID, nullptr, 0, 0); return;
  }
  drawing_mode(DRAW_MODE_TRANS, nullptr, 0, 0);
}

bool HasMode(const Job &job) {
  switch (job.mode) {
    case DRAW_SUB:
    case DRAW_REVSUB:
    case DRAW_AND:
    case DRAW_OR: return false;
    default: return !job.IsGouraud() || job.mode == DRAW_SOLID;
  }
}

V3D_f VertexOf(Point corner, Point spot, uint32_t colour) {
  V3D_f vertex{};
  vertex.x = static_cast<float>(corner.x + spot.x);
  vertex.y = static_cast<float>(corner.y + spot.y);
  vertex.c = static_cast<int>(colour);
  return vertex;
}

void DrawGouraudTriangle(BITMAP *bitmap, const std::array<Point, 3> &corners, Point spot) {
  V3D_f a = VertexOf(corners[0], spot, kCornerColours[0]);
  V3D_f b = VertexOf(corners[1], spot, kCornerColours[1]);
  V3D_f c = VertexOf(corners[2], spot, kCornerColours[2]);
  triangle3d_f(bitmap, POLYTYPE_GRGB, nullptr, &a, &b, &c);
}

void DrawTriangle(BITMAP *bitmap, const std::array<Point, 3> &corners, Point spot, int ink) {
  const auto &[a, b, c] = corners;
  triangle(bitmap, a.x + spot.x, a.y + spot.y, b.x + spot.x, b.y + spot.y, c.x + spot.x,
           c.y + spot.y, ink);
}

std::function<void(unsigned)> Drawing(const Job &job, const Bitmap &bitmap) {
  const int ink = makecol_depth(bitmap_color_depth(bitmap.get()), kInk >> 16 & 0xFF,
                                kInk >> 8 & 0xFF, kInk & 0xFF);
  const int r = job.Radius();
  switch (job.kind) {
    case Kind::kBox:
      return [=](unsigned i) {
        const auto [x, y] = SpotOf(job, i);
        rectfill(bitmap.get(), x, y, x + job.width - 1, y + job.height - 1, ink);
      };
    case Kind::kStrip:
      return [=](unsigned i) {
        const auto [x, y] = SpotOf(job, i);
        hline(bitmap.get(), x, y, x + job.width - 1, ink);
      };
    case Kind::kLine:
      return [=](unsigned i) {
        const auto [x, y] = SpotOf(job, i);
        fastline(bitmap.get(), x, y, x + job.width - 1, y + job.height - 1, ink);
      };
    case Kind::kDisc:
      return [=](unsigned i) {
        const auto [x, y] = SpotOf(job, i);
        circlefill(bitmap.get(), x + r, y + r, r - 1, ink);
      };
    case Kind::kRing:
      return [=](unsigned i) {
        const auto [x, y] = SpotOf(job, i);
        circle(bitmap.get(), x + r, y + r, r - 1, ink);
      };
    case Kind::kTriangle:
      return [=, corners = CornersOf(job)](unsigned i) {
        DrawTriangle(bitmap.get(), corners, SpotOf(job, i), ink);
      };
    case Kind::kGouraudTriangle:
      return [=, corners = CornersOf(job)](unsigned i) {
        DrawGouraudTriangle(bitmap.get(), corners, SpotOf(job, i));
      };
    default: return nullptr;
  }
}

std::function<void(unsigned)> Copying(const Job &job, const Bitmap &target, const Bitmap &source) {
  using Copy = void (*)(BITMAP *, BITMAP *, int, int, int, int, int, int);
  if (job.HasAlpha() || job.mode != DRAW_SOLID) {
    return [=](unsigned i) {
      const auto [x, y] = SpotOf(job, i);
      draw_trans_sprite(target.get(), source.get(), x, y);
    };
  }
  const Copy copy = job.IsKeyed() ? masked_blit : blit;
  return [=](unsigned i) {
    const auto [x, y] = SpotOf(job, i);
    copy(source.get(), target.get(), 0, 0, x, y, job.width, job.height);
  };
}

std::function<void(unsigned)> Texturing(const Job &job, const Bitmap &target, const Bitmap &source,
                                        const Picture &picture) {
  const int type = job.IsKeyed() ? POLYTYPE_ATEX_MASK : POLYTYPE_ATEX;
  return [=, corners = CornersOf(job), texels = TexelsOf(job, picture)](unsigned i) {
    std::array<V3D_f, 3> shape;
    for (size_t k = 0; k < shape.size(); ++k) {
      shape[k] = VertexOf(corners[k], SpotOf(job, i), 0);
      shape[k].u = static_cast<float>(texels[k].x);
      shape[k].v = static_cast<float>(texels[k].y);
    }
    triangle3d_f(target.get(), type, source.get(), &shape[0], &shape[1], &shape[2]);
  };
}

std::function<void(unsigned)> PictureDrawing(const Job &job, const Bitmap &target) {
  const Picture picture = Picture::Of(job);
  const Bitmap source = BitmapOf(picture);
  if (!source) return nullptr;
  switch (job.kind) {
    case Kind::kBlit:
    case Kind::kTexture: return Copying(job, target, source);
    case Kind::kTexturedTriangle: return Texturing(job, target, source, picture);
    case Kind::kSprite: {
      // The turn keeps the sprite's size and its middle.
      const Point corner = TurnedCorners(job)[0];
      const fixed angle = fixatan2(itofix(corner.x), itofix(job.width - corner.x));
      const int left = (job.width - picture.width) / 2;
      const int top = (job.height - picture.height) / 2;
      return [=](unsigned i) {
        const auto [x, y] = SpotOf(job, i);
        rotate_sprite(target.get(), source.get(), x + left, y + top, angle);
      };
    }
    case Kind::kScale:
      return [=](unsigned i) {
        const auto [x, y] = SpotOf(job, i);
        stretch_blit(source.get(), target.get(), 0, 0, picture.width, picture.height, x, y,
                     job.width, job.height);
      };
    default: return nullptr;
  }
}

// Hard letters are characters of eight bits, soft ones sprites with alpha.
std::function<void(unsigned)> TextDrawing(const Job &job, const Bitmap &target) {
  const bool isSoft = job.kind == Kind::kSoftText;
  std::vector<Bitmap> letters;
  for (const Letter &letter : Letters(job)) {
    const Bitmap bitmap(create_bitmap_ex(isSoft ? 32 : 8, kGlyphSize, kGlyphSize), destroy_bitmap);
    for (int k = 0; k < kGlyphSize * kGlyphSize; ++k) {
      const int value = letter[static_cast<size_t>(k)];
      const auto pixel = static_cast<int>((kInk & 0xFFFFFF) | static_cast<uint32_t>(value) << 24);
      putpixel(bitmap.get(), k % kGlyphSize, k / kGlyphSize, isSoft ? pixel : value);
    }
    letters.push_back(bitmap);
  }
  const int ink = makecol_depth(bitmap_color_depth(target.get()), kInk >> 16 & 0xFF,
                                kInk >> 8 & 0xFF, kInk & 0xFF);
  return [=](unsigned i) {
    const auto [x, y] = SpotOf(job, i);
    for (int n = 0; n < kGlyphs; ++n) {
      BITMAP *const letter = letters[LetterAt(n)].get();
      const Point place = PlaceOf(n);
      if (isSoft) {
        draw_trans_sprite(target.get(), letter, x + place.x, y + place.y);
      } else {
        draw_character_ex(target.get(), letter, x + place.x, y + place.y, ink, -1);
      }
    }
  };
}

std::vector<Contender> Offer(const Job &job, const Canvas &canvas) {
  static const bool started = Start();
  if (!started || !HasMode(job)) return {};
  const Bitmap bitmap = BitmapOf(canvas);
  if (!bitmap) return {};
  std::function<void(unsigned)> draw = job.IsText()      ? TextDrawing(job, bitmap)
                                       : job.source != 0 ? PictureDrawing(job, bitmap)
                                                         : Drawing(job, bitmap);
  if (!draw) return {};
  return {{"Allegro", draw, [job] { SetMode(job); }}};
}

const Peer kAllegro(Offer);

}  // namespace
}  // namespace brisal::bench
