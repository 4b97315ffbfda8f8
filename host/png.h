#pragma once

#include <filesystem>

#include "host/image.h"

namespace brisal::host {

enum class PngChannels { kRgb, kRgba };

// Reads a PNG of any colour type and bit depth, interlaced or not, as a BRSL_FORMAT_A32 picture;
// pixels of a file without transparency have alpha 255.
// Throws Error for a file that is missing, not a PNG, cut short, damaged or larger than an Image.
Image ReadPng(const std::filesystem::path &path);

// Writes a picture of any format, eight bits a channel, under its name only when complete.
// Throws Error when the file cannot be written.
void WritePng(const std::filesystem::path &path, const Image &image,
              PngChannels channels = PngChannels::kRgb);

}  // namespace brisal::host
