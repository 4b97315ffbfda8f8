#include "bench/job.h"

#include <cstdio>
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

}  // namespace

std::string Job::Name() const {
  char text[80];
  std::snprintf(text, sizeof text, "%s %dx%d %s %s", NameOf(kind), width, height,
                NameOfFormat(format), NameOfMode(mode));
  return text;
}

Point SpotOf(const Job &job, unsigned i) {
  if (job.width > 1000) return {0, 0};
  return {16 + static_cast<int>(i * 5 & 31), 16 + static_cast<int>(i * 3 & 31)};
}

std::array<Point, 3> CornersOf(const Job &job) {
  return {Point{0, 0}, Point{job.width, job.height / 3}, Point{job.width / 4, job.height}};
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
