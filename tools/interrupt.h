#pragma once

namespace brisal::tools {

// From here on an interrupt from the keyboard is only noted, so that work in hand can tidy up.
void CatchInterrupts();

// Throws Error once an interrupt was noted.
void StopIfInterrupted();

}  // namespace brisal::tools
