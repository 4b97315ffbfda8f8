#include "poly/pipeline.h"

#include <cstdlib>

namespace brisal {
namespace {

enum EffectCode {
  kMultiply = 1,
  kAdd = 2,
  kSubtract = 3,
  kBlend = 4,
  kAverageInput = 5,
  kAddInput = 6,
  kMultiplyInput = 7,
  kFill = 10,
  kAnd = 11,
  kOr = 12,
  kReplace = 15,
};

TPD_TexelEffect OnTexels(int32_t code, uint32_t a, uint32_t b, uint32_t c) {
  return {code, TPD_TEXELS, TPD_TEXELS, a, b, c, 0};
}

}  // namespace

Pipeline *AllocPipeline() {
  auto *pipeline = static_cast<Pipeline *>(std::calloc(1, sizeof(Pipeline)));
  if (pipeline == nullptr) return nullptr;
  pipeline->maskCompression = 1;
  pipeline->outputEffect = 1;
  return pipeline;
}

void FreePipeline(Pipeline *pipeline) { std::free(pipeline); }

void AddTexelEffect(Pipeline *pipeline, const TPD_TexelEffect &effect) {
  if (pipeline->effectCount < 0 || pipeline->effectCount >= TPD_MAX_EFFECTS) return;
  pipeline->effects[pipeline->effectCount++] = effect;
}

void ResetTexelEffects(Pipeline *pipeline) {
  pipeline->effectCount = 0;
  for (TPD_TexelEffect &effect : pipeline->effects) effect.code = 0;
}

bool SetOutputEffect(Pipeline *pipeline, int32_t code, int32_t argument, int32_t level) {
  const bool known = 1 <= code && code <= 5;
  const bool nothing = !known || (code == 2 && level == 0);
  const bool plain = code == 2 && static_cast<uint32_t>(level) >= 254;
  pipeline->outputEffect = nothing ? 0 : plain ? 1 : code;
  pipeline->outputArgument = nothing ? 0 : argument;
  pipeline->outputLevel = pipeline->outputEffect == 2 ? level : 0;
  return known;
}

void UpdateSpriteDrawMode(Pipeline *pipeline, uint32_t spriteMode, uint32_t tint, uint32_t colour,
                          int32_t level) {
  pipeline->maskFlag = spriteMode & 1;
  pipeline->filterFlag = static_cast<int32_t>(spriteMode >> 31);
  pipeline->gouraudState = 0;
  ResetTexelEffects(pipeline);
  if ((tint & 0xFFFFF) != 0xFFFFF) AddTexelEffect(pipeline, OnTexels(kMultiply, tint, 0, 0));

  const uint32_t amount = static_cast<uint32_t>(level);
  const auto add = [&](uint32_t bit, int32_t code, uint32_t a, uint32_t b = 0, uint32_t c = 0) {
    if ((spriteMode & bit) != 0) AddTexelEffect(pipeline, OnTexels(code, a, b, c));
  };
  const auto shade = [&](uint32_t bit, int32_t code) {
    if ((spriteMode & bit) == 0) return;
    AddTexelEffect(pipeline, {code, TPD_GOURAUD, TPD_TEXELS, colour, 0, amount, 0});
    pipeline->gouraudState = 1;
  };
  add(0x40, kMultiply, amount);
  add(0x400, kFill, colour);
  if (level < 1) add(0x800, kFill, colour);
  if (1 <= level && level < 255) add(0x800, kBlend, colour, amount);
  add(0x1000, kAdd, colour);
  add(0x2000, kSubtract, colour);
  add(0x10000, kAnd, colour);
  add(0x20000, kOr, colour);
  add(0x4000, kReplace, colour, 0, amount);
  shade(0x80, kMultiplyInput);
  shade(0x100, kAverageInput);
  shade(0x200, kAddInput);
}

}  // namespace brisal
