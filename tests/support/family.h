// The functions of the interface in families, each with a random test and a digest of its own.
#pragma once

#include <iterator>

enum class Family {
  kPixels,
  kStrips,
  kBoxes,
  kShadedBoxes,
  kEllipses,
  kLines,
  kFlatPolygons,
  kGouraudPolygons,
  kMemory,
  kSurfaces,
  kGradients,
  kBlits,
  kEffectBlits,
  kPipelines,
  kTextures,
  kSprites,
  kFilters,
  kScaling,
  kText,
  kFonts,
  kCompression,
  kCaptures,
  kCollisions,
  kEdgeBuffers,
  kTransforms,
  kCalculator
};

inline constexpr const char *kFamilyNames[] = {
    "pixels",       "strips",    "boxes",         "shaded-boxes",
    "ellipses",     "lines",     "flat-polygons", "gouraud-polygons",
    "memory",       "surfaces",  "gradients",     "blits",
    "effect-blits", "pipelines", "textures",      "sprites",
    "filters",      "scaling",   "text",          "fonts",
    "compression",  "captures",  "collisions",    "edge-buffers",
    "transforms",   "calculator"};
inline constexpr int kFamilyCount = static_cast<int>(std::size(kFamilyNames));
