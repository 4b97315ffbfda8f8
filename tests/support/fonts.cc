#include "support/fonts.h"

#include <algorithm>

#include "reference/fonts.h"
#include "support/glyphs.h"

namespace {

constexpr int kGlyphs = 6;
constexpr int32_t kLongestText = 32000;

// Mostly the sum of small numbers, now and then a pen that runs back or far away.
int32_t Spacing(Random &random, int32_t most) {
  if (random.OneIn(60)) return random.Pick({-30, 1 << 30, INT32_MIN, INT32_MAX});
  return random.Between(-2, most);
}

std::vector<char> RandomText(Random &random, int32_t count) {
  const bool longest = random.OneIn(300);
  std::vector<char> text(longest ? kLongestText : random.Between(1, 30));
  for (char &c : text) {
    const int32_t code = random.OneIn(12) ? random.Between(0, 255) : random.Between(0, count - 1);
    c = static_cast<char>(longest && code == 0 ? 1 : code);
  }
  if (!longest || random.OneIn(2)) text.back() = 0;
  return text;
}

}  // namespace

Fonts::Fonts(Family family, Painter painter, uint64_t seed, int failingAllocation) {
  const bool library = painter == Painter::kLibrary;
  library ? GCF_Retrieve(&RecordingHost::Record())
          : reference::RetrieveServices(&RecordingHost::Record());
  const auto alloc = library ? CRF_Alloc : reference::AllocFont;
  free_ = library ? CRF_Free : reference::FreeFont;
  setBitmap_ = library ? CRF_SetChrBmp : reference::SetChrBitmap;
  bitmap_ = library ? CRF_GetChrBmp : reference::GetChrBitmap;
  infos_ = library ? CRF_GetChrInfoPtr : reference::GetChrInfo;

  Random random(seed);
  const bool text = family == Family::kText;
  host.files["opened"].resize(static_cast<size_t>(random.Between(0, 9)));
  host.Open("opened");
  host.positions[0] = streamAt = static_cast<int32_t>(host.files["opened"].size());
  for (std::vector<uint8_t> &image : images) image = RandomGlyphImage(random);
  const int32_t depth = random.Pick({8, 32});
  for (int i = 0; i < kGlyphs; i++) {
    glyphs_.push_back(i == 1 && random.OneIn(2)
                          ? glyphs_[0]
                          : RandomGlyph(random, random.OneIn(9) ? 40 - depth : depth));
  }
  const int32_t most = random.OneIn(3) ? 300 : 20, first = random.Between(1, most);
  for (std::vector<char> &characters : texts) {
    characters = RandomText(random, text ? std::min(first, 256) : 1);
  }
  for (int32_t number : {1, 2}) {
    const int32_t count = number == 1 ? first : random.Between(1, 12);
    if (!text && random.OneIn(2)) continue;
    Replace(number, alloc(text ? count : std::min(count, 12)), text ? count : std::min(count, 12));
    Fill(random, number, CountOf(number));
    (library ? CRF_SetChrDepth : reference::SetChrDepth)(At(number), depth);
    const int32_t size = random.OneIn(3) ? random.Between(-5, 50) : 60;
    (library ? CRF_SetMaxChrSize : reference::SetMaxChrSize)(At(number), size, size);
    (library ? CRF_DrawMode : reference::SetFontDrawMode)(At(number), random.Between(0, 2));
  }
  duplicates.resize(400);
  host.calls.clear();
  host.failingAllocation = failingAllocation;
}

void Fonts::Fill(Random &random, int32_t number, int32_t count) {
  CRF_ChrInfo *info = InfosOf(number);
  for (int32_t code = 0; code < count; code++) {
    info[code] = {Spacing(random, 2), Spacing(random, 12), Spacing(random, 2), {}};
    for (int32_t &word : info[code].host) word = static_cast<int32_t>(random.Next());
    if (!random.OneIn(4)) {
      setBitmap_(At(number), code, Bitmap(number, random.Between(-count, kGlyphs)));
    }
  }
}

void Fonts::Replace(int32_t number, CRF_Font *font, int32_t count) {
  const auto slot = static_cast<size_t>(number - 1);
  if (fonts_[slot]) free_(fonts_[slot]);
  fonts_[slot] = font;
  counts_[slot] = count;
}

void *Fonts::Bitmap(int32_t font, int32_t number) {
  if (number == 0) return nullptr;
  if (number < 0) return bitmap_(At(font), -number - 1);
  return host.NewBlock(glyphs_[static_cast<size_t>(number - 1) % kGlyphs]);
}

void Fonts::TakeBack(int32_t font, int32_t code, void *bitmap) {
  if (bitmap && bitmap_(At(font), code) != bitmap) host.DropBlock(bitmap);
}

void Fonts::PrepareToRead(int32_t damage) {
  std::vector<uint8_t> &bytes = host.files["opened"];
  const auto at = static_cast<size_t>(streamAt);
  host.positions[0] = streamAt;
  if (bytes.size() < at + 40) return;
  if (damage == 1) bytes[at + 12] = 2;
  if (damage == 2) std::fill_n(&bytes[at + 28], 4, uint8_t{0});
  if (damage == 3) bytes[at + 30] = 2;
  if (damage == 4) bytes[at + 3] ^= 1;
  if (damage < 5) return;
  bytes.resize(static_cast<size_t>(std::max<int64_t>(std::ssize(bytes) - damage + 4, streamAt)));
  comparable = false;
}

int32_t Fonts::CountInStream(const std::string &file, int32_t at) {
  const std::vector<uint8_t> &bytes = host.files[file];
  const auto count = static_cast<size_t>(at) + 28;
  if (bytes.size() < count + 4) return 0;
  return bytes[count] | bytes[count + 1] << 8 | bytes[count + 2] << 16;
}

void Fonts::Finish(std::vector<uint32_t> &words) {
  words.insert(words.end(), blocks.begin(), blocks.end());
  words.insert(words.end(), duplicates.begin(), duplicates.end());
  for (int32_t number : {1, 2}) {
    const int32_t count = At(number) ? std::min(CountOf(number), 300) : 0;
    words.push_back(static_cast<uint32_t>(count));
    for (int32_t code = 0; code < count; code++) {
      const auto *info = reinterpret_cast<const uint32_t *>(InfosOf(number) + code);
      words.insert(words.end(), info, info + 8);
      const uintptr_t block = host.HandleOf(bitmap_(At(number), code));
      words.push_back(static_cast<uint32_t>(block));
      if (block) {
        for (uint8_t byte : host.BytesOf(block)) words.push_back(byte);
      }
    }
  }
  for (const auto &[name, bytes] : host.files)
    words.insert(words.end(), bytes.begin(), bytes.end());
  words.push_back(static_cast<uint32_t>(host.positions[0]));
  for (int32_t number : {1, 2}) Replace(number, nullptr, 0);
  words.push_back(static_cast<uint32_t>(host.LiveBlocks()));
  words.push_back(static_cast<uint32_t>(host.mistakes));
}
