#include "support/layouts.h"

#include <algorithm>
#include <bit>
#include <cstdlib>

#include "support/arguments.h"

namespace {

bool Draws(Family family) {
  return family < Family::kFonts || family == Family::kCaptures || family == Family::kCollisions ||
         family == Family::kEdgeBuffers;
}

bool UsesImages(Family family) {
  const bool early = family >= Family::kSurfaces && family < Family::kText;
  return early || family == Family::kCaptures || family == Family::kCollisions;
}

// The memory family's picture holds every range that MemoryArgumentOf asks for. Only long lines
// show how many bits of fraction their steps have, only tall pictures how lists of spans grow, only
// wide ones where buffers of texels end.
Layout TargetFor(Random &random, Family family) {
  if (family == Family::kLines && random.OneIn(3)) {
    return random.OneIn(2) ? RandomLayout(random, 500, 60) : RandomLayout(random, 60, 500);
  }
  if (family == Family::kTextures || family == Family::kSprites || family == Family::kGradients) {
    if (random.OneIn(150)) return RandomLayout(random, 9000, 3);
    if (random.OneIn(30)) return RandomLayout(random, 700, 4);
  }
  if (!Draws(family)) return {};
  if (family == Family::kEdgeBuffers) return RandomLayout(random, 80, 30);
  if (family != Family::kMemory && random.OneIn(100)) return RandomLayout(random, 6, 5000);
  if (family != Family::kMemory) return RandomLayout(random, 80, 30);
  Layout layout;
  layout.width = 64;
  layout.height = 8;
  layout.pitch = 256;
  layout.misalign = random.Between(0, 15);
  layout.seed = random.Next();
  return layout;
}

Layout Masked(Random &random, Layout layout) {
  layout.mask = static_cast<uint32_t>(random.OneIn(3) ? Anything(random) : RandomColour(random));
  if (random.OneIn(2)) layout.mask &= 0xFFFFFF;
  if (random.OneIn(5)) layout.mask |= 0xFF000000;
  layout.maskShare = random.Pick({0, 1, 30, 60, 60, 90, 100});
  return layout;
}

void SetFormat(Random &random, Layout &layout, int32_t format) {
  layout.format = format;
  const int32_t bytes = kFormatBytes[format];
  // Textures mostly have rows of a power of two of texels.
  const auto packed = static_cast<int32_t>(std::bit_ceil(static_cast<uint32_t>(layout.width)));
  const int32_t pitch =
      random.OneIn(3) ? packed * bytes : layout.width * bytes + random.Between(0, 9);
  layout.pitch = layout.pitch < 0 ? -pitch : pitch;
}

}  // namespace

SceneLayout LayoutFor(Random &random, Family family) {
  SceneLayout scene{.target = TargetFor(random, family), .family = family};
  if (family >= Family::kText) scene.seed = random.Next();
  if (family == Family::kFonts && random.OneIn(5)) scene.failingAllocation = random.Between(1, 20);
  if (!UsesImages(family)) return scene;
  const bool large = family != Family::kFilters && random.OneIn(12);
  for (Layout *layout : {&scene.source, &scene.blendSource}) {
    *layout = Masked(random, RandomLayout(random, large ? 300 : 40, 30));
    if (random.OneIn(8)) (random.OneIn(2) ? layout->height : layout->width) = 1;
    SetFormat(random, *layout, random.OneIn(3) ? scene.target.format : layout->format);
    reference::Rect &v = layout->viewport;
    v.right = std::min(v.right, layout->width);
    v.left = std::min(v.left, v.right);
    v.bottom = std::min(v.bottom, layout->height);
    v.top = std::min(v.top, v.bottom);
  }
  if (scene.target.format == 4 && random.OneIn(4)) SetFormat(random, scene.source, 4);
  if (family == Family::kSurfaces) {
    scene.target = Masked(random, scene.target);
    scene.target.mask = scene.source.mask;
  }
  if (family == Family::kFilters || family == Family::kScaling) {
    for (Layout *layout : {&scene.source, &scene.blendSource}) {
      if (layout->format == 0 || layout->format == 6) SetFormat(random, *layout, 5);
    }
  }
  if (family == Family::kCollisions) {
    scene.blendSource.width = scene.source.width;
    scene.blendSource.height = scene.source.height;
    SetFormat(random, scene.blendSource, scene.blendSource.format);
  }
  if (family == Family::kEffectBlits) {
    if (!random.OneIn(10)) SetFormat(random, scene.source, scene.target.format);
    const uint64_t seed = scene.blendSource.seed;
    scene.blendSource = scene.source;
    scene.blendSource.seed = seed;
    SetFormat(random, scene.blendSource, scene.source.format);
  }
  if ((family == Family::kBlits || family == Family::kEffectBlits) && random.OneIn(6)) {
    scene.overlapping = true;
    const int32_t format = random.OneIn(2) ? scene.target.format : scene.source.format;
    scene.source = scene.blendSource = scene.target;
    scene.source.mask = static_cast<uint32_t>(RandomColour(random));
    scene.source.format = scene.blendSource.format = format;
    scene.source.width = scene.blendSource.width =
        std::abs(scene.target.pitch) / kFormatBytes[format];
    SetFormat(random, scene.blendSource, format);
  }
  return scene;
}
