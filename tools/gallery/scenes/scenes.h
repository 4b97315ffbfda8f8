#pragma once

#include "tools/gallery/scene.h"

namespace brisal::tools {

void DrawPixels(Stage &stage);
void DrawBoxes(Stage &stage);
void DrawShadedBoxes(Stage &stage);
void DrawCircles(Stage &stage);
void DrawLines(Stage &stage);
void DrawFlatPolygons(Stage &stage);
void DrawGouraudPolygons(Stage &stage);
void DrawModes(Stage &stage);
void DrawFormats(Stage &stage);

}  // namespace brisal::tools
