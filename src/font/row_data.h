#pragma once

#include <cstdint>

#include "core/host_services.h"
#include "font/first_match.h"

namespace brisal {

// The pixels, or the run lists, of a glyph's rows: a block of the host's memory for each row at first;
// then all in one block, in which rows share what is the same.
class RowData {
 public:
  static constexpr int32_t kNone = -1;  // the offset of a row that has no data

  RowData(const HostServices &services, int32_t rows);
  ~RowData();
  RowData(const RowData &) = delete;
  RowData &operator=(const RowData &) = delete;

  bool HasTable() const { return entries_ != nullptr; }

  // Room for a row's data; null when the host has no memory.
  uint8_t *Add(int32_t row, int64_t bytes);

  // False when the host has no memory.
  bool Combine();

  // Of the combined data:
  int32_t Bytes() const { return bytes_; }
  uintptr_t Handle() const { return combined_.Handle(); }
  const uint8_t *Address() const { return combined_.Address(); }
  int32_t Offset(int32_t row) const { return static_cast<int32_t>(entries_[row]); }

  void Drop() { bytes_ = 0; }

 private:
  int32_t Place(uintptr_t handle, FirstMatch &match, const HostBlock &room);

  const HostServices &services_;
  int32_t rows_;
  HostBlock table_;
  uintptr_t *entries_;  // a row's block, replaced by the row's offset once it is placed
  int32_t placed_ = 0;
  HostBlock combined_;
  int32_t bytes_ = 0;
};

}  // namespace brisal
