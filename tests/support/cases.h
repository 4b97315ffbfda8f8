// Random cases: a buffer of random shape and a few calls of one family, the same for a seed
// everywhere.
#pragma once

#include "support/calls.h"

Case RandomCase(Family family, uint64_t seed);
