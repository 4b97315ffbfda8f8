#include "digest/digest.h"

#include <fstream>

namespace digest {
namespace {

uint64_t Fold(uint64_t hash, uint64_t value) { return (hash ^ value) * 0x100000001B3; }

}  // namespace

uint64_t OfCase(Family family, uint64_t number, Drawer draw) {
  std::vector<uint32_t> results;
  const Scene scene = draw(RandomCase(family, number), results);
  uint64_t hash = 0xCBF29CE484222325;
  for (const Picture *picture : {&scene.target, &scene.source, &scene.blendSource}) {
    for (uint8_t byte : picture->Bytes()) hash = Fold(hash, byte);
  }
  for (uint32_t result : results) hash = Fold(hash, result);
  return hash;
}

uint64_t OfFamily(Family family, Drawer draw) {
  uint64_t hash = 0xCBF29CE484222325;
  for (uint64_t number = 0; number < kCases; number++) {
    hash = Fold(hash, OfCase(family, number, draw));
  }
  return hash;
}

uint64_t Expected(const std::string &file, Family family) {
  std::ifstream in(file);
  std::string name;
  uint64_t checksum = 0;
  while (in >> name >> std::hex >> checksum) {
    if (name == kFamilyNames[static_cast<int>(family)]) return checksum;
  }
  return 0;
}

}  // namespace digest
