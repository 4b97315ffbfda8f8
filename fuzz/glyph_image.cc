// Plain images of glyphs of any size and content, compressed as the reference compresses them, and drawn.
#include <algorithm>
#include <cstring>
#include <vector>

#include "brisal/brisal.h"
#include "fuzz/check.h"
#include "reference/fonts.h"
#include "support/recording_host.h"

namespace {

// The size and depth come from the first bytes, the pixels from the others, over and over.
std::vector<uint8_t> ImageOf(const uint8_t *data, size_t size) {
  const int32_t width = data[0] % 40;
  const int32_t height = data[1] % 40;
  const int32_t depth = data[2] % 2 == 0 ? 8 : 32;
  const int32_t header[] = {width, height, depth, 0};
  std::vector<uint8_t> image(sizeof header + static_cast<size_t>(width * height * depth / 8));
  std::memcpy(image.data(), header, sizeof header);
  for (size_t i = sizeof header; i < image.size(); ++i) image[i] = data[3 + i % (size - 3)];
  return image;
}

template <class Compress>
std::vector<uint8_t> Compressed(Compress compress, const std::vector<uint8_t> &image) {
  RecordingHost host;
  host.Activate();
  const uintptr_t handle = compress(image.data());
  return handle == 0 ? std::vector<uint8_t>{} : host.Take(handle);
}

void Draw(const std::vector<uint8_t> &block, int32_t depth) {
  RecordingHost host;
  host.Activate();
  CRF_Font *const font = CRF_Alloc(1);
  CRF_SetChrDepth(font, depth);
  CRF_SetMaxChrSize(font, 40, 40);
  CRF_DrawMode(font, 1);
  CRF_SetChrBmp(font, 0, host.NewBlock(block));
  std::vector<uint8_t> target(24 * 18 * 4);
  BRSL_SetBuffer(target.data(), 24 * 4, BRSL_FORMAT_X32);
  BRSL_SetBufferViewPort(0, 0, 24, 18);
  for (const int32_t at : {-7, 3, 17}) CRF_Draw(font, "\0", 1, at, at, 0x80FF8040);
  CRF_Free(font);
  Check(host.LiveBlocks() == 0, "blocks of the host are left");
}

bool Prepare() {
  BRSL_Init_Lib();
  GCF_Retrieve(&RecordingHost::Record());
  reference::RetrieveServices(&RecordingHost::Record());
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  static const bool ready = Prepare();
  if (!ready || size < 4) return -1;
  const std::vector<uint8_t> image = ImageOf(data, size);
  const std::vector<uint8_t> block = Compressed(CRF_CompressChr, image);
  Check(block == Compressed(reference::Compress, image), "the reference compresses otherwise");
  if (!block.empty()) Draw(block, data[2] % 2 == 0 ? 8 : 32);
  return 0;
}
