#pragma once

#include <CLI/CLI.hpp>

namespace brisal::tools {

void AddFont(CLI::App &app);

}  // namespace brisal::tools
