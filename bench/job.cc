#include "bench/job.h"

#include <map>

namespace brisal::bench {
namespace {

const char *NameOf(Kind kind) {
  static const std::map<Kind, const char *> kNames = {
      {Kind::kBox, "box"},
      {Kind::kStrip, "strip"},
      {Kind::kTriangle, "triangle"},
      {Kind::kGouraudTriangle, "gouraud triangle"},
      {Kind::kShadeBox, "shaded box"},
      {Kind::kDisc, "disc"},
      {Kind::kRing, "ring"},
      {Kind::kLine, "line"},
      {Kind::kBlit, "blit"},
      {Kind::kTexture, "texture"},
      {Kind::kTexturedTriangle, "textured triangle"},
      {Kind::kSprite, "turned sprite"},
      {Kind::kBilinearQuad, "bilinear quad"},
      {Kind::kScale, "nearest scaling"},
      {Kind::kBilinearScale, "bilinear scaling"},
      {Kind::kWeighedScale, "weighed scaling"},
      {Kind::kBlur, "blur"},
      {Kind::kGrey, "grey"},
      {Kind::kFade, "fade"},
      {Kind::kCapturedBox, "captured box"},
      {Kind::kCapturedQuad, "captured textured quad"},
      {Kind::kFilledCollision, "filled against textured"},
      {Kind::kTexturedCollision, "textured against textured"},
      {Kind::kSoftText, "soft text"},
      {Kind::kHardText, "hard text"},
      {Kind::kFontLoad, "font load"},
      {Kind::kFontSave, "font save"},
  };
  return kNames.at(kind);
}

const char *NameOfMode(int mode) {
  static const std::map<int, const char *> kNames = {
      {DRAW_SOLID, "solid"}, {DRAW_ALPHA, "alpha"},   {DRAW_HALF, "half"}, {DRAW_ADD, "add"},
      {DRAW_SUB, "sub"},     {DRAW_AND, "and"},       {DRAW_OR, "or"},     {DRAW_XOR, "xor"},
      {DRAW_MULT, "mult"},   {DRAW_REVSUB, "revsub"},
  };
  return kNames.at(mode);
}

const char *NameOfFormat(int format) {
  static const std::map<int, const char *> kNames = {
      {BRSL_FORMAT_565, "565"}, {BRSL_FORMAT_555, "555"}, {BRSL_FORMAT_RGB, "rgb"},
      {BRSL_FORMAT_X32, "x32"}, {BRSL_FORMAT_A32, "a32"},
  };
  return kNames.at(format);
}

const char *NameOf(Texels texels) {
  static constexpr const char *kNames[] = {"", "keyed ", "mixed alpha ", "partial alpha "};
  return kNames[static_cast<int>(texels)];
}

}  // namespace

std::string Job::Shape() const { return std::string(NameOf(texels)) + NameOf(kind); }

std::string Job::Name() const {
  std::string name = Shape() + " " + std::to_string(width) + "x" + std::to_string(height) + " ";
  if (source != 0 && source != format) name += std::string(NameOfFormat(source)) + " to ";
  name += NameOfFormat(format);
  const bool hasMode =
      source == 0 ? !IsFilter() && !IsComparison() && !IsText() && !IsFont() : mode != DRAW_SOLID;
  return hasMode ? name + " " + NameOfMode(mode) : name;
}

Point SpotOf(const Job &job, unsigned i) {
  if (job.width > 1000) return {0, 0};
  return {16 + static_cast<int>(i * 5 & 31), 16 + static_cast<int>(i * 3 & 31)};
}

std::array<Point, 3> CornersOf(const Job &job) {
  return {Point{0, 0}, Point{job.width, job.height / 3}, Point{job.width / 4, job.height}};
}

std::array<Point, 4> TurnedCorners(const Job &job) {
  const int across = job.width * 4 / 11;
  const int down = job.width - across;
  return {Point{across, 0}, Point{job.width, across}, Point{down, job.width}, Point{0, down}};
}

int OpacityOf(const Job &job) {
  if (job.mode == DRAW_ALPHA) return kInkAlpha;
  return job.mode == DRAW_HALF ? 128 : 255;
}

std::vector<Peer::Offer> &Peer::Offers() {
  static std::vector<Offer> offers;
  return offers;
}

}  // namespace brisal::bench
