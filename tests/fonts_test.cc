// Fonts and the host's memory and files: bytes of any kind, memory that runs out, and sizes at which a
// simple search would take minutes.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "brisal/brisal.h"
#include "support/random.h"
#include "support/recording_host.h"
#include "support/sanitizers.h"
#include "support/shown_font.h"

namespace {

using Bytes = std::vector<uint8_t>;

const char *const kFirst = kFileNames[0];
const char *const kSecond = kFileNames[1];

using Host = FrugalHost;

// Asked for before main, when no host has given its services.
const bool nothingWithoutAHost = CRF_Alloc(4) == nullptr && CRF_Load(kFileNames[0]) == nullptr &&
                                 CRF_Read(1) == nullptr && CRF_CompressChr("image") == 0;

TEST(Fonts, NeedAHost) { EXPECT_TRUE(nothingWithoutAHost); }

template <class Pixel>
Bytes Image(int32_t width, int32_t height, Pixel pixel) {
  const int32_t header[] = {width, height, 8 * int32_t{sizeof pixel(0, 0)}, 0};
  Bytes image(sizeof header);
  std::memcpy(image.data(), header, sizeof header);
  for (int32_t y = 0; y < height; ++y) {
    for (int32_t x = 0; x < width; ++x) {
      const auto value = pixel(x, y);
      const auto *bytes = reinterpret_cast<const uint8_t *>(&value);
      image.insert(image.end(), bytes, bytes + sizeof value);
    }
  }
  return image;
}

void Give(Host &host, CRF_Font *font, int32_t code, const Bytes &image) {
  CRF_SetChrBmp(font, code, host.NewBlock(host.Take(CRF_CompressChr(image.data()))));
}

// Six characters, soft or in colours, solid, without a glyph, and two that are the same.
CRF_Font *SmallFont(Host &host, int32_t depth) {
  CRF_Font *font = CRF_Alloc(6);
  CRF_SetChrDepth(font, depth);
  CRF_SetMaxChrSize(font, 8, 8);
  CRF_DrawMode(font, 1);
  for (int32_t code = 0; code < 6; ++code) RFCI_SetChrWidth(CRF_GetChrInfoPtr(font, 0), code, 3);
  const auto soft = [](int32_t x, int32_t y) { return uint8_t((x * 3 + y) % 4 * 60); };
  const auto solid = [](int32_t x, int32_t y) { return uint8_t((x ^ y) & 2 ? 255 : 0); };
  const auto colours = [](int32_t x, int32_t y) { return (x + y) % 3 * 0x40302010u; };
  for (const int32_t code : {0, 2, 5}) {
    Give(host, font, code, depth == 8 ? Image(5, 6, soft) : Image(5, 6, colours));
  }
  Give(host, font, 3, Image(7, 4, solid));
  return font;
}

Bytes StreamOf(Host &host, const CRF_Font *font) {
  host.files[kFirst].clear();
  CRF_Write(font, host.Open(kFirst));
  return host.files[kFirst];
}

// Loads the bytes as a font, draws and measures all of it, and gives it back.
bool Survives(const Bytes &stream) {
  Host host;
  host.files[kFirst] = stream;
  CRF_Font *font = CRF_Read(host.Open(kFirst));
  const bool loaded = font != nullptr;
  ShowFont(font);
  CRF_Free(font);
  EXPECT_EQ(host.LiveBlocks(), 0);
  EXPECT_EQ(host.mistakes, 0);
  return loaded;
}

TEST(Fonts, AnyBytesAreSafeToLoad) {
  for (const int32_t depth : {8, 32}) {
    Host host;
    CRF_Font *font = SmallFont(host, depth);
    const Bytes stream = StreamOf(host, font);
    ASSERT_TRUE(Survives(stream));
    for (size_t length = 0; length < stream.size(); ++length) {
      EXPECT_FALSE(
          Survives(Bytes(stream.begin(), stream.begin() + static_cast<ptrdiff_t>(length))));
    }
    const auto with = [&](size_t at, uint32_t value, size_t bytes) {
      Bytes other = stream;
      std::memcpy(&other[at], &value, bytes);
      Survives(other);
    };
    for (size_t at = 0; at < stream.size(); ++at) {
      for (const int flip : {1, 4, 32, 128, 255}) with(at, stream[at] ^ flip, 1);
      for (const uint32_t value : {0u, 1u, 31u, 33u, 0x10000u, 0x7FFFFFFFu, 0x80000000u, ~0u}) {
        if (at + 4 <= stream.size()) with(at, value, 4);
      }
      if (at + 2 <= stream.size()) with(at, 0x7FFF, 2);
    }
  }
}

TEST(Fonts, ASmallFileIsNoHugeGlyph) {
  // All rows share one list, of more runs together than there is time to walk.
  Host host;
  CRF_Font *font = CRF_Alloc(1);
  constexpr int32_t kRows = 4000;
  constexpr int16_t kRuns = 32767;
  constexpr int32_t kEntry = 4 * kRows;
  Bytes block(32 + kEntry + 2 + 4 * kRuns);
  const int32_t header[] = {static_cast<int32_t>(block.size()), 1, kRows, 8, 0, kRows, 32, 0};
  std::memcpy(block.data(), header, sizeof header);
  for (size_t row = 0; row < kRows; ++row) std::memcpy(&block[32 + 4 * row], &kEntry, 4);
  std::memcpy(&block[32 + kEntry], &kRuns, 2);
  CRF_SetChrBmp(font, 0, host.NewBlock(block));
  EXPECT_FALSE(Survives(StreamOf(host, font)));
}

TEST(Fonts, AreTheSameWhenSavedLoadedAndSaved) {
  for (const int32_t depth : {8, 32}) {
    Host host;
    CRF_Font *font = SmallFont(host, depth);
    CRF_BackdropColour(font, 0x12345678);
    CRF_GetChrInfoPtr(font, 4)->host[4] = -7;
    const Bytes stream = StreamOf(host, font);
    // Two of them in the midst of other things.
    host.files[kSecond] = Bytes(13, 1);
    const uintptr_t file = host.Open(kSecond);
    host.positions[file - 1] = 13;
    CRF_Write(font, file);
    CRF_Write(font, file);
    ASSERT_EQ(host.files[kSecond].size(), 13 + 2 * stream.size());
    host.positions[file - 1] = 13;
    for (int round = 0; round < 2; ++round) {
      CRF_Font *again = CRF_Read(file);
      ASSERT_NE(again, nullptr);
      EXPECT_EQ(StreamOf(host, again), stream);
      EXPECT_NE(CRF_GetChrBmp(again, 0), CRF_GetChrBmp(again, 5));
      EXPECT_EQ(CRF_GetChrBmp(again, 2), CRF_GetChrBmp(again, 5));
      CRF_Free(again);
    }
    EXPECT_EQ(CRF_Read(file), nullptr);
    EXPECT_EQ(host.positions[file - 1], static_cast<int32_t>(host.files[kSecond].size()));
    CRF_Free(font);
    EXPECT_EQ(host.LiveBlocks(), 0);
    EXPECT_EQ(host.mistakes, 0);
  }
}

TEST(Fonts, LeakNothingWhenMemoryRunsOut) {
  Host host;
  CRF_Font *font = SmallFont(host, 8);
  const Bytes stream = StreamOf(host, font);
  const int before = host.LiveBlocks();
  const Bytes image = Image(9, 9, [](int32_t x, int32_t y) { return uint8_t(x * y); });
  int failures = 0;
  for (bool failed = true; failed; ++failures) {
    host.failingAllocation = failures + 1;
    CRF_Font *again = CRF_Read(host.Open(kFirst));
    host.failingAllocation = failures + 1;
    const uintptr_t block = CRF_CompressChr(image.data());
    host.failingAllocation = 0;
    failed = again == nullptr || block == 0;
    if (again != nullptr) CRF_Free(again);
    if (block != 0) host.Take(block);
    EXPECT_EQ(host.LiveBlocks(), before);
  }
  EXPECT_GT(failures, 20);

  // Saving goes on without the table of duplicates; what it writes is longer, and as good.
  host.failingAllocation = 1;
  CRF_Write(font, host.Open(kSecond));
  host.failingAllocation = 0;
  EXPECT_GT(host.files[kSecond].size(), stream.size());
  CRF_Font *again = CRF_Read(host.Open(kSecond));
  EXPECT_EQ(StreamOf(host, again), stream);
  CRF_Free(again);
  CRF_Free(font);
  EXPECT_EQ(host.LiveBlocks(), 0);
  EXPECT_EQ(host.mistakes, 0);
}

TEST(Fonts, DuplicatesAreFoundAmongMany) {
  Host host;
  const int32_t count = Scaled(10000);
  CRF_Font *font = CRF_Alloc(count);
  Random random(5);
  std::map<std::string, int32_t> first;
  std::vector<int32_t> expected(static_cast<size_t>(count));
  std::vector<int32_t> table(expected.size());
  for (int32_t code = 0; code < count; ++code) {
    if (random.OneIn(5)) continue;
    // Long blocks that differ in their last bytes only, and shorter ones.
    Bytes bytes(random.OneIn(50) ? 1500 : 36);
    const auto size = static_cast<int32_t>(bytes.size());
    std::memcpy(bytes.data(), &size, 4);
    const int32_t tail = random.Between(0, count / 4);
    std::memcpy(&bytes[bytes.size() - 4], &tail, 4);
    CRF_SetChrBmp(font, code, host.NewBlock(bytes));
    if (code == 0) continue;
    const auto [found, isNew] = first.emplace(std::string(bytes.begin(), bytes.end()), code);
    if (!isNew) expected[static_cast<size_t>(code)] = found->second;
  }
  CRF_Find_Duplicate_Chr_Buffers(font, table.data());
  EXPECT_EQ(table, expected);
  CRF_Free(font);
  EXPECT_EQ(host.LiveBlocks(), 0);
}

// A row's pixels at depth 8, and where rows without a gap in them belong.
TEST(Fonts, RowsShareTheFirstPlaceThatHoldsThem) {
  Host host;
  Random random(6);
  const int32_t kinds = 5;
  for (int32_t kind = 0; kind < kinds; ++kind) {
    const int32_t width = 120;
    const int32_t height = 150;
    std::vector<Bytes> rows;
    const Bytes image = Image(width, height, [&](int32_t x, int32_t y) {
      const int32_t values[] = {7, 1 + (x + y) % 7, random.Between(1, 2), random.Between(1, 255),
                                x == y ? 128 : 254};
      if (x == 0) rows.emplace_back();
      // Rows of every length, so that they are found inside of others.
      const bool covered = x < 20 + y * 37 % 100;
      if (covered) rows.back().push_back(static_cast<uint8_t>(values[kind]));
      return static_cast<uint8_t>(covered ? values[kind] : 0);
    });
    Bytes text;
    std::vector<int32_t> offsets;
    for (const Bytes &row : rows) {
      const auto end = text.empty() ? text.end() : text.end() - 1;
      auto found = std::search(text.begin(), end, row.begin(), row.end());
      if (found == end) found = text.insert(text.end(), row.begin(), row.end());
      offsets.push_back(static_cast<int32_t>(found - text.begin()));
    }
    const Bytes block = host.Take(CRF_CompressChr(image.data()));
    int32_t table = 0;
    std::memcpy(&table, &block[28], 4);
    for (int32_t row = 0; row < height; ++row) {
      int32_t entry = 0;
      std::memcpy(&entry, &block[static_cast<size_t>(table + 4 * row)], 4);
      EXPECT_EQ(entry - 4 * height, offsets[static_cast<size_t>(row)]) << kind << ' ' << row;
    }
    EXPECT_TRUE(std::equal(text.begin(), text.end(),
                           block.end() - static_cast<ptrdiff_t>(text.size()), block.end()));
  }
}

}  // namespace
