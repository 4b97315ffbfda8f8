// What a case is drawn with, once for the library and once for the reference: the target, two more
// pictures and a texel pipeline.
#pragma once

#include <memory>
#include <vector>

#include "brisal/brisal.h"
#include "support/picture.h"

// The second picture is the source buffer and surface 1, the third the blend source buffer and
// surface 2.
struct SceneLayout {
  Layout target{}, source{}, blendSource{};
  bool overlapping = false;  // the source buffer lies in the target's memory
};

enum class Painter { kLibrary, kReference };

class Scene {
 public:
  Scene(const SceneLayout &layout, Painter painter);

  // Makes the pictures the library's buffers, with the target's viewport and ink alpha and an empty
  // vertex list.
  void UseInLibrary();

  BRSL_SurfaceDesc *SurfaceAt(int number) { return number ? surfaces_[number - 1].get() : nullptr; }
  TPD_Pipeline *Pipeline() { return pipeline_.get(); }

  // Everything but the pictures that a call may have changed.
  std::vector<uint32_t> Records() const;

  Picture target, source, blendSource;
  std::vector<uint32_t> row;
  reference::Reference reference;

 private:
  template <class Record>
  using Owned = std::unique_ptr<Record, void (*)(Record *)>;

  Owned<BRSL_SurfaceDesc> surfaces_[2];
  Owned<TPD_Pipeline> pipeline_;
};

std::string Difference(Scene &actual, Scene &expected);
