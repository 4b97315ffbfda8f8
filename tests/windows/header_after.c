/* The header after that of the system, whose macros have two of its names and keep their meaning. */
#include <windows.h>
/* In this order. */
#include "brisal/brisal.h"

int32_t MacrosOfWindows(void) {
  int32_t from = 7, to = 0;
  CopyMemory(&to, &from, sizeof to);
  return to;
}

#undef CopyMemory

int32_t HeaderAfterWindows(void) {
  int32_t from = 7, to = 0;
  CopyMemory(&from, &to, sizeof to);
  return to;
}
