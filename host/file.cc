#include "host/file.h"

#include <cerrno>
#include <random>
#include <system_error>
#include <utility>

namespace brisal::host {

namespace fs = std::filesystem;

Error SystemError(const fs::path &path, const std::string &what, int code) {
  return Error(path.string() + ": " + what + ": " + std::generic_category().message(code));
}

std::string TemporaryName() {
  static std::random_device random;
  char name[32];
  std::snprintf(name, sizeof name, ".brisal-%08x%08x", random(), random());
  return name;
}

NewFile::NewFile(const fs::path &path)
    : path_(path), temporary_(path.parent_path() / TemporaryName()) {
  std::error_code ignored;
  if (fs::is_directory(path, ignored)) throw SystemError(path, "cannot be written", EISDIR);
  // A device or a pipe would give its name to the new file and be gone.
  if (fs::exists(path, ignored) && !fs::is_regular_file(path, ignored)) {
    throw Error(path.string() + ": cannot be written: not a regular file");
  }
  stream_ = std::fopen(temporary_.c_str(), "wbx");
  if (!stream_) throw SystemError(path, "cannot be written", errno);
}

NewFile::~NewFile() {
  if (stream_) std::fclose(stream_);
  std::error_code ignored;
  if (!temporary_.empty()) fs::remove(temporary_, ignored);
}

void NewFile::Commit() {
  // Buffered bytes may still meet a full disk here, so closing is part of writing.
  const bool written = !std::ferror(stream_) && std::fflush(stream_) == 0;
  const int flushCode = errno;
  if (std::fclose(std::exchange(stream_, nullptr)) != 0 || !written) {
    throw SystemError(path_, "cannot be written", written ? errno : flushCode);
  }
  std::error_code error;
  fs::rename(temporary_, path_, error);
  if (error) throw Error(path_.string() + ": cannot be written: " + error.message());
  temporary_.clear();
}

}  // namespace brisal::host
