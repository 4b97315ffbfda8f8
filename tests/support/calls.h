// Every drawing and memory function of the interface, callable by its arguments alone on the
// library and on the reference.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "support/picture.h"

using Args = std::array<int32_t, 13>;

enum class Family {
  kPixels,
  kStrips,
  kBoxes,
  kShadedBoxes,
  kEllipses,
  kLines,
  kFlatPolygons,
  kGouraudPolygons,
  kMemory
};

inline constexpr const char *kFamilyNames[] = {"pixels",        "strips",           "boxes",
                                               "shaded-boxes",  "ellipses",         "lines",
                                               "flat-polygons", "gouraud-polygons", "memory"};
inline constexpr int kFamilyCount = 9;

// The functions on plain memory work on the picture's bytes. They share one set of arguments, of
// which each takes what it needs; From and To are offsets from the picture's address.
enum MemoryArgument { kFrom, kTo, kCount, kValue, kSize, kStride };

struct Function {
  const char *name;
  Family family;
  const char *kinds;  // what each argument is: see ArgumentOf in cases.cc
  uint32_t (*library)(Picture &, const Args &);
  uint32_t (*reference)(reference::Reference &, const Args &);
};

struct Call {
  const Function *function;
  Args args;
};

// A picture and what is drawn on it.
struct Case {
  Layout layout;
  std::vector<Call> calls;
};

std::span<const Function> Functions();

// Draw a case on a fresh picture; every call's result is appended to results.
Picture DrawWithLibrary(const Case &c, std::vector<uint32_t> &results);
Picture DrawWithReference(const Case &c, std::vector<uint32_t> &results);

std::string Describe(const Case &c);
