#include "font/compress.h"

#include <algorithm>
#include <cstring>

#include "font/row_data.h"
#include "pixel/glyph_block.h"

namespace brisal {
namespace {

// A plain glyph image as the host lays it out.
struct Image {
  explicit Image(const uint8_t *bytes)
      : width(LoadAs<int32_t>(bytes)),
        height(LoadAs<int32_t>(bytes + 4)),
        depth(LoadAs<int32_t>(bytes + 8)),
        key(LoadAs<uint32_t>(bytes + 12)),
        pixels(bytes + 16) {}

  int32_t Rows() const { return std::max(height, 0); }
  int32_t PixelBytes() const { return depth / 8; }
  const uint8_t *Row(int32_t row) const {
    return pixels + int64_t{row} * std::max(width, 0) * PixelBytes();
  }
  bool IsTransparent(const uint8_t *pixel) const {
    return (depth == 8 ? *pixel : LoadAs<uint32_t>(pixel)) == key;
  }

  int32_t width;
  int32_t height;
  int32_t depth;
  uint32_t key;
  const uint8_t *pixels;
};

struct Run {
  int16_t start;
  int16_t length;
};

// Calls visit(run) for the runs of a row in turn.
template <class Visit>
void ForRuns(const Image &image, const uint8_t *row, Visit visit) {
  const auto transparent = [&](int32_t x) {
    return image.IsTransparent(row + x * image.PixelBytes());
  };
  for (int32_t x = 0; x < image.width;) {
    const int32_t start = x;
    while (x < image.width && !transparent(x)) ++x;
    if (x > start) visit(Run{static_cast<int16_t>(start), static_cast<int16_t>(x - start)});
    while (x < image.width && transparent(x)) ++x;
  }
}

// False when the host has no memory.
bool EncodeRow(const Image &image, int32_t r, RowData &pixels, RowData &runLists) {
  const uint8_t *const row = image.Row(r);
  int16_t runs = 0;
  int32_t bytes = 0;
  ForRuns(image, row, [&](Run run) {
    ++runs;
    bytes += run.length * image.PixelBytes();
  });
  if (runs == 0) return true;
  uint8_t *pixel = pixels.Add(r, bytes);
  uint8_t *list = runLists.Add(r, RunList::kCountBytes + RunList::kRunBytes * runs);
  if (pixel == nullptr || list == nullptr) return false;
  std::memcpy(list, &runs, sizeof runs);
  list += sizeof runs;
  ForRuns(image, row, [&](Run run) {
    std::memcpy(list, &run, sizeof run);
    list += sizeof run;
    const int32_t runBytes = run.length * image.PixelBytes();
    std::memcpy(pixel, row + run.start * image.PixelBytes(), static_cast<size_t>(runBytes));
    pixel += runBytes;
  });
  return true;
}

bool IsSolid(const RowData &pixels) {
  const uint8_t *const bytes = pixels.Address();
  return std::all_of(bytes, bytes + pixels.Bytes(), [](uint8_t p) { return p == 255; });
}

// Writes the parts of a block one behind the other.
class BlockWriter {
 public:
  BlockWriter(const HostServices &services, uintptr_t block) : services_(services), block_(block) {}

  void Word(int32_t value) {
    services_.block.PokeLong(block_, at_, value);
    at_ += 4;
  }

  void Rows(const RowData &data, int32_t first, int32_t end) {
    if (data.Bytes() == 0) return;
    const int32_t tableBytes = (end - first) * 4;
    for (int32_t row = first; row < end; ++row) {
      const int32_t offset = data.Offset(row);
      Word(offset == RowData::kNone ? 0 : tableBytes + offset);
    }
    services_.block.CopyMemoryBlock(data.Handle(), 0, data.Bytes(), block_, at_);
    at_ += data.Bytes();
  }

 private:
  const HostServices &services_;
  uintptr_t block_;
  int32_t at_ = 0;
};

uintptr_t BuildBlock(const HostServices &services, const Image &image, const RowData &runLists,
                     const RowData &pixels) {
  const bool hasRuns = runLists.Bytes() > 0;
  int32_t first = 0;
  int32_t end = image.height;
  while (hasRuns && runLists.Offset(first) == RowData::kNone) ++first;
  while (hasRuns && runLists.Offset(end - 1) == RowData::kNone) --end;
  const int64_t tableBytes = int64_t{end - first} * 4;
  const auto size = [tableBytes](const RowData &data) {
    return data.Bytes() > 0 ? tableBytes + data.Bytes() : 0;
  };
  const int64_t runEnd = GlyphBlock::kHeaderBytes + size(runLists);
  const int64_t total = runEnd + size(pixels);
  const uintptr_t block = services.Allocate(total);
  if (block == 0) return 0;
  BlockWriter writer(services, block);
  for (const int64_t field :
       {total, int64_t{image.width}, int64_t{image.height}, int64_t{image.depth}, int64_t{first},
        int64_t{end}, int64_t{hasRuns ? GlyphBlock::kHeaderBytes : 0},
        pixels.Bytes() > 0 ? runEnd : 0}) {
    writer.Word(static_cast<int32_t>(field));
  }
  writer.Rows(runLists, first, end);
  writer.Rows(pixels, first, end);
  return block;
}

}  // namespace

uintptr_t CompressGlyph(const HostServices &services, const uint8_t *plainImage) {
  const Image image(plainImage);
  if ((image.depth != 8 && image.depth != 32) || image.width > INT16_MAX) return 0;
  RowData pixels(services, image.Rows());
  RowData runLists(services, image.Rows());
  if (!pixels.HasTable() || !runLists.HasTable()) return 0;
  for (int32_t row = 0; row < image.Rows(); ++row) {
    if (!EncodeRow(image, row, pixels, runLists)) return 0;
  }
  if (!pixels.Combine() || !runLists.Combine()) return 0;
  if (image.depth == 8 && pixels.Bytes() > 0 && IsSolid(pixels)) pixels.Drop();
  return BuildBlock(services, image, runLists, pixels);
}

}  // namespace brisal
