#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace brisal {

// A code for each of a font's blocks. Key::Hash and Key::Same say which blocks are one. Lives in
// scratch memory of the C library; HasRoom tells whether there was any.
template <class Key>
class BlockMap {
 public:
  explicit BlockMap(int32_t count) {
    while (mask_ < 2 * static_cast<uint32_t>(count)) mask_ = 2 * mask_ + 1;
    slots_ = static_cast<Slot *>(std::calloc(mask_ + size_t{1}, sizeof(Slot)));
  }
  ~BlockMap() { std::free(slots_); }
  BlockMap(const BlockMap &) = delete;
  BlockMap &operator=(const BlockMap &) = delete;

  bool HasRoom() const { return slots_ != nullptr; }

  // The code kept with a block, 0 at first.
  int32_t &At(const uint8_t *block) {
    const uint32_t hash = Key::Hash(block);
    uint32_t i = hash & mask_;
    while (slots_[i].block != nullptr) {
      if (slots_[i].hash == hash && Key::Same(slots_[i].block, block)) return slots_[i].code;
      i = (i + 1) & mask_;
    }
    slots_[i] = {block, hash, 0};
    return slots_[i].code;
  }

 private:
  struct Slot {
    const uint8_t *block;
    uint32_t hash;
    int32_t code;
  };

  uint32_t mask_ = 15;
  Slot *slots_;
};

// Blocks at one address.
struct SameAddress {
  static uint32_t Hash(const uint8_t *block) {
    return static_cast<uint32_t>(
        reinterpret_cast<uintptr_t>(block) * UINT64_C(0x9E3779B97F4A7C15) >> 32);
  }
  static bool Same(const uint8_t *a, const uint8_t *b) { return a == b; }
};

}  // namespace brisal
