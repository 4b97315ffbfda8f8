// Where the records have their fields that programs in other languages read. They are laid out for
// addresses of 32 bits; wider ones move what follows them.
#include <cstddef>

#include "brisal/brisal.h"

#define AT(record, field, byte) static_assert(offsetof(record, field) == (byte))

namespace {

constexpr size_t kAddress = sizeof(void *);

AT(BRSL_SurfaceDesc, format, 0);
AT(BRSL_SurfaceDesc, address, kAddress);
AT(BRSL_SurfaceDesc, pitch, 2 * kAddress);
AT(BRSL_SurfaceDesc, pitchShift, 2 * kAddress + 4);
AT(BRSL_SurfaceDesc, width, 2 * kAddress + 8);
AT(BRSL_SurfaceDesc, height, 2 * kAddress + 12);
AT(BRSL_SurfaceDesc, maskColour, 2 * kAddress + 16);
AT(BRSL_SurfaceDesc, viewLeft, 2 * kAddress + 20);
AT(BRSL_SurfaceDesc, viewTop, 2 * kAddress + 24);
AT(BRSL_SurfaceDesc, viewRight, 2 * kAddress + 28);
AT(BRSL_SurfaceDesc, viewBottom, 2 * kAddress + 32);
static_assert(sizeof(BRSL_SurfaceDesc) == (kAddress == 4 ? 44 : 56));

AT(TPD_TexelEffect, input, 4);
AT(TPD_TexelEffect, a, 12);
static_assert(sizeof(TPD_TexelEffect) == 28);

AT(TPD_Pipeline, filterFlag, 4);
AT(TPD_Pipeline, maskCompression, 8);
AT(TPD_Pipeline, effectCount, 12);
AT(TPD_Pipeline, effects, 16);
AT(TPD_Pipeline, outputEffect, 912);
AT(TPD_Pipeline, outputArgument, 916);
AT(TPD_Pipeline, outputLevel, 920);
AT(TPD_Pipeline, gouraudState, 924);
static_assert(sizeof(TPD_Pipeline) == 928);

}  // namespace
