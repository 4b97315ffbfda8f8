#include <algorithm>

#include "brisal/brisal.h"
#include "reference/reference.h"

namespace reference {
namespace {

struct Field {
  int shift, width;
};

constexpr Field kFields[6][3] = {{},
                                 {{0, 5}, {5, 6}, {11, 5}},
                                 {{0, 5}, {5, 5}, {10, 5}},
                                 {{0, 8}, {8, 8}, {16, 8}},
                                 {{0, 8}, {8, 8}, {16, 8}},
                                 {{0, 8}, {8, 8}, {16, 8}}};

constexpr int kBytes[6] = {0, 2, 2, 3, 4, 4};

bool CombinesChannels(int32_t mode) {
  return mode == DRAW_ALPHA || mode == DRAW_HALF || mode == DRAW_ADD || mode == DRAW_SUB ||
         mode == DRAW_MULT || mode == DRAW_REVSUB;
}

int CombineChannel(int32_t format, int width, int d, int s, int32_t mode, int inkAlpha) {
  switch (mode) {
    case DRAW_ALPHA: return d + (((s - d) * inkAlpha) >> 8);
    case DRAW_HALF: return format == 3 ? (d + s) >> 1 : (d >> 1) + (s >> 1);
    case DRAW_ADD: return std::min(d + s, (1 << width) - 1);
    case DRAW_SUB: return std::max(d - s, 0);
    case DRAW_MULT: return (d * s) >> width;
    default: return std::max(s - d, 0);
  }
}

uint32_t LoadAs(int32_t format, const uint8_t *p) {
  const uint32_t word = p[0] | p[1] << 8;
  if (format <= 2) return word;
  if (format == 3) return p[0] << 16 | p[1] << 8 | p[2];
  return word | p[2] << 16 | static_cast<uint32_t>(p[3]) << 24;
}

}  // namespace

uint32_t Combine(int32_t format, uint32_t d, uint32_t s, int32_t mode, int32_t inkAlpha) {
  if (mode == DRAW_NORMAL || mode == DRAW_SOLID) return s;
  if (mode == DRAW_AND) return d & s;
  if (mode == DRAW_OR) return d | s;
  if (mode == DRAW_XOR) return d ^ s;
  if (!CombinesChannels(mode)) return d;
  if (mode == DRAW_ALPHA && inkAlpha == 0) return d;
  if (mode == DRAW_ALPHA && inkAlpha == 255) return s;
  uint32_t result = 0;
  for (const Field &field : kFields[format]) {
    const uint32_t mask = (1u << field.width) - 1;
    const int dc = static_cast<int>(d >> field.shift & mask);
    const int sc = static_cast<int>(s >> field.shift & mask);
    const int combined = CombineChannel(format, field.width, dc, sc, mode, inkAlpha);
    result |= static_cast<uint32_t>(combined) << field.shift;
  }
  return result;
}

int32_t ShapeMode(int32_t flags) { return flags & 0xFFF0 ? flags & 0xFFF0 : DRAW_SOLID; }

int64_t Channel(uint32_t colour, int index) { return colour >> 8 * index & 255; }

uint32_t PackFor(int32_t format, uint32_t colour) {
  const uint32_t r = colour >> 16 & 255, g = colour >> 8 & 255, b = colour & 255;
  if (format == 1) return (r >> 3) << 11 | (g >> 2) << 5 | b >> 3;
  if (format == 2) return (r >> 3) << 10 | (g >> 3) << 5 | b >> 3;
  if (format == 3) return colour & 0xFFFFFF;
  return colour;
}

uint32_t Widened(int32_t format, uint32_t stored) {
  if (format == 1) return (stored & 0xF800) << 8 | (stored & 0x7E0) << 5 | (stored & 0x1F) << 3;
  if (format == 2) return (stored & 0x7C00) << 9 | (stored & 0x3E0) << 6 | (stored & 0x1F) << 3;
  return stored;
}

int BytesPerPixel(int32_t format) { return format >= 1 && format <= 5 ? kBytes[format] : 0; }

uint32_t Reference::Pack(uint32_t colour) const { return PackFor(format, colour); }

uint8_t *Buffer::PixelAt(int64_t x, int64_t y) const {
  return address + y * pitch + x * kBytes[format];
}

uint32_t Buffer::Load(int64_t x, int64_t y) const { return LoadAs(format, PixelAt(x, y)); }

void Buffer::Store(int64_t x, int64_t y, uint32_t packed) const {
  uint8_t *p = PixelAt(x, y);
  for (int i = 0; i < kBytes[format]; i++) {
    const int byte = format == 3 ? 2 - i : i;
    p[i] = static_cast<uint8_t>(packed >> 8 * byte);
  }
}

void Reference::Plot(int64_t x, int64_t y, uint32_t packed, int32_t mode) {
  if (!FormatKnown()) return;
  Store(x, y, Combine(format, Load(x, y), packed, mode, inkAlpha));
}

void Reference::DrawPixel(int32_t x, int32_t y, uint32_t packed, int32_t mode) {
  Plot(x, y, packed, mode);
}

void Reference::Dot(int32_t x, int32_t y, uint32_t colour, int32_t mode) {
  if (Inside(x, y)) Plot(x, y, Pack(colour), mode);
}

void Reference::FastDot(int32_t x, int32_t y, uint32_t colour, int32_t mode) {
  Plot(x, y, Pack(colour), mode);
}

uint32_t Reference::Point(int32_t x, int32_t y) {
  if (!FormatKnown() || !Inside(x, y)) return 0;
  return Widened(format, Load(x, y));
}

uint32_t Reference::FastPoint(int32_t x, int32_t y) {
  const int32_t readAs = format == 1 ? 1 : format < 3 ? 2 : format == 3 ? 3 : 4;
  const int64_t bytes = readAs < 3 ? 2 : readAs;
  return Widened(readAs, LoadAs(readAs, address + int64_t{y} * pitch + x * bytes));
}

uint32_t Reference::FastPointJt(int32_t x, int32_t y) {
  if (format < 0 || format > 6) return 0;
  const int32_t readAs = format == 0 ? 1 : std::min(format, 4);
  const int64_t bytes = readAs < 3 ? 2 : readAs;
  return Widened(readAs, LoadAs(readAs, address + int64_t{y} * pitch + x * bytes));
}

}  // namespace reference
