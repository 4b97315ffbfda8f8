#pragma once

#include "core/state.h"

namespace brisal {

// The state of the process. Only the exports know it.
extern State instance;

}  // namespace brisal
