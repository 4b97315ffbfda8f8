// The font object: its numbers, and who owns the blocks of its glyphs.
#include <algorithm>

#include "reference/fonts.h"

namespace reference {
namespace {

const BRSL_HostRecord *services = nullptr;

template <class T>
T *Take(int64_t size) {
  const uintptr_t block = services->memory.call.AllocMemory(static_cast<int32_t>(size));
  return reinterpret_cast<T *>(services->block.call.MemoryAddress(block));
}

void Release(void *address) {
  services->memory.call.FreeMemoryAddress(reinterpret_cast<uintptr_t>(address));
}

void ReleaseBitmap(CRF_Font *font, int32_t code) {
  uint8_t *const bitmap = font->bitmaps[code];
  font->bitmaps[code] = nullptr;
  uint8_t **const end = font->bitmaps + font->count;
  if (bitmap && std::find(font->bitmaps, end, bitmap) != end) return;
  Release(bitmap);
}

bool Has(const CRF_Font *font, int32_t code) { return font && code >= 0 && code < font->count; }

}  // namespace

void RetrieveServices(const BRSL_HostRecord *record) { services = record; }
const BRSL_HostRecord &Services() { return *services; }

CRF_Font *AllocFont(int32_t count) {
  if (count <= 0) return nullptr;
  count = std::min(count, 65536);
  auto *font = Take<CRF_Font>(sizeof(CRF_Font));
  if (!font) return nullptr;
  *font = {count, 0, 0, 0, 0, 0xFF000000, nullptr, nullptr};
  font->infos = Take<CRF_ChrInfo>(count * int64_t{32});
  if (font->infos) font->bitmaps = Take<uint8_t *>(count * int64_t{sizeof(uint8_t *)});
  if (font->bitmaps) return font;
  FreeFont(font);
  return nullptr;
}

void FreeFont(CRF_Font *font) {
  if (font && font->infos) Release(font->infos);
  if (font && font->bitmaps) {
    for (int32_t code = 0; code < font->count; code++) ReleaseBitmap(font, code);
    Release(font->bitmaps);
  }
  Release(font);
}

void SetChrDepth(CRF_Font *font, int32_t depth) {
  if (font) font->depth = depth;
}

void SetMaxChrSize(CRF_Font *font, int32_t width, int32_t height) {
  if (!font) return;
  font->maxWidth = width;
  font->maxHeight = height;
}

int32_t GetMaxChrSize(const CRF_Font *font, int32_t which) {
  if (!font) return 0;
  return which == 0 ? font->maxWidth : font->maxHeight;
}

void SetFontDrawMode(CRF_Font *font, int32_t mode) {
  if (font) font->drawMode = mode;
}
int32_t GetFontDrawMode(const CRF_Font *font) { return font ? font->drawMode : 0; }

void SetBackdropColour(CRF_Font *font, uint32_t colour) {
  if (font) font->backdrop = colour;
}
uint32_t GetBackdropColour(const CRF_Font *font) { return font ? font->backdrop : 0; }

CRF_ChrInfo *GetChrInfo(const CRF_Font *font, int32_t code) {
  return font ? font->infos + code : nullptr;
}

void SetChrBitmap(CRF_Font *font, int32_t code, void *bitmap) {
  if (!Has(font, code) || (bitmap && bitmap == font->bitmaps[code])) return;
  ReleaseBitmap(font, code);
  font->bitmaps[code] = static_cast<uint8_t *>(bitmap);
}

void *GetChrBitmap(const CRF_Font *font, int32_t code) {
  return Has(font, code) ? font->bitmaps[code] : nullptr;
}

int32_t GetUnderHang(const CRF_ChrInfo *info, int32_t code) {
  return info ? info[code].underHang : 0;
}
int32_t GetWidth(const CRF_ChrInfo *info, int32_t code) { return info ? info[code].width : 0; }
int32_t GetOverHang(const CRF_ChrInfo *info, int32_t code) {
  return info ? info[code].overHang : 0;
}

void SetUnderHang(CRF_ChrInfo *info, int32_t code, int32_t value) {
  if (info) info[code].underHang = value;
}
void SetWidth(CRF_ChrInfo *info, int32_t code, int32_t value) {
  if (info) info[code].width = value;
}
void SetOverHang(CRF_ChrInfo *info, int32_t code, int32_t value) {
  if (info) info[code].overHang = value;
}

}  // namespace reference
