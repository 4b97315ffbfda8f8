#include "tools/font/codes.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

#include "host/error.h"

namespace brisal::tools {

namespace {

constexpr int kMostCharacters = 65536;

constexpr std::u32string_view kCp437Symbols = U"☺☻♥♦♣♠•◘○◙♂♀♪♫☼►◄↕‼¶§▬↨↑↓→←∟↔▲▼";
constexpr std::u32string_view kCp437High =
    U"⌂ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒáíóúñÑªº¿⌐¬½¼¡«»"
    U"░▒▓│┤╡╢╖╕╣║╗╝╜╛┐└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
    U"αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";
static_assert(kCp437Symbols.size() == 31 && kCp437High.size() == 129);

void Put(CodePoints &codes, size_t first, std::u32string_view points) {
  std::copy(points.begin(), points.end(), codes.begin() + static_cast<ptrdiff_t>(first));
}

void PutThemselves(CodePoints &codes, size_t first, size_t last) {
  for (size_t code = first; code <= last; code++) codes[code] = static_cast<char32_t>(code);
}

CodePoints Cp437() {
  CodePoints codes(256);
  Put(codes, 1, kCp437Symbols);
  PutThemselves(codes, 32, 126);
  Put(codes, 127, kCp437High);
  return codes;
}

}  // namespace

CodePoints Latin1() {
  CodePoints codes(256);
  PutThemselves(codes, 32, 126);
  PutThemselves(codes, 160, 255);
  return codes;
}

CodePoints ParseCodes(const std::string &text) {
  if (text == "latin1") return Latin1();
  if (text == "cp437") return Cp437();
  int first = 0, last = 0, used = 0;
  if (text.size() > 11 || text.find_first_not_of("0123456789-") != std::string::npos ||
      std::sscanf(text.c_str(), "%5d-%5d%n", &first, &last, &used) != 2 ||
      static_cast<size_t>(used) != text.size() || first < 0) {
    throw host::Error("--codes: '" + text + "' is not latin1, cp437 or a range such as 32-126");
  }
  if (last < first) throw host::Error("--codes: the range " + text + " is empty");
  if (last >= kMostCharacters) {
    throw host::Error("--codes: a font has no code " + std::to_string(last) + " (at most 65535)");
  }
  CodePoints codes(static_cast<size_t>(last) + 1);
  PutThemselves(codes, static_cast<size_t>(first), static_cast<size_t>(last));
  return codes;
}

}  // namespace brisal::tools
