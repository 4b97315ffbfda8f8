#include "tools/gallery/scenes/scenes.h"

namespace brisal::tools {

namespace {

constexpr Variant kModes[] = {
    {"none", "the photograph", 0},
    {"normal", "DRAW_NORMAL", DRAW_NORMAL},
    {"solid", "DRAW_SOLID", DRAW_SOLID},
    {"alpha", "DRAW_ALPHA, ink alpha 150", DRAW_ALPHA},
    {"half", "DRAW_HALF", DRAW_HALF},
    {"add", "DRAW_ADD", DRAW_ADD},
    {"sub", "DRAW_SUB", DRAW_SUB},
    {"and", "DRAW_AND", DRAW_AND},
    {"or", "DRAW_OR", DRAW_OR},
    {"xor", "DRAW_XOR", DRAW_XOR},
    {"mult", "DRAW_MULT", DRAW_MULT},
    {"revsub", "DRAW_REVSUB", DRAW_REVSUB},
};

constexpr Scene kScenes[] = {
    {"gouraud", "Gouraud polygons",
     "Colours run across triangles and quads: a lit ball made of small quads, a colour wheel of "
     "triangles, and a quad whose four colours are set and drawn once more as light.",
     DrawGouraudPolygons},
    {"circles", "Circles and ellipses",
     "Filled shapes stack up to glows and planets, outlines to orbits and rings.", DrawCircles},
    {"boxes", "Boxes",
     "A town of boxes in the multiplying mode, with windows that add their light.", DrawBoxes},
    {"shaded-boxes", "Shaded boxes",
     "A box takes a colour at each corner. Six modes by rows: solid, subtract, multiply; then "
     "half, add, reverse subtract.",
     DrawShadedBoxes},
    {"flat-polygons", "Flat polygons",
     "Quads in three shades make cubes, translucent triangles a pinwheel.", DrawFlatPolygons},
    {"lines", "Lines",
     "Chords of a circle that add up to a cardioid, strings between the edges, and a plain frame "
     "that only 32-bit targets show.",
     DrawLines},
    {"pixels", "Pixels and strips",
     "Points read and strips written make a mosaic, single dots add up to a galaxy, and the upper "
     "half is mirrored pixel by pixel under scan lines.",
     DrawPixels},
    {"draw-modes", "Draw modes",
     "The same discs and the same strip across grey steps in every mode. Multiplying strips are "
     "for 5:6:5, adding and subtracting ones for all but ARGB; reverse subtracting ones for none.",
     DrawModes, kModes},
    {"formats", "Formats",
     "What each format keeps of a colour: dim gradients break into steps where bits are few, the "
     "small steps of a glow fall below what five bits can hold, and a patch of the photograph is "
     "enlarged.",
     DrawFormats},
};

}  // namespace

std::span<const Scene> Scenes() { return kScenes; }

}  // namespace brisal::tools
