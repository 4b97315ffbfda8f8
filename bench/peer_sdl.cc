#include <SDL.h>

#include <memory>

#include "bench/canvas.h"

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

struct Target {
  SDL_Surface *surface;
  SDL_Renderer *renderer;

  explicit Target(const Canvas &canvas) {
    const Masks &masks = kMasks[canvas.format - 1];
    const int depth = canvas.format == BRSL_FORMAT_555 ? 15 : canvas.bytesPerPixel * 8;
    surface =
        SDL_CreateRGBSurfaceFrom(canvas.pixels, Canvas::kWidth, Canvas::kHeight, depth,
                                 canvas.pitch, masks.red, masks.green, masks.blue, masks.alpha);
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
    default: return {};
  }
}

const Peer kSdl(Offer);

}  // namespace
}  // namespace brisal::bench
