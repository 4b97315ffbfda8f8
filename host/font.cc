#include "host/font.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>
#include <system_error>

#include "host/file.h"
#include "host/services.h"

namespace brisal::host {

namespace fs = std::filesystem;

namespace {

constexpr char kMagic[8] = "TOLVCRF";
constexpr int32_t kVersion = 1;
constexpr int32_t kMostCharacters = 65536;

struct CloseStream {
  void operator()(FILE *stream) const { std::fclose(stream); }
};
using Stream = std::unique_ptr<FILE, CloseStream>;

Stream Open(const fs::path &path) {
  std::error_code ignored;
  if (fs::is_directory(path, ignored)) throw Error(path.string() + ": is a folder");
  Stream stream(std::fopen(path.c_str(), "rb"));
  if (!stream) throw SystemError(path, "cannot be opened", errno);
  return stream;
}

// What is wrong with the beginning of a file of which `got` bytes are there, or nothing.
std::string FaultOf(const FontHeader &header, size_t got) {
  const size_t magicBytes = std::min(got, sizeof kMagic);
  if (got == 0 || std::memcmp(header.magic, kMagic, magicBytes) != 0) return "not a font file";
  if (got < sizeof header) return "cut short";
  if (header.version != kVersion) {
    return "a font of version " + std::to_string(header.version) + ", where only 1 is known";
  }
  if (header.count < 1 || header.count > kMostCharacters) {
    return "damaged: no font has " + std::to_string(header.count) + " characters";
  }
  return "";
}

}  // namespace

FontHeader ReadFontHeader(const fs::path &path) {
  const Stream stream = Open(path);
  FontHeader header{};
  const size_t got = std::fread(&header, 1, sizeof header, stream.get());
  if (std::ferror(stream.get())) throw SystemError(path, "cannot be read", errno);
  const std::string fault = FaultOf(header, got);
  if (!fault.empty()) throw Error(path.string() + ": " + fault);
  std::error_code ignored;
  const uint64_t due = uint64_t{sizeof header.magic} + static_cast<uint32_t>(header.length);
  if (fs::file_size(path, ignored) < due) throw Error(path.string() + ": cut short");
  return header;
}

Font LoadFont(const fs::path &path) {
  InstallServices();
  ReadFontHeader(path);
  const Stream stream = Open(path);
  ServiceFile file(stream.get());
  Font font(CRF_Read(file.Handle()));
  if (file.ErrorCode() != 0) throw SystemError(path, "cannot be read", file.ErrorCode());
  if (!font) throw Error(path.string() + ": damaged");
  return font;
}

void SaveFont(const fs::path &path, const CRF_Font *font) {
  NewFile file(path);
  ServiceFile written(file.Stream());
  CRF_Write(font, written.Handle());
  if (written.ErrorCode() != 0) throw SystemError(path, "cannot be written", written.ErrorCode());
  file.Commit();
}

}  // namespace brisal::host
