#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "host/png.h"
#include "support/tool.h"

namespace brisal::test {
namespace {

std::set<std::string> Matches(const std::string &text, const std::string &pattern) {
  const std::regex regex(pattern);
  std::set<std::string> found;
  for (auto i = std::sregex_iterator(text.begin(), text.end(), regex); i != std::sregex_iterator();
       i++) {
    found.insert((*i)[1]);
  }
  return found;
}

void WritePhoto(const fs::path &path) {
  host::Image photo(50, 70, BRSL_FORMAT_A32);
  for (int32_t y = 0; y < 70; y++) {
    for (int32_t x = 0; x < 50; x++) {
      photo.Set(x, y, 0xFF000000 | static_cast<uint32_t>(x * 5 << 16 | y * 3 << 8));
    }
  }
  host::WritePng(path, photo);
}

TEST(Tool, SaysWhatIsWrongAndLeavesNothing) {
  const TemporaryFolder folder;
  WritePhoto(folder / "photo.png");
  const std::string photo = ReadText(folder / "photo.png");
  WriteText(folder / "cut.png", photo.substr(0, photo.size() / 2));
  WriteText(folder / "notes.txt", "not a picture");
  fs::create_directory(folder / "mine");
  WriteText(folder / "mine/index.html", "my own page");
  fs::create_directories(folder / "blocked/index.html");
  const std::set<std::string> before = Names(folder.Path());

  const char *cases[][2] = {
      {"gallery --picture none.png", "none.png: cannot be opened: No such file or directory"},
      {"gallery --picture notes.txt", "notes.txt: not a PNG file"},
      {"gallery --picture cut.png", "cut.png: cut short"},
      {"gallery --picture mine", "mine: is a folder"},
      {"gallery --size 8x8 --out notes.txt", "notes.txt: cannot be written: Not a directory"},
      {"gallery --size 8x8 --out notes.txt/a/b", "notes.txt: cannot be written: Not a directory"},
      {"gallery --size 8x8 --out /proc/none/a", "/proc: cannot be written"},
      {"gallery --size 8x8 --out ''", "--out: "},
      {"gallery --size 8x8 --out mine", "mine/index.html: is not from here"},
      {"gallery --size 8x8 --out blocked", "blocked/index.html: is not from here"},
      {"gallery --size 0x10", "a picture of 0x10 has no pixels"},
      {"gallery --size 16385x10", "16385x10 is too large"},
      {"gallery --size 16384x16384", "16384x16384 is too large"},
      {"gallery --size 123456789x1", "is not WIDTHxHEIGHT"},
      {"gallery --size -5x5", "is not WIDTHxHEIGHT"},
      {"gallery --size 640x480x3", "is not WIDTHxHEIGHT"},
      {"gallery --size big", "'big' is not WIDTHxHEIGHT"},
      {"gallery --hash --out a", "--hash"},
      {"gallery --format 888", "'888' is not one of 565, 555, rgb, x32, a32, all"},
      {"gallery --no-such-option", "--no-such-option"},
      {"paint", "not expected: paint"},
      {"", "no command given"},
  };
  for (const auto &[arguments, message] : cases) {
    SCOPED_TRACE(arguments);
    const Outcome outcome = RunTool(folder, arguments);
    EXPECT_EQ(outcome.status, 1);
    const size_t begin = outcome.text.find("brisal: ");
    ASSERT_NE(begin, std::string::npos) << outcome.text;
    EXPECT_NE(outcome.text.find(message, begin), std::string::npos) << outcome.text;
    EXPECT_EQ(outcome.text.find('\n', begin), outcome.text.size() - 1) << outcome.text;
    EXPECT_EQ(Names(folder.Path()), before);
  }
  EXPECT_EQ(ReadText(folder / "mine/index.html"), "my own page");
}

// Every picture that the page names is there, readable and of the size that the page gives.
void CheckPage(const fs::path &folder, size_t pictures) {
  const std::string page = ReadText(folder / "index.html");
  const std::regex image("<img src=\"([^\"]+)\" width=\"(\\d+)\" height=\"(\\d+)\"");
  std::set<std::string> named;
  for (auto i = std::sregex_iterator(page.begin(), page.end(), image); i != std::sregex_iterator();
       i++) {
    const host::Image picture = host::ReadPng(folder / (*i)[1].str());
    EXPECT_EQ(std::to_string(picture.Width()), (*i)[2].str());
    EXPECT_EQ(std::to_string(picture.Height()), (*i)[3].str());
    named.insert((*i)[1]);
  }
  EXPECT_EQ(named.size(), pictures);
  EXPECT_TRUE(Matches(page, "((?:https?:)?//[a-z]+\\.)").empty());
}

size_t CountPng(const fs::path &folder) {
  const std::set<std::string> names = Names(folder);
  return static_cast<size_t>(std::count_if(
      names.begin(), names.end(), [](const auto &name) { return name.ends_with(".png"); }));
}

// The functions of the header's sections, without those that have nothing to show.
std::set<std::string> DrawingFunctions(const std::string &header) {
  const std::set<std::string> silent = {"State and pixel formats", "Memory", "Host language",
                                        "Host services", "Fonts"};
  const std::string mark = "\n/* ---- ";
  std::set<std::string> names;
  for (size_t begin = header.find(mark); begin != std::string::npos;) {
    const size_t end = header.find(mark, begin + 1);
    const size_t title = begin + mark.size();
    if (!silent.contains(header.substr(title, header.find(" --", title) - title))) {
      names.merge(Matches(header.substr(begin, end - begin), "BRSL_CALL\\s+([A-Za-z0-9_]+)\\("));
    }
    begin = end;
  }
  for (const char *idle : {"SceneVert_iXYZ", "SceneVert_iTransXYZ", "SceneVert_iXYZUV",
                           "BRSL_GetVertexBufferModulo"}) {
    names.erase(idle);
  }
  return names;
}

TEST(Tool, DrawsAPageOfEveryFunction) {
  const TemporaryFolder folder;
  WritePhoto(folder / "photo.png");
  const Outcome outcome = RunTool(folder, "gallery --picture photo.png --size 160x120 --out a/b/c");
  ASSERT_EQ(outcome.status, 0) << outcome.text;
  EXPECT_TRUE(outcome.text.ends_with("The gallery is in a/b/c/index.html\n")) << outcome.text;
  EXPECT_EQ(Names(folder / "a/b").size(), CountPng(folder / "a/b") + 2);
  CheckPage(folder / "a/b/c", CountPng(folder / "a/b/c"));

  const std::set<std::string> drawing = DrawingFunctions(ReadText(BRISAL_HEADER));
  const std::string page = ReadText(folder / "a/b/c/index.html");
  EXPECT_GT(drawing.size(), 60u);
  for (const std::string &name : drawing) {
    EXPECT_NE(page.find("<b>" + name + "</b>("), std::string::npos) << name;
  }
}

TEST(Tool, HashesTheGallery) {
  const TemporaryFolder folder;
  const Outcome outcome = RunTool(folder, "gallery --hash");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.text, ReadText(BRISAL_GALLERY_HASH));
  EXPECT_TRUE(folder.Empty());
}

TEST(Tool, KeepsWhatIsInTheFolder) {
  const TemporaryFolder folder;
  WriteText(folder / "notes.txt", "mine");
  for (int round = 0; round < 2; round++) {
    const Outcome outcome = RunTool(folder, "gallery --format 555 --size 40x30 --out .");
    ASSERT_EQ(outcome.status, 0) << outcome.text;
    CheckPage(folder.Path(), CountPng(folder.Path()));
    EXPECT_EQ(Names(folder.Path()).size(), CountPng(folder.Path()) + 2);
  }
  EXPECT_EQ(ReadText(folder / "notes.txt"), "mine");
}

TEST(Tool, DrawsInAnySize) {
  const TemporaryFolder folder;
  for (const char *size : {"1x1", "2x3", "1x200", "300x1", "31x90", "7x7"}) {
    const Outcome outcome = RunTool(folder, std::string("gallery --out g --size ") + size);
    EXPECT_EQ(outcome.status, 0) << size << ": " << outcome.text;
  }
}

TEST(Tool, TellsAboutItself) {
  const TemporaryFolder folder;
  const std::string version = std::to_string(BRSL_VERSION_MAJOR) + "." +
                              std::to_string(BRSL_VERSION_MINOR) + "." +
                              std::to_string(BRSL_VERSION_PATCH);
  EXPECT_EQ(RunTool(folder, "--version").text, "brisal " + version + "\n");
  const Outcome info = RunTool(folder, "info");
  EXPECT_EQ(info.status, 0);
  for (const char *word : {version.c_str(), "5:6:5", "ARGB", "MMX switch", "instruction set"}) {
    EXPECT_NE(info.text.find(word), std::string::npos) << info.text;
  }
  for (const char *help : {"--help", "gallery --help", "info --help"}) {
    const Outcome outcome = RunTool(folder, help);
    EXPECT_EQ(outcome.status, 0) << help;
    EXPECT_NE(outcome.text.find("--help"), std::string::npos) << outcome.text;
  }
  EXPECT_TRUE(folder.Empty());
}

}  // namespace
}  // namespace brisal::test
