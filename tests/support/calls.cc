#include "support/calls.h"

#include <cstring>
#include <sstream>

#include "brisal/brisal.h"

std::span<const Function> Functions() {
  static const std::vector<Function> all = [] {
    std::vector<Function> functions;
    for (const auto part : {DrawingFunctions(), FontFunctions(), RecordFunctions()}) {
      functions.insert(functions.end(), part.begin(), part.end());
    }
    return functions;
  }();
  return all;
}

const Function *FunctionNamed(const char *name) {
  for (const Function &function : Functions()) {
    if (!std::strcmp(function.name, name)) return &function;
  }
  return nullptr;
}

namespace {

Scene Draw(const Case &c, Painter painter, std::vector<uint32_t> &results) {
  Scene scene(c.layout, painter);
  const bool library = painter == Painter::kLibrary;
  if (library) scene.UseInLibrary();
  for (const Call &call : c.calls) {
    const Function &function = *call.function;
    results.push_back((library ? function.library : function.reference)(scene, call.args));
  }
  const std::vector<uint32_t> records = scene.Records();
  results.insert(results.end(), records.begin(), records.end());
  return scene;
}

}  // namespace

Scene DrawWithLibrary(const Case &c, std::vector<uint32_t> &results) {
  return Draw(c, Painter::kLibrary, results);
}

Scene DrawWithReference(const Case &c, std::vector<uint32_t> &results) {
  return Draw(c, Painter::kReference, results);
}

std::string Describe(const Case &c) {
  const SceneLayout &l = c.layout;
  std::ostringstream text;
  text << Describe(l.target);
  if (l.source.width > 1) text << "\n  source: " << Describe(l.source);
  if (l.overlapping) text << ", overlapping the target";
  if (l.blendSource.width > 1) text << "\n  blend source: " << Describe(l.blendSource);
  for (const Call &call : c.calls) {
    text << "\n  " << call.function->name << "(";
    for (int i = 0; call.function->kinds[i]; i++) {
      const bool hex = std::strchr("ckfmMEFzt", call.function->kinds[i]);
      text << (i ? ", " : "") << (hex ? "0x" : "") << (hex ? std::hex : std::dec) << call.args[i];
    }
    text << ")";
  }
  return text.str();
}
