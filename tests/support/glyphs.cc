#include "support/glyphs.h"

#include <algorithm>

namespace {

using Bytes = std::vector<uint8_t>;

void Append(Bytes &bytes, uint32_t value, int size) {
  for (int b = 0; b < size; b++) bytes.push_back(static_cast<uint8_t>(value >> 8 * b));
}

void SetWord(Bytes &bytes, size_t at, size_t value) {
  for (int b = 0; b < 4; b++) bytes[at + b] = static_cast<uint8_t>(value >> 8 * b);
}

uint32_t GlyphPixel(Random &random, int32_t depth) {
  const auto value = static_cast<uint32_t>(random.Next());
  if (depth == 8) return random.OneIn(2) ? random.Pick({0u, 1u, 127u, 255u}) : value & 255;
  return random.OneIn(2) ? value : (value & 0xFFFFFF) | random.Pick({0u, 255u, 6u}) << 24;
}

// The runs of a row of a width, from left to right; at least one.
Bytes RandomRuns(Random &random, int32_t width, int32_t &pixels) {
  Bytes runs;
  Append(runs, 0, 2);
  int32_t count = 0;
  pixels = 0;
  for (int32_t x = random.Between(0, std::min(3, width - 1)); x < width;) {
    const int32_t most = std::min(width - x, random.OneIn(2) ? 40 : 5);
    const int32_t length = random.Between(1, most);
    Append(runs, static_cast<uint32_t>(x), 2);
    Append(runs, static_cast<uint32_t>(length), 2);
    pixels += length;
    x += length + random.Between(0, 4);
    count++;
    if (random.OneIn(4)) break;
  }
  runs[0] = static_cast<uint8_t>(count);
  return runs;
}

// The rows of one of the two tables: the offset of each, and the data behind the table.
struct Rows {
  Bytes table, data;

  explicit Rows(int32_t count) : table(static_cast<size_t>(count) * 4) {}

  void Add(Random &random, int32_t row, const Bytes &bytes) {
    if (random.OneIn(2)) Append(data, 0xEE, 1);  // any alignment
    SetWord(table, static_cast<size_t>(row) * 4, table.size() + data.size());
    data.insert(data.end(), bytes.begin(), bytes.end());
  }
  void Share(int32_t row, int32_t with) {
    std::copy_n(table.begin() + with * 4, 4, table.begin() + row * 4);
  }
  void AppendTo(Bytes &block) const {
    block.insert(block.end(), table.begin(), table.end());
    block.insert(block.end(), data.begin(), data.end());
  }
};

}  // namespace

Bytes RandomGlyph(Random &random, int32_t depth) {
  const int32_t width = random.OneIn(4) ? random.Between(1, 90) : random.Between(1, 14);
  const int32_t height = random.OneIn(6) ? random.Between(1, 50) : random.Between(1, 12);
  const bool empty = random.OneIn(12), solid = depth == 8 && random.OneIn(3);
  const int32_t first = empty ? 0 : random.Between(0, height - 1);
  const int32_t end = empty ? height : random.Between(first + 1, height);
  Rows runs(end - first), pixels(end - first);
  for (int32_t row = 0, filled = -1; row < end - first; row++) {
    const bool outermost = row == 0 || row == end - first - 1;
    if (!outermost && random.OneIn(5)) continue;
    if (filled >= 0 && random.OneIn(4)) {
      runs.Share(row, filled);
      pixels.Share(row, filled);
      continue;
    }
    int32_t count;
    runs.Add(random, row, RandomRuns(random, width, count));
    Bytes colours;
    while (count-- > 0) Append(colours, GlyphPixel(random, depth), depth / 8);
    pixels.Add(random, row, colours);
    filled = row;
  }
  Bytes block(32);
  if (!empty) runs.AppendTo(block);
  const size_t pixelTable = empty || solid ? 0 : block.size();
  if (pixelTable) pixels.AppendTo(block);
  const size_t fields[] = {block.size(),
                           static_cast<size_t>(width),
                           static_cast<size_t>(height),
                           static_cast<size_t>(depth),
                           static_cast<size_t>(first),
                           static_cast<size_t>(end),
                           empty ? size_t{0} : 32,
                           pixelTable};
  for (size_t i = 0; i < 8; i++) SetWord(block, i * 4, fields[i]);
  return block;
}

// Few colours, rows that repeat earlier ones whole or shifted, solid and empty images.
Bytes RandomGlyphImage(Random &random) {
  const int32_t longest = random.OneIn(5) ? 64 : 20;
  const int32_t width = random.Between(random.OneIn(20) ? 0 : 1, longest);
  const int32_t height = random.Between(random.OneIn(20) ? 0 : 1, longest);
  const int32_t depth = random.OneIn(12) ? random.Pick({16, 0, 24, -8}) : random.Pick({8, 32});
  const int size = depth == 32 ? 4 : 1;
  const uint32_t key = random.OneIn(3) ? static_cast<uint32_t>(random.Next()) & 255 : 0;
  const uint32_t ink = random.OneIn(3) ? 255 : static_cast<uint32_t>(random.Next()) & 0xFF0000FF;
  const int style = random.Between(0, 5), share = random.Between(1, 6);
  const int32_t period = random.Between(1, 5);
  Bytes image;
  for (uint32_t field : {static_cast<uint32_t>(width), static_cast<uint32_t>(height),
                         static_cast<uint32_t>(depth), key}) {
    Append(image, field, 4);
  }
  for (int32_t i = 0; i < width * height; i++) {
    const size_t back = static_cast<size_t>(style == 1 ? period : width * period) * size;
    if (style <= 2 && style > 0 && image.size() >= 16 + back && !random.OneIn(40)) {
      for (int b = 0; b < size; b++) image.push_back(image[image.size() - back]);
      continue;
    }
    const bool filled = style == 3 ? true : style == 4 ? false : random.OneIn(share);
    const uint32_t other = style == 0 ? static_cast<uint32_t>(random.Next()) : ink;
    Append(image, filled ? other : key, size);
  }
  return image;
}
