#include "host/apng.h"

#include <zlib.h>

#include <cstring>
#include <new>

namespace brisal::host {

namespace {

using Bytes = std::vector<uint8_t>;

constexpr int kChannels = 3;

void Append32(Bytes &bytes, uint32_t value) {
  for (int shift = 24; shift >= 0; shift -= 8)
    bytes.push_back(static_cast<uint8_t>(value >> shift));
}

void Append16(Bytes &bytes, uint16_t value) {
  bytes.push_back(static_cast<uint8_t>(value >> 8));
  bytes.push_back(static_cast<uint8_t>(value));
}

// Every row as its differences from the one above, which keeps drawn pictures small.
Bytes FilteredRows(const Image &image) {
  constexpr uint8_t kUp = 2;
  const auto width = static_cast<size_t>(image.Width());
  std::vector<uint32_t> colours(width);
  Bytes above(width * kChannels), row(width * kChannels), rows;
  rows.reserve((width * kChannels + 1) * static_cast<size_t>(image.Height()));
  for (int32_t y = 0; y < image.Height(); y++) {
    image.GetRow(y, colours.data());
    for (size_t x = 0; x < width; x++) {
      for (int c = 0; c < kChannels; c++) {
        row[x * kChannels + static_cast<size_t>(c)] =
            static_cast<uint8_t>(colours[x] >> (16 - 8 * c));
      }
    }
    rows.push_back(kUp);
    for (size_t i = 0; i < row.size(); i++) rows.push_back(static_cast<uint8_t>(row[i] - above[i]));
    std::swap(row, above);
  }
  return rows;
}

Bytes Compressed(const Bytes &data) {
  uLongf size = compressBound(data.size());
  Bytes result(size);
  if (compress2(result.data(), &size, data.data(), data.size(), Z_DEFAULT_COMPRESSION) != Z_OK) {
    throw std::bad_alloc();
  }
  result.resize(size);
  return result;
}

}  // namespace

AnimatedPng::AnimatedPng(const std::filesystem::path &path, int32_t width, int32_t height,
                         uint32_t frames, uint16_t rate)
    : file_(path), width_(width), height_(height), rate_(rate) {
  constexpr uint8_t kSignature[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  std::fwrite(kSignature, 1, sizeof kSignature, file_.Stream());
  Bytes header;
  Append32(header, static_cast<uint32_t>(width));
  Append32(header, static_cast<uint32_t>(height));
  for (const uint8_t field : {8, 2, 0, 0, 0}) header.push_back(field);  // bits, RGB, defaults
  WriteChunk("IHDR", header, {});
  Bytes animation;
  Append32(animation, frames);
  Append32(animation, 0);  // plays: no end
  WriteChunk("acTL", animation, {});
}

void AnimatedPng::WriteChunk(const char *type, const Bytes &head, const Bytes &data) {
  const auto write = [this](const void *bytes, size_t size) {
    if (size > 0) std::fwrite(bytes, 1, size, file_.Stream());
  };
  const auto writeNumber = [&](size_t number) {
    Bytes bytes;
    Append32(bytes, static_cast<uint32_t>(number));
    write(bytes.data(), bytes.size());
  };
  uLong sum = crc32(0, reinterpret_cast<const Bytef *>(type), 4);
  writeNumber(head.size() + data.size());
  write(type, 4);
  for (const Bytes *part : {&head, &data}) {
    if (!part->empty()) sum = crc32(sum, part->data(), static_cast<uInt>(part->size()));
    write(part->data(), part->size());
  }
  writeNumber(sum);
}

void AnimatedPng::WriteControl() {
  Bytes control;
  Append32(control, sequence_++);
  Append32(control, static_cast<uint32_t>(width_));
  Append32(control, static_cast<uint32_t>(height_));
  Append32(control, 0);  // where the frame lies in the picture
  Append32(control, 0);
  Append16(control, 1);  // shown for 1 / rate of a second
  Append16(control, rate_);
  Append16(control, 0);  // the next frame replaces it, as it is
  WriteChunk("fcTL", control, {});
}

void AnimatedPng::Add(const Image &frame) {
  if (frame.Width() != width_ || frame.Height() != height_) {
    throw Error("a frame of another size than the animation");
  }
  WriteControl();
  const bool first = added_++ == 0;
  Bytes head;
  if (!first) Append32(head, sequence_++);
  WriteChunk(first ? "IDAT" : "fdAT", head, Compressed(FilteredRows(frame)));
  if (std::ferror(file_.Stream())) file_.Commit();  // says why, since nothing more can be written
}

void AnimatedPng::Commit() {
  WriteChunk("IEND", {}, {});
  file_.Commit();
}

}  // namespace brisal::host
