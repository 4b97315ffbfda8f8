#pragma once

#include <cstdint>
#include <vector>

#include "brisal/brisal.h"
#include "host/error.h"

namespace brisal::host {

// Bytes a pixel takes in a BRSL_FORMAT_*; 0 for any other code.
int32_t BytesPerPixel(int32_t format);

// A picture in memory, in any of the library's five formats, that owns its pixels.
// A colour here is 0xAARRGGBB; formats without an alpha channel read as opaque, and channels
// narrower than eight bits are widened by repeating their high bits, so that white stays white.
class Image {
 public:
  static constexpr int32_t kMaxSide = 32767;
  static constexpr int64_t kMaxPixels = int64_t{256} << 20;

  Image() = default;
  // All pixels 0. Throws Error for a side outside 1 - kMaxSide, too many pixels or no such format.
  Image(int32_t width, int32_t height, int32_t format);

  int32_t Width() const { return width_; }
  int32_t Height() const { return height_; }
  int32_t Pitch() const { return pitch_; }
  int32_t Format() const { return format_; }

  // Storage of a row, 0 <= y < Height().
  uint8_t *Row(int32_t y) { return pixels_.data() + int64_t{y} * pitch_; }
  const uint8_t *Row(int32_t y) const { return pixels_.data() + int64_t{y} * pitch_; }

  // Width() colours of a row.
  void GetRow(int32_t y, uint32_t *colours) const;
  void SetRow(int32_t y, const uint32_t *colours);

  // One colour; (x, y) lies inside the picture.
  uint32_t Get(int32_t x, int32_t y) const;
  void Set(int32_t x, int32_t y, uint32_t colour);

  // The same picture in another format.
  Image To(int32_t format) const;

  // Makes this picture the library's target buffer, with all of it as viewport. The picture must
  // stay where it is while the library draws.
  void Target();

 private:
  int32_t width_ = 0;
  int32_t height_ = 0;
  int32_t pitch_ = 0;
  int32_t format_ = 0;
  std::vector<uint8_t> pixels_;
};

}  // namespace brisal::host
