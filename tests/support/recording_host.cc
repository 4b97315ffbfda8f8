#include "support/recording_host.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

RecordingHost *active = nullptr;

}  // namespace

// The services; each puts itself down and forwards to the active host.
struct Services {
  static uintptr_t BRSL_CALL AllocMemory(int32_t size) {
    active->Put("AllocMemory", {size});
    return active->Allocate(size);
  }
  static void BRSL_CALL FreeMemory(uintptr_t block) {
    active->Put("FreeMemory", {static_cast<int64_t>(block)});
    active->Free(block);
  }
  static void BRSL_CALL FreeMemoryAddress(uintptr_t address) {
    active->Put("FreeMemoryAddress", {active->Place(address)});
    if (address) active->Free(active->HandleOf(reinterpret_cast<void *>(address)));
  }
  static uintptr_t BRSL_CALL MemoryAddress(uintptr_t block) {
    active->Put("MemoryAddress", {static_cast<int64_t>(block)});
    RecordingHost::Block *found = block ? active->Find(block) : nullptr;
    return found ? reinterpret_cast<uintptr_t>(found->bytes.data()) : 0;
  }
  static int32_t BRSL_CALL MemorySize(uintptr_t block) {
    active->Put("MemorySize", {static_cast<int64_t>(block)});
    const RecordingHost::Block *found = active->Find(block);
    return found ? static_cast<int32_t>(found->bytes.size()) : 0;
  }
  static void BRSL_CALL CopyMemoryBlock(uintptr_t source, int32_t sourceOffset, int32_t count,
                                        uintptr_t destination, int32_t destinationOffset) {
    active->Put("CopyMemoryBlock", {static_cast<int64_t>(source), sourceOffset, count,
                                    static_cast<int64_t>(destination), destinationOffset});
    const RecordingHost::Block *from = active->Find(source);
    RecordingHost::Block *to = active->Find(destination);
    if (!from || !to || !Fits(*from, sourceOffset, count) || !Fits(*to, destinationOffset, count)) {
      active->mistakes++;
      return;
    }
    std::copy_n(from->bytes.begin() + sourceOffset, count, to->bytes.begin() + destinationOffset);
  }
  static void BRSL_CALL PokeLong(uintptr_t block, int32_t offset, int32_t value) {
    active->Put("PokeLong", {static_cast<int64_t>(block), offset, value});
    RecordingHost::Block *to = active->Find(block);
    if (!to || !Fits(*to, offset, 4)) {
      active->mistakes++;
      return;
    }
    std::memcpy(&to->bytes[offset], &value, 4);
  }
  static uintptr_t BRSL_CALL AllocString(int32_t length) {
    active->Put("AllocString", {length});
    return active->Allocate(length);
  }
  static void BRSL_CALL PokeBytes(uintptr_t buffer, uintptr_t source, int32_t count) {
    active->Put("PokeBytes", {static_cast<int64_t>(buffer), count});
    RecordingHost::Block *to = active->Find(buffer);
    if (to) std::memcpy(to->bytes.data(), reinterpret_cast<void *>(source), count);
  }
  static int32_t BRSL_CALL CompareStrings(uintptr_t a, uintptr_t b) {
    active->Put("CompareStrings", {static_cast<int64_t>(a), static_cast<int64_t>(b)});
    const auto text = [](uintptr_t buffer) {
      const RecordingHost::Block *block = active->Find(buffer);
      return block ? reinterpret_cast<const char *>(block->bytes.data()) : "";
    };
    return std::strcmp(text(a), text(b)) == 0 ? 1 : 77;
  }
  static uintptr_t BRSL_CALL OpenFileRead(const void *name) {
    const int64_t number = NumberOf(name);
    active->Put("OpenFileRead", {number});
    const bool there = number >= 0 && active->files.count(kFileNames[number]);
    return there ? active->Open(kFileNames[number]) : 0;
  }
  static uintptr_t BRSL_CALL OpenFileWrite(const void *name) {
    const int64_t number = NumberOf(name);
    active->Put("OpenFileWrite", {number});
    if (number < 0 || number == std::size(kFileNames) - 1) return 0;
    active->files[kFileNames[number]].clear();
    return active->Open(kFileNames[number]);
  }
  static void BRSL_CALL CloseFile(uintptr_t file) {
    active->Put("CloseFile", {static_cast<int64_t>(file)});
  }
  static int32_t BRSL_CALL FilePos(uintptr_t file) {
    active->Put("FilePos", {static_cast<int64_t>(file)});
    return active->positions[file - 1];
  }
  static void BRSL_CALL SeekFile(uintptr_t file, int32_t position) {
    active->Put("SeekFile", {static_cast<int64_t>(file), position});
    active->positions[file - 1] = position;
  }
  static int32_t BRSL_CALL ReadWord(uintptr_t file, int32_t position) {
    uint8_t bytes[2] = {};
    Read("ReadWord", file, position, bytes, 2, 0);
    return bytes[0] | bytes[1] << 8;
  }
  static int32_t BRSL_CALL ReadLong(uintptr_t file, int32_t position) {
    int32_t value = 0;
    Read("ReadLong", file, position, &value, 4, 0);
    return value;
  }
  static void BRSL_CALL ReadToBuffer(uintptr_t file, int32_t position, uintptr_t buffer,
                                     int32_t count) {
    RecordingHost::Block *to = active->Find(buffer);
    if (!to || !Fits(*to, 0, count)) {
      active->mistakes++;
      return;
    }
    Read("ReadToBuffer", file, position, to->bytes.data(), count, static_cast<int64_t>(buffer));
  }
  static void BRSL_CALL ReadToMemory(uintptr_t file, int32_t position, uintptr_t address,
                                     int32_t count) {
    Read("ReadToMemory", file, position, reinterpret_cast<void *>(address), count,
         active->Place(address));
  }
  static void BRSL_CALL WriteWord(uintptr_t file, int32_t position, int32_t value) {
    Write("WriteWord", file, position, &value, 2, 0);
  }
  static void BRSL_CALL WriteLong(uintptr_t file, int32_t position, int32_t value) {
    Write("WriteLong", file, position, &value, 4, 0);
  }
  static void BRSL_CALL WriteMemory(uintptr_t file, int32_t position, uintptr_t start,
                                    uintptr_t end) {
    Write("WriteMemory", file, position, reinterpret_cast<void *>(start),
          static_cast<int32_t>(end - start), active->Place(start));
  }

 private:
  static bool Fits(const RecordingHost::Block &block, int32_t offset, int32_t count) {
    return offset >= 0 && count >= 0 && offset + int64_t{count} <= std::ssize(block.bytes);
  }
  static int64_t NumberOf(const void *name) {
    for (size_t i = 0; i < std::size(kFileNames); i++) {
      if (name && !std::strcmp(static_cast<const char *>(name), kFileNames[i])) {
        return static_cast<int64_t>(i);
      }
    }
    return -1;
  }
  static void Read(const char *service, uintptr_t file, int32_t position, void *into, int32_t size,
                   int64_t place) {
    active->Put(service, {static_cast<int64_t>(file), position, size, place});
    active->Transfer(file, position, static_cast<uint8_t *>(into), nullptr, size);
  }
  static void Write(const char *service, uintptr_t file, int32_t position, const void *from,
                    int32_t size, int64_t place) {
    active->Put(service, {static_cast<int64_t>(file), position, size, place});
    active->Transfer(file, position, nullptr, static_cast<const uint8_t *>(from), size);
  }
};

RecordingHost::RecordingHost() { Activate(); }

void RecordingHost::Activate() { active = this; }

const BRSL_HostRecord &RecordingHost::Record() {
  static const BRSL_HostRecord record = [] {
    BRSL_HostRecord r{};
    auto &memory = r.memory.call = {};
    memory.AllocMemory = Services::AllocMemory;
    memory.FreeMemory = Services::FreeMemory;
    memory.FreeMemoryAddress = Services::FreeMemoryAddress;
    auto &block = r.block.call = {};
    block.MemoryAddress = Services::MemoryAddress;
    block.MemorySize = Services::MemorySize;
    block.CopyMemoryBlock = Services::CopyMemoryBlock;
    block.PokeLong = Services::PokeLong;
    auto &string = r.string.call = {};
    string.AllocString = Services::AllocString;
    string.PokeBytes = Services::PokeBytes;
    string.CompareStrings = Services::CompareStrings;
    auto &file = r.file.call = {};
    file.OpenFileRead = Services::OpenFileRead;
    file.OpenFileWrite = Services::OpenFileWrite;
    file.CloseFile = Services::CloseFile;
    file.FilePos = Services::FilePos;
    file.SeekFile = Services::SeekFile;
    file.ReadWord = Services::ReadWord;
    file.ReadLong = Services::ReadLong;
    file.ReadToBuffer = Services::ReadToBuffer;
    file.ReadToMemory = Services::ReadToMemory;
    file.WriteWord = Services::WriteWord;
    file.WriteLong = Services::WriteLong;
    file.WriteMemory = Services::WriteMemory;
    return r;
  }();
  return record;
}

uintptr_t RecordingHost::Allocate(int32_t size) {
  if (size < 0 || (failingAllocation > 0 && --failingAllocation == 0)) return 0;
  blocks_.push_back({std::vector<uint8_t>(static_cast<size_t>(size)), true});
  blocks_.back().bytes.reserve(1);
  return blocks_.size();
}

void RecordingHost::Free(uintptr_t handle) {
  Block *block = Find(handle);
  if (!block) return;
  *block = {{}, false};
  block->bytes.shrink_to_fit();
}

RecordingHost::Block *RecordingHost::Find(uintptr_t handle) {
  if (handle >= 1 && handle <= blocks_.size() && blocks_[handle - 1].live) {
    return &blocks_[handle - 1];
  }
  mistakes++;
  return nullptr;
}

int64_t RecordingHost::Place(uintptr_t address) const {
  if (address == 0) return 0;
  const uintptr_t handle = HandleOf(reinterpret_cast<void *>(address));
  if (handle == 0) return -1;
  const auto start = reinterpret_cast<uintptr_t>(blocks_[handle - 1].bytes.data());
  return static_cast<int64_t>(uint64_t{handle} << 32 | (address - start));
}

// Reads or writes; after an absolute position the current one is anywhere.
void RecordingHost::Transfer(uintptr_t file, int32_t position, uint8_t *into, const uint8_t *from,
                             int32_t size) {
  if (file < 1 || file > open_.size()) {
    mistakes++;
    return;
  }
  std::vector<uint8_t> &bytes = files[open_[file - 1]];
  const int32_t start = position == -1 ? positions[file - 1] : position;
  if (from && start + size > std::ssize(bytes)) bytes.resize(static_cast<size_t>(start + size));
  const int32_t count = std::clamp(static_cast<int32_t>(bytes.size()) - start, 0, size);
  if (into) std::copy_n(bytes.begin() + std::min<int64_t>(start, std::ssize(bytes)), count, into);
  if (from) std::copy_n(from, count, bytes.begin() + start);
  positions[file - 1] = position == -1 ? start + count : 3;
}

uint8_t *RecordingHost::NewBlock(const std::vector<uint8_t> &bytes) {
  blocks_.push_back({bytes, true});
  return blocks_.back().bytes.data();
}

void RecordingHost::DropBlock(const void *address) { Free(HandleOf(address)); }

std::vector<uint8_t> RecordingHost::BytesOf(uintptr_t handle) const {
  return blocks_[handle - 1].bytes;
}

std::vector<uint8_t> RecordingHost::Take(uintptr_t handle) {
  Block *block = handle ? Find(handle) : nullptr;
  std::vector<uint8_t> bytes = block ? block->bytes : std::vector<uint8_t>();
  if (block) Free(handle);
  return bytes;
}

uintptr_t RecordingHost::HandleOf(const void *address) const {
  const auto at = reinterpret_cast<uintptr_t>(address);
  for (size_t i = 0; i < blocks_.size(); i++) {
    const auto start = reinterpret_cast<uintptr_t>(blocks_[i].bytes.data());
    const uintptr_t size = std::max<size_t>(blocks_[i].bytes.size(), 1);
    if (blocks_[i].live && at >= start && at < start + size) return i + 1;
  }
  return 0;
}

int RecordingHost::LiveBlocks() const {
  return static_cast<int>(
      std::count_if(blocks_.begin(), blocks_.end(), [](const Block &b) { return b.live; }));
}

uintptr_t RecordingHost::Open(const std::string &name) {
  open_.push_back(name);
  positions.push_back(0);
  return open_.size();
}
