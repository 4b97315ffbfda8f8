#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>

#include "brisal/brisal.h"
#include "host/error.h"

namespace brisal::host {

struct FontRelease {
  void operator()(CRF_Font *font) const { CRF_Free(font); }
};
using Font = std::unique_ptr<CRF_Font, FontRelease>;

// How a font file begins.
struct FontHeader {
  char magic[8];
  int32_t length;
  int32_t version;
  int32_t maxWidth;
  int32_t maxHeight;
  int32_t depth;
  int32_t count;
  int32_t drawMode;
  uint32_t backdrop;
};

// Throws Error for a file that cannot be opened, is no font or one of another version, or is cut.
FontHeader ReadFontHeader(const std::filesystem::path &path);

// The functions below install the services that fonts need.

// A new font; throws Error when there is no memory.
Font MakeFont(int32_t count);

// Throws Error where ReadFontHeader does, and for a damaged file.
Font LoadFont(const std::filesystem::path &path);

// The file appears under its name only when complete. Throws Error when it cannot be written.
void SaveFont(const std::filesystem::path &path, const CRF_Font *font);

}  // namespace brisal::host
