#pragma once

#include <cstdint>

#include "font/font.h"

namespace brisal {

// Stores for each code, where the table still holds 0, the first code that has the same bitmap. Code
// 0 is never named, as 0 stands for none.
void FindDuplicates(const Font &font, int32_t *table);

}  // namespace brisal
