#include "poly/texel_plan.h"

#include <algorithm>

#include "pixel/format.h"
#include "surface/texture_path.h"

namespace brisal {
namespace {

TexelPath PathOf(const Surface &texture) {
  TexelPath path = PathAlong(texture);
  path.storedKey = MaskAsStored(texture.maskColour, texture.format);
  path.texelKey = MaskAsColour(texture.maskColour, texture.format);
  return path;
}

int CountEffects(const Pipeline &pipeline) {
  int count = 0;
  while (count < TPD_MAX_EFFECTS && pipeline.effects[count].code != 0) ++count;
  return count;
}

Output OutputOf(const Surface &texture, const Pipeline &pipeline, int32_t targetFormat,
                bool keepsTarget) {
  if (!keepsTarget) {
    const bool halves = pipeline.outputEffect == 3 && BytesPerPixel(targetFormat) == 4;
    return halves ? Output::kHalf : Output::kPlain;
  }
  if (texture.format == BRSL_FORMAT_A32) return Output::kOwnAlpha;
  switch (pipeline.outputEffect) {
    case 2: return Output::kLevel;
    case 3: return Output::kHalf;
    case 4: return Output::kAdd;
    case 5: return Output::kSub;
    default: return Output::kPlain;
  }
}

bool UsesShades(const Pipeline &pipeline, int effects) {
  return pipeline.gouraudState == 1 ||
         std::any_of(pipeline.effects, pipeline.effects + effects, [](const auto &effect) {
           return ((effect.input | effect.output) & 1) == TPD_GOURAUD;
         });
}

}  // namespace

TexelPlan::TexelPlan(const Surface &texture, const Pipeline &pipeline, int32_t targetFormat)
    : path(PathOf(texture)), effects(CountEffects(pipeline)) {
  keepsTarget = (pipeline.maskFlag & 1) != 0;
  output = OutputOf(texture, pipeline, targetFormat, keepsTarget);
  usesShades = UsesShades(pipeline, effects);
  const bool alike = texture.format == targetFormat && pipeline.filterFlag != 1 && effects == 0;
  // Pipelines that do nothing to such texels leave the mask colour out whatever the compression, and
  // make no Gouraud colours.
  const bool direct = alike && texture.format == BRSL_FORMAT_X32 && pipeline.outputEffect == 1 &&
                      pipeline.filterFlag == 0;
  cutsMask = direct ? keepsTarget : pipeline.maskCompression == 1;
  copiesStored = direct || (alike && output == Output::kPlain && !usesShades);
}

}  // namespace brisal
