#include "support/calls.h"

#include <cstring>
#include <sstream>
#include <type_traits>
#include <utility>

#include "brisal/brisal.h"

namespace {

using reference::Reference;

template <class F>
uint32_t ResultOf(F call) {
  if constexpr (std::is_void_v<decltype(call())>) {
    call();
    return 0;
  } else {
    return static_cast<uint32_t>(call());
  }
}

template <class R, class... P, size_t... I>
uint32_t Spread(R (*f)(P...), const Args &a, std::index_sequence<I...>) {
  return ResultOf([&] { return f(static_cast<P>(a[I])...); });
}

template <class R, class... P, size_t... I>
uint32_t Spread(R (Reference::*f)(P...), Reference &r, const Args &a, std::index_sequence<I...>) {
  return ResultOf([&] { return (r.*f)(static_cast<P>(a[I])...); });
}

template <class R, class... P>
uint32_t Spread(R (*f)(P...), const Args &a) {
  return Spread(f, a, std::index_sequence_for<P...>());
}

template <class R, class... P>
uint32_t Spread(R (Reference::*f)(P...), Reference &r, const Args &a) {
  return Spread(f, r, a, std::index_sequence_for<P...>());
}

template <auto kLibrary, auto kReference>
constexpr Function Drawing(const char *name, Family family, const char *kinds) {
  return {name, family, kinds, [](Picture &, const Args &a) { return Spread(kLibrary, a); },
          [](Reference &r, const Args &a) { return Spread(kReference, r, a); }};
}

template <class Library, class Plain>
Function Memory(const char *name, Library, Plain) {
  return {
      name, Family::kMemory, "......",
      [](Picture &p, const Args &a) { return ResultOf([&] { return Library()(p.Address(), a); }); },
      [](Reference &r, const Args &a) { return ResultOf([&] { return Plain()(r.address, a); }); }};
}

using enum Family;

// clang-format off
const Function kFunctions[] = {
    Drawing<BRSL_DrawPixel, &Reference::DrawPixel>("BRSL_DrawPixel", kPixels, "ijkm"),
    Drawing<BRSL_Dot, &Reference::Dot>("BRSL_Dot", kPixels, "xycm"),
    Drawing<BRSL_FastDot, &Reference::FastDot>("BRSL_FastDot", kPixels, "ijcm"),
    Drawing<BRSL_Point, &Reference::Point>("BRSL_Point", kPixels, "xy"),
    Drawing<BRSL_FastPoint, &Reference::FastPoint>("BRSL_FastPoint", kPixels, "ij"),
    Drawing<BRSL_FastPoint_JT, &Reference::FastPointJt>("BRSL_FastPoint_JT", kPixels, "ij"),
    Drawing<BRSL_DrawStrip, &Reference::DrawStrip>("BRSL_DrawStrip", kStrips, "jeekm"),
    Drawing<BRSL_Box, &Reference::Box>("BRSL_Box", kBoxes, "xyxycf"),
    Drawing<BRSL_ShadeBox, &Reference::ShadeBox>("BRSL_ShadeBox", kShadedBoxes, "xyxyccccf"),
    Drawing<BRSL_Circle, &Reference::Circle>("BRSL_Circle", kEllipses, "xyrcf"),
    Drawing<BRSL_Ellipse, &Reference::Ellipse>("BRSL_Ellipse", kEllipses, "xyrrcf"),
    Drawing<BRSL_OpenCircle, &Reference::OpenCircle>("BRSL_OpenCircle", kEllipses, "xyrcf"),
    Drawing<BRSL_OpenEllipse, &Reference::OpenEllipse>("BRSL_OpenEllipse", kEllipses, "xyrrcf"),
    Drawing<BRSL_OpenEllipseFX, &Reference::OpenEllipseFx>(
        "BRSL_OpenEllipseFX", kEllipses, "xyrrcf0"),
    Drawing<BRSL_OpenEllipseFX, &Reference::OpenEllipseFx>(
        "BRSL_OpenEllipseFX", kEllipses, "uvRScf1"),
    Drawing<BRSL_FilledEllipse, &Reference::FilledEllipse>(
        "BRSL_FilledEllipse", kEllipses, "xyrrkf"),
    Drawing<BRSL_FilledEllipseNC, &Reference::FilledEllipseNc>(
        "BRSL_FilledEllipseNC", kEllipses, "uvRSkf"),
    Drawing<BRSL_WriteLine, &Reference::WriteLine>("BRSL_WriteLine", kLines, "ijijcf"),
    Drawing<BRSL_WriteDrawModeLine, &Reference::WriteDrawModeLine>(
        "BRSL_WriteDrawModeLine", kLines, "ijijkm"),
    Drawing<BRSL_WriteLine_32Bit, &Reference::WriteLine32Bit>(
        "BRSL_WriteLine_32Bit", kLines, "ijijcw"),
    Drawing<BRSL_Tri, &Reference::Tri>("BRSL_Tri", kFlatPolygons, "xyxyxycf"),
    Drawing<BRSL_Quad, &Reference::Quad>("BRSL_Quad", kFlatPolygons, "xyxyxyxycf"),
    Drawing<BRSL_TriG, &Reference::TriG>("BRSL_TriG", kGouraudPolygons, "xycxycxycf"),
    Drawing<BRSL_QuadG, &Reference::QuadG>("BRSL_QuadG", kGouraudPolygons, "xycxycxycxycf"),
    Drawing<BRSL_QuadSetGouraud, &Reference::QuadSetGouraud>(
        "BRSL_QuadSetGouraud", kGouraudPolygons, "cccc"),
    Drawing<BRSL_DrawGouraudPoly, &Reference::DrawGouraudPoly>(
        "BRSL_DrawGouraudPoly", kGouraudPolygons, "nf"),
    Memory("CopyMemory",
        [](uint8_t *p, const Args &a) { (CopyMemory)(p + a[kFrom], p + a[kTo], a[kCount] & 255); },
        [](uint8_t *p, const Args &a) {
          reference::Copy(p + a[kFrom], p + a[kTo], a[kCount] & 255);
        }),
    Memory("FillMemory",
        [](uint8_t *p, const Args &a) {
          (FillMemory)(p + a[kFrom], a[kCount], a[kValue], a[kSize]);
        },
        [](uint8_t *p, const Args &a) {
          reference::Fill(p + a[kFrom], 1, a[kCount], a[kValue], a[kSize]);
        }),
    Memory("FillMemoryEx",
        [](uint8_t *p, const Args &a) {
          FillMemoryEx(p + a[kFrom], a[kStride], a[kCount] / 4, a[kValue], a[kSize]);
        },
        [](uint8_t *p, const Args &a) {
          reference::Fill(p + a[kFrom], a[kStride], a[kCount] / 4, a[kValue], a[kSize]);
        }),
    Memory("CompareBytes",
        [](uint8_t *p, const Args &a) {
          return CompareBytes(p + a[kFrom], p + a[kTo], a[kCount]);
        },
        [](uint8_t *p, const Args &a) {
          return reference::Compare(p + a[kFrom], p + a[kTo], a[kCount]);
        }),
    Memory("BRSL_FindRunLength",
        [](uint8_t *p, const Args &a) {
          return BRSL_FindRunLength(p + a[kFrom], a[kStride], a[kCount], a[kSize], a[kValue]);
        },
        [](uint8_t *p, const Args &a) {
          return reference::RunLength(p + a[kFrom], a[kStride], a[kCount], a[kSize], a[kValue]);
        }),
};
// clang-format on

}  // namespace

std::span<const Function> Functions() { return kFunctions; }

Picture DrawWithLibrary(const Case &c, std::vector<uint32_t> &results) {
  Picture picture(c.layout);
  Target(picture);
  for (const Call &call : c.calls) results.push_back(call.function->library(picture, call.args));
  return picture;
}

Picture DrawWithReference(const Case &c, std::vector<uint32_t> &results) {
  Picture picture(c.layout);
  reference::Reference reference = ReferenceFor(picture);
  for (const Call &call : c.calls) {
    results.push_back(call.function->reference(reference, call.args));
  }
  return picture;
}

std::string Describe(const Case &c) {
  std::ostringstream text;
  text << Describe(c.layout);
  for (const Call &call : c.calls) {
    text << "\n  " << call.function->name << "(";
    for (int i = 0; call.function->kinds[i]; i++) {
      const bool hex = std::strchr("ckfm", call.function->kinds[i]);
      text << (i ? ", " : "") << (hex ? "0x" : "") << (hex ? std::hex : std::dec) << call.args[i];
    }
    text << ")";
  }
  return text.str();
}
