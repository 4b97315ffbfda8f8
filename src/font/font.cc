#include "font/font.h"

#include <algorithm>
#include <cstddef>

#include "font/block_map.h"

static_assert(sizeof(CRF_ChrInfo) == 32 && offsetof(CRF_ChrInfo, host) == 12);
static_assert(offsetof(CRF_Font, info) == 24 && sizeof(CRF_Font) == 24 + 2 * sizeof(void *));

namespace brisal {
namespace {

constexpr uint32_t kOpaqueBlack = 0xFF000000;

void FreeAddress(const HostServices &services, const void *address) {
  services.memory.FreeMemoryAddress(reinterpret_cast<uintptr_t>(address));
}

bool IsHeld(const Font &font, const uint8_t *bitmap) {
  return std::find(font.bitmaps, font.bitmaps + font.count, bitmap) != font.bitmaps + font.count;
}

void ReleaseBitmap(const HostServices &services, Font &font, int32_t code) {
  uint8_t *bitmap = font.bitmaps[code];
  font.bitmaps[code] = nullptr;
  if (bitmap != nullptr && IsHeld(font, bitmap)) return;
  FreeAddress(services, bitmap);
}

// As releasing code after code does, without looking for other holders each time.
void ReleaseBitmaps(const HostServices &services, Font &font) {
  BlockMap<SameAddress> lastHolder(font.count);
  if (!lastHolder.HasRoom()) {
    for (int32_t code = 0; code < font.count; ++code) ReleaseBitmap(services, font, code);
    return;
  }
  for (int32_t code = 0; code < font.count; ++code) {
    if (font.bitmaps[code] != nullptr) lastHolder.At(font.bitmaps[code]) = code;
  }
  for (int32_t code = 0; code < font.count; ++code) {
    const uint8_t *bitmap = font.bitmaps[code];
    if (bitmap == nullptr || lastHolder.At(bitmap) == code) FreeAddress(services, bitmap);
  }
}

}  // namespace

Font *AllocFont(const HostServices &services, int32_t count) {
  if (count <= 0) return nullptr;
  count = std::min(count, Font::kMostCharacters);
  auto *font = static_cast<Font *>(services.AllocateAt(sizeof(Font)));
  if (font == nullptr) return nullptr;
  *font = {count, 0, 0, 0, 0, kOpaqueBlack, nullptr, nullptr};
  font->info = static_cast<ChrInfo *>(services.AllocateAt(int64_t{count} * sizeof(ChrInfo)));
  if (font->info != nullptr) {
    font->bitmaps =
        static_cast<uint8_t **>(services.AllocateAt(int64_t{count} * sizeof(uint8_t *)));
  }
  if (font->bitmaps != nullptr) return font;
  FreeFont(services, font);
  return nullptr;
}

void FreeFont(const HostServices &services, Font *font) {
  if (font != nullptr && font->info != nullptr) FreeAddress(services, font->info);
  if (font != nullptr && font->bitmaps != nullptr) {
    ReleaseBitmaps(services, *font);
    FreeAddress(services, font->bitmaps);
  }
  FreeAddress(services, font);
}

void SetBitmap(const HostServices &services, Font &font, int32_t code, uint8_t *bitmap) {
  if (!font.Has(code)) return;
  if (bitmap != nullptr && font.bitmaps[code] == bitmap) return;
  ReleaseBitmap(services, font, code);
  font.bitmaps[code] = bitmap;
}

}  // namespace brisal
