// brisal_hash         prints the hash of the gallery
// brisal_hash FILE    compares it with the one that a file holds
#include <cstdio>
#include <exception>
#include <fstream>
#include <string>

#include "brisal/brisal.h"
#include "tools/gallery/hash.h"

namespace {

int Run(int argc, char **argv) {
  if (argc > 2) {
    std::fputs("usage: brisal_hash [FILE]\n", stderr);
    return 2;
  }
  BRSL_Init_Lib();
  const std::string hash = brisal::tools::GalleryHash();
  std::puts(hash.c_str());
  if (argc == 1) return 0;
  std::string expected;
  std::ifstream(argv[1]) >> expected;
  if (hash == expected) return 0;
  std::fprintf(stderr, "brisal_hash: %s has '%s'\n", argv[1], expected.c_str());
  return 1;
}

}  // namespace

int main(int argc, char **argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception &error) {
    std::fprintf(stderr, "brisal_hash: %s\n", error.what());
    return 1;
  }
}
