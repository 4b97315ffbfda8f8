#include "support/scene.h"

#include <algorithm>
#include <sstream>
#include <string>

namespace {

constexpr size_t kRowEntries = 512;

std::unique_ptr<BRSL_SurfaceDesc, void (*)(BRSL_SurfaceDesc *)> MakeSurface(Picture &picture,
                                                                            Painter painter) {
  const Layout &l = picture.layout();
  const reference::Rect &v = l.viewport;
  if (painter == Painter::kReference) {
    auto *desc = new BRSL_SurfaceDesc(
        reference::SurfaceDesc(l.format, picture.Address(), l.pitch, l.width, l.height));
    reference::SetSurfaceDescMaskColour(desc, l.mask);
    reference::SetSurfaceDescVp(desc, v.right, v.top, v.left, v.bottom);
    return {desc, [](BRSL_SurfaceDesc *d) { delete d; }};
  }
  BRSL_SurfaceDesc *desc =
      BRSL_AllocSurfaceDesc(l.format, picture.Address(), l.pitch, l.width, l.height);
  BRSL_SetSurfaceDescMaskColour(desc, l.mask);
  BRSL_SetSurfaceDescVP(desc, v.right, v.top, v.left, v.bottom);
  return {desc, [](BRSL_SurfaceDesc *d) { BRSL_FreeSurfaceDesc(d); }};
}

std::unique_ptr<TPD_Pipeline, void (*)(TPD_Pipeline *)> MakePipeline(Painter painter) {
  if (painter == Painter::kLibrary) return {TPD_Alloc(), [](TPD_Pipeline *p) { TPD_Free(p); }};
  return {new TPD_Pipeline(reference::Pipeline()), [](TPD_Pipeline *p) { delete p; }};
}

// Zeroes the Gouraud colours, which effects may find though no span of theirs made any.
void ClearGouraudColours() {
  constexpr int32_t kEntries = 4096;
  constexpr int32_t kFill = 10;
  static uint32_t row[kEntries];
  BRSL_SetBuffer(row, sizeof row, BRSL_FORMAT_X32);
  BRSL_SetBufferViewPort(0, 0, kEntries, 1);
  const auto texture = reference::SurfaceDesc(BRSL_FORMAT_X32, row, sizeof row, kEntries, 1);
  TPD_Pipeline pipeline = reference::Pipeline();
  pipeline.maskCompression = 0;
  TPD_AddTexelEffect(&pipeline, kFill, TPD_TEXELS, TPD_GOURAUD, 0, 0, 0, 0);
  BRSL_DrawTexture(&texture, 0, 0, &pipeline);
}

}  // namespace

Scene::Scene(const SceneLayout &layout, Painter painter)
    : target(layout.target),
      source(layout.source),
      blendSource(layout.blendSource),
      row(kRowEntries, 0xC0FFEE),
      reference(ReferenceFor(target)),
      contents(layout),
      surfaces_{MakeSurface(source, painter), MakeSurface(blendSource, painter)},
      pipeline_(MakePipeline(painter)) {
  reference.source = ReferenceFor(source);
  reference.blendSource = ReferenceFor(blendSource);
  if (layout.overlapping) reference.source.address = target.Address();
  const Family family = layout.family;
  if (family == Family::kText || family == Family::kFonts || family == Family::kCompression) {
    fonts = std::make_unique<Fonts>(family, painter, layout.seed, layout.failingAllocation);
  }
  if (!contents.pools[0].empty()) {
    reference.SetShapeBuffers(contents.rowTables[0].data(), contents.pools[0].data());
  }
}

void Scene::UseInLibrary() {
  ClearGouraudColours();
  Target(target);
  const auto use = [](auto set, const reference::Buffer &b) { set(b.address, b.pitch, b.format); };
  use(BRSL_SetSrcBuffer, reference.source);
  use(BRSL_SetSrcBlendBuffer, reference.blendSource);
  Shape_Set_Buffers(contents.rowTables[0].data(), contents.pools[0].data());
  TQ_Randomize(1);
  TQ_Rnd(4e9f);  // which leaves no carry
  TQ_Randomize(30903);
}

std::vector<uint32_t> Scene::Records() {
  std::vector<uint32_t> words = row;
  for (const auto &s : surfaces_) {
    for (int32_t field : {s->format, s->pitch, s->pitchShift, s->width, s->height, s->viewLeft,
                          s->viewTop, s->viewRight, s->viewBottom}) {
      words.push_back(static_cast<uint32_t>(field));
    }
    words.push_back(s->maskColour);
  }
  const TPD_Pipeline &p = *pipeline_;
  for (int32_t field : {p.maskFlag, p.filterFlag, p.maskCompression, p.effectCount, p.outputEffect,
                        p.outputArgument, p.outputLevel, p.gouraudState}) {
    words.push_back(static_cast<uint32_t>(field));
  }
  for (int i = 0; i < p.effectCount; i++) {
    const TPD_TexelEffect &e = p.effects[i];
    for (int32_t field : {e.code, e.input & 1, e.output & 1}) {
      words.push_back(static_cast<uint32_t>(field));
    }
    words.insert(words.end(), {e.a, e.b, e.c});
  }
  contents.AppendTo(words, source.Address(), blendSource.Address());
  if (fonts) fonts->Finish(words);
  return words;
}

namespace {

std::string Describe(const HostCall &call) {
  std::ostringstream text;
  text << call.service << std::hex;
  for (int64_t argument : call.arguments) text << " " << argument;
  return text.str();
}

std::string Difference(const Fonts &actual, const Fonts &expected) {
  if (!actual.comparable) return "";
  const std::vector<HostCall> &a = actual.host.calls, &b = expected.host.calls;
  for (size_t i = 0; i < std::max(a.size(), b.size()); i++) {
    const std::string did = i < a.size() ? Describe(a[i]) : "nothing";
    const std::string should = i < b.size() ? Describe(b[i]) : "nothing";
    if (did != should)
      return "host call " + std::to_string(i) + ": " + did + " instead of " + should;
  }
  return "";
}

}  // namespace

std::string Difference(Scene &actual, Scene &expected) {
  const std::string target = Difference(actual.target, expected.target);
  if (!target.empty()) return target;
  const std::string source = Difference(actual.source, expected.source);
  if (!source.empty()) return "source: " + source;
  const std::string blendSource = Difference(actual.blendSource, expected.blendSource);
  if (!blendSource.empty()) return "blend source: " + blendSource;
  return actual.fonts ? Difference(*actual.fonts, *expected.fonts) : "";
}
