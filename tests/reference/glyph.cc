// Plain images compressed to blocks of glyphs.
#include <algorithm>
#include <cstring>
#include <vector>

#include "reference/fonts.h"

namespace reference {
namespace {

using Bytes = std::vector<uint8_t>;

void Append(Bytes &bytes, uint32_t value, int size) {
  for (int b = 0; b < size; b++) bytes.push_back(static_cast<uint8_t>(value >> 8 * b));
}

// The data of all rows, each found again wherever its bytes occur before the end, or appended.
struct Combined {
  Bytes bytes;
  std::vector<int64_t> offsets;  // one a row, -1 for a row without data

  void Add(const Bytes &row) {
    const auto used = static_cast<int64_t>(bytes.size()), size = static_cast<int64_t>(row.size());
    offsets.push_back(row.empty() ? -1 : used);
    if (row.empty()) return;
    for (int64_t at = 0; at < used - size; at++) {
      if (std::memcmp(bytes.data() + at, row.data(), row.size()) != 0) continue;
      offsets.back() = at;
      return;
    }
    bytes.insert(bytes.end(), row.begin(), row.end());
  }

  // The table of a range of rows, and the data behind it.
  Bytes Table(int64_t first, int64_t end) const {
    Bytes table;
    for (int64_t r = first; r < end; r++) {
      const int64_t offset = offsets[r] < 0 ? 0 : offsets[r] + (end - first) * 4;
      Append(table, static_cast<uint32_t>(offset), 4);
    }
    table.insert(table.end(), bytes.begin(), bytes.end());
    return table;
  }
};

struct Row {
  Bytes runs, pixels;

  Row(const uint8_t *image, int64_t width, int size, uint32_t key) {
    uint32_t count = 0;
    for (int64_t x = 0; x < width; x++) {
      const auto transparent = [&] { return x == width || PixelAt(image + x * size, size) == key; };
      if (transparent()) continue;
      const int64_t start = x;
      for (; !transparent(); x++) Append(pixels, PixelAt(image + x * size, size), size);
      Append(runs, static_cast<uint32_t>(start), 2);
      Append(runs, static_cast<uint32_t>(x - start), 2);
      count++;
    }
    if (count == 0) return;
    Bytes counted;
    Append(counted, count, 2);
    counted.insert(counted.end(), runs.begin(), runs.end());
    runs = counted;
  }

  static uint32_t PixelAt(const uint8_t *p, int size) { return size == 1 ? *p : WordAt(p); }
};

bool Solid(const Bytes &pixels) {
  return std::all_of(pixels.begin(), pixels.end(), [](uint8_t byte) { return byte == 255; });
}

}  // namespace

uint32_t WordAt(const uint8_t *p) {
  return p[0] | p[1] << 8 | p[2] << 16 | static_cast<uint32_t>(p[3]) << 24;
}

int32_t ShortAt(const uint8_t *p) { return static_cast<int16_t>(p[0] | p[1] << 8); }

uintptr_t Compress(const void *image) {
  if (!image) return 0;
  const auto *bytes = static_cast<const uint8_t *>(image);
  const uint32_t width = WordAt(bytes), height = WordAt(bytes + 4), depth = WordAt(bytes + 8);
  if (depth != 8 && depth != 32) return 0;
  const int size = static_cast<int>(depth / 8);
  Combined runs, pixels;
  for (int64_t r = 0; r < height; r++) {
    const Row row(bytes + 16 + r * width * size, width, size, WordAt(bytes + 12));
    runs.Add(row.runs);
    pixels.Add(row.pixels);
  }
  if (depth == 8 && Solid(pixels.bytes)) pixels.bytes.clear();
  int64_t first = 0, end = height;
  if (!runs.bytes.empty()) {
    while (runs.offsets[first] < 0) first++;
    while (runs.offsets[end - 1] < 0) end--;
  }
  const Bytes runTable = runs.bytes.empty() ? Bytes() : runs.Table(first, end);
  const Bytes pixelTable = pixels.bytes.empty() ? Bytes() : pixels.Table(first, end);
  Bytes block;
  Append(block, static_cast<uint32_t>(32 + runTable.size() + pixelTable.size()), 4);
  for (uint32_t field : {width, height, depth, static_cast<uint32_t>(first),
                         static_cast<uint32_t>(end), runTable.empty() ? 0u : 32u}) {
    Append(block, field, 4);
  }
  Append(block, pixelTable.empty() ? 0 : static_cast<uint32_t>(32 + runTable.size()), 4);
  block.insert(block.end(), runTable.begin(), runTable.end());
  block.insert(block.end(), pixelTable.begin(), pixelTable.end());
  const uintptr_t handle = Services().memory.call.AllocMemory(static_cast<int32_t>(block.size()));
  std::memcpy(reinterpret_cast<void *>(Services().block.call.MemoryAddress(handle)), block.data(),
              block.size());
  return handle;
}

}  // namespace reference
