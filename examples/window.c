/*
 * A cube that turns in an SDL 2 window: the library draws straight into the window's texture.
 *
 *     window [FRAMES [FILE.ppm]]
 *
 * Without a number of frames it turns until the window is closed. The last frame may be saved.
 */
#include <SDL.h>
#include <brisal/brisal.h>
#include <stdlib.h>

#include "ppm.h"

enum { kWidth = 480, kHeight = 320, kCorners = 8, kFaces = 6 };

typedef struct Corner {
  float x, y, z, screenX, screenY;
} Corner;

static const float kCube[kCorners][3] = {{-1, -1, -1}, {1, -1, -1}, {1, 1, -1}, {-1, 1, -1},
                                         {-1, -1, 1},  {1, -1, 1},  {1, 1, 1},  {-1, 1, 1}};
static const uint32_t kColours[kCorners] = {0x203080, 0xE04848, 0xF8D060, 0x40B060,
                                            0x60C8F0, 0x9048C0, 0xF8F8F0, 0x206860};
/* Clockwise as seen from outside. */
static const int kRings[kFaces][4] = {{0, 1, 2, 3}, {1, 5, 6, 2}, {5, 4, 7, 6},
                                      {4, 0, 3, 7}, {4, 5, 1, 0}, {3, 2, 6, 7}};

static void DrawFace(const Corner *corner, const int *ring) {
  int x[4], y[4];
  for (int i = 0; i < 4; i++) {
    x[i] = kWidth / 2 + (int)corner[ring[i]].screenX;
    y[i] = kHeight / 2 + (int)corner[ring[i]].screenY;
  }
  const int turn = (x[1] - x[0]) * (y[2] - y[0]) - (x[2] - x[0]) * (y[1] - y[0]);
  if (turn <= 0) return; /* seen from behind */
  BRSL_QuadG(x[0], y[0], kColours[ring[0]], x[1], y[1], kColours[ring[1]], x[2], y[2],
             kColours[ring[2]], x[3], y[3], kColours[ring[3]], DRAW_SOLID);
}

static void DrawFrame(void *pixels, int pitch, float seconds) {
  const BRSL_Transform transform = {.z = 5,
                                    .angleX = 20 * seconds + 25,
                                    .angleY = 45 * seconds + 30,
                                    .scaleX = 1,
                                    .scaleY = 1,
                                    .scaleZ = 1,
                                    .output = 1,
                                    .factorX = 380,
                                    .factorY = 380};
  Corner corner[kCorners];
  RotateVertexList(&transform, kCube, sizeof kCube[0], corner, sizeof corner[0], kCorners);

  BRSL_SetBuffer(pixels, pitch, BRSL_FORMAT_X32);
  BRSL_SetBufferViewPort(0, 0, kWidth, kHeight);
  BRSL_ShadeBox(0, 0, kWidth, kHeight, 0x182030, 0x202840, 0x506080, 0x405070, DRAW_SOLID);
  BRSL_Ellipse(kWidth / 2, 290, 130, 16, 0x909090, BRSL_FILLED | DRAW_MULT);
  for (int i = 0; i < kFaces; i++) DrawFace(corner, kRings[i]);
}

static int SaveFrame(const char *path, float seconds) {
  static uint32_t frame[kHeight][kWidth];
  static uint8_t pixels[kHeight][kWidth][3];
  DrawFrame(frame, sizeof frame[0], seconds);
  BRSL_SetSrcBuffer(frame, sizeof frame[0], BRSL_FORMAT_X32);
  BRSL_SetBuffer(pixels, sizeof pixels[0], BRSL_FORMAT_RGB);
  BRSL_Blit(0, 0, kWidth, kHeight, 0, 0, 0, 0);
  return SavePpm(path, pixels, kWidth, kHeight);
}

static int Fail(const char *what) {
  fprintf(stderr, "window: %s: %s\n", what, SDL_GetError());
  return 1;
}

int main(int argc, char **argv) {
  const int frames = argc > 1 ? atoi(argv[1]) : 0;
  BRSL_Init_Lib();
  if (SDL_Init(SDL_INIT_VIDEO) != 0) return Fail("no display");
  SDL_Window *window = SDL_CreateWindow("Brisal", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                                        kWidth, kHeight, SDL_WINDOW_RESIZABLE);
  if (!window) return Fail("no window");
  SDL_Renderer *renderer = SDL_CreateRenderer(window, -1, SDL_RENDERER_PRESENTVSYNC);
  if (!renderer) renderer = SDL_CreateRenderer(window, -1, SDL_RENDERER_SOFTWARE);
  if (!renderer) return Fail("nothing to draw with");
  SDL_RenderSetLogicalSize(renderer, kWidth, kHeight);
  SDL_Texture *texture = SDL_CreateTexture(renderer, SDL_PIXELFORMAT_RGB888,
                                           SDL_TEXTUREACCESS_STREAMING, kWidth, kHeight);
  if (!texture) return Fail("no texture");

  int open = 1;
  for (int shown = 0; open && (frames == 0 || shown < frames); shown++) {
    for (SDL_Event event; SDL_PollEvent(&event);) open &= event.type != SDL_QUIT;
    void *pixels;
    int pitch;
    if (SDL_LockTexture(texture, NULL, &pixels, &pitch) != 0) return Fail("no pixels");
    DrawFrame(pixels, pitch, (float)SDL_GetTicks() / 1000);
    SDL_UnlockTexture(texture);
    SDL_RenderCopy(renderer, texture, NULL, NULL);
    SDL_RenderPresent(renderer);
  }
  SDL_Quit();
  return argc > 2 ? SaveFrame(argv[2], (float)frames / 60) : 0;
}
