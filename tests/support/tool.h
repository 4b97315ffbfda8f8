// Running the brisal tool, and looking at what it left.
#pragma once

#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "support/temporary_folder.h"

namespace brisal::test {

namespace fs = std::filesystem;

struct Outcome {
  int status;
  std::string text;  // standard output and error
};

// Runs a program in a folder; the arguments are a shell's.
inline Outcome RunIn(const TemporaryFolder &folder, const std::string &program,
                     const std::string &arguments) {
  const std::string command =
      "cd '" + folder.Path().string() + "' && " + program + " " + arguments + " 2>&1";
  FILE *pipe = popen(command.c_str(), "r");
  std::string text;
  for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) text += static_cast<char>(c);
  const int status = pclose(pipe);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, text};
}

inline Outcome RunTool(const TemporaryFolder &folder, const std::string &arguments) {
  return RunIn(folder, "'" BRISAL_TOOL "'", arguments);
}

inline std::string ReadText(const fs::path &path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

inline void WriteText(const fs::path &path, const std::string &text) {
  std::ofstream(path, std::ios::binary) << text;
}

// Everything in a folder and below.
inline std::set<std::string> Names(const fs::path &folder) {
  std::set<std::string> names;
  for (const auto &entry : fs::recursive_directory_iterator(folder)) {
    names.insert(fs::relative(entry.path(), folder).string());
  }
  return names;
}

}  // namespace brisal::test
