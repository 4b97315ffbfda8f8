#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>

#include "tools/font/characters.h"

namespace brisal::tools {

// A file of scalable outlines, such as a TrueType font, set to a size. Each function throws an Error
// that names the file.
class Outlines {
 public:
  static constexpr int32_t kSmallest = 4;
  static constexpr int32_t kLargest = 512;

  // size: pixels of the em square. solid: pixels are covered or not, with nothing between.
  Outlines(const std::filesystem::path &path, int32_t size, bool solid);
  ~Outlines();
  Outlines(const Outlines &) = delete;
  Outlines &operator=(const Outlines &) = delete;

  // Rows above and below the baseline that a line of text needs.
  int32_t Ascent() const;
  int32_t Descent() const;

  // None where the font has no such character.
  std::optional<DrawnCharacter> Draw(char32_t codePoint) const;

 private:
  struct Library;

  std::filesystem::path path_;
  bool solid_;
  std::unique_ptr<Library> library_;
};

}  // namespace brisal::tools
