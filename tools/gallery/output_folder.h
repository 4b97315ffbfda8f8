#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace brisal::tools {

// A folder of files that appears all at once. Files are written into a hidden folder (beside the
// final one, or inside it where that exists already, so that moving never crosses file systems);
// Publish moves them into place. Without Publish nothing stays behind.
class OutputFolder {
 public:
  explicit OutputFolder(const std::filesystem::path &path);
  ~OutputFolder();
  OutputFolder(const OutputFolder &) = delete;
  OutputFolder &operator=(const OutputFolder &) = delete;

  // Where to write a file that shall be called name.
  std::filesystem::path Place(const std::string &name);

  // index, one of the files, is moved last. A file that is there already is replaced only where
  // its folder has an index that contains mark; anything else is somebody's own, and an Error.
  void Publish(const std::string &index, const std::string &mark);

 private:
  void MakeParents(const std::filesystem::path &folder);

  std::filesystem::path path_;
  bool existed_;
  std::filesystem::path temporary_;
  std::vector<std::filesystem::path> made_;  // missing parents, outermost first
  std::vector<std::string> names_;
};

}  // namespace brisal::tools
