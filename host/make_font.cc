#include <string>

#include "host/font.h"
#include "host/services.h"

namespace brisal::host {

Font MakeFont(int32_t count) {
  InstallServices();
  Font font(CRF_Alloc(count));
  if (!font) throw Error("no memory for a font of " + std::to_string(count) + " characters");
  return font;
}

}  // namespace brisal::host
