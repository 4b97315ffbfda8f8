#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "host/file.h"
#include "host/image.h"

namespace brisal::host {

// An animated PNG that runs for ever: viewers that do not know animations show its first frame.
// Frames are opaque, eight bits a channel.
class AnimatedPng {
 public:
  // frames: how many will be added, at least 1. rate: of them a second, 1-65535.
  // Throws Error when the file cannot be written, as Add and Commit do.
  AnimatedPng(const std::filesystem::path &path, int32_t width, int32_t height, uint32_t frames,
              uint16_t rate);

  // A picture of any format, of the animation's size.
  void Add(const Image &frame);

  // The file appears only here, once all frames are added; without it nothing stays behind.
  void Commit();

 private:
  using Bytes = std::vector<uint8_t>;

  void WriteChunk(const char *type, const Bytes &head, const Bytes &data);
  void WriteControl();

  NewFile file_;
  int32_t width_;
  int32_t height_;
  uint16_t rate_;
  uint32_t added_ = 0;
  uint32_t sequence_ = 0;
};

}  // namespace brisal::host
