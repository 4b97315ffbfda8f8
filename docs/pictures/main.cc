#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>

#include "docs/pictures/picture.h"
#include "host/png.h"
#include "tools/gallery/pictures.h"

namespace brisal::docs {

void DrawCoast(BRSL_SurfaceDesc *page) { BRSL_ScaleSurface(TextureOf(tools::Coast()), page, 1111); }

namespace {

void Draw(const Picture &picture, const std::filesystem::path &folder) {
  host::Image image(kWidth, kHeight, kFormat);
  image.Target();
  BRSL_SetInkAlpha(255);
  BRSL_ShadeBox(0, 0, kWidth, kHeight, 0x182038, 0x202848, 0x384870, 0x303C64, DRAW_SOLID);
  BRSL_SurfaceDesc *const page =
      BRSL_AllocSurfaceDesc(kFormat, image.Row(0), image.Pitch(), kWidth, kHeight);
  picture.draw(page);
  BRSL_FreeSurfaceDesc(page);
  host::WritePng(folder / (std::string(picture.name) + ".png"), image);
}

void DrawAll(const std::filesystem::path &folder) {
  BRSL_Init_Lib();
  std::filesystem::create_directories(folder);
  for (const auto &pictures : {ShapePictures(), PolygonPictures(), SurfacePictures(),
                               TexturePictures(), ScenePictures()}) {
    for (const Picture &picture : pictures) Draw(picture, folder);
  }
}

}  // namespace

}  // namespace brisal::docs

int main(int argc, char **argv) {
  if (argc != 2) {
    std::fputs("usage: brisal_doc_pictures FOLDER\n", stderr);
    return 1;
  }
  try {
    brisal::docs::DrawAll(argv[1]);
  } catch (const std::exception &error) {
    std::fprintf(stderr, "brisal_doc_pictures: %s\n", error.what());
    return 1;
  }
}
