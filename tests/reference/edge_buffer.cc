// Edge buffers: sorted crossings a row, in the host's memory.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

#include "reference/records.h"
#include "reference/reference.h"

namespace reference {
namespace {

struct Node {
  int32_t next, unused;
  float x;
};

Node *NodeAt(uint8_t *pool, int32_t offset) { return reinterpret_cast<Node *>(pool + offset); }

int64_t Whole(float x) {
  return static_cast<int64_t>(std::clamp(x, -2147483648.0f, 2147483648.0f));
}

// Takes a row's crossings in pairs, which leaves the row empty.
std::vector<std::pair<int64_t, int64_t>> TakePairs(uint8_t *pool, int32_t *head, int64_t left,
                                                   int64_t right) {
  std::vector<std::pair<int64_t, int64_t>> pairs;
  std::vector<float> crossings;
  for (int32_t at = *head; at != 0; at = NodeAt(pool, at)->next) {
    crossings.push_back(NodeAt(pool, at)->x);
  }
  *head = 0;
  for (size_t i = 0; i + 1 < crossings.size(); i += 2) {
    const int64_t from = std::max(Whole(crossings[i]), left);
    const int64_t to = std::min(Whole(crossings[i + 1]), right);
    if (from < to) pairs.push_back({from, to});
  }
  return pairs;
}

}  // namespace

void Reference::SetShapeBuffers(int32_t *rowTable, void *nodePool) {
  rowTable_ = rowTable;
  nodePool_ = static_cast<uint8_t *>(nodePool);
}

void Reference::AddShapeVert(float x, int32_t row) {
  const int32_t added = rowTable_[0];
  rowTable_[0] += 12;
  int32_t *link = &rowTable_[1 + row];
  while (*link != 0 && NodeAt(nodePool_, *link)->x <= x) link = &NodeAt(nodePool_, *link)->next;
  NodeAt(nodePool_, added)->x = x;
  NodeAt(nodePool_, added)->next = *link;
  *link = added;
}

void Reference::BufferShapeEdge(float x1, float y1, float x2, float y2, int32_t firstRow,
                                int32_t endRow) {
  if (y1 > y2) {
    std::swap(x1, x2);
    std::swap(y1, y2);
  }
  const float height = y2 - y1, slope = height < 1 ? 0 : (x2 - x1) / height;
  const float first = std::ceil(y1), end = std::min(std::ceil(y2), static_cast<float>(endRow));
  float x = x1;
  if (first < static_cast<float>(firstRow)) x += (static_cast<float>(firstRow) - first) * slope;
  for (float row = std::max(first, static_cast<float>(firstRow)); row < end; row++, x += slope) {
    AddShapeVert(x, static_cast<int32_t>(row));
  }
}

void Reference::DrawShape(int32_t *rowHeads, const void * /*unused*/, uint32_t colour,
                          int32_t mode) {
  for (int32_t y = viewport.top; y < viewport.bottom; y++) {
    for (const auto &[from, to] :
         TakePairs(nodePool_, &rowHeads[y], viewport.left, viewport.right)) {
      DrawStrip(y, static_cast<int32_t>(from), static_cast<int32_t>(to), Pack(colour), mode);
    }
  }
}

int32_t Reference::ListShape(BRSL_CollisionSpans *list, int32_t left, int32_t top, int32_t right,
                             int32_t bottom, int32_t *rowTable, const void * /*unused*/) {
  auto *span = reinterpret_cast<BRSL_CollisionSpan *>(list + 1);
  int32_t count = 0;
  for (int32_t y = top; y < bottom; y++) {
    for (const auto &[from, to] : TakePairs(nodePool_, &rowTable[1 + y], left, right)) {
      span[count++] = {y, static_cast<int32_t>(from), static_cast<int32_t>(to)};
    }
  }
  *list = {count, top, bottom};
  return count;
}

}  // namespace reference
