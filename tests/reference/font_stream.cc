// Fonts to and from streams, one service of the host after the other.
#include <algorithm>

#include "reference/fonts.h"
#include "reference/reference.h"

namespace reference {
namespace {

constexpr char kMagic[] = "TOLVCRF";
constexpr int32_t kHere = -1;

template <class T>
uintptr_t Address(T *p) {
  return reinterpret_cast<uintptr_t>(p);
}

bool Same(const uint8_t *a, const uint8_t *b) {
  if (a == b) return true;
  if (!a || !b || WordAt(a) != WordAt(b)) return false;
  return Compare(a, b, static_cast<int32_t>(WordAt(a)));
}

// Reads the glyphs of a font and whose they share, from a position of the file on; false where
// memory runs out or the file ends too early.
bool ReadGlyphs(CRF_Font *font, uintptr_t file, int32_t position) {
  const BRSL_FileServices &files = Services().file.call;
  for (int32_t code = 0; code < font->count; code++) {
    const int32_t size = files.ReadLong(file, kHere);
    position += std::max(size, 4);
    if (size <= 0) continue;
    const int32_t start = files.FilePos(file) - 4;
    const uintptr_t block = Services().memory.call.AllocMemory(size);
    const uintptr_t address = Services().block.call.MemoryAddress(block);
    if (!address) return false;
    files.ReadToMemory(file, start, address, size);
    SetChrBitmap(font, code, reinterpret_cast<void *>(address));
    files.SeekFile(file, start + size);
  }
  for (int32_t code = 0; code < font->count; code++) {
    const int32_t source = files.ReadWord(file, kHere);
    if (source != 0) SetChrBitmap(font, code, GetChrBitmap(font, source));
  }
  return files.FilePos(file) == position + font->count * 2;
}

CRF_Font *ReadAfterMagic(uintptr_t file, int32_t start) {
  const BRSL_FileServices &files = Services().file.call;
  int32_t head[8];
  for (int32_t &field : head) field = files.ReadLong(file, kHere);
  const auto [length, version, maxWidth, maxHeight, depth, count, drawMode, backdrop] = head;
  CRF_Font *font = version == 1 && count <= 65536 ? AllocFont(count) : nullptr;
  if (!font) return nullptr;
  SetMaxChrSize(font, maxWidth, maxHeight);
  SetChrDepth(font, depth);
  SetFontDrawMode(font, drawMode);
  SetBackdropColour(font, static_cast<uint32_t>(backdrop));
  files.ReadToMemory(file, kHere, Address(font->infos), count * 32);
  if (ReadGlyphs(font, file, start + 40 + count * 32)) return font;
  FreeFont(font);
  return nullptr;
}

}  // namespace

void SaveFont(const CRF_Font *font, const void *name) {
  if (!font) return;
  const uintptr_t file = Services().file.call.OpenFileWrite(name);
  if (!file) return;
  WriteFont(font, file);
  Services().file.call.CloseFile(file);
}

CRF_Font *LoadFont(const void *name) {
  const uintptr_t file = name ? Services().file.call.OpenFileRead(name) : 0;
  if (!file) return nullptr;
  CRF_Font *font = ReadFont(file);
  Services().file.call.CloseFile(file);
  return font;
}

void WriteFont(const CRF_Font *font, uintptr_t file) {
  if (!font || !file) return;
  const BRSL_FileServices &files = Services().file.call;
  const auto write = [&](const void *from, int64_t size) {
    files.WriteMemory(file, kHere, Address(from), Address(from) + static_cast<uintptr_t>(size));
  };
  write(kMagic, 8);
  const int32_t start = files.FilePos(file);
  for (int32_t value : {0, 1, font->maxWidth, font->maxHeight, font->depth, font->count,
                        font->drawMode, static_cast<int32_t>(font->backdrop)}) {
    files.WriteLong(file, kHere, value);
  }
  write(font->infos, font->count * int64_t{32});
  const uintptr_t block = Services().memory.call.AllocMemory(font->count * 4 + 4);
  const auto *sources =
      reinterpret_cast<const int32_t *>(Services().block.call.MemoryAddress(block));
  if (sources) FindDuplicates(font, const_cast<int32_t *>(sources));
  const auto source = [&](int32_t code) { return sources ? sources[code] : 0; };
  for (int32_t code = 0; code < font->count; code++) {
    const uint8_t *bitmap = font->bitmaps[code];
    if (bitmap && source(code) == 0) {
      write(bitmap, WordAt(bitmap));
    } else {
      files.WriteLong(file, kHere, 0);
    }
  }
  for (int32_t code = 0; code < font->count; code++) files.WriteWord(file, kHere, source(code));
  if (sources) Services().memory.call.FreeMemory(block);
  const int32_t end = files.FilePos(file);
  files.WriteLong(file, start, end - start);
  files.SeekFile(file, end);
}

CRF_Font *ReadFont(uintptr_t file) {
  if (!file) return nullptr;
  const BRSL_FileServices &files = Services().file.call;
  const BRSL_StringServices &strings = Services().string.call;
  const int32_t start = files.FilePos(file);
  const uintptr_t magic = strings.AllocString(100), found = strings.AllocString(100);
  bool ours = magic && found;
  if (ours) {
    strings.PokeBytes(magic, Address(kMagic), 8);
    files.ReadToBuffer(file, kHere, found, 8);
    ours = strings.CompareStrings(found, magic) == 1;
  }
  if (!ours) files.SeekFile(file, start);
  CRF_Font *font = ours ? ReadAfterMagic(file, start) : nullptr;
  for (uintptr_t buffer : {magic, found}) {
    if (buffer) Services().memory.call.FreeMemory(buffer);
  }
  return font;
}

void FindDuplicates(const CRF_Font *font, int32_t *table) {
  if (!font) return;
  for (int32_t i = 0; i < font->count; i++) {
    for (int32_t j = i + 1; font->bitmaps[i] && j < font->count; j++) {
      if (table[j] == 0 && Same(font->bitmaps[i], font->bitmaps[j])) table[j] = i;
    }
  }
}

}  // namespace reference
