#include <gtest/gtest.h>
#include <png.h>

#include <cmath>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "brisal/brisal.h"
#include "host/image.h"
#include "host/png.h"
#include "support/temporary_folder.h"

namespace brisal::test {
namespace {

namespace fs = std::filesystem;
using host::Image;

std::string MessageOf(const fs::path &path) {
  try {
    host::ReadPng(path);
  } catch (const host::Error &error) {
    return error.what();
  }
  return "";
}

std::string ReadBytes(const fs::path &path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// A new file each time: some file systems flush a file that is overwritten, which is slow.
void WriteBytes(const fs::path &path, const std::string &bytes) {
  fs::remove(path);
  std::ofstream(path, std::ios::binary) << bytes;
}

// ---- Files that libpng writes from samples --------------------------------------------------

struct PngCase {
  int type, depth, interlace;
  bool transparent;
};

constexpr uint32_t kWidth = 13, kHeight = 11;

struct Samples {
  explicit Samples(const PngCase &what)
      : channels(what.type == PNG_COLOR_TYPE_RGB          ? 3
                 : what.type == PNG_COLOR_TYPE_RGB_ALPHA  ? 4
                 : what.type == PNG_COLOR_TYPE_GRAY_ALPHA ? 2
                                                          : 1),
        values(kWidth * kHeight * channels) {
    std::mt19937 random(static_cast<unsigned>(what.type * 100 + what.depth));
    for (uint32_t &v : values) v = random() & ((1u << what.depth) - 1);
  }
  uint32_t At(uint32_t x, uint32_t y, uint32_t channel) const {
    return values[(y * kWidth + x) * channels + channel];
  }
  uint32_t channels;
  std::vector<uint32_t> values;
};

// Samples as the bits of a file's row, high bits first.
std::vector<png_byte> PackRow(const Samples &samples, uint32_t y, int depth) {
  std::vector<png_byte> row((kWidth * samples.channels * static_cast<uint32_t>(depth) + 7) / 8);
  size_t bit = 0;
  for (uint32_t i = 0; i < kWidth * samples.channels; i++) {
    const uint32_t v = samples.values[y * kWidth * samples.channels + i];
    for (int k = depth - 1; k >= 0; k--, bit++) {
      row[bit / 8] |= static_cast<png_byte>((v >> k & 1) << (7 - bit % 8));
    }
  }
  return row;
}

png_color PaletteColour(uint32_t i) {
  return {static_cast<png_byte>(i * 7 + 1), static_cast<png_byte>(255 - i),
          static_cast<png_byte>(i * 31)};
}

png_byte PaletteAlpha(uint32_t i) { return static_cast<png_byte>(i * 60); }

void SetTransparency(png_structp png, png_infop info, const PngCase &what, const Samples &samples) {
  png_byte alphas[4];
  for (uint32_t i = 0; i < 4; i++) alphas[i] = PaletteAlpha(i);
  png_color_16 key{};
  key.gray = static_cast<png_uint_16>(samples.At(0, 0, 0));
  if (what.type == PNG_COLOR_TYPE_RGB) {
    key.red = static_cast<png_uint_16>(samples.At(0, 0, 0));
    key.green = static_cast<png_uint_16>(samples.At(0, 0, 1));
    key.blue = static_cast<png_uint_16>(samples.At(0, 0, 2));
  }
  const bool palette = what.type == PNG_COLOR_TYPE_PALETTE;
  png_set_tRNS(png, info, palette ? alphas : nullptr, palette ? 1 << std::min(what.depth, 2) : 1,
               palette ? nullptr : &key);
}

void WriteCase(const fs::path &path, const PngCase &what, const Samples &samples) {
  FILE *file = std::fopen(path.c_str(), "wb");
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_init_io(png, file);
  png_set_IHDR(png, info, kWidth, kHeight, what.depth, what.type, what.interlace, 0, 0);
  std::vector<png_color> palette;
  for (uint32_t i = 0; i < 1u << what.depth && i < 256; i++) palette.push_back(PaletteColour(i));
  if (what.type == PNG_COLOR_TYPE_PALETTE) {
    png_set_PLTE(png, info, palette.data(), static_cast<int>(palette.size()));
  }
  if (what.transparent) SetTransparency(png, info, what, samples);
  png_write_info(png, info);
  std::vector<std::vector<png_byte>> rows;
  std::vector<png_bytep> pointers;
  for (uint32_t y = 0; y < kHeight; y++) rows.push_back(PackRow(samples, y, what.depth));
  for (auto &row : rows) pointers.push_back(row.data());
  png_write_image(png, pointers.data());
  png_write_end(png, info);
  png_destroy_write_struct(&png, &info);
  std::fclose(file);
}

uint32_t Argb(uint32_t a, uint32_t r, uint32_t g, uint32_t b) {
  return a << 24 | r << 16 | g << 8 | b;
}

uint32_t Expected(const PngCase &what, const Samples &samples, uint32_t x, uint32_t y) {
  const double top = (1u << what.depth) - 1;
  const auto level = [&](uint32_t channel) {
    return static_cast<uint32_t>(std::lround(samples.At(x, y, channel) * 255 / top));
  };
  if (what.type == PNG_COLOR_TYPE_PALETTE) {
    const uint32_t i = samples.At(x, y, 0);
    const png_color c = PaletteColour(i);
    return Argb(what.transparent && i < 4 ? PaletteAlpha(i) : 255, c.red, c.green, c.blue);
  }
  bool isKey = what.transparent;
  for (uint32_t k = 0; k < samples.channels; k++) {
    isKey = isKey && samples.At(x, y, k) == samples.At(0, 0, k);
  }
  const bool colour = samples.channels >= 3;
  const bool alpha = samples.channels % 2 == 0;
  return Argb(isKey   ? 0
              : alpha ? level(samples.channels - 1)
                      : 255,
              level(0), level(colour ? 1 : 0), level(colour ? 2 : 0));
}

std::vector<PngCase> AllCases() {
  static constexpr int kKinds[][2] = {
      {PNG_COLOR_TYPE_GRAY, 1},        {PNG_COLOR_TYPE_GRAY, 2},
      {PNG_COLOR_TYPE_GRAY, 4},        {PNG_COLOR_TYPE_GRAY, 8},
      {PNG_COLOR_TYPE_GRAY, 16},       {PNG_COLOR_TYPE_PALETTE, 1},
      {PNG_COLOR_TYPE_PALETTE, 2},     {PNG_COLOR_TYPE_PALETTE, 4},
      {PNG_COLOR_TYPE_PALETTE, 8},     {PNG_COLOR_TYPE_RGB, 8},
      {PNG_COLOR_TYPE_RGB, 16},        {PNG_COLOR_TYPE_GRAY_ALPHA, 8},
      {PNG_COLOR_TYPE_GRAY_ALPHA, 16}, {PNG_COLOR_TYPE_RGB_ALPHA, 8},
      {PNG_COLOR_TYPE_RGB_ALPHA, 16}};
  std::vector<PngCase> cases;
  for (const auto &kind : kKinds) {
    for (int interlace : {PNG_INTERLACE_NONE, PNG_INTERLACE_ADAM7}) {
      cases.push_back({kind[0], kind[1], interlace, false});
      if (!(kind[0] & PNG_COLOR_MASK_ALPHA)) cases.push_back({kind[0], kind[1], interlace, true});
    }
  }
  return cases;
}

TEST(Png, ReadsEveryColourTypeAndDepth) {
  const TemporaryFolder folder;
  for (const PngCase &what : AllCases()) {
    SCOPED_TRACE("type " + std::to_string(what.type) + " depth " + std::to_string(what.depth) +
                 " interlace " + std::to_string(what.interlace) + " transparent " +
                 std::to_string(what.transparent));
    const Samples samples(what);
    WriteCase(folder / "case.png", what, samples);
    const Image image = host::ReadPng(folder / "case.png");
    ASSERT_EQ(image.Format(), BRSL_FORMAT_A32);
    ASSERT_EQ(image.Width(), int32_t{kWidth});
    ASSERT_EQ(image.Height(), int32_t{kHeight});
    for (uint32_t y = 0; y < kHeight; y++) {
      for (uint32_t x = 0; x < kWidth; x++) {
        ASSERT_EQ(image.Get(static_cast<int32_t>(x), static_cast<int32_t>(y)),
                  Expected(what, samples, x, y))
            << x << ", " << y;
      }
    }
  }
}

// ---- Pictures -------------------------------------------------------------------------------

Image RandomImage(int32_t format) {
  std::mt19937 random(7);
  Image image(37, 5, format);
  for (int32_t y = 0; y < image.Height(); y++) {
    for (int32_t x = 0; x < image.Width(); x++) image.Set(x, y, random());
  }
  return image;
}

bool SamePixels(const Image &a, const Image &b) {
  for (int32_t y = 0; y < a.Height(); y++) {
    const auto bytes = a.Width() * host::BytesPerPixel(a.Format());
    if (!std::equal(a.Row(y), a.Row(y) + bytes, b.Row(y))) return false;
  }
  return a.Width() == b.Width() && a.Height() == b.Height() && a.Format() == b.Format();
}

TEST(Image, ConvertsBothWaysAndThroughFiles) {
  const TemporaryFolder folder;
  for (int32_t format = 1; format <= 5; format++) {
    SCOPED_TRACE(format);
    Image image = RandomImage(format);
    image.Set(0, 0, 0xFFFFFFFF);
    EXPECT_EQ(image.Get(0, 0), 0xFFFFFFFF);
    const Image wide = image.To(BRSL_FORMAT_A32);
    host::WritePng(folder / "a.png", image, host::PngChannels::kRgba);
    EXPECT_TRUE(SamePixels(host::ReadPng(folder / "a.png"), wide));
    if (format == BRSL_FORMAT_X32) continue;  // its top byte does not travel
    EXPECT_TRUE(SamePixels(wide.To(format), image));
    host::WritePng(folder / "a.png", image);
    const Image opaque = image.To(BRSL_FORMAT_RGB);
    EXPECT_TRUE(SamePixels(host::ReadPng(folder / "a.png").To(BRSL_FORMAT_RGB), opaque));
  }
}

TEST(Image, IsTheLibrarysTarget) {
  for (int32_t format = 1; format <= 5; format++) {
    const Image image = RandomImage(format);
    Image drawn(image.Width(), image.Height(), format);
    drawn.Target();
    std::mt19937 random(7);
    for (int32_t y = 0; y < image.Height(); y++) {
      for (int32_t x = 0; x < image.Width(); x++) {
        BRSL_Dot(x, y, static_cast<uint32_t>(random()), DRAW_SOLID);
      }
    }
    BRSL_Dot(image.Width(), 0, 0xFFFFFF, DRAW_SOLID);
    EXPECT_TRUE(SamePixels(drawn, image)) << format;
  }
}

TEST(Image, RefusesWhatCannotBe) {
  EXPECT_THROW(Image(0, 1, 1), host::Error);
  EXPECT_THROW(Image(1, -1, 1), host::Error);
  EXPECT_THROW(Image(Image::kMaxSide + 1, 1, 1), host::Error);
  EXPECT_THROW(Image(Image::kMaxSide, Image::kMaxSide, 1), host::Error);
  EXPECT_THROW(Image(1, 1, 6), host::Error);
}

// ---- Files that are not well ----------------------------------------------------------------

TEST(Png, EveryCutIsAnErrorAndEveryFlippedByteHarmless) {
  const TemporaryFolder folder;
  const PngCase kinds[] = {{PNG_COLOR_TYPE_PALETTE, 4, PNG_INTERLACE_ADAM7, true},
                           {PNG_COLOR_TYPE_RGB, 16, PNG_INTERLACE_NONE, true}};
  for (const PngCase &what : kinds) {
    WriteCase(folder / "good.png", what, Samples(what));
    const std::string good = ReadBytes(folder / "good.png");
    for (size_t length = 0; length < good.size(); length++) {
      WriteBytes(folder / "cut.png", good.substr(0, length));
      const std::string message = MessageOf(folder / "cut.png");
      EXPECT_NE(message.find(length < 8 ? "not a PNG" : "cut short"), std::string::npos)
          << length << ": " << message;
    }
    size_t refused = 0;
    for (size_t i = 0; i < good.size(); i++) {
      for (const int flip : {0x01, 0x20, 0x80, 0xFF}) {
        std::string bad = good;
        bad[i] = static_cast<char>(bad[i] ^ flip);
        WriteBytes(folder / "bad.png", bad);
        refused += !MessageOf(folder / "bad.png").empty();
      }
    }
    EXPECT_GT(refused, good.size() * 3);
  }
}

// A header of the given size and nothing else.
void WriteHeader(const fs::path &path, uint32_t width, uint32_t height) {
  FILE *file = std::fopen(path.c_str(), "wb");
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_init_io(png, file);
  png_set_user_limits(png, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
  png_set_IHDR(png, info, width, height, 8, PNG_COLOR_TYPE_RGB, 0, 0, 0);
  png_write_info(png, info);
  png_write_chunk(png, reinterpret_cast<png_const_bytep>("IDAT"), nullptr, 0);
  png_destroy_write_struct(&png, &info);
  std::fclose(file);
}

TEST(Png, ErrorsNameTheFileAndTheFault) {
  const TemporaryFolder folder;
  WriteBytes(folder / "text.png", "This is no picture at all.");
  WriteBytes(folder / "empty.png", "");
  fs::create_directory(folder / "folder.png");
  WriteHeader(folder / "wide.png", 2000000000, 1);
  WriteHeader(folder / "many.png", 32767, 32767);
  WriteHeader(folder / "hollow.png", 16000, 16000);
  const char *expected[][2] = {{"missing.png", "cannot be opened: No such file"},
                               {"text.png", "not a PNG file"},
                               {"empty.png", "not a PNG file"},
                               {"folder.png", "is a folder"},
                               {"wide.png", "2000000000x1 pixels are too many"},
                               {"many.png", "32767x32767 pixels are too many"},
                               {"hollow.png", "too small for its 16000x16000 pixels"}};
  for (const auto &[name, fault] : expected) {
    const std::string message = MessageOf(folder / name);
    EXPECT_EQ(message.find((folder / name).string() + ": "), 0u) << message;
    EXPECT_NE(message.find(fault), std::string::npos) << message;
    EXPECT_EQ(message.find('\n'), std::string::npos) << message;
  }
}

TEST(Png, AFailedWriteLeavesNothing) {
  const TemporaryFolder folder;
  const Image image(4, 4, BRSL_FORMAT_X32);
  EXPECT_THROW(host::WritePng(folder / "no/such/folder.png", image), host::Error);
  EXPECT_TRUE(folder.Empty());
  fs::create_directory(folder / "taken.png");
  EXPECT_THROW(host::WritePng(folder / "taken.png", image), host::Error);
  EXPECT_TRUE(fs::is_empty(folder / "taken.png"));
  fs::remove(folder / "taken.png");
  EXPECT_TRUE(folder.Empty());
}

}  // namespace
}  // namespace brisal::test
