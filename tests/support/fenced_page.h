#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#ifdef _WIN32
#include <windows.h>
#undef CopyMemory
#undef FillMemory
#else
#include <sys/mman.h>
#include <unistd.h>
#endif

// Readable memory between two pages that nobody may touch.
class FencedPage {
 public:
  FencedPage() : size_(PageSize()), memory_(Reserve(3 * size_)) {
    if (memory_ == nullptr) std::abort();
    Open(Begin(), size_);
  }
  ~FencedPage() { Release(memory_, 3 * size_); }
  FencedPage(const FencedPage &) = delete;
  FencedPage &operator=(const FencedPage &) = delete;

  uint8_t *Begin() const { return static_cast<uint8_t *>(memory_) + size_; }
  uint8_t *End() const { return Begin() + size_; }

 private:
#ifdef _WIN32
  static size_t PageSize() {
    SYSTEM_INFO system;
    GetSystemInfo(&system);
    return system.dwPageSize;
  }
  static void *Reserve(size_t size) {
    return VirtualAlloc(nullptr, size, MEM_RESERVE, PAGE_NOACCESS);
  }
  static void Open(void *page, size_t size) {
    if (VirtualAlloc(page, size, MEM_COMMIT, PAGE_READWRITE) == nullptr) std::abort();
  }
  static void Release(void *memory, size_t) { VirtualFree(memory, 0, MEM_RELEASE); }
#else
  static size_t PageSize() { return static_cast<size_t>(sysconf(_SC_PAGESIZE)); }
  static void *Reserve(size_t size) {
    void *const memory = mmap(nullptr, size, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return memory == MAP_FAILED ? nullptr : memory;
  }
  static void Open(void *page, size_t size) {
    if (mprotect(page, size, PROT_READ | PROT_WRITE) != 0) std::abort();
  }
  static void Release(void *memory, size_t size) { munmap(memory, size); }
#endif

  size_t size_;
  void *memory_;
};
