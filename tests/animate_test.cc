// The animate command: what it writes, what it says when it cannot, and its window.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "host/png.h"
#include "support/tool.h"

namespace brisal::test {
namespace {

struct Chunk {
  std::string type;
  std::string data;
};

uint32_t Number(const std::string &bytes, size_t at, size_t size) {
  uint32_t number = 0;
  for (size_t i = at; i < at + size; i++) number = number << 8 | static_cast<uint8_t>(bytes[i]);
  return number;
}

// The sum over type and data that ends a chunk, bit by bit.
uint32_t SumOf(const std::string &bytes) {
  uint32_t sum = 0xFFFFFFFF;
  for (const char byte : bytes) {
    sum ^= static_cast<uint8_t>(byte);
    for (int bit = 0; bit < 8; bit++) sum = sum & 1 ? sum >> 1 ^ 0xEDB88320 : sum >> 1;
  }
  return ~sum;
}

std::vector<Chunk> ReadChunks(const fs::path &path) {
  const std::string file = ReadText(path);
  EXPECT_EQ(file.substr(0, 8), "\x89PNG\r\n\x1A\n");
  std::vector<Chunk> chunks;
  for (size_t at = 8; at + 12 <= file.size();) {
    const uint32_t size = Number(file, at, 4);
    chunks.push_back({file.substr(at + 4, 4), file.substr(at + 8, size)});
    EXPECT_EQ(Number(file, at + 8 + size, 4), SumOf(file.substr(at + 4, size + 4)));
    at += 12 + size;
  }
  return chunks;
}

std::string Bytes(uint32_t number) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(number >> shift);
  return bytes;
}

// A frame of an animation as a picture of its own.
void WriteFrame(const fs::path &path, const std::string &header, const std::string &data) {
  std::string file = "\x89PNG\r\n\x1A\n";
  for (const std::string &chunk : {"IHDR" + header, "IDAT" + data, std::string("IEND")}) {
    file += Bytes(static_cast<uint32_t>(chunk.size() - 4)) + chunk + Bytes(SumOf(chunk));
  }
  WriteText(path, file);
}

bool SamePictures(const fs::path &a, const fs::path &b) {
  const host::Image first = host::ReadPng(a), second = host::ReadPng(b);
  if (first.Width() != second.Width() || first.Height() != second.Height()) return false;
  for (int32_t y = 0; y < first.Height(); y++) {
    if (!std::equal(first.Row(y), first.Row(y) + first.Width() * 4, second.Row(y))) return false;
  }
  return true;
}

TEST(Animate, WritesTheSameFramesBothWays) {
  const TemporaryFolder folder;
  const std::string common = " --size 70x50 --rate 2 --frames 5 --format 565";
  for (int round = 0; round < 2; round++) {
    ASSERT_EQ(RunTool(folder, "animate --out a/b" + common).status, 0);
    ASSERT_EQ(RunTool(folder, "animate --out a.apng" + common).status, 0);
  }
  EXPECT_EQ(Names(folder / "a/b").size(), 6u);
  EXPECT_NE(ReadText(folder / "a/b/index.html").find("frame-00000.png"), std::string::npos);

  const std::vector<Chunk> chunks = ReadChunks(folder / "a.apng");
  ASSERT_EQ(chunks.size(), 13u);
  EXPECT_EQ(chunks[0].type, "IHDR");
  EXPECT_EQ(chunks[1].type, "acTL");
  EXPECT_EQ(Number(chunks[1].data, 0, 4), 5u);
  EXPECT_EQ(chunks.back().type, "IEND");
  uint32_t sequence = 0;
  for (size_t frame = 0; frame < 5; frame++) {
    const Chunk &control = chunks[2 + 2 * frame], &pixels = chunks[3 + 2 * frame];
    EXPECT_EQ(control.type, "fcTL");
    EXPECT_EQ(Number(control.data, 0, 4), sequence++);
    EXPECT_TRUE(Number(control.data, 4, 4) == 70 && Number(control.data, 8, 4) == 50);
    EXPECT_TRUE(Number(control.data, 20, 2) == 1 && Number(control.data, 22, 2) == 2);
    EXPECT_EQ(pixels.type, frame == 0 ? "IDAT" : "fdAT");
    if (frame > 0) {
      EXPECT_EQ(Number(pixels.data, 0, 4), sequence++);
    }
    WriteFrame(folder / "frame.png", chunks[0].data, pixels.data.substr(frame == 0 ? 0 : 4));
    const std::string name = "a/b/frame-0000" + std::to_string(frame) + ".png";
    EXPECT_TRUE(SamePictures(folder / "frame.png", folder / name)) << name;
  }
  EXPECT_FALSE(SamePictures(folder / "a/b/frame-00000.png", folder / "a/b/frame-00003.png"));
}

TEST(Animate, SaysWhatIsWrongAndLeavesNothing) {
  const TemporaryFolder folder;
  WriteText(folder / "notes.txt", "mine");
  fs::create_directories(folder / "mine.apng");
  fs::create_directories(folder / "mine");
  WriteText(folder / "mine/frame-00000.png", "my own picture");
  const std::set<std::string> before = Names(folder.Path());
  const char *cases[][2] = {
      {"", "either --out or --window is needed"},
      {"--out a --window", "either --out or --window is needed"},
      {"--out ''", "--out: "},
      {"--out notes.txt", "notes.txt: cannot be written: Not a directory"},
      {"--out none/a.apng", "none/a.apng: cannot be written: No such file or directory"},
      {"--out mine.apng", "mine.apng: cannot be written: Is a directory"},
      {"--out mine --frames 1", "mine/frame-00000.png: is not from here"},
      {"--out a --size 20000x2", "20000x2 is too large"},
      {"--out a --size 0x2", "has no pixels"},
      {"--out a --size big", "'big' is not WIDTHxHEIGHT"},
      {"--out a --rate 0", "--rate: 0 is not 1 to 240"},
      {"--out a --rate 1000", "--rate: 1000 is not 1 to 240"},
      {"--out a --frames -1", "--frames: -1 is not 0 to 99999"},
      {"--out a --format all", "'all' is not one of 565, 555, rgb, x32, a32"},
      {"--out /dev/full/a.apng --frames 1", "/dev/full/a.apng: cannot be written"},
  };
  for (const auto &[arguments, message] : cases) {
    SCOPED_TRACE(arguments);
    const Outcome outcome = RunTool(folder, std::string("animate ") + arguments);
    EXPECT_EQ(outcome.status, 1);
    const size_t begin = outcome.text.find("brisal: ");
    ASSERT_NE(begin, std::string::npos) << outcome.text;
    EXPECT_NE(outcome.text.find(message, begin), std::string::npos) << outcome.text;
    EXPECT_EQ(outcome.text.find('\n', begin), outcome.text.size() - 1) << outcome.text;
    EXPECT_EQ(Names(folder.Path()), before);
  }
  // Stopped half way, it takes its temporary files with it.
  const Outcome stopped = RunIn(folder, "timeout --preserve-status -s INT 0.3 '" BRISAL_TOOL "'",
                                "animate --out long.apng");
  EXPECT_NE(stopped.status, 0) << stopped.text;
  EXPECT_EQ(Names(folder.Path()), before);
}

TEST(Animate, DrawsInAnySizeAndFormat) {
  const TemporaryFolder folder;
  for (const char *size : {"1x1", "2x3", "1x200", "300x1", "31x90"}) {
    for (const char *format : {"565", "555", "rgb", "x32", "a32"}) {
      const Outcome outcome =
          RunTool(folder, std::string("animate --out a.apng --rate 1 --frames 8 ") + "--size " +
                              size + " --format " + format);
      EXPECT_EQ(outcome.status, 0) << size << ": " << outcome.text;
    }
  }
}

TEST(Animate, PlaysInAWindow) {
  const TemporaryFolder folder;
#ifdef BRISAL_HAS_WINDOW
  const Outcome blind =
      RunIn(folder, "env -u DISPLAY -u WAYLAND_DISPLAY '" BRISAL_TOOL "'", "animate --window");
  EXPECT_EQ(blind.status, 1);
  EXPECT_NE(blind.text.find("brisal: --window: no display"), std::string::npos) << blind.text;
  if (std::system("command -v xvfb-run xauth >/dev/null") != 0) GTEST_SKIP() << "no xvfb-run";
  // What SDL loads does not give all of its memory back.
  const Outcome seen = RunIn(folder,
                             "env -u WAYLAND_DISPLAY ASAN_OPTIONS=detect_leaks=0 xvfb-run -a "
                             "'" BRISAL_TOOL "'",
                             "animate --window --frames 20 --size 90x60");
  EXPECT_EQ(seen.status, 0) << seen.text;
  EXPECT_NE(seen.text.find("20 frames, "), std::string::npos) << seen.text;
#else
  const Outcome outcome = RunTool(folder, "animate --window");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.text.find("made without SDL 2"), std::string::npos) << outcome.text;
#endif
}

}  // namespace
}  // namespace brisal::test
