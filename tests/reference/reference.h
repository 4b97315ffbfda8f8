// The whole interface drawn the slow, obvious way: one pixel at a time, straight from its
// definition. The library is measured against this, so it favours plainness over speed.
#pragma once

#include <array>
#include <cstdint>
#include <utility>
#include <vector>

#include "brisal/brisal.h"
#include "reference/random_numbers.h"

namespace reference {

struct Rect {
  int32_t left = 0, top = 0, right = 0, bottom = 0;

  bool Holds(int64_t x, int64_t y) const {
    return x >= left && x < right && y >= top && y < bottom;
  }
};

// Pixels in memory. A pixel of format 3 counts as 0x00RRGGBB, whatever the order of its bytes.
class Buffer {
 public:
  uint8_t *address = nullptr;
  int32_t pitch = 0;
  int32_t format = 0;

  bool FormatKnown() const { return format >= 1 && format <= 5; }
  uint8_t *PixelAt(int64_t x, int64_t y) const;
  uint32_t Load(int64_t x, int64_t y) const;
  void Store(int64_t x, int64_t y, uint32_t packed) const;
};

struct Vertex {
  int32_t x = 0, y = 0;
  uint32_t colour = 0;
  int32_t u = 0, v = 0;
};

struct Chain;

// What the edges of a polygon carry: texel corners, or texel centres that lists of spans take anew
// from each vertex.
enum class Edges { kPlain, kSprite, kSpanList };

// A row of a textured shape: left to right - 1, texel coordinates in 16.16.
struct TexturedRow {
  int64_t y, left, right;
  int64_t u, v, du, dv;
  uint32_t leftColour, rightColour;
};

class Reference : public Buffer {
 public:
  Buffer source, blendSource;
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

  int32_t PixelRunLength(int32_t x, int32_t y, int32_t xStep, int32_t yStep, uint32_t colour);
  int32_t ImageInViewPort(int32_t x, int32_t y, int32_t w, int32_t h) const;

  void Blit(int32_t sx1, int32_t sy1, int32_t sx2, int32_t sy2, int32_t dx, int32_t dy,
            uint32_t maskColour, uint32_t flags);
  void BlitFx(int32_t sx1, int32_t sy1, int32_t sx2, int32_t sy2, int32_t dx, int32_t dy,
              uint32_t blitFlags, uint32_t blitMaskColour, uint32_t fxMode, uint32_t fxColour,
              uint32_t useBlendSource, int32_t reserved);

  void HoriGouraudStrip(int32_t x1, uint32_t colour1, int32_t x2, uint32_t colour2, int32_t y);
  void VertGouraudStrip(int32_t y1, uint32_t colour1, int32_t y2, uint32_t colour2, int32_t x);
  void HoriTextureStrip(const BRSL_SurfaceDesc *texture, int32_t x1, int32_t uA, int32_t vA,
                        int32_t x2, int32_t uB, int32_t vB, int32_t y);
  void VertTextureStrip(const BRSL_SurfaceDesc *texture, int32_t y1, int32_t uA, int32_t vA,
                        int32_t y2, int32_t uB, int32_t vB, int32_t x);

  void DrawTexturedPoly(const BRSL_SurfaceDesc *texture, int32_t count, const TPD_Pipeline *p);
  void DrawTexturedCorners(const BRSL_SurfaceDesc *texture, const Vertex *corners, int count,
                           const TPD_Pipeline *p);
  void DrawTexture(const BRSL_SurfaceDesc *texture, int32_t x, int32_t y, const TPD_Pipeline *p);

  void DrawSpritePoly(const BRSL_SurfaceDesc *texture, int32_t count, const TPD_Pipeline *p);
  void DrawSprite(const BRSL_SurfaceDesc *texture, const Vertex *corners, bool coloured,
                  const TPD_Pipeline *p, int32_t split);

  void MirrorRect(const int32_t (&rect)[4], int32_t horizontal, int32_t vertical);

  void DrawText(const CRF_Font *font, const char *text, int32_t length, int32_t x, int32_t y,
                uint32_t colour);

  int32_t ObjectVisible(const Scene_Record *r, int32_t dx, int32_t dy) const;
  void RenderBox(const Scene_Record *r, int32_t dx, int32_t dy);
  void RenderShadeBox(const Scene_Record *r, int32_t dx, int32_t dy);
  void RenderCircle(const Scene_Record *r, int32_t dx, int32_t dy);
  void RenderEllipse(const Scene_Record *r, int32_t dx, int32_t dy);
  void RenderPolygon(const Scene_Record *r, int32_t dx, int32_t dy);
  void RenderPolygonG(const Scene_Record *r, int32_t dx, int32_t dy);
  void RenderPolygonT(const Scene_Record *r, int32_t dx, int32_t dy,
                      const BRSL_SurfaceDesc *texture, const TPD_Pipeline *p);
  void RenderGouraudStripH(const Scene_Record *r, int32_t dx, int32_t dy);
  void RenderGouraudStripV(const Scene_Record *r, int32_t dx, int32_t dy);
  void RenderTextureStripH(const Scene_Record *r, int32_t dx, int32_t dy,
                           const BRSL_SurfaceDesc *texture);
  void RenderTextureStripV(const Scene_Record *r, int32_t dx, int32_t dy,
                           const BRSL_SurfaceDesc *texture);

  static std::vector<BRSL_TexturedSpan> PolygonSpans(const BRSL_VertexBuffer &corners,
                                                     int32_t count);
  void ListTexturedPolygon(const BRSL_VertexBuffer *corners, int32_t count,
                           BRSL_TexturedSpans *list, uint32_t maskColour) const;
  void DrawSpansEdges(const BRSL_TexturedSpans *list);

  void SetShapeBuffers(int32_t *rowTable, void *nodePool);
  void AddShapeVert(float x, int32_t row);
  void BufferShapeEdge(float x1, float y1, float x2, float y2, int32_t firstRow, int32_t endRow);
  void DrawShape(int32_t *rowHeads, const void *unused, uint32_t colour, int32_t mode);
  int32_t ListShape(BRSL_CollisionSpans *list, int32_t left, int32_t top, int32_t right,
                    int32_t bottom, int32_t *rowTable, const void *unused);

  float Rnd(float max) { return generator_.Draw(max); }
  void Randomize(int32_t seed) { generator_.Seed(seed); }
  uint32_t RandomColour() { return generator_.Colour(); }
  float FastCalc(float *variables, const int32_t *program, int32_t count);

  // A row of texels through a pipeline, as every textured shape draws it.
  void TexturedSpan(const BRSL_SurfaceDesc &texture, const TPD_Pipeline &p, const TexturedRow &row);

 private:
  bool Inside(int64_t x, int64_t y) const { return viewport.Holds(x, y); }
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
  void SetVertex(int slot, int32_t x, int32_t y);
  void SetVertex(int slot, int32_t x, int32_t y, uint32_t colour);
  void SetCorner(int slot, const Vertex &corner);  // all but the colour
  bool ReachesViewport(int count) const;
  std::pair<uint32_t, uint32_t> RowColours(const Chain &left, const Chain &right, int64_t from,
                                           int64_t to) const;
  template <class Row>
  void WalkPolygon(int count, Edges edges, Row row) const;

  template <class Visit>
  void VisitBlit(int32_t sx1, int32_t sy1, int32_t sx2, int32_t sy2, int32_t dx, int32_t dy,
                 Visit visit);
  uint32_t ConvertFromSource(uint32_t stored) const;
  bool IsMasked(uint32_t stored, uint32_t maskColour) const;
  void BlitByAlpha(int64_t x, int64_t y, uint32_t stored);
  template <class Visit>
  void VisitStrip(bool down, int64_t line, int64_t start, int64_t end, Visit visit);
  void GouraudStrip(bool down, int64_t line, int64_t a, uint32_t colourA, int64_t b,
                    uint32_t colourB);
  void TextureStrip(bool down, const BRSL_SurfaceDesc *texture, int64_t line, int64_t a,
                    const int32_t (&from)[2], int64_t b, const int32_t (&to)[2]);

  void TexturedPolygon(const BRSL_SurfaceDesc *texture, int count, const TPD_Pipeline *p,
                       bool sprite);
  void PolygonRow(const BRSL_SurfaceDesc &texture, const TPD_Pipeline &p, int64_t y,
                  const Chain &left, const Chain &right, bool clip, bool sprite);
  void PlotTexel(const TPD_Pipeline &p, bool withAlpha, int64_t x, int64_t y, uint32_t texel);
  void PlotTexelByAlpha(int64_t x, int64_t y, uint32_t texel);

  void DrawGlyph(const CRF_Font &font, const uint8_t *block, int64_t x, int64_t y, uint32_t colour);
  void PlotGlyphPixel(const CRF_Font &font, int64_t x, int64_t y, uint32_t pixel, uint32_t colour);
  bool SetCapturedVertices(const Scene_Record *r, int32_t dx, int32_t dy);
  bool Reaches(int64_t left, int64_t top, int64_t right, int64_t bottom) const;
  Scene_Vertex Mapped(const Scene_Record *r, int k, int32_t dx, int32_t dy) const;

  std::array<Vertex, 8> vertices_;
  std::vector<uint32_t> gouraud_;  // of the last texels that were not cut out, span by span
  int32_t *rowTable_ = nullptr;
  uint8_t *nodePool_ = nullptr;
  Generator generator_;
};

// A colour packed for a format, and a stored pixel widened to a colour.
uint32_t PackFor(int32_t format, uint32_t colour);
uint32_t Widened(int32_t format, uint32_t stored);

int BytesPerPixel(int32_t format);  // 0 for a format outside 1-5

// Surfaces and texel pipelines, in the interface's own records.
Buffer BufferOf(const BRSL_SurfaceDesc &surface);
BRSL_SurfaceDesc SurfaceDesc(int32_t format, void *address, int32_t pitch, int32_t width,
                             int32_t height);
void SetSurfaceDescVp(BRSL_SurfaceDesc *desc, int32_t x1, int32_t y1, int32_t x2, int32_t y2);
void SetSurfaceDescMaskColour(BRSL_SurfaceDesc *desc, uint32_t colour);
int32_t GetSurfaceDescType(const BRSL_SurfaceDesc *desc);
uint32_t PeekSurface(const BRSL_SurfaceDesc *desc, int32_t x, int32_t y);
void PokeSurface(BRSL_SurfaceDesc *desc, int32_t x, int32_t y, uint32_t colour);
void PokeSurfaceNc(BRSL_SurfaceDesc *desc, int32_t x, int32_t y, uint32_t colour);
void PeekPixelStrip(const BRSL_SurfaceDesc *desc, int32_t x1, int32_t x2, int32_t y, uint32_t *out);

TPD_Pipeline Pipeline();
int32_t AddTexelEffect(TPD_Pipeline *p, int32_t code, int32_t inputBuffer, int32_t outputBuffer,
                       uint32_t a, uint32_t b, uint32_t c, uint32_t d);
int32_t SetOutputEffect(TPD_Pipeline *p, int32_t code, int32_t argument, int32_t level);
void SetMaskCompression(TPD_Pipeline *p, int32_t on);
int32_t GetMaskCompression(const TPD_Pipeline *p);
int32_t GetGouraudState(const TPD_Pipeline *p);
int32_t UpdateSpriteDrawMode(TPD_Pipeline *p, uint32_t spriteMode, uint32_t tint, uint32_t colour,
                             int32_t level);

void PrepareFxSurface(const BRSL_SurfaceDesc *src, BRSL_SurfaceDesc *dst, int32_t mode);
void Blur(BRSL_SurfaceDesc *desc, float divisor);
void Fade(BRSL_SurfaceDesc *desc, int32_t percent);
void GreyScale(BRSL_SurfaceDesc *desc);
void Light(BRSL_SurfaceDesc *desc, int32_t cx, int32_t cy, float intensity, float falloff,
           int32_t reserved);
void PhongMap(BRSL_SurfaceDesc *desc, int32_t cx, int32_t cy, uint32_t colour, float intensity,
              float falloff, int32_t reserved);
void ScaleSurface(const BRSL_SurfaceDesc *src, BRSL_SurfaceDesc *dst, int32_t mode);
int32_t MoveMapBlock(const BRSL_SurfaceDesc *src, int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                     BRSL_SurfaceDesc *dst, int32_t dx, int32_t dy, uint32_t *rowBuffer,
                     uint32_t maskColour);

// The texel at (u, v) of a texture, filtered; with mask compression, neighbours of the mask colour
// count as 0.
uint32_t FilteredTexel(const BRSL_SurfaceDesc &texture, int64_t u, int64_t v, bool compression);

// Half the width of an ellipse of height r and width scale, at height n.
int64_t HalfWidth(int64_t n, int64_t r, int64_t scale);

// The draw mode of a shape's flags.
int32_t ShapeMode(int32_t flags);

// One channel (0 blue, 1 green, 2 red) of a 0x00RRGGBB colour.
int64_t Channel(uint32_t colour, int index);

// One pixel of storage combined with a packed colour; d itself where nothing is to be drawn.
uint32_t Combine(int32_t format, uint32_t d, uint32_t s, int32_t mode, int32_t inkAlpha);

// Memory utilities.
void Copy(const uint8_t *source, uint8_t *destination, uint32_t byteCount);
void Fill(uint8_t *destination, int32_t count, uint32_t value, int32_t size);
void FillEx(uint8_t *destination, int32_t stride, int32_t count, uint32_t value, int32_t size);
int32_t Compare(const uint8_t *a, const uint8_t *b, int32_t count);
int32_t RunLength(const uint8_t *address, int32_t direction, int32_t count, int32_t size,
                  int32_t value);

}  // namespace reference
