#include <memory>

#include "bench/collision.h"
#include "bench/contenders.h"
#include "bench/picture.h"
#include "bench/text.h"

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

using Surface = std::shared_ptr<BRSL_SurfaceDesc>;

Surface SurfaceOf(const Picture &picture) {
  Surface surface(BRSL_AllocSurfaceDesc(picture.format, picture.pixels, picture.Pitch(),
                                        picture.width, picture.height),
                  BRSL_FreeSurfaceDesc);
  BRSL_SetSurfaceDescMaskColour(surface.get(), kMaskColour);
  return surface;
}

// The job's box at each place that it wanders to.
std::vector<Surface> Boxes(const Job &job, const Canvas &canvas) {
  std::vector<Surface> boxes;
  for (unsigned i = 0; i < 32; ++i) {
    const auto [x, y] = SpotOf(job, i);
    boxes.emplace_back(
        BRSL_AllocSurfaceDesc(canvas.format, canvas.At(x, y), canvas.pitch, job.width, job.height),
        BRSL_FreeSurfaceDesc);
  }
  return boxes;
}

std::function<void(unsigned)> Blit(const Job &job, const Picture &picture) {
  BRSL_SetSrcBuffer(picture.pixels, picture.Pitch(), picture.format);
  const uint32_t flags = job.texels == Texels::kOpaque ? 0 : 1;
  return [job, flags](unsigned i) {
    const auto [x, y] = SpotOf(job, i);
    BRSL_Blit(0, 0, job.width, job.height, x, y, kMaskColour, flags);
  };
}

// The picture meets the target, which is the blend source too.
std::function<void(unsigned)> BlitWithEffect(const Job &job, const Canvas &canvas,
                                             const Picture &picture) {
  constexpr uint32_t kTimes = 8192;
  BRSL_SetSrcBuffer(picture.pixels, picture.Pitch(), picture.format);
  const uint32_t effect = job.mode == DRAW_MULT ? kTimes : job.mode;
  return [job, canvas, effect](unsigned i) {
    const auto [x, y] = SpotOf(job, i);
    BRSL_SetSrcBlendBuffer(canvas.At(x, y), canvas.pitch, canvas.format);
    BRSL_BlitFX(0, 0, job.width, job.height, x, y, 0, 0, effect, 0, 1, 0);
  };
}

std::function<void(unsigned)> DrawTextured(const Job &job, const Picture &picture) {
  constexpr uint32_t kMask = 1, kFilter = 0x80000000, kNoTint = 0xFFFFFFFF;
  const Surface texture = SurfaceOf(picture);
  const std::shared_ptr<TPD_Pipeline> pipeline(
      TPD_BuildSpriteDrawMode((job.IsKeyed() ? kMask : 0) | (job.IsBilinear() ? kFilter : 0),
                              kNoTint, 0, 0),
      TPD_Free);
  if (job.kind == Kind::kTexture) {
    return [=](unsigned i) {
      const auto [x, y] = SpotOf(job, i);
      BRSL_DrawTexture(texture.get(), x, y, pipeline.get());
    };
  }
  if (job.kind == Kind::kTexturedTriangle) {
    return [=, corners = CornersOf(job), texels = TexelsOf(job, picture)](unsigned i) {
      const auto &[a, b, c] = corners;
      const auto &[ta, tb, tc] = texels;
      const auto [x, y] = SpotOf(job, i);
      BRSL_TriT(texture.get(), x + a.x, y + a.y, ta.x, ta.y, x + b.x, y + b.y, tb.x, tb.y, x + c.x,
                y + c.y, tc.x, tc.y, pipeline.get());
    };
  }
  return
      [=, corners = TurnedCorners(job), u = picture.width - 1, v = picture.height - 1](unsigned i) {
        const auto &[a, b, c, d] = corners;
        const auto [x, y] = SpotOf(job, i);
        BRSL_DrawSpriteQuad(texture.get(), x + a.x, y + a.y, 0, 0, x + b.x, y + b.y, u, 0, x + c.x,
                            y + c.y, u, v, x + d.x, y + d.y, 0, v, pipeline.get(), 0);
      };
}

std::function<void(unsigned)> Scale(const Job &job, const Canvas &canvas, const Picture &picture) {
  const int mode = job.kind == Kind::kScale ? 0 : job.kind == Kind::kBilinearScale ? 1 : 1111;
  return [texture = SurfaceOf(picture), boxes = Boxes(job, canvas), mode](unsigned i) {
    BRSL_ScaleSurface(texture.get(), boxes[i & 31].get(), mode);
  };
}

template <class Filter>
std::function<void(unsigned)> Change(const Job &job, const Canvas &canvas, Filter filter) {
  return [boxes = Boxes(job, canvas), filter](unsigned i) { filter(boxes[i & 31].get()); };
}

std::function<void(unsigned)> CapturedBox(const Job &job) {
  const int flags = job.mode == DRAW_SOLID ? BRSL_FILLED : BRSL_FILLED | job.mode;
  return [job, flags](unsigned i) {
    const auto [x, y] = SpotOf(job, i);
    Scene_Record record;
    Scene_Write_Capture_Box(&record, flags, 500, 300, 500 + job.width, 300 + job.height, 0, kInk);
    Scene_Render_Captured_Box(&record, 500 - x, 300 - y);
  };
}

std::function<void(unsigned)> CapturedQuad(const Job &job, const Picture &picture) {
  const std::shared_ptr<TPD_Pipeline> pipeline(TPD_Alloc(), TPD_Free);
  return [job, pipeline, texture = SurfaceOf(picture), u = picture.width - 1,
          v = picture.height - 1](unsigned i) {
    const auto [x, y] = SpotOf(job, i);
    const int right = 500 + job.width;
    const int bottom = 300 + job.height;
    Scene_Record record;
    Scene_Write_Capture_QuadT(&record, 0, 500, 300, 0, 0, right, 300, u, 0, right, bottom, u, v,
                              500, bottom, 0, v, 0, 0, 2);
    Scene_Render_Captured_PolygonT(&record, 500 - x, 300 - y, texture.get(), pipeline.get());
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
    case Kind::kBlit:
      if (job.mode == DRAW_SOLID) return Blit(job, Picture::Of(job));
      return BlitWithEffect(job, canvas, Picture::Of(job));
    case Kind::kTexture:
    case Kind::kTexturedTriangle:
    case Kind::kSprite:
    case Kind::kBilinearQuad: return DrawTextured(job, Picture::Of(job));
    case Kind::kScale:
    case Kind::kBilinearScale:
    case Kind::kWeighedScale: return Scale(job, canvas, Picture::Of(job));
    case Kind::kBlur:
      return Change(job, canvas, [](BRSL_SurfaceDesc *box) { BRSL_FillRect_Blur(box, 9); });
    case Kind::kGrey: return Change(job, canvas, BRSL_FillRect_GreyScale);
    case Kind::kFade:
      return Change(job, canvas,
                    [](BRSL_SurfaceDesc *box) { BRSL_FillRect_Fade(box, kFadePercent); });
    case Kind::kCapturedBox: return CapturedBox(job);
    case Kind::kCapturedQuad: return CapturedQuad(job, Picture::Of(job));
    case Kind::kFilledCollision:
    case Kind::kTexturedCollision: return Collision(job);
    case Kind::kSoftText:
    case Kind::kHardText: return TextDrawing(job);
    case Kind::kFontLoad:
    case Kind::kFontSave: return FontTransfer(job);
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
