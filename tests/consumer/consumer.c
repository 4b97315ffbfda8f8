/* A user of the installed library: the package and the header agree, and a clipped box arrives. */
#include <brisal/brisal.h>
#include <stdio.h>
#include <string.h>

int main(void) {
  char version[32];
  snprintf(version, sizeof version, "%d.%d.%d", BRSL_VERSION_MAJOR, BRSL_VERSION_MINOR,
           BRSL_VERSION_PATCH);
  if (strcmp(version, PACKAGE_VERSION) != 0) {
    fprintf(stderr, "the package is %s, the header %s\n", PACKAGE_VERSION, version);
    return 1;
  }
  const uint32_t c = 0x123456;
  const uint32_t expected[3][4] = {{0, 0, 0, 0}, {0, c, c, 0}, {0, 0, 0, 0}};
  uint32_t pixels[3][4] = {{0}};
  BRSL_Init_Lib();
  BRSL_SetBuffer(pixels, sizeof pixels[0], BRSL_FORMAT_X32);
  BRSL_SetBufferViewPort(1, 1, 3, 2);
  BRSL_Box(-9, -9, 9, 9, c, BRSL_FILLED);
  if (memcmp(pixels, expected, sizeof pixels) != 0) {
    fprintf(stderr, "the box did not arrive as it should\n");
    return 1;
  }
  return 0;
}
