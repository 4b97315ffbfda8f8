#include "poly/texture_spans.h"

#include <algorithm>
#include <cstring>

#include "pixel/blit_kernels.h"
#include "pixel/format.h"
#include "pixel/span_kernels.h"
#include "pixel/texel_kernels.h"

namespace brisal {
namespace {

static_assert(GouraudBuffer::kPiece == kPiece);

TexelPath PathOf(const Surface &texture) {
  TexelPath path = {};
  path.address = static_cast<const uint8_t *>(texture.address);
  path.pitch = texture.pitch;
  path.width = texture.width;
  path.height = texture.height;
  path.storedKey = MaskAsStored(texture.maskColour, texture.format);
  path.texelKey = MaskAsColour(texture.maskColour, texture.format);
  return path;
}

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
                 GouraudBuffer &gouraud)
      : canvas_(canvas),
        pipeline_(pipeline),
        gouraud_(gouraud),
        path_(PathOf(texture)),
        keepsTarget_((pipeline.maskFlag & 1) != 0),
        usesShades_(UsesShades()),
        pixelBytes_(BytesPerPixel(canvas.target.format)),
        maskPacked_(PackColour(path_.texelKey, canvas.target.format)) {
    const bool compressed = pipeline.maskCompression == 1;
    // A plain copy leaves mask-coloured texels out whatever the compression.
    const bool direct = IsDirect(texture);
    fetch_ = FindFetchKernel(canvas.wide, texture.format, pipeline.filterFlag == 1,
                             direct ? keepsTarget_ : compressed);
    fillsGaps_ = !keepsTarget_ && compressed && !direct;
    output_ = FindOutputKernel(canvas.wide, OutputOf(texture), canvas.target.format);
    findMaskRow_ = FindMaskKernel(texture.format);
    fillGap_ = FindBlockKernel(canvas.wide, Rule::kSolid, canvas.target.format);
    ramp_ = FindRampKernel(canvas.wide);
    keyed_ = keepsTarget_ && (compressed || direct);
    // Where gaps are filled, it is with what the texels there are anyway.
    if (CopiesStored(texture)) copy_ = FindCopyKernel(canvas.wide, texture.format, keyed_);
  }

  bool Draws() const { return pipeline_.outputEffect != 0 && fetch_ && output_; }

  void Draw(const Span *spans, int64_t count) {
    if (copy_ != nullptr) return copy_(path_, spans, count, canvas_.target, fillsGaps_);
    for (int64_t i = 0; i < count; ++i) DrawSpan(spans[i]);
  }

  bool CopyBlock(const Viewport &part, int64_t x, int64_t y) const {
    if (copy_ == nullptr) return false;
    int32_t top = part.top;
    TexelPath path = path_;
    path.u = static_cast<uint32_t>((part.left - x) * 65536);
    path.du = 0x10000;
    const ptrdiff_t width = ptrdiff_t{part.right} - part.left;
    while (fillsGaps_ && top < part.bottom) {
      path.v = static_cast<uint32_t>((top - y) * 65536);
      const int32_t shown = findMaskRow_(path, width, part.bottom - top);
      CopyRows({part.left, top, part.right, top + shown}, x, y);
      top += shown + 1;
    }
    if (!fillsGaps_) CopyRows(part, x, y);
    return true;
  }

 private:
  void CopyRows(const Viewport &part, int64_t x, int64_t y) const {
    const Buffer &target = canvas_.target;
    const Transfer transfer = {
        target.Row(part.top) + ByteOffset(part.left, pixelBytes_),
        target.pitch,
        path_.address + (part.top - y) * path_.pitch + (part.left - x) * pixelBytes_,
        path_.pitch,
        ptrdiff_t{part.right} - part.left,
        int64_t{part.bottom} - part.top};
    FindBlitKernel(canvas_.wide, target.format, target.format, keyed_)(transfer, path_.storedKey);
  }

  void DrawSpan(const Span &span) {
    const int64_t width = int64_t{span.right} - span.left;
    if (width < 1) return;
    // A span of nothing but mask colour draws nothing, even where gaps are filled with it.
    if (fillsGaps_ && findMaskRow_(PathAt(span, 0), width, 1) == 0) return;
    shaded_ = 0;
    for (int64_t first = 0; first < width; first += kPiece) {
      DrawPiece(span, first, static_cast<int>(std::min<int64_t>(width - first, kPiece)));
    }
  }

  bool IsDirect(const Surface &texture) const {
    return texture.format == BRSL_FORMAT_X32 && canvas_.target.format == BRSL_FORMAT_X32 &&
           pipeline_.outputEffect == 1 && pipeline_.filterFlag == 0 && EffectCount() == 0;
  }

  // Whether texels reach the target as they are stored and leave nothing behind. Those of 5:5:5 lose a
  // bit on the way.
  bool CopiesStored(const Surface &texture) const {
    if (IsDirect(texture)) return true;
    const bool plain = !keepsTarget_ || texture.format != BRSL_FORMAT_A32;
    return plain && texture.format == canvas_.target.format && texture.format != BRSL_FORMAT_555 &&
           OutputOf(texture) == Output::kPlain && pipeline_.filterFlag != 1 &&
           pipeline_.gouraudState != 1 && EffectCount() == 0;
  }

  bool UsesShades() const {
    const TPD_TexelEffect *const end = pipeline_.effects + EffectCount();
    return pipeline_.gouraudState == 1 ||
           std::any_of(pipeline_.effects, end, [](const TPD_TexelEffect &effect) {
             return ((effect.input | effect.output) & 1) == TPD_GOURAUD;
           });
  }

  int EffectCount() const {
    int count = 0;
    while (count < TPD_MAX_EFFECTS && pipeline_.effects[count].code != 0) ++count;
    return count;
  }

  Output OutputOf(const Surface &texture) const {
    if (!keepsTarget_) {
      const bool halves = pipeline_.outputEffect == 3 && pixelBytes_ == 4;
      return halves ? Output::kHalf : Output::kPlain;
    }
    if (texture.format == BRSL_FORMAT_A32) return Output::kOwnAlpha;
    switch (pipeline_.outputEffect) {
      case 2: return Output::kLevel;
      case 3: return Output::kHalf;
      case 4: return Output::kAdd;
      case 5: return Output::kSub;
      default: return Output::kPlain;
    }
  }

  TexelPath PathAt(const Span &span, int64_t first) const {
    TexelPath path = path_;
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
    if (fillsGaps_) FillGaps(runs, pixels, n);
    const uint32_t level = static_cast<uint32_t>(pipeline_.outputLevel);
    if (runs.count > 0) output_(texels, &runs, pixels, level);
  }

  void ChangeTexels(const Span &span, int64_t first, int n, const TexelRuns &runs,
                    uint32_t *texels) {
    if (!usesShades_) return ApplyEffects(texels, nullptr, n);
    // What belongs to the span is packed, as entries of the buffer outlive it.
    const bool hasGaps = runs.run[0].length < n;
    const int shown = hasGaps ? PackRuns(runs, texels, texels) : n;
    uint32_t *const shades = gouraud_.From(shaded_);
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
    for (int i = 0; i < EffectCount(); ++i) {
      const TPD_TexelEffect &effect = pipeline_.effects[i];
      const EffectKernel kernel = FindEffectKernel(canvas_.wide, effect.code);
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
  GouraudBuffer &gouraud_;
  TexelPath path_;
  bool keepsTarget_;
  bool usesShades_;
  bool keyed_;
  bool fillsGaps_;
  int pixelBytes_;
  uint32_t maskPacked_;
  FetchKernel fetch_;
  OutputKernel output_;
  MaskKernel findMaskRow_;
  BlockKernel fillGap_;
  RampKernel ramp_;
  int64_t shaded_ = 0;         // texels of the span so far
  CopyKernel copy_ = nullptr;  // where texels need no stages in between
};

}  // namespace

void DrawTexturedSpans(const Canvas &canvas, const Surface &texture, const Span *spans,
                       int64_t count, const Pipeline &pipeline, GouraudBuffer &gouraud) {
  TexturePainter painter(canvas, texture, pipeline, gouraud);
  if (painter.Draws()) painter.Draw(spans, count);
}

bool CopyTexture(const Canvas &canvas, const Surface &texture, const Viewport &part, int64_t x,
                 int64_t y, const Pipeline &pipeline, GouraudBuffer &gouraud) {
  const TexturePainter painter(canvas, texture, pipeline, gouraud);
  return painter.Draws() && painter.CopyBlock(part, x, y);
}

}  // namespace brisal
