#include "tools/gallery/scenes/scenes.h"

#include <algorithm>
#include <cmath>

namespace brisal::tools {

void DrawCalculator(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();

  // Variable 4 becomes the distance from the centre: x * x + y * y, then 0 plus its square root. A ripple
  // runs around it: amplitude * cos(distance * degrees) / (distance * decay + 1).
  SHOW(
    enum { kX, kY, kSquare, kWave, kDistance, kAngle, kDegrees, kOne, kAmplitude, kZero, kDecay, kVariables };
    float v[kVariables] = {0, 0, 0, 0, 0, 0, 105, 1, 2.4f, 0, 0.32f};
    const int32_t distance[] = {kX, 3, kX, 5, kSquare, 10, kY, 3, kY, 1, kSquare, 5, kSquare,
                                10, kZero, 61, kSquare, 5, kDistance};
    const int32_t ripple[] = {kDistance, 3, kDegrees, 5, kAngle, 10, kAmplitude, 23, kAngle, 5, kWave,
                              10, kDistance, 3, kDecay, 1, kOne, 5, kAngle, 10, kWave, 4, kAngle};
  )
  SHOW(
    BRSL_Box(0, 0, w, h, 0x384058, BRSL_FILLED | DRAW_MULT);
    for (int32_t row = 0; row < 80; row++) {
      int32_t lastX = 0;
      int32_t lastY = 0;
      for (int32_t i = 0; i <= 120; i++) {
        v[kX] = (i - 60) / 6.0f;
        v[kY] = (row - 40) / 4.0f;
        TQ_FastCalc(v, distance, 9);
        const float z = TQ_FastCalc(v, ripple, 11);
        const int32_t x = w / 2 + int32_t(v[kX] * w * (0.033f + row * 0.0002f));
        const int32_t y = h * 3 / 10 + int32_t(row * h * 0.0072f - z * h * 0.11f);
        const uint32_t colour = TQ_RGB_ALPHA_BLEND_Variable(0x2050D8, 0xFFC050, int32_t(z * 110 + 110));
        if (i > 0) {
          BRSL_Quad(lastX, lastY, x, y, x, y + h / 9, lastX, lastY + h / 9, TQ_RGB_SCALE(colour, 28 + row / 2), 0);
          BRSL_WriteLine(std::clamp(lastX, 0, w - 1), std::clamp(lastY, 0, h - 1), std::clamp(x, 0, w - 1),
                         std::clamp(y, 0, h - 1), colour, 0);
        }
        lastX = x;
        lastY = y;
      }
    }
  )
}

}  // namespace brisal::tools
