#pragma once

#include <string>

namespace brisal::tools {

// Such as "0.1.0".
std::string Version();

// The instruction set that the library's inner loops use now, "avx512", "avx2" or "plain".
std::string InstructionSet();

// Prints what the library is and can do here.
void PrintInfo();

}  // namespace brisal::tools
