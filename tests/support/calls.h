// Every drawing and memory function of the interface, callable by its arguments alone on the
// library and on the reference.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "support/scene.h"

// Surfaces are given by their number in the scene, 0 is null; so is the pipeline.
using Args = std::array<int32_t, 23>;

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
  kScaling
};

inline constexpr const char *kFamilyNames[] = {
    "pixels",        "strips",           "boxes",    "shaded-boxes", "ellipses",  "lines",
    "flat-polygons", "gouraud-polygons", "memory",   "surfaces",     "gradients", "blits",
    "effect-blits",  "pipelines",        "textures", "sprites",      "filters",   "scaling"};
inline constexpr int kFamilyCount = 18;

// The functions on plain memory work on the picture's bytes. They share one set of arguments, of
// which each takes what it needs; From and To are offsets from the picture's address.
enum MemoryArgument { kFrom, kTo, kCount, kValue, kSize, kStride };

struct Function {
  const char *name;
  Family family;
  const char *kinds;  // what each argument is: see ArgumentOf in cases.cc
  uint32_t (*library)(Scene &, const Args &);
  uint32_t (*reference)(Scene &, const Args &);
};

struct Call {
  const Function *function;
  Args args;
};

// A scene and what is drawn on it.
struct Case {
  SceneLayout layout;
  std::vector<Call> calls;
};

std::span<const Function> Functions();
const Function *FunctionNamed(const char *name);

// Draw a case on a fresh scene; every call's result and the records left are appended to results.
Scene DrawWithLibrary(const Case &c, std::vector<uint32_t> &results);
Scene DrawWithReference(const Case &c, std::vector<uint32_t> &results);

std::string Describe(const Case &c);
