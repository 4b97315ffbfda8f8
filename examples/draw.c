/*
 * An evening by a lake, out of flat, shaded and blended shapes, saved as a picture.
 *
 *     draw [FILE.ppm]
 */
#include <brisal/brisal.h>

#include "ppm.h"

enum { kWidth = 480, kHeight = 320, kShore = 210, kSunX = 330, kSunY = 150 };

static uint8_t pixels[kHeight][kWidth][3];

static void DrawSky(void) {
  BRSL_ShadeBox(0, 0, kWidth, kShore, 0x182050, 0x302058, 0xF09050, 0xC05868, DRAW_SOLID);
  for (int i = 0; i < 90; i++) {
    BRSL_Dot(i * 1237 % kWidth, i * i * 53 % 110, 0x404858 + i % 3 * 0x302820, DRAW_ADD);
  }
  for (int r = 120; r > 40; r -= 8) {
    BRSL_Circle(kSunX, kSunY, r, 0x0C0804, BRSL_FILLED | DRAW_ADD);
  }
  BRSL_Circle(kSunX, kSunY, 36, 0xFFE8B0, BRSL_FILLED);
}

/* A mountain with a lit side towards the sun and one in the shade. */
static void DrawMountain(int x, int top, int left, int right, uint32_t lit, uint32_t shade) {
  BRSL_TriG(x, top, shade, left, kShore, 0x483858, x + 12, kShore, 0x302848, DRAW_SOLID);
  BRSL_TriG(x, top, lit, x + 12, kShore, 0x604858, right, kShore, 0x705058, DRAW_SOLID);
}

/* The shore mirrored row by row, darker and wider spread the nearer it comes. */
static void DrawLake(void) {
  static const uint8_t kWave[] = {0, 1, 3, 4, 3, 1};
  BRSL_SetSrcBuffer(pixels, sizeof pixels[0], BRSL_FORMAT_RGB);
  for (int y = kShore; y < kHeight; y++) {
    const int depth = y - kShore;
    const int from = kShore - 1 - depth * 19 / 10;
    const int shift = kWave[depth * 5 / 8 % 6] * (8 + depth) / 24;
    BRSL_Blit(0, from, kWidth, from + 1, -shift, y, 0, 0);
    BRSL_Blit(0, from, kWidth, from + 1, kWidth - shift, y, 0, 0);
  }
  BRSL_Box(0, kShore, kWidth, kHeight, 0xA0A8C8, BRSL_FILLED | DRAW_MULT);
  BRSL_Box(0, kShore, kWidth, kShore + 2, 0x404050, BRSL_FILLED | DRAW_ADD);
}

static void DrawReeds(void) {
  for (int i = 0; i < 60; i++) {
    const int x = i * 37 % 150 - 10;
    const int lean = i * 11 % 17 - 6;
    const int tip = 215 + i * 29 % 70 + x / 3;
    BRSL_Tri(x, kHeight, x + lean, tip, x + 3, kHeight, 0x101420 + i % 4 * 0x030503, 0);
    if (i % 5 == 0) BRSL_Ellipse(x + lean, tip + 4, 3, 9, 0x281818, BRSL_FILLED);
  }
}

int main(int argc, char **argv) {
  BRSL_Init_Lib();
  BRSL_SetBuffer(pixels, sizeof pixels[0], BRSL_FORMAT_RGB);
  BRSL_SetBufferViewPort(0, 0, kWidth, kHeight);

  DrawSky();
  DrawMountain(150, 60, 20, 330, 0xF8C8A8, 0x584870);
  DrawMountain(420, 110, 300, 540, 0xE0A890, 0x504068);
  DrawMountain(50, 120, -80, 190, 0xD89888, 0x403860);
  DrawLake();
  DrawReeds();
  return SavePpm(argc > 1 ? argv[1] : "draw.ppm", pixels, kWidth, kHeight);
}
