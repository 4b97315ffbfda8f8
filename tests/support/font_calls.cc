// Fonts, glyphs and text.
#include <algorithm>

#include "brisal/brisal.h"
#include "reference/fonts.h"
#include "support/binding.h"

namespace {

using binding::Drawing;
using binding::With;
using reference::Reference;
using enum Family;

// Codes of the RFCI_ functions and of CRF_GetChrInfoPtr must be the font's.
int32_t CodeOf(const Scene &s, const Args &a) { return (a[1] & 0xFFFF) % s.fonts->CountOf(a[0]); }

// Lengths must be the text's.
int32_t LengthOf(const Scene &s, const Args &a) {
  if (a[2] < 1 || a[1] == 0) return a[2];
  return 1 + (a[2] - 1) % static_cast<int32_t>(s.fonts->texts[a[1] - 1].size());
}

const char *FileName(int32_t number) { return number ? kFileNames[number - 1] : nullptr; }

bool Place(Scene &s, int32_t number, CRF_Font *font, int32_t count) {
  s.fonts->Replace(number, font, count);
  return font != nullptr;
}

constexpr auto kGetSpacing = [](auto f, Scene &s, const Args &a) {
  return f(s.fonts->InfosOf(a[0]), CodeOf(s, a));
};
constexpr auto kSetSpacing = [](auto f, Scene &s, const Args &a) {
  return f(s.fonts->InfosOf(a[0]), CodeOf(s, a), a[2]);
};

// clang-format off
const Function kFunctions[] = {
    With<CRF_Draw, &Reference::DrawText>(
        "CRF_Draw", kText, "Ftlxyc", [](auto f, Scene &s, const Args &a) {
          f(s.fonts->At(a[0]), s.fonts->Text(a[1]), LengthOf(s, a), a[3], a[4], a[5]);
        }),
    With<CRF_TextWidth, reference::TextWidth>(
        "CRF_TextWidth", kText, "Ftl", [](auto f, Scene &s, const Args &a) {
          return f(s.fonts->At(a[0]), s.fonts->Text(a[1]), LengthOf(s, a));
        }),
    With<CRF_TextHeight, reference::TextHeight>(
        "CRF_TextHeight", kText, "FtlB", [](auto f, Scene &s, const Args &a) {
          return f(s.fonts->At(a[0]), s.fonts->Text(a[1]), LengthOf(s, a), a[3]);
        }),
    Drawing<CRF_DrawMode, reference::SetFontDrawMode>("CRF_DrawMode", kText, "Fm"),
    Drawing<CRF_BackdropColour, reference::SetBackdropColour>("CRF_BackdropColour", kText, "Fc"),
    Drawing<CRF_SetMaxChrSize, reference::SetMaxChrSize>("CRF_SetMaxChrSize", kText, "Fss"),
    Drawing<CRF_SetChrDepth, reference::SetChrDepth>("CRF_SetChrDepth", kText, "FD"),
    With<CRF_Alloc, reference::AllocFont>(
        "CRF_Alloc", kFonts, "Sn", [](auto f, Scene &s, const Args &a) {
          return Place(s, a[0], f(a[1]), std::clamp(a[1], 1, 65536));
        }),
    With<CRF_Free, reference::FreeFont>("CRF_Free", kFonts, "F", [](auto f, Scene &s, const Args &a) {
      f(s.fonts->At(a[0]));
      if (a[0]) s.fonts->Forget(a[0]);
    }),
    Drawing<CRF_SetChrDepth, reference::SetChrDepth>("CRF_SetChrDepth", kFonts, "Fw"),
    Drawing<CRF_SetMaxChrSize, reference::SetMaxChrSize>("CRF_SetMaxChrSize", kFonts, "Fww"),
    Drawing<CRF_GetMaxChrSize, reference::GetMaxChrSize>("CRF_GetMaxChrSize", kFonts, "FB"),
    Drawing<CRF_DrawMode, reference::SetFontDrawMode>("CRF_DrawMode", kFonts, "Fw"),
    Drawing<CRF_GetDrawMode, reference::GetFontDrawMode>("CRF_GetDrawMode", kFonts, "F"),
    Drawing<CRF_BackdropColour, reference::SetBackdropColour>("CRF_BackdropColour", kFonts, "Fw"),
    Drawing<CRF_GetBackdropColour, reference::GetBackdropColour>(
        "CRF_GetBackdropColour", kFonts, "F"),
    With<CRF_GetChrInfoPtr, reference::GetChrInfo>(
        "CRF_GetChrInfoPtr", kFonts, "Fk", [](auto f, Scene &s, const Args &a) {
          return f(s.fonts->At(a[0]), CodeOf(s, a)) - s.fonts->InfosOf(a[0]);
        }),
    With<CRF_SetChrBmp, reference::SetChrBitmap>(
        "CRF_SetChrBmp", kFonts, "Fkb", [](auto f, Scene &s, const Args &a) {
          void *bitmap = s.fonts->Bitmap(a[0], a[2]);
          f(s.fonts->At(a[0]), a[1], bitmap);
          if (a[2] > 0) s.fonts->TakeBack(a[0], a[1], bitmap);
        }),
    With<CRF_GetChrBmp, reference::GetChrBitmap>(
        "CRF_GetChrBmp", kFonts, "Fk", [](auto f, Scene &s, const Args &a) {
          return s.fonts->host.HandleOf(f(s.fonts->At(a[0]), a[1]));
        }),
    With<RFCI_GetChrUnderHang, reference::GetUnderHang>(
        "RFCI_GetChrUnderHang", kFonts, "Fk", kGetSpacing),
    With<RFCI_GetChrWidth, reference::GetWidth>("RFCI_GetChrWidth", kFonts, "Fk", kGetSpacing),
    With<RFCI_GetChrOverHang, reference::GetOverHang>(
        "RFCI_GetChrOverHang", kFonts, "Fk", kGetSpacing),
    With<RFCI_SetChrUnderHang, reference::SetUnderHang>(
        "RFCI_SetChrUnderHang", kFonts, "Fkw", kSetSpacing),
    With<RFCI_SetChrWidth, reference::SetWidth>("RFCI_SetChrWidth", kFonts, "Fkw", kSetSpacing),
    With<RFCI_SetChrOverHang, reference::SetOverHang>(
        "RFCI_SetChrOverHang", kFonts, "Fkw", kSetSpacing),
    With<CRF_Save, reference::SaveFont>("CRF_Save", kFonts, "FN", [](auto f, Scene &s, const Args &a) {
      f(s.fonts->At(a[0]), FileName(a[1]));
    }),
    With<CRF_Load, reference::LoadFont>("CRF_Load", kFonts, "SN", [](auto f, Scene &s, const Args &a) {
      CRF_Font *font = f(FileName(a[1]));
      return Place(s, a[0], font, font ? s.fonts->CountInStream(FileName(a[1]), 0) : 0);
    }),
    With<CRF_Write, reference::WriteFont>("CRF_Write", kFonts, "FB", [](auto f, Scene &s, const Args &a) {
      if (s.fonts->At(a[0]) && a[1]) s.fonts->streamAt = s.fonts->host.positions[0];
      f(s.fonts->At(a[0]), static_cast<uintptr_t>(a[1]));
    }),
    With<CRF_Read, reference::ReadFont>("CRF_Read", kFonts, "SBX", [](auto f, Scene &s, const Args &a) {
      s.fonts->PrepareToRead(a[2]);
      CRF_Font *font = f(static_cast<uintptr_t>(a[1]));
      return Place(s, a[0], font, s.fonts->CountInStream("opened", s.fonts->streamAt));
    }),
    With<CRF_Find_Duplicate_Chr_Buffers, reference::FindDuplicates>(
        "CRF_Find_Duplicate_Chr_Buffers", kFonts, "F", [](auto f, Scene &s, const Args &a) {
          s.fonts->duplicates.assign(static_cast<size_t>(s.fonts->CountOf(a[0])), 0);
          f(s.fonts->At(a[0]), s.fonts->duplicates.data());
        }),
    With<CRF_CompressChr, reference::Compress>(
        "CRF_CompressChr", kCompression, "I", [](auto f, Scene &s, const Args &a) {
          const uintptr_t block = f(s.fonts->Image(a[0]));
          for (uint8_t byte : s.fonts->host.Take(block)) s.fonts->blocks.push_back(byte);
          s.fonts->host.calls.clear();
          return block != 0;
        }),
};
// clang-format on

}  // namespace

std::span<const Function> FontFunctions() { return kFunctions; }
