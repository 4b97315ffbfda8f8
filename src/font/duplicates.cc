#include "font/duplicates.h"

#include <algorithm>
#include <cstring>

#include "font/block_map.h"
#include "pixel/glyph_block.h"

namespace brisal {
namespace {

// Blocks of the same bytes; the first word of each is its size.
struct SameBytes {
  static uint32_t Hash(const uint8_t *block) {
    // Long glyphs differ early enough; should some not, only time is lost.
    constexpr int32_t kLongest = 1024;
    const int32_t size = GlyphBlock(block).Size();
    uint64_t hash = static_cast<uint32_t>(size);
    int32_t i = 0;
    for (; i + 8 <= std::min(size, kLongest); i += 8)
      hash = Mix(hash ^ LoadAs<uint64_t>(block + i));
    for (; i < std::min(size, kLongest); ++i) hash = Mix(hash ^ block[i]);
    return static_cast<uint32_t>(hash >> 32);
  }

  static bool Same(const uint8_t *a, const uint8_t *b) {
    if (a == b) return true;
    const int32_t size = GlyphBlock(a).Size();
    if (size != GlyphBlock(b).Size()) return false;
    return size <= 0 || std::memcmp(a, b, static_cast<size_t>(size)) == 0;
  }

 private:
  static uint64_t Mix(uint64_t x) {
    x *= 0x9E3779B97F4A7C15;
    return x ^ x >> 29;
  }
};

void FindPairByPair(const Font &font, int32_t *table) {
  for (int32_t i = 1; i < font.count; ++i) {
    if (font.bitmaps[i] == nullptr) continue;
    for (int32_t j = i + 1; j < font.count; ++j) {
      const uint8_t *other = font.bitmaps[j];
      if (table[j] == 0 && other != nullptr && SameBytes::Same(font.bitmaps[i], other))
        table[j] = i;
    }
  }
}

}  // namespace

void FindDuplicates(const Font &font, int32_t *table) {
  BlockMap<SameBytes> firstHolder(font.count);
  if (!firstHolder.HasRoom()) return FindPairByPair(font, table);
  for (int32_t code = 1; code < font.count; ++code) {
    if (font.bitmaps[code] == nullptr) continue;
    int32_t &first = firstHolder.At(font.bitmaps[code]);
    if (first == 0) {
      first = code;
    } else if (table[code] == 0) {
      table[code] = first;
    }
  }
}

}  // namespace brisal
