/* The services over the C library: handles are addresses, files are streams, names are paths. */
#include "services.h"

#include <brisal/brisal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* Before each block lies its size, in room that keeps the block aligned. */
enum { kBefore = 16 };

static uintptr_t BRSL_CALL AllocMemory(int32_t size) {
  char *const block = size < 0 ? NULL : calloc(1, kBefore + (size_t)size);
  if (!block) return 0;
  memcpy(block, &size, sizeof size);
  return (uintptr_t)(block + kBefore);
}

static void BRSL_CALL FreeMemory(uintptr_t block) {
  if (block) free((char *)block - kBefore);
}

static uintptr_t BRSL_CALL MemoryAddress(uintptr_t block) { return block; }

static int32_t BRSL_CALL MemorySize(uintptr_t block) {
  int32_t size = 0;
  if (block) memcpy(&size, (char *)block - kBefore, sizeof size);
  return size;
}

static void BRSL_CALL CopyMemoryBlock(uintptr_t source, int32_t sourceOffset, int32_t count,
                                      uintptr_t destination, int32_t destinationOffset) {
  memmove((char *)destination + destinationOffset, (char *)source + sourceOffset, (size_t)count);
}

static void BRSL_CALL PokeLong(uintptr_t block, int32_t offset, int32_t value) {
  memcpy((char *)block + offset, &value, sizeof value);
}

static void BRSL_CALL PokeBytes(uintptr_t buffer, uintptr_t source, int32_t count) {
  memcpy((void *)buffer, (void *)source, (size_t)count);
}

static int32_t BRSL_CALL CompareStrings(uintptr_t a, uintptr_t b) {
  return strcmp((char *)a, (char *)b) == 0;
}

static uintptr_t BRSL_CALL OpenFileRead(const void *name) { return (uintptr_t)fopen(name, "rb"); }

static uintptr_t BRSL_CALL OpenFileWrite(const void *name) { return (uintptr_t)fopen(name, "wb"); }

static void BRSL_CALL CloseFile(uintptr_t file) { fclose((FILE *)file); }

static int32_t BRSL_CALL FilePos(uintptr_t file) { return (int32_t)ftell((FILE *)file); }

static void BRSL_CALL SeekFile(uintptr_t file, int32_t position) {
  if (position >= 0) fseek((FILE *)file, position, SEEK_SET);
}

static void BRSL_CALL ReadToMemory(uintptr_t file, int32_t position, uintptr_t address,
                                   int32_t count) {
  SeekFile(file, position);
  const size_t got = fread((void *)address, 1, (size_t)count, (FILE *)file);
  memset((char *)address + got, 0, (size_t)count - got);
}

static int32_t BRSL_CALL ReadWord(uintptr_t file, int32_t position) {
  uint8_t byte[2];
  ReadToMemory(file, position, (uintptr_t)byte, sizeof byte);
  return byte[0] | byte[1] << 8;
}

static int32_t BRSL_CALL ReadLong(uintptr_t file, int32_t position) {
  const uint32_t low = (uint32_t)ReadWord(file, position);
  return (int32_t)(low | (uint32_t)ReadWord(file, position < 0 ? position : position + 2) << 16);
}

static void BRSL_CALL WriteMemory(uintptr_t file, int32_t position, uintptr_t start,
                                  uintptr_t end) {
  SeekFile(file, position);
  fwrite((void *)start, 1, end - start, (FILE *)file);
}

static void BRSL_CALL WriteWord(uintptr_t file, int32_t position, int32_t value) {
  const uint8_t byte[2] = {value & 255, value >> 8 & 255};
  WriteMemory(file, position, (uintptr_t)byte, (uintptr_t)(byte + sizeof byte));
}

static void BRSL_CALL WriteLong(uintptr_t file, int32_t position, int32_t value) {
  WriteWord(file, position, value);
  WriteWord(file, position < 0 ? position : position + 2, value >> 16);
}

void InstallServices(void) {
  static const BRSL_HostRecord record = {
      .memory.call = {.AllocMemory = AllocMemory,
                      .FreeMemory = FreeMemory,
                      .FreeMemoryAddress = FreeMemory},
      .block.call = {.MemoryAddress = MemoryAddress,
                     .MemorySize = MemorySize,
                     .CopyMemoryBlock = CopyMemoryBlock,
                     .PokeLong = PokeLong},
      .string.call = {.AllocString = AllocMemory,
                      .PokeBytes = PokeBytes,
                      .CompareStrings = CompareStrings},
      .file.call = {.OpenFileRead = OpenFileRead,
                    .OpenFileWrite = OpenFileWrite,
                    .CloseFile = CloseFile,
                    .FilePos = FilePos,
                    .SeekFile = SeekFile,
                    .ReadWord = ReadWord,
                    .ReadLong = ReadLong,
                    .ReadToBuffer = ReadToMemory,
                    .ReadToMemory = ReadToMemory,
                    .WriteWord = WriteWord,
                    .WriteLong = WriteLong,
                    .WriteMemory = WriteMemory},
  };
  GCF_Retrieve(&record);
}
