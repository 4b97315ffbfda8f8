// What a case is drawn on: three pictures of random shape, and what the host keeps beside them.
#pragma once

#include "support/family.h"
#include "support/picture.h"

// The second picture is the source buffer and surface 1, the third the blend source buffer and
// surface 2.
struct SceneLayout {
  Layout target{}, source{}, blendSource{};
  bool overlapping = false;  // the source buffer lies in the target's memory
  Family family = Family::kPixels;
  uint64_t seed = 0;          // of what is beside the pictures
  int failingAllocation = 0;  // of the host; 0 for none
};

SceneLayout LayoutFor(Random &random, Family family);
