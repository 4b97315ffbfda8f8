#include "tools/animate/animation.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "tools/font/raster.h"
#include "tools/gallery/noise.h"
#include "tools/gallery/pictures.h"

namespace brisal::tools {

namespace {

constexpr double kTurn = 6.283185307179586;
constexpr int32_t kStars = 90;
constexpr int32_t kButterflies = 7;
constexpr int32_t kFrames = 8;  // of a butterfly's beat, four in a row of the sheet

constexpr char kTitle[] = "Brisal";
constexpr char kMessage[] = "Every pixel is drawn by a processor into plain memory.";

int32_t Round(double value) { return static_cast<int32_t>(std::lround(value)); }

int32_t HorizonOf(int32_t height) { return std::max(height * 3 / 4, 1); }

struct Corner {
  float x, y, z;
};

struct Projected {
  float x, y, z, screenX, screenY;
};

constexpr Corner kCube[8] = {{-1, -1, -1}, {1, -1, -1}, {1, 1, -1}, {-1, 1, -1},
                             {-1, -1, 1},  {1, -1, 1},  {1, 1, 1},  {-1, 1, 1}};

// Clockwise as seen from outside.
constexpr int32_t kSides[6][4] = {{0, 1, 2, 3}, {5, 4, 7, 6}, {1, 5, 6, 2},
                                  {4, 0, 3, 7}, {4, 5, 1, 0}, {3, 2, 6, 7}};

uint32_t ColourOf(const Corner &corner) {
  const auto channel = [](float place) { return static_cast<uint32_t>(127.5f + 112 * place); };
  return channel(corner.x) << 16 | channel(corner.y) << 8 | channel(corner.z);
}

bool FacesUs(const Projected &a, const Projected &b, const Projected &c) {
  return (b.screenX - a.screenX) * (c.screenY - a.screenY) >
         (c.screenX - a.screenX) * (b.screenY - a.screenY);
}

}  // namespace

Animation::Animation(int32_t width, int32_t height, int32_t format)
    : page_(width, height, format),
      horizon_(HorizonOf(height)),
      side_(std::min(width, height)),
      town_(width, horizon_, format),
      butterflySize_(std::max(side_ / 8, 4)),
      butterflies_(ButterflySheet(butterflySize_), BRSL_FORMAT_A32),
      sprites_(TPD_BuildSpriteDrawMode(1, 0xFFFFFFFF, 0, 0), TPD_Free),
      title_(DejaVuFont({.size = std::clamp(side_ / 6, 4, 200)})),
      text_(DejaVuFont({.size = std::clamp(side_ / 16, 4, 80)})) {
  if (!sprites_) throw std::bad_alloc();
}

void Animation::Draw(double seconds) {
  const double phase = seconds / kSeconds - std::floor(seconds / kSeconds);
  page_.Target();
  BRSL_SetInkAlpha(255);
  BRSL_SetBufferViewPort(0, 0, page_.Width(), horizon_);
  DrawSky();
  DrawCube(phase);
  town_.Draw(phase);
  DrawButterflies(phase);
  BRSL_SetBufferViewPort(0, 0, page_.Width(), page_.Height());
  DrawReflection(phase);
  DrawText(phase);
}

void Animation::DrawSky() {
  const int32_t width = page_.Width();
  BRSL_ShadeBox(0, 0, width, horizon_, 0x0C1440, 0x241858, 0xF09868, 0xE07078, 0);
  for (int32_t i = 0; i < kStars; i++) {
    const int32_t x = static_cast<int32_t>(Hash(i, 1, 5) * static_cast<float>(width));
    const int32_t y = static_cast<int32_t>(Hash(i, 2, 5) * static_cast<float>(horizon_) * 0.6f);
    BRSL_Dot(x, y, i % 3 ? 0x303048 : 0x7070A0, DRAW_ADD);
  }
  const int32_t x = width * 3 / 10;
  const int32_t y = horizon_ * 11 / 20;
  for (int32_t i = 10; i > 0; i--) BRSL_Circle(x, y, side_ * (7 + 2 * i) / 80, 0x080503, DRAW_ADD);
  BRSL_Circle(x, y, side_ * 7 / 80, 0xFFF0C8, 0);
}

void Animation::DrawCube(double phase) {
  const float tilt = static_cast<float>(24 + 12 * std::sin(kTurn * phase));
  const float spin = static_cast<float>(720 * phase);
  const float factor = static_cast<float>(side_) * 0.5f;
  const BRSL_Transform transform = {0, 0, 0, 4.4f, tilt, spin, 0, 1, 1, 1, 0, 1, factor, factor};
  Projected corners[8];
  RotateVertexList(&transform, kCube, sizeof(Corner), corners, sizeof(Projected), 8);
  const int32_t cx = page_.Width() * 7 / 10;
  const int32_t cy = horizon_ * 7 / 20 + Round(side_ * 0.03 * std::sin(kTurn * phase));
  for (const int32_t(&side)[4] : kSides) {
    if (!FacesUs(corners[side[0]], corners[side[1]], corners[side[2]])) continue;
    int32_t x[4], y[4];
    uint32_t colour[4];
    for (int32_t k = 0; k < 4; k++) {
      x[k] = cx + Round(corners[side[k]].screenX);
      y[k] = cy + Round(corners[side[k]].screenY);
      colour[k] = ColourOf(kCube[side[k]]);
    }
    BRSL_QuadG(x[0], y[0], colour[0], x[1], y[1], colour[1], x[2], y[2], colour[2], x[3], y[3],
               colour[3], 0);
  }
}

void Animation::DrawButterflies(double phase) {
  for (int32_t i = 0; i < kButterflies; i++) {
    const double angle = kTurn * (phase + static_cast<double>(i) / kButterflies);
    const double x = page_.Width() * (0.5 + 0.44 * std::sin(angle));
    const double y = horizon_ * (0.42 + 0.26 * std::sin(2 * angle + i));
    const double turn = 0.6 * std::cos(angle + i);
    const double r = butterflySize_ * 0.7;
    const int32_t c = Round(r * std::cos(turn));
    const int32_t s = Round(r * std::sin(turn));
    const int32_t frame = (Round(phase * 24 * kFrames) + i * 3) % kFrames;
    const int32_t left = frame % 4 * butterflySize_;
    const int32_t top = frame / 4 * butterflySize_;
    const int32_t right = left + butterflySize_ - 1;
    const int32_t bottom = top + butterflySize_ - 1;
    const int32_t px = Round(x);
    const int32_t py = Round(y);
    BRSL_DrawSpriteQuad(butterflies_, px - c + s, py - s - c, left, top, px + c + s, py + s - c,
                        right, top, px + c - s, py + s + c, right, bottom, px - c - s, py - s + c,
                        left, bottom, sprites_.get(), 1);
  }
}

// Rows of the water show rows above the horizon, shifted by waves that grow towards us.
void Animation::DrawReflection(double phase) {
  const int32_t width = page_.Width();
  BRSL_SetSrcBuffer(page_.Row(0), page_.Pitch(), page_.Format());
  for (int32_t row = horizon_; row < page_.Height(); row++) {
    const int32_t depth = row - horizon_;
    const double wave =
        std::sin(depth * 0.5 - kTurn * 8 * phase) + std::sin(depth * 0.23 + kTurn * 5 * phase);
    const int32_t shift = Round(wave * (1 + depth * 0.05));
    const int32_t from = std::clamp(horizon_ - 1 - depth * 2 - Round(wave), 0, horizon_ - 1);
    BRSL_Blit(0, from, width, from + 1, shift, row, 0, 0);
    if (shift > 0) BRSL_Blit(0, from, shift, from + 1, 0, row, 0, 0);
    if (shift < 0) BRSL_Blit(width + shift, from, width, from + 1, width + shift, row, 0, 0);
  }
  BRSL_Box(0, horizon_, width, page_.Height(), 0x7088B0, BRSL_FILLED | DRAW_MULT);
}

// The title stands, the message comes by letter by letter on a wave.
void Animation::DrawText(double phase) const {
  const int32_t width = page_.Width();
  const int32_t left = width / 20;
  const int32_t top = horizon_ / 20;
  const int32_t shadow = side_ / 160;
  CRF_Draw(title_.get(), kTitle, 0, left + shadow, top + shadow, 0xFF180820);
  CRF_Draw(title_.get(), kTitle, 0, left, top, 0xFFFFE8C0);

  const int32_t way = width + CRF_TextWidth(text_.get(), kMessage, 0);
  int32_t x = width - Round(phase * way);
  const int32_t middle = (3 * page_.Height() + horizon_ - 2 * side_ / 16) / 4;
  for (const char *letter = kMessage; *letter != 0; letter++) {
    const int32_t y = middle + Round(side_ * 0.025 * std::sin(x * 8.0 / width - kTurn * 3 * phase));
    CRF_Draw(text_.get(), letter, 1, x + 1, y + 1, 0xFF101020);
    CRF_Draw(text_.get(), letter, 1, x, y, 0xFFF8F0FF);
    x += CRF_TextWidth(text_.get(), letter, 1);
  }
}

void Animation::DrawNote(const std::string &text) const {
  CRF_Draw(text_.get(), text.c_str(), 0, side_ / 60, side_ / 60, 0xFFFFFFFF);
}

}  // namespace brisal::tools
