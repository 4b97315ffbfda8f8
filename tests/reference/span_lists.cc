// Lists of spans for collisions, made from shapes.
#include <algorithm>
#include <cstdlib>
#include <vector>

#include "reference/records.h"
#include "reference/reference.h"

namespace reference {
namespace {

// Writes a plain list behind its head; how many entries it announces is the maker's business.
void Write(BRSL_CollisionSpans *list, int64_t count, int64_t top, int64_t bottom,
           const std::vector<BRSL_CollisionSpan> &spans) {
  const auto word = [](int64_t value) { return static_cast<int32_t>(value); };
  *list = {word(count), word(top), word(bottom)};
  std::copy(spans.begin(), spans.end(), reinterpret_cast<BRSL_CollisionSpan *>(list + 1));
}

BRSL_CollisionSpan Span(int64_t y, int64_t left, int64_t right) {
  return {static_cast<int32_t>(y), static_cast<int32_t>(left), static_cast<int32_t>(right)};
}

// The first and the last row of the corners; what is no polygon has those of the first.
std::pair<int32_t, int32_t> Rows(const BRSL_VertexBuffer &corners, int32_t count) {
  const int32_t looked = count < 2 || count > 8 ? 1 : count;
  const auto [top, bottom] = std::minmax_element(corners.y, corners.y + looked);
  return {*top, *bottom};
}

// A mask colour as the stored pixels of a format hold it.
uint32_t StoredMask(int32_t format, uint32_t colour) {
  return PackFor(format, format == 4 ? colour & 0xFFFFFF : colour);
}

std::vector<BRSL_CollisionSpan> ShallowLine(int64_t x1, int64_t y1, int64_t x2, int64_t y2) {
  std::vector<BRSL_CollisionSpan> spans;
  const int64_t step = (y2 - y1) * 16384 / (x2 - x1);
  int64_t y = y1 * 16384 + 8192, row = y / 16384, start = x1;
  for (int64_t x = x1; x <= x2; x++, y += step) {
    if (y / 16384 == row) continue;
    spans.push_back(Span(row, start, x + 1));
    row = y / 16384;
    start = x;
  }
  if (start < x2) spans.push_back(Span(y / 16384, start, x2 + 3));
  return spans;
}

}  // namespace

void ListPolygon(const BRSL_VertexBuffer *corners, int32_t count, BRSL_CollisionSpans *list) {
  const auto [top, bottom] = Rows(*corners, count);
  std::vector<BRSL_CollisionSpan> spans;
  for (const BRSL_TexturedSpan &span : Reference::PolygonSpans(*corners, count)) {
    spans.push_back({span.y, span.left, span.right});
  }
  Write(list, int64_t{bottom} - top, top, bottom, spans);
}

void ListLine(BRSL_CollisionSpans *list, int32_t x1, int32_t y1, int32_t x2, int32_t y2) {
  if (x1 >= x2) {
    std::swap(x1, x2);
    std::swap(y1, y2);
  }
  const int64_t dx = int64_t{x2} - x1, dy = int64_t{y2} - y1, rows = std::abs(dy);
  const int32_t top = std::min(y1, y2), bottom = std::max(y1, y2);
  if (dy == 0) return Write(list, 2, top, bottom, {Span(y1, x1, x2)});
  if (rows < dx) {
    const std::vector<BRSL_CollisionSpan> spans = ShallowLine(x1, y1, x2, y2);
    return Write(list, static_cast<int64_t>(spans.size()), top, bottom, spans);
  }
  std::vector<BRSL_CollisionSpan> spans;
  for (int64_t r = 0; r <= rows; r++) {
    const int64_t x = (x1 * int64_t{16384} + 8192 + r * (dx * 16384 / rows)) / 16384;
    spans.push_back(Span(dy < 0 ? y1 - r : y1 + r, x, x + 2));
  }
  Write(list, rows, top, bottom, spans);
}

void ListEllipse(BRSL_CollisionSpans *list, int32_t cx, int32_t cy, int32_t rx, int32_t ry) {
  std::vector<BRSL_CollisionSpan> spans;
  for (int64_t k = 1; k < ry; k++) {
    const int64_t h = HalfWidth(k, ry, rx);
    for (int64_t y : {cy + k, cy - k + 1}) spans.push_back(Span(y, cx - h, cx + h));
  }
  Write(list, int64_t{2} * ry, int64_t{cy} + 1 - ry, int64_t{cy} + ry, spans);
}

void ListRect(BRSL_CollisionSpans *list, int32_t x1, int32_t y1, int32_t x2, int32_t y2) {
  const int32_t top = std::min(y1, y2), bottom = std::max(y1, y2);
  std::vector<BRSL_CollisionSpan> spans;
  for (int64_t y = top; y < bottom; y++)
    spans.push_back(Span(y, std::min(x1, x2), std::max(x1, x2)));
  Write(list, int64_t{bottom} - top, top, bottom, spans);
}

void Reference::ListTexturedPolygon(const BRSL_VertexBuffer *corners, int32_t count,
                                    BRSL_TexturedSpans *list, uint32_t maskColour) const {
  const auto [top, bottom] = Rows(*corners, count);
  *list = {top,           bottom,       source.address,
           source.format, source.pitch, StoredMask(source.format, maskColour)};
  std::vector<BRSL_TexturedSpan> spans = PolygonSpans(*corners, count);
  spans.push_back({});
  std::copy(spans.begin(), spans.end(), reinterpret_cast<BRSL_TexturedSpan *>(list + 1));
}

void Reference::DrawSpansEdges(const BRSL_TexturedSpans *list) {
  const auto *spans = reinterpret_cast<const BRSL_TexturedSpan *>(list + 1);
  for (int64_t i = 0; i < int64_t{list->bottom} - list->top - 1; i++) {
    Dot(spans[i].left, spans[i].y, 0xFF0000, DRAW_NORMAL);
    Dot(spans[i].right, spans[i].y, 0xFF0000, DRAW_NORMAL);
  }
}

}  // namespace reference
