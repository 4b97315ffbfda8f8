#include "font/stream.h"

#include "core/ints.h"
#include "font/duplicates.h"
#include "font/glyph_check.h"
#include "pixel/glyph_block.h"

namespace brisal {
namespace {

constexpr char kMagic[8] = "TOLVCRF";
constexpr int32_t kMagicBytes = sizeof kMagic;
constexpr int32_t kTextBytes = 100;
constexpr int32_t kVersion = 1;
constexpr int32_t kHere = -1;  // read or write at the file's position

uintptr_t AddressOf(const void *p) { return reinterpret_cast<uintptr_t>(p); }

void WriteBytes(const HostServices &services, uintptr_t file, const void *bytes, int64_t count) {
  const uintptr_t start = AddressOf(bytes);
  services.file.WriteMemory(file, kHere, start, start + static_cast<uintptr_t>(count));
}

void WriteGlyphs(const HostServices &services, const Font &font, uintptr_t file) {
  const HostBlock table(services, services.Allocate(int64_t{font.count} * 4 + 4));
  auto *const duplicates = reinterpret_cast<int32_t *>(table.Address());
  if (duplicates != nullptr) FindDuplicates(font, duplicates);
  const auto duplicateOf = [&](int32_t code) {
    return duplicates != nullptr ? duplicates[code] : 0;
  };
  for (int32_t code = 0; code < font.count; ++code) {
    const uint8_t *bitmap = font.bitmaps[code];
    if (bitmap != nullptr && duplicateOf(code) == 0) {
      WriteBytes(services, file, bitmap, GlyphBlock(bitmap).Size());
    } else {
      services.file.WriteLong(file, kHere, 0);
    }
  }
  for (int32_t code = 0; code < font.count; ++code) {
    services.file.WriteWord(file, kHere, duplicateOf(code));
  }
}

// Whether the file goes on with the magic. The text buffers are the two to compare.
bool StartsWithMagic(const HostServices &services, uintptr_t file, const HostBlock &magic,
                     const HostBlock &found) {
  if (magic.Handle() == 0 || found.Handle() == 0) return false;
  services.string.PokeBytes(magic.Handle(), AddressOf(kMagic), kMagicBytes);
  services.file.ReadToBuffer(file, kHere, found.Handle(), kMagicBytes);
  return services.string.CompareStrings(found.Handle(), magic.Handle()) == 1;
}

// Reads what follows the magic, and keeps count of the bytes that should have been there.
class FontReader {
 public:
  FontReader(const HostServices &services, uintptr_t file, int64_t position)
      : services_(services), file_(file), position_(position) {}
  ~FontReader() {
    if (font_ != nullptr) FreeFont(services_, font_);
  }
  FontReader(const FontReader &) = delete;
  FontReader &operator=(const FontReader &) = delete;

  Font *Read() {
    if (!ReadHeader()) return nullptr;
    ReadInfo();
    if (!ReadGlyphs()) return nullptr;
    ReadDuplicates();
    // Reading past the end does not move a file's position, which is how a cut one shows.
    if (services_.file.FilePos(file_) != position_) return nullptr;
    Font *const font = font_;
    font_ = nullptr;
    return font;
  }

 private:
  bool ReadHeader() {
    ReadLong();  // the length, which a reader has no need of
    const int32_t version = ReadLong();
    Font header = {};
    header.maxWidth = ReadLong();
    header.maxHeight = ReadLong();
    header.depth = ReadLong();
    header.count = ReadLong();
    header.drawMode = ReadLong();
    header.backdrop = static_cast<uint32_t>(ReadLong());
    if (version != kVersion || header.count > Font::kMostCharacters) return false;
    font_ = AllocFont(services_, header.count);
    if (font_ == nullptr) return false;
    header.info = font_->info;
    header.bitmaps = font_->bitmaps;
    *font_ = header;
    return true;
  }

  void ReadInfo() {
    const int32_t bytes = font_->count * static_cast<int32_t>(sizeof(ChrInfo));
    services_.file.ReadToMemory(file_, kHere, AddressOf(font_->info), bytes);
    position_ += bytes;
  }

  bool ReadGlyphs() {
    for (int32_t code = 0; code < font_->count; ++code) {
      const int32_t size = ReadLong();
      if (size > 0 && !ReadGlyph(code, size)) return false;
    }
    return true;
  }

  // The glyph whose size was just read, which is its first word.
  bool ReadGlyph(int32_t code, int32_t size) {
    const int64_t start = int64_t{services_.file.FilePos(file_)} - 4;
    const int64_t end = start + size;
    if (start < 0 || end > INT32_MAX) return false;
    auto *const glyph = static_cast<uint8_t *>(services_.AllocateAt(size));
    if (glyph == nullptr) return false;
    services_.file.ReadToMemory(file_, Wrap(start), AddressOf(glyph), size);
    SetBitmap(services_, *font_, code, glyph);
    services_.file.SeekFile(file_, Wrap(end));
    position_ += size - 4;
    return IsSoundGlyph(glyph, size);
  }

  void ReadDuplicates() {
    for (int32_t code = 0; code < font_->count; ++code) {
      const int32_t source = services_.file.ReadWord(file_, kHere) & 0xFFFF;
      position_ += 2;
      if (source != 0) SetBitmap(services_, *font_, code, font_->Bitmap(source));
    }
  }

  int32_t ReadLong() {
    position_ += 4;
    return services_.file.ReadLong(file_, kHere);
  }

  const HostServices &services_;
  uintptr_t file_;
  int64_t position_;
  Font *font_ = nullptr;
};

}  // namespace

void WriteFont(const HostServices &services, const Font &font, uintptr_t file) {
  WriteBytes(services, file, kMagic, kMagicBytes);
  const int32_t start = services.file.FilePos(file);
  const int32_t header[] = {0,          kVersion,   font.maxWidth, font.maxHeight,
                            font.depth, font.count, font.drawMode, Wrap(font.backdrop)};
  for (const int32_t value : header) services.file.WriteLong(file, kHere, value);
  WriteBytes(services, file, font.info, int64_t{font.count} * sizeof(ChrInfo));
  WriteGlyphs(services, font, file);
  const int32_t end = services.file.FilePos(file);
  services.file.WriteLong(file, start, Wrap(int64_t{end} - start));
  services.file.SeekFile(file, end);
}

Font *ReadFont(const HostServices &services, uintptr_t file) {
  const int32_t start = services.file.FilePos(file);
  const uintptr_t magicText = services.string.AllocString(kTextBytes);
  const uintptr_t foundText = services.string.AllocString(kTextBytes);
  const HostBlock found(services, foundText);
  const HostBlock magic(services, magicText);
  if (!StartsWithMagic(services, file, magic, found)) {
    services.file.SeekFile(file, start);
    return nullptr;
  }
  return FontReader(services, file, int64_t{start} + kMagicBytes).Read();
}

}  // namespace brisal
