/*
 * Text in a font that the brisal tool made:
 *
 *     brisal font make DejaVuSans.ttf --size 22 -o sans.crf
 *     font sans.crf [FILE.ppm]
 */
#include <brisal/brisal.h>
#include <string.h>

#include "ppm.h"
#include "services.h"

enum { kWidth = 480, kHeight = 320, kMargin = 40 };

static uint8_t pixels[kHeight][kWidth][3];

static const char kTitle[] = "The quiet typecase";
static const char kStory[] =
    "A line of type is set letter by letter. Each glyph is a handful of runs, blended where its "
    "edge is soft; its spacing moves the pen, and the viewport trims what leaves the page.";

static void DrawCentred(const CRF_Font *font, const char *text, int y, uint32_t colour) {
  const int x = (kWidth - CRF_TextWidth(font, text, 0)) / 2;
  CRF_Draw(font, text, 0, x + 2, y + 2, 0x60000000);
  CRF_Draw(font, text, 0, x, y, colour);
}

/* How much of a text, up to a space, fits the width; one word at least. */
static int LineLength(const CRF_Font *font, const char *text, int width) {
  int length = 0;
  while (text[length]) {
    const int end = length + 1 + (int)strcspn(text + length + 1, " ");
    if (length > 0 && CRF_TextWidth(font, text, end) > width) break;
    length = end;
  }
  return length;
}

static void DrawColumn(const CRF_Font *font, const char *text, int x, int y, int width) {
  while (*text) {
    const int length = LineLength(font, text, width);
    CRF_Draw(font, text, length, x, y, 0xFF302820);
    y += CRF_GetMaxChrSize(font, 1) * 9 / 8;
    text += length;
    text += strspn(text, " ");
  }
}

int main(int argc, char **argv) {
  if (argc < 2) {
    fprintf(stderr, "usage: font FONT.crf [FILE.ppm]\n");
    return 1;
  }
  BRSL_Init_Lib();
  InstallServices();
  CRF_Font *const font = CRF_Load(argv[1]);
  if (!font) {
    fprintf(stderr, "%s: not a raster font\n", argv[1]);
    return 1;
  }
  BRSL_SetBuffer(pixels, sizeof pixels[0], BRSL_FORMAT_RGB);
  BRSL_SetBufferViewPort(0, 0, kWidth, kHeight);
  BRSL_ShadeBox(0, 0, kWidth, kHeight, 0x284858, 0x385868, 0xD8B888, 0xB89878, DRAW_SOLID);
  BRSL_Box(kMargin / 2, 80, kWidth - kMargin / 2, kHeight - 24, 0xF8F0E0, BRSL_FILLED);

  CRF_DrawMode(font, 1);
  DrawCentred(font, kTitle, 28, 0xFFFFF4D8);
  DrawColumn(font, kStory, kMargin, 100, kWidth - 2 * kMargin);
  CRF_Free(font);
  return SavePpm(argc > 2 ? argv[2] : "font.ppm", pixels, kWidth, kHeight);
}
