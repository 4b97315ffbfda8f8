#pragma once

#include <CLI/CLI.hpp>

namespace brisal::tools {

void AddAnimate(CLI::App &app);

}  // namespace brisal::tools
