// What the library takes of the C library's memory, and what it does where there is none.
#include <cstdlib>  // and with it __GLIBC__

#include "support/sanitizers.h"

#if !BRISAL_SANITIZED && defined(__GLIBC__)

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "support/cases.h"

static bool counting = false;
static bool refusing = false;  // to the library alone; the tests and their host go on
static int allocations = 0;

static const void *BaseOf(const void *code) {
  Dl_info info = {};
  return dladdr(code, &info) ? info.dli_fbase : nullptr;
}

static const void *const library = BaseOf(dlsym(RTLD_DEFAULT, "BRSL_Init_Lib"));

static bool Gives(const void *caller) {
  allocations += counting;
  return !refusing || BaseOf(caller) != library;
}

extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *block, size_t size);

void *malloc(size_t size) {
  return Gives(__builtin_return_address(0)) ? __libc_malloc(size) : nullptr;
}
void *calloc(size_t count, size_t size) {
  return Gives(__builtin_return_address(0)) ? __libc_calloc(count, size) : nullptr;
}
void *realloc(void *block, size_t size) {
  return Gives(__builtin_return_address(0)) ? __libc_realloc(block, size) : nullptr;
}
}

namespace {

// The font functions work in memory of the host.
constexpr bool IsOfFonts(Family family) {
  return family == Family::kFonts || family == Family::kCompression;
}

// Each blur takes one block for its copy of the picture.
int Blurs(const Case &c) {
  const Function *blur = FunctionNamed("BRSL_FillRect_Blur");
  return static_cast<int>(std::count_if(c.calls.begin(), c.calls.end(),
                                        [&](const Call &call) { return call.function == blur; }));
}

TEST(Allocation, OnlyWhileTheViewportGrows) {
  counting = true;
  void *volatile block = std::malloc(1);
  std::free(block);
  EXPECT_EQ(allocations, 1) << "the counter works";
  for (int round = 0; round < 2; round++) {
    for (int family = 0; family < kFamilyCount; family++) {
      if (IsOfFonts(static_cast<Family>(family))) continue;
      for (uint64_t seed = 0; seed < 300; seed++) {
        counting = false;
        const Case c = RandomCase(static_cast<Family>(family), seed);
        Scene scene(c.layout, Painter::kLibrary);
        allocations = 0;
        counting = round == 1;
        scene.UseInLibrary();
        for (const Call &call : c.calls) call.function->library(scene, call.args);
        counting = false;
        ASSERT_LE(allocations, Blurs(c)) << Describe(c);
      }
    }
  }
}

class WithoutMemory : public testing::Test {
 protected:
  ~WithoutMemory() override { refusing = false; }

  // A shape that is too high for the library's records of spans has it drop them.
  static void RefuseFromTheFirst() {
    refusing = true;
    BRSL_SetBuffer(nullptr, 0, BRSL_FORMAT_X32);
    BRSL_SetBufferViewPort(0, 0, 1, INT32_MAX);
    BRSL_Circle(0, 0, INT32_MAX, 0, BRSL_FILLED);
  }
};

TEST_F(WithoutMemory, NothingIsMade) {
  refusing = true;
  EXPECT_EQ(TPD_Alloc(), nullptr);
  EXPECT_EQ(TPD_BuildSpriteDrawMode(1, 0, 0, 0), nullptr);
  EXPECT_EQ(BRSL_AllocSurfaceDesc(BRSL_FORMAT_X32, nullptr, 4, 1, 1), nullptr);
}

TEST_F(WithoutMemory, CallsDrawAllOrNothing) {
  int left = 0;
  for (int number = 0; number < kFamilyCount; number++) {
    const auto family = static_cast<Family>(number);
    if (IsOfFonts(family)) continue;
    for (uint64_t seed = 0; seed < 300; seed++) {
      const Case several = RandomCase(family, seed);
      const Case c = {several.layout, {several.calls.back()}};
      std::vector<uint32_t> results;
      Scene before = DrawWithLibrary({c.layout, {}}, results);
      Scene actual(c.layout, Painter::kLibrary);
      RefuseFromTheFirst();
      actual.UseInLibrary();
      c.calls[0].function->library(actual, c.calls[0].args);
      refusing = false;
      actual.Records();
      Scene all = DrawWithReference(c, results);
      const std::string difference = Difference(actual, all);
      left += !difference.empty();
      ASSERT_TRUE(difference.empty() || Difference(actual, before).empty())
          << difference << ", seed " << seed << ", " << Describe(c);
      Scene again = DrawWithLibrary(c, results);
      ASSERT_EQ(Difference(again, all), "") << "seed " << seed << ", " << Describe(c);
    }
  }
  EXPECT_GT(left, 100);
}

// Its memory serves the font functions for speed alone.
TEST_F(WithoutMemory, FontsAreAsWithIt) {
  for (const Family family : {Family::kFonts, Family::kCompression}) {
    for (uint64_t seed = 0; seed < 500; seed++) {
      const Case c = RandomCase(family, seed);
      std::vector<uint32_t> expectedResults, results;
      Scene expected = DrawWithReference(c, expectedResults);
      Scene actual(c.layout, Painter::kLibrary);
      actual.UseInLibrary();
      refusing = true;
      for (const Call &call : c.calls) {
        results.push_back(call.function->library(actual, call.args));
      }
      const std::vector<uint32_t> records = actual.Records();
      refusing = false;
      results.insert(results.end(), records.begin(), records.end());
      ASSERT_EQ(Difference(actual, expected), "") << "seed " << seed << ", " << Describe(c);
      ASSERT_EQ(results, expectedResults) << "seed " << seed << ", " << Describe(c);
    }
  }
}

}  // namespace

#endif
