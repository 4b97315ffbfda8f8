#include "bench/rows.h"

namespace brisal::bench {
namespace {

const std::vector<int> kAllModes = {DRAW_SOLID, DRAW_ALPHA, DRAW_HALF, DRAW_ADD,  DRAW_SUB,
                                    DRAW_AND,   DRAW_OR,    DRAW_XOR,  DRAW_MULT, DRAW_REVSUB};
const std::vector<int> kSolid = {DRAW_SOLID};
const std::vector<int> kSolidAndAlpha = {DRAW_SOLID, DRAW_ALPHA};
const std::vector<int> kSolidAndAdd = {DRAW_SOLID, DRAW_ADD};

struct Family {
  Kind kind;
  std::vector<Point> sizes;
  std::vector<int> modes;
};

// A row of the table for each size, format and mode of a family. Discs and rings are given by their
// diameter, lines by the box around them.
const std::vector<Family> kFamilies = {
    {Kind::kBox, {{32, 32}, {640, 480}, {1920, 1080}}, kAllModes},
    {Kind::kBox, {{5, 1}, {16, 1}, {40, 1}, {300, 1}, {8, 8}}, kSolidAndAlpha},
    {Kind::kStrip, {{5, 1}, {16, 1}, {40, 1}, {300, 1}}, kSolidAndAlpha},
    {Kind::kTriangle, {{16, 16}, {100, 100}, {500, 500}}, kSolidAndAlpha},
    {Kind::kGouraudTriangle, {{16, 16}, {100, 100}, {500, 500}}, kSolidAndAdd},
    {Kind::kShadeBox, {{32, 32}, {640, 480}}, kSolidAndAdd},
    {Kind::kDisc, {{16, 16}, {100, 100}, {400, 400}}, kSolidAndAlpha},
    {Kind::kRing, {{16, 16}, {100, 100}, {400, 400}}, kSolid},
    {Kind::kLine, {{16, 7}, {450, 200}, {200, 450}, {450, 1}}, kSolidAndAlpha},
};

}  // namespace

std::vector<Job> Rows() {
  std::vector<Job> rows;
  for (const Family &family : kFamilies) {
    for (const Point size : family.sizes) {
      for (int format = BRSL_FORMAT_565; format <= BRSL_FORMAT_A32; ++format) {
        for (const int mode : family.modes) {
          rows.push_back({family.kind, size.x, size.y, format, mode});
        }
      }
    }
  }
  return rows;
}

}  // namespace brisal::bench
