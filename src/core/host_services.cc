#include "core/host_services.h"

#include <cstddef>

namespace brisal {
namespace {

// Each group is as many addresses as hosts write.
template <class Group>
constexpr bool HasEntries(size_t count) {
  return sizeof(Group) == count * sizeof(void *);
}

static_assert(HasEntries<BRSL_MemoryServices>(5) && HasEntries<BRSL_BlockServices>(19) &&
              HasEntries<BRSL_StringServices>(50) && HasEntries<BRSL_FileServices>(25));
static_assert(offsetof(BRSL_HostRecord, memory) == 800 && offsetof(BRSL_HostRecord, block) == 880 &&
              offsetof(BRSL_HostRecord, string) == 1200 && offsetof(BRSL_HostRecord, file) == 1600);

// Where an entry stands in its group.
#define BRISAL_ENTRY(Group, name) (offsetof(Group, name) / sizeof(void *))
static_assert(BRISAL_ENTRY(BRSL_MemoryServices, FreeMemory) == 2 &&
              BRISAL_ENTRY(BRSL_MemoryServices, FreeMemoryAddress) == 3);
static_assert(BRISAL_ENTRY(BRSL_BlockServices, MemoryAddress) == 1 &&
              BRISAL_ENTRY(BRSL_BlockServices, MemorySize) == 2 &&
              BRISAL_ENTRY(BRSL_BlockServices, CopyMemoryBlock) == 7 &&
              BRISAL_ENTRY(BRSL_BlockServices, PokeLong) == 15);
static_assert(BRISAL_ENTRY(BRSL_StringServices, PokeBytes) == 2 &&
              BRISAL_ENTRY(BRSL_StringServices, CompareStrings) == 44);
static_assert(BRISAL_ENTRY(BRSL_FileServices, OpenFileRead) == 1 &&
              BRISAL_ENTRY(BRSL_FileServices, CloseFile) == 3 &&
              BRISAL_ENTRY(BRSL_FileServices, FilePos) == 5 &&
              BRISAL_ENTRY(BRSL_FileServices, SeekFile) == 6 &&
              BRISAL_ENTRY(BRSL_FileServices, ReadWord) == 10 &&
              BRISAL_ENTRY(BRSL_FileServices, ReadLong) == 11 &&
              BRISAL_ENTRY(BRSL_FileServices, ReadToBuffer) == 14 &&
              BRISAL_ENTRY(BRSL_FileServices, ReadToMemory) == 15 &&
              BRISAL_ENTRY(BRSL_FileServices, WriteWord) == 19 &&
              BRISAL_ENTRY(BRSL_FileServices, WriteLong) == 20 &&
              BRISAL_ENTRY(BRSL_FileServices, WriteMemory) == 24);
#undef BRISAL_ENTRY

}  // namespace

void HostServices::Retrieve(const BRSL_HostRecord &record) {
  memory = record.memory.call;
  block = record.block.call;
  string = record.string.call;
  file = record.file.call;
  present = true;
}

uintptr_t HostServices::Allocate(int64_t size) const {
  return 0 <= size && size <= INT32_MAX ? memory.AllocMemory(static_cast<int32_t>(size)) : 0;
}

void *HostServices::AllocateAt(int64_t size) const { return AddressOf(Allocate(size)); }

uint8_t *HostServices::AddressOf(uintptr_t handle) const {
  return reinterpret_cast<uint8_t *>(block.MemoryAddress(handle));
}

}  // namespace brisal
