// A pixel buffer of any shape inside one allocation, with guard bytes on both sides.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "reference/reference.h"

inline constexpr int kFormatBytes[7] = {2, 2, 2, 3, 4, 4, 4};

struct Layout {
  int32_t format = 4, width = 1, height = 1;
  int32_t pitch = 4;     // negative: the first row lies last in memory
  int32_t misalign = 0;  // of the lowest row's first byte, against 16
  uint64_t seed = 0;     // of the bytes that the picture starts with
  reference::Rect viewport;
  int32_t inkAlpha = 255;
  // A colour that about so many percent of the pixels get, in runs. Other pixels of format 5 then
  // have telling alphas more often.
  uint32_t mask = 0;
  int32_t maskShare = 0;
};

class Picture {
 public:
  explicit Picture(const Layout &layout);

  const Layout &layout() const { return layout_; }
  uint8_t *Address() { return bytes_.data() + origin_; }
  std::vector<uint8_t> &Bytes() { return bytes_; }
  const std::vector<uint8_t> &Bytes() const { return bytes_; }

  // A colour for looking at, whatever the format.
  uint32_t ColourAt(int32_t x, int32_t y);

 private:
  Layout layout_;
  std::vector<uint8_t> bytes_;
  size_t origin_;
};

// A buffer of random shape with a viewport somewhere in it.
class Random;
Layout RandomLayout(Random &random, int32_t maxWidth, int32_t maxHeight);

// Makes the picture the library's target, with its viewport and ink alpha and an empty vertex list.
void Target(Picture &picture);

// The same as a reference.
reference::Reference ReferenceFor(Picture &picture);

// Where two pictures of one layout differ first; empty if nowhere.
std::string Difference(Picture &actual, Picture &expected);

std::string Describe(const Layout &layout);
