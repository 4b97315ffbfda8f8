/* As after a system header that has macros of these names. */
#include <string.h>
#define CopyMemory(destination, source, size) memcpy((destination), (source), (size))
#define FillMemory(destination, size, value) memset((destination), (value), (size))

#include "brisal/brisal.h"

int32_t HeaderBearsMacros(void) {
  int32_t bytes = 0;
  (FillMemory)(&bytes, 4, 1, 1);
  return bytes;
}
