#include "tools/gallery/output_folder.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <system_error>

#include "host/file.h"

namespace brisal::tools {

namespace fs = std::filesystem;
using host::Error;
using host::SystemError;

namespace {

void MakeFolder(const fs::path &folder) {
  std::error_code error;
  fs::create_directory(folder, error);
  if (error) throw SystemError(folder.parent_path(), "cannot be written", error.value());
}

bool Contains(const fs::path &file, const std::string &mark) {
  std::error_code error;
  if (!fs::is_regular_file(file, error)) return false;
  std::ifstream stream(file, std::ios::binary);
  const std::string text((std::istreambuf_iterator<char>(stream)), {});
  return text.find(mark) != std::string::npos;
}

void Move(const fs::path &from, const fs::path &to) {
  std::error_code error;
  fs::rename(from, to, error);
  if (error) throw SystemError(to, "cannot be written", error.value());
}

}  // namespace

OutputFolder::OutputFolder(const fs::path &path) {
  std::error_code error;
  path_ = fs::absolute(path, error).lexically_normal();
  if (!path_.has_filename()) path_ = path_.parent_path();
  const fs::file_status status = fs::status(path_, error);
  existed_ = fs::is_directory(status);
  if (fs::exists(status) && !existed_) throw SystemError(path, "cannot be written", ENOTDIR);
  try {
    MakeParents(existed_ ? path_ : path_.parent_path());
    const fs::path beside = existed_ ? path_ : path_.parent_path();
    const fs::path temporary = beside / host::TemporaryName();
    MakeFolder(temporary);
    temporary_ = temporary;
  } catch (const Error &) {
    for (auto i = made_.rbegin(); i != made_.rend(); i++) fs::remove(*i, error);
    throw;
  }
}

OutputFolder::~OutputFolder() {
  std::error_code ignored;
  if (!temporary_.empty()) fs::remove_all(temporary_, ignored);
  // Only folders that are empty again go away.
  for (auto i = made_.rbegin(); i != made_.rend(); i++) fs::remove(*i, ignored);
}

void OutputFolder::MakeParents(const fs::path &folder) {
  std::error_code error;
  const fs::file_status status = fs::status(folder, error);
  if (fs::is_directory(status)) return;
  if (fs::exists(status)) throw SystemError(folder, "cannot be written", ENOTDIR);
  if (folder != folder.parent_path()) MakeParents(folder.parent_path());
  MakeFolder(folder);
  made_.push_back(folder);
}

fs::path OutputFolder::Place(const std::string &name) {
  if (std::find(names_.begin(), names_.end(), name) == names_.end()) names_.push_back(name);
  return temporary_ / name;
}

void OutputFolder::Publish(const std::string &index, const std::string &mark) {
  if (!existed_) {
    Move(temporary_, path_);
    temporary_.clear();
    return;
  }
  const bool ours = Contains(path_ / index, mark);
  for (const std::string &name : names_) {
    std::error_code error;
    const fs::file_status status = fs::symlink_status(path_ / name, error);
    if (fs::exists(status) && !(ours && fs::is_regular_file(status))) {
      throw Error((path_ / name).string() + ": is not from here, so it is not replaced");
    }
  }
  for (const std::string &name : names_) {
    if (name != index) Move(temporary_ / name, path_ / name);
  }
  Move(temporary_ / index, path_ / index);
}

}  // namespace brisal::tools
