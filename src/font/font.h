#pragma once

#include <cstdint>

#include "brisal/brisal.h"
#include "core/host_services.h"

// Lies in the host's memory; the host knows it by its address.
struct CRF_Font {
  static constexpr int32_t kMostCharacters = 65536;

  int32_t count;
  int32_t drawMode;
  int32_t maxWidth;
  int32_t maxHeight;
  int32_t depth;
  uint32_t backdrop;
  CRF_ChrInfo *info;
  uint8_t **bitmaps;

  bool Has(int32_t code) const { return 0 <= code && code < count; }
  uint8_t *Bitmap(int32_t code) const { return Has(code) ? bitmaps[code] : nullptr; }
};

namespace brisal {

using Font = CRF_Font;
using ChrInfo = CRF_ChrInfo;

// Null where the count is not positive or the host has no memory.
Font *AllocFont(const HostServices &services, int32_t count);

// Releases each block once, however many codes hold it.
void FreeFont(const HostServices &services, Font *font);

// Takes the block over and releases the one that it replaces, unless another code holds that too.
void SetBitmap(const HostServices &services, Font &font, int32_t code, uint8_t *bitmap);

}  // namespace brisal
