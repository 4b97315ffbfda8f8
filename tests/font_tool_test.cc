// brisal font, and the ready-made host's fonts and services.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "host/font.h"
#include "host/png.h"
#include "host/services.h"
#include "support/tool.h"

namespace brisal::test {
namespace {

const std::string kOutlines = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";

class FontTool : public testing::Test {
 protected:
  void SetUp() override {
    if (!fs::exists(kOutlines)) GTEST_SKIP() << kOutlines << " is not on this machine";
  }

  Outcome Make(const std::string &options) {
    return RunTool(folder_, "font make " + kOutlines + " " + options);
  }

  TemporaryFolder folder_;
};

TEST_F(FontTool, SaysWhatIsWrongAndLeavesNothing) {
  ASSERT_EQ(Make("--size 9 -o good.crf").status, 0);
  const std::string good = ReadText(folder_ / "good.crf");
  const std::string outlines = ReadText(kOutlines);
  const auto with = [&](size_t at, int32_t value) {
    std::string other = good;
    std::memcpy(&other[at], &value, sizeof value);
    return other;
  };
  WriteText(folder_ / "notes.txt", "Not a font at all, but long enough to be one.");
  WriteText(folder_ / "empty.crf", "");
  WriteText(folder_ / "short.crf", good.substr(0, 20));
  WriteText(folder_ / "cut.crf", good.substr(0, good.size() - 1));
  WriteText(folder_ / "version.crf", with(12, 2));
  WriteText(folder_ / "many.crf", with(28, 65537));
  WriteText(folder_ / "none.crf", with(28, -1));
  WriteText(folder_ / "damaged.crf", with(40 + 32 * 256 + 33 * 4 + 28, 0x7FFFFFFF));
  WriteText(folder_ / "cut.ttf", outlines.substr(0, outlines.size() / 2));
  fs::create_directory(folder_ / "folder");
  const std::set<std::string> before = Names(folder_.Path());

  const std::vector<std::array<std::string, 2>> cases = {
      {"info nowhere.crf", "nowhere.crf: cannot be opened: No such file or directory"},
      {"info folder", "folder: is a folder"},
      {"info notes.txt", "notes.txt: not a font file"},
      {"info empty.crf", "empty.crf: not a font file"},
      {"info short.crf", "short.crf: cut short"},
      {"info cut.crf", "cut.crf: cut short"},
      {"info version.crf", "version.crf: a font of version 2, where only 1 is known"},
      {"info many.crf", "many.crf: damaged: no font has 65537 characters"},
      {"info none.crf", "none.crf: damaged: no font has -1 characters"},
      {"info damaged.crf", "damaged.crf: damaged"},
      {"show cut.crf -o a.png", "cut.crf: cut short"},
      {"show good.crf -o no/a.png", "no/a.png: cannot be written: No such file or directory"},
      {"show good.crf -o folder", "folder: cannot be written: Is a directory"},
      {"show good.crf -o ''", "--out: the file has no name"},
      {"make nowhere.ttf --size 9 -o a.crf", "nowhere.ttf: cannot be opened: No such file"},
      {"make notes.txt --size 9 -o a.crf", "notes.txt: not a font that FreeType knows"},
      {"make cut.ttf --size 9 -o a.crf", "cut.ttf: "},
      {"make " + kOutlines + " --size 3 -o a.crf", "--size: 3 is not 4 to 512"},
      {"make " + kOutlines + " --size 513 -o a.crf", "--size: 513 is not 4 to 512"},
      {"make " + kOutlines + " --size 9 --depth 16 -o a.crf", "--depth: 16 is not 8 or 32"},
      {"make " + kOutlines + " --size 9 --codes all -o a.crf", "--codes: 'all' is not latin1"},
      {"make " + kOutlines + " --size 9 --codes 9-5 -o a.crf", "--codes: the range 9-5 is empty"},
      {"make " + kOutlines + " --size 9 --codes 1-70000 -o a.crf", "no code 70000"},
      {"make " + kOutlines + " --size 9 --codes 1-9 -o a.crf", "has none of the characters"},
      {"make " + kOutlines + " --size 9 -o no/a.crf", "no/a.crf: cannot be written"},
      {"make --size 9 -o a.crf", "outlines is required"},
      {"", "subcommand is required"},
  };
  for (const auto &[arguments, message] : cases) {
    SCOPED_TRACE(arguments);
    const Outcome outcome = RunTool(folder_, "font " + arguments);
    EXPECT_EQ(outcome.status, 1);
    const size_t begin = outcome.text.find("brisal: ");
    ASSERT_NE(begin, std::string::npos) << outcome.text;
    EXPECT_NE(outcome.text.find(message, begin), std::string::npos) << outcome.text;
    EXPECT_EQ(outcome.text.find('\n', begin), outcome.text.size() - 1) << outcome.text;
    EXPECT_EQ(Names(folder_.Path()), before);
  }
}

TEST_F(FontTool, MakesShowsAndTells) {
  for (const char *options : {"--size 4", "--size 16 --depth 32", "--size 17 --solid --codes cp437",
                              "--size 60 --codes 33-400"}) {
    SCOPED_TRACE(options);
    const Outcome made = Make(std::string(options) + " -o font.crf");
    ASSERT_EQ(made.status, 0) << made.text;
    EXPECT_EQ(made.text, "The font is in font.crf\n");
    const Outcome info = RunTool(folder_, "font info font.crf");
    EXPECT_EQ(info.status, 0) << info.text;
    EXPECT_NE(info.text.find("with a glyph"), std::string::npos) << info.text;
    for (const char *text : {"", " --text 'Gr\xC3\xBC\xC3\x9F Gott \xE2\x82\xAC'"}) {
      const Outcome shown = RunTool(folder_, std::string("font show font.crf -o sheet.png") + text);
      ASSERT_EQ(shown.status, 0) << shown.text;
      EXPECT_GE(host::ReadPng(folder_ / "sheet.png").Width(), 640);
    }
  }
}

// The rows of a line of text that have ink.
std::array<int32_t, 2> InkRows(const CRF_Font *font, const std::string &text, int32_t rows) {
  host::Image image(CRF_TextWidth(font, text.data(), 0) + 40, rows, BRSL_FORMAT_X32);
  image.Target();
  CRF_Draw(font, text.data(), 0, 20, 0, 0xFFFFFFFF);
  std::array<int32_t, 2> ink = {rows, 0};
  for (int32_t y = 0; y < rows; y++) {
    for (int32_t x = 0; x < image.Width(); x++) {
      if ((image.Get(x, y) & 0xFF) < 128) continue;
      ink[0] = std::min(ink[0], y);
      ink[1] = y + 1;
    }
  }
  return ink;
}

TEST_F(FontTool, LettersStandOnALine) {
  for (const int size : {12, 24, 48}) {
    ASSERT_EQ(Make("--size " + std::to_string(size) + " -o font.crf").status, 0);
    const host::Font font = host::LoadFont(folder_ / "font.crf");
    const int32_t height = CRF_GetMaxChrSize(font.get(), 1);
    const auto flat = InkRows(font.get(), "EHTZ", height);
    EXPECT_EQ(InkRows(font.get(), "xz", height)[1], flat[1]);
    EXPECT_GT(InkRows(font.get(), "pqy", height)[1], flat[1]);
    EXPECT_LT(InkRows(font.get(), "\xC5\xC4", height)[0], flat[0]);
    // About three quarters of the em are capitals, and letters keep their distance.
    EXPECT_NEAR(flat[1] - flat[0], size * 0.73, 1.5);
    const int32_t one = CRF_TextWidth(font.get(), "n", 1);
    EXPECT_NEAR(one, size * 0.63, 1.0);
    EXPECT_EQ(CRF_TextWidth(font.get(), "nnnn", 4), 4 * one);
  }
}

TEST(HostFonts, AreSavedAndLoaded) {
  const TemporaryFolder folder;
  const host::Font font = host::MakeFont(3);
  RFCI_SetChrWidth(CRF_GetChrInfoPtr(font.get(), 0), 2, 77);
  host::SaveFont(folder / "font.crf", font.get());
  EXPECT_EQ(CRF_TextWidth(host::LoadFont(folder / "font.crf").get(), "\2\2", 2), 154);
  // By the library's own calls, too.
  CRF_Save(font.get(), (folder / "again.crf").c_str());
  EXPECT_EQ(ReadText(folder / "again.crf"), ReadText(folder / "font.crf"));
  const host::Font again(CRF_Load((folder / "again.crf").c_str()));
  EXPECT_EQ(CRF_TextWidth(again.get(), "\2", 1), 77);
  EXPECT_EQ(CRF_Load((folder / "none.crf").c_str()), nullptr);
  CRF_Save(font.get(), (folder / "no/font.crf").c_str());
  EXPECT_EQ(Names(folder.Path()), (std::set<std::string>{"again.crf", "font.crf"}));
}

TEST(HostServices, RememberWhatTheyCannotReport) {
  const TemporaryFolder folder;
  host::InstallServices();
  const host::Font font = host::MakeFont(9);
  host::SaveFont(folder / "font.crf", font.get());
  const std::string bytes = ReadText(folder / "font.crf");
  WriteText(folder / "cut.crf", bytes.substr(0, bytes.size() - 1));
  for (const bool cut : {false, true}) {
    FILE *stream = std::fopen((folder / (cut ? "cut.crf" : "font.crf")).c_str(), "rb");
    host::ServiceFile file(stream);
    const host::Font loaded(CRF_Read(file.Handle()));
    EXPECT_EQ(loaded == nullptr, cut);
    EXPECT_EQ(file.IsCut(), cut);
    EXPECT_EQ(file.ErrorCode(), 0);
    CRF_Write(font.get(), file.Handle());
    EXPECT_NE(file.ErrorCode(), 0);
    std::fclose(stream);
  }
}

}  // namespace
}  // namespace brisal::test
