#include <SDL.h>

#include <memory>

#include "bench/canvas.h"
#include "bench/picture.h"
#include "bench/text.h"

namespace brisal::bench {
namespace {

struct Masks {
  uint32_t red, green, blue, alpha;
};

constexpr Masks kMasks[] = {
    {0xF800, 0x7E0, 0x1F, 0},
    {0x7C00, 0x3E0, 0x1F, 0},
    {0xFF, 0xFF00, 0xFF0000, 0},
    {0xFF0000, 0xFF00, 0xFF, 0},
    {0xFF0000, 0xFF00, 0xFF, 0xFF000000},
};

SDL_Surface *SurfaceOf(uint8_t *pixels, int width, int height, int pitch, int format) {
  static constexpr int kDepths[] = {16, 15, 24, 32, 32};
  const Masks &masks = kMasks[format - 1];
  return SDL_CreateRGBSurfaceFrom(pixels, width, height, kDepths[format - 1], pitch, masks.red,
                                  masks.green, masks.blue, masks.alpha);
}

struct Target {
  SDL_Surface *surface;
  SDL_Renderer *renderer;

  explicit Target(const Canvas &canvas) {
    surface =
        SurfaceOf(canvas.pixels, Canvas::kWidth, Canvas::kHeight, canvas.pitch, canvas.format);
    renderer = SDL_CreateSoftwareRenderer(surface);
  }
  Target(const Target &) = delete;
  Target &operator=(const Target &) = delete;
  ~Target() {
    SDL_DestroyRenderer(renderer);
    SDL_FreeSurface(surface);
  }
};

using SharedTarget = std::shared_ptr<Target>;

bool BlendOf(const Job &job, SDL_BlendMode *blend) {
  switch (job.mode) {
    case DRAW_SOLID: *blend = SDL_BLENDMODE_NONE; return true;
    case DRAW_ALPHA:
    case DRAW_HALF: *blend = SDL_BLENDMODE_BLEND; return true;
    case DRAW_ADD: *blend = SDL_BLENDMODE_ADD; return true;
    case DRAW_MULT: *blend = SDL_BLENDMODE_MOD; return true;
    default: return false;
  }
}

SDL_Color ColourOf(uint32_t colour, int opacity) {
  return {static_cast<uint8_t>(colour >> 16), static_cast<uint8_t>(colour >> 8),
          static_cast<uint8_t>(colour), static_cast<uint8_t>(opacity)};
}

// The renderer collects commands; small ones are handed over sixteen at a time, as a program would.
bool IsLastOfBatch(const Job &job, unsigned i) {
  return job.width * job.height > 20000 || (i & 15) == 15;
}

Contender Fill(const Job &job, const SharedTarget &target) {
  const SDL_Color ink = ColourOf(kInk, 255);
  const uint32_t pixel = SDL_MapRGBA(target->surface->format, ink.r, ink.g, ink.b, ink.a);
  return {"SDL", [job, target, pixel](unsigned i) {
            const auto [x, y] = SpotOf(job, i);
            const SDL_Rect box = {x, y, job.width, job.height};
            SDL_FillRect(target->surface, &box, pixel);
          }};
}

template <class Draw>
Contender Render(const Job &job, const SharedTarget &target, SDL_BlendMode blend, Draw draw) {
  return {"SDL",
          [job, target, draw](unsigned i) {
            draw(target->renderer, SpotOf(job, i));
            if (IsLastOfBatch(job, i)) SDL_RenderFlush(target->renderer);
          },
          [job, target, blend] {
            const SDL_Color ink = ColourOf(kInk, OpacityOf(job));
            SDL_SetRenderDrawBlendMode(target->renderer, blend);
            SDL_SetRenderDrawColor(target->renderer, ink.r, ink.g, ink.b, ink.a);
          },
          [target] { SDL_RenderFlush(target->renderer); }};
}

Contender RenderTriangle(const Job &job, const SharedTarget &target, SDL_BlendMode blend) {
  const auto corners = CornersOf(job);
  std::array<SDL_Vertex, 3> shape{};
  for (size_t k = 0; k < shape.size(); ++k) {
    shape[k].position = {static_cast<float>(corners[k].x), static_cast<float>(corners[k].y)};
    shape[k].color = ColourOf(job.IsGouraud() ? kCornerColours[k] : kInk, OpacityOf(job));
  }
  return Render(job, target, blend, [shape](SDL_Renderer *renderer, Point spot) {
    std::array<SDL_Vertex, 3> moved = shape;
    for (SDL_Vertex &vertex : moved) {
      vertex.position.x += static_cast<float>(spot.x);
      vertex.position.y += static_cast<float>(spot.y);
    }
    SDL_RenderGeometry(renderer, nullptr, moved.data(), 3, nullptr, 0);
  });
}

using Surface = std::shared_ptr<SDL_Surface>;

Surface SourceOf(const Job &job, const Picture &picture, SDL_BlendMode blend) {
  Surface source(
      SurfaceOf(picture.pixels, picture.width, picture.height, picture.Pitch(), picture.format),
      SDL_FreeSurface);
  SDL_SetSurfaceBlendMode(source.get(), job.HasAlpha() ? SDL_BLENDMODE_BLEND : blend);
  if (job.mode == DRAW_HALF) SDL_SetSurfaceAlphaMod(source.get(), OpacityOf(job));
  if (job.IsKeyed()) {
    SDL_SetColorKey(source.get(), SDL_TRUE,
                    SDL_MapRGB(source->format, kMaskColour >> 16 & 0xFF, kMaskColour >> 8 & 0xFF,
                               kMaskColour & 0xFF));
  }
  return source;
}

// A shape of vertices, given by its corners and by their texels from 0 to 1.
std::vector<SDL_Vertex> VerticesOf(const Job &job, const Picture &picture) {
  std::vector<SDL_Vertex> shape;
  const auto add = [&shape](Point corner, float u, float v) {
    shape.push_back({{static_cast<float>(corner.x), static_cast<float>(corner.y)},
                     {255, 255, 255, 255},
                     {u, v}});
  };
  if (job.kind == Kind::kTexturedTriangle) {
    const auto corners = CornersOf(job);
    const auto texels = TexelsOf(job, picture);
    for (size_t k = 0; k < 3; ++k) {
      add(corners[k], (texels[k].x + 0.5F) / static_cast<float>(picture.width),
          (texels[k].y + 0.5F) / static_cast<float>(picture.height));
    }
    return shape;
  }
  const auto corners = TurnedCorners(job);
  for (const size_t k : {0, 1, 2, 0, 2, 3}) {
    add(corners[k], k == 1 || k == 2 ? 1 : 0, k >= 2 ? 1 : 0);
  }
  return shape;
}

Contender RenderTextured(const Job &job, const SharedTarget &target) {
  const Picture picture = Picture::Of(job);
  const Surface source = SourceOf(job, picture, SDL_BLENDMODE_NONE);
  const std::shared_ptr<SDL_Texture> texture(
      SDL_CreateTextureFromSurface(target->renderer, source.get()),
      [target](SDL_Texture *owned) { SDL_DestroyTexture(owned); });
  if (!job.IsKeyed()) SDL_SetTextureBlendMode(texture.get(), SDL_BLENDMODE_NONE);
  return Render(job, target, SDL_BLENDMODE_NONE,
                [texture, shape = VerticesOf(job, picture)](SDL_Renderer *renderer, Point spot) {
                  std::array<SDL_Vertex, 6> moved;
                  for (size_t k = 0; k < shape.size(); ++k) {
                    moved[k] = shape[k];
                    moved[k].position.x += static_cast<float>(spot.x);
                    moved[k].position.y += static_cast<float>(spot.y);
                  }
                  SDL_RenderGeometry(renderer, texture.get(), moved.data(),
                                     static_cast<int>(shape.size()), nullptr, 0);
                });
}

std::vector<Contender> Copy(const Job &job, const SharedTarget &target, SDL_BlendMode blend) {
  const Surface source = SourceOf(job, Picture::Of(job), blend);
  // Stretching with a filter is for 32 bits only.
  const bool isStretch = job.IsScaling();
  if (isStretch && job.IsBilinear() && job.source != BRSL_FORMAT_X32) return {};
  return {{"SDL", [=](unsigned i) {
             const auto [x, y] = SpotOf(job, i);
             SDL_Rect box = {x, y, job.width, job.height};
             if (!isStretch) {
               SDL_BlitSurface(source.get(), nullptr, target->surface, &box);
             } else if (job.IsBilinear()) {
               SDL_SoftStretchLinear(source.get(), nullptr, target->surface, &box);
             } else {
               SDL_SoftStretch(source.get(), nullptr, target->surface, &box);
             }
           }}};
}

// A surface for each letter: in the ink's colour with alpha; hard ones of the target's format, without
// the colour around them, which are quicker to draw.
std::vector<Surface> LettersOf(const Job &job, const SharedTarget &target) {
  std::vector<Surface> surfaces;
  for (const Letter &letter : Letters(job)) {
    Surface surface(
        SDL_CreateRGBSurfaceWithFormat(0, kGlyphSize, kGlyphSize, 32, SDL_PIXELFORMAT_ARGB8888),
        SDL_FreeSurface);
    auto *const pixels = static_cast<uint32_t *>(surface->pixels);
    for (size_t k = 0; k < letter.size(); ++k) {
      pixels[k] = (kInk & 0xFFFFFF) | static_cast<uint32_t>(letter[k]) << 24;
      if (job.kind == Kind::kHardText && letter[k] == 0) pixels[k] = 0xFF000000 | kMaskColour;
    }
    if (job.kind == Kind::kHardText) {
      surface.reset(SDL_ConvertSurface(surface.get(), target->surface->format, 0), SDL_FreeSurface);
      SDL_SetSurfaceBlendMode(surface.get(), SDL_BLENDMODE_NONE);
      SDL_SetColorKey(surface.get(), SDL_TRUE,
                      SDL_MapRGB(surface->format, kMaskColour >> 16 & 0xFF, kMaskColour >> 8 & 0xFF,
                                 kMaskColour & 0xFF));
      SDL_SetSurfaceRLE(surface.get(), 1);
    }
    surfaces.push_back(surface);
  }
  return surfaces;
}

std::vector<Contender> Text(const Job &job, const SharedTarget &target) {
  return {{"SDL", [=, letters = LettersOf(job, target)](unsigned i) {
             const auto [x, y] = SpotOf(job, i);
             for (int n = 0; n < kGlyphs; ++n) {
               SDL_Rect place = {x + PlaceOf(n).x, y + PlaceOf(n).y, kGlyphSize, kGlyphSize};
               SDL_BlitSurface(letters[LetterAt(n)].get(), nullptr, target->surface, &place);
             }
           }}};
}

std::vector<Contender> Offer(const Job &job, const Canvas &canvas) {
  SDL_BlendMode blend;
  if (!BlendOf(job, &blend)) return {};
  const auto target = std::make_shared<Target>(canvas);
  if (!target->surface || !target->renderer) return {};
  switch (job.kind) {
    case Kind::kBox:
    case Kind::kStrip:
      if (blend == SDL_BLENDMODE_NONE) return {Fill(job, target)};
      return {Render(job, target, blend, [job](SDL_Renderer *renderer, Point spot) {
        const SDL_Rect box = {spot.x, spot.y, job.width, job.height};
        SDL_RenderFillRect(renderer, &box);
      })};
    case Kind::kTriangle:
    case Kind::kGouraudTriangle: return {RenderTriangle(job, target, blend)};
    case Kind::kLine:
      return {Render(job, target, blend, [job](SDL_Renderer *renderer, Point spot) {
        SDL_RenderDrawLine(renderer, spot.x, spot.y, spot.x + job.width - 1,
                           spot.y + job.height - 1);
      })};
    case Kind::kBlit:
    case Kind::kTexture:
    case Kind::kScale:
    case Kind::kBilinearScale:
    case Kind::kWeighedScale: return Copy(job, target, blend);
    case Kind::kTexturedTriangle:
    case Kind::kSprite: return {RenderTextured(job, target)};
    case Kind::kSoftText:
    case Kind::kHardText: return Text(job, target);
    default: return {};
  }
}

const Peer kSdl(Offer);

}  // namespace
}  // namespace brisal::bench
