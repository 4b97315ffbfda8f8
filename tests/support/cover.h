// Which pixels of a square a shape covers: what was drawn, and what a span list says.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <vector>

#include "brisal/brisal.h"

inline constexpr int32_t kSide = 96;
inline constexpr size_t kEntries = 400;

struct PlainList {
  BRSL_CollisionSpans head{};
  BRSL_CollisionSpan entry[kEntries]{};
};

// Pixels of a square that a shape covers.
class Cover {
 public:
  void Add(int32_t y, int32_t left, int32_t right) {
    for (int32_t x = std::max(left, 0); x < std::min(right, kSide); x++) {
      if (y >= 0 && y < kSide) at_[y * kSide + x] = true;
    }
  }
  bool At(int32_t x, int32_t y) const { return at_[y * kSide + x]; }
  bool operator==(const Cover &) const = default;

 private:
  std::vector<bool> at_ = std::vector<bool>(kSide * kSide);
};

inline Cover CoverOf(const PlainList &list, int entries) {
  Cover cover;
  for (int i = 0; i < entries; i++) {
    cover.Add(list.entry[i].y, list.entry[i].left, list.entry[i].right);
  }
  return cover;
}

inline Cover Drawn(const std::function<void()> &draw) {
  std::vector<uint32_t> pixels(kSide * kSide);
  BRSL_SetBuffer(pixels.data(), kSide * 4, 4);
  BRSL_SetBufferViewPort(0, 0, kSide, kSide);
  draw();
  Cover cover;
  for (int32_t i = 0; i < kSide * kSide; i++) {
    if (pixels[i]) cover.Add(i / kSide, i % kSide, i % kSide + 1);
  }
  return cover;
}
