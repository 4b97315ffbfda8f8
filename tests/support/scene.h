// What a case is drawn with, once for the library and once for the reference: the target, two more
// pictures, a texel pipeline, and fonts or what else the host keeps.
#pragma once

#include <memory>
#include <vector>

#include "brisal/brisal.h"
#include "support/contents.h"
#include "support/fonts.h"
#include "support/layouts.h"

class Scene {
 public:
  Scene(const SceneLayout &layout, Painter painter);

  // Makes the pictures the library's buffers, with the target's viewport and ink alpha, an empty
  // vertex list and no Gouraud colours.
  void UseInLibrary();

  BRSL_SurfaceDesc *SurfaceAt(int number) { return number ? surfaces_[number - 1].get() : nullptr; }
  TPD_Pipeline *Pipeline() { return pipeline_.get(); }

  // What a call is given by number; 0 is null.
  template <class Record>
  Record *At(int32_t number) {
    if (number == 0) return nullptr;
    if constexpr (std::is_same_v<Record, BRSL_SurfaceDesc>) return SurfaceAt(number);
    if constexpr (std::is_same_v<Record, TPD_Pipeline>) return Pipeline();
    if constexpr (std::is_same_v<Record, CRF_Font>) return fonts->At(number);
    if constexpr (std::is_same_v<Record, uint32_t>) return row.data();
    return static_cast<Record *>(contents.At<Record>(number));
  }

  // Everything but the pictures that a call may have changed. Releases the fonts.
  std::vector<uint32_t> Records();

  Picture target, source, blendSource;
  std::vector<uint32_t> row;
  reference::Reference reference;
  Contents contents;
  std::unique_ptr<Fonts> fonts;

 private:
  template <class Record>
  using Owned = std::unique_ptr<Record, void (*)(Record *)>;

  Owned<BRSL_SurfaceDesc> surfaces_[2];
  Owned<TPD_Pipeline> pipeline_;
};

std::string Difference(Scene &actual, Scene &expected);
