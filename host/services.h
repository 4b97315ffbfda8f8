#pragma once

#include <cstdint>
#include <cstdio>

#include "brisal/brisal.h"

namespace brisal::host {

// Lets the library have memory and files of the C library: what its font functions need. Handles are
// addresses; names are paths. The services that the library never calls stay null, so that a call of
// one would be seen at once.
void InstallServices();

// The address of a block that a font function returned the handle of.
void *BlockAddress(uintptr_t block);

// A file of the services, as CRF_Read and CRF_Write take it by its handle. What cannot be read becomes
// zeros, and what went wrong is remembered, since services cannot report it.
class ServiceFile {
 public:
  // The stream stays the caller's, who closes it, and checks it where closing may fail.
  explicit ServiceFile(FILE *stream) : stream_(stream) {}

  uintptr_t Handle() const { return reinterpret_cast<uintptr_t>(this); }

  // Whether something was to be read behind the file's end.
  bool IsCut() const { return cut_; }
  // The system's code of the first failure other than that, 0 for none.
  int ErrorCode() const { return error_; }

  // What the services do. Counts are not negative.
  FILE *Stream() const { return stream_; }
  int32_t Position();
  void Seek(int32_t position);
  void Read(int32_t position, void *to, size_t count);
  void Write(int32_t position, const void *from, size_t count);

 private:
  // Goes to where a service is to read or write.
  void GoTo(int32_t position);
  void Fail();

  FILE *stream_;
  int error_ = 0;
  bool cut_ = false;
};

}  // namespace brisal::host
