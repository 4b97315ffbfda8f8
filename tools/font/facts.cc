#include "tools/font/facts.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <cstring>
#include <set>

namespace brisal::tools {

namespace {

// The beginning of a glyph block.
struct BlockHeader {
  int32_t size;
  int32_t width;
  int32_t height;
  int32_t depth;
  int32_t firstRow;
  int32_t endRow;
  int32_t runTable;
  int32_t pixelTable;
};

double Percent(int64_t part, int64_t whole) {
  return whole > 0 ? 100.0 * static_cast<double>(part) / static_cast<double>(whole) : 0;
}

const char *NameOfMode(int32_t mode) {
  switch (mode) {
    case 0: return "0, written as they are";
    case 1: return "1, blended into the target";
    case 2: return "2, blended over the backdrop";
    default: return "unknown";
  }
}

}  // namespace

FontFacts::FontFacts(const std::filesystem::path &path)
    : header(host::ReadFontHeader(path)), font(host::LoadFont(path)) {
  std::set<const void *> seen;
  for (int32_t code = 0; code < header.count; code++) {
    const void *block = CRF_GetChrBmp(font.get(), code);
    if (block == nullptr) continue;
    codes.push_back(code);
    BlockHeader glyph;
    std::memcpy(&glyph, block, sizeof glyph);
    const CRF_ChrInfo &info = *CRF_GetChrInfoPtr(font.get(), code);
    const int64_t advance = int64_t{info.underHang} + info.width + info.overHang;
    leastAdvance = codes.size() == 1 ? advance : std::min(leastAdvance, advance);
    mostAdvance = codes.size() == 1 ? advance : std::max(mostAdvance, advance);
    solid += glyph.depth == 8 && glyph.pixelTable == 0;
    width = std::max(width, glyph.width);
    height = std::max({height, glyph.height, glyph.endRow});
    copiedBytes += glyph.size;
    plainBytes +=
        16 + std::max<int64_t>(glyph.width, 0) * std::max(glyph.height, 0) * glyph.depth / 8;
    if (!seen.insert(block).second) continue;
    blocks++;
    blockBytes += glyph.size;
  }
}

void PrintFacts(const std::filesystem::path &path) {
  const FontFacts facts(path);
  const host::FontHeader &header = facts.header;
  const auto glyphs = static_cast<int64_t>(facts.codes.size());
  std::printf("file         %s, %" PRIu64 " bytes\n", path.string().c_str(),
              static_cast<uint64_t>(std::filesystem::file_size(path)));
  std::printf("version      %d\n", header.version);
  std::printf("characters   %d, %" PRId64 " of them with a glyph", header.count, glyphs);
  if (glyphs > 0) std::printf(", the codes %d to %d", facts.codes.front(), facts.codes.back());
  std::printf("\ndepth        %d", header.depth);
  if (facts.solid > 0) std::printf(", %d glyphs are solid", facts.solid);
  std::printf("\ndraw mode    %s\n", NameOfMode(header.drawMode));
  std::printf("backdrop     0x%08X\n", header.backdrop);
  std::printf("largest      %dx%d pixels, by the font; %dx%d by its glyphs\n", header.maxWidth,
              header.maxHeight, facts.width, facts.height);
  std::printf("advance      %" PRId64 " to %" PRId64 " pixels\n", facts.leastAdvance,
              facts.mostAdvance);
  std::printf("glyph data   %" PRId64 " bytes in %" PRId64 " blocks\n", facts.blockBytes,
              facts.blocks);
  std::printf("saved        %" PRId64 " bytes (%.0f %%) by characters that share a glyph\n",
              facts.copiedBytes - facts.blockBytes,
              Percent(facts.copiedBytes - facts.blockBytes, facts.copiedBytes));
  std::printf("             %" PRId64 " bytes (%.0f %%) against plain images\n",
              facts.plainBytes - facts.blockBytes,
              Percent(facts.plainBytes - facts.blockBytes, facts.plainBytes));
}

}  // namespace brisal::tools
