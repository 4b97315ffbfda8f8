// Random calls of one family, by the numbers in the input, against the reference and its guard bytes.
#include <cstring>
#include <string>

#include "brisal/brisal.h"
#include "fuzz/check.h"
#include "support/cases.h"
#include "support/switch_states.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  static const bool ready = BRSL_Init_Lib() != 0;
  if (!ready || size < 1 + sizeof(uint64_t)) return -1;
  uint64_t seed;
  std::memcpy(&seed, data + 1, sizeof seed);
  const Case c = RandomCase(static_cast<Family>(data[0] % kFamilyCount), seed);
  std::vector<uint32_t> expectedResults;
  Scene expected = DrawWithReference(c, expectedResults);
  for (const int32_t state : SwitchStates()) {
    BRSL_SetMMXState(state);
    std::vector<uint32_t> results;
    Scene actual = DrawWithLibrary(c, results);
    const std::string difference = Difference(actual, expected);
    Check(difference.empty() && results == expectedResults,
          (difference + "\n" + Describe(c)).c_str());
  }
  return 0;
}
