#include "tools/font/outlines.h"

#include <ft2build.h>

#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>
#include FT_FREETYPE_H

#include "host/file.h"

namespace brisal::tools {

namespace fs = std::filesystem;
using host::Error;

namespace {

// From 26.6, rounded up.
int32_t Pixels(FT_Pos length) { return static_cast<int32_t>((length + 63) >> 6); }

void CheckReadable(const fs::path &path) {
  std::error_code ignored;
  if (fs::is_directory(path, ignored)) throw Error(path.string() + ": is a folder");
  FILE *file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) throw host::SystemError(path, "cannot be opened", errno);
  std::fclose(file);
}

std::vector<uint8_t> PixelsOf(const FT_Bitmap &bitmap) {
  std::vector<uint8_t> pixels;
  pixels.reserve(size_t{bitmap.rows} * bitmap.width);
  for (unsigned y = 0; y < bitmap.rows; y++) {
    const uint8_t *row = bitmap.buffer + static_cast<ptrdiff_t>(y) * bitmap.pitch;
    for (unsigned x = 0; x < bitmap.width; x++) {
      const bool bits = bitmap.pixel_mode == FT_PIXEL_MODE_MONO;
      pixels.push_back(bits ? (row[x / 8] >> (7 - x % 8) & 1 ? 255 : 0) : row[x]);
    }
  }
  return pixels;
}

}  // namespace

struct Outlines::Library {
  FT_Library library = nullptr;
  FT_Face face = nullptr;

  // Releases the faces, too.
  ~Library() { FT_Done_FreeType(library); }
};

Outlines::Outlines(const fs::path &path, int32_t size, bool solid)
    : path_(path), solid_(solid), library_(std::make_unique<Library>()) {
  if (size < kSmallest || size > kLargest) {
    throw Error("a font of " + std::to_string(size) + " pixels is not possible (" +
                std::to_string(kSmallest) + " to " + std::to_string(kLargest) + ")");
  }
  CheckReadable(path);
  if (FT_Init_FreeType(&library_->library) != 0) throw Error("FreeType does not start");
  if (FT_New_Face(library_->library, path.c_str(), 0, &library_->face) != 0) {
    throw Error(path.string() + ": not a font that FreeType knows, or damaged");
  }
  if (!FT_IS_SCALABLE(library_->face)) throw Error(path.string() + ": has no outlines");
  if (FT_Set_Pixel_Sizes(library_->face, 0, static_cast<FT_UInt>(size)) != 0) {
    throw Error(path.string() + ": cannot be scaled to " + std::to_string(size) + " pixels");
  }
}

Outlines::~Outlines() = default;

int32_t Outlines::Ascent() const { return Pixels(library_->face->size->metrics.ascender); }

int32_t Outlines::Descent() const { return Pixels(-library_->face->size->metrics.descender); }

std::optional<DrawnCharacter> Outlines::Draw(char32_t codePoint) const {
  const FT_Face face = library_->face;
  const FT_UInt index = FT_Get_Char_Index(face, codePoint);
  if (index == 0) return std::nullopt;
  const FT_Int32 how = solid_ ? FT_LOAD_RENDER | FT_LOAD_TARGET_MONO : FT_LOAD_RENDER;
  if (FT_Load_Glyph(face, index, how) != 0) {
    char name[16];
    std::snprintf(name, sizeof name, "U+%04X", static_cast<unsigned>(codePoint));
    throw Error(path_.string() + ": damaged: " + name + " cannot be drawn");
  }
  const FT_GlyphSlot slot = face->glyph;
  return DrawnCharacter{slot->bitmap_left,
                        slot->bitmap_top,
                        static_cast<int32_t>(slot->bitmap.width),
                        static_cast<int32_t>(slot->bitmap.rows),
                        static_cast<int32_t>((slot->advance.x + 32) >> 6),
                        PixelsOf(slot->bitmap)};
}

}  // namespace brisal::tools
