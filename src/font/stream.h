#pragma once

#include <cstdint>

#include "font/font.h"

namespace brisal {

// At the file's current position, and behind the stream afterwards.
void WriteFont(const HostServices &services, const Font &font, uintptr_t file);

// Null for what is no font, which leaves the file where it was; for one of another version or with a
// number of characters that no font has, which leaves it behind the header; for a cut or damaged one;
// and when the host has no memory.
Font *ReadFont(const HostServices &services, uintptr_t file);

}  // namespace brisal
