#include "host/png.h"

#include <png.h>

#include <cerrno>
#include <csetjmp>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

#include "host/file.h"

// libpng reports errors by longjmp, which must not skip destructors: functions here that call
// setjmp own nothing, and what they fill is owned by their callers.

namespace brisal::host {

namespace {

namespace fs = std::filesystem;

constexpr int kSignatureBytes = 8;
// Deflate makes at most about 1032 bytes out of one.
constexpr uint64_t kMaxInflation = 1032;

struct CloseFile {
  void operator()(FILE *file) const { std::fclose(file); }
};
using FilePtr = std::unique_ptr<FILE, CloseFile>;

struct Message {
  char text[128] = "";
};

void OnError(png_structp png, png_const_charp text) {
  auto *message = static_cast<Message *>(png_get_error_ptr(png));
  std::snprintf(message->text, sizeof message->text, "%s", text);
  png_longjmp(png, 1);
}

void OnWarning(png_structp, png_const_charp) {}

class Reader {
 public:
  explicit Reader(FILE *file)
      : file_(file),
        png_(png_create_read_struct(PNG_LIBPNG_VER_STRING, &message_, OnError, OnWarning)),
        info_(png_ ? png_create_info_struct(png_) : nullptr) {
    if (!info_) {
      Destroy();
      throw std::bad_alloc();
    }
  }
  ~Reader() { Destroy(); }
  Reader(const Reader &) = delete;
  Reader &operator=(const Reader &) = delete;

  bool ReadHeader() {
    if (setjmp(png_jmpbuf(png_))) return false;
    png_init_io(png_, file_);
    png_set_sig_bytes(png_, kSignatureBytes);
    // The caller judges the size, with a better message.
    png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
    png_read_info(png_, info_);
    return true;
  }

  uint32_t Width() const { return png_get_image_width(png_, info_); }
  uint32_t Height() const { return png_get_image_height(png_, info_); }
  uint64_t RawBytes() const { return uint64_t{png_get_rowbytes(png_, info_)} * Height(); }

  // Reads rows of B, G, R, A bytes, the storage of BRSL_FORMAT_A32.
  bool ReadRows(png_bytepp rows) {
    if (setjmp(png_jmpbuf(png_))) return false;
    png_set_expand(png_);
    png_set_scale_16(png_);
    png_set_gray_to_rgb(png_);
    png_set_bgr(png_);
    png_set_add_alpha(png_, 0xFF, PNG_FILLER_AFTER);
    png_set_interlace_handling(png_);
    png_read_update_info(png_, info_);
    if (png_get_rowbytes(png_, info_) != size_t{4} * Width()) png_error(png_, "odd row length");
    png_read_image(png_, rows);
    png_read_end(png_, nullptr);
    return true;
  }

  Error Failure(const fs::path &path) const {
    if (std::feof(file_)) return Error(path.string() + ": cut short, the PNG has no end");
    if (std::ferror(file_)) return Error(path.string() + ": cannot be read");
    return Error(path.string() + ": damaged PNG (" + message_.text + ")");
  }

 private:
  void Destroy() { png_destroy_read_struct(&png_, &info_, nullptr); }

  FILE *file_;
  Message message_;
  png_structp png_;
  png_infop info_;
};

class Writer {
 public:
  explicit Writer(FILE *file)
      : file_(file),
        png_(png_create_write_struct(PNG_LIBPNG_VER_STRING, &message_, OnError, OnWarning)),
        info_(png_ ? png_create_info_struct(png_) : nullptr) {
    if (!info_) {
      Destroy();
      throw std::bad_alloc();
    }
  }
  ~Writer() { Destroy(); }
  Writer(const Writer &) = delete;
  Writer &operator=(const Writer &) = delete;

  // row: room for one row of 0xAARRGGBB, bytes: room for the same row as file bytes.
  bool Write(const Image &image, PngChannels channels, uint32_t *row, uint8_t *bytes) {
    if (setjmp(png_jmpbuf(png_))) return false;
    const bool alpha = channels == PngChannels::kRgba;
    png_init_io(png_, file_);
    // A photograph gains a twentieth beyond this level and filter, in three times the time.
    png_set_compression_level(png_, 2);
    png_set_filter(png_, PNG_FILTER_TYPE_BASE, PNG_FILTER_SUB);
    png_set_IHDR(png_, info_, static_cast<uint32_t>(image.Width()),
                 static_cast<uint32_t>(image.Height()), 8,
                 alpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png_, info_);
    for (int32_t y = 0; y < image.Height(); y++) {
      image.GetRow(y, row);
      ToBytes(row, image.Width(), alpha, bytes);
      png_write_row(png_, bytes);
    }
    png_write_end(png_, nullptr);
    return true;
  }

  Error Failure(const fs::path &path, int code) const {
    if (code != 0) return SystemError(path, "cannot be written", code);
    return Error(path.string() + ": cannot be written: " + message_.text);
  }

 private:
  static void ToBytes(const uint32_t *row, int32_t count, bool alpha, uint8_t *out) {
    for (int32_t x = 0; x < count; x++) {
      *out++ = static_cast<uint8_t>(row[x] >> 16);
      *out++ = static_cast<uint8_t>(row[x] >> 8);
      *out++ = static_cast<uint8_t>(row[x]);
      if (alpha) *out++ = static_cast<uint8_t>(row[x] >> 24);
    }
  }

  void Destroy() { png_destroy_write_struct(&png_, &info_); }

  FILE *file_;
  Message message_;
  png_structp png_;
  png_infop info_;
};

FilePtr OpenPng(const fs::path &path) {
  std::error_code ignored;
  if (fs::is_directory(path, ignored)) throw Error(path.string() + ": is a folder, not a PNG file");
  FilePtr file(std::fopen(path.c_str(), "rb"));
  if (!file) throw SystemError(path, "cannot be opened", errno);
  uint8_t signature[kSignatureBytes] = {};
  const size_t got = std::fread(signature, 1, sizeof signature, file.get());
  if (got < sizeof signature || png_sig_cmp(signature, 0, sizeof signature) != 0) {
    throw Error(path.string() + ": not a PNG file");
  }
  return file;
}

void CheckSize(const Reader &reader, const fs::path &path) {
  const uint64_t width = reader.Width();
  const uint64_t height = reader.Height();
  if (width > Image::kMaxSide || height > Image::kMaxSide || width * height > Image::kMaxPixels) {
    throw Error(path.string() + ": " + std::to_string(width) + "x" + std::to_string(height) +
                " pixels are too many");
  }
  // A few bytes that promise a huge picture are caught before memory is taken for it.
  std::error_code unknown;
  const uint64_t fileBytes = fs::file_size(path, unknown);
  if (!unknown && reader.RawBytes() / kMaxInflation > fileBytes) {
    throw Error(path.string() + ": cut short, too small for its " + std::to_string(width) + "x" +
                std::to_string(height) + " pixels");
  }
}

}  // namespace

Image ReadPng(const fs::path &path) {
  const FilePtr file = OpenPng(path);
  Reader reader(file.get());
  if (!reader.ReadHeader()) throw reader.Failure(path);
  CheckSize(reader, path);
  Image image(static_cast<int32_t>(reader.Width()), static_cast<int32_t>(reader.Height()),
              BRSL_FORMAT_A32);
  std::vector<png_bytep> rows;
  rows.reserve(static_cast<size_t>(image.Height()));
  for (int32_t y = 0; y < image.Height(); y++) rows.push_back(image.Row(y));
  if (!reader.ReadRows(rows.data())) throw reader.Failure(path);
  return image;
}

void WritePng(const fs::path &path, const Image &image, PngChannels channels) {
  NewFile file(path);
  Writer writer(file.Stream());
  std::vector<uint32_t> row(static_cast<size_t>(image.Width()));
  std::vector<uint8_t> bytes(row.size() * 4);
  errno = 0;
  if (!writer.Write(image, channels, row.data(), bytes.data())) throw writer.Failure(path, errno);
  file.Commit();
}

}  // namespace brisal::host
