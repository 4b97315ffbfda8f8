#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tools/gallery/scene.h"

namespace brisal::tools {

struct Shot {
  std::string file;
  std::string caption;
  int32_t width;
  int32_t height;
};

// Pictures that belong side by side.
struct Group {
  std::string caption;
  std::vector<Shot> shots;
};

// A scene as drawn: one group with a shot for each format or, where the scene has variants, a group
// for each format with a shot for each variant. The lead format is the last.
struct Section {
  const Scene *scene;
  std::string code;
  std::vector<Group> groups;
};

// Stands in every page of this tool and tells them from other pages.
inline constexpr const char *kPageMark = "<meta name=\"generator\" content=\"brisal gallery\">";

// The page for pictures of width x height. It needs nothing but the picture files beside it.
std::string Page(const std::vector<Section> &sections, int32_t width, int32_t height);

// The page's style sheet.
const char *PageStyle();

}  // namespace brisal::tools
