#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

namespace brisal::tools {

// A character as drawn from its outline. Pixels are intensities, row after row.
struct DrawnCharacter {
  int32_t left;  // columns from the pen to the first pixel
  int32_t top;   // rows from the baseline up to the first pixel's upper edge
  int32_t width;
  int32_t height;
  int32_t advance;
  std::vector<uint8_t> pixels;
};

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
