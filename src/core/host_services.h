#pragma once

#include <cstdint>

#include "brisal/brisal.h"

namespace brisal {

// The host's functions, copied from its record. Fonts live in the host's memory and files.
struct HostServices {
  BRSL_MemoryServices memory = {};
  BRSL_BlockServices block = {};
  BRSL_StringServices string = {};
  BRSL_FileServices file = {};
  bool present = false;

  void Retrieve(const BRSL_HostRecord &record);

  // A zero-filled block, 0 where there is no memory or a size that the service cannot be asked for.
  uintptr_t Allocate(int64_t size) const;
  // The address of such a block.
  void *AllocateAt(int64_t size) const;
  uint8_t *AddressOf(uintptr_t handle) const;
};

// A block or text buffer of the host, released with its owner. Handle 0 is none.
class HostBlock {
 public:
  HostBlock(const HostServices &services, uintptr_t handle)
      : services_(services), handle_(handle) {}
  ~HostBlock() {
    if (handle_ != 0) services_.memory.FreeMemory(handle_);
  }
  HostBlock(const HostBlock &) = delete;
  HostBlock &operator=(const HostBlock &) = delete;

  uintptr_t Handle() const { return handle_; }
  uint8_t *Address() const { return services_.AddressOf(handle_); }

  // Owns another block, after none.
  void Take(uintptr_t handle) { handle_ = handle; }

 private:
  const HostServices &services_;
  uintptr_t handle_;
};

}  // namespace brisal
