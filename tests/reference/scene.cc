// The records that the writers of captured scenes leave.
#include <algorithm>
#include <bit>
#include <cmath>
#include <vector>

#include "reference/records.h"

namespace reference {
namespace {

// Numbers out of range give the nearest one, and what is no number the lowest.
int32_t Floor(int32_t bits) {
  const double value = std::floor(double{std::bit_cast<float>(bits)});
  if (!(value >= INT32_MIN)) return INT32_MIN;
  return value <= INT32_MAX ? static_cast<int32_t>(value) : INT32_MAX;
}

// The arguments of one kind, in their order.
std::vector<int32_t> Given(char kind, const char *kinds, const int32_t *args) {
  std::vector<int32_t> given;
  for (int i = 0; kinds[i]; i++) {
    if (kinds[i] == kind) given.push_back(args[i]);
  }
  return given;
}

// Stores the one argument of a kind, if there is one.
template <class Field>
void Keep(Field &field, char kind, const char *kinds, const int32_t *args) {
  for (int32_t value : Given(kind, kinds, args)) field = static_cast<Field>(value);
}

struct Point {
  int32_t x, y;
};

void SetBox(Scene_Record *r, int32_t left, int32_t top, int32_t right, int32_t bottom) {
  r->left = left;
  r->top = top;
  r->right = right;
  r->bottom = bottom;
}

void Bound(Scene_Record *r, const std::vector<Point> &points) {
  const auto [left, right] = std::minmax_element(
      points.begin(), points.end(), [](const Point &a, const Point &b) { return a.x < b.x; });
  const auto [top, bottom] = std::minmax_element(
      points.begin(), points.end(), [](const Point &a, const Point &b) { return a.y < b.y; });
  SetBox(r, left->x, top->y, right->x, bottom->y);
}

// The points of shapes that are not simply given by their corners, and their bounding box.
std::vector<Point> PointsOf(Scene_Record *r, std::vector<int32_t> x, std::vector<int32_t> y,
                            const std::vector<int32_t> &sizes) {
  switch (r->code) {
    case 2:
      x[0] = Floor(x[0]);
      y[0] = Floor(y[0]);
      SetBox(r, x[0], y[0], Add(x[0], 1), Add(y[0], 1));
      break;
    case 3:
    case 4:
      Bound(r, {{x[0], y[0]}, {x[1], y[1]}});
      if (r->code == 3) return {{r->left, r->top}, {r->right, r->bottom}};
      return {{r->left, r->top}, {r->right, r->top}, {r->right, r->bottom}, {r->left, r->bottom}};
    case 5:
    case 6: {
      const int32_t rx = sizes[0], ry = sizes.back();
      const Point corner = {Add(x[0], rx), Add(y[0], ry)};
      SetBox(r, Subtract(x[0], rx), Subtract(y[0], ry), corner.x, corner.y);
      return {{x[0], y[0]}, corner};
    }
    case 40:
    case 42:
      SetBox(r, std::min(x[0], x[1]), y[0], std::max(x[0], x[1]), Add(y[0], 1));
      return {{x[0], y[0]}, {x[1], y[0]}};
    case 41:
    case 43:
      SetBox(r, x[0], std::min(y[0], y[1]), Add(x[0], 1), std::max(y[0], y[1]));
      return {{x[0], y[0]}, {r->code == 41 ? Add(x[0], 1) : x[0], y[1]}};
    default:
      if (sizes.size() == 2) SetBox(r, x[0], y[0], Add(x[0], sizes[0]), Add(y[0], sizes[1]));
  }
  std::vector<Point> points;
  for (size_t i = 0; i < x.size(); i++) points.push_back({x[i], y[i]});
  return points;
}

void Place(Scene_Vertex &vertex, const Point &point) {
  vertex.firstX = vertex.x = point.x;
  vertex.firstY = vertex.y = point.y;
}

}  // namespace

void Capture(Scene_Record *r, int code, const char *kinds, const int32_t *args) {
  if (!r) return;
  r->marker = 1;
  r->code = static_cast<int16_t>(code);
  Keep(r->flags, 'f', kinds, args);
  Keep(r->hostA, 'A', kinds, args);
  Keep(r->hostB, 'B', kinds, args);
  Keep(r->image, 'I', kinds, args);
  Keep(r->alpha, 'a', kinds, args);
  for (int i = 0; i < 3; i++) Keep(r->shape[i], static_cast<char>('1' + i), kinds, args);

  const bool floats = code == 2;
  const std::vector<Point> points =
      PointsOf(r, Given(floats ? 'X' : 'x', kinds, args), Given(floats ? 'Y' : 'y', kinds, args),
               Given('s', kinds, args));
  r->vertexCount = static_cast<int32_t>(points.size());
  std::vector<int32_t> colours = Given('c', kinds, args);
  if (code == 25 || code == 30) colours.resize(points.size(), colours[0]);
  const std::vector<int32_t> columns = Given('u', kinds, args), rows = Given('v', kinds, args);
  for (size_t i = 0; i < points.size(); i++) {
    Place(r->vertices[i], points[i]);
    if (i < colours.size()) r->vertices[i].colour = static_cast<uint32_t>(colours[i]);
    if (i < columns.size()) r->vertices[i].tu = columns[i];
    if (i < rows.size()) r->vertices[i].tv = rows[i];
  }
  for (int32_t mode : Given('b', kinds, args)) {
    if (mode == 2) Bound(r, points);
  }
}

void PokeBoundingBox(Scene_Record *r, int32_t x1, int32_t y1, int32_t x2, int32_t y2) {
  if (r) Bound(r, {{x1, y1}, {x2, y2}});
}

void PokeEdgeVectors(Scene_EdgeVectors *edge, float x1, float y1, float x2, float y2) {
  if (!edge) return;
  const long double dx = static_cast<long double>(x2) - x1, dy = static_cast<long double>(y2) - y1;
  const auto length = static_cast<float>(std::sqrt(dx * dx + dy * dy));
  edge->dx = static_cast<float>(dx);
  edge->dy = static_cast<float>(dy);
  edge->normalX =
      length == 0 ? 0 : static_cast<float>((static_cast<long double>(y1) - y2) / length);
  edge->normalY = length == 0 ? 0 : static_cast<float>(dx / length);
  edge->negatedX = -edge->normalX;
  edge->negatedY = -edge->normalY;
}

void PlaceVertex(Scene_Vertex *vertex, int32_t x, int32_t y) { Place(*vertex, {x, y}); }

}  // namespace reference
