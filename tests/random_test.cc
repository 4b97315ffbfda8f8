// Random calls of every function against the reference, byte for byte over the whole allocation.
#include <gtest/gtest.h>

#include <cstdlib>

#include "digest/digest.h"
#include "support/cases.h"
#include "support/sanitizers.h"
#include "support/switch_states.h"

namespace {

constexpr uint64_t kFirstSeed = 1 << 20;  // beyond the digest's stream

class RandomCalls : public testing::TestWithParam<int> {
 protected:
  Family family() const { return static_cast<Family>(GetParam()); }
};

TEST_P(RandomCalls, EqualTheReference) {
  const int count = Scaled(25000);
  const std::vector<int32_t> states = SwitchStates();
  for (uint64_t seed = kFirstSeed; seed < kFirstSeed + count; seed++) {
    const Case c = RandomCase(family(), seed);
    std::vector<uint32_t> expectedResults;
    Scene expected = DrawWithReference(c, expectedResults);
    for (int32_t state : states) {
      BRSL_SetMMXState(state);
      std::vector<uint32_t> results;
      Scene actual = DrawWithLibrary(c, results);
      ASSERT_EQ(Difference(actual, expected), "")
          << "seed " << seed << ", switch " << state << ", " << Describe(c);
      ASSERT_EQ(results, expectedResults)
          << "seed " << seed << ", switch " << state << ", " << Describe(c);
    }
  }
}

// The committed checksums come from the definition, not from the library.
TEST_P(RandomCalls, DigestOfTheReferenceIsTheCommittedOne) {
  if (BRISAL_SANITIZED) GTEST_SKIP() << "the same in every build";
  if (!digest::IsComparable(family())) GTEST_SKIP() << "its bits are those of x86";
  EXPECT_EQ(digest::OfFamily(family(), DrawWithReference),
            digest::Expected(BRISAL_DIGEST_EXPECTED, family()));
}

INSTANTIATE_TEST_SUITE_P(Families, RandomCalls, testing::Range(0, kFamilyCount),
                         [](const auto &family) {
                           std::string name = kFamilyNames[family.param];
                           std::erase(name, '-');
                           return name;
                         });

}  // namespace
