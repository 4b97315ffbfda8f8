#pragma once

#include <algorithm>
#include <cstdint>
#include <utility>

#include "core/canvas.h"
#include "core/reciprocal.h"
#include "core/vertex_list.h"
#include "poly/edges.h"

// The scan conversion that every polygon shares. What is interpolated along an edge besides x is a
// parameter; what becomes of each row is the caller's.

namespace brisal {

// Values that an edge carries beside x: nothing.
struct NoValues {
  void Start(const VertexList &, int) {}
  void AimAt(const VertexList &, int, const Reciprocal &) {}
  void Advance(int64_t) {}
};

// One side of a polygon on its way down. x is 16.16.
template <class Values>
class Chain {
 public:
  Chain(const VertexList &list, int count, int vertex, int direction)
      : list_(list), count_(count), vertex_(vertex), direction_(direction) {
    values.Start(list, vertex);
  }

  // Turns into the next edge where the row has reached a vertex. False where that edge leads up.
  bool Enter(int64_t row) {
    if (list_.y[vertex_] != row) return true;
    x = int64_t{list_.x[vertex_]} * 65536;
    vertex_ = FindNextEdgeVertex(list_.y, row, vertex_, direction_, count_);
    const int64_t height = list_.y[vertex_] - row;
    if (height < 0) return false;
    const int64_t rows = std::max<int64_t>(height, 1);
    const Reciprocal perRow(rows);
    step_ = perRow.Quotient(int64_t{list_.x[vertex_]} * 65536 - x);
    values.AimAt(list_, vertex_, perRow);
    end_ = row + rows;
    return true;
  }

  void Advance(int64_t rows) {
    x += rows * step_;
    values.Advance(rows);
  }

  int64_t Step() const { return step_; }
  // One past the last row of the edge.
  int64_t End() const { return end_; }
  int Vertex() const { return vertex_; }

  int64_t x = 0;
  [[no_unique_address]] Values values;

 private:
  const VertexList &list_;
  int count_;
  int vertex_;
  int direction_;
  int64_t step_ = 0;
  int64_t end_ = 0;
};

// A polygon of the vertex list that may show in the view. A single vertex has bounds, but no edges.
struct Polygon {
  Polygon(const VertexList &vertices, int vertexCount) : list(vertices), count(vertexCount) {
    if (count < 1 || count > VertexList::kSlots) return;
    top = GetPolyBounds(list.x, list.y, count, &bounds);
    drawable = true;
  }

  bool Shows(const Viewport &view) const {
    return drawable && bounds.maxY >= view.top && bounds.minY < view.bottom &&
           bounds.minX < view.right && bounds.maxX >= view.left;
  }

  bool CrossesSides(const Viewport &view) const {
    return bounds.minX < view.left || bounds.maxX >= view.right;
  }

  // No more rows than these are ever visited.
  int64_t MaxRows(const Viewport &view) const {
    const int64_t first = std::max(bounds.minY, view.top);
    const int64_t last = std::min<int64_t>(bounds.maxY, int64_t{view.bottom} - 1);
    return std::max<int64_t>(last - first + 1, 0);
  }

  const VertexList &list;
  int count;
  bool drawable = false;
  int top = 0;
  PolyBounds bounds = {};
};

// Where a segment between two vertices ends, one past its last row: where the first edge does.
struct EndAtVertex {
  template <class Values>
  static int64_t End(const Chain<Values> &left, const Chain<Values> &right) {
    return std::min(left.End(), right.End());
  }
};

// Calls segment(y, rows, left chain, right chain) for each part of the polygon in the view between two
// edges, downwards. It advances both chains by `rows`.
template <class Values, class SegmentRule = EndAtVertex, class Segment>
void WalkSegments(const Polygon &polygon, const Viewport &view, Segment segment) {
  const VertexList &list = polygon.list;
  const int count = polygon.count;
  int64_t y = polygon.bounds.minY;
  int start = FindFlatRunStart(list.y, polygon.top, polygon.bounds.minY, count);
  int end = FindFlatRunEnd(list.y, polygon.top, polygon.bounds.minY, count);
  if (list.x[start] > list.x[end]) std::swap(start, end);
  const int direction = LeftRunsBackwards(list.x, list.y) ? -1 : 1;
  Chain<Values> left(list, count, start, direction);
  Chain<Values> right(list, count, end, -direction);

  for (int edges = 1; edges < count && y < view.bottom; ++edges) {
    if (!left.Enter(y) || !right.Enter(y)) return;
    const int64_t stop = std::min<int64_t>(SegmentRule::End(left, right), view.bottom);
    const int64_t above = std::min(stop, int64_t{view.top}) - y;
    if (above > 0) {
      left.Advance(above);
      right.Advance(above);
      y += above;
    }
    if (y < stop) segment(y, stop - y, left, right);
    y = std::max(y, stop);
    if (left.Vertex() == right.Vertex()) return;
  }
}

// Calls row(y, left chain, right chain) for each row of the polygon in the view, downwards.
template <class Values, class SegmentRule = EndAtVertex, class Row>
void WalkEdges(const Polygon &polygon, const Viewport &view, Row row) {
  WalkSegments<Values, SegmentRule>(
      polygon, view, [&](int64_t y, int64_t rows, Chain<Values> &left, Chain<Values> &right) {
        for (const int64_t stop = y + rows; y < stop; ++y) {
          row(y, left, right);
          left.Advance(1);
          right.Advance(1);
        }
      });
}

}  // namespace brisal
