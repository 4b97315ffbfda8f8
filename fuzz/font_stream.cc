// Bytes of any kind as a stream of a font: loaded, drawn, measured, written and given back.
#include <algorithm>
#include <cstring>
#include <vector>

#include "brisal/brisal.h"
#include "fuzz/check.h"
#include "support/glyphs.h"
#include "support/shown_font.h"

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t limit);

namespace {

// What mutations begin with: a stream that the library wrote.
std::vector<uint8_t> SoundStream(uint64_t seed) {
  Random random(seed);
  const int32_t depth = seed % 2 == 0 ? 8 : 32;
  FrugalHost host;
  CRF_Font *const font = CRF_Alloc(kShownCodes);
  CRF_SetChrDepth(font, depth);
  for (int32_t code = 0; code < kShownCodes; code += 2) {
    CRF_SetChrBmp(font, code, host.NewBlock(RandomGlyph(random, depth)));
  }
  CRF_Write(font, host.Open(kFileNames[0]));
  CRF_Free(font);
  return host.files[kFileNames[0]];
}

}  // namespace

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t limit, unsigned seed) {
  if (size > 8 && seed % 16 != 0) return LLVMFuzzerMutate(data, size, limit);
  const std::vector<uint8_t> stream = SoundStream(seed);
  const size_t fitting = std::min(stream.size(), limit);
  std::memcpy(data, stream.data(), fitting);
  return fitting;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  static const bool ready = BRSL_Init_Lib() != 0;
  if (!ready) return -1;
  FrugalHost host;
  host.files[kFileNames[0]].assign(data, data + size);
  CRF_Font *const font = CRF_Read(host.Open(kFileNames[0]));
  if (font != nullptr) {
    CRF_Write(font, host.Open(kFileNames[1]));
    ShowFont(font);
  }
  CRF_Free(font);
  Check(host.LiveBlocks() == 0, "blocks of the host are left");
  Check(host.mistakes == 0, "the host was asked for what it does not have");
  return 0;
}
