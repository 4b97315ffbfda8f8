#pragma once

#include "brisal/brisal.h"

namespace brisal {

// Whether an opaque pixel of the image lies on the filled shape, or where both images are opaque.
// Contacts of a single pixel in a row do not count, nor does the last entry of a plain list or, of two
// textured ones, the last row.
bool FilledMeetsTextured(const BRSL_CollisionSpans &filled, const BRSL_TexturedSpans &textured);
bool TexturedMeetsTextured(const BRSL_TexturedSpans &a, const BRSL_TexturedSpans &b);

}  // namespace brisal
