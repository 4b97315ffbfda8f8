/* The header is all that a C program needs. */
#include "brisal/brisal.h"

int32_t HeaderIsC99(void) { return BRSL_GetInkAlpha() + BRSL_VERSION_MAJOR + DRAW_REVSUB; }
