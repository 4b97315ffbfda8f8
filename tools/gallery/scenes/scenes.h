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
void DrawSurfaces(Stage &stage);
void DrawBlitFormats(Stage &stage);
void DrawKeyedBlits(Stage &stage);
void DrawAlphaBlits(Stage &stage);
void DrawEffectBlits(Stage &stage);
void DrawStrips(Stage &stage);
void DrawTexturedPolygons(Stage &stage);
void DrawSprites(Stage &stage);
void DrawTexelEffects(Stage &stage);
void DrawOutputEffects(Stage &stage);
void DrawLitTextures(Stage &stage);
void DrawFilters(Stage &stage);
void DrawScaling(Stage &stage);
void DrawMapBlocks(Stage &stage);
void DrawCapturedScenes(Stage &stage);
void DrawHostCommands(Stage &stage);
void DrawEdgeVectors(Stage &stage);
void DrawCollisions(Stage &stage);
void DrawEdgeBuffers(Stage &stage);
void DrawVertexTransforms(Stage &stage);
void DrawCalculator(Stage &stage);
void DrawText(Stage &stage);
void DrawFontModes(Stage &stage);

}  // namespace brisal::tools
