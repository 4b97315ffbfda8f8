#include <algorithm>

#include "brisal/brisal.h"
#include "reference/reference.h"

namespace reference {

// One side of a polygon on its way down: the vertex it runs towards, and x and the colour channels
// in 16.16 with what they gain each row.
struct Chain {
  int vertex = 0;
  int direction = 1;
  int64_t x = 0, xStep = 0;
  int64_t channel[3] = {}, channelStep[3] = {};

  void Advance(int64_t rows) {
    x += rows * xStep;
    for (int c = 0; c < 3; c++) channel[c] += rows * channelStep[c];
  }

  uint32_t Colour() const {
    uint32_t colour = 0;
    for (int c = 0; c < 3; c++) colour |= static_cast<uint32_t>(channel[c] >> 16 & 255) << 8 * c;
    return colour;
  }
};

namespace {

using Vertices = std::array<Vertex, 8>;

int Neighbour(int i, int direction, int count) { return (i + direction + count) % count; }

// The last of the vertices from i on that share i's row, and the first that does not.
int EndOfFlatRun(const Vertices &v, int i, int direction, int count) {
  for (int steps = 0; steps < count && v[Neighbour(i, direction, count)].y == v[i].y; steps++) {
    i = Neighbour(i, direction, count);
  }
  return i;
}

int NextOffRow(const Vertices &v, int i, int64_t y, int direction, int count) {
  for (int steps = 0; steps < count && v[i].y == y; steps++) i = Neighbour(i, direction, count);
  return i;
}

// The exact sign of the cross product. Its products need more than 64 bits, so they are kept as
// a multiple of 65536 and a rest.
bool TurnsClockwise(const Vertex &a, const Vertex &b, const Vertex &c) {
  const int64_t abx = int64_t{b.x} - a.x, aby = int64_t{b.y} - a.y;
  const int64_t acx = int64_t{c.x} - a.x, acy = int64_t{c.y} - a.y;
  const int64_t rest = abx * (acy & 0xFFFF) - acx * (aby & 0xFFFF);
  const int64_t high = abx * (acy >> 16) - acx * (aby >> 16) + (rest >> 16);
  return high > 0 || (high == 0 && (rest & 0xFFFF) != 0);
}

Chain StartChain(const Vertices &v, int vertex, int direction) {
  Chain chain{.vertex = vertex, .direction = direction};
  for (int c = 0; c < 3; c++) chain.channel[c] = Channel(v[vertex].colour, c) * 65536;
  return chain;
}

// Sends a chain that stands on a vertex of this row to its next one; false where that lies above.
bool StartEdge(const Vertices &v, Chain &chain, int64_t row, int count) {
  if (v[chain.vertex].y != row) return true;
  chain.x = v[chain.vertex].x * int64_t{65536};
  chain.vertex = NextOffRow(v, chain.vertex, row, chain.direction, count);
  const Vertex &next = v[chain.vertex];
  if (next.y < row) return false;
  const int64_t height = std::max<int64_t>(next.y - row, 1);
  chain.xStep = (next.x * int64_t{65536} - chain.x) / height;
  for (int c = 0; c < 3; c++) {
    chain.channelStep[c] = (Channel(next.colour, c) * 65536 - chain.channel[c]) / height;
  }
  return true;
}

int64_t ToPixel(int64_t x, bool clip) { return clip ? x / 65536 : x >> 16; }

}  // namespace

template <class Row>
void Reference::WalkPolygon(int count, Row row) const {
  if (count < 2 || count > 8) return;
  const Vertices &v = vertices_;
  const auto byX = [](const Vertex &a, const Vertex &b) { return a.x < b.x; };
  const auto byY = [](const Vertex &a, const Vertex &b) { return a.y < b.y; };
  const auto [leftmost, rightmost] = std::minmax_element(v.begin(), v.begin() + count, byX);
  const auto [topmost, lowest] = std::minmax_element(v.begin(), v.begin() + count, byY);
  if (lowest->y < viewport.top || topmost->y >= viewport.bottom) return;
  if (leftmost->x >= viewport.right || rightmost->x < viewport.left) return;
  const bool clip = leftmost->x < viewport.left || rightmost->x >= viewport.right;

  const int top = static_cast<int>(topmost - v.begin());
  int leftStart = EndOfFlatRun(v, top, -1, count), rightStart = EndOfFlatRun(v, top, 1, count);
  if (v[leftStart].x > v[rightStart].x) std::swap(leftStart, rightStart);
  const int leftDirection = TurnsClockwise(v[0], v[1], v[2]) ? -1 : 1;
  Chain left = StartChain(v, leftStart, leftDirection);
  Chain right = StartChain(v, rightStart, -leftDirection);

  int64_t y = topmost->y;
  for (int segment = 0; segment < count - 1 && y < viewport.bottom; segment++) {
    if (!StartEdge(v, left, y, count) || !StartEdge(v, right, y, count)) return;
    const int64_t end = std::min(v[left.vertex].y, v[right.vertex].y);
    for (; y < end && y < viewport.top; y = std::min<int64_t>(end, viewport.top)) {
      const int64_t skipped = std::min<int64_t>(end, viewport.top) - y;
      left.Advance(skipped);
      right.Advance(skipped);
    }
    for (; y < end && y < viewport.bottom; y++) {
      row(y, left, right, clip);
      left.Advance(1);
      right.Advance(1);
    }
    if (left.vertex == right.vertex) return;
  }
}

void Reference::FlatRow(int64_t y, const Chain &left, const Chain &right, bool clip,
                        uint32_t packed, int32_t mode) {
  Span(y, std::max<int64_t>(ToPixel(left.x, clip), viewport.left),
       std::min<int64_t>(ToPixel(right.x, clip), viewport.right), packed, mode);
}

void Reference::GouraudRow(int64_t y, const Chain &left, const Chain &right, bool clip,
                           int32_t mode) {
  int64_t from = ToPixel(left.x, clip), to = ToPixel(right.x, clip);
  if (from >= viewport.right || to < viewport.left || from >= to) return;
  Chain first = left, last = right;
  for (int c = 0; c < 3; c++) {
    const int64_t step = (right.channel[c] - left.channel[c]) / (to - from);
    if (from < viewport.left) first.channel[c] += (viewport.left - from) * step;
    if (to > viewport.right) last.channel[c] -= (to - viewport.right) * step;
  }
  from = std::max<int64_t>(from, viewport.left);
  to = std::min<int64_t>(to, viewport.right);
  GouraudSpan(y, from, to, first.Colour(), last.Colour(), mode);
}

void Reference::DrawFlatPoly(int count, uint32_t colour, int32_t mode) {
  WalkPolygon(count, [&](int64_t y, const Chain &left, const Chain &right, bool clip) {
    FlatRow(y, left, right, clip, Pack(colour), ShapeMode(mode));
  });
}

void Reference::DrawGouraudPoly(int32_t count, int32_t mode) {
  WalkPolygon(count, [&](int64_t y, const Chain &left, const Chain &right, bool clip) {
    GouraudRow(y, left, right, clip, ShapeMode(mode));
  });
}

void Reference::Tri(int32_t x0, int32_t y0, int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                    uint32_t colour, int32_t mode) {
  const int32_t points[3][2] = {{x0, y0}, {x1, y1}, {x2, y2}};
  for (int i = 0; i < 3; i++) vertices_[i] = {points[i][0], points[i][1], vertices_[i].colour};
  DrawFlatPoly(3, colour, mode);
}

void Reference::Quad(int32_t x0, int32_t y0, int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                     int32_t x3, int32_t y3, uint32_t colour, int32_t mode) {
  const int32_t points[4][2] = {{x0, y0}, {x1, y1}, {x2, y2}, {x3, y3}};
  for (int i = 0; i < 4; i++) vertices_[i] = {points[i][0], points[i][1], vertices_[i].colour};
  DrawFlatPoly(4, colour, mode);
}

void Reference::TriG(int32_t x0, int32_t y0, uint32_t c0, int32_t x1, int32_t y1, uint32_t c1,
                     int32_t x2, int32_t y2, uint32_t c2, int32_t mode) {
  vertices_[0] = {x0, y0, c0};
  vertices_[1] = {x1, y1, c1};
  vertices_[2] = {x2, y2, c2};
  DrawGouraudPoly(3, mode);
}

void Reference::QuadG(int32_t x0, int32_t y0, uint32_t c0, int32_t x1, int32_t y1, uint32_t c1,
                      int32_t x2, int32_t y2, uint32_t c2, int32_t x3, int32_t y3, uint32_t c3,
                      int32_t mode) {
  vertices_[0] = {x0, y0, c0};
  vertices_[1] = {x1, y1, c1};
  vertices_[2] = {x2, y2, c2};
  vertices_[3] = {x3, y3, c3};
  DrawGouraudPoly(4, mode);
}

void Reference::QuadSetGouraud(uint32_t c0, uint32_t c1, uint32_t c2, uint32_t c3) {
  const uint32_t colours[4] = {c0, c1, c2, c3};
  for (int i = 0; i < 4; i++) vertices_[i].colour = colours[i];
}

}  // namespace reference
