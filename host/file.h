#pragma once

#include <cstdio>
#include <filesystem>
#include <string>

#include "host/error.h"

namespace brisal::host {

// "path: what: why", where why is the text of the system's error code.
Error SystemError(const std::filesystem::path &path, const std::string &what, int code);

// A name for a temporary file or folder: hidden, short, and not in use by anyone else.
std::string TemporaryName();

// A file that appears under its name only once it is complete: it is written beside the final
// place under a temporary name, which Commit changes. Without Commit nothing stays behind.
class NewFile {
 public:
  explicit NewFile(const std::filesystem::path &path);
  ~NewFile();
  NewFile(const NewFile &) = delete;
  NewFile &operator=(const NewFile &) = delete;

  FILE *Stream() const { return stream_; }
  void Commit();

 private:
  std::filesystem::path path_;
  std::filesystem::path temporary_;
  FILE *stream_;
};

}  // namespace brisal::host
