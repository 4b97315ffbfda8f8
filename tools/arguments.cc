#include "tools/arguments.h"

#include <cstdio>
#include <iterator>

#include "host/error.h"

namespace brisal::tools {

namespace {

constexpr int32_t kMaxSide = 16384;
constexpr int64_t kMaxPixels = int64_t{64} << 20;

FormatInfo FindFormat(const std::string &text, const std::string &others) {
  for (const FormatInfo &format : kFormats) {
    if (text == format.name) return format;
  }
  throw host::Error("--format: '" + text + "' is not one of 565, 555, rgb, x32, a32" + others);
}

}  // namespace

Size ParseSize(const std::string &text) {
  Size size{};
  int used = 0;
  char after = 0;
  if (text.size() > 11 || text.find_first_not_of("0123456789x") != std::string::npos ||
      std::sscanf(text.c_str(), "%5dx%5d%n%c", &size.width, &size.height, &used, &after) != 2 ||
      static_cast<size_t>(used) != text.size()) {
    throw host::Error("--size: '" + text + "' is not WIDTHxHEIGHT, such as 640x480");
  }
  if (size.width < 1 || size.height < 1) {
    throw host::Error("--size: a picture of " + text + " has no pixels");
  }
  if (size.width > kMaxSide || size.height > kMaxSide ||
      int64_t{size.width} * size.height > kMaxPixels) {
    throw host::Error("--size: " + text + " is too large (at most " + std::to_string(kMaxSide) +
                      " a side and " + std::to_string(kMaxPixels >> 20) + " megapixels)");
  }
  return size;
}

FormatInfo ParseFormat(const std::string &text) { return FindFormat(text, ""); }

std::vector<FormatInfo> ParseFormats(const std::string &text) {
  if (text == "all") return {std::begin(kFormats), std::end(kFormats)};
  return {FindFormat(text, ", all")};
}

}  // namespace brisal::tools
