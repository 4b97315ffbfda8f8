/* The header before that of the system, whose macros have two of its names. */
#include "brisal/brisal.h"
/* In this order. */
#include <windows.h>
#undef FillMemory

int32_t HeaderBeforeWindows(void) {
  int32_t bytes = 0;
  FillMemory(&bytes, 4, 1, 1);
  return bytes;
}
