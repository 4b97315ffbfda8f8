/* A host that knows nothing of the library but its name: it takes every function by its undecorated name
 * and draws with some of them. */
#include <stdint.h>
#include <stdio.h>
#include <string.h>
#include <windows.h>

#include "brisal/brisal.h"

#define LIBRARY "Brisal Library.dll"

typedef int32_t(BRSL_CALL *Init)(void);
typedef void(BRSL_CALL *SetBuffer)(void *, int32_t, int32_t);
typedef void(BRSL_CALL *SetViewPort)(int32_t, int32_t, int32_t, int32_t);
typedef void(BRSL_CALL *Box)(int32_t, int32_t, int32_t, int32_t, uint32_t, int32_t);

static FARPROC Function(HMODULE library, const char *name) {
  const FARPROC function = GetProcAddress(library, name);
  if (function == NULL) printf("%s: no function '%s'\n", LIBRARY, name);
  return function;
}

static int CountMissing(HMODULE library, FILE *names) {
  char name[128];
  int missing = 0;
  int count = 0;
  for (; fscanf(names, "%127s", name) == 1; count++) {
    if (Function(library, name) == NULL) missing++;
  }
  printf("%d functions, %d missing\n", count, missing);
  return count == 0 ? 1 : missing;
}

static int DrawsABox(HMODULE library) {
  enum { kEdge = 8 };
  uint32_t pixels[kEdge * kEdge] = {0};
  int x, y, wrong = 0;
  ((Init)(void *)Function(library, "BRSL_Init_Lib"))();
  ((SetBuffer)(void *)Function(library, "BRSL_SetBuffer"))(pixels, kEdge * 4, BRSL_FORMAT_X32);
  ((SetViewPort)(void *)Function(library, "BRSL_SetBufferViewPort"))(0, 0, kEdge, kEdge);
  ((Box)(void *)Function(library, "BRSL_Box"))(2, 3, 7, 5, 0x123456, BRSL_FILLED);
  for (y = 0; y < kEdge; y++) {
    for (x = 0; x < kEdge; x++) {
      const int inside = x >= 2 && x < 7 && y >= 3 && y < 5;
      wrong += (pixels[y * kEdge + x] & 0xFFFFFF) != (inside ? 0x123456u : 0u);
    }
  }
  if (wrong != 0) printf("%d pixels of a box are wrong\n", wrong);
  return wrong == 0;
}

/* Of the other files, which include the headers in either order. */
int32_t HeaderBeforeWindows(void);
int32_t MacrosOfWindows(void);
int32_t HeaderAfterWindows(void);

static int HeadersLiveTogether(void) {
  const int together =
      HeaderBeforeWindows() == 0x01010101 && MacrosOfWindows() == 7 && HeaderAfterWindows() == 7;
  if (!together) printf("brisal.h and windows.h are in each other's way\n");
  return together;
}

int main(int argc, char **argv) {
  const HMODULE library = LoadLibraryA(LIBRARY);
  FILE *const names = argc == 2 ? fopen(argv[1], "r") : NULL;
  if (library == NULL || names == NULL) {
    printf("usage: windows_host EXPORTS.TXT, with %s beside it\n", LIBRARY);
    return 2;
  }
  return CountMissing(library, names) == 0 && DrawsABox(library) && HeadersLiveTogether() ? 0 : 1;
}
