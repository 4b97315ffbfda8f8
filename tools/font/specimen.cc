#include "tools/font/specimen.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "tools/font/facts.h"

namespace brisal::tools {

namespace {

constexpr uint32_t kPaper = 0xFFFBF7EE;
constexpr uint32_t kInk = 0xFF23272E;
constexpr uint32_t kQuiet = 0xFF8C857A;
constexpr uint32_t kAccent = 0xFFB23A22;
constexpr uint32_t kLine = 0xFFDDD5C5;

constexpr int32_t kMostRows = 6000;  // where the sheet of a large font ends

constexpr const char *kAlphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZ abcdefghijklmnopqrstuvwxyz 0123456789 "
    ".,;:!? &@#%$ ()[]{}<> +-*/= \"quotes\"";
constexpr const char *kParagraph =
    "A raster font is a drawer of small pictures. Each was drawn once, with care, at the size at "
    "which it is read; to set a line of text is to lay them side by side. Sphinx of black quartz, "
    "judge my vow: five dozen jugs of liquid veneer boxed by the quick, lazy wizard.";

// Codes of a font in the order of Latin-1; what that does not have becomes a question mark.
std::string ToLatin1(const std::string &utf8) {
  std::string text;
  for (size_t i = 0; i < utf8.size(); i++) {
    const auto byte = static_cast<uint8_t>(utf8[i]);
    if (byte < 0x80) {
      text += utf8[i];
    } else if (byte >= 0xC0) {
      const bool fits = (byte == 0xC2 || byte == 0xC3) && i + 1 < utf8.size();
      text += fits ? static_cast<char>(byte << 6 | (utf8[i + 1] & 0x3F)) : '?';
    }
  }
  return text;
}

// Composes the sheet from top to bottom: once to learn its height, once to draw.
class Sheet {
 public:
  Sheet(const FontFacts &facts, std::string title, std::string text)
      : facts_(facts),
        font_(facts.font.get()),
        line_(std::min(facts.height, 1000)),
        margin_(std::max(16, line_)),
        width_(std::clamp(36 * line_, 640, 2400)),
        title_(std::move(title)),
        text_(std::move(text)) {
    CRF_SetMaxChrSize(font_, std::min(facts.width, 32767), std::min(facts.height, 32767));
    CRF_DrawMode(font_, 1);
  }

  host::Image Draw() {
    Compose();
    image_ = host::Image(width_, std::min(y_ + margin_, kMostRows), BRSL_FORMAT_X32);
    Box(0, 0, width_, image_.Height(), kPaper);
    drawing_ = true;
    Compose();
    return std::move(image_);
  }

 private:
  void Compose() {
    y_ = margin_;
    Enlarged(title_, 3, kAccent);
    Paragraph(std::to_string(facts_.codes.size()) + " glyphs of depth " +
                  std::to_string(facts_.header.depth) + ", up to " + std::to_string(facts_.width) +
                  " x " + std::to_string(facts_.height) + " pixels",
              kQuiet);
    Rule();
    Paragraph(kAlphabet, kInk);
    Rule();
    Paragraph(text_.empty() ? kParagraph : text_, kInk);
    Rule();
    Modes();
    Rule();
    Enlarged("Rag 3&", 8, kInk);
    Rule();
    Glyphs();
  }

  // Whether that many rows from here on are to be drawn.
  bool Draws(int32_t rows) const { return drawing_ && y_ + rows <= image_.Height(); }

  int32_t Inner() const { return width_ - 2 * margin_; }
  int32_t WidthOf(const std::string &text) const {
    return CRF_TextWidth(font_, text.data(), static_cast<int32_t>(text.size()));
  }

  void Box(int32_t x, int32_t y, int32_t width, int32_t height, uint32_t colour) {
    image_.Target();
    BRSL_Box(x, y, x + width, y + height, colour, BRSL_FILLED | DRAW_SOLID);
  }

  void Put(const std::string &text, int32_t x, int32_t y, uint32_t colour) {
    CRF_Draw(font_, text.data(), static_cast<int32_t>(text.size()), x, y, colour);
  }

  void Rule() {
    y_ += line_ / 2;
    if (Draws(1)) Box(margin_, y_, Inner(), 1, kLine);
    y_ += line_ / 2 + 1;
  }

  // Words in as many lines as they need.
  void Paragraph(const std::string &text, uint32_t colour) {
    std::string line;
    const auto flush = [&] {
      if (Draws(line_)) {
        image_.Target();
        Put(line, margin_, y_, colour);
      }
      y_ += line_ + line_ / 6;
      line.clear();
    };
    for (size_t begin = 0; begin < text.size();) {
      const size_t end = std::min(text.find(' ', begin), text.size());
      const std::string word = text.substr(begin, end - begin);
      std::string longer = line;
      if (!line.empty()) longer += ' ';
      longer += word;
      if (!line.empty() && WidthOf(longer) > Inner()) {
        flush();
        line = word;
      } else {
        line = longer;
      }
      begin = end + 1;
    }
    if (!line.empty()) flush();
  }

  // Every pixel as a square, as large as fits.
  void Enlarged(const std::string &text, int32_t scale, uint32_t colour) {
    const int32_t width = std::clamp(WidthOf(text) + facts_.width, 1, Inner());
    scale = std::clamp(Inner() / width, 1, scale);
    if (Draws(line_ * scale)) {
      host::Image small(width, line_, BRSL_FORMAT_X32);
      small.Target();
      BRSL_Box(0, 0, width, line_, kPaper, BRSL_FILLED | DRAW_SOLID);
      CRF_Draw(font_, text.data(), static_cast<int32_t>(text.size()), 0, 0, colour);
      for (int32_t y = 0; y < line_ * scale; y++) {
        for (int32_t x = 0; x < width * scale; x++) {
          image_.Set(margin_ + x, y_ + y, small.Get(x / scale, y / scale));
        }
      }
    }
    y_ += line_ * scale + line_ / 4;
  }

  void Modes() {
    constexpr const char *kNames[] = {"0: written", "1: blended", "2: on its backdrop"};
    const int32_t gap = margin_ / 2;
    const int32_t width = (Inner() - 2 * gap) / 3;
    const int32_t height = 3 * line_;
    for (int32_t mode = 0; Draws(height) && mode < 3; mode++) {
      const int32_t x = margin_ + mode * (width + gap);
      image_.Target();
      BRSL_ShadeBox(x, y_, x + width, y_ + height, 0x3060A0, 0xE0A040, 0x802060, 0x40A080,
                    DRAW_SOLID);
      BRSL_SetBufferViewPort(x, y_, x + width, y_ + height);
      CRF_DrawMode(font_, mode);
      CRF_BackdropColour(font_, kInk);
      CRF_Draw(font_, kNames[mode], 0, x + line_ / 2, y_ + line_ / 3, 0xFFFFFFFF);
      CRF_Draw(font_, "Half and half", 0, x + line_ / 2, y_ + line_ * 5 / 3, 0x80FFF0A0);
    }
    CRF_DrawMode(font_, 1);
    y_ += height + line_ / 4;
  }

  // Of the codes that text can name.
  void Glyphs() {
    const int32_t cell = facts_.width + std::max(6, line_ / 3);
    const int32_t row = line_ + std::max(6, line_ / 3);
    const int32_t columns = std::max(1, Inner() / cell);
    int32_t column = 0;
    for (const int32_t code : facts_.codes) {
      if (code > 255) break;
      if (column == columns) {
        y_ += row;
        column = 0;
      }
      if (Draws(row)) PutGlyph(code, margin_ + column * cell, cell, row);
      column++;
    }
    y_ += row;
  }

  void PutGlyph(int32_t code, int32_t x, int32_t cell, int32_t row) {
    const CRF_ChrInfo &info = *CRF_GetChrInfoPtr(font_, code);
    const int64_t advance = int64_t{info.underHang} + info.width + info.overHang;
    const auto left = static_cast<int32_t>(std::clamp<int64_t>((cell - advance) / 2, 0, cell));
    image_.Target();
    BRSL_Box(x, y_, x + cell, y_ + row, kLine, BRSL_OUTLINE | DRAW_SOLID);
    BRSL_SetBufferViewPort(x, y_, x + cell, y_ + row);
    Put({static_cast<char>(code)}, x + left, y_ + (row - line_) / 2, kInk);
  }

  const FontFacts &facts_;
  CRF_Font *font_;
  int32_t line_;
  int32_t margin_;
  int32_t width_;
  std::string title_;
  std::string text_;
  host::Image image_;
  bool drawing_ = false;
  int32_t y_ = 0;
};

}  // namespace

host::Image Specimen(const std::filesystem::path &path, const std::string &text) {
  const FontFacts facts(path);
  return Sheet(facts, path.stem().string(), ToLatin1(text)).Draw();
}

}  // namespace brisal::tools
