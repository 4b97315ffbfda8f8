#include "surface/scaling.h"

#include <algorithm>
#include <cstring>

#include "pixel/format.h"
#include "pixel/scale_kernels.h"
#include "pixel/texel_kernels.h"
#include "surface/rows.h"
#include "surface/texture_path.h"

namespace brisal {
namespace {

static_assert(kRowPiece <= kPiece);

// The part of a destination that its viewport shows.
Viewport ShownPart(const Surface &destination) {
  return {std::max(destination.viewLeft, 0), std::max(destination.viewTop, 0),
          std::min(destination.viewRight, destination.width),
          std::min(destination.viewBottom, destination.height)};
}

// The most columns or rows that 16.16 coordinates reach.
constexpr int32_t kLargestSource = 32768;

int32_t Whole(int64_t coordinate) { return static_cast<int32_t>(coordinate >> 16); }

// Calls draw(x, n) for pieces of a row.
template <int Piece, class DrawPiece>
void ForEachPiece(const Viewport &part, DrawPiece draw) {
  for (int64_t x = part.left; x < part.right; x += Piece) {
    draw(x, static_cast<int>(std::min<int64_t>(part.right - x, Piece)));
  }
}

// Two source rows in the columns of a piece, kept from one destination row to the next: stretched
// pictures show most rows more than once.
template <class Row>
class RowPair {
 public:
  // The row of that number, which fill(number, row) makes if it is not there; the other one stays.
  template <class Fill>
  const Row &Get(int64_t number, int64_t other, Fill fill) {
    for (int i = 0; i < 2; ++i) {
      if (number_[i] == number) return rows_[i];
    }
    const int i = number_[0] == other ? 1 : 0;
    number_[i] = number;
    fill(number, rows_[i]);
    return rows_[i];
  }

 private:
  Row rows_[2];
  int64_t number_[2] = {INT64_MIN, INT64_MIN};
};

struct FilteredRow {
  uint32_t colours[kScaledPiece];
};

// The columns of the pixels, and the ones to the right of them.
struct ColumnPairs {
  uint32_t own[kScaledPiece];
  uint32_t right[kScaledPiece];
};

// Reads what the source's viewport shows of it.
class ViewSampler {
 public:
  ViewSampler(Isa isa, const Surface &source, int64_t xStep, int64_t yStep)
      : source_(source),
        view_(ViewportOf(source)),
        xStep_(xStep),
        yStep_(yStep),
        fetch_(FindFetchKernel(isa, source.format, false, false)),
        copy_(FindCopyKernel(isa, source.format, MaskTexels::kCopied)) {
    path_ = PathAlong(source);
    path_.du = static_cast<uint32_t>(xStep);
  }

  int64_t RowAt(int64_t y) const { return y * yStep_ >> 16; }

  // Pixels of the same storage need not become colours on the way. False where they must.
  bool CopyNearest(const Buffer &buffer, const Viewport &part, int32_t y) {
    const int64_t n = int64_t{part.right} - part.left;
    if (!StoredAlike(buffer.format) || !Shows(part.left, n, 0) || !view_.ContainsRow(RowAt(y))) {
      return false;
    }
    Span span;
    span.Place(y, part.left, part.right);
    span.u = static_cast<int32_t>(part.left * xStep_);
    span.v = static_cast<int32_t>(y * yStep_);
    span.du = static_cast<int32_t>(xStep_);
    span.dv = 0;
    copy_(path_, &span, 1, buffer);
    return true;
  }

  void Nearest(int64_t x, int64_t y, int n, uint32_t *colours) {
    const int64_t v = y * yStep_;
    if (Shows(x, n, 0) && view_.ContainsRow(v >> 16)) return Fetch(x * xStep_, v, n, colours);
    for (int i = 0; i < n; ++i) colours[i] = Peek(source_, Whole((x + i) * xStep_), Whole(v));
  }

  // The columns of n pixels of a source row. The last one of the view is its own neighbour.
  void Columns(int64_t x, int n, int64_t row, ColumnPairs &columns) {
    const int64_t u = x * xStep_;
    int inside = view_.ContainsRow(row) ? n : 0;
    while (inside > 0 && !Shows(x, inside, 1)) --inside;
    for (int i = 0; i < inside; i += kPiece) {
      const int piece = std::min(inside - i, kPiece);
      const int64_t first = u + i * xStep_;
      Fetch(first, row * 65536, piece, columns.own + i);
      Fetch(first + 65536, row * 65536, piece, columns.right + i);
    }
    const int32_t y = static_cast<int32_t>(row);
    for (int i = inside; i < n; ++i) {
      const int32_t column = Whole(u + i * xStep_);
      columns.own[i] = Peek(source_, column, y);
      const int64_t right = std::min<int64_t>(column, int64_t{view_.right} - 2) + 1;
      columns.right[i] = Peek(source_, static_cast<int32_t>(right), y);
    }
  }

 private:
  bool StoredAlike(int32_t format) const {
    return format == source_.format ||
           (BytesPerPixel(format) == 4 && BytesPerPixel(source_.format) == 4);
  }

  // Whether the columns of n pixels, and as many to the right of each, are all in the view, and
  // their coordinates no wider than the fetch takes them. A source of negative width is read backwards.
  bool Shows(int64_t x, int64_t n, int right) const {
    const auto [first, last] = std::minmax({x * xStep_ >> 16, (x + n - 1) * xStep_ >> 16});
    return fetch_ != nullptr && source_.width <= kLargestSource &&
           source_.height <= kLargestSource && last + right < kLargestSource &&
           view_.ContainsColumn(first) && view_.ContainsColumn(last + right);
  }

  void Fetch(int64_t u, int64_t v, int n, uint32_t *colours) {
    path_.u = static_cast<uint32_t>(u);
    path_.v = static_cast<uint32_t>(v);
    TexelRuns runs;
    fetch_(&path_, n, colours, &runs);
  }

  const Surface &source_;
  Viewport view_;
  int64_t xStep_;
  int64_t yStep_;
  FetchKernel fetch_;
  CopyKernel copy_;
  TexelPath path_;
};

// Rows that show the same row of the source are copies of the first of them.
void ScaleNearest(Isa isa, ViewSampler &sampler, const Surface &destination) {
  const Viewport part = ShownPart(destination);
  if (part.left >= part.right) return;
  const Buffer buffer = BufferOf(destination);
  const int bytesPerPixel = BytesPerPixel(buffer.format);
  const size_t bytes =
      static_cast<size_t>(part.right - part.left) * static_cast<size_t>(bytesPerPixel);
  for (int32_t y = part.top; y < part.bottom; ++y) {
    if (y > part.top && sampler.RowAt(y) == sampler.RowAt(y - 1)) {
      const ptrdiff_t first = ByteOffset(part.left, bytesPerPixel);
      std::memmove(buffer.Row(y) + first, buffer.Row(y - 1) + first, bytes);
    } else if (!sampler.CopyNearest(buffer, part, y)) {
      ForEachPiece<kRowPiece>(part, [&](int64_t x, int n) {
        uint32_t colours[kRowPiece];
        sampler.Nearest(x, y, n, colours);
        WriteRow(isa, buffer, static_cast<int32_t>(x), y, n, colours);
      });
    }
  }
}

void ScaleWeighed(Isa isa, ViewSampler &sampler, const Surface &source, int64_t xStep,
                  int64_t yStep, const Surface &destination) {
  const Viewport part = ShownPart(destination);
  const WeighKernel weigh = FindWeighKernel(isa);
  const Buffer buffer = BufferOf(destination);
  const bool inPlace = BytesPerPixel(buffer.format) == 4;  // pixels are colours
  ForEachPiece<kScaledPiece>(part, [&](int64_t x, int n) {
    const auto fill = [&](int64_t row, ColumnPairs &columns) {
      sampler.Columns(x, n, row, columns);
    };
    RowPair<ColumnPairs> rows;
    uint32_t colours[kScaledPiece];
    for (int32_t y = part.top; y < part.bottom; ++y) {
      const int64_t row = y * yStep >> 16;
      const int64_t next = std::min<int64_t>(row, int64_t{source.viewBottom} - 2) + 1;
      const ColumnPairs &top = rows.Get(row, next, fill);
      const ColumnPairs &bottom = rows.Get(next, row, fill);
      weigh({top.own, top.right, bottom.own, bottom.right}, static_cast<uint32_t>(x * xStep),
            static_cast<uint32_t>(xStep), static_cast<uint32_t>(y * yStep), n,
            inPlace ? buffer.Row(y) + ByteOffset(x, 4) : reinterpret_cast<uint8_t *>(colours));
      if (!inPlace) WriteRow(isa, buffer, static_cast<int32_t>(x), y, n, colours);
    }
  });
}

void ScaleFiltered(Isa isa, const Surface &source, int64_t xStep, int64_t yStep,
                   const Surface &destination) {
  const RowFilterKernel filter = FindRowFilterKernel(isa, source.format);
  if (filter == nullptr) return;
  const RowBlendKernel blend = FindRowBlendKernel(isa);
  const Buffer buffer = BufferOf(destination);
  const bool inPlace = BytesPerPixel(buffer.format) == 4;  // pixels are colours
  const Viewport part = ShownPart(destination);
  TexelPath path = PathAlong(source);
  path.du = static_cast<uint32_t>(xStep);
  ForEachPiece<kScaledPiece>(part, [&](int64_t x, int n) {
    path.u = static_cast<uint32_t>(x * xStep);
    const auto fill = [&](int64_t row, FilteredRow &filtered) {
      path.v = static_cast<uint32_t>(row << 16);
      filter(path, n, filtered.colours);
    };
    RowPair<FilteredRow> rows;
    uint32_t colours[kScaledPiece];
    for (int32_t y = part.top; y < part.bottom; ++y) {
      const int64_t v = y * yStep;
      const int64_t row = v >> 16;
      const int64_t next = std::min<int64_t>(row + 1, int64_t{source.height} - 1);
      const uint32_t *top = rows.Get(row, next, fill).colours;
      const uint32_t *bottom = rows.Get(next, row, fill).colours;
      const uint32_t weight = static_cast<uint32_t>(v) >> 8 & 255;
      if (inPlace) {
        blend(top, bottom, weight, n, buffer.Row(y) + ByteOffset(x, 4));
        continue;
      }
      blend(top, bottom, weight, n, reinterpret_cast<uint8_t *>(colours));
      WriteRow(isa, buffer, static_cast<int32_t>(x), y, n, colours);
    }
  });
}

bool IsTexture(const Surface &source) {
  return 0 < source.width && source.width <= kLargestSource && 0 < source.height &&
         source.height <= kLargestSource;
}

}  // namespace

void ScaleSurface(Isa isa, const Surface &source, const Surface &destination, int32_t mode) {
  if (destination.width < 1 || destination.height < 1) return;
  const int64_t xStep = Divide(int64_t{source.width} * 65536, destination.width);
  const int64_t yStep = Divide(int64_t{source.height} * 65536, destination.height);
  ViewSampler sampler(isa, source, xStep, yStep);
  if (mode == 0) ScaleNearest(isa, sampler, destination);
  if (mode == 1 && IsTexture(source)) ScaleFiltered(isa, source, xStep, yStep, destination);
  if (mode == 1111) ScaleWeighed(isa, sampler, source, xStep, yStep, destination);
}

}  // namespace brisal
