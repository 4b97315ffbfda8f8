#include "tools/font/raster.h"

#include <system_error>
#include <utility>

#include "tools/font/characters.h"
#include "tools/font/outlines.h"

namespace brisal::tools {

namespace fs = std::filesystem;

namespace {

Characters DrawAll(const Outlines &outlines, const CodePoints &codes) {
  Characters characters{{}, outlines.Ascent(), outlines.Descent()};
  for (size_t code = 0; code < codes.size(); code++) {
    if (codes[code] == 0) continue;
    if (auto character = outlines.Draw(codes[code])) {
      characters.byCode.emplace(static_cast<int32_t>(code), std::move(*character));
    }
  }
  return characters;
}

}  // namespace

host::Font RasterFont(const fs::path &path, const RasterOptions &options) {
  const Outlines outlines(path, options.size, options.solid);
  const Characters characters = DrawAll(outlines, options.codes);
  if (characters.byCode.empty()) throw host::Error(path.string() + ": has none of the characters");
  return FontOf(characters, static_cast<int32_t>(options.codes.size()), options.depth);
}

host::Font DejaVuFont(const RasterOptions &options) {
  constexpr const char *kPlaces[] = {
      "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",   "/usr/share/fonts/dejavu/DejaVuSans.ttf",
      "/usr/share/fonts/dejavu-sans-fonts/DejaVuSans.ttf", "/usr/share/fonts/TTF/DejaVuSans.ttf",
      "/usr/local/share/fonts/dejavu/DejaVuSans.ttf",      "/Library/Fonts/DejaVuSans.ttf",
  };
  std::error_code ignored;
  for (const char *place : kPlaces) {
    if (fs::exists(place, ignored)) return RasterFont(place, options);
  }
  throw host::Error(
      "DejaVuSans.ttf is nowhere on this machine (Debian has it in fonts-dejavu-core)");
}

}  // namespace brisal::tools
