#include "brisal/brisal.h"
#include "exports/instance.h"
#include "hostlang/colours.h"
#include "hostlang/maths.h"
#include "hostlang/random.h"
#include "pixel/format.h"

using namespace brisal;

uint32_t BRSL_CALL TQ_RGB(int32_t r, int32_t g, int32_t b) { return Colour(r, g, b); }

uint32_t BRSL_CALL TQ_ARGB(int32_t a, int32_t r, int32_t g, int32_t b) {
  return Colour(a, r, g, b);
}

uint32_t BRSL_CALL TQ_RGB_With_AlphaIntensity(int32_t r, int32_t g, int32_t b) {
  return ColourWithIntensity(r, g, b);
}

int32_t BRSL_CALL TQ_RGBA(uint32_t colour) { return AlphaOf(colour); }

int32_t BRSL_CALL TQ_RGBR(uint32_t colour) { return RedOf(colour); }

int32_t BRSL_CALL TQ_RGBG(uint32_t colour) { return GreenOf(colour); }

int32_t BRSL_CALL TQ_RGBB(uint32_t colour) { return BlueOf(colour); }

uint32_t BRSL_CALL TQ_RGB_888to565(uint32_t colour) { return Rgb565::Pack(colour); }

uint32_t BRSL_CALL TQ_RGB_888to555(uint32_t colour) { return Rgb555::Pack(colour); }

uint32_t BRSL_CALL TQ_RGB_565to888(uint32_t pixel) { return Rgb565::Widen(pixel); }

uint32_t BRSL_CALL TQ_RGB_555to888(uint32_t pixel) { return Rgb555::Widen(pixel); }

uint32_t BRSL_CALL TQ_RNDRGB(void) { return RandomColour(instance.random); }

uint32_t BRSL_CALL TQ_RGB_GREY(uint32_t colour) { return GreyOf(colour); }

uint32_t BRSL_CALL TQ_RGB_FADE(uint32_t colour, float percent) {
  return FadeColour(colour, percent);
}

uint32_t BRSL_CALL TQ_RGB_ALPHA_BLEND(uint32_t colour1, uint32_t colour2, float percent) {
  return BlendColoursByPercent(colour1, colour2, percent);
}

uint32_t BRSL_CALL TQ_RGB_ALPHA_BLEND_Variable(uint32_t colour1, uint32_t colour2, int32_t level) {
  return BlendColours(colour1, colour2, level);
}

uint32_t BRSL_CALL TQ_RGB_DEPTH_CUE(uint32_t colour1, uint32_t colour2, float depth,
                                    float nearDepth, float farDepth) {
  return BlendColoursByDepth(colour1, colour2, depth, nearDepth, farDepth);
}

uint32_t BRSL_CALL TQ_RGB_SCALE(uint32_t colour, int32_t factor) {
  return ScaleColour(colour, factor);
}

uint32_t BRSL_CALL TQ_RGB_ALPHA_ADD(uint32_t colour1, uint32_t colour2) {
  return AddColours(colour1, colour2);
}

uint32_t BRSL_CALL TQ_RGB_ALPHA_SUB(uint32_t colour1, uint32_t colour2) {
  return SubtractColours(colour1, colour2);
}

uint32_t BRSL_CALL TQ_RGB_ALPHA_MULT(uint32_t colour1, uint32_t colour2) {
  return MultiplyColours(colour1, colour2);
}

uint32_t BRSL_CALL TQ_RGB_ALPHA_50(uint32_t colour1, uint32_t colour2) {
  return HalveColours(colour1, colour2);
}

uint32_t BRSL_CALL TQ_RGB_ALPHA_AND(uint32_t colour1, uint32_t colour2) {
  return colour1 & colour2;
}

uint32_t BRSL_CALL TQ_RGB_ALPHA_OR(uint32_t colour1, uint32_t colour2) { return colour1 | colour2; }

uint32_t BRSL_CALL TQ_RGB_ALPHA_XOR(uint32_t colour1, uint32_t colour2) {
  return colour1 ^ colour2;
}

float BRSL_CALL TQ_Cos(float degrees) { return Cosine(degrees); }

float BRSL_CALL TQ_Sin(float degrees) { return Sine(degrees); }

float BRSL_CALL TQ_Tan(float degrees) { return Tangent(degrees); }

float BRSL_CALL TQ_Log(float x) { return NaturalLogarithm(x); }

float BRSL_CALL TQ_Log10(float x) { return DecimalLogarithm(x); }

float BRSL_CALL TQ_Power(float x, float y) { return Power(x, y); }

float BRSL_CALL WrapAngle(float degrees) { return brisal::WrapAngle(degrees); }

float BRSL_CALL TQ_WrapValue(float value, float a, float b) { return WrapValue(value, a, b); }

const char *BRSL_CALL TQ_TestString(void) { return "0123456789abcdef0123456789abcdef"; }

float BRSL_CALL TQ_Rnd(float max) { return RandomUpTo(instance.random, max); }

void BRSL_CALL TQ_Randomize(int32_t seed) {
  Randomize(instance.random, static_cast<uint32_t>(seed));
}
