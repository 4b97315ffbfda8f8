#include "poly/texture_spans.h"

#include <algorithm>
#include <cstring>

#include "pixel/format.h"
#include "pixel/span_kernels.h"
#include "pixel/texel_kernels.h"
#include "poly/stored_texels.h"

namespace brisal {
namespace {

static_assert(GouraudBuffer::kPiece == kPiece);

// Moves what belongs to the runs together, to where `packed` begins. Returns how many there are.
int PackRuns(const TexelRuns &runs, const uint32_t *values, uint32_t *packed) {
  int count = 0;
  for (int r = 0; r < runs.count; ++r) {
    const TexelRun &run = runs.run[r];
    std::memmove(packed + count, values + run.start,
                 sizeof *packed * static_cast<size_t>(run.length));
    count += run.length;
  }
  return count;
}

// Moves what was packed back to where it came from.
void UnpackRuns(const TexelRuns &runs, int count, uint32_t *values) {
  for (int r = runs.count; r-- > 0;) {
    const TexelRun &run = runs.run[r];
    count -= run.length;
    std::memmove(values + run.start, values + count,
                 sizeof *values * static_cast<size_t>(run.length));
  }
}

// Draws the spans of one call: texels are fetched, shaded, changed and written piece by piece.
class TexturePainter {
 public:
  TexturePainter(const Canvas &canvas, const Surface &texture, const Pipeline &pipeline,
                 const TexelPlan &plan, GouraudBuffer &gouraud)
      : canvas_(canvas),
        pipeline_(pipeline),
        plan_(plan),
        gouraud_(gouraud),
        pixelBytes_(BytesPerPixel(canvas.target.format)),
        maskPacked_(PackColour(plan.path.texelKey, canvas.target.format)),
        fetch_(
            FindFetchKernel(canvas.isa, texture.format, pipeline.filterFlag == 1, plan.cutsMask)),
        output_(FindOutputKernel(canvas.isa, plan.output, canvas.target.format)),
        findMaskRow_(FindMaskKernel(texture.format)),
        fillGap_(FindBlockKernel(canvas.isa, Rule::kSolid, canvas.target.format)),
        ramp_(FindRampKernel(canvas.isa)) {}

  void Draw(const Span *spans, int64_t count) {
    for (int64_t i = 0; i < count; ++i) DrawSpan(spans[i]);
  }

 private:
  void DrawSpan(const Span &span) {
    const int64_t width = int64_t{span.right} - span.left;
    if (width < 1) return;
    // A span of nothing but mask colour draws nothing, even where gaps are filled with it.
    if (plan_.FillsGaps() && findMaskRow_(PathAt(span, 0), width, 1) == 0) return;
    shaded_ = 0;
    for (int64_t first = 0; first < width; first += kPiece) {
      DrawPiece(span, first, static_cast<int>(std::min<int64_t>(width - first, kPiece)));
    }
  }

  TexelPath PathAt(const Span &span, int64_t first) const {
    TexelPath path = plan_.path;
    path.du = static_cast<uint32_t>(span.du);
    path.dv = static_cast<uint32_t>(span.dv);
    path.u = static_cast<uint32_t>(span.u) + path.du * static_cast<uint32_t>(first);
    path.v = static_cast<uint32_t>(span.v) + path.dv * static_cast<uint32_t>(first);
    return path;
  }

  void DrawPiece(const Span &span, int64_t first, int n) {
    uint32_t texels[kPiece];
    TexelRuns runs;
    const TexelPath path = PathAt(span, first);
    fetch_(&path, n, texels, &runs);
    if (runs.count > 0) ChangeTexels(span, first, n, runs, texels);
    uint8_t *pixels = canvas_.target.Row(span.y) + ByteOffset(span.left + first, pixelBytes_);
    if (plan_.FillsGaps()) FillGaps(runs, pixels, n);
    const uint32_t level = static_cast<uint32_t>(pipeline_.outputLevel);
    if (runs.count > 0) output_(texels, &runs, pixels, level);
  }

  void ChangeTexels(const Span &span, int64_t first, int n, const TexelRuns &runs,
                    uint32_t *texels) {
    if (!plan_.usesShades) return ApplyEffects(texels, nullptr, n);
    // What belongs to the span is packed, as entries of the buffer outlive it.
    const bool hasGaps = runs.run[0].length < n;
    const int shown = hasGaps ? PackRuns(runs, texels, texels) : n;
    uint32_t *const shades = gouraud_.From(shaded_, shown);
    if (pipeline_.gouraudState == 1) {
      uint32_t ramp[kPiece];
      ramp_(&span, first, n, hasGaps ? ramp : shades);
      if (hasGaps) PackRuns(runs, ramp, shades);
    }
    ApplyEffects(texels, shades, shown);
    if (hasGaps) UnpackRuns(runs, shown, texels);
    shaded_ += shown;
  }

  void ApplyEffects(uint32_t *texels, uint32_t *shades, int n) const {
    uint32_t *const buffers[] = {texels, shades};
    for (int i = 0; i < plan_.effects; ++i) {
      const TPD_TexelEffect &effect = pipeline_.effects[i];
      const EffectKernel kernel = FindEffectKernel(canvas_.isa, effect.code);
      if (kernel == nullptr) continue;
      const TexelEffect call = {buffers[effect.input & 1], buffers[effect.output & 1], effect.a,
                                effect.b, effect.c};
      kernel(&call, n);
    }
  }

  void FillGaps(const TexelRuns &runs, uint8_t *pixels, int n) const {
    int gap = 0;
    for (int r = 0; r < runs.count; ++r) {
      FillGap(pixels, gap, runs.run[r].start);
      gap = runs.run[r].start + runs.run[r].length;
    }
    FillGap(pixels, gap, n);
  }

  void FillGap(uint8_t *pixels, int32_t left, int32_t right) const {
    if (left >= right) return;
    fillGap_(pixels + ByteOffset(left, pixelBytes_), 0, right - left, 1, maskPacked_, 0);
  }

  const Canvas &canvas_;
  const Pipeline &pipeline_;
  const TexelPlan &plan_;
  GouraudBuffer &gouraud_;
  int pixelBytes_;
  uint32_t maskPacked_;
  FetchKernel fetch_;
  OutputKernel output_;
  MaskKernel findMaskRow_;
  BlockKernel fillGap_;
  RampKernel ramp_;
  int64_t shaded_ = 0;  // texels of the span so far
};

bool Draws(const Canvas &canvas, const Surface &texture, const Pipeline &pipeline) {
  return pipeline.outputEffect != 0 && IsFormat(texture.format) && IsFormat(canvas.target.format);
}

}  // namespace

void DrawTexturedSpans(const Canvas &canvas, const Surface &texture, const Span *spans,
                       int64_t count, const Pipeline &pipeline, GouraudBuffer &gouraud) {
  if (!Draws(canvas, texture, pipeline)) return;
  const TexelPlan plan(texture, pipeline, canvas.target.format);
  if (plan.copiesStored) return CopyStoredSpans(canvas, plan, spans, count);
  TexturePainter(canvas, texture, pipeline, plan, gouraud).Draw(spans, count);
}

bool CopyTexture(const Canvas &canvas, const Surface &texture, const Viewport &part, int64_t x,
                 int64_t y, const Pipeline &pipeline) {
  if (!Draws(canvas, texture, pipeline)) return true;
  const TexelPlan plan(texture, pipeline, canvas.target.format);
  // Blocks would keep bit 15 of 5:5:5.
  if (!plan.copiesStored || texture.format == BRSL_FORMAT_555) return false;
  CopyStoredBlock(canvas, plan, part, x, y);
  return true;
}

}  // namespace brisal
