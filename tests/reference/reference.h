// The whole interface drawn the slow, obvious way: one pixel at a time, straight from its
// definition. The library is measured against this, so it favours plainness over speed.
#pragma once

#include <array>
#include <cstdint>

namespace reference {

struct Rect {
  int32_t left = 0, top = 0, right = 0, bottom = 0;
};

struct Vertex {
  int32_t x = 0, y = 0;
  uint32_t colour = 0;
};

struct Chain;

class Reference {
 public:
  uint8_t *address = nullptr;
  int32_t pitch = 0;
  int32_t format = 0;
  Rect viewport;
  int32_t inkAlpha = 255;

  uint32_t Pack(uint32_t colour) const;

  void DrawPixel(int32_t x, int32_t y, uint32_t packed, int32_t mode);
  void Dot(int32_t x, int32_t y, uint32_t colour, int32_t mode);
  void FastDot(int32_t x, int32_t y, uint32_t colour, int32_t mode);
  uint32_t Point(int32_t x, int32_t y);
  uint32_t FastPoint(int32_t x, int32_t y);
  uint32_t FastPointJt(int32_t x, int32_t y);

  void DrawStrip(int32_t y, int32_t x1, int32_t x2, uint32_t packed, int32_t mode);

  void Box(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour, int32_t flags);
  void ShadeBox(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour1, uint32_t colour2,
                uint32_t colour3, uint32_t colour4, int32_t flags);

  void Circle(int32_t cx, int32_t cy, int32_t r, uint32_t colour, int32_t flags);
  void Ellipse(int32_t cx, int32_t cy, int32_t rx, int32_t ry, uint32_t colour, int32_t flags);
  void OpenCircle(int32_t cx, int32_t cy, int32_t r, uint32_t colour, int32_t flags);
  void OpenEllipse(int32_t cx, int32_t cy, int32_t rx, int32_t ry, uint32_t colour, int32_t flags);
  void OpenEllipseFx(int32_t cx, int32_t cy, int32_t rx, int32_t ry, uint32_t colour, int32_t flags,
                     int32_t inside);
  void FilledEllipse(int32_t cx, int32_t cy, int32_t rx, int32_t ry, uint32_t packed,
                     int32_t flags);
  void FilledEllipseNc(int32_t cx, int32_t cy, int32_t rx, int32_t ry, uint32_t packed,
                       int32_t flags);

  void WriteLine(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour, int32_t flags);
  void WriteDrawModeLine(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t packed,
                         int32_t mode);
  void WriteLine32Bit(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour,
                      int32_t reserved);

  void Tri(int32_t x0, int32_t y0, int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour,
           int32_t mode);
  void Quad(int32_t x0, int32_t y0, int32_t x1, int32_t y1, int32_t x2, int32_t y2, int32_t x3,
            int32_t y3, uint32_t colour, int32_t mode);
  void TriG(int32_t x0, int32_t y0, uint32_t c0, int32_t x1, int32_t y1, uint32_t c1, int32_t x2,
            int32_t y2, uint32_t c2, int32_t mode);
  void QuadG(int32_t x0, int32_t y0, uint32_t c0, int32_t x1, int32_t y1, uint32_t c1, int32_t x2,
             int32_t y2, uint32_t c2, int32_t x3, int32_t y3, uint32_t c3, int32_t mode);
  void QuadSetGouraud(uint32_t c0, uint32_t c1, uint32_t c2, uint32_t c3);
  void DrawGouraudPoly(int32_t count, int32_t mode);

 private:
  bool FormatKnown() const { return format >= 1 && format <= 5; }
  bool Inside(int64_t x, int64_t y) const;
  uint8_t *PixelAt(int64_t x, int64_t y) const;
  uint32_t Load(int64_t x, int64_t y) const;
  void Store(int64_t x, int64_t y, uint32_t packed);
  void Plot(int64_t x, int64_t y, uint32_t packed, int32_t mode);

  void Span(int64_t y, int64_t left, int64_t right, uint32_t packed, int32_t mode);
  void GouraudSpan(int64_t y, int64_t left, int64_t right, uint32_t leftColour,
                   uint32_t rightColour, int32_t mode);

  void BoxOutline(int64_t left, int64_t top, int64_t right, int64_t bottom, uint32_t packed,
                  int32_t mode);
  void ClippedOutline(int64_t cx, int64_t cy, int64_t rx, int64_t ry, uint32_t packed,
                      int32_t mode);
  void Line(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t packed, int32_t mode,
            int fractionBits);

  void DrawFlatPoly(int count, uint32_t colour, int32_t mode);
  void FlatRow(int64_t y, const Chain &left, const Chain &right, bool clip, uint32_t packed,
               int32_t mode);
  void GouraudRow(int64_t y, const Chain &left, const Chain &right, bool clip, int32_t mode);
  template <class Row>
  void WalkPolygon(int count, Row row) const;

  std::array<Vertex, 8> vertices_;
};

// The draw mode of a shape's flags.
int32_t ShapeMode(int32_t flags);

// One channel (0 blue, 1 green, 2 red) of a 0x00RRGGBB colour.
int64_t Channel(uint32_t colour, int index);

// One pixel of storage combined with a packed colour; d itself where nothing is to be drawn.
uint32_t Combine(int32_t format, uint32_t d, uint32_t s, int32_t mode, int32_t inkAlpha);

// Memory utilities.
void Copy(const uint8_t *source, uint8_t *destination, uint32_t byteCount);
void Fill(uint8_t *destination, int32_t stride, int32_t count, uint32_t value, int32_t size);
int32_t Compare(const uint8_t *a, const uint8_t *b, int32_t count);
int32_t RunLength(const uint8_t *address, int32_t direction, int32_t count, int32_t size,
                  int32_t value);

}  // namespace reference
