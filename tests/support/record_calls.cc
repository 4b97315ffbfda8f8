// Captured scenes, lists of spans, edge buffers, transforms and the calculator.
#include <algorithm>

#include "brisal/brisal.h"
#include "reference/records.h"
#include "support/binding.h"

namespace {

using binding::Drawing;
using binding::Spread;
using binding::With;
using reference::Reference;
using enum Family;

template <size_t kSize>
struct Text {
  char chars[kSize];
  consteval Text(const char (&text)[kSize]) { std::copy_n(text, kSize, chars); }
};

// A writer: its name, the code of its command, and what each argument after the record is, which
// tells the reference where it goes.
template <auto kLibrary, int kCode, Text kKinds>
constexpr Function Writer(const char *name) {
  return {name, kCaptures, kKinds.chars,
          [](Scene &s, const Args &a) { return Spread(kLibrary, s, a); },
          [](Scene &s, const Args &a) {
            reference::Capture(s.At<Scene_Record>(a[0]), kCode, kKinds.chars + 1, &a[1]);
            return 0u;
          }};
}

template <auto kLibrary>
constexpr Function Nothing(const char *name, const char *kinds) {
  return {name, kCaptures, kinds, [](Scene &s, const Args &a) { return Spread(kLibrary, s, a); },
          [](Scene &, const Args &) { return 0u; }};
}

template <auto kLibrary, auto kReference>
constexpr Function Renderer(const char *name, const char *kinds = "Rpq") {
  return Drawing<kLibrary, kReference>(name, kCaptures, kinds);
}

reference::Buffer Image(Scene &s, int32_t number) {
  return ReferenceFor(number == 1 ? s.source : s.blendSource);
}

// clang-format off
const Function kFunctions[] = {
    Writer<Scene_Write_Capture_SpriteNC, 1, "rIxyA">("Scene_Write_Capture_SpriteNC"),
    Writer<Scene_Write_Capture_Dot, 2, "rfXYYc">("Scene_Write_Capture_Dot"),
    Writer<Scene_Write_Capture_Box, 3, "rfxyxy-c">("Scene_Write_Capture_Box"),
    Writer<Scene_Write_Capture_ShadeBox, 4, "rfxyxy-cccc">("Scene_Write_Capture_ShadeBox"),
    Writer<Scene_Write_Capture_Circle, 5, "rfxyAsc">("Scene_Write_Capture_Circle"),
    Writer<Scene_Write_Capture_Ellipse, 6, "rfxyAssc">("Scene_Write_Capture_Ellipse"),
    Writer<Scene_Write_Capture_Line, 7, "rfxyxyAc">("Scene_Write_Capture_Line"),
    Writer<Scene_Write_Capture_Shape, 8, "rfIxyA123c">("Scene_Write_Capture_Shape"),
    Writer<Scene_Write_Capture_Image, 11, "rfIxyAss">("Scene_Write_Capture_Image"),
    Writer<Scene_Write_Capture_ImageBB, 12, "rfBIxyAss">("Scene_Write_Capture_ImageBB"),
    Writer<Scene_Write_Capture_Image_AlphaBlend, 15, "rfIxyAass">("Scene_Write_Capture_Image_AlphaBlend"),
    Writer<Scene_Write_Capture_Text, 20, "rfB--xyAssc">("Scene_Write_Capture_Text"),
    Writer<Scene_Write_Capture_Tri, 25, "rfxyxyxy-cb">("Scene_Write_Capture_Tri"),
    Writer<Scene_Write_Capture_TriG, 26, "rfxycxycxyc-b">("Scene_Write_Capture_TriG"),
    Writer<Scene_Write_Capture_TriT, 27, "rfxyuvxyuvxyuv-Ib">("Scene_Write_Capture_TriT"),
    Writer<Scene_Write_Capture_Quad, 30, "rfxyxyxyxy-cb">("Scene_Write_Capture_Quad"),
    Writer<Scene_Write_Capture_QuadG, 31, "rfxycxycxycxyc-b">("Scene_Write_Capture_QuadG"),
    Writer<Scene_Write_Capture_QuadT, 27, "rfxyuvxyuvxyuvxyuv-Ib">("Scene_Write_Capture_QuadT"),
    Writer<Scene_Write_Capture_GouraudStripH, 40, "rfxcxcy-">("Scene_Write_Capture_GouraudStripH"),
    Writer<Scene_Write_Capture_GouraudStripV, 41, "rfycycx-">("Scene_Write_Capture_GouraudStripV"),
    Writer<Scene_Write_Capture_TextureStripH, 42, "rfxuvxuvy-I">("Scene_Write_Capture_TextureStripH"),
    Writer<Scene_Write_Capture_TextureStripV, 43, "rfyuvyuvx-I">("Scene_Write_Capture_TextureStripV"),
    Writer<Scene_Write_Capture_Map, 50, "rfBIxyAss">("Scene_Write_Capture_Map"),
    Drawing<Scene_Poke_Bounding_Box, reference::PokeBoundingBox>("Scene_Poke_Bounding_Box", kCaptures, "rxyxy"),
    Drawing<Scene_Poke_Edge_Vectors, reference::PokeEdgeVectors>("Scene_Poke_Edge_Vectors", kCaptures, "egggg"),
    Drawing<SceneVert_iXYcombined, reference::PlaceVertex>("SceneVert_iXYcombined", kCaptures, "Rxy"),
    Nothing<SceneVert_iXYZ>("SceneVert_iXYZ", "V------------"),
    Nothing<SceneVert_iTransXYZ>("SceneVert_iTransXYZ", "V------------"),
    Nothing<SceneVert_iXYZUV>("SceneVert_iXYZUV", "V--------------"),
    Renderer<Scene_Render_Check_Object_Visible, &Reference::ObjectVisible>("Scene_Render_Check_Object_Visible"),
    Renderer<Scene_Render_Captured_Box, &Reference::RenderBox>("Scene_Render_Captured_Box"),
    Renderer<Scene_Render_Captured_ShadeBox, &Reference::RenderShadeBox>("Scene_Render_Captured_ShadeBox"),
    Renderer<Scene_Render_Captured_Circle, &Reference::RenderCircle>("Scene_Render_Captured_Circle"),
    Renderer<Scene_Render_Captured_Ellipse, &Reference::RenderEllipse>("Scene_Render_Captured_Ellipse"),
    Renderer<Scene_Render_Captured_Polygon, &Reference::RenderPolygon>("Scene_Render_Captured_Polygon"),
    Renderer<Scene_Render_Captured_PolygonG, &Reference::RenderPolygonG>("Scene_Render_Captured_PolygonG"),
    Renderer<Scene_Render_Captured_PolygonT, &Reference::RenderPolygonT>("Scene_Render_Captured_PolygonT", "RpqTP"),
    Renderer<Scene_Render_Captured_GouraudStripH, &Reference::RenderGouraudStripH>("Scene_Render_Captured_GouraudStripH"),
    Renderer<Scene_Render_Captured_GouraudStripV, &Reference::RenderGouraudStripV>("Scene_Render_Captured_GouraudStripV"),
    Renderer<Scene_Render_Captured_TextureStripH, &Reference::RenderTextureStripH>("Scene_Render_Captured_TextureStripH", "RpqT"),
    Renderer<Scene_Render_Captured_TextureStripV, &Reference::RenderTextureStripV>("Scene_Render_Captured_TextureStripV", "RpqT"),

    {"BRSL_SetSrcBuffer", kCollisions, "D",
     [](Scene &s, const Args &a) {
       const reference::Buffer image = Image(s, a[0]);
       BRSL_SetSrcBuffer(image.address, image.pitch, image.format);
       return 0u;
     },
     [](Scene &s, const Args &a) {
       s.reference.source = Image(s, a[0]);
       return 0u;
     }},
    Drawing<CreateSpanCollision_Polygon, reference::ListPolygon>("CreateSpanCollision_Polygon", kCollisions, "VnL"),
    Drawing<CreateSpanCollision_Line, reference::ListLine>("CreateSpanCollision_Line", kCollisions, "Lijij"),
    Drawing<CreateSpanCollision_Ellipse, reference::ListEllipse>("CreateSpanCollision_Ellipse", kCollisions, "Lxjrq"),
    Drawing<CreateSpanCollision_Rect, reference::ListRect>("CreateSpanCollision_Rect", kCollisions, "Lxjxj"),
    Drawing<BRSL_SpanBufferCollisionPolygon, &Reference::ListTexturedPolygon>("BRSL_SpanBufferCollisionPolygon", kCollisions, "VnLM"),
    Drawing<BRSL_CompareFilledToTexturedSpans, reference::FilledMeetsTextured>("BRSL_CompareFilledToTexturedSpans", kCollisions, "LL"),
    Drawing<BRSL_CompareTexturedSpans, reference::TexturedMeetsTextured>("BRSL_CompareTexturedSpans", kCollisions, "LL"),
    Drawing<BRSL_DrawSpansEdges, &Reference::DrawSpansEdges>("BRSL_DrawSpansEdges", kCollisions, "L"),

    With<Shape_Set_Buffers, &Reference::SetShapeBuffers>("Shape_Set_Buffers", kEdgeBuffers, "t", [](auto f, Scene &s, const Args &a) {
      s.contents.shape = a[0] - 1;
      f(s.contents.RowTable(), s.contents.pools[s.contents.shape].data());
    }),
    Drawing<Shape_AddVert, &Reference::AddShapeVert>("Shape_AddVert", kEdgeBuffers, "XR"),
    Drawing<Shape_BufferEdge, &Reference::BufferShapeEdge>("Shape_BufferEdge", kEdgeBuffers, "XYXYhe"),
    With<BRSL_Draw_Shape_Span_Buffer, &Reference::DrawShape>("BRSL_Draw_Shape_Span_Buffer", kEdgeBuffers, "cm", [](auto f, Scene &s, const Args &a) {
      f(s.contents.RowTable() + 1, nullptr, a[0], a[1]);
    }),
    With<CreateSpanCollision_ShapeSpanBuffer, &Reference::ListShape>("CreateSpanCollision_ShapeSpanBuffer", kEdgeBuffers, "Lxoxo", [](auto f, Scene &s, const Args &a) {
      return f(s.At<BRSL_CollisionSpans>(a[0]), a[1], a[2], a[3], a[4], s.contents.RowTable(), nullptr);
    }),

    Drawing<RotateVertexList, reference::RotateList>("RotateVertexList", kTransforms, "tvsden"),
    Drawing<RotateVertexListToCamera, reference::RotateListToCamera>("RotateVertexListToCamera", kTransforms, "ttvsden"),
    Drawing<RotateVertexListXYZ, reference::RotateListXyz>("RotateVertexListXYZ", kTransforms, "vsdefffaaan"),
    Drawing<RotateVertexListZYX, reference::RotateListZyx>("RotateVertexListZYX", kTransforms, "vsdefffaaan"),
    Drawing<Rotate2DVertexList, reference::Rotate2DList>("Rotate2DVertexList", kTransforms, "vsdeffaffn"),
    Drawing<LerpVertexList, reference::LerpList>("LerpVertexList", kTransforms, "vsvsdenf"),

    Drawing<TQ_FastCalc, &Reference::FastCalc>("TQ_FastCalc", kCalculator, "1Pn"),
    Drawing<TQ_Rnd, &Reference::Rnd>("TQ_Rnd", kCalculator, "R"),
    Drawing<TQ_Randomize, &Reference::Randomize>("TQ_Randomize", kCalculator, "S"),
    Drawing<TQ_RNDRGB, &Reference::RandomColour>("TQ_RNDRGB", kCalculator, ""),
};
// clang-format on

}  // namespace

std::span<const Function> RecordFunctions() { return kFunctions; }
