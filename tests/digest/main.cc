// brisal_digest                 checks every family on both sides of the MMX switch
// brisal_digest --update        writes the checksums down as expected
// brisal_digest --case FAMILY N [--switch 0|1] [--png FILE]
//                               draws one case, tells its checksum and keeps its picture
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>

#include "brisal/brisal.h"
#include "digest/digest.h"
#include "support/switch_states.h"

#if BRISAL_DIGEST_PNG
#include "host/png.h"
#endif

namespace {

int Check() {
  int differing = 0;
  for (int f = 0; f < kFamilyCount; f++) {
    if (!digest::IsComparable(static_cast<Family>(f))) {
      std::printf("%-17s left out: its bits are those of x86\n", kFamilyNames[f]);
      continue;
    }
    for (int32_t state : SwitchStates()) {
      BRSL_SetMMXState(state);
      const auto family = static_cast<Family>(f);
      const bool same = digest::OfFamily(family, DrawWithLibrary) ==
                        digest::Expected(BRISAL_DIGEST_EXPECTED, family);
      std::printf("%-17s switch %d  %s\n", kFamilyNames[f], state, same ? "ok" : "DIFFERS");
      differing += !same;
    }
  }
  return differing ? 1 : 0;
}

int Update() {
  std::ofstream out(BRISAL_DIGEST_EXPECTED);
  for (int f = 0; f < kFamilyCount; f++) {
    const auto family = static_cast<Family>(f);
    out << kFamilyNames[f] << " " << std::hex << digest::OfFamily(family, DrawWithLibrary) << "\n";
  }
  return out.good() ? 0 : 1;
}

void WritePicture(const char *file, Picture &picture) {
  const Layout &layout = picture.layout();
#if BRISAL_DIGEST_PNG
  brisal::host::Image image(layout.width, layout.height, BRSL_FORMAT_X32);
  for (int32_t y = 0; y < layout.height; y++) {
    for (int32_t x = 0; x < layout.width; x++) image.Set(x, y, picture.ColourAt(x, y));
  }
  brisal::host::WritePng(file, image);
#else
  std::ofstream out(file, std::ios::binary);
  out << "P6 " << layout.width << " " << layout.height << " 255\n";
  for (int32_t y = 0; y < layout.height; y++) {
    for (int32_t x = 0; x < layout.width; x++) {
      const uint32_t colour = picture.ColourAt(x, y);
      for (int shift : {16, 8, 0}) out.put(static_cast<char>(colour >> shift));
    }
  }
#endif
}

int ShowCase(Family family, uint64_t number, const char *file) {
  const Case c = RandomCase(family, number);
  std::vector<uint32_t> results;
  Scene scene = DrawWithLibrary(c, results);
  Scene expected = DrawWithReference(c, results);
  const std::string difference = Difference(scene, expected);
  std::printf("%s\nchecksum %016llx, %s\n", Describe(c).c_str(),
              static_cast<unsigned long long>(digest::OfCase(family, number, DrawWithLibrary)),
              difference.empty() ? "as the reference draws it" : difference.c_str());
  if (file) WritePicture(file, scene.target);
  return difference.empty() ? 0 : 1;
}

int Usage() {
  std::puts("brisal_digest [--update | --case FAMILY N [--switch 0|1] [--png FILE]]\nfamilies:");
  for (const char *name : kFamilyNames) std::printf("  %s\n", name);
  return 2;
}

}  // namespace

int main(int argc, char **argv) {
  BRSL_Init_Lib();
  if (argc == 1) return Check();
  if (argc == 2 && !std::strcmp(argv[1], "--update")) return Update();
  if (argc < 4 || argc % 2 || std::strcmp(argv[1], "--case")) return Usage();
  const char *file = nullptr;
  for (int i = 4; i < argc; i += 2) {
    if (!std::strcmp(argv[i], "--switch")) BRSL_SetMMXState(std::atoi(argv[i + 1]));
    if (!std::strcmp(argv[i], "--png")) file = argv[i + 1];
  }
  for (int f = 0; f < kFamilyCount; f++) {
    if (!std::strcmp(argv[2], kFamilyNames[f])) {
      return ShowCase(static_cast<Family>(f), std::strtoull(argv[3], nullptr, 10), file);
    }
  }
  return Usage();
}
