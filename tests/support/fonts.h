// The fonts of a scene, made by the library or the reference on a host of their own.
#pragma once

#include <vector>

#include "support/family.h"
#include "support/random.h"
#include "support/recording_host.h"

enum class Painter { kLibrary, kReference };

class Fonts {
 public:
  Fonts(Family family, Painter painter, uint64_t seed, int failingAllocation);
  Fonts(const Fonts &) = delete;
  Fonts &operator=(const Fonts &) = delete;

  CRF_Font *At(int32_t number) const { return number ? fonts_[number - 1] : nullptr; }
  CRF_ChrInfo *InfosOf(int32_t number) const { return infos_(At(number), 0); }
  int32_t CountOf(int32_t number) const { return At(number) ? counts_[number - 1] : 1; }
  const char *Text(int32_t number) const { return number ? texts[number - 1].data() : nullptr; }
  const void *Image(int32_t number) const { return number ? images[number - 1].data() : nullptr; }
  void Replace(int32_t number, CRF_Font *font, int32_t count);  // releases what was there
  void Forget(int32_t number) { fonts_[number - 1] = nullptr; }

  // A bitmap for a character: 0 none, 1 and above a new block of that glyph, -1 and below the one
  // that character -n - 1 has. A new block that the font did not take goes back.
  void *Bitmap(int32_t font, int32_t number);
  void TakeBack(int32_t font, int32_t code, void *bitmap);

  // Puts the opened file where its last stream starts, and makes that stream 1 of another version,
  // 2 and 3 of a wrong count, 4 no font, 5 and above too short.
  void PrepareToRead(int32_t damage);
  int32_t CountInStream(const std::string &file, int32_t at);

  // Everything that the host can see; then the fonts are released.
  void Finish(std::vector<uint32_t> &words);

  RecordingHost host;
  std::vector<char> texts[2];
  std::vector<uint8_t> images[2];
  std::vector<int32_t> duplicates;
  int32_t streamAt = 0;          // where the last stream of the opened file starts
  bool comparable = true;        // what the host was asked for is all settled
  std::vector<uint32_t> blocks;  // the bytes of compressed glyphs

 private:
  void Fill(Random &random, int32_t number, int32_t count);

  decltype(&CRF_Free) free_;
  decltype(&CRF_SetChrBmp) setBitmap_;
  decltype(&CRF_GetChrBmp) bitmap_;
  decltype(&CRF_GetChrInfoPtr) infos_;
  CRF_Font *fonts_[2] = {};
  int32_t counts_[2] = {};
  std::vector<std::vector<uint8_t>> glyphs_;
};
