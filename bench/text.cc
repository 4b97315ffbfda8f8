#include "bench/text.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace brisal::bench {
namespace {

constexpr int kGlyphsARow = 100;
constexpr int kKinds = 15;

// The distance of a pixel's middle from the nearest stroke of a letter.
double DistanceOf(int letter, double x, double y) {
  double distance = 100;
  const auto near = [&](bool has, double d) {
    if (has) distance = std::min(distance, d);
  };
  near(letter & 1, std::hypot(x - 3.5, std::max(0.0, std::abs(y - 8) - 5)));
  near(letter & 2, std::abs(std::hypot(x - 7, y - 9) - 3.5));
  near(letter & 4, std::hypot(y - 3.2, std::max(0.0, std::abs(x - 7) - 4)));
  near(letter & 8, std::max(std::abs(x + y - 16) * 0.7, std::abs(x - y) - 9));
  return distance;
}

std::vector<Letter> DrawLetters(bool soft) {
  constexpr double kHalfStroke = 0.8;
  std::vector<Letter> letters(kKinds);
  for (int k = 0; k < kKinds; ++k) {
    for (int i = 0; i < kGlyphSize * kGlyphSize; ++i) {
      const double distance =
          DistanceOf(k + 1, i % kGlyphSize + 0.5, static_cast<int>(i / kGlyphSize) + 0.5);
      const double coverage = std::clamp(kHalfStroke + 0.5 - distance, 0.0, 1.0);
      letters[static_cast<size_t>(k)][static_cast<size_t>(i)] =
          static_cast<uint8_t>(soft             ? std::lround(coverage * 255)
                               : coverage > 0.5 ? 255
                                                : 0);
    }
  }
  return letters;
}

// Memory, and one file that is in memory, too.
std::vector<uint8_t> file;
size_t position = 0;

void GoTo(int32_t to) {
  if (to >= 0) position = static_cast<size_t>(to);
}

void Read(int32_t from, void *to, int32_t count) {
  GoTo(from);
  const size_t n = std::min(static_cast<size_t>(count), file.size() - position);
  std::memcpy(to, file.data() + position, n);
  position += n;
}

void Write(int32_t to, const void *from, size_t count) {
  GoTo(to);
  if (file.size() < position + count) file.resize(position + count);
  std::memcpy(file.data() + position, from, count);
  position += count;
}

template <class T>
T *At(uintptr_t address) {
  return reinterpret_cast<T *>(address);
}

void GiveServices() {
  BRSL_HostRecord record{};
  // A block's size lies before it.
  record.memory.call.AllocMemory = [](int32_t size) {
    auto *const memory = static_cast<int64_t *>(std::calloc(1, 16 + static_cast<size_t>(size)));
    memory[1] = size;
    return reinterpret_cast<uintptr_t>(memory + 2);
  };
  record.memory.call.FreeMemory = [](uintptr_t block) {
    if (block != 0) std::free(At<int64_t>(block) - 2);
  };
  record.memory.call.FreeMemoryAddress = record.memory.call.FreeMemory;
  record.block.call.MemoryAddress = [](uintptr_t block) { return block; };
  record.block.call.MemorySize = [](uintptr_t block) {
    return static_cast<int32_t>(At<int64_t>(block)[-1]);
  };
  record.block.call.CopyMemoryBlock = [](uintptr_t source, int32_t sourceOffset, int32_t count,
                                         uintptr_t destination, int32_t destinationOffset) {
    std::memcpy(At<char>(destination) + destinationOffset, At<char>(source) + sourceOffset,
                static_cast<size_t>(count));
  };
  record.block.call.PokeLong = [](uintptr_t block, int32_t offset, int32_t value) {
    std::memcpy(At<char>(block) + offset, &value, sizeof value);
  };
  record.string.call.AllocString = record.memory.call.AllocMemory;
  record.string.call.PokeBytes = [](uintptr_t buffer, uintptr_t source, int32_t count) {
    std::memcpy(At<char>(buffer), At<char>(source), static_cast<size_t>(count));
  };
  record.string.call.CompareStrings = [](uintptr_t a, uintptr_t b) -> int32_t {
    return std::strcmp(At<char>(a), At<char>(b)) == 0;
  };
  record.file.call.FilePos = [](uintptr_t) { return static_cast<int32_t>(position); };
  record.file.call.SeekFile = [](uintptr_t, int32_t to) { GoTo(to); };
  record.file.call.ReadWord = [](uintptr_t, int32_t from) -> int32_t {
    uint16_t value = 0;
    Read(from, &value, sizeof value);
    return value;
  };
  record.file.call.ReadLong = [](uintptr_t, int32_t from) {
    int32_t value = 0;
    Read(from, &value, sizeof value);
    return value;
  };
  record.file.call.ReadToMemory = [](uintptr_t, int32_t from, uintptr_t address, int32_t count) {
    Read(from, At<void>(address), count);
  };
  record.file.call.ReadToBuffer = record.file.call.ReadToMemory;
  record.file.call.WriteWord = [](uintptr_t, int32_t to, int32_t value) { Write(to, &value, 2); };
  record.file.call.WriteLong = [](uintptr_t, int32_t to, int32_t value) { Write(to, &value, 4); };
  record.file.call.WriteMemory = [](uintptr_t, int32_t to, uintptr_t start, uintptr_t end) {
    Write(to, At<void>(start), end - start);
  };
  GCF_Retrieve(&record);
}

using Font = std::shared_ptr<CRF_Font>;

// Every code has a letter, and its own block of it. Fonts have as many characters as their job has
// pixels.
Font FontOf(const Job &job) {
  const int32_t codes = job.IsFont() ? job.width * job.height : 256;
  GiveServices();
  const Font font(CRF_Alloc(codes), CRF_Free);
  CRF_SetChrDepth(font.get(), 8);
  CRF_DrawMode(font.get(), job.kind == Kind::kHardText ? 0 : 1);
  CRF_SetMaxChrSize(font.get(), kGlyphSize, kGlyphSize);
  const std::vector<Letter> &letters = Letters(job);
  for (int32_t code = 0; code < codes; ++code) {
    const int32_t header[] = {kGlyphSize, kGlyphSize, 8, 0};
    std::array<uint8_t, sizeof header + sizeof(Letter)> image;
    std::memcpy(image.data(), header, sizeof header);
    std::memcpy(image.data() + sizeof header, &letters[static_cast<size_t>(code % kKinds)],
                sizeof(Letter));
    CRF_SetChrBmp(font.get(), code, At<void>(CRF_CompressChr(image.data())));
    CRF_GetChrInfoPtr(font.get(), code)->width = kGlyphSize;
  }
  return font;
}

}  // namespace

const std::vector<Letter> &Letters(const Job &job) {
  static const std::vector<Letter> soft = DrawLetters(true);
  static const std::vector<Letter> hard = DrawLetters(false);
  return job.kind == Kind::kHardText ? hard : soft;
}

size_t LetterAt(int n) { return static_cast<size_t>(n * 7 % kKinds); }

Point PlaceOf(int n) { return {n % kGlyphsARow * kGlyphSize, n / kGlyphsARow * kGlyphSize}; }

std::function<void(unsigned)> TextDrawing(const Job &job) {
  std::string text;
  for (int n = 0; n < kGlyphs; ++n) text += static_cast<char>(LetterAt(n));
  return [job, text, font = FontOf(job)](unsigned i) {
    const auto [x, y] = SpotOf(job, i);
    for (int n = 0; n < kGlyphs; n += kGlyphsARow) {
      CRF_Draw(font.get(), text.data() + n, kGlyphsARow, x, y + PlaceOf(n).y, kInk);
    }
  };
}

std::function<void(unsigned)> FontTransfer(const Job &job) {
  const Font font = FontOf(job);
  const auto write = [font](unsigned) {
    position = 0;
    CRF_Write(font.get(), 1);
  };
  write(0);
  if (job.kind == Kind::kFontSave) return write;
  return [](unsigned) {
    position = 0;
    CRF_Free(CRF_Read(1));
  };
}

}  // namespace brisal::bench
