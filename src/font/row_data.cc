#include "font/row_data.h"

#include <algorithm>

namespace brisal {

RowData::RowData(const HostServices &services, int32_t rows)
    : services_(services),
      rows_(rows),
      table_(services, services.Allocate((int64_t{rows} + 1) * sizeof(uintptr_t))),
      entries_(reinterpret_cast<uintptr_t *>(table_.Address())),
      combined_(services, 0) {}

RowData::~RowData() {
  for (int32_t row = placed_; entries_ != nullptr && row < rows_; ++row) {
    const HostBlock unplaced(services_, entries_[row]);
  }
}

uint8_t *RowData::Add(int32_t row, int64_t bytes) {
  entries_[row] = services_.Allocate(bytes);
  return services_.AddressOf(entries_[row]);
}

bool RowData::Combine() {
  int64_t total = 0;
  int32_t longest = 0;
  for (int32_t row = 0; row < rows_; ++row) {
    const int32_t size = entries_[row] != 0 ? services_.block.MemorySize(entries_[row]) : 0;
    total += size;
    longest = std::max(longest, size);
  }
  const HostBlock room(services_, total > 0 ? services_.Allocate(total + total / 2) : 0);
  if (total > 0 && room.Address() == nullptr) return false;
  FirstMatch match(static_cast<size_t>(longest));
  for (; placed_ < rows_; ++placed_) {
    entries_[placed_] = static_cast<uintptr_t>(Place(entries_[placed_], match, room));
  }
  if (bytes_ == 0) return true;
  combined_.Take(services_.Allocate(bytes_));
  if (combined_.Address() == nullptr) return false;
  services_.block.CopyMemoryBlock(room.Handle(), 0, bytes_, combined_.Handle(), 0);
  return true;
}

// The offset of a row's data, which is put behind the others unless they hold it somewhere. The very
// last byte written so far is not searched.
int32_t RowData::Place(uintptr_t handle, FirstMatch &match, const HostBlock &room) {
  if (handle == 0) return kNone;
  const HostBlock row(services_, handle);
  const int32_t size = services_.block.MemorySize(handle);
  const size_t searched = bytes_ > 0 ? static_cast<size_t>(bytes_ - 1) : 0;
  const ptrdiff_t found =
      match.Find(room.Address(), searched, row.Address(), static_cast<size_t>(size));
  if (found >= 0) return static_cast<int32_t>(found);
  services_.block.CopyMemoryBlock(handle, 0, size, room.Handle(), bytes_);
  const int32_t offset = bytes_;
  bytes_ += size;
  return offset;
}

}  // namespace brisal
