#include <algorithm>
#include <utility>

#include "reference/reference.h"

namespace reference {

// What runs along the edges of a polygon, in 16.16: blue, green, red, u, v.
using Values = std::array<int64_t, 5>;

// One side of a polygon on its way down: the vertex it runs towards, and x and the values in 16.16
// with what they gain each row.
struct Chain {
  int vertex = 0;
  int direction = 1;
  int64_t x = 0, xStep = 0;
  Values values = {}, steps = {};

  void Advance(int64_t rows) {
    x += rows * xStep;
    for (int i = 0; i < 5; i++) values[i] += rows * steps[i];
  }

  uint32_t Colour() const {
    uint32_t colour = 0;
    for (int c = 0; c < 3; c++) colour |= static_cast<uint32_t>(values[c] >> 16 & 255) << 8 * c;
    return colour;
  }
};

namespace {

using Vertices = std::array<Vertex, 8>;

constexpr auto kByX = [](const Vertex &a, const Vertex &b) { return a.x < b.x; };
constexpr auto kByY = [](const Vertex &a, const Vertex &b) { return a.y < b.y; };

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

bool Has16Bits(const Vertex &v) {
  return std::abs(v.x + 0.5) < 32768 && std::abs(v.y + 0.5) < 32768;
}

// The sign of the cross product in 32 bits; beyond coordinates of 16 bits the exact one. Its products
// need more than 64 bits, so they are kept as a multiple of 65536 and a rest.
bool TurnsClockwise(const Vertex &a, const Vertex &b, const Vertex &c) {
  if (Has16Bits(a) && Has16Bits(b) && Has16Bits(c)) {
    const uint32_t x0 = a.x, y0 = a.y, x1 = b.x, y1 = b.y, x2 = c.x, y2 = c.y;
    const uint32_t cross = (x1 - x0) * (y2 - y0) - (x2 - x0) * (y1 - y0);
    return cross != 0 && cross < 0x80000000;
  }
  const int64_t abx = int64_t{b.x} - a.x, aby = int64_t{b.y} - a.y;
  const int64_t acx = int64_t{c.x} - a.x, acy = int64_t{c.y} - a.y;
  const int64_t rest = abx * (acy & 0xFFFF) - acx * (aby & 0xFFFF);
  const int64_t high = abx * (acy >> 16) - acx * (aby >> 16) + (rest >> 16);
  return high > 0 || (high == 0 && (rest & 0xFFFF) != 0);
}

// Sprites and lists of spans run from texel centre to texel centre.
Values ValuesAt(const Vertex &v, Edges edges) {
  const int64_t centre = edges == Edges::kPlain ? 0 : 0x8000;
  Values values;
  for (int c = 0; c < 3; c++) values[c] = Channel(v.colour, c) * 65536;
  values[3] = v.u * int64_t{65536} + centre;
  values[4] = v.v * int64_t{65536} + centre;
  return values;
}

// Sends a chain that stands on a vertex of this row to its next one; false where that lies above.
bool StartEdge(const Vertices &v, Chain &chain, int64_t row, int count, Edges edges) {
  if (v[chain.vertex].y != row) return true;
  chain.x = v[chain.vertex].x * int64_t{65536};
  if (edges == Edges::kSpanList) chain.values = ValuesAt(v[chain.vertex], edges);
  chain.vertex = NextOffRow(v, chain.vertex, row, chain.direction, count);
  const Vertex &next = v[chain.vertex];
  if (next.y < row) return false;
  const int64_t height = std::max<int64_t>(next.y - row, 1);
  chain.xStep = (next.x * int64_t{65536} - chain.x) / height;
  const Values target = ValuesAt(next, edges);
  for (int i = 0; i < 5; i++) chain.steps[i] = (target[i] - chain.values[i]) / height;
  return true;
}

int64_t ToPixel(int64_t x, bool clip) { return clip ? x / 65536 : x >> 16; }

}  // namespace

bool Reference::ReachesViewport(int count) const {
  if (count < 1 || count > 8) return false;
  const auto first = vertices_.begin(), last = first + count;
  const auto [leftmost, rightmost] = std::minmax_element(first, last, kByX);
  const auto [topmost, lowest] = std::minmax_element(first, last, kByY);
  return lowest->y >= viewport.top && topmost->y < viewport.bottom &&
         leftmost->x < viewport.right && rightmost->x >= viewport.left;
}

template <class Row>
void Reference::WalkPolygon(int count, Edges edges, Row row) const {
  if (edges == Edges::kSpanList ? count < 2 || count > 8 : !ReachesViewport(count)) return;
  const Vertices &v = vertices_;
  const auto [leftmost, rightmost] = std::minmax_element(v.begin(), v.begin() + count, kByX);
  const auto topmost = std::min_element(v.begin(), v.begin() + count, kByY);
  const bool clip = leftmost->x < viewport.left || rightmost->x >= viewport.right;

  const int top = static_cast<int>(topmost - v.begin());
  int leftStart = EndOfFlatRun(v, top, -1, count), rightStart = EndOfFlatRun(v, top, 1, count);
  if (v[leftStart].x > v[rightStart].x) std::swap(leftStart, rightStart);
  const int leftDirection = TurnsClockwise(v[0], v[1], v[2]) ? -1 : 1;
  Chain left{.vertex = leftStart, .direction = leftDirection};
  Chain right{.vertex = rightStart, .direction = -leftDirection};
  left.values = ValuesAt(v[leftStart], edges);
  right.values = ValuesAt(v[rightStart], edges);

  int64_t y = topmost->y;
  for (int segment = 0; segment < count - 1 && y < viewport.bottom; segment++) {
    if (!StartEdge(v, left, y, count, edges) || !StartEdge(v, right, y, count, edges)) return;
    const bool flatBottom =
        edges == Edges::kSprite && v[left.vertex].y == v[right.vertex].y && left.x != right.x;
    // An edge without height takes a row.
    const int64_t lower = std::min(v[left.vertex].y, v[right.vertex].y);
    const int64_t end = std::max<int64_t>(lower, y + 1) + flatBottom;
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
    if (left.vertex == right.vertex || flatBottom) return;
  }
}

void Reference::FlatRow(int64_t y, const Chain &left, const Chain &right, bool clip,
                        uint32_t packed, int32_t mode) {
  Span(y, std::max<int64_t>(ToPixel(left.x, clip), viewport.left),
       std::min<int64_t>(ToPixel(right.x, clip), viewport.right), packed, mode);
}

// The colours at the ends of a row that remain in the viewport.
std::pair<uint32_t, uint32_t> Reference::RowColours(const Chain &left, const Chain &right,
                                                    int64_t from, int64_t to) const {
  Chain first = left, last = right;
  for (int c = 0; c < 3; c++) {
    const int64_t step = (right.values[c] - left.values[c]) / (to - from);
    if (from < viewport.left) first.values[c] += (viewport.left - from) * step;
    if (to > viewport.right) last.values[c] -= (to - viewport.right) * step;
  }
  return {first.Colour(), last.Colour()};
}

void Reference::GouraudRow(int64_t y, const Chain &left, const Chain &right, bool clip,
                           int32_t mode) {
  const int64_t from = ToPixel(left.x, clip), to = ToPixel(right.x, clip);
  if (from >= viewport.right || to < viewport.left || from >= to) return;
  const auto [first, last] = RowColours(left, right, from, to);
  GouraudSpan(y, std::max<int64_t>(from, viewport.left), std::min<int64_t>(to, viewport.right),
              first, last, mode);
}

// The last pixel of a sprite's row shows the right end's texel, of other rows the one before it.
void Reference::PolygonRow(const BRSL_SurfaceDesc &texture, const TPD_Pipeline &p, int64_t y,
                           const Chain &left, const Chain &right, bool clip, bool sprite) {
  const int64_t from = ToPixel(left.x, clip), to = ToPixel(right.x, clip);
  const int64_t steps = sprite ? to - from - 1 : to - from;
  if (from >= viewport.right || to < viewport.left || steps < 1) return;
  const int64_t skipped = std::max<int64_t>(viewport.left - from, 0);
  const int64_t du = (right.values[3] - left.values[3]) / steps;
  const int64_t dv = (right.values[4] - left.values[4]) / steps;
  const auto [first, last] = RowColours(left, right, from, to);
  TexturedSpan(texture, p,
               {y, from + skipped, std::min<int64_t>(to, viewport.right),
                left.values[3] + skipped * du, left.values[4] + skipped * dv, du, dv, first, last});
}

void Reference::TexturedPolygon(const BRSL_SurfaceDesc *texture, int count, const TPD_Pipeline *p,
                                bool sprite) {
  if (!texture || !p) return;
  if (texture->width < 1 || texture->height < 1 || !ReachesViewport(count)) return;
  for (int i = 0; i < count; i++) {
    vertices_[i].u = std::clamp(vertices_[i].u, 0, texture->width - 1);
    vertices_[i].v = std::clamp(vertices_[i].v, 0, texture->height - 1);
  }
  WalkPolygon(count, sprite ? Edges::kSprite : Edges::kPlain,
              [&](int64_t y, const Chain &left, const Chain &right, bool clip) {
                PolygonRow(*texture, *p, y, left, right, clip, sprite);
              });
}

void Reference::DrawFlatPoly(int count, uint32_t colour, int32_t mode) {
  WalkPolygon(count, Edges::kPlain,
              [&](int64_t y, const Chain &left, const Chain &right, bool clip) {
                FlatRow(y, left, right, clip, Pack(colour), ShapeMode(mode));
              });
}

void Reference::DrawGouraudPoly(int32_t count, int32_t mode) {
  WalkPolygon(count, Edges::kPlain,
              [&](int64_t y, const Chain &left, const Chain &right, bool clip) {
                GouraudRow(y, left, right, clip, ShapeMode(mode));
              });
}

// Both ends rounded towards zero, whatever the viewport.
std::vector<BRSL_TexturedSpan> Reference::PolygonSpans(const BRSL_VertexBuffer &corners,
                                                       int32_t count) {
  Reference unbounded;
  unbounded.viewport = {INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX};
  for (int i = 0; i < 8; i++) {
    unbounded.SetCorner(i, {corners.x[i], corners.y[i], 0, corners.u[i], corners.v[i]});
  }
  std::vector<BRSL_TexturedSpan> spans;
  const auto whole = [](int64_t value) { return static_cast<int32_t>(value); };
  unbounded.WalkPolygon(count, Edges::kSpanList,
                        [&](int64_t y, const Chain &left, const Chain &right, bool) {
                          spans.push_back({whole(y), whole(left.x / 65536), whole(left.values[3]),
                                           whole(left.values[4]), whole(right.x / 65536),
                                           whole(right.values[3]), whole(right.values[4])});
                        });
  return spans;
}

void Reference::SetVertex(int slot, int32_t x, int32_t y) {
  vertices_[slot].x = x;
  vertices_[slot].y = y;
}

void Reference::SetVertex(int slot, int32_t x, int32_t y, uint32_t colour) {
  SetVertex(slot, x, y);
  vertices_[slot].colour = colour;
}

void Reference::SetCorner(int slot, const Vertex &corner) {
  SetVertex(slot, corner.x, corner.y);
  vertices_[slot].u = corner.u;
  vertices_[slot].v = corner.v;
}

void Reference::Tri(int32_t x0, int32_t y0, int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                    uint32_t colour, int32_t mode) {
  SetVertex(0, x0, y0);
  SetVertex(1, x1, y1);
  SetVertex(2, x2, y2);
  DrawFlatPoly(3, colour, mode);
}

void Reference::Quad(int32_t x0, int32_t y0, int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                     int32_t x3, int32_t y3, uint32_t colour, int32_t mode) {
  SetVertex(0, x0, y0);
  SetVertex(1, x1, y1);
  SetVertex(2, x2, y2);
  SetVertex(3, x3, y3);
  DrawFlatPoly(4, colour, mode);
}

void Reference::TriG(int32_t x0, int32_t y0, uint32_t c0, int32_t x1, int32_t y1, uint32_t c1,
                     int32_t x2, int32_t y2, uint32_t c2, int32_t mode) {
  SetVertex(0, x0, y0, c0);
  SetVertex(1, x1, y1, c1);
  SetVertex(2, x2, y2, c2);
  DrawGouraudPoly(3, mode);
}

void Reference::QuadG(int32_t x0, int32_t y0, uint32_t c0, int32_t x1, int32_t y1, uint32_t c1,
                      int32_t x2, int32_t y2, uint32_t c2, int32_t x3, int32_t y3, uint32_t c3,
                      int32_t mode) {
  SetVertex(0, x0, y0, c0);
  SetVertex(1, x1, y1, c1);
  SetVertex(2, x2, y2, c2);
  SetVertex(3, x3, y3, c3);
  DrawGouraudPoly(4, mode);
}

void Reference::QuadSetGouraud(uint32_t c0, uint32_t c1, uint32_t c2, uint32_t c3) {
  const uint32_t colours[4] = {c0, c1, c2, c3};
  for (int i = 0; i < 4; i++) vertices_[i].colour = colours[i];
}

}  // namespace reference
