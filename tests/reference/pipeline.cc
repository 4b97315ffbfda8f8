#include "reference/reference.h"

namespace reference {

TPD_Pipeline Pipeline() {
  TPD_Pipeline p{};
  p.maskCompression = 1;
  p.outputEffect = 1;
  return p;
}

int32_t AddTexelEffect(TPD_Pipeline *p, int32_t code, int32_t inputBuffer, int32_t outputBuffer,
                       uint32_t a, uint32_t b, uint32_t c, uint32_t d) {
  if (p && p->effectCount < TPD_MAX_EFFECTS) {
    p->effects[p->effectCount++] = {code, inputBuffer, outputBuffer, a, b, c, d};
  }
  return 0;
}

int32_t SetOutputEffect(TPD_Pipeline *p, int32_t code, int32_t argument, int32_t level) {
  if (!p) return 0;
  const bool known = code >= 1 && code <= 5;
  const bool nothing = !known || (code == 2 && level == 0);
  const bool mixes = code == 2 && level >= 1 && level <= 253;
  p->outputEffect = nothing ? 0 : code == 2 && !mixes ? 1 : code;
  p->outputArgument = nothing ? 0 : argument;
  p->outputLevel = mixes ? level : 0;
  return known;
}

void SetMaskCompression(TPD_Pipeline *p, int32_t on) {
  if (p) p->maskCompression = on & 1;
}

int32_t GetMaskCompression(const TPD_Pipeline *p) { return p ? p->maskCompression : 0; }
int32_t GetGouraudState(const TPD_Pipeline *p) { return p ? p->gouraudState : 0; }

int32_t UpdateSpriteDrawMode(TPD_Pipeline *p, uint32_t spriteMode, uint32_t tint, uint32_t colour,
                             int32_t level) {
  if (!p) return 0;
  p->maskFlag = spriteMode & 1;
  p->filterFlag = spriteMode >> 31;
  p->gouraudState = 0;
  p->effectCount = 0;
  for (TPD_TexelEffect &effect : p->effects) effect.code = 0;
  const auto add = [&](int32_t code, uint32_t a, uint32_t b = 0, uint32_t c = 0) {
    AddTexelEffect(p, code, TPD_TEXELS, TPD_TEXELS, a, b, c, 0);
  };
  const auto shade = [&](int32_t code) {
    AddTexelEffect(p, code, TPD_GOURAUD, TPD_TEXELS, colour, 0, static_cast<uint32_t>(level), 0);
    p->gouraudState = 1;
  };
  const auto amount = static_cast<uint32_t>(level);
  if ((tint & 0xFFFFF) != 0xFFFFF) add(1, tint);
  if (spriteMode & 0x40) add(1, amount);
  if (spriteMode & 0x400) add(10, colour);
  if (spriteMode & 0x800 && level < 1) add(10, colour);
  if (spriteMode & 0x800 && level >= 1 && level < 255) add(4, colour, amount);
  if (spriteMode & 0x1000) add(2, colour);
  if (spriteMode & 0x2000) add(3, colour);
  if (spriteMode & 0x10000) add(11, colour);
  if (spriteMode & 0x20000) add(12, colour);
  if (spriteMode & 0x4000) add(15, colour, 0, amount);
  if (spriteMode & 0x80) shade(7);
  if (spriteMode & 0x100) shade(5);
  if (spriteMode & 0x200) shade(6);
  return 1;
}

}  // namespace reference
