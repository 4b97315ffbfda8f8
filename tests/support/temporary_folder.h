#pragma once

#include <filesystem>
#include <string>

#include "host/file.h"

namespace brisal::test {

// An empty folder for one test.
class TemporaryFolder {
 public:
  TemporaryFolder() : path_(std::filesystem::temp_directory_path() / host::TemporaryName()) {
    std::filesystem::create_directory(path_);
  }
  ~TemporaryFolder() { std::filesystem::remove_all(path_); }
  TemporaryFolder(const TemporaryFolder &) = delete;
  TemporaryFolder &operator=(const TemporaryFolder &) = delete;

  std::filesystem::path operator/(const std::string &name) const { return path_ / name; }
  bool Empty() const { return std::filesystem::is_empty(path_); }
  const std::filesystem::path &Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace brisal::test
