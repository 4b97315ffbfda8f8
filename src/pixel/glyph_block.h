#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "pixel/lanes.h"

namespace brisal {

template <class T>
BRISAL_INLINE T LoadAs(const uint8_t *p) {
  T value;
  std::memcpy(&value, p, sizeof value);
  return value;
}

// A row's runs: a count, then the start column and the length of each.
struct RunList {
  static constexpr int32_t kCountBytes = 2;
  static constexpr int32_t kRunBytes = 4;

  BRISAL_INLINE int32_t Count() const { return LoadAs<int16_t>(at); }
  BRISAL_INLINE int32_t Start(int32_t i) const { return LoadAs<int16_t>(Run(i)); }
  BRISAL_INLINE int32_t Length(int32_t i) const { return LoadAs<int16_t>(Run(i) + 2); }
  BRISAL_INLINE const uint8_t *Run(int32_t i) const { return at + kCountBytes + kRunBytes * i; }

  const uint8_t *at;
};

// A compressed glyph as fonts hold it: a header, a table of the rows' run lists and one of their
// pixels. Nothing in it is aligned. The tables begin with the first row that holds anything, and count
// their entries from their own start.
class GlyphBlock {
 public:
  static constexpr int32_t kHeaderBytes = 32;

  explicit GlyphBlock(const uint8_t *bytes) : bytes_(bytes) {}

  const uint8_t *Bytes() const { return bytes_; }
  int32_t Size() const { return Field(0); }
  int32_t Width() const { return Field(1); }
  int32_t Depth() const { return Field(3); }
  int32_t FirstRow() const { return Field(4); }
  int32_t EndRow() const { return Field(5); }
  // Where the tables begin; 0 where there is none.
  int32_t RunTable() const { return Field(6); }
  int32_t PixelTable() const { return Field(7); }

  bool IsSolid() const { return PixelTable() == 0; }

  // Whether a font of the depth draws anything of it.
  bool IsDrawn(int32_t depth) const {
    return FirstRow() >= 0 && EndRow() >= 0 && RunTable() != 0 && Depth() == depth &&
           (depth == 8 || (depth == 32 && !IsSolid()));
  }

  // The place of a row's runs, or pixels, by one of the tables; 0 where it has none. Pixels do not lie
  // in the header, so kernels may read a little before them.
  BRISAL_INLINE int64_t Place(int32_t table, int64_t row) const {
    const int32_t entry = LoadAs<int32_t>(bytes_ + table + 4 * row);
    const int64_t place = int64_t{table} + entry;
    return entry != 0 && place >= kHeaderBytes ? place : 0;
  }

 private:
  int32_t Field(int i) const { return LoadAs<int32_t>(bytes_ + 4 * i); }

  const uint8_t *bytes_;
};

}  // namespace brisal
