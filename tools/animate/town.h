#pragma once

#include <cstdint>
#include <vector>

#include "brisal/brisal.h"
#include "tools/gallery/surface.h"

namespace brisal::tools {

// A town between mountains and the sea as captured scenes, of which the nearer scrolls faster. Each
// repeats itself, so that it can scroll for ever.
class Town {
 public:
  // The view is width x horizon pixels, with the town standing on its lower edge.
  Town(int32_t width, int32_t horizon, int32_t format);

  // phase: 0 to 1, how far the scenes have gone once around.
  void Draw(double phase) const;

 private:
  using Records = std::vector<Scene_Record>;

  void CaptureMountains();
  void CaptureHouse(int32_t x, int32_t number);
  void CaptureLamp(int32_t x);
  void CaptureStreet();
  int32_t Units(double hundredths) const;
  void DrawLayer(const Records &layer, int32_t period, double phase) const;
  void DrawFrom(const Records &layer, int32_t dx) const;

  int32_t width_;
  int32_t horizon_;
  Surface stones_;
  Records mountains_;
  Records street_;
};

}  // namespace brisal::tools
