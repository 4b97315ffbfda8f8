/* Saves pictures as PPM files, which most viewers open. */
#ifndef PPM_H
#define PPM_H

#include <stdio.h>

/*
 * pixels: BRSL_FORMAT_RGB, row after row without a gap. Returns what main should: 0, or 1 after
 * saying why.
 */
static inline int SavePpm(const char *path, const void *pixels, int width, int height) {
  FILE *file = fopen(path, "wb");
  if (!file) {
    perror(path);
    return 1;
  }
  const size_t size = (size_t)width * (size_t)height * 3;
  fprintf(file, "P6 %d %d 255\n", width, height);
  const int written = fwrite(pixels, 1, size, file) == size;
  if (fclose(file) == 0 && written) return 0;
  perror(path);
  return 1;
}

#endif
