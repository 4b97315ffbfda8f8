#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

#include "pixel/instructions.h"
#include "pixel/lanes.h"

// Vectors whose lanes come from anywhere in memory, loaded one by one. On many processors the instructions
// for it are no faster; pixel/gathered_texels.h is for the others.

namespace brisal {

template <class Lane, class LaneAt>
BRISAL_INLINE Vector<Lane, 16> FourLanes(LaneAt laneAt) {
  auto v = Splat<Vector<Lane, 16>>(laneAt(0));
  v[1] = laneAt(1);
  v[2] = laneAt(2);
  v[3] = laneAt(3);
  return v;
}

template <class V, class LaneAt, size_t... I>
BRISAL_INLINE V AllLanes(LaneAt laneAt, std::index_sequence<I...>) {
  return V{laneAt(I)...};
}

// laneAt(i) is the i-th lane. Where a vector is wide, GCC would work out all places first and run out of
// registers; chains of four take each place as it is made, and do not wait for each other.
template <class V, int ColumnBytes, class LaneAt>
BRISAL_INLINE V Gather(LaneAt laneAt) {
  using Lane = std::remove_cvref_t<decltype(V{}[0])>;
  constexpr size_t kLanes = sizeof(V) / sizeof(Lane);
  constexpr bool kJoins = ColumnBytes == 64 && sizeof(V) >= 16;
  const auto upperAt = [=](size_t i) __attribute__((always_inline)) {
    return laneAt(i + kLanes / 2);
  };
  if constexpr (kJoins && sizeof(V) > 16) {
    using Half = Vector<Lane, sizeof(V) / 2>;
    V v;
    JoinHalves(Gather<Half, ColumnBytes>(laneAt), Gather<Half, ColumnBytes>(upperAt), v);
    return v;
  } else if constexpr (kJoins && kLanes == 8) {
    const auto lower = As<uint64_t>(FourLanes<Lane>(laneAt));
    const auto upper = As<uint64_t>(FourLanes<Lane>(upperAt));
    return As<Lane>(__builtin_shufflevector(lower, upper, 0, 2));
  } else if constexpr (kJoins && kLanes == 4) {
    return FourLanes<Lane>(laneAt);
  } else {
    return AllLanes<V>(laneAt, std::make_index_sequence<kLanes>{});
  }
}

// Two vectors whose lanes come from related places, together, so that no place is kept for long.
template <int ColumnBytes, class V, class LaneAt, class OtherAt>
BRISAL_INLINE void GatherTwo(LaneAt laneAt, OtherAt otherAt, V &lanes, V &others) {
  using Lane = std::remove_cvref_t<decltype(V{}[0])>;
  if constexpr (ColumnBytes == 64 && sizeof(V) > 16) {
    constexpr size_t kHalf = sizeof(V) / sizeof(Lane) / 2;
    const auto upperAt = [=](size_t i) __attribute__((always_inline)) { return laneAt(i + kHalf); };
    const auto upperOtherAt = [=](size_t i) __attribute__((always_inline)) {
      return otherAt(i + kHalf);
    };
    Vector<Lane, sizeof(V) / 2> lower, lowerOthers, upper, upperOthers;
    GatherTwo<ColumnBytes>(laneAt, otherAt, lower, lowerOthers);
    GatherTwo<ColumnBytes>(upperAt, upperOtherAt, upper, upperOthers);
    JoinHalves(lower, upper, lanes);
    JoinHalves(lowerOthers, upperOthers, others);
  } else {
    lanes = Gather<V, ColumnBytes>(laneAt);
    others = Gather<V, ColumnBytes>(otherAt);
  }
}

}  // namespace brisal
