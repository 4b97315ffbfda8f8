// Pixels, shapes, surfaces, blits, textures, filters and plain memory.
#include "brisal/brisal.h"
#include "support/binding.h"

namespace {

using binding::Drawing;
using binding::Spread;
using binding::With;
using reference::Reference;

// The corners of a textured polygon, from the second argument on.
template <int kCount, bool kColoured>
std::array<reference::Vertex, kCount> CornersOf(const Args &a) {
  std::array<reference::Vertex, kCount> corners;
  for (int i = 0; i < kCount; i++) {
    const int32_t *c = &a[1 + i * (kColoured ? 5 : 4)];
    corners[i] = {c[0], c[1], kColoured ? static_cast<uint32_t>(c[4]) : 0, c[2], c[3]};
  }
  return corners;
}

template <auto kLibrary, int kCount>
constexpr Function Corners(const char *name, const char *kinds) {
  return {name, Family::kTextures, kinds,
          [](Scene &s, const Args &a) { return Spread(kLibrary, s, a); },
          [](Scene &s, const Args &a) {
            s.reference.DrawTexturedCorners(s.SurfaceAt(a[0]), CornersOf<kCount, false>(a).data(),
                                            kCount, a[1 + 4 * kCount] ? s.Pipeline() : nullptr);
            return 0u;
          }};
}

template <auto kLibrary, bool kColoured>
constexpr Function Sprite(const char *name, const char *kinds) {
  return {name, Family::kSprites, kinds,
          [](Scene &s, const Args &a) { return Spread(kLibrary, s, a); },
          [](Scene &s, const Args &a) {
            const int32_t *rest = &a[kColoured ? 21 : 17];
            s.reference.DrawSprite(s.SurfaceAt(a[0]), CornersOf<4, kColoured>(a).data(), kColoured,
                                   rest[0] ? s.Pipeline() : nullptr, rest[1]);
            return 0u;
          }};
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
    Drawing<BRSL_SetSurfaceDescVP, reference::SetSurfaceDescVp>(
        "BRSL_SetSurfaceDescVP", kSurfaces, "Dlhlh"),
    Drawing<BRSL_SetSurfaceDescMaskColour, reference::SetSurfaceDescMaskColour>(
        "BRSL_SetSurfaceDescMaskColour", kSurfaces, "Tc"),
    Drawing<BRSL_GetSurfaceDescType, reference::GetSurfaceDescType>(
        "BRSL_GetSurfaceDescType", kSurfaces, "T"),
    Drawing<BRSL_PeekSurface, reference::PeekSurface>("BRSL_PeekSurface", kSurfaces, "DXY"),
    Drawing<BRSL_PokeSurface, reference::PokeSurface>("BRSL_PokeSurface", kSurfaces, "DXYc"),
    Drawing<BRSL_PokeSurfaceNC, reference::PokeSurfaceNc>("BRSL_PokeSurfaceNC", kSurfaces, "Dpqc"),
    Drawing<BRSL_PeekPixelStrip, reference::PeekPixelStrip>(
        "BRSL_PeekPixelStrip", kSurfaces, "Dllqo"),
    Drawing<BRSL_PixelRunLength, &Reference::PixelRunLength>(
        "BRSL_PixelRunLength", kSurfaces, "xyggM"),
    Drawing<BRSL_PixelRunLength, &Reference::PixelRunLength>(
        "BRSL_PixelRunLength", kSurfaces, "ijggM"),
    Drawing<BRSL_ImageInViewPort, &Reference::ImageInViewPort>(
        "BRSL_ImageInViewPort", kSurfaces, "xyxy"),
    Drawing<BRSL_HoriGouraudStrip, &Reference::HoriGouraudStrip>(
        "BRSL_HoriGouraudStrip", kGradients, "xcxcy"),
    Drawing<BRSL_VertGouraudStrip, &Reference::VertGouraudStrip>(
        "BRSL_VertGouraudStrip", kGradients, "ycycx"),
    Drawing<BRSL_HoriTextureStrip, &Reference::HoriTextureStrip>(
        "BRSL_HoriTextureStrip", kGradients, "TxQQxQQy"),
    Drawing<BRSL_VertTextureStrip, &Reference::VertTextureStrip>(
        "BRSL_VertTextureStrip", kGradients, "TyQQyQQx"),
    Drawing<BRSL_Blit, &Reference::Blit>("BRSL_Blit", kBlits, "AAAAxyMF"),
    Drawing<BRSL_BlitFX, &Reference::BlitFx>("BRSL_BlitFX", kEffectBlits, "AAAAxyFMEcBw"),
    Drawing<TPD_AddTexelEffect, reference::AddTexelEffect>(
        "TPD_AddTexelEffect", kPipelines, "PaGGMcMw"),
    Drawing<TPD_SetOutputEffect, reference::SetOutputEffect>(
        "TPD_SetOutputEffect", kPipelines, "PowN"),
    Drawing<TPD_SetMaskCompression, reference::SetMaskCompression>(
        "TPD_SetMaskCompression", kPipelines, "PB"),
    Drawing<TPD_GetMaskCompression, reference::GetMaskCompression>(
        "TPD_GetMaskCompression", kPipelines, "P"),
    Drawing<TPD_GetGouruaudState, reference::GetGouraudState>(
        "TPD_GetGouruaudState", kPipelines, "P"),
    Drawing<TPD_UpdateSpriteDrawMode, reference::UpdateSpriteDrawMode>(
        "TPD_UpdateSpriteDrawMode", kPipelines, "PztcN"),
    Corners<BRSL_TriT, 3>("BRSL_TriT", "TxyUVxyUVxyUVP"),
    Corners<BRSL_QuadT, 4>("BRSL_QuadT", "TxyUVxyUVxyUVxyUVP"),
    Drawing<BRSL_DrawTexturedPoly, &Reference::DrawTexturedPoly>(
        "BRSL_DrawTexturedPoly", kTextures, "TnP"),
    Drawing<BRSL_DrawTexture, &Reference::DrawTexture>("BRSL_DrawTexture", kTextures, "TxyP"),
    Drawing<BRSL_DrawSpritePoly, &Reference::DrawSpritePoly>(
        "BRSL_DrawSpritePoly", kSprites, "TnP"),
    Sprite<BRSL_DrawSpriteQuad, false>("BRSL_DrawSpriteQuad", "TxyUVxyUVxyUVxyUVPs"),
    Sprite<BRSL_DrawSpriteRGBQuad, true>("BRSL_DrawSpriteRGBQuad", "TxyUVcxyUVcxyUVcxyUVcPs"),
    Drawing<BRSL_QuadSetGouraud, &Reference::QuadSetGouraud>(
        "BRSL_QuadSetGouraud", kTextures, "cccc"),
    Drawing<BRSL_PrepareFXSurface, reference::PrepareFxSurface>(
        "BRSL_PrepareFXSurface", kFilters, "DDZ"),
    Drawing<BRSL_FillRect_Blur, reference::Blur>("BRSL_FillRect_Blur", kFilters, "Dd"),
    Drawing<BRSL_FillRect_Fade, reference::Fade>("BRSL_FillRect_Fade", kFilters, "DH"),
    Drawing<BRSL_FillRect_GreyScale, reference::GreyScale>(
        "BRSL_FillRect_GreyScale", kFilters, "D"),
    Drawing<BRSL_FillRect_Light, reference::Light>("BRSL_FillRect_Light", kFilters, "DCCIOw"),
    Drawing<BRSL_FillRect_PhongMap, reference::PhongMap>(
        "BRSL_FillRect_PhongMap", kFilters, "DCCcIOw"),
    With<BRSL_MirrorRect, &Reference::MirrorRect>(
        "BRSL_MirrorRect", kFilters, "xyxyBB", [](auto f, Scene &, const Args &a) {
          const int32_t rect[] = {a[0], a[1], a[2], a[3]};
          f(rect, a[4], a[5]);
        }),
    Drawing<BRSL_ScaleSurface, reference::ScaleSurface>("BRSL_ScaleSurface", kScaling, "DDL"),
    Drawing<BRSL_CopyRect_MoveMapBlk, reference::MoveMapBlock>(
        "BRSL_CopyRect_MoveMapBlk", kScaling, "DlhlhDXYPM"),
    With<(CopyMemory), reference::Copy>(
        "CopyMemory", kMemory, "......", [](auto f, Scene &s, const Args &a) {
          f(s.target.Address() + a[kFrom], s.target.Address() + a[kTo], a[kCount] & 255);
        }),
    With<(FillMemory), reference::Fill>(
        "FillMemory", kMemory, "......", [](auto f, Scene &s, const Args &a) {
          f(s.target.Address() + a[kFrom], a[kCount], a[kValue], a[kSize]);
        }),
    With<FillMemoryEx, reference::FillEx>(
        "FillMemoryEx", kMemory, "......", [](auto f, Scene &s, const Args &a) {
          f(s.target.Address() + a[kFrom], a[kStride], a[kCount] / 4, a[kValue], a[kSize]);
        }),
    With<CompareBytes, reference::Compare>(
        "CompareBytes", kMemory, "......", [](auto f, Scene &s, const Args &a) {
          return f(s.target.Address() + a[kFrom], s.target.Address() + a[kTo], a[kCount]);
        }),
    With<BRSL_FindRunLength, reference::RunLength>(
        "BRSL_FindRunLength", kMemory, "......", [](auto f, Scene &s, const Args &a) {
          return f(s.target.Address() + a[kFrom], a[kStride], a[kCount], a[kSize], a[kValue]);
        }),
};
// clang-format on

}  // namespace

std::span<const Function> DrawingFunctions() { return kFunctions; }
