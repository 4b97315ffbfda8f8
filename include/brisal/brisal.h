/*
 * brisal.h - the whole public interface of Brisal, a software rasteriser.
 *
 * The caller owns every pixel. It names a target buffer and a viewport, then calls flat C
 * functions that draw into that memory. Nothing is allocated in the steady state, nothing is
 * logged, and no call fails loudly: what cannot be drawn is not drawn.
 *
 *     BRSL_Init_Lib();
 *     BRSL_SetBuffer(pixels, 640 * 4, BRSL_FORMAT_X32);
 *     BRSL_SetBufferViewPort(0, 0, 640, 480);
 *     BRSL_Circle(320, 240, 100, 0xFF8000, 0);
 *
 * CONVENTIONS
 *
 * Colour        0xAARRGGBB: blue in bits 0-7, green 8-15, red 16-23, alpha 24-31.
 * Packed colour A colour in the storage of the target's format, as RGBForBuffer gives it:
 *                 format 1     RGBto565(colour)
 *                 format 2     RGBto555(colour)
 *                 format 3     colour & 0xFFFFFF
 *                 formats 4, 5 the colour unchanged, all 32 bits
 * Coordinates   Pixels; x grows to the right, y downwards. Pixel (x, y) lies at
 *               address + y * pitch + x * bytes per pixel; pitch is in bytes and may be negative.
 *               Unless a function says otherwise any 32-bit value is safe.
 * Rectangles    Left and top belong to it, right and bottom do not.
 * Viewport      Clips every function except those that say "not clipped". It must lie inside the
 *               target buffer: that is the caller's part of the bargain.
 * Formats       BRSL_FORMAT_*. With any other code every drawing function draws nothing.
 * Draw modes    DRAW_*. How a written channel s meets the target's channel d. Exactly one is given;
 *               any other value draws nothing. a is the ink alpha.
 *                 DRAW_NORMAL, DRAW_SOLID  s
 *                 DRAW_ALPHA   d + floor((s - d) * a / 256); a = 0 draws nothing, a = 255 draws s
 *                 DRAW_HALF    (d >> 1) + (s >> 1); in format 3 (d + s) >> 1
 *                 DRAW_ADD     min(d + s, channel maximum)
 *                 DRAW_SUB     max(d - s, 0)
 *                 DRAW_AND     d & s
 *                 DRAW_OR      d | s
 *                 DRAW_XOR     d ^ s
 *                 DRAW_MULT    (d * s) >> channel width in bits
 *                 DRAW_REVSUB  max(s - d, 0)
 *               In formats 4 and 5 the solid, and, or and xor modes treat the top byte like the
 *               other channels; every other mode writes it as 0. Bit 15 of format 2 belongs to no
 *               channel: the same four kinds of mode treat it as a bit, the others write it as 0.
 * Flags         Shape functions carry the draw mode in bits 4-15 (flags & 0xFFF0); 0 there draws
 *               solid. So DRAW_ALPHA to DRAW_REVSUB may be given as they are.
 * Span fills    Filled shapes depart from the one-pixel rule in two places:
 *                 DRAW_ALPHA in formats 1 and 2: an ink alpha up to 16 draws nothing, one from 240
 *                 draws solid;
 *                 DRAW_ADD and DRAW_SUB of packed colour 0 leave the target as it is (top byte too).
 * Gouraud       A row of n pixels from colour l to colour r gives pixel i (0 .. n - 1) the channel
 *               (l * 65536 + i * trunc((r - l) * 65536 / n)) >> 16, reduced to the format's width by
 *               dropping low bits. Offered in DRAW_NORMAL, DRAW_SOLID, DRAW_HALF, DRAW_ADD,
 *               DRAW_SUB, DRAW_MULT and DRAW_REVSUB; other modes draw nothing. The top byte is
 *               written as 0, except that DRAW_ADD and DRAW_SUB leave a row alone whose two
 *               colours are both black at the format's precision.
 * Threads       None. The library's state is one for the process; calls must not overlap.
 */
#ifndef BRISAL_BRISAL_H
#define BRISAL_BRISAL_H

#include <stdint.h>

#define BRSL_VERSION_MAJOR 0
#define BRSL_VERSION_MINOR 1
#define BRSL_VERSION_PATCH 0

#if defined(_WIN32) && !defined(_WIN64)
#define BRSL_CALL __stdcall
#else
#define BRSL_CALL
#endif

#if defined(BRISAL_BUILD) && !defined(_WIN32)
#define BRSL_API __attribute__((visibility("default")))
#else
#define BRSL_API
#endif

/* Pixel format codes. */
#define BRSL_FORMAT_565 1 /* 16-bit word: red in bits 11-15, green 5-10, blue 0-4 */
#define BRSL_FORMAT_555 2 /* 16-bit word: red in bits 10-14, green 5-9, blue 0-4; bit 15 unused */
#define BRSL_FORMAT_RGB 3 /* three bytes in memory order red, green, blue */
#define BRSL_FORMAT_X32 4 /* 32-bit little-endian 0xAARRGGBB, top byte not significant */
#define BRSL_FORMAT_A32 5 /* 32-bit little-endian 0xAARRGGBB, top byte an alpha channel */

/* Draw modes. */
#define DRAW_NORMAL 1
#define DRAW_SOLID 2
#define DRAW_ALPHA 16
#define DRAW_HALF 32
#define DRAW_ADD 64
#define DRAW_SUB 128
#define DRAW_AND 256
#define DRAW_OR 512
#define DRAW_XOR 1024
#define DRAW_MULT 2048
#define DRAW_REVSUB 4096

/* Shape flags, beside a draw mode. */
#define BRSL_OUTLINE 1
#define BRSL_FILLED 2

/*
 * A surface: pixel memory of the caller, described. Pixel (x, y) lies as in a buffer; the viewport is
 * half-open and limits the calls that say so. Make one with BRSL_AllocSurfaceDesc; its fields may be
 * read, and changed through the setters.
 */
typedef struct BRSL_SurfaceDesc {
  int32_t format;      /* BRSL_FORMAT_* */
  void *address;       /* pixel (0, 0) */
  int32_t pitch;       /* bytes from row to row */
  int32_t pitchShift;  /* k where pitch is 2^k for a k of 0-23, else 0 */
  int32_t width;       /* pixels */
  int32_t height;      /* pixels */
  uint32_t maskColour; /* 0xAARRGGBB, the colour of transparent pixels */
  int32_t viewLeft;    /* viewport: first column and row inside, first column and row outside */
  int32_t viewTop;
  int32_t viewRight;
  int32_t viewBottom;
} BRSL_SurfaceDesc;

/*
 * A texel pipeline: how the texels of a texture become pixels of the target. Make one with TPD_Alloc
 * or TPD_BuildSpriteDrawMode; its fields may be read, and changed through the setters.
 */
#define TPD_MAX_EFFECTS 32
#define TPD_TEXELS 0  /* buffer codes of TPD_AddTexelEffect: the texels of the span, */
#define TPD_GOURAUD 1 /* and its Gouraud colours */

typedef struct TPD_TexelEffect {
  int32_t code; /* 0 ends the chain */
  int32_t input;
  int32_t output;
  uint32_t a;
  uint32_t b;
  uint32_t c;
  uint32_t d;
} TPD_TexelEffect;

typedef struct TPD_Pipeline {
  int32_t maskFlag; /* 1: mask-coloured texels, and texels by their alpha, let the target through */
  int32_t filterFlag;      /* 1: bilinear filtering */
  int32_t maskCompression; /* 1: mask-coloured texels are cut out while fetching */
  int32_t effectCount;     /* 0-32 */
  TPD_TexelEffect effects[TPD_MAX_EFFECTS];
  int32_t outputEffect;   /* 0-5; 0 draws nothing */
  int32_t outputArgument; /* kept with the output effect, not used */
  int32_t outputLevel;    /* 1-253 for output effect 2, else 0 */
  int32_t gouraudState;   /* 1: the vertices' colours are interpolated for the effects */
} TPD_Pipeline;

#ifdef __cplusplus
extern "C" {
#endif

/* ---- State and pixel formats --------------------------------------------------------------- */

/*
 * Starts the library: sets the MMX switch to CPU_CheckMMX() and builds the quarter-circle table.
 * Call it once after loading and before drawing; circles and ellipses need it. Calling it again
 * does the same again.
 * Returns 1.
 */
BRSL_API int32_t BRSL_CALL BRSL_Init_Lib(void);

/*
 * Sets the target buffer that every drawing call writes into. Nothing is checked or read here.
 * address: pixel (0, 0). pitch: bytes from one row to the next, any sign. format: BRSL_FORMAT_*;
 * any other code makes drawing calls draw nothing.
 * The caller guarantees that the viewport, and every pixel given to a function that is not
 * clipped, lies in writable memory. No alignment is needed.
 */
BRSL_API void BRSL_CALL BRSL_SetBuffer(void *address, int32_t pitch, int32_t format);

/*
 * Sets the source buffer that copying calls read. Arguments as for BRSL_SetBuffer; the memory only
 * needs to be readable, unless a function says that it writes there.
 */
BRSL_API void BRSL_CALL BRSL_SetSrcBuffer(void *address, int32_t pitch, int32_t format);

/*
 * Sets the blend source buffer, a second picture that some effects read. Arguments as for
 * BRSL_SetSrcBuffer.
 */
BRSL_API void BRSL_CALL BRSL_SetSrcBlendBuffer(void *address, int32_t pitch, int32_t format);

/*
 * Sets the viewport: left = min(x1, x2), top = min(y1, y2), right = max(x1, x2),
 * bottom = max(y1, y2). A pixel is inside when left <= x < right and top <= y < bottom, so
 * (0, 0, 320, 200) admits x 0-319 and y 0-199, and equal corners admit nothing.
 * The caller guarantees that the viewport lies inside the target buffer while drawing.
 */
BRSL_API void BRSL_CALL BRSL_SetBufferViewPort(int32_t x1, int32_t y1, int32_t x2, int32_t y2);

/*
 * Sets the ink alpha, the level of DRAW_ALPHA; 255 until it is first set.
 * alpha: clamped to 0-255.
 * Returns the value stored.
 */
BRSL_API int32_t BRSL_CALL BRSL_SetInkAlpha(int32_t alpha);

/*
 * Returns the ink alpha, 0-255.
 */
BRSL_API int32_t BRSL_CALL BRSL_GetInkAlpha(void);

/*
 * Stores a number for the host; nothing in the library reads it.
 * index: 0-255; with any other index nothing is stored. value: any.
 * Returns value, or 0 for an index out of range.
 */
BRSL_API int32_t BRSL_CALL BRSL_SetDebug(int32_t index, int32_t value);

/*
 * Returns what BRSL_SetDebug stored at index, 0 where nothing was or the index is not 0-255.
 */
BRSL_API int32_t BRSL_CALL BRSL_GetDebug(int32_t index);

/*
 * Returns 1 when the processor reports MMX, else 0 (always 0 on other processor families).
 */
BRSL_API int32_t BRSL_CALL CPU_CheckMMX(void);

/*
 * Returns the MMX switch: 1 when the wide instruction set may be used, 0 for the plain one. It
 * chooses speed only; every result is the same on both sides.
 */
BRSL_API int32_t BRSL_CALL BRSL_GetMMXState(void);

/*
 * Sets the MMX switch to state & 1 where CPU_CheckMMX() is 1; elsewhere leaves it as it is.
 * Returns the value set, 0 where it was left alone.
 */
BRSL_API int32_t BRSL_CALL BRSL_SetMMXState(int32_t state);

/*
 * Starts a cycle count: stores the processor's time-stamp counter, or a monotonic nanosecond clock
 * where there is none.
 * slot: 0-127; with any other slot nothing is stored.
 * Returns 1, or 0 for a slot out of range.
 */
BRSL_API int32_t BRSL_CALL BRSL_StartCC(int32_t slot);

/*
 * Returns the low 32 bits of the counter's advance since BRSL_StartCC(slot); since 0 when that was
 * never called; 0 for a slot outside 0-127.
 */
BRSL_API uint32_t BRSL_CALL BRSL_GetCCTP(int32_t slot);

/*
 * Maps a bank address to a plain one. Memory is flat, so this returns the address unchanged.
 */
BRSL_API void *BRSL_CALL BRSL_BankPTR(void *address);

/*
 * Returns a colour as 5:6:5, low bits dropped; bits 24-31 take no part:
 * ((colour >> 8) & 0xF800) | ((colour >> 5) & 0x7E0) | ((colour >> 3) & 0x1F).
 */
BRSL_API uint32_t BRSL_CALL RGBto565(uint32_t colour);

/*
 * Returns a colour as 5:5:5, low bits dropped; bits 24-31 take no part:
 * ((colour >> 9) & 0x7C00) | ((colour >> 6) & 0x3E0) | ((colour >> 3) & 0x1F).
 */
BRSL_API uint32_t BRSL_CALL RGBto555(uint32_t colour);

/*
 * Packs a colour for the current target's format (see Packed colour above); with a format outside
 * 1-3 the colour comes back unchanged.
 * reserved: not used.
 */
BRSL_API uint32_t BRSL_CALL RGBForBuffer(uint32_t colour, int32_t reserved);

/* ---- Memory -------------------------------------------------------------------------------- */

/*
 * Copies byteCount bytes from source to destination (source first). Overlapping blocks are not
 * supported; a byteCount of 0 copies nothing.
 * The caller guarantees both ranges. (The name is in parentheses because <windows.h> has a macro
 * of it; call it the same way where that header is in use.)
 */
BRSL_API void BRSL_CALL(CopyMemory)(const void *source, void *destination, uint32_t byteCount);

/*
 * Writes count elements in a row from destination on, each holding the low bits of value.
 * count: a count <= 0 writes nothing. size: element size code, of which size & 7 counts: 1 (or 0) =
 * 8 bits, 2 = 16 bits, 3 = 24 bits (three bytes, low byte first), 4 = 32 bits; 5-7 write nothing.
 * Words are little-endian and need no alignment. The caller guarantees the range. (In parentheses
 * for the same reason as CopyMemory.)
 */
BRSL_API void BRSL_CALL(FillMemory)(void *destination, int32_t count, uint32_t value, int32_t size);

/*
 * As FillMemory, but the elements lie stride elements apart (a byte step of stride * element size).
 * stride: negative walks backwards from destination; 0 writes nothing.
 * The caller guarantees that every element written lies in its memory.
 */
BRSL_API void BRSL_CALL FillMemoryEx(void *destination, int32_t stride, int32_t count,
                                     uint32_t value, int32_t size);

/*
 * Returns 1 when the first count bytes at a and b are equal, or count <= 0; else 0.
 * The caller guarantees both ranges.
 */
BRSL_API int32_t BRSL_CALL CompareBytes(const void *a, const void *b, int32_t count);

/*
 * Counts the elements equal to value, from the one at address until the first that differs.
 * direction: >= 0 walks towards higher addresses, < 0 towards lower. count: the most to look at;
 * <= 0 gives 0. size: 1, 2 or 4 bytes, any other gives 0. value: compared with the element
 * sign-extended to 32 bits, so a byte 0xFF equals -1 and never 255.
 * Returns the number of equal elements, at most count. The caller guarantees the range.
 */
BRSL_API int32_t BRSL_CALL BRSL_FindRunLength(const void *address, int32_t direction, int32_t count,
                                              int32_t size, int32_t value);

/* ---- Pixels and strips --------------------------------------------------------------------- */

/*
 * Combines one packed colour with the pixel at (x, y) by a draw mode. This is the one-pixel rule
 * that the other writers follow.
 * packedColour: packed for the target. mode: a draw mode.
 * Not clipped: the caller guarantees that (x, y) lies inside the buffer.
 */
BRSL_API void BRSL_CALL BRSL_DrawPixel(int32_t x, int32_t y, uint32_t packedColour, int32_t mode);

/*
 * Packs a colour and draws one pixel as BRSL_DrawPixel does, if (x, y) is inside the viewport.
 * colour: 0xAARRGGBB. mode: a draw mode.
 */
BRSL_API void BRSL_CALL BRSL_Dot(int32_t x, int32_t y, uint32_t colour, int32_t mode);

/*
 * BRSL_Dot without the viewport test. Not clipped: the caller guarantees that (x, y) lies inside
 * the buffer.
 */
BRSL_API void BRSL_CALL BRSL_FastDot(int32_t x, int32_t y, uint32_t colour, int32_t mode);

/*
 * Returns the pixel at (x, y) as a colour; 0 outside the viewport or for a format outside 1-5.
 * Channels of formats 1 and 2 are moved to the top of their bytes, low bits 0 and alpha 0; format 3
 * has alpha 0; formats 4 and 5 come back as stored, top byte included.
 */
BRSL_API uint32_t BRSL_CALL BRSL_Point(int32_t x, int32_t y);

/*
 * BRSL_Point without the viewport test: format 1 is read as 5:6:5, every other code below 3 as
 * 5:5:5, format 3 as three bytes, every code above 3 as 32 bits.
 * The caller guarantees that (x, y) lies inside the buffer.
 */
BRSL_API uint32_t BRSL_CALL BRSL_FastPoint(int32_t x, int32_t y);

/*
 * BRSL_Point without the viewport test, through a table: formats 0 and 1 are read as 5:6:5, 2 as
 * 5:5:5, 3 as three bytes, 4 to 6 as 32 bits; any other code gives 0.
 * The caller guarantees that (x, y) lies inside the buffer.
 */
BRSL_API uint32_t BRSL_CALL BRSL_FastPoint_JT(int32_t x, int32_t y);

/*
 * Draws the pixels x1 <= x < x2 of row y in a draw mode; x2 <= x1 draws nothing.
 * packedColour: packed for the target. mode: DRAW_NORMAL, DRAW_SOLID, DRAW_ALPHA, DRAW_HALF,
 * DRAW_AND, DRAW_OR, DRAW_XOR in formats 1-5; DRAW_ADD and DRAW_SUB in formats 1-4; DRAW_MULT in
 * format 1; every other pair draws nothing. Pixels follow the one-pixel rule, except that
 * DRAW_ALPHA in formats 1 and 2 draws nothing while the ink alpha is below 15.
 * Not clipped: the caller guarantees that the strip lies inside the buffer.
 */
BRSL_API void BRSL_CALL BRSL_DrawStrip(int32_t y, int32_t x1, int32_t x2, uint32_t packedColour,
                                       int32_t mode);

/* ---- Boxes --------------------------------------------------------------------------------- */

/*
 * Draws a box between two corners given in either order.
 * colour: 0xAARRGGBB. flags: BRSL_OUTLINE (which wins) or BRSL_FILLED, neither draws nothing; plus
 * a draw mode in bits 4-15.
 * Filled, it covers left <= x < right, top <= y < bottom by the rules of span fills.
 * Outlined, it includes column right and row bottom: the top edge, the bottom edge, then the left
 * and the right edge between them. Equal y draw that row twice, equal x that column, which matters
 * to modes such as DRAW_XOR. With a draw mode the top and bottom edges follow BRSL_DrawStrip (pairs
 * that it does not offer leave them out) and the sides follow BRSL_DrawPixel.
 */
BRSL_API void BRSL_CALL BRSL_Box(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour,
                                 int32_t flags);

/*
 * Fills a box with a colour interpolated between its corners.
 * x1, y1, x2, y2: corners in either order; a width or height of 0 draws nothing. colour1 to
 * colour4: 0x00RRGGBB at top-left, top-right, bottom-right, bottom-left. colour1 lands on the first
 * pixel; the others belong to the excluded column and row. flags: a Gouraud draw mode in bits 4-15.
 * Per channel in 16.16, all divisions truncating: both sides step down by
 * (bottom - top colour) * 65536 / height a row, each row steps across by (right - left) / width;
 * a clipped row keeps the colours that the whole row has at the ends that remain, reduced to eight
 * bits a channel.
 */
BRSL_API void BRSL_CALL BRSL_ShadeBox(int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                                      uint32_t colour1, uint32_t colour2, uint32_t colour3,
                                      uint32_t colour4, int32_t flags);

/* ---- Circles and ellipses ------------------------------------------------------------------
 *
 * The half-width at height n of a shape of radius r, scaled to s, is
 *     H(n, r, s) = (Q(n * 16384 / r) * s) >> 14,  Q(k) = trunc(sqrt(16384^2 - (k + 1)^2)), Q(16384) = 0
 * with a truncating division, so a radius r reaches r - 1 pixels to either side of the centre.
 *
 * A shape (cx, cy, rx, ry) is outside when cx + rx < left, cx - rx > right, cy + ry < top or
 * cy - ry > bottom of the viewport, and inside when cx - rx >= left, cx + rx < right,
 * cy - ry >= top and cy + ry < bottom.
 */

/*
 * Draws a circle: BRSL_Ellipse with both radii r, an outline in the manner of BRSL_OpenCircle.
 * cx, cy: centre. r: radius. colour: 0xAARRGGBB. flags: BRSL_OUTLINE for the outline, else filled;
 * plus a draw mode in bits 4-15.
 */
BRSL_API void BRSL_CALL BRSL_Circle(int32_t cx, int32_t cy, int32_t r, uint32_t colour,
                                    int32_t flags);

/*
 * Draws an ellipse.
 * cx, cy: centre. rx, ry: horizontal and vertical radius. colour: 0xAARRGGBB. flags: BRSL_OUTLINE
 * for the outline as BRSL_OpenEllipse draws it, else filled; plus a draw mode in bits 4-15.
 * Filled, a shape inside the viewport is drawn as BRSL_FilledEllipseNC draws it; any other as
 * BRSL_FilledEllipse does, which is one row lower; one outside the viewport not at all.
 */
BRSL_API void BRSL_CALL BRSL_Ellipse(int32_t cx, int32_t cy, int32_t rx, int32_t ry,
                                     uint32_t colour, int32_t flags);

/*
 * Draws the outline of a circle; BRSL_OpenEllipse with both radii r.
 */
BRSL_API void BRSL_CALL BRSL_OpenCircle(int32_t cx, int32_t cy, int32_t r, uint32_t colour,
                                        int32_t flags);

/*
 * Draws the outline of an ellipse: for i = 0 .. ry - 1 with h = H(i, ry, rx) the points
 * (cx -+ h, cy -+ i), for j = 0 .. rx - 1 with h = H(j, rx, ry) the points (cx -+ j, cy -+ h), every
 * one as often as it occurs (the two of a pair coincide where i, j or h is 0).
 * cx, cy: centre. rx, ry: radii; below 1 draws no points of that loop. colour: 0xAARRGGBB.
 * flags: a draw mode in bits 4-15.
 */
BRSL_API void BRSL_CALL BRSL_OpenEllipse(int32_t cx, int32_t cy, int32_t rx, int32_t ry,
                                         uint32_t colour, int32_t flags);

/*
 * Draws the outline of BRSL_OpenEllipse in the draw mode flags & 0xFFF0 by the one-pixel rule;
 * without those bits it draws nothing.
 * inside: 0 clips every point to the viewport; any other value does not clip, and then the caller
 * guarantees that the shape lies inside the buffer.
 */
BRSL_API void BRSL_CALL BRSL_OpenEllipseFX(int32_t cx, int32_t cy, int32_t rx, int32_t ry,
                                           uint32_t colour, int32_t flags, int32_t inside);

/*
 * Fills an ellipse, clipped: rows cy + i and cy - i + 1 for i = 1 .. ry - 1 cover
 * cx - h <= x < cx + h with h = H(i, ry, rx).
 * rx, ry: radii; rx < 1 or ry < 2 draws nothing. packedColour: packed for the target. flags: a draw
 * mode in bits 4-15; the rules of span fills hold.
 */
BRSL_API void BRSL_CALL BRSL_FilledEllipse(int32_t cx, int32_t cy, int32_t rx, int32_t ry,
                                           uint32_t packedColour, int32_t flags);

/*
 * Fills an ellipse: rows cy - k and cy + k - 1 for k = 1 .. ry - 1 cover cx - h <= x < cx + h with
 * h = H(k, ry, rx), one row higher than BRSL_FilledEllipse.
 * rx, ry: radii; below 1 draws nothing. packedColour: packed for the target. flags: a draw mode in
 * bits 4-15; the rules of span fills hold.
 * Not clipped: the caller guarantees that the shape lies inside the buffer.
 */
BRSL_API void BRSL_CALL BRSL_FilledEllipseNC(int32_t cx, int32_t cy, int32_t rx, int32_t ry,
                                             uint32_t packedColour, int32_t flags);

/* ---- Lines --------------------------------------------------------------------------------- */

/*
 * Draws a line, both end points included.
 * colour: 0xAARRGGBB. flags: a draw mode in bits 4-15 hands the line to BRSL_WriteDrawModeLine;
 * without one it is plain, whatever the low four bits.
 * The end with the smaller x is the start (the second point on equal x). Where |dy| >= dx, each row
 * r from the start on gets x = (x0 * 65536 + 0x8000 + r * trunc(dx * 65536 / |dy|)) >> 16; else each
 * column c gets y = (y0 * 65536 + 0x8000 + c * trunc(dy * 65536 / dx)) >> 16.
 * Not clipped: the caller guarantees that the line lies inside the buffer.
 */
BRSL_API void BRSL_CALL BRSL_WriteLine(int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                                       uint32_t colour, int32_t flags);

/*
 * Draws a line in a draw mode: as BRSL_WriteLine, with 14 bits of fraction instead of 16 (a half is
 * 0x2000), each pixel by the one-pixel rule. A horizontal line is drawn by BRSL_DrawStrip instead,
 * without its right end point (so a single point draws nothing).
 * packedColour: packed for the target. mode: a draw mode.
 * Not clipped: the caller guarantees that the line lies inside the buffer.
 */
BRSL_API void BRSL_CALL BRSL_WriteDrawModeLine(int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                                               uint32_t packedColour, int32_t mode);

/*
 * Draws a plain line on a 32-bit target, both end points included.
 * colour: written as it is. reserved: not used.
 * A single point is drawn by BRSL_Dot (clipped, on any format). A vertical line is drawn only if its
 * column is inside the viewport, but its rows are not clipped. Any other line is not clipped; its
 * pixels between the ends step from the upper (or, where |dx| > |dy|, the left) end by
 * trunc(minor * 65536 / major) in 16.16, without a half pixel at the start.
 * On a target that is not 32-bit all but single points draw nothing. The caller guarantees that
 * what is not clipped lies inside the buffer.
 */
BRSL_API void BRSL_CALL BRSL_WriteLine_32Bit(int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                                             uint32_t colour, int32_t reserved);

/* ---- Polygons ------------------------------------------------------------------------------
 *
 * Convex polygons of two to eight vertices, given around the ring in either direction. A row is
 * covered from the left edge's x (included) to the right edge's (excluded), both rounded down; an
 * edge covers the rows from its upper vertex (included) to its lower one (excluded), stepping by
 * trunc(dx * 65536 / dy) in 16.16 from exactly the vertex. On polygons that cross the viewport's
 * left or right side x is rounded towards zero instead. A polygon that is not convex stops at the
 * row where a chain of its edges turns upwards.
 *
 * The vertices of the last call stay in a list of eight slots (x, y, colour, u, v); a later call
 * that sets fewer of them finds the others as they were.
 */

/*
 * Fills a triangle in a flat colour.
 * x0 .. y2: the vertices. colour: 0xAARRGGBB. drawMode: a draw mode in bits 4-15, the low four bits
 * are ignored; the rules of span fills hold.
 */
BRSL_API void BRSL_CALL BRSL_Tri(int32_t x0, int32_t y0, int32_t x1, int32_t y1, int32_t x2,
                                 int32_t y2, uint32_t colour, int32_t drawMode);

/*
 * Fills a convex quad in a flat colour; as BRSL_Tri with four vertices around the ring.
 */
BRSL_API void BRSL_CALL BRSL_Quad(int32_t x0, int32_t y0, int32_t x1, int32_t y1, int32_t x2,
                                  int32_t y2, int32_t x3, int32_t y3, uint32_t colour,
                                  int32_t drawMode);

/*
 * Fills the Gouraud-shaded polygon that the first count slots of the vertex list hold (x, y,
 * colour).
 * count: 2-8; any other draws nothing. drawMode: a Gouraud draw mode in bits 4-15.
 * Colours run down each edge in 16.16 and are not restarted at a vertex: an edge heads from the
 * value reached to its next vertex's colour. Rows are then shaded as Gouraud rows between the two
 * edge colours, reduced to eight bits a channel; a row cut by the viewport keeps the colours it has
 * there.
 */
BRSL_API void BRSL_CALL BRSL_DrawGouraudPoly(int32_t count, int32_t drawMode);

/*
 * Fills a Gouraud-shaded triangle: stores three vertices and their colours (0x00RRGGBB) in slots 0
 * to 2 and calls BRSL_DrawGouraudPoly(3, drawMode).
 */
BRSL_API void BRSL_CALL BRSL_TriG(int32_t x0, int32_t y0, uint32_t colour0, int32_t x1, int32_t y1,
                                  uint32_t colour1, int32_t x2, int32_t y2, uint32_t colour2,
                                  int32_t drawMode);

/*
 * Fills a Gouraud-shaded convex quad: stores four vertices and their colours (0x00RRGGBB) in slots 0
 * to 3 and calls BRSL_DrawGouraudPoly(4, drawMode).
 */
BRSL_API void BRSL_CALL BRSL_QuadG(int32_t x0, int32_t y0, uint32_t colour0, int32_t x1, int32_t y1,
                                   uint32_t colour1, int32_t x2, int32_t y2, uint32_t colour2,
                                   int32_t x3, int32_t y3, uint32_t colour3, int32_t drawMode);

/*
 * Stores four colours (0x00RRGGBB) in slots 0 to 3 of the vertex list and draws nothing.
 */
BRSL_API void BRSL_CALL BRSL_QuadSetGouraud(uint32_t colour0, uint32_t colour1, uint32_t colour2,
                                            uint32_t colour3);

/* ---- Surfaces ------------------------------------------------------------------------------ */

/*
 * Makes a surface descriptor; BRSL_FreeSurfaceDesc releases it. Nothing is checked.
 * format: BRSL_FORMAT_*. address: pixel (0, 0). pitch: bytes from row to row. width, height: pixels.
 * The mask colour is 0, the viewport the whole surface.
 * Returns the descriptor, null when there is no memory. The pixels stay the caller's and must outlive
 * every call that uses the descriptor.
 */
BRSL_API BRSL_SurfaceDesc *BRSL_CALL BRSL_AllocSurfaceDesc(int32_t format, void *address,
                                                           int32_t pitch, int32_t width,
                                                           int32_t height);

/*
 * Releases a descriptor, not its pixels. desc: may be null.
 * Returns 1.
 */
BRSL_API int32_t BRSL_CALL BRSL_FreeSurfaceDesc(BRSL_SurfaceDesc *desc);

/*
 * Sets the viewport of desc to the rectangle between two corners given in either order: left =
 * min(x1, x2), top = min(y1, y2), right = max(x1, x2), bottom = max(y1, y2). A null desc is ignored.
 * The caller guarantees that the viewport lies inside the surface's memory.
 */
BRSL_API void BRSL_CALL BRSL_SetSurfaceDescVP(BRSL_SurfaceDesc *desc, int32_t x1, int32_t y1,
                                              int32_t x2, int32_t y2);

/*
 * Sets the mask colour of desc. colour: 0xAARRGGBB, kept as it is. A null desc is ignored.
 */
BRSL_API void BRSL_CALL BRSL_SetSurfaceDescMaskColour(BRSL_SurfaceDesc *desc, uint32_t colour);

/*
 * Returns the format of desc, 0 for null.
 */
BRSL_API int32_t BRSL_CALL BRSL_GetSurfaceDescType(const BRSL_SurfaceDesc *desc);

/*
 * Returns the pixel (x, y) of desc as a colour, widened as by BRSL_Point; 0 outside its viewport and
 * for a format outside 1-5. desc: not null.
 */
BRSL_API uint32_t BRSL_CALL BRSL_PeekSurface(const BRSL_SurfaceDesc *desc, int32_t x, int32_t y);

/*
 * Stores a colour at (x, y) of desc, packed for its format; nothing outside its viewport or for a
 * format outside 1-5. desc: not null. colour: 0xAARRGGBB.
 */
BRSL_API void BRSL_CALL BRSL_PokeSurface(BRSL_SurfaceDesc *desc, int32_t x, int32_t y,
                                         uint32_t colour);

/*
 * BRSL_PokeSurface without the viewport test. The caller guarantees that (x, y) lies inside the
 * surface desc.
 * colour: 0xAARRGGBB.
 */
BRSL_API void BRSL_CALL BRSL_PokeSurfaceNC(BRSL_SurfaceDesc *desc, int32_t x, int32_t y,
                                           uint32_t colour);

/*
 * Reads the pixels x1 <= x < x2 of row y as colours, widened as by BRSL_PeekSurface.
 * out: room for x2 - x1 colours. Nothing is read or written for a null desc or out, for x2 <= x1, and
 * for a format outside 1-5.
 * Not clipped: the caller guarantees that the pixels lie inside the surface desc.
 */
BRSL_API void BRSL_CALL BRSL_PeekPixelStrip(const BRSL_SurfaceDesc *desc, int32_t x1, int32_t x2,
                                            int32_t y, uint32_t *out);

/*
 * Counts the pixels of the target that have a colour, from (x, y) on in steps of (xStep, yStep), until
 * the first that has not or that lies outside the viewport.
 * colour: 0xAARRGGBB, compared at the target's precision; its top byte counts in format 5 only.
 * Returns the count; 0 when both steps are 0, when (x, y) is outside the viewport, and for a format
 * outside 1-5.
 */
BRSL_API int32_t BRSL_CALL BRSL_PixelRunLength(int32_t x, int32_t y, int32_t xStep, int32_t yStep,
                                               uint32_t colour);

/*
 * Returns 0 when the rectangle with corner (x, y), width w and height h misses the viewport, that is
 * when x > right, y > bottom, x + w < left or y + h < top; else 1 (touching counts).
 */
BRSL_API int32_t BRSL_CALL BRSL_ImageInViewPort(int32_t x, int32_t y, int32_t w, int32_t h);

/* ---- Blits ---------------------------------------------------------------------------------
 *
 * Both copy columns sx1 <= x < sx2 and rows sy1 <= y < sy2 of the source buffer so that (sx1, sy1)
 * lands at (dx, dy) of the target, clipped to the viewport. An empty or reversed rectangle draws
 * nothing. The caller guarantees that the part of the source rectangle that lands inside the viewport
 * lies inside the source buffer. Pixels go row by row downwards, each row from left to right.
 */

/*
 * Copies a rectangle (sx1, sy1, sx2, sy2) of the source buffer to (dx, dy), converting formats: 16-bit
 * channels are widened as by BRSL_Point, colours narrowed as by RGBForBuffer; same formats, and 4 and
 * 5, are copied bit by bit. A target of format 5 takes a source of format 5 only.
 * maskColour: 0xAARRGGBB, used with bit 0 of flags. flags: bit 0 leaves out pixels:
 *   source formats 1, 2  those whose stored value is the mask colour packed for the source
 *   3 into 3             those whose value is the mask colour's low 24 bits
 *   3 into 1, 2          those whose converted value is the mask colour packed for the target
 *   3 into 4             those whose value is the mask colour, all 32 bits
 *   4, and 5 into 5      those whose 32 bits are the mask colour
 *   5 into 4             those whose 32 bits are the mask colour; the others are blended by alpha
 *   5 into 1, 2, 3       none by colour; pixels are blended by alpha
 * Blending by alpha: a is the pixel's alpha, its top 6 bits for target format 1 and its top 5 for
 * format 2. a = 0 draws nothing; a >= 254 (63, 31) copies; else each channel becomes
 * d + floor((s - d) * a / 256 (64, 32)), the top byte 0.
 * Any other bit of flags draws nothing where source and target have the same format and for 5 into 4,
 * and with bit 0 also for 5 into 1, 2 and 3; elsewhere it is ignored.
 */
BRSL_API void BRSL_CALL BRSL_Blit(int32_t sx1, int32_t sy1, int32_t sx2, int32_t sy2, int32_t dx,
                                  int32_t dy, uint32_t maskColour, uint32_t flags);

/*
 * Copies a rectangle (sx1, sy1, sx2, sy2) of the source buffer to (dx, dy) with an effect. Source s,
 * target t and blend source b must have one format, except in mode 0; the pixel of b that goes with
 * (x, y) of the source is (x, y). With a target of another format nothing is drawn.
 * blitFlags, blitMaskColour: the flags and mask colour of BRSL_Blit, for mode 0. fxMode: see below;
 * other values draw nothing, bit 0 is ignored but for mode 1. fxColour: c, 0xAARRGGBB.
 * useBlendSource: 1 takes the second operand from the blend source. reserved: not used.
 *   mode   useBlendSource 1     otherwise                              source formats
 *   0      BRSL_Blit            BRSL_Blit                              all
 *   1      t = s, then s = c    t = s, then s = c                      1, 2, 4
 *   32     t = half s + half b  t = s, then s = half s + half c        1, 2, 4
 *   64     t = s + b            s = s + c and t the same               1, 2, 4
 *   128    t = s - b            s = s - c and t the same               1, 2, 4
 *   8192   t = s * b            t = s * c                              all
 *   16384  nothing              useBlendSource 0: t = s, then s *= c   1, 2, 4, 5
 *   1024   t = s * b            nothing                                1, 2, 4
 * The arithmetic is that of DRAW_HALF, DRAW_ADD, DRAW_SUB and DRAW_MULT with c packed for the format,
 * except that half s + half b in format 2 is (s + b) >> 1 a channel. Copies keep the top byte, results
 * of arithmetic have it 0.
 * The caller guarantees that the source may be written in the modes that do so, that source and target
 * then do not overlap, and that b covers the pixels of the source that are drawn.
 */
BRSL_API void BRSL_CALL BRSL_BlitFX(int32_t sx1, int32_t sy1, int32_t sx2, int32_t sy2, int32_t dx,
                                    int32_t dy, uint32_t blitFlags, uint32_t blitMaskColour,
                                    uint32_t fxMode, uint32_t fxColour, uint32_t useBlendSource,
                                    int32_t reserved);

/* ---- Strips --------------------------------------------------------------------------------
 *
 * Lines of one pixel along a row or a column of the target, clipped to the viewport and written
 * plainly. They cover the pixels from the lower end (included) to the higher one (excluded); ends may
 * be given in either order, each with its own values. Values step by trunc((end - start) / n) a
 * pixel, n pixels being the whole length.
 */

/*
 * Draws row y from x1 to x2 with a colour that runs from colour1 to colour2 (0x00RRGGBB, channels
 * stepped in 16.16). The top byte of 32-bit pixels is written as 0.
 */
BRSL_API void BRSL_CALL BRSL_HoriGouraudStrip(int32_t x1, uint32_t colour1, int32_t x2,
                                              uint32_t colour2, int32_t y);

/*
 * Draws column x from y1 to y2 with a colour that runs from colour1 to colour2, as
 * BRSL_HoriGouraudStrip does a row.
 */
BRSL_API void BRSL_CALL BRSL_VertGouraudStrip(int32_t y1, uint32_t colour1, int32_t y2,
                                              uint32_t colour2, int32_t x);

/*
 * Copies texels of a texture to row y from x1 with texel coordinates (uA, vA) to x2 with (uB, vB).
 * texture: a surface of the target's format; null, or pixels of another size, draw nothing. uA, vA, uB,
 * vB: 16.16 texels, first clamped to 0 .. (width - 1) * 65536 and 0 .. (height - 1) * 65536; a texture
 * without width or height draws nothing. Texels are copied unchanged.
 */
BRSL_API void BRSL_CALL BRSL_HoriTextureStrip(const BRSL_SurfaceDesc *texture, int32_t x1,
                                              int32_t uA, int32_t vA, int32_t x2, int32_t uB,
                                              int32_t vB, int32_t y);

/*
 * Copies texels of a texture to column x from y1 with (uA, vA) to y2 with (uB, vB), as
 * BRSL_HoriTextureStrip does to a row.
 */
BRSL_API void BRSL_CALL BRSL_VertTextureStrip(const BRSL_SurfaceDesc *texture, int32_t y1,
                                              int32_t uA, int32_t vA, int32_t y2, int32_t uB,
                                              int32_t vB, int32_t x);

/* ---- Rectangle filters ---------------------------------------------------------------------
 *
 * All but BRSL_PrepareFXSurface and BRSL_MirrorRect change the pixels of a surface's viewport, read as
 * by BRSL_PeekSurface (formats 1 to 3 with alpha 0) and stored as by BRSL_PokeSurface; an empty
 * viewport changes nothing. The caller guarantees that the viewport lies inside the surface. A null
 * descriptor is not accepted.
 */

/*
 * Builds an effect surface dst from an ordinary one, src.
 * mode: 0; any other does nothing.
 * Where dst has not format 5, its pixels are those of src, alpha 0; both viewports apply, what lies
 * outside that of src is black. Where it has, it gets the colours of src with alpha 0 for those that are
 * the mask colour of src at its precision and 255 for the others (src of format 4 or 5: the stored
 * alpha); no viewport applies, and the caller guarantees that src is at least as large as dst.
 */
BRSL_API void BRSL_CALL BRSL_PrepareFXSurface(const BRSL_SurfaceDesc *src, BRSL_SurfaceDesc *dst,
                                              int32_t mode);

/*
 * Blurs desc: every byte of a pixel, alpha too, becomes the sum of the nine around it (edges repeated)
 * divided by divisor, cut towards zero and clamped to 0-255.
 * divisor: 9 blurs, less brightens, below 0 blackens; clamped to -255 .. 255; 0 or not a number does
 * nothing. One block of memory is taken for the call; where there is none, or the viewport ends at or
 * before 0, nothing is done.
 */
BRSL_API void BRSL_CALL BRSL_FillRect_Blur(BRSL_SurfaceDesc *desc, float divisor);

/*
 * Changes the brightness of desc: every byte of a pixel, alpha too, becomes min(byte * f >> 8, 255) with
 * f = trunc(percent * 0.01f * 256), clamped to 0-1024.
 * percent: 100 leaves the picture nearly as it is.
 */
BRSL_API void BRSL_CALL BRSL_FillRect_Fade(BRSL_SurfaceDesc *desc, int32_t percent);

/*
 * Turns desc grey: red, green and blue become (red * 225 + green * 723 + blue * 76) >> 10; alpha stays.
 */
BRSL_API void BRSL_CALL BRSL_FillRect_GreyScale(BRSL_SurfaceDesc *desc);

/*
 * Lights desc from a point: with d the distance to (cx, cy) and level = (intensity - d * falloff) / 255
 * (by the single-precision 1/255), red, green and blue become min(byte * trunc(level * 65536) >> 16,
 * 255), alpha 0; 0 where level is not above 0.
 * intensity: 255 is full brightness at the centre. falloff: what it loses per pixel. reserved: not used.
 */
BRSL_API void BRSL_CALL BRSL_FillRect_Light(BRSL_SurfaceDesc *desc, int32_t cx, int32_t cy,
                                            float intensity, float falloff, int32_t reserved);

/*
 * Paints a light into desc: level as for BRSL_FillRect_Light, red, green and blue min(trunc(level *
 * channel of colour), 255), alpha min((red * 225 + green * 723 + blue * 76) >> 10, 255); 0 where level
 * is not above 0. What was there is not read.
 * cx, cy, intensity, falloff: as there. colour: 0x00RRGGBB. reserved: not used.
 */
BRSL_API void BRSL_CALL BRSL_FillRect_PhongMap(BRSL_SurfaceDesc *desc, int32_t cx, int32_t cy,
                                               uint32_t colour, float intensity, float falloff,
                                               int32_t reserved);

/*
 * Mirrors a rectangle of the target in place, clipped to the viewport: pixels outside read as 0.
 * rect: four values x1, y1, x2, y2, the latter two excluded; not null. horizontal, vertical: bit 0
 * selects the axis; both turn the rectangle by half a turn, neither does nothing.
 */
BRSL_API void BRSL_CALL BRSL_MirrorRect(const int32_t *rect, int32_t horizontal, int32_t vertical);

/* ---- Scaling and map blocks ---------------------------------------------------------------- */

/*
 * Resamples the whole of src to the whole of dst, clipped to the viewport of dst. Pixel (x, y) takes
 * its colour from u = x * trunc(src width * 65536 / dst width), v likewise, in 16.16.
 * mode: 0 takes pixel (u >> 16, v >> 16), 0 outside the viewport of src; 1 filters as textures are,
 * within the size of src; 1111 weighs the four pixels around (u, v), read through the viewport of src,
 * by (256 - fx)(256 - fy) >> 8 and so on with fx, fy = bits 8-15 of u and v, every byte (alpha too) a
 * sum of products >> 8, the neighbours held inside the viewport's last column and row. Any other mode,
 * and a dst without width or height, does nothing; nor does mode 1 for a src without, or with more than
 * 32768 columns or rows.
 * The caller guarantees that viewports lie inside their surfaces and that the two do not overlap.
 */
BRSL_API void BRSL_CALL BRSL_ScaleSurface(const BRSL_SurfaceDesc *src, BRSL_SurfaceDesc *dst,
                                          int32_t mode);

/*
 * Copies columns x1 <= x < x2 and rows y1 <= y < y2 of src to (dx, dy) of dst, converting formats by way
 * of colours, and tells whether any pixel was transparent: in format 5 one whose alpha is not 255, in
 * the others one that is maskColour at the precision of src. What lands outside the width and height of
 * dst is not copied; its viewport does not matter.
 * rowBuffer: room for x2 - x1 colours, overwritten; null does nothing.
 * Returns 1 when a pixel was transparent, else 0. The caller guarantees that the block lies inside src.
 */
BRSL_API int32_t BRSL_CALL BRSL_CopyRect_MoveMapBlk(const BRSL_SurfaceDesc *src, int32_t x1,
                                                    int32_t y1, int32_t x2, int32_t y2,
                                                    BRSL_SurfaceDesc *dst, int32_t dx, int32_t dy,
                                                    uint32_t *rowBuffer, uint32_t maskColour);

/* ---- Texel pipelines -----------------------------------------------------------------------
 *
 * A textured span is drawn in stages: texels are fetched (point-sampled or filtered, mask-coloured ones
 * cut out or not), Gouraud colours are made for them where the pipeline asks for it, the texel effects
 * run over them in order, and the output effect writes them. Texels are 0xAARRGGBB; those of formats
 * 1 to 3 are widened as by BRSL_Point, those of formats 4 and 5 are taken as stored. Each of their four
 * bytes is a channel.
 *
 * Texel effects (in = the entry of the input buffer, out = the entry of the output buffer, a, b, c =
 * the arguments; byte by byte unless said otherwise):
 *   1  out = in * a >> 8                  7  out = out * in >> 8
 *   2  out = min(in + a, 255)             10 out = a
 *   3  out = max(in - a, 0)               11 out = in & a
 *   4  out = (in * B + a * W) >> 8,       12 out = in | a
 *      B = b & 255, W = (256 - B) & 255   15 out = c where in = a in all 32 bits, else in
 *   5  out = (out >> 1) + (in >> 1)       other codes do nothing
 *   6  out = min(out + in, 255)
 *
 * With the mask flag 0 texels are written plainly whatever the output effect (but for effect 3 on
 * 32-bit targets, which halves), and texels cut out are written in the mask colour at the texture's
 * precision; a span whose texels are all cut out draws nothing.
 * With the mask flag 1 texels that were cut out leave the target as it is, and the others
 *   of a texture of format 5   are blended by their own alpha, whatever the output effect: on targets of
 *                              24 and 32 bits a = alpha, 0 draws nothing, 253 and more copies, else each
 *                              channel is d + floor((t - d) * a / 256), the top byte 0; on 16-bit
 *                              targets a = alpha >> 3, 29 and more copies, and the channels widened to
 *                              8 bits are blended by a / 32;
 *   of any other               meet the target by the output effect:
 *     1 plain     t
 *     2 level     d + floor((t - d) * level / 256)
 *     3 half      (t >> 1) + (d >> 1), the top byte of 32-bit pixels 0
 *     4 add       min(d + t, channel maximum)
 *     5 subtract  max(d - t, 0)
 *   on the channels of the target's format; in 32 bits the top byte is one of them unless said
 *   otherwise.
 * Where texture and target both have format 4 and the pipeline is plain (output effect 1, no filter, no
 * texel effects), the mask flag 1 leaves out the texels that are the mask colour even without
 * compression.
 *
 * Bilinear filtering weighs the texel, its neighbours to the right and below and the diagonal one by
 * bits 8-15 of u and v: lerp(a, b, f) = a + floor((b - a) * f / 256) a byte, first across, then down.
 * The last column and row are repeated. With mask compression, neighbours of the mask colour count as
 * 0.
 */

/*
 * Makes a pipeline: plain output, mask compression on, everything else off; TPD_Free releases it.
 * Returns null when there is no memory.
 */
BRSL_API TPD_Pipeline *BRSL_CALL TPD_Alloc(void);

/*
 * Releases a pipeline; null is ignored.
 * Returns 0.
 */
BRSL_API int32_t BRSL_CALL TPD_Free(TPD_Pipeline *pipeline);

/*
 * Appends a texel effect to pipeline while it has fewer than 32; null is ignored.
 * code: see above; not checked, codes without an effect do nothing, and 0 ends the chain. inputBuffer,
 * outputBuffer: TPD_TEXELS or TPD_GOURAUD (bit 0 counts). a, b, c, d: the arguments; d is not used.
 * Without Gouraud colours in the pipeline their buffer holds those of the last span that had them.
 * Returns 0.
 */
BRSL_API int32_t BRSL_CALL TPD_AddTexelEffect(TPD_Pipeline *pipeline, int32_t code,
                                              int32_t inputBuffer, int32_t outputBuffer, uint32_t a,
                                              uint32_t b, uint32_t c, uint32_t d);

/*
 * Sets the output effect of pipeline.
 * code: 1-5; any other makes it draw nothing. argument: kept. level: for code 2; 0 draws nothing,
 * 1-253 is the weight of the texel in 256, anything else (negative too) makes it code 1.
 * Returns 1 for a code of 1-5, 0 for any other and for null.
 */
BRSL_API int32_t BRSL_CALL TPD_SetOutputEffect(TPD_Pipeline *pipeline, int32_t code,
                                               int32_t argument, int32_t level);

/*
 * Turns mask compression of pipeline on or off: stores on & 1. Null is ignored.
 */
BRSL_API void BRSL_CALL TPD_SetMaskCompression(TPD_Pipeline *pipeline, int32_t on);

/*
 * Returns the mask compression of pipeline, 0 or 1; 0 for null.
 */
BRSL_API int32_t BRSL_CALL TPD_GetMaskCompression(const TPD_Pipeline *pipeline);

/*
 * Returns 1 when pipeline makes Gouraud colours, else 0; 0 for null.
 */
BRSL_API int32_t BRSL_CALL TPD_GetGouruaudState(const TPD_Pipeline *pipeline);

/*
 * Rebuilds the mask flag, filter flag, Gouraud state and effects of pipeline from a sprite draw mode;
 * compression and output effect stay.
 * spriteMode: bit 0 is the mask flag, bit 31 the filter flag; the other bits append effects in this
 * order: 0x40: 1 (a = level); 0x400: 10 (a = colour); 0x800: 4 (a = colour, b = level), or 10 (a =
 * colour) for a level below 1, or none for one of 255 and more; 0x1000: 2; 0x2000: 3; 0x10000: 11;
 * 0x20000: 12 (a = colour each); 0x4000: 15 (a = colour, c = level); 0x80: 7, 0x100: 5, 0x200: 6
 * (from the Gouraud buffer to the texels; these set the Gouraud state). tint: unless its low 20 bits
 * are all set, effect 1 (a = tint) comes first.
 * colour, level: the arguments named above.
 * Returns 1; 0 for null.
 */
BRSL_API int32_t BRSL_CALL TPD_UpdateSpriteDrawMode(TPD_Pipeline *pipeline, uint32_t spriteMode,
                                                    uint32_t tint, uint32_t colour, int32_t level);

/*
 * Makes a pipeline by TPD_Alloc and fills it by TPD_UpdateSpriteDrawMode with spriteMode, tint, colour
 * and level.
 * Returns null when there is no memory.
 */
BRSL_API TPD_Pipeline *BRSL_CALL TPD_BuildSpriteDrawMode(uint32_t spriteMode, uint32_t tint,
                                                         uint32_t colour, int32_t level);

/* ---- Textured polygons ---------------------------------------------------------------------
 *
 * Textures are mapped in straight lines, without perspective. Texel coordinates are clamped to the
 * texture (0 .. width - 1, 0 .. height - 1, in the vertex list itself) and stepped in 16.16 down the
 * edges and across each row; like colours they are not restarted at a vertex. A null texture or
 * pipeline draws nothing, nor does a texture without width or height or of a format outside 1-5.
 * Columns and rows of a texture beyond 32767 are not reached. The
 * viewport of the texture's descriptor does not matter. The caller guarantees that the texture's
 * pixels may be read, and that they are not the target's.
 */

/*
 * Draws the textured polygon that the first count slots of the vertex list hold (x, y, u, v and, where
 * the pipeline makes Gouraud colours, colour).
 * texture: a surface. count: 2-8; any other draws nothing. pipeline: how texels become pixels.
 * u and v start at the texel's corner, so a row shows the texels up to, but not including, the one at
 * its excluded right end.
 */
BRSL_API void BRSL_CALL BRSL_DrawTexturedPoly(const BRSL_SurfaceDesc *texture, int32_t count,
                                              const TPD_Pipeline *pipeline);

/*
 * Draws a textured triangle: stores three vertices (x0, y0) .. (x2, y2) with their texel columns and
 * rows (tu0, tv0) .. (tu2, tv2) in slots 0 to 2 and calls BRSL_DrawTexturedPoly(texture, 3, pipeline).
 */
BRSL_API void BRSL_CALL BRSL_TriT(const BRSL_SurfaceDesc *texture, int32_t x0, int32_t y0,
                                  int32_t tu0, int32_t tv0, int32_t x1, int32_t y1, int32_t tu1,
                                  int32_t tv1, int32_t x2, int32_t y2, int32_t tu2, int32_t tv2,
                                  const TPD_Pipeline *pipeline);

/*
 * Draws a textured convex quad; as BRSL_TriT with four vertices.
 */
BRSL_API void BRSL_CALL BRSL_QuadT(const BRSL_SurfaceDesc *texture, int32_t x0, int32_t y0,
                                   int32_t tu0, int32_t tv0, int32_t x1, int32_t y1, int32_t tu1,
                                   int32_t tv1, int32_t x2, int32_t y2, int32_t tu2, int32_t tv2,
                                   int32_t x3, int32_t y3, int32_t tu3, int32_t tv3,
                                   const TPD_Pipeline *pipeline);

/*
 * Draws a whole texture unscaled, its first texel at (x, y), clipped to the viewport.
 * texture, pipeline: as for BRSL_DrawTexturedPoly. Gouraud colours are white.
 */
BRSL_API void BRSL_CALL BRSL_DrawTexture(const BRSL_SurfaceDesc *texture, int32_t x, int32_t y,
                                         const TPD_Pipeline *pipeline);

/* ---- Sprites ------------------------------------------------------------------------------- */

/*
 * Draws the polygon that the first count slots of the vertex list hold as a sprite: as
 * BRSL_DrawTexturedPoly, but texel coordinates name texel centres, both ends of a row show exactly the
 * end texels, rows narrower than two pixels are left out, and where both sides end on one row at
 * different x that row is drawn too (and ends the polygon).
 * texture, count, pipeline: as there.
 */
BRSL_API void BRSL_CALL BRSL_DrawSpritePoly(const BRSL_SurfaceDesc *texture, int32_t count,
                                            const TPD_Pipeline *pipeline);

/*
 * Draws a sprite on a quad: stores the vertices (x0, y0) .. (x3, y3) with their texel columns and rows
 * (tu0, tv0) .. (tu3, tv3).
 * texture, pipeline: as for BRSL_DrawTexturedPoly. split: 0 draws one polygon of four vertices, 1 the
 * triangles (0, 1, 2) and (0, 2, 3); any other draws nothing.
 */
BRSL_API void BRSL_CALL BRSL_DrawSpriteQuad(const BRSL_SurfaceDesc *texture, int32_t x0, int32_t y0,
                                            int32_t tu0, int32_t tv0, int32_t x1, int32_t y1,
                                            int32_t tu1, int32_t tv1, int32_t x2, int32_t y2,
                                            int32_t tu2, int32_t tv2, int32_t x3, int32_t y3,
                                            int32_t tu3, int32_t tv3, const TPD_Pipeline *pipeline,
                                            int32_t split);

/*
 * BRSL_DrawSpriteQuad that also stores the vertices' colours (0x00RRGGBB), for pipelines that make
 * Gouraud colours.
 */
BRSL_API void BRSL_CALL BRSL_DrawSpriteRGBQuad(
    const BRSL_SurfaceDesc *texture, int32_t x0, int32_t y0, int32_t tu0, int32_t tv0,
    uint32_t colour0, int32_t x1, int32_t y1, int32_t tu1, int32_t tv1, uint32_t colour1,
    int32_t x2, int32_t y2, int32_t tu2, int32_t tv2, uint32_t colour2, int32_t x3, int32_t y3,
    int32_t tu3, int32_t tv3, uint32_t colour3, const TPD_Pipeline *pipeline, int32_t split);

/* ---- Host language -------------------------------------------------------------------------
 *
 * Arithmetic on colours 0xAARRGGBB, scalar maths and random numbers. Nothing here draws, and only
 * the random numbers keep anything between calls. Every argument gives a result.
 *
 * Per channel means red, green and blue (0-255) each by itself; the result's alpha is then 0. Other
 * results have alpha 0 too, unless a function says otherwise.
 * A blend by level a takes each channel to c1 + floor((c2 - c1) * a / 256).
 */

/*
 * Returns the colour of red r, green g and blue b, of each the low 8 bits.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB(int32_t r, int32_t g, int32_t b);

/*
 * Returns the colour of alpha a, red r, green g and blue b, of each the low 8 bits.
 */
BRSL_API uint32_t BRSL_CALL TQ_ARGB(int32_t a, int32_t r, int32_t g, int32_t b);

/*
 * Returns TQ_RGB(r, g, b) with its brightness as alpha, min((225 * r + 723 * g + 76 * b) >> 10,
 * 255), from r, g and b as given, in 32 bits that wrap around, with a shift that keeps the sign; of
 * a negative brightness the low 8 bits.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB_With_AlphaIntensity(int32_t r, int32_t g, int32_t b);

/*
 * Returns the alpha of a colour, bits 24-31, as 0-255.
 */
BRSL_API int32_t BRSL_CALL TQ_RGBA(uint32_t colour);

/*
 * Returns the red of a colour, bits 16-23, as 0-255.
 */
BRSL_API int32_t BRSL_CALL TQ_RGBR(uint32_t colour);

/*
 * Returns the green of a colour, bits 8-15, as 0-255.
 */
BRSL_API int32_t BRSL_CALL TQ_RGBG(uint32_t colour);

/*
 * Returns the blue of a colour, bits 0-7, as 0-255.
 */
BRSL_API int32_t BRSL_CALL TQ_RGBB(uint32_t colour);

/*
 * Returns a colour as 5:6:5, as RGBto565(colour) does.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB_888to565(uint32_t colour);

/*
 * Returns a colour as 5:5:5, as RGBto555(colour) does.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB_888to555(uint32_t colour);

/*
 * Returns a 5:6:5 pixel as a colour, its channels at the top of their bytes:
 * (pixel & 0xF800) << 8 | (pixel & 0x7E0) << 5 | (pixel & 0x1F) << 3.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB_565to888(uint32_t pixel);

/*
 * Returns a 5:5:5 pixel as a colour, its channels at the top of their bytes:
 * (pixel & 0x7C00) << 9 | (pixel & 0x3E0) << 6 | (pixel & 0x1F) << 3.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB_555to888(uint32_t pixel);

/*
 * Returns a random colour: red, green and blue, drawn in that order, are each the integer part of
 * TQ_Rnd(255), which is practically never 255.
 */
BRSL_API uint32_t BRSL_CALL TQ_RNDRGB(void);

/*
 * Returns a colour's grey (280 * red + 630 * green + 90 * blue) / 1000, rounded down, in all three
 * channels.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB_GREY(uint32_t colour);

/*
 * Darkens or brightens a colour: per channel min((channel * k) >> 8, 255), k being the integer part
 * of floor(percent) * 0.01 * 256 with 0.01 as a float, which is a little less: 100 percent gives
 * k = 255, 50 gives 127, 500 gives 1279.
 * percent: below 1, or not a number, gives 0; above 500 counts as 500.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB_FADE(uint32_t colour, float percent);

/*
 * Blends colour1 with colour2 by the level a, the integer part of percent * 0.01 * 255 computed in
 * long double: 50 gives 127.
 * percent: a below 1 (percent not a number, too) gives colour1, a from 255 on (percent 100 or more)
 * gives colour2, both unchanged, alpha included.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB_ALPHA_BLEND(uint32_t colour1, uint32_t colour2, float percent);

/*
 * Blends colour1 with colour2 by a level.
 * level: 1-254; below it gives colour1, above it colour2, both unchanged, alpha included.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB_ALPHA_BLEND_Variable(uint32_t colour1, uint32_t colour2,
                                                        int32_t level);

/*
 * Blends from colour1 at the nearer depth to colour2 at the farther one: lo and hi being the
 * smaller and the larger of nearDepth and farDepth, the level of TQ_RGB_ALPHA_BLEND_Variable is the
 * integer part of (256 / (hi - lo)) * (depth - lo), computed in double.
 * depth: below lo gives colour1, above hi colour2. A level that is not a number, as where depth,
 * nearDepth and farDepth are all the same, gives colour1.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB_DEPTH_CUE(uint32_t colour1, uint32_t colour2, float depth,
                                             float nearDepth, float farDepth);

/*
 * Multiplies a colour: per channel (channel * factor) >> 8, limited to 0-255 (no product wraps).
 * factor: 256 keeps the channels, a negative one gives 0.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB_SCALE(uint32_t colour, int32_t factor);

/*
 * Returns per channel min(c1 + c2, 255) of colour1 and colour2.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB_ALPHA_ADD(uint32_t colour1, uint32_t colour2);

/*
 * Returns per channel max(c1 - c2, 0) of colour1 and colour2.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB_ALPHA_SUB(uint32_t colour1, uint32_t colour2);

/*
 * Returns per channel (c1 * (c2 + 1)) >> 8 of colour1 and colour2.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB_ALPHA_MULT(uint32_t colour1, uint32_t colour2);

/*
 * Returns the mean of two colours, ((colour1 & 0xFEFEFE) + (colour2 & 0xFEFEFE)) >> 1.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB_ALPHA_50(uint32_t colour1, uint32_t colour2);

/*
 * Returns colour1 & colour2, all 32 bits.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB_ALPHA_AND(uint32_t colour1, uint32_t colour2);

/*
 * Returns colour1 | colour2, all 32 bits.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB_ALPHA_OR(uint32_t colour1, uint32_t colour2);

/*
 * Returns colour1 ^ colour2, all 32 bits.
 */
BRSL_API uint32_t BRSL_CALL TQ_RGB_ALPHA_XOR(uint32_t colour1, uint32_t colour2);

/*
 * Returns the cosine of an angle, computed in long double from degrees * 0.017453292519444445. That
 * factor is a little less than pi / 180: the cosine of 90 is about 4.49e-11.
 * degrees: any; an infinite angle gives a not-a-number.
 */
BRSL_API float BRSL_CALL TQ_Cos(float degrees);

/*
 * Returns the sine of an angle in degrees, computed as by TQ_Cos.
 */
BRSL_API float BRSL_CALL TQ_Sin(float degrees);

/*
 * Returns the tangent of an angle in degrees, computed as by TQ_Cos: large but finite at 90.
 */
BRSL_API float BRSL_CALL TQ_Tan(float degrees);

/*
 * Returns the natural logarithm of x: minus infinity for 0, a not-a-number below 0.
 */
BRSL_API float BRSL_CALL TQ_Log(float x);

/*
 * Returns the base-10 logarithm of x: minus infinity for 0, a not-a-number below 0.
 */
BRSL_API float BRSL_CALL TQ_Log10(float x);

/*
 * Returns x raised to the power y as pow of the C library does, in double; zero, negative and
 * infinite arguments follow its rules. A result too large for a float is infinite.
 */
BRSL_API float BRSL_CALL TQ_Power(float x, float y);

/*
 * Brings an angle into 0 to 360: r = fmodf(degrees, 360), plus 360 if r is below 0. A negative
 * whole turn gives -0; a negative r so small that the sum rounds up gives 360 itself.
 * degrees: any; an infinite angle gives a not-a-number.
 */
BRSL_API float BRSL_CALL WrapAngle(float degrees);

/*
 * Wraps a value into lo <= result < hi, lo and hi being the smaller and the larger of a and b (up
 * to the rounding of the result to a float). A value below lo is first moved to
 * hi - fmod(lo - value, hi - lo); one not below hi then to lo + fmod(value - hi, hi - lo). The
 * range hi - lo and the moved values are floats, everything between is double.
 * Equal a and b give a not-a-number.
 */
BRSL_API float BRSL_CALL TQ_WrapValue(float value, float a, float b);

/*
 * Returns the address of the constant text "0123456789abcdef0123456789abcdef", which ends in a zero
 * byte; the same at every call. For trying out how a host passes text.
 */
BRSL_API const char *BRSL_CALL TQ_TestString(void);

/*
 * Returns a random number from 0 to max: n * 2.3283064365959952e-10 * (max + 0.99), computed in
 * double with 0.99 as a float, n being the next 32-bit number of the generator; numbers above max
 * are drawn again. That takes (max + 0.99) / max draws on average, so a tiny max takes long.
 * max: 0 gives 0; below 0 gives (max + 0.99) + 1 where max + 0.99 is not above 0 (-5 gives -3.01),
 * else 0; a not-a-number gives itself. None of these draws.
 *
 * The generator keeps 32-bit words x, y, z, w, at loading 30903, and a carry c, at loading 0.
 * Modulo 2^32, with logical shifts, each number is made by:
 *   x = 69069 * x + 1;  y ^= y << 13;  y ^= y >> 17;  y ^= y << 5;
 *   t = c + 2 * w + z;  c = ((c >> 2) + (z >> 2) + (w >> 3)) >> 30;  z = w;  w = t;  n = x + y + w
 */
BRSL_API float BRSL_CALL TQ_Rnd(float max);

/*
 * Sets the generator's words x, y, z and w to seed; the carry stays. Equal seeds, from equal
 * carries, give equal numbers.
 * seed: 0 changes nothing.
 */
BRSL_API void BRSL_CALL TQ_Randomize(int32_t seed);

#ifdef __cplusplus
}
#endif

#endif
