// What the drawing calls must never do: touch memory outside their rows, or allocate.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>

#include "support/cases.h"
#include "support/sanitizers.h"
#include "support/switch_states.h"

namespace {

constexpr int32_t kLongest = 70;

// Readable memory between two pages that nobody may touch.
class FencedPage {
 public:
  FencedPage() : size_(static_cast<size_t>(sysconf(_SC_PAGESIZE))) {
    memory_ = mmap(nullptr, 3 * size_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory_ == MAP_FAILED) std::abort();
    mprotect(Begin(), size_, PROT_READ | PROT_WRITE);
  }
  ~FencedPage() { munmap(memory_, 3 * size_); }
  FencedPage(const FencedPage &) = delete;
  FencedPage &operator=(const FencedPage &) = delete;

  uint8_t *Begin() const { return static_cast<uint8_t *>(memory_) + size_; }
  uint8_t *End() const { return Begin() + size_; }

 private:
  size_t size_;
  void *memory_;
};

void DrawEverywhere(int32_t length, int32_t mode) {
  BRSL_Box(0, 0, length, 1, 0x80123456, BRSL_FILLED | mode);
  BRSL_DrawStrip(0, 0, length, 0x4321, mode);
  BRSL_ShadeBox(0, 0, length, 1, 0x102030, 0xF0E0D0, 0x405060, 0x708090, mode);
  BRSL_Box(0, 0, length - 1, 0, 0x80123456, BRSL_OUTLINE | mode);
  for (int32_t x = 0; x < length; x++) BRSL_FastPoint(x, 0);
}

TEST(Fences, NothingBeforeOrAfterARowIsTouched) {
  FencedPage page;
  for (int32_t state : SwitchStates()) {
    BRSL_SetMMXState(state);
    for (int32_t format = 1; format <= 5; format++) {
      for (int32_t length = 1; length <= kLongest; length++) {
        const int32_t bytes = length * kFormatBytes[format];
        for (uint8_t *row : {page.Begin(), page.End() - bytes}) {
          BRSL_SetBuffer(row, bytes, format);
          BRSL_SetBufferViewPort(0, 0, length, 1);
          BRSL_SetInkAlpha(100);
          for (int32_t mode = 0; mode <= DRAW_REVSUB; mode = mode ? mode * 2 : 16) {
            DrawEverywhere(length, mode);
          }
        }
      }
    }
  }
}

TEST(Fences, MemoryFunctionsKeepToTheirBytes) {
  FencedPage source, target;
  for (int32_t bytes = 1; bytes <= 300; bytes++) {
    (CopyMemory)(source.End() - bytes, target.Begin(), bytes);
    (CopyMemory)(source.Begin(), target.End() - bytes, bytes);
    CompareBytes(source.End() - bytes, target.End() - bytes, bytes);
    for (int32_t size = 1; size <= 4; size++) {
      (FillMemory)(target.End() - bytes / size * size, bytes / size, 0x12345678, size);
      (FillMemory)(target.Begin(), bytes / size, 0x12345678, size);
      BRSL_FindRunLength(target.End() - bytes / size * size, 1, bytes / size, size, 0);
    }
  }
}

}  // namespace

#if !BRISAL_SANITIZED && defined(__GLIBC__)

static bool counting = false;
static int allocations = 0;

extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *block, size_t size);

void *malloc(size_t size) {
  allocations += counting;
  return __libc_malloc(size);
}
void *calloc(size_t count, size_t size) {
  allocations += counting;
  return __libc_calloc(count, size);
}
void *realloc(void *block, size_t size) {
  allocations += counting;
  return __libc_realloc(block, size);
}
}

TEST(Allocation, OnlyWhileTheViewportGrows) {
  counting = true;
  void *volatile block = std::malloc(1);
  std::free(block);
  EXPECT_EQ(allocations, 1) << "the counter works";
  for (int round = 0; round < 2; round++) {
    for (int family = 0; family < kFamilyCount; family++) {
      for (uint64_t seed = 0; seed < 300; seed++) {
        counting = false;
        const Case c = RandomCase(static_cast<Family>(family), seed);
        Picture picture(c.layout);
        allocations = 0;
        counting = round == 1;
        Target(picture);
        for (const Call &call : c.calls) call.function->library(picture, call.args);
        counting = false;
        ASSERT_EQ(allocations, 0) << Describe(c);
      }
    }
  }
}

#endif
