// Bytes of any kind as a stream of a font: loaded, drawn, measured, written and given back.
#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "brisal/brisal.h"
#include "fuzz/check.h"
#include "support/glyphs.h"
#include "support/recording_host.h"

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t limit);

namespace {

constexpr int32_t kCodes = 6;

// A host that has a megabyte at most for whoever asks.
class Host : public RecordingHost {
 public:
  Host() {
    Activate();
    BRSL_HostRecord record = Record();
    record.memory.call.AllocMemory = [](int32_t size) -> uintptr_t {
      return size <= 1 << 20 ? Record().memory.call.AllocMemory(size) : 0;
    };
    GCF_Retrieve(&record);
  }
};

void Show(CRF_Font *font) {
  std::vector<uint8_t> target(20 * 12 * 4);
  BRSL_SetBuffer(target.data(), 20 * 4, BRSL_FORMAT_A32);
  BRSL_SetBufferViewPort(0, 0, 20, 12);
  const std::string text = {0, 1, 2, 3, 4, 5};
  for (const int32_t depth : {8, 32}) {
    CRF_SetChrDepth(font, depth);
    CRF_SetMaxChrSize(font, 1 << 20, 1 << 20);
    for (const int32_t x : {-70000, -9, 1, 15}) {
      for (const int32_t y : {-70000, -3, 2}) CRF_Draw(font, text.data(), kCodes, x, y, 0x80FF8040);
    }
    CRF_TextWidth(font, text.data(), kCodes);
    CRF_TextHeight(font, text.data(), kCodes, 1);
  }
}

// What mutations begin with: a stream that the library wrote.
std::vector<uint8_t> SoundStream(uint64_t seed) {
  Random random(seed);
  const int32_t depth = seed % 2 == 0 ? 8 : 32;
  Host host;
  CRF_Font *const font = CRF_Alloc(kCodes);
  CRF_SetChrDepth(font, depth);
  for (int32_t code = 0; code < kCodes; code += 2) {
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
  Host host;
  host.files[kFileNames[0]].assign(data, data + size);
  CRF_Font *const font = CRF_Read(host.Open(kFileNames[0]));
  if (font != nullptr) {
    CRF_Write(font, host.Open(kFileNames[1]));
    Show(font);
  }
  CRF_Free(font);
  Check(host.LiveBlocks() == 0, "blocks of the host are left");
  Check(host.mistakes == 0, "the host was asked for what it does not have");
  return 0;
}
