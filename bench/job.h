#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "brisal/brisal.h"

namespace brisal::bench {

enum class Kind {
  kBox,
  kStrip,
  kTriangle,
  kGouraudTriangle,
  kShadeBox,
  kDisc,
  kRing,
  kLine,
  // Of a picture:
  kBlit,
  kTexture,
  kTexturedTriangle,
  kSprite,
  kBilinearQuad,
  kScale,
  kBilinearScale,
  kWeighedScale,
  // Of the target itself:
  kBlur,
  kGrey,
  kFade,
  // Captured and rendered:
  kCapturedBox,
  kCapturedQuad,
  // Of shapes that meet without an opaque pixel in common:
  kFilledCollision,
  kTexturedCollision,
  // Of glyphs:
  kSoftText,
  kHardText,
  kFontLoad,
  kFontSave,
};

// What the picture of a job holds: opaque colours, mask colour among them, all kinds of alpha, or alpha
// that is never 0 or 255.
enum class Texels { kOpaque, kKeyed, kMixedAlpha, kPartialAlpha };

// Where buffers begin, after a page's start: at a page, in the middle of one, and at a pixel that no
// wide word is aligned to.
constexpr std::array<size_t, 3> kPlaces = {0, 1344, 66320};

// One row of the table: a drawing job that several libraries may know how to do.
struct Job {
  Kind kind;
  int width;
  int height;
  int format;      // BRSL_FORMAT_*
  int mode;        // DRAW_*
  int source = 0;  // BRSL_FORMAT_* of its picture, if it has one
  Texels texels = Texels::kOpaque;
  size_t place = 0;  // of kPlaces, for its buffers

  std::string Name() const;
  std::string Shape() const;  // the first words of the name
  bool IsGouraud() const { return kind == Kind::kGouraudTriangle || kind == Kind::kShadeBox; }
  bool IsRectangle() const {
    return kind == Kind::kBox || kind == Kind::kStrip || kind == Kind::kShadeBox || IsCopy() ||
           IsScaling() || IsFilter();
  }
  bool IsCopy() const { return kind == Kind::kBlit || kind == Kind::kTexture; }
  bool IsScaling() const {
    return kind == Kind::kScale || kind == Kind::kBilinearScale || kind == Kind::kWeighedScale;
  }
  bool IsFilter() const {
    return kind == Kind::kBlur || kind == Kind::kGrey || kind == Kind::kFade;
  }
  bool IsComparison() const {
    return kind == Kind::kFilledCollision || kind == Kind::kTexturedCollision;
  }
  bool IsText() const { return kind == Kind::kSoftText || kind == Kind::kHardText; }
  bool IsFont() const { return kind == Kind::kFontLoad || kind == Kind::kFontSave; }
  bool IsTurned() const { return kind == Kind::kSprite || kind == Kind::kBilinearQuad; }
  bool IsBilinear() const {
    return kind == Kind::kBilinearQuad || kind == Kind::kBilinearScale ||
           kind == Kind::kWeighedScale;
  }
  bool IsKeyed() const { return texels == Texels::kKeyed; }
  bool HasAlpha() const { return texels == Texels::kMixedAlpha || texels == Texels::kPartialAlpha; }
  int Radius() const { return width / 2; }
};

struct Point {
  int x;
  int y;
};

// Low bits are 0, so that packing loses nothing, and no two bytes are equal, so that no byte fill
// will do.
constexpr uint32_t kInk = 0xFF48A0E0;
constexpr int kInkAlpha = 100;
constexpr int kFadePercent = 75;
constexpr std::array<uint32_t, 4> kCornerColours = {0xF04010, 0x20F040, 0x1030E0, 0xE0E020};

// The top-left corner of the job's shape in its i-th repetition: small shapes wander, as they do in
// programs, so that no alignment is the only one measured.
Point SpotOf(const Job &job, unsigned i);

// The corners of a triangle job, relative to its spot.
std::array<Point, 3> CornersOf(const Job &job);

// The corners of a turned square that fills the job's box, from its picture's top left on.
std::array<Point, 4> TurnedCorners(const Job &job);

// How opaquely a peer has to blend to draw what DRAW_ALPHA and DRAW_HALF draw; 255 for other modes.
int OpacityOf(const Job &job);

// One way to do a job. draw(i) does its i-th repetition; prepare and finish are not measured.
struct Contender {
  std::string name;
  std::function<void(unsigned)> draw;
  std::function<void()> prepare = [] {};
  std::function<void()> finish = [] {};
};

struct Canvas;

// A library that may know how to do a job on a canvas; if not, it offers nothing.
class Peer {
 public:
  using Offer = std::vector<Contender> (*)(const Job &, const Canvas &);

  explicit Peer(Offer offer) { Offers().push_back(offer); }
  static std::vector<Offer> &Offers();
};

}  // namespace brisal::bench
