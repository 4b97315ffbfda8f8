#include "host/image.h"

#include <string>

namespace brisal::host {

namespace {

constexpr uint32_t kOpaque = 0xFF000000;

constexpr uint32_t Widen5(uint32_t v) { return v << 3 | v >> 2; }
constexpr uint32_t Widen6(uint32_t v) { return v << 2 | v >> 4; }

uint32_t From565(uint32_t p) {
  return kOpaque | Widen5(p >> 11) << 16 | Widen6(p >> 5 & 0x3F) << 8 | Widen5(p & 0x1F);
}

uint32_t From555(uint32_t p) {
  return kOpaque | Widen5(p >> 10 & 0x1F) << 16 | Widen5(p >> 5 & 0x1F) << 8 | Widen5(p & 0x1F);
}

uint32_t Load16(const uint8_t *p) { return p[0] | p[1] << 8; }

void Store16(uint8_t *p, uint32_t v) {
  p[0] = static_cast<uint8_t>(v);
  p[1] = static_cast<uint8_t>(v >> 8);
}

uint32_t Load32(const uint8_t *p) { return Load16(p) | Load16(p + 2) << 16; }

void Store32(uint8_t *p, uint32_t v) {
  Store16(p, v);
  Store16(p + 2, v >> 16);
}

uint32_t Load(const uint8_t *p, int32_t format) {
  switch (format) {
    case BRSL_FORMAT_565: return From565(Load16(p));
    case BRSL_FORMAT_555: return From555(Load16(p));
    case BRSL_FORMAT_RGB: return kOpaque | uint32_t{p[0]} << 16 | uint32_t{p[1]} << 8 | p[2];
    case BRSL_FORMAT_X32: return kOpaque | Load32(p);
    default: return Load32(p);
  }
}

void Store(uint8_t *p, int32_t format, uint32_t colour) {
  switch (format) {
    case BRSL_FORMAT_565: return Store16(p, RGBto565(colour));
    case BRSL_FORMAT_555: return Store16(p, RGBto555(colour));
    case BRSL_FORMAT_RGB:
      p[0] = static_cast<uint8_t>(colour >> 16);
      p[1] = static_cast<uint8_t>(colour >> 8);
      p[2] = static_cast<uint8_t>(colour);
      return;
    default: return Store32(p, colour);
  }
}

}  // namespace

int32_t BytesPerPixel(int32_t format) {
  switch (format) {
    case BRSL_FORMAT_565:
    case BRSL_FORMAT_555: return 2;
    case BRSL_FORMAT_RGB: return 3;
    case BRSL_FORMAT_X32:
    case BRSL_FORMAT_A32: return 4;
    default: return 0;
  }
}

Image::Image(int32_t width, int32_t height, int32_t format)
    : width_(width), height_(height), format_(format) {
  const int32_t bytes = BytesPerPixel(format);
  if (bytes == 0) throw Error("no such pixel format: " + std::to_string(format));
  if (width < 1 || height < 1 || width > kMaxSide || height > kMaxSide ||
      int64_t{width} * height > kMaxPixels) {
    throw Error("no picture can be " + std::to_string(width) + "x" + std::to_string(height));
  }
  pitch_ = (width * bytes + 15) & ~15;
  pixels_.resize(static_cast<size_t>(pitch_) * static_cast<size_t>(height));
}

void Image::GetRow(int32_t y, uint32_t *colours) const {
  const uint8_t *p = Row(y);
  const int32_t bytes = BytesPerPixel(format_);
  for (int32_t x = 0; x < width_; x++, p += bytes) colours[x] = Load(p, format_);
}

void Image::SetRow(int32_t y, const uint32_t *colours) {
  uint8_t *p = Row(y);
  const int32_t bytes = BytesPerPixel(format_);
  for (int32_t x = 0; x < width_; x++, p += bytes) Store(p, format_, colours[x]);
}

uint32_t Image::Get(int32_t x, int32_t y) const {
  return Load(Row(y) + x * BytesPerPixel(format_), format_);
}

void Image::Set(int32_t x, int32_t y, uint32_t colour) {
  Store(Row(y) + x * BytesPerPixel(format_), format_, colour);
}

Image Image::To(int32_t format) const {
  Image result(width_, height_, format);
  std::vector<uint32_t> row(static_cast<size_t>(width_));
  for (int32_t y = 0; y < height_; y++) {
    GetRow(y, row.data());
    result.SetRow(y, row.data());
  }
  return result;
}

void Image::Target() {
  BRSL_SetBuffer(pixels_.data(), pitch_, format_);
  BRSL_SetBufferViewPort(0, 0, width_, height_);
}

}  // namespace brisal::host
