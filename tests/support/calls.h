// Every function of the interface that draws or works on its host's memory, callable by its
// arguments alone on the library and on the reference.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "support/scene.h"

// What a function takes by address is given by its number in the scene, 0 is null.
using Args = std::array<int32_t, 23>;

// The functions on plain memory work on the picture's bytes. They share one set of arguments, of
// which each takes what it needs; From and To are offsets from the picture's address.
enum MemoryArgument { kFrom, kTo, kCount, kValue, kSize, kStride };

struct Function {
  const char *name;
  Family family;
  const char *kinds;  // what each argument is: see arguments.h
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

std::span<const Function> DrawingFunctions();
std::span<const Function> FontFunctions();
std::span<const Function> RecordFunctions();

// All of them.
std::span<const Function> Functions();
const Function *FunctionNamed(const char *name);

// Draw a case on a fresh scene; every call's result and the records left are appended to results.
Scene DrawWithLibrary(const Case &c, std::vector<uint32_t> &results);
Scene DrawWithReference(const Case &c, std::vector<uint32_t> &results);

std::string Describe(const Case &c);
