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

constexpr Variant kSourceFormats[] = {
    {"from-565", "from 5:6:5", BRSL_FORMAT_565}, {"from-555", "from 5:5:5", BRSL_FORMAT_555},
    {"from-rgb", "from RGB", BRSL_FORMAT_RGB},   {"from-x32", "from XRGB", BRSL_FORMAT_X32},
    {"from-a32", "from ARGB", BRSL_FORMAT_A32},
};

constexpr int32_t kBlend = 1 << 16;

constexpr Variant kEffectBlits[] = {
    {"copy", "0: a plain blit", 0},
    {"fill", "1: copy, and fill the source", 1},
    {"half", "32: copy, and halve the source with c", 32},
    {"add", "64: add c to both", 64},
    {"sub", "128: subtract c from both", 128},
    {"mult", "8192: multiply by c", 8192},
    {"fade", "16384: copy, and multiply the source by c", 16384},
    {"blend-half", "32: half source, half blend source", kBlend + 32},
    {"blend-add", "64: add the blend source", kBlend + 64},
    {"blend-sub", "128: subtract the blend source", kBlend + 128},
    {"blend-mult", "8192: multiply by the blend source", kBlend + 8192},
    {"blend-light", "1024: multiply by the blend source", kBlend + 1024},
};

constexpr Variant kSprites[] = {
    {"nearest", "nearest texel, one quad", 0},
    {"filtered", "filtered, one quad", 1},
    {"nearest-split", "nearest texel, two triangles", 2},
    {"filtered-split", "filtered, two triangles", 3},
};

constexpr Variant kTexelEffects[] = {
    {"none", "no effect", 0},
    {"1", "1: multiply by a = 60A0FF", 1},
    {"2", "2: add a = 3060A0", 2},
    {"3", "3: subtract a = A04000", 3},
    {"4", "4: blend towards a = 3080FF, b = 90", 4},
    {"5", "5: average with four corner colours", 5},
    {"6", "6: add four corner colours", 6},
    {"7", "7: multiply by four corner colours", 7},
    {"10", "10: fill with a = 203040", 10},
    {"11", "11: and with a = 80C080", 11},
    {"12", "12: or with a = 0040C0", 12},
    {"15", "15: replace the wing's colour by c = 3878E0", 15},
};

constexpr Variant kOutputEffects[] = {
    {"1", "1: plain", 1}, {"2", "2: level 110", 2},   {"3", "3: half", 3},
    {"4", "4: add", 4},   {"5", "5: subtract", 5},
};

constexpr Variant kFilters[] = {
    {"none", "the photograph", 0},
    {"blur", "blurred six times, divisor 9", 1},
    {"blur-bright", "blurred, divisor 6", 2},
    {"fade", "faded to 45 percent", 3},
    {"brighten", "faded to 180 percent", 4},
    {"grey", "grey scale", 5},
    {"light", "light, intensity 300", 6},
    {"phong", "a phong map of an orange light", 7},
    {"mirror-h", "mirrored left to right", 8},
    {"mirror-v", "mirrored top to bottom", 9},
    {"mirror-hv", "turned by half a turn", 10},
    {"prepare", "prepared with alpha, then blurred", 11},
};

constexpr Variant kScaling[] = {
    {"nearest", "0: nearest pixel", 0},
    {"texture", "1: filtered as a texture", 1},
    {"surface", "1111: filtered through the viewport", 1111},
};

constexpr Variant kFontModes[] = {
    {"soft-0", "depth 8, mode 0: written", 0},
    {"soft-1", "depth 8, mode 1: blended", 1},
    {"soft-2", "depth 8, mode 2: on the backdrop", 2},
    {"solid-0", "depth 8, solid, mode 0", 8},
    {"solid-1", "depth 8, solid, mode 1", 9},
    {"solid-2", "depth 8, solid, mode 2", 10},
    {"colour-0", "depth 32, mode 0", 16},
    {"colour-1", "depth 32, mode 1", 17},
    {"colour-2", "depth 32, mode 2", 18},
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
    {"surfaces", "Surfaces",
     "Pixels peeked and poked through a descriptor: a fractal over the darkened photograph, clipped "
     "to the descriptor's viewport, and below the brightness along the red row. The lamp's rays go "
     "as far as the floor has one colour.",
     DrawSurfaces},
    {"blit-formats", "Blits between formats",
     "One picture in all five formats, copied into a target of each. Bits dropped on the way show as "
     "steps. ARGB targets take ARGB pictures only.",
     DrawBlitFormats, kSourceFormats, BRSL_FORMAT_X32},
    {"keyed-blits", "Blits with a mask colour",
     "Balloons on a ground of one colour that stays away, and one blitted whole, ground and all.",
     DrawKeyedBlits},
    {"alpha-blits", "Blits with alpha",
     "Soap bubbles with an alpha channel, blended into every format but ARGB, where the pixels that "
     "are not the mask colour are copied.",
     DrawAlphaBlits, {}, BRSL_FORMAT_X32},
    {"effect-blits", "Effect blits",
     "Left a map of a planet blitted with an effect, c an orange and the blend source a spot of "
     "light; right what the source is afterwards. RGB sources can be multiplied only, ARGB ones "
     "multiplied and faded.",
     DrawEffectBlits, kEffectBlits, BRSL_FORMAT_X32},
    {"strips", "Gouraud and texture strips",
     "A hall of lines one pixel wide: texture rows for the floor, texture columns for the walls, "
     "shaded columns for the ceiling, shaded rows for the pillars.",
     DrawStrips},
    {"filters", "Rectangle filters",
     "Filters change a surface in its viewport, here all but the margins of the photograph. A "
     "balloon of 5:6:5 is prepared with alpha, which the blur then softens with the colours.",
     DrawFilters, kFilters, BRSL_FORMAT_X32},
    {"scaling", "Scaling",
     "A butterfly of 32 pixels a side enlarged, a map of 288 by 432 pixels reduced.", DrawScaling,
     kScaling},
    {"map-blocks", "Map blocks",
     "A map copied tile by tile. Copying a block tells whether it has transparent pixels; those "
     "with some are laid on grass.",
     DrawMapBlocks},
    {"textured-polygons", "Textured polygons",
     "A map on a globe of quads and on a fan of triangles, beside them the map itself; crates with "
     "tinted sides.",
     DrawTexturedPolygons},
    {"sprites", "Sprites",
     "A sheet of eight frames, turned through 32 angles and enlarged.", DrawSprites, kSprites},
    {"texel-effects", "Texel effects", "What a pipeline can do to texels before they are drawn.",
     DrawTexelEffects, kTexelEffects},
    {"output-effects", "Output effects", "How the texels meet the target.", DrawOutputEffects,
     kOutputEffects},
    {"lit-textures", "Lit textures",
     "Gouraud colours at the corners light a wall and colour butterflies: multiplied, averaged and "
     "added.",
     DrawLitTextures},
    {"captured-scenes", "Captured scenes",
     "A town by the sea as a list of captured commands, twice as wide as the picture, drawn three "
     "times at other scroll offsets; commands whose bounding box does not show are left out.",
     DrawCapturedScenes},
    {"host-commands", "Commands of the host",
     "Maps, images, sprites, texts, dots and lines are captured too, for the host to draw. A camera "
     "looks at the middle of the page: only commands that show there are drawn, the bounding boxes "
     "of the others are outlined.",
     DrawHostCommands},
    {"edge-vectors", "Edge vectors",
     "A ray of light in a room of mirrors, reflected by the normals of its walls.", DrawEdgeVectors},
    {"collisions", "Collisions",
     "Span lists of lines, ellipses, boxes and polygons against turned butterflies, and butterflies "
     "against each other. Only opaque pixels count: what touches is red.",
     DrawCollisions},
    {"edge-buffers", "Edge buffers",
     "Outlines that cross themselves, filled by the even-odd rule.", DrawEdgeBuffers},
    {"vertex-transforms", "Vertex transforms",
     "Lists of points turned, seen by a camera and projected; a cube that becomes a ball step by "
     "step, and squares turned in the plane.",
     DrawVertexTransforms},
    {"calculator", "The calculator",
     "Two small programs compute the distance from the centre and the height of a ripple for 9,680 "
     "points.",
     DrawCalculator},
    {"text", "Text",
     "Raster fonts made from outlines: a title and its shadow, a column broken into lines by the "
     "width of words, letters that are clipped by windows, and letters on a wave.",
     DrawText},
    {"font-modes", "Draw modes of fonts",
     "Glyphs of intensities, solid ones, and glyphs of colours, in the three modes that a font has. "
     "Mode 0 writes what glyphs hold, edges too; mode 1 blends; mode 2 blends into one colour.",
     DrawFontModes, kFontModes, BRSL_FORMAT_X32},
};

}  // namespace

std::span<const Scene> Scenes() { return kScenes; }

}  // namespace brisal::tools
