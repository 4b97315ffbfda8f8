// A host that keeps memory, texts and files of its own, and writes down what is asked of it.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "brisal/brisal.h"

// Addresses are put down as block and offset, so that the records of two hosts compare.
struct HostCall {
  const char *service;
  std::array<int64_t, 5> arguments;
  bool operator==(const HostCall &) const = default;
};

class RecordingHost {
 public:
  RecordingHost();

  // Has the services of the record work on this host.
  void Activate();
  static const BRSL_HostRecord &Record();

  // What the caller of a font function does with its host's memory and files; not put down.
  uint8_t *NewBlock(const std::vector<uint8_t> &bytes);
  void DropBlock(const void *address);
  std::vector<uint8_t> BytesOf(uintptr_t handle) const;
  std::vector<uint8_t> Take(uintptr_t handle);    // releases the block
  uintptr_t HandleOf(const void *address) const;  // 0 outside any block
  int LiveBlocks() const;
  uintptr_t Open(const std::string &name);

  std::vector<HostCall> calls;
  int failingAllocation = 0;  // counted from the next on; 0 for none
  int mistakes = 0;           // blocks released twice, files that are not open, and the like
  std::map<std::string, std::vector<uint8_t>> files;
  std::vector<int32_t> positions;  // of the files opened, by their number less one

 private:
  friend struct Services;
  struct Block {
    std::vector<uint8_t> bytes;
    bool live;
  };

  void Put(const char *service, std::array<int64_t, 5> arguments) {
    calls.push_back({service, arguments});
  }
  int64_t Place(uintptr_t address) const;
  uintptr_t Allocate(int32_t size);
  void Free(uintptr_t handle);
  Block *Find(uintptr_t handle);
  void Transfer(uintptr_t file, int32_t position, uint8_t *into, const uint8_t *from, int32_t size);

  std::vector<Block> blocks_;
  std::vector<std::string> open_;
};

// The names that files go by; the last one opens for nobody.
inline constexpr const char *kFileNames[] = {"first", "second", "locked"};
