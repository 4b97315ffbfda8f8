#include "bench/rows.h"

namespace brisal::bench {
namespace {

const std::vector<int> kAllModes = {DRAW_SOLID, DRAW_ALPHA, DRAW_HALF, DRAW_ADD,  DRAW_SUB,
                                    DRAW_AND,   DRAW_OR,    DRAW_XOR,  DRAW_MULT, DRAW_REVSUB};
// Strips know no others in all formats.
const std::vector<int> kStripModes = {DRAW_SOLID, DRAW_ALPHA, DRAW_HALF,
                                      DRAW_AND,   DRAW_OR,    DRAW_XOR};
const std::vector<int> kSolid = {DRAW_SOLID};
const std::vector<int> kSolidAndAlpha = {DRAW_SOLID, DRAW_ALPHA};
const std::vector<int> kSolidAndAdd = {DRAW_SOLID, DRAW_ADD};

struct Formats {
  int source;  // 0 where there is no picture
  int target;
};

constexpr int k565 = BRSL_FORMAT_565, k555 = BRSL_FORMAT_555, kRgb = BRSL_FORMAT_RGB,
              kX32 = BRSL_FORMAT_X32, kA32 = BRSL_FORMAT_A32;
const std::vector<Formats> kAllFormats = {{0, k565}, {0, k555}, {0, kRgb}, {0, kX32}, {0, kA32}};
const std::vector<Formats> kSame = {
    {k565, k565}, {k555, k555}, {kRgb, kRgb}, {kX32, kX32}, {kA32, kA32}};
const std::vector<Formats> kConversions = {{kX32, k565}, {k565, kX32}, {kX32, kRgb}, {kRgb, kX32},
                                           {k565, kRgb}, {kRgb, k565}, {k565, k555}, {k555, k565}};
const std::vector<Formats> kTwo = {{k565, k565}, {kX32, kX32}};
const std::vector<Formats> kThree = {{0, k565}, {0, kRgb}, {0, kX32}};
const std::vector<Formats> kAlpha = {{kA32, k565}, {kA32, kX32}};

struct Family {
  Kind kind;
  std::vector<Point> sizes;
  std::vector<int> modes;
  std::vector<Formats> formats = kAllFormats;
  Texels texels = Texels::kOpaque;
};

// A row of the table for each size, format and mode of a family. Discs and rings are given by their
// diameter, lines, turned sprites and quads by the box around them.
const std::vector<Family> kFamilies = {
    {Kind::kBox, {{32, 32}, {640, 480}, {1920, 1080}}, kAllModes},
    {Kind::kBox, {{8, 8}, {16, 16}}, kAllModes},
    {Kind::kBox, {{5, 1}, {16, 1}, {40, 1}, {300, 1}}, kSolidAndAlpha},
    {Kind::kStrip, {{5, 1}, {16, 1}, {40, 1}}, kStripModes},
    {Kind::kStrip, {{300, 1}}, kSolidAndAlpha},
    {Kind::kTriangle, {{16, 16}, {100, 100}, {500, 500}}, kSolidAndAlpha},
    {Kind::kGouraudTriangle, {{16, 16}, {100, 100}, {500, 500}}, kSolidAndAdd},
    {Kind::kShadeBox, {{32, 32}, {640, 480}}, kSolidAndAdd},
    {Kind::kDisc, {{16, 16}, {100, 100}, {400, 400}}, kSolidAndAlpha},
    {Kind::kRing, {{16, 16}, {100, 100}, {400, 400}}, kSolid},
    {Kind::kLine, {{16, 7}, {450, 200}, {200, 450}, {450, 1}}, kSolidAndAlpha},
    {Kind::kBlit, {{8, 8}, {16, 16}, {32, 32}, {640, 480}}, kSolid, kSame},
    {Kind::kBlit, {{640, 480}}, kSolid, kConversions},
    {Kind::kBlit, {{8, 8}, {16, 16}}, kSolid, kSame, Texels::kKeyed},
    {Kind::kBlit, {{32, 32}, {640, 480}}, kSolid, kTwo, Texels::kKeyed},
    {Kind::kBlit, {{8, 8}, {16, 16}, {32, 32}, {640, 480}}, kSolid, kAlpha, Texels::kMixedAlpha},
    {Kind::kBlit, {{32, 32}, {640, 480}}, kSolid, kAlpha, Texels::kPartialAlpha},
    {Kind::kBlit, {{640, 480}}, {DRAW_HALF, DRAW_ADD, DRAW_MULT}, kTwo},
    {Kind::kTexture, {{64, 64}}, kSolid, kTwo},
    {Kind::kTexture, {{64, 64}}, kSolid, kTwo, Texels::kKeyed},
    {Kind::kTexturedTriangle, {{16, 16}, {100, 100}, {500, 500}}, kSolid, kTwo},
    {Kind::kTexturedTriangle, {{16, 16}, {100, 100}, {500, 500}}, kSolid, kTwo, Texels::kKeyed},
    {Kind::kSprite, {{88, 88}}, kSolid, kTwo, Texels::kKeyed},
    {Kind::kBilinearQuad, {{176, 176}}, kSolid, kTwo},
    {Kind::kScale, {{640, 480}}, kSolid, kTwo},
    {Kind::kBilinearScale, {{640, 480}}, kSolid, kTwo},
    {Kind::kWeighedScale, {{640, 480}}, kSolid, kTwo},
    {Kind::kBlur, {{640, 480}}, kSolid, {{0, kX32}}},
    {Kind::kGrey, {{640, 480}}, kSolid, {{0, kX32}}},
    {Kind::kFade, {{640, 480}}, kSolid, {{0, kX32}}},
    {Kind::kCapturedBox, {{32, 32}}, kSolidAndAlpha, {{0, k565}, {0, kX32}}},
    {Kind::kCapturedQuad, {{64, 64}}, kSolid, kTwo},
    {Kind::kFilledCollision, {{100, 100}}, kSolid, {{0, k565}, {0, kX32}}},
    {Kind::kTexturedCollision, {{100, 100}}, kSolid, {{0, k565}, {0, kX32}}},
    {Kind::kSoftText, {{1600, 32}}, kSolid, kThree},
    {Kind::kHardText, {{1600, 32}}, kSolid, kThree},
    {Kind::kFontLoad, {{16, 16}}, kSolid, {{0, kX32}}},
    {Kind::kFontSave, {{16, 16}}, kSolid, {{0, kX32}}},
};

}  // namespace

std::vector<Job> Rows() {
  std::vector<Job> rows;
  for (const Family &family : kFamilies) {
    for (const Point size : family.sizes) {
      for (const auto [source, target] : family.formats) {
        for (const int mode : family.modes) {
          rows.push_back({family.kind, size.x, size.y, target, mode, source, family.texels});
        }
      }
    }
  }
  return rows;
}

}  // namespace brisal::bench
