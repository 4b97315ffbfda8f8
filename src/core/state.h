#pragma once

#include <cstdint>

#include "core/canvas.h"
#include "core/edge_buffer.h"
#include "core/host_services.h"
#include "core/quarter_circle.h"
#include "core/random_state.h"
#include "core/span.h"
#include "core/texel_buffer.h"
#include "core/vertex_list.h"

namespace brisal {

// All that the library remembers between calls. The exports hold the one instance; everything below
// them takes the pieces it needs.
struct State {
  static constexpr int kDebugSlots = 256;
  static constexpr int kCycleSlots = 128;

  Canvas canvas;
  Buffer source;
  Buffer blendSource;
  int32_t mmxSwitch = 0;
  int32_t debug[kDebugSlots] = {};
  uint64_t cycles[kCycleSlots] = {};
  QuarterCircle quarterCircle;
  SpanBuffer spans;
  VertexList vertices;
  GouraudBuffer gouraud;
  EdgeBuffer edges;
  RandomState random;
  HostServices services;
};

}  // namespace brisal
