#include "support/shown_font.h"

#include <string>
#include <vector>

static uintptr_t BRSL_CALL AllocLittle(int32_t size) {
  return size <= 1 << 20 ? RecordingHost::Record().memory.call.AllocMemory(size) : 0;
}

FrugalHost::FrugalHost() {
  Activate();
  BRSL_HostRecord record = Record();
  record.memory.call.AllocMemory = AllocLittle;
  GCF_Retrieve(&record);
}

void ShowFont(CRF_Font *font) {
  std::vector<uint8_t> target(20 * 12 * 4);
  BRSL_SetBuffer(target.data(), 20 * 4, BRSL_FORMAT_A32);
  BRSL_SetBufferViewPort(0, 0, 20, 12);
  const std::string text = {0, 1, 2, 3, 4, 5};
  for (const int32_t depth : {8, 32}) {
    CRF_SetChrDepth(font, depth);
    CRF_SetMaxChrSize(font, 1 << 20, 1 << 20);
    for (const int32_t x : {-70000, -9, 1, 15}) {
      for (const int32_t y : {-70000, -3, 2}) {
        CRF_Draw(font, text.data(), kShownCodes, x, y, 0x80FF8040);
      }
    }
    CRF_TextWidth(font, text.data(), kShownCodes);
    CRF_TextHeight(font, text.data(), kShownCodes, 1);
  }
}
