#include "host/services.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string_view>

namespace brisal::host {

namespace {

constexpr int32_t kHere = -1;

// ---- Memory: a block's handle is its address, and its size lies before it --------------------

constexpr size_t kBefore = alignof(std::max_align_t);

uintptr_t BRSL_CALL AllocMemory(int32_t size) {
  if (size < 0) return 0;
  auto *const memory = static_cast<uint8_t *>(std::calloc(1, kBefore + static_cast<size_t>(size)));
  if (memory == nullptr) return 0;
  std::memcpy(memory, &size, sizeof size);
  return reinterpret_cast<uintptr_t>(memory + kBefore);
}

void BRSL_CALL FreeMemory(uintptr_t block) {
  if (block != 0) std::free(reinterpret_cast<uint8_t *>(block) - kBefore);
}

uintptr_t BRSL_CALL MemoryAddress(uintptr_t block) { return block; }

int32_t BRSL_CALL MemorySize(uintptr_t block) {
  int32_t size = 0;
  if (block != 0) std::memcpy(&size, reinterpret_cast<uint8_t *>(block) - kBefore, sizeof size);
  return size;
}

void BRSL_CALL CopyMemoryBlock(uintptr_t source, int32_t sourceOffset, int32_t count,
                               uintptr_t destination, int32_t destinationOffset) {
  std::memmove(reinterpret_cast<uint8_t *>(destination) + destinationOffset,
               reinterpret_cast<const uint8_t *>(source) + sourceOffset,
               static_cast<size_t>(std::max(count, 0)));
}

void BRSL_CALL PokeLong(uintptr_t block, int32_t offset, int32_t value) {
  std::memcpy(reinterpret_cast<uint8_t *>(block) + offset, &value, sizeof value);
}

// ---- Text buffers: blocks ---------------------------------------------------------------------

void BRSL_CALL PokeBytes(uintptr_t buffer, uintptr_t source, int32_t count) {
  std::memcpy(reinterpret_cast<void *>(buffer), reinterpret_cast<const void *>(source),
              static_cast<size_t>(std::max(count, 0)));
}

std::string_view TextOf(uintptr_t buffer) {
  const auto *const text = reinterpret_cast<const char *>(buffer);
  return {text, strnlen(text, static_cast<size_t>(MemorySize(buffer)))};
}

int32_t BRSL_CALL CompareStrings(uintptr_t a, uintptr_t b) { return TextOf(a) == TextOf(b); }

// ---- Files ------------------------------------------------------------------------------------

uintptr_t Open(const void *name, const char *mode) {
  FILE *const stream = std::fopen(static_cast<const char *>(name), mode);
  if (stream == nullptr) return 0;
  auto *const file = new (std::nothrow) ServiceFile(stream);
  if (file == nullptr) {
    std::fclose(stream);
    return 0;
  }
  return file->Handle();
}

ServiceFile &FileOf(uintptr_t file) { return *reinterpret_cast<ServiceFile *>(file); }

uintptr_t BRSL_CALL OpenFileRead(const void *name) { return Open(name, "rb"); }
uintptr_t BRSL_CALL OpenFileWrite(const void *name) { return Open(name, "wb"); }

void BRSL_CALL CloseFile(uintptr_t file) {
  std::fclose(FileOf(file).Stream());
  delete &FileOf(file);
}

int32_t BRSL_CALL FilePos(uintptr_t file) { return FileOf(file).Position(); }
void BRSL_CALL SeekFile(uintptr_t file, int32_t position) { FileOf(file).Seek(position); }

template <class T>
int32_t ReadNumber(uintptr_t file, int32_t position) {
  T value = 0;
  FileOf(file).Read(position, &value, sizeof value);
  return value;
}

int32_t BRSL_CALL ReadWord(uintptr_t file, int32_t position) {
  return ReadNumber<uint16_t>(file, position);
}

int32_t BRSL_CALL ReadLong(uintptr_t file, int32_t position) {
  return ReadNumber<int32_t>(file, position);
}

void BRSL_CALL ReadToMemory(uintptr_t file, int32_t position, uintptr_t address, int32_t count) {
  FileOf(file).Read(position, reinterpret_cast<void *>(address),
                    static_cast<size_t>(std::max(count, 0)));
}

void BRSL_CALL WriteWord(uintptr_t file, int32_t position, int32_t value) {
  const auto word = static_cast<uint16_t>(value);
  FileOf(file).Write(position, &word, sizeof word);
}

void BRSL_CALL WriteLong(uintptr_t file, int32_t position, int32_t value) {
  FileOf(file).Write(position, &value, sizeof value);
}

void BRSL_CALL WriteMemory(uintptr_t file, int32_t position, uintptr_t start, uintptr_t end) {
  FileOf(file).Write(position, reinterpret_cast<const void *>(start), end - start);
}

}  // namespace

void ServiceFile::Fail() {
  if (error_ == 0) error_ = errno != 0 ? errno : EIO;
}

void ServiceFile::GoTo(int32_t position) {
  if (position != kHere) Seek(position);
}

void ServiceFile::Seek(int32_t position) {
  if (fseeko(stream_, position, SEEK_SET) != 0) Fail();
}

// -1 where the position is none of 32 bits.
int32_t ServiceFile::Position() {
  const off_t position = ftello(stream_);
  if (position > INT32_MAX) errno = EOVERFLOW;
  if (position >= 0 && position <= INT32_MAX) return static_cast<int32_t>(position);
  Fail();
  return -1;
}

void ServiceFile::Read(int32_t position, void *to, size_t count) {
  GoTo(position);
  const size_t got = std::fread(to, 1, count, stream_);
  if (got == count) return;
  std::memset(static_cast<uint8_t *>(to) + got, 0, count - got);
  if (std::ferror(stream_)) {
    Fail();
  } else {
    cut_ = true;
  }
}

void ServiceFile::Write(int32_t position, const void *from, size_t count) {
  GoTo(position);
  if (std::fwrite(from, 1, count, stream_) != count) Fail();
}

void *BlockAddress(uintptr_t block) { return reinterpret_cast<void *>(MemoryAddress(block)); }

void InstallServices() {
  static BRSL_HostRecord record{};
  record.memory.call.AllocMemory = AllocMemory;
  record.memory.call.FreeMemory = FreeMemory;
  record.memory.call.FreeMemoryAddress = FreeMemory;
  record.block.call.MemoryAddress = MemoryAddress;
  record.block.call.MemorySize = MemorySize;
  record.block.call.CopyMemoryBlock = CopyMemoryBlock;
  record.block.call.PokeLong = PokeLong;
  record.string.call.AllocString = AllocMemory;
  record.string.call.PokeBytes = PokeBytes;
  record.string.call.CompareStrings = CompareStrings;
  record.file.call.OpenFileRead = OpenFileRead;
  record.file.call.OpenFileWrite = OpenFileWrite;
  record.file.call.CloseFile = CloseFile;
  record.file.call.FilePos = FilePos;
  record.file.call.SeekFile = SeekFile;
  record.file.call.ReadWord = ReadWord;
  record.file.call.ReadLong = ReadLong;
  record.file.call.ReadToBuffer = ReadToMemory;
  record.file.call.ReadToMemory = ReadToMemory;
  record.file.call.WriteWord = WriteWord;
  record.file.call.WriteLong = WriteLong;
  record.file.call.WriteMemory = WriteMemory;
  GCF_Retrieve(&record);
}

}  // namespace brisal::host
