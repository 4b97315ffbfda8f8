#include "font/glyph_check.h"

#include "pixel/glyph_block.h"

namespace brisal {
namespace {

// Rows may share run lists, so a small file could stand for more runs than anyone wants to walk.
constexpr int64_t kMostRuns = 1 << 24;

class GlyphCheck {
 public:
  GlyphCheck(const GlyphBlock &glyph, int64_t size) : glyph_(glyph), size_(size) {}

  bool TableFits(int64_t table, int64_t rows) const {
    return table == 0 || (table > 0 && table + 4 * rows <= size_);
  }

  bool RowFits(int64_t row) {
    const int64_t place = glyph_.Place(glyph_.RunTable(), row);
    if (place == 0) return true;
    if (place + RunList::kCountBytes > size_) return false;
    const RunList runs = {glyph_.Bytes() + place};
    const int32_t count = runs.Count();
    if (count <= 0) return true;
    if (place + RunList::kCountBytes + RunList::kRunBytes * count > size_) return false;
    allRuns_ += count;
    return allRuns_ <= kMostRuns && (glyph_.IsSolid() || PixelsFit(row, runs));
  }

 private:
  bool PixelsFit(int64_t row, const RunList &runs) const {
    const int64_t place = glyph_.Place(glyph_.PixelTable(), row);
    int64_t pixels = 0;
    for (int32_t i = 0; i < runs.Count(); ++i) {
      if (runs.Length(i) > 0) pixels += runs.Length(i);
    }
    return place == 0 || place + pixels * (glyph_.Depth() / 8) <= size_;
  }

  GlyphBlock glyph_;
  int64_t size_;
  int64_t allRuns_ = 0;
};

}  // namespace

bool IsSoundGlyph(const uint8_t *bytes, int32_t size) {
  const GlyphBlock glyph(bytes);
  if (size < GlyphBlock::kHeaderBytes || glyph.Size() != size) return false;
  const int64_t rows = int64_t{glyph.EndRow()} - glyph.FirstRow();
  if (!glyph.IsDrawn(glyph.Depth()) || rows <= 0) return true;
  GlyphCheck check(glyph, size);
  if (!check.TableFits(glyph.RunTable(), rows)) return false;
  if (!check.TableFits(glyph.PixelTable(), rows)) return false;
  for (int64_t row = 0; row < rows; ++row) {
    if (!check.RowFits(row)) return false;
  }
  return true;
}

}  // namespace brisal
