#include <cstddef>
#include <cstdio>

#include "host/services.h"

// A font from the bytes of its file, for hosts without files; null if they are not those of a font.
extern "C" CRF_Font *WebLoadFont(void *bytes, size_t count) {
  brisal::host::InstallServices();
  FILE *const stream = fmemopen(bytes, count, "rb");
  if (stream == nullptr) return nullptr;
  const brisal::host::ServiceFile file(stream);
  CRF_Font *const font = CRF_Read(file.Handle());
  std::fclose(stream);
  return font;
}
