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
 *                 DRAW_ALPHA   d + floor((s - d) * a / 256); a = 0 draws nothing, a = 255 is DRAW_SOLID
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

/*
 * The services of the host that the font functions call; no other function calls any. Handles of
 * blocks and of text buffers, and files, are whatever numbers the host gives out, 0 being none. An
 * address is a pointer into the process's memory. A position of -1 means the file's current one,
 * which the service then moves on by what it read or wrote; any other counts bytes from the start
 * of the file. Where a file stands after reading or writing at such a position is up to the host.
 * Services cannot report that reading or writing failed. To let CRF_Read see that a file was cut,
 * those that read should leave out what is not there, without moving on over it.
 */
typedef void(BRSL_CALL *BRSL_UnusedService)(void);

typedef struct BRSL_MemoryServices {
  /* Returns a block of size bytes, all 0, that is aligned for a pointer; 0 without memory. */
  uintptr_t(BRSL_CALL *AllocMemory)(int32_t size);
  BRSL_UnusedService unused1[1];
  /* Releases a block of AllocMemory or a text buffer of AllocString by its handle. */
  void(BRSL_CALL *FreeMemory)(uintptr_t block);
  /* Releases a block by the address that MemoryAddress gave; an address of 0 does nothing. */
  void(BRSL_CALL *FreeMemoryAddress)(uintptr_t address);
  BRSL_UnusedService unused4[1];
} BRSL_MemoryServices;

typedef struct BRSL_BlockServices {
  BRSL_UnusedService unused0[1];
  /* Returns the address of a block's first byte, which stays the same; 0 for handle 0. */
  uintptr_t(BRSL_CALL *MemoryAddress)(uintptr_t block);
  /* Returns the size that the block was allocated with. */
  int32_t(BRSL_CALL *MemorySize)(uintptr_t block);
  BRSL_UnusedService unused3[4];
  /* Copies count bytes from an offset in one block to an offset in another. */
  void(BRSL_CALL *CopyMemoryBlock)(uintptr_t source, int32_t sourceOffset, int32_t count,
                                   uintptr_t destination, int32_t destinationOffset);
  BRSL_UnusedService unused8[7];
  /* Stores a value at an offset of the block: four bytes, the lowest first. */
  void(BRSL_CALL *PokeLong)(uintptr_t block, int32_t offset, int32_t value);
  BRSL_UnusedService unused16[3];
} BRSL_BlockServices;

typedef struct BRSL_StringServices {
  /* Returns a text buffer for that many bytes, which FreeMemory releases; 0 without memory. */
  uintptr_t(BRSL_CALL *AllocString)(int32_t length);
  BRSL_UnusedService unused1[1];
  /* Copies count bytes from an address to the start of the buffer. */
  void(BRSL_CALL *PokeBytes)(uintptr_t buffer, uintptr_t source, int32_t count);
  BRSL_UnusedService unused3[41];
  /* Returns 1 where two buffers hold the same text up to its 0 byte. */
  int32_t(BRSL_CALL *CompareStrings)(uintptr_t a, uintptr_t b);
  BRSL_UnusedService unused45[5];
} BRSL_StringServices;

typedef struct BRSL_FileServices {
  BRSL_UnusedService unused0[1];
  /* Each opens a file at its first byte; 0 on failure. CRF_Load and CRF_Save were given the name. */
  uintptr_t(BRSL_CALL *OpenFileRead)(const void *name);
  uintptr_t(BRSL_CALL *OpenFileWrite)(const void *name);
  void(BRSL_CALL *CloseFile)(uintptr_t file);
  BRSL_UnusedService unused4[1];
  /* Returns, and sets, the current position in bytes from the start. */
  int32_t(BRSL_CALL *FilePos)(uintptr_t file);
  void(BRSL_CALL *SeekFile)(uintptr_t file, int32_t position);
  BRSL_UnusedService unused7[3];
  /* Each returns a value of 2 or 4 bytes, the lowest first; words with a sign or without. */
  int32_t(BRSL_CALL *ReadWord)(uintptr_t file, int32_t position);
  int32_t(BRSL_CALL *ReadLong)(uintptr_t file, int32_t position);
  BRSL_UnusedService unused12[2];
  /* Each reads count bytes, to the start of a text buffer or to an address. */
  void(BRSL_CALL *ReadToBuffer)(uintptr_t file, int32_t position, uintptr_t buffer, int32_t count);
  void(BRSL_CALL *ReadToMemory)(uintptr_t file, int32_t position, uintptr_t address, int32_t count);
  BRSL_UnusedService unused16[3];
  /* Each writes a value, its low 2 bytes or all 4, the lowest first. */
  void(BRSL_CALL *WriteWord)(uintptr_t file, int32_t position, int32_t value);
  void(BRSL_CALL *WriteLong)(uintptr_t file, int32_t position, int32_t value);
  BRSL_UnusedService unused21[3];
  /* Writes the bytes from the address start up to, not including, the address end. */
  void(BRSL_CALL *WriteMemory)(uintptr_t file, int32_t position, uintptr_t start, uintptr_t end);
} BRSL_FileServices;

/*
 * What a host hands to GCF_Retrieve: four groups of addresses of functions, at bytes 800, 880, 1200
 * and 1600 in every build, each address as wide as a pointer. What lies between them is not read.
 * Services called "unused" are copied and never called, so they may be null.
 */
typedef struct BRSL_HostRecord {
  unsigned char unread[800];
  union {
    BRSL_MemoryServices call;
    unsigned char room[80];
  } memory;
  union {
    BRSL_BlockServices call;
    unsigned char room[320];
  } block;
  union {
    BRSL_StringServices call;
    unsigned char room[400];
  } string;
  union {
    BRSL_FileServices call;
  } file;
} BRSL_HostRecord;

/* A raster font in the host's memory, made by CRF_Alloc, CRF_Load or CRF_Read. */
typedef struct CRF_Font CRF_Font;

/*
 * The spacing of one character, in pixels: the pen advances by the sum of the three. The library
 * uses nothing but that sum, as a glyph's columns say where it is drawn.
 */
typedef struct CRF_ChrInfo {
  int32_t underHang;
  int32_t width;
  int32_t overHang;
  int32_t host[5]; /* the host's own words, saved and loaded with the font */
} CRF_ChrInfo;

/*
 * Command codes of captured scenes. Those with a renderer are drawn by it, the others by the host.
 */
#define SCENE_SPRITE 1
#define SCENE_DOT 2
#define SCENE_BOX 3       /* Scene_Render_Captured_Box */
#define SCENE_SHADE_BOX 4 /* Scene_Render_Captured_ShadeBox */
#define SCENE_CIRCLE 5    /* Scene_Render_Captured_Circle */
#define SCENE_ELLIPSE 6   /* Scene_Render_Captured_Ellipse */
#define SCENE_LINE 7
#define SCENE_SHAPE 8
#define SCENE_IMAGE 11
#define SCENE_IMAGE_BB 12
#define SCENE_IMAGE_ALPHA 15
#define SCENE_TEXT 20
#define SCENE_TRI 25             /* Scene_Render_Captured_Polygon */
#define SCENE_TRI_G 26           /* Scene_Render_Captured_PolygonG */
#define SCENE_POLYGON_T 27       /* triangle or quad: Scene_Render_Captured_PolygonT */
#define SCENE_QUAD 30            /* Scene_Render_Captured_Polygon */
#define SCENE_QUAD_G 31          /* Scene_Render_Captured_PolygonG */
#define SCENE_GOURAUD_STRIP_H 40 /* Scene_Render_Captured_GouraudStripH */
#define SCENE_GOURAUD_STRIP_V 41 /* Scene_Render_Captured_GouraudStripV */
#define SCENE_TEXTURE_STRIP_H 42 /* Scene_Render_Captured_TextureStripH */
#define SCENE_TEXTURE_STRIP_V 43 /* Scene_Render_Captured_TextureStripV */
#define SCENE_MAP 50

/* A vertex of a captured command, 40 bytes. Of the two copies of x and y the second is read. */
typedef struct Scene_Vertex {
  int32_t firstX; /* byte 0 */
  int32_t firstY;
  int32_t unused8;
  int32_t x; /* byte 12 */
  int32_t y;
  int32_t unused20;
  uint32_t colour; /* byte 24: 0xAARRGGBB */
  int32_t unused28;
  int32_t tu; /* byte 32: texel column and row; in strips 16.16 */
  int32_t tv;
} Scene_Vertex;

/*
 * A captured command in memory of the host, which may read and write every field. Unused fields and
 * what a writer does not name stay as they are.
 */
typedef struct Scene_Record {
  int16_t marker;   /* byte 0: 1 */
  int16_t code;     /* byte 2: SCENE_* */
  int32_t hostA;    /* byte 4: words for the host alone */
  int32_t hostB;    /* byte 8 */
  int32_t image;    /* byte 12: likewise; the image, sprite or texture */
  int32_t flags;    /* byte 16: flags or draw mode of the shape */
  int32_t unused20; /* byte 20 */
  int32_t shape[3]; /* byte 24: words for the host alone */
  int32_t left;     /* byte 36: bounding box, right and bottom excluded */
  int32_t top;
  int32_t right;
  int32_t bottom;
  int32_t vertexCount; /* byte 52 */
  int32_t alpha;       /* byte 56: for the host alone */
  Scene_Vertex vertices[4];
} Scene_Record;

/* An edge and its normals, 24 bytes. */
typedef struct Scene_EdgeVectors {
  float dx;
  float dy;
  float normalX;
  float normalY;
  float negatedX;
  float negatedY;
} Scene_EdgeVectors;

/* Corners of a polygon to make span lists of; u and v, in pixels, serve textured lists only. */
typedef struct BRSL_VertexBuffer {
  int32_t x[8];
  int32_t y[8];
  int32_t u[8];
  int32_t v[8];
} BRSL_VertexBuffer;

/*
 * Head of a collision span list; its entries follow at byte 12. What count stands for is said by
 * each function that makes a list; comparing looks at the first count - 1 entries.
 */
typedef struct BRSL_CollisionSpans {
  int32_t count;
  int32_t top; /* rows */
  int32_t bottom;
} BRSL_CollisionSpans;

typedef struct BRSL_CollisionSpan {
  int32_t y;
  int32_t left;  /* included */
  int32_t right; /* excluded */
} BRSL_CollisionSpan;

/*
 * Head of a textured span list. Its entries follow at byte sizeof(BRSL_TexturedSpans) (24 where
 * addresses have 32 bits, else 32): one for each row from the top on, and one of zeros that ends
 * the list.
 */
typedef struct BRSL_TexturedSpans {
  int32_t top;         /* first row */
  int32_t bottom;      /* one past the last row */
  const void *image;   /* pixel (0, 0) */
  int32_t format;      /* BRSL_FORMAT_* of the image */
  int32_t pitch;       /* bytes from row to row */
  uint32_t maskColour; /* as stored pixels are compared with it */
} BRSL_TexturedSpans;

/* u and v are columns and rows of the image, in 16.16. */
typedef struct BRSL_TexturedSpan {
  int32_t y;
  int32_t left; /* included */
  int32_t leftU;
  int32_t leftV;
  int32_t right; /* excluded, and where it would sample */
  int32_t rightU;
  int32_t rightV;
} BRSL_TexturedSpan;

/* How vertices are turned, scaled and moved. A camera has a position, angles and factors. */
typedef struct BRSL_Transform {
  int32_t unused0;
  float x; /* byte 4: position */
  float y;
  float z;
  float angleX; /* byte 16: degrees about each axis */
  float angleY;
  float angleZ;
  float scaleX; /* byte 28 */
  float scaleY;
  float scaleZ;
  int32_t order;  /* byte 40: 0 turns about z first, then y and x; 1 the other way round */
  int32_t output; /* byte 44: 0 writes the point, 1 its projection too */
  float factorX;  /* byte 48: projection factors */
  float factorY;
} BRSL_Transform;

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
 * chooses speed only; every result is the same on both sides. Of several wide sets the fastest one
 * is taken, or the one that the environment's BRISAL_ISA names, if the processor runs it: plain,
 * avx2, avx512 or gathering.
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

#ifdef _WIN32 /* Macros of <windows.h>, which stay as they are. */
#pragma push_macro("CopyMemory")
#pragma push_macro("FillMemory")
#undef CopyMemory
#undef FillMemory
#endif

/*
 * Copies byteCount bytes from source to destination (source first). Overlapping blocks are not
 * supported; a byteCount of 0 copies nothing.
 * The caller guarantees both ranges. (In parentheses, since system headers may have a
 * macro of the name. Call it the same way where they have one with arguments; that of <windows.h> has
 * none, so #undef it first.)
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

#ifdef _WIN32
#pragma pop_macro("CopyMemory")
#pragma pop_macro("FillMemory")
#endif

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
 * Which sides are left follows from the sign of (x1 - x0) * (y2 - y0) - (x2 - x0) * (y1 - y0), which
 * wraps around at 32 bits: a polygon of which that is too large is taken to turn the other way, and may
 * not be drawn. With coordinates outside -32768 .. 32767 the sign is exact.
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
 * 255), alpha 0; 0 where level is not above 0. The square of d is a signed 32-bit number, which wraps
 * around from 46341 pixels on; where it is below 0 there is no light.
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
 * Entry i of either buffer belongs to texel i of the span, not counting those that were cut out. The
 * Gouraud buffer outlasts spans and calls: where the pipeline makes no colours for it, effects find what
 * spans before them left in its entries, 0 at first. It keeps 4096 entries; those of further texels of a
 * span begin at 0.
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
 * Textures are mapped in straight lines, without perspective. Texel coordinates of a polygon that may
 * show are clamped to the texture (0 .. width - 1, 0 .. height - 1, in the vertex list itself), and
 * stepped in 16.16 down the edges and across each row; like colours they are not restarted at a vertex.
 * A null texture or pipeline draws nothing, nor does a texture without width or height or of a format
 * outside 1-5. Columns and rows of a texture beyond 32767 are not reached. The viewport of the texture's
 * descriptor does not matter. The caller guarantees that the texture's pixels may be read, and that
 * they are not the target's.
 */

/*
 * Draws the textured polygon that the first count slots of the vertex list hold (x, y, u, v and, where
 * the pipeline makes Gouraud colours, colour).
 * texture: a surface. count: 2-8; any other draws nothing, though 1 clamps u and v of a slot 0 that the
 * viewport holds. pipeline: how texels become pixels.
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
 * BRSL_DrawTexturedPoly, but texel coordinates name texel centres, both ends of a row show the end
 * texels (but for what du and dv lose by being whole), rows narrower than two pixels are left out, and
 * where both sides end on one row at different x that row is drawn too (and ends the polygon).
 * texture, count, pipeline: as there.
 */
BRSL_API void BRSL_CALL BRSL_DrawSpritePoly(const BRSL_SurfaceDesc *texture, int32_t count,
                                            const TPD_Pipeline *pipeline);

/*
 * Draws a sprite on a quad: the vertices (x0, y0) .. (x3, y3) with their texel columns and rows
 * (tu0, tv0) .. (tu3, tv3).
 * texture, pipeline: as for BRSL_DrawTexturedPoly. split: 0 stores the vertices in slots 0 to 3 and draws
 * one polygon; 1 draws the triangles (0, 1, 2) and (0, 2, 3), each stored in slots 0 to 2; any other
 * stores and draws nothing.
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

/* ---- Host services ----------------------------------------------------------------------- */

/*
 * Takes over the services of the host. The font functions that allocate, release, read, write or
 * compress do nothing and return 0 before; all others work without it.
 * record: its 99 addresses are copied in place of those of an earlier call; null does nothing.
 * The caller sets the services that are not called "unused".
 */
BRSL_API void BRSL_CALL GCF_Retrieve(const BRSL_HostRecord *record);

/* ---- Fonts ---------------------------------------------------------------------------------
 *
 * A font has characters of the codes 0 to count - 1, each with its spacing (CRF_ChrInfo) and a
 * glyph or none, and for all of them a draw mode, a depth, a backdrop colour and a largest size.
 * Setters take any value; they, and getters, which return 0, ignore a null font.
 *
 * GLYPH BLOCKS
 *
 * A compressed glyph. All numbers are little-endian and may lie at any byte:
 *
 *   byte  0  4 bytes  size of the block in bytes
 *         4  4        width in pixels
 *         8  4        height in rows
 *        12  4        depth: 8 or 32 bits per pixel
 *        16  4        first row: the first that holds any pixel, 0 if none does
 *        20  4        end row: one past the last that holds any, the height if none does
 *        24  4        where the run table is, in bytes from the block's start; 0 without runs
 *        28  4        where the pixel table is; 0 without pixels
 *
 * Both tables have an entry of 4 bytes for each row from the first row to the end row: where the
 * row's data is, in bytes from the start of that table; 0 if it has none.
 *   Run data    a count of 2 bytes, then for each run its first column and its length, 2 bytes each
 *               and signed. Runs go from left to right and do not overlap. A length of 0 or less is
 *               no run.
 *   Pixel data  the pixels of the row's runs, one behind the other: at depth 8 a byte each, the
 *               intensity; at depth 32 four bytes each, 0xAARRGGBB.
 * Rows may share data, or parts of it. No data lies in the first 32 bytes: an entry that leads
 * there stands for none. A block of depth 8 without a pixel table is solid, all its pixels having
 * intensity 255; one of depth 32 without it is not drawn, nor is one without a run table. What runs
 * do not cover is transparent.
 *
 * Blocks belong to their font, which gives them back to FreeMemoryAddress. Several characters may
 * hold one block; it is released when the last of them lets go of it. */

/*
 * Makes a font without glyphs; CRF_Free releases it.
 * count: characters, 1 to 65536; more are lowered to 65536.
 * The draw mode, the depth, the largest size and all spacing are 0, the backdrop is 0xFF000000.
 * Returns the font, null for a count of 0 or less or when the host has no memory.
 */
BRSL_API CRF_Font *BRSL_CALL CRF_Alloc(int32_t count);

/*
 * Releases a font and all it owns, each glyph block once. font: may be null; FreeMemoryAddress is
 * then called with 0.
 */
BRSL_API void BRSL_CALL CRF_Free(CRF_Font *font);

/*
 * Sets which glyphs of a font are drawn, and how. font: may be null. depth: 8 or 32 bits per pixel,
 * that of the blocks; blocks of another depth, and all with any other value, are not drawn.
 */
BRSL_API void BRSL_CALL CRF_SetChrDepth(CRF_Font *font, int32_t depth);

/*
 * Sets the largest width and height of a font's characters, in pixels. Drawing leaves out what they
 * say is outside the viewport, so they should not be too small. font: may be null.
 */
BRSL_API void BRSL_CALL CRF_SetMaxChrSize(CRF_Font *font, int32_t width, int32_t height);

/*
 * Returns the largest width of a font's characters where which is 0, else the largest height; 0 for
 * a null font.
 */
BRSL_API int32_t BRSL_CALL CRF_GetMaxChrSize(const CRF_Font *font, int32_t which);

/* Sets how glyphs meet the target: mode 0, 1 or 2, see CRF_Draw. font: may be null. */
BRSL_API void BRSL_CALL CRF_DrawMode(CRF_Font *font, int32_t mode);

/* Returns the draw mode of a font, 0 for a null one. */
BRSL_API int32_t BRSL_CALL CRF_GetDrawMode(const CRF_Font *font);

/* Sets the colour, 0xAARRGGBB, that is under glyphs in draw mode 2. font: may be null. */
BRSL_API void BRSL_CALL CRF_BackdropColour(CRF_Font *font, uint32_t colour);

/* Returns the backdrop colour of a font, 0 for a null one. */
BRSL_API uint32_t BRSL_CALL CRF_GetBackdropColour(const CRF_Font *font);

/*
 * Returns the spacing of a character, which may be read and written until the font is released;
 * that of the next code follows it. Null for a null font, or a code that the font does not have.
 */
BRSL_API CRF_ChrInfo *BRSL_CALL CRF_GetChrInfoPtr(const CRF_Font *font, int32_t code);

/*
 * Gives a character a glyph block, which the font then owns, and releases the one it had, unless
 * another character holds that too. Given the block that it has, it keeps it.
 * font: may be null. code: 0 to count - 1; others do nothing. bitmap: address of a block of the
 * host's memory services, null for none.
 * The caller guarantees that a block is as GLYPH BLOCKS says: its first field its size in bytes, at
 * least 32, and its tables, runs and pixels inside of it. Columns and rows may be any, as drawing
 * clips them.
 */
BRSL_API void BRSL_CALL CRF_SetChrBmp(CRF_Font *font, int32_t code, void *bitmap);

/*
 * Returns the address of the glyph block that a character of a font holds; null if it has none, for
 * a code that the font does not have, and for a null font.
 */
BRSL_API void *BRSL_CALL CRF_GetChrBmp(const CRF_Font *font, int32_t code);

/*
 * Returns a character's under-hang in pixels.
 * info: what CRF_GetChrInfoPtr gave for code 0; null gives 0. code: a character of that font, which
 * the caller guarantees.
 */
BRSL_API int32_t BRSL_CALL RFCI_GetChrUnderHang(const CRF_ChrInfo *info, int32_t code);

/* Returns a character's width in pixels. info, code: as for RFCI_GetChrUnderHang. */
BRSL_API int32_t BRSL_CALL RFCI_GetChrWidth(const CRF_ChrInfo *info, int32_t code);

/* Returns a character's over-hang in pixels. info, code: as for RFCI_GetChrUnderHang. */
BRSL_API int32_t BRSL_CALL RFCI_GetChrOverHang(const CRF_ChrInfo *info, int32_t code);

/*
 * Sets a character's under-hang to a value in pixels. info, code: as for RFCI_GetChrUnderHang; null
 * does nothing.
 */
BRSL_API void BRSL_CALL RFCI_SetChrUnderHang(CRF_ChrInfo *info, int32_t code, int32_t value);

/* Sets a character's width. info, code, value: as for RFCI_SetChrUnderHang. */
BRSL_API void BRSL_CALL RFCI_SetChrWidth(CRF_ChrInfo *info, int32_t code, int32_t value);

/* Sets a character's over-hang. info, code, value: as for RFCI_SetChrUnderHang. */
BRSL_API void BRSL_CALL RFCI_SetChrOverHang(CRF_ChrInfo *info, int32_t code, int32_t value);

/*
 * Saves a font to a file that OpenFileWrite opens, as CRF_Write does.
 * font: null does nothing. name: passed on to the host as it is.
 * Where the file cannot be opened nothing is written; other failures only the host's services see.
 */
BRSL_API void BRSL_CALL CRF_Save(const CRF_Font *font, const void *name);

/*
 * Loads a font from a file that OpenFileRead opens, as CRF_Read does; CRF_Free releases it.
 * name: passed on to the host as it is; null gives null.
 * Returns the font, null where the file cannot be opened and where CRF_Read returns null.
 */
BRSL_API CRF_Font *BRSL_CALL CRF_Load(const void *name);

/*
 * Writes a font at the current position of a file, and leaves the file behind it.
 * font, file: null, or 0, does nothing.
 * What is written, all numbers little-endian, for n characters:
 *
 *   byte  0  8 bytes  "TOLVCRF" and a 0 byte
 *         8  4        bytes from here to the end
 *        12  4        version, 1
 *        16  4        largest width
 *        20  4        largest height
 *        24  4        depth
 *        28  4        n
 *        32  4        draw mode
 *        36  4        backdrop colour
 *        40  32 n     the spacing of each character, eight words as in CRF_ChrInfo
 *            ...      for each character its glyph block; or four 0 bytes if it has none, or that
 *                     of another
 *            2 n      for each character the code of the other whose glyph it has, 0 for none
 *
 * Characters with glyphs of the same bytes share the one of the first of them, as found by
 * CRF_Find_Duplicate_Chr_Buffers; when the host has no memory for its table, all are written.
 */
BRSL_API void BRSL_CALL CRF_Write(const CRF_Font *font, uintptr_t file);

/*
 * Reads a font, written as CRF_Write does, at the current position of a file. CRF_Free releases it.
 * file: 0 gives null. The length field is not looked at.
 * Returns the font, with the file behind it. Returns null, and has released everything, for
 *   another magic, leaving the file where it was, so that something else may be read there;
 *   another version, or n outside 1 to 65536, leaving the file behind the header;
 *   a glyph block that drawing or measuring would read outside of, one whose rows have more than
 *   2^24 runs together, or a file that ends early;
 * and when the host has no memory. Any bytes are safe.
 */
BRSL_API CRF_Font *BRSL_CALL CRF_Read(uintptr_t file);

/*
 * Finds the characters of a font that have the same glyph, be it one block or blocks of the same
 * bytes.
 * font: null does nothing. table: a number for each code, all 0 beforehand. It becomes the first
 * code with the same glyph, and stays 0 for that one and for codes without a glyph. Code 0 is never
 * named: the next code with its glyph counts as the first.
 */
BRSL_API void BRSL_CALL CRF_Find_Duplicate_Chr_Buffers(const CRF_Font *font, int32_t *table);

/*
 * Compresses a plain glyph image to a glyph block.
 * image: null gives 0; else, all numbers little-endian:
 *
 *   byte  0  4 bytes  width in pixels, at most 32767
 *         4  4        height in rows
 *         8  4        depth: 8 or 32 bits per pixel
 *        12  4        the value of transparent pixels, compared as a number of 32 bits
 *        16  ...      the pixels, row after row without a gap: a byte each, or four
 *
 * Pixels of the transparent value are left out. Rows share run and pixel data of the same bytes, but
 * for those right before their own. At depth 8 a glyph all of whose pixels are 255 becomes a solid one.
 * A width or height below 1 is an image without pixels.
 * Returns the handle of a block of the host's memory that is the caller's; its address may be given
 * to CRF_SetChrBmp. Returns 0 for another depth, a larger width and when the host has no memory.
 */
BRSL_API uintptr_t BRSL_CALL CRF_CompressChr(const void *image);

/* ---- Text ----------------------------------------------------------------------------------
 *
 * Text is a sequence of bytes, each a character code. A length above 0 is the number of them, which
 * the caller guarantees, and 0 among them is code 0. Otherwise the text ends before the first 0
 * byte, and is empty if there is none among the first 32000 bytes. Codes that a font does not have
 * draw nothing and do not move the pen. */

/*
 * Draws text with a font.
 * font, text: null draws nothing. length: see above. x: the pen, where column 0 of the first glyph
 * is drawn. y: row 0 of the glyphs, the top of the line. colour: 0xAARRGGBB; A is its alpha.
 * After each character the pen moves by its spacing. A character is left out if the pen + the
 * largest width <= the viewport's left; the text ends once the pen is beyond the viewport's right;
 * there is none if y > the viewport's bottom or y + the largest height < its top. Everything is
 * clipped.
 * How a glyph's pixel p is drawn, by the font's draw mode:
 *
 *   depth 8, p an intensity: with weight w = floor(p * (A + 1) / 256),
 *     0  each channel c of the colour as floor(p * c / 256), the top byte of 32-bit targets too
 *     1  the colour blended into the target by w
 *     2  the colour blended into the backdrop by w
 *   depth 32, p a colour, pA its alpha: with t, p tinted by the colour, floor(p * (c + 1) / 256) in
 *   each channel, and weight w = floor(pA * (A + 1) / 256),
 *     1  t blended into the target by w
 *     2  t blended into the backdrop by w
 *     any other  t
 *
 * where blending s into d by w is d + floor((s - d) * w / 256) on channels of 8 bits, to which
 * those of 16-bit targets are widened with zeros and from which results are packed. The top byte of
 * 32-bit targets becomes 0, except in mode 0 of depth 8. Nothing is drawn in other depths, in other
 * modes of depth 8, and
 *   in mode 1, depth 8, formats 1 and 2, if A = 0
 *   in mode 1, depth 32, formats 1 and 2, if A < 7
 *   in mode 1, depth 32, formats 4 and 5, if the colour is 0
 *   in mode 2, depth 32, format 2, if the colour is below 8.
 */
BRSL_API void BRSL_CALL CRF_Draw(const CRF_Font *font, const char *text, int32_t length, int32_t x,
                                 int32_t y, uint32_t colour);

/*
 * Returns the width of text in pixels: the sum of the spacing of its characters, the low 32 bits of
 * it.
 * font, text, length: as for CRF_Draw; null or empty text gives 0.
 */
BRSL_API int32_t BRSL_CALL CRF_TextWidth(const CRF_Font *font, const char *text, int32_t length);

/*
 * Returns the height of text in pixels: in mode 1 the font's largest height or, if that is more,
 * the largest end row of its glyphs. In any other mode, and for a null font, 0.
 * font, text, length: as for CRF_Draw; null or empty text is as high as the font's largest height.
 */
BRSL_API int32_t BRSL_CALL CRF_TextHeight(const CRF_Font *font, const char *text, int32_t length,
                                          int32_t mode);

/* ---- Captured scenes -----------------------------------------------------------------------
 *
 * A drawing command can be kept in a record instead of drawn, and be drawn later, as often as
 * wanted, at any scroll offset. The writers fill a record (Scene_Write_Capture_*), draw nothing and
 * check nothing. All store the marker 1, their code, the number of vertices, the vertices and, but
 * for the sprite, the flags; what else they store is said below. Bounding boxes and vertices are in
 * the coordinates of the scene; sums beyond 32 bits wrap around. Arguments hostA, hostB and image
 * are kept for the host and never read; unused ones are not kept at all. A null record is ignored.
 *
 * The renderers (Scene_Render_Captured_*) draw a record so that scene point (dx, dy) lands on the
 * viewport's top left corner: x' = x - dx + left and y' = y - dy + top, in 32 bits that wrap
 * around. They read the second copy of x and y, the vertices' colours and texels, the vertex count
 * of polygons and the flags, never the code: a record that another writer filled is drawn from what
 * its fields hold. What lies wholly outside the viewport is not drawn; the rest is clipped as by
 * the function that draws it. A null record is ignored. The caller guarantees that the record's
 * memory holds the vertices that its renderer reads.
 */

/*
 * Captures a sprite (SCENE_SPRITE) in record for the host to draw: vertex 0 (x, y), no
 * bounding box.
 * sprite: kept as the image word. hostA: kept. Flags are not stored.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_SpriteNC(Scene_Record *record, int32_t sprite,
                                                     int32_t x, int32_t y, int32_t hostA);

/*
 * Captures a pixel (SCENE_DOT) in record: vertex 0 (x, y) and colour, both coordinates rounded
 * down; box (x, y, x + 1, y + 1).
 * flags: its draw mode. x, y: beyond 32 bits the nearest integer, of not-a-numbers the lowest. z:
 * not kept. colour: 0xAARRGGBB.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_Dot(Scene_Record *record, int32_t flags, float x,
                                                float y, float z, uint32_t colour);

/*
 * Captures a box (SCENE_BOX) in record: vertex 0 (left, top) and colour, vertex 1 (right, bottom);
 * box (left, top, right, bottom).
 * flags: as for BRSL_Box. x1, y1, x2, y2: two corners in any order. colour: 0xAARRGGBB. unused: not
 * kept.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_Box(Scene_Record *record, int32_t flags, int32_t x1,
                                                int32_t y1, int32_t x2, int32_t y2, int32_t unused,
                                                uint32_t colour);

/*
 * Captures a shaded box (SCENE_SHADE_BOX) in record: its four corners clockwise from the top left
 * with colour0 to colour3; box (left, top, right, bottom).
 * flags: as for BRSL_ShadeBox. x1, y1, x2, y2: two corners in any order. unused: not kept.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_ShadeBox(Scene_Record *record, int32_t flags,
                                                     int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                                                     int32_t unused, uint32_t colour0,
                                                     uint32_t colour1, uint32_t colour2,
                                                     uint32_t colour3);

/*
 * Captures a circle (SCENE_CIRCLE) in record: vertex 0 (cx, cy) and colour, vertex 1 (cx + radius,
 * cy + radius); box (cx - radius, cy - radius, cx + radius, cy + radius).
 * flags: as for BRSL_Circle. hostA: kept. colour: 0xAARRGGBB.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_Circle(Scene_Record *record, int32_t flags, int32_t cx,
                                                   int32_t cy, int32_t hostA, int32_t radius,
                                                   uint32_t colour);

/*
 * Captures an ellipse (SCENE_ELLIPSE) in record: vertex 0 (cx, cy) and colour, vertex 1 (cx + rx,
 * cy + ry); box (cx - rx, cy - ry, cx + rx, cy + ry).
 * flags: as for BRSL_Ellipse. hostA: kept. colour: 0xAARRGGBB.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_Ellipse(Scene_Record *record, int32_t flags, int32_t cx,
                                                    int32_t cy, int32_t hostA, int32_t rx,
                                                    int32_t ry, uint32_t colour);

/*
 * Captures a line (SCENE_LINE) in record for the host to draw: vertex 0 (x1, y1) and colour, vertex
 * 1 (x2, y2). No bounding box.
 * flags: as for BRSL_WriteLine. hostA: kept. colour: 0xAARRGGBB.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_Line(Scene_Record *record, int32_t flags, int32_t x1,
                                                 int32_t y1, int32_t x2, int32_t y2, int32_t hostA,
                                                 uint32_t colour);

/*
 * Captures a shape of the host (SCENE_SHAPE) in record: vertex 0 (x, y) and colour, no
 * bounding box.
 * flags: a draw mode. image, hostA, shape1, shape2, shape3: kept. colour: 0xAARRGGBB.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_Shape(Scene_Record *record, int32_t flags,
                                                  int32_t image, int32_t x, int32_t y,
                                                  int32_t hostA, int32_t shape1, int32_t shape2,
                                                  int32_t shape3, uint32_t colour);

/*
 * Captures an image (SCENE_IMAGE) in record for the host to draw: vertex 0 (x, y); box
 * (x, y, x + width, y + height).
 * flags: a draw mode. image, hostA: kept.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_Image(Scene_Record *record, int32_t flags,
                                                  int32_t image, int32_t x, int32_t y,
                                                  int32_t hostA, int32_t width, int32_t height);

/*
 * Captures an image in record as Scene_Write_Capture_Image does, with the code SCENE_IMAGE_BB.
 * flags, image, x, y, hostA, width, height: as there. hostB: kept.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_ImageBB(Scene_Record *record, int32_t flags,
                                                    int32_t hostB, int32_t image, int32_t x,
                                                    int32_t y, int32_t hostA, int32_t width,
                                                    int32_t height);

/*
 * Captures an image in record as Scene_Write_Capture_Image does, with the code SCENE_IMAGE_ALPHA.
 * flags, image, x, y, hostA, width, height: as there. alpha: kept.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_Image_AlphaBlend(Scene_Record *record, int32_t flags,
                                                             int32_t image, int32_t x, int32_t y,
                                                             int32_t hostA, int32_t alpha,
                                                             int32_t width, int32_t height);

/*
 * Captures a text (SCENE_TEXT) in record for the host to draw: vertex 0 (x, y) and colour; box
 * (x, y, x + width, y + height).
 * flags: a draw mode. hostA, hostB: kept. colour: 0xAARRGGBB. unused1, unused2: not kept.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_Text(Scene_Record *record, int32_t flags, int32_t hostB,
                                                 int32_t unused1, int32_t unused2, int32_t x,
                                                 int32_t y, int32_t hostA, int32_t width,
                                                 int32_t height, uint32_t colour);

/*
 * Captures a flat triangle (SCENE_TRI) in record: vertices (x0, y0) to (x2, y2), each with the
 * colour.
 * flags: a draw mode, as for BRSL_Tri. colour: 0xAARRGGBB. boundsMode: 2 sets the bounding box to
 * the extent of the vertices; with any other it stays, for Scene_Poke_Bounding_Box to set. unused:
 * not kept.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_Tri(Scene_Record *record, int32_t flags, int32_t x0,
                                                int32_t y0, int32_t x1, int32_t y1, int32_t x2,
                                                int32_t y2, int32_t unused, uint32_t colour,
                                                int32_t boundsMode);

/*
 * Captures a Gouraud triangle (SCENE_TRI_G) in record: vertices (x0, y0) to (x2, y2) with colour0
 * to colour2.
 * flags: a draw mode, as for BRSL_TriG. boundsMode, unused: as for Scene_Write_Capture_Tri.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_TriG(Scene_Record *record, int32_t flags, int32_t x0,
                                                 int32_t y0, uint32_t colour0, int32_t x1,
                                                 int32_t y1, uint32_t colour1, int32_t x2,
                                                 int32_t y2, uint32_t colour2, int32_t unused,
                                                 int32_t boundsMode);

/*
 * Captures a textured triangle (SCENE_POLYGON_T) in record: vertices (x0, y0) to (x2, y2) with
 * texels (tu0, tv0) to (tu2, tv2).
 * flags: not read by the renderer. texture: kept as the image word. boundsMode, unused: as for
 * Scene_Write_Capture_Tri.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_TriT(Scene_Record *record, int32_t flags, int32_t x0,
                                                 int32_t y0, int32_t tu0, int32_t tv0, int32_t x1,
                                                 int32_t y1, int32_t tu1, int32_t tv1, int32_t x2,
                                                 int32_t y2, int32_t tu2, int32_t tv2,
                                                 int32_t unused, int32_t texture,
                                                 int32_t boundsMode);

/*
 * Captures a flat quad (SCENE_QUAD) in record: vertices (x0, y0) to (x3, y3), each with the colour.
 * flags: a draw mode, as for BRSL_Quad. colour: 0xAARRGGBB. boundsMode, unused: as for
 * Scene_Write_Capture_Tri.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_Quad(Scene_Record *record, int32_t flags, int32_t x0,
                                                 int32_t y0, int32_t x1, int32_t y1, int32_t x2,
                                                 int32_t y2, int32_t x3, int32_t y3, int32_t unused,
                                                 uint32_t colour, int32_t boundsMode);

/*
 * Captures a Gouraud quad (SCENE_QUAD_G) in record: vertices (x0, y0) to (x3, y3) with colour0 to
 * colour3.
 * flags: a draw mode, as for BRSL_QuadG. boundsMode, unused: as for Scene_Write_Capture_Tri.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_QuadG(Scene_Record *record, int32_t flags, int32_t x0,
                                                  int32_t y0, uint32_t colour0, int32_t x1,
                                                  int32_t y1, uint32_t colour1, int32_t x2,
                                                  int32_t y2, uint32_t colour2, int32_t x3,
                                                  int32_t y3, uint32_t colour3, int32_t unused,
                                                  int32_t boundsMode);

/*
 * Captures a textured quad in record, by the code of the textured triangle (SCENE_POLYGON_T):
 * vertices (x0, y0) to (x3, y3) with texels (tu0, tv0) to (tu3, tv3).
 * flags, texture, boundsMode, unused: as for Scene_Write_Capture_TriT.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_QuadT(Scene_Record *record, int32_t flags, int32_t x0,
                                                  int32_t y0, int32_t tu0, int32_t tv0, int32_t x1,
                                                  int32_t y1, int32_t tu1, int32_t tv1, int32_t x2,
                                                  int32_t y2, int32_t tu2, int32_t tv2, int32_t x3,
                                                  int32_t y3, int32_t tu3, int32_t tv3,
                                                  int32_t unused, int32_t texture,
                                                  int32_t boundsMode);

/*
 * Captures a Gouraud strip along row y (SCENE_GOURAUD_STRIP_H) in record: vertex 0 (x1, y) with
 * colour1, vertex 1 (x2, y) with colour2; box (smaller x, y, larger x, y + 1).
 * flags: not read by the renderer. unused: not kept.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_GouraudStripH(Scene_Record *record, int32_t flags,
                                                          int32_t x1, uint32_t colour1, int32_t x2,
                                                          uint32_t colour2, int32_t y,
                                                          int32_t unused);

/*
 * Captures a Gouraud strip along column x (SCENE_GOURAUD_STRIP_V) in record: vertex 0 (x, y1) with
 * colour1, vertex 1 (x + 1, y2) with colour2; box (x, smaller y, x + 1, larger y).
 * flags: not read by the renderer. unused: not kept.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_GouraudStripV(Scene_Record *record, int32_t flags,
                                                          int32_t y1, uint32_t colour1, int32_t y2,
                                                          uint32_t colour2, int32_t x,
                                                          int32_t unused);

/*
 * Captures a texture strip along row y (SCENE_TEXTURE_STRIP_H) in record: vertex 0 (x1, y) with
 * texel (tu1, tv1), vertex 1 (x2, y) with (tu2, tv2), in 16.16; box
 * (smaller x, y, larger x, y + 1).
 * flags: not read by the renderer. texture: kept as the image word. unused: not kept.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_TextureStripH(Scene_Record *record, int32_t flags,
                                                          int32_t x1, int32_t tu1, int32_t tv1,
                                                          int32_t x2, int32_t tu2, int32_t tv2,
                                                          int32_t y, int32_t unused,
                                                          int32_t texture);

/*
 * Captures a texture strip along column x (SCENE_TEXTURE_STRIP_V) in record: vertex 0 (x, y1) with
 * texel (tu1, tv1), vertex 1 (x, y2) with (tu2, tv2), in 16.16; box
 * (x, smaller y, x + 1, larger y).
 * flags: not read by the renderer. texture: kept as the image word. unused: not kept.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_TextureStripV(Scene_Record *record, int32_t flags,
                                                          int32_t y1, int32_t tu1, int32_t tv1,
                                                          int32_t y2, int32_t tu2, int32_t tv2,
                                                          int32_t x, int32_t unused,
                                                          int32_t texture);

/*
 * Captures a map in record as Scene_Write_Capture_Image does an image, with the code SCENE_MAP.
 * flags, image, x, y, hostA, width, height: as there. hostB: kept.
 */
BRSL_API void BRSL_CALL Scene_Write_Capture_Map(Scene_Record *record, int32_t flags, int32_t hostB,
                                                int32_t image, int32_t x, int32_t y, int32_t hostA,
                                                int32_t width, int32_t height);

/*
 * Sets the bounding box of record to the rectangle between (x1, y1) and (x2, y2), given in either
 * order. A null record is ignored.
 */
BRSL_API void BRSL_CALL Scene_Poke_Bounding_Box(Scene_Record *record, int32_t x1, int32_t y1,
                                                int32_t x2, int32_t y2);

/*
 * Fills edge with the vector from (x1, y1) to (x2, y2), dx = x2 - x1 and dy = y2 - y1, its normal
 * ((y1 - y2) / L, (x2 - x1) / L), (0, 0) where L is 0, and the normal negated. L is the vector's
 * length, rounded to a float; everything before a rounding is computed in double. A null edge is
 * ignored.
 */
BRSL_API void BRSL_CALL Scene_Poke_Edge_Vectors(Scene_EdgeVectors *edge, float x1, float y1,
                                                float x2, float y2);

/*
 * Stores x and y in both copies of vertex. A null vertex is ignored.
 */
BRSL_API void BRSL_CALL SceneVert_iXYcombined(Scene_Vertex *vertex, int32_t x, int32_t y);

/*
 * Does nothing; kept for hosts that call it.
 * vertex, a1 .. a12: not used.
 */
BRSL_API void BRSL_CALL SceneVert_iXYZ(void *vertex, int32_t a1, int32_t a2, int32_t a3, int32_t a4,
                                       int32_t a5, int32_t a6, int32_t a7, int32_t a8, int32_t a9,
                                       int32_t a10, int32_t a11, int32_t a12);

/*
 * Does nothing, like SceneVert_iXYZ.
 * vertex, a1 .. a12: not used.
 */
BRSL_API void BRSL_CALL SceneVert_iTransXYZ(void *vertex, int32_t a1, int32_t a2, int32_t a3,
                                            int32_t a4, int32_t a5, int32_t a6, int32_t a7,
                                            int32_t a8, int32_t a9, int32_t a10, int32_t a11,
                                            int32_t a12);

/*
 * Does nothing, like SceneVert_iXYZ.
 * vertex, a1 .. a14: not used.
 */
BRSL_API void BRSL_CALL SceneVert_iXYZUV(void *vertex, int32_t a1, int32_t a2, int32_t a3,
                                         int32_t a4, int32_t a5, int32_t a6, int32_t a7, int32_t a8,
                                         int32_t a9, int32_t a10, int32_t a11, int32_t a12,
                                         int32_t a13, int32_t a14);

/*
 * Tells whether the bounding box of record, placed as the renderers place it by dx and dy, shows in
 * the viewport: right' > left, left' < right, bottom' > top and top' < bottom of it.
 * Returns 1 or 0; 0 for a null record.
 */
BRSL_API int32_t BRSL_CALL Scene_Render_Check_Object_Visible(const Scene_Record *record, int32_t dx,
                                                             int32_t dy);

/*
 * Draws record as BRSL_Box does from vertex 0 to vertex 1 in the colour of vertex 0, by its flags.
 * dx, dy: scroll offset. A box whose vertex 1 lies at or before the viewport's left or top, or
 * vertex 0 at or past its right or bottom, is not drawn.
 */
BRSL_API void BRSL_CALL Scene_Render_Captured_Box(const Scene_Record *record, int32_t dx,
                                                  int32_t dy);

/*
 * Draws record as BRSL_ShadeBox does from vertex 0 to vertex 2 with the colours of its four
 * vertices, by its flags.
 * dx, dy: as for Scene_Render_Captured_Box, with vertex 2 in place of vertex 1.
 */
BRSL_API void BRSL_CALL Scene_Render_Captured_ShadeBox(const Scene_Record *record, int32_t dx,
                                                       int32_t dy);

/*
 * Draws record as BRSL_Circle does around vertex 0 with the radius |x1' - x0'| in the colour of
 * vertex 0, by its flags. A radius of 2^31 becomes -2^31.
 * dx, dy: scroll offset. Drawn where the square around it shows in the viewport, right and bottom
 * excluded.
 */
BRSL_API void BRSL_CALL Scene_Render_Captured_Circle(const Scene_Record *record, int32_t dx,
                                                     int32_t dy);

/*
 * Draws record as BRSL_Ellipse does around vertex 0 with the radii |x1' - x0'| and |y1' - y0'|;
 * otherwise as Scene_Render_Captured_Circle.
 * dx, dy: scroll offset.
 */
BRSL_API void BRSL_CALL Scene_Render_Captured_Ellipse(const Scene_Record *record, int32_t dx,
                                                      int32_t dy);

/*
 * Fills the polygon of record as BRSL_Tri does, in the colour of vertex 0, by its flags: stores its
 * vertices in the vertex list first.
 * dx, dy: scroll offset. A vertex count outside 2-8 draws nothing, one above 8 stores nothing
 * either. Records of more than four vertices have the others behind the fourth.
 */
BRSL_API void BRSL_CALL Scene_Render_Captured_Polygon(const Scene_Record *record, int32_t dx,
                                                      int32_t dy);

/*
 * Fills the polygon of record as BRSL_DrawGouraudPoly does, by its flags; stores its vertices and
 * their colours in the vertex list first.
 * dx, dy, vertex count: as for Scene_Render_Captured_Polygon.
 */
BRSL_API void BRSL_CALL Scene_Render_Captured_PolygonG(const Scene_Record *record, int32_t dx,
                                                       int32_t dy);

/*
 * Draws the polygon of record as BRSL_DrawTexturedPoly does; stores its vertices and their texels
 * in the vertex list first. Its flags and image word are not used.
 * dx, dy, vertex count: as for Scene_Render_Captured_Polygon. texture, pipeline: as for
 * BRSL_DrawTexturedPoly.
 */
BRSL_API void BRSL_CALL Scene_Render_Captured_PolygonT(const Scene_Record *record, int32_t dx,
                                                       int32_t dy, const BRSL_SurfaceDesc *texture,
                                                       const TPD_Pipeline *pipeline);

/*
 * Draws record as BRSL_HoriGouraudStrip does on the row of vertex 0, from its column and colour to
 * those of vertex 1.
 * dx, dy: scroll offset. Drawn where x1' > left, x0' < right and the row is inside the viewport.
 */
BRSL_API void BRSL_CALL Scene_Render_Captured_GouraudStripH(const Scene_Record *record, int32_t dx,
                                                            int32_t dy);

/*
 * Draws record as BRSL_VertGouraudStrip does on the column of vertex 0, from its row and colour to
 * those of vertex 1.
 * dx, dy: scroll offset. Drawn where y1' > top, y0' < bottom and the column is inside the viewport.
 */
BRSL_API void BRSL_CALL Scene_Render_Captured_GouraudStripV(const Scene_Record *record, int32_t dx,
                                                            int32_t dy);

/*
 * Draws record as BRSL_HoriTextureStrip does on the row of vertex 0, from its column and texel to
 * those of vertex 1.
 * dx, dy: scroll offset. texture: as there. Drawn where x1' >= left, x0' < right and the row is
 * inside the viewport.
 */
BRSL_API void BRSL_CALL Scene_Render_Captured_TextureStripH(const Scene_Record *record, int32_t dx,
                                                            int32_t dy,
                                                            const BRSL_SurfaceDesc *texture);

/*
 * Draws record as BRSL_VertTextureStrip does on the column of vertex 0, from its row and texel to
 * those of vertex 1.
 * dx, dy: scroll offset. texture: as there. Drawn where y1' > top, y0' < bottom and the column is
 * inside the viewport.
 */
BRSL_API void BRSL_CALL Scene_Render_Captured_TextureStripV(const Scene_Record *record, int32_t dx,
                                                            int32_t dy,
                                                            const BRSL_SurfaceDesc *texture);

/* ---- Collisions ----------------------------------------------------------------------------
 *
 * Shapes become lists of the spans that they cover, row by row, and lists are compared where they
 * overlap. The lists lie in memory of the caller; they are not clipped, and any 32-bit coordinates
 * are carried in 64 bits. A null list or vertex buffer is ignored. The caller guarantees that a
 * list has room for the entries that its shape makes.
 */

/*
 * Makes the span list of a polygon: its edges as BRSL_Tri walks them, both ends of a row rounded
 * towards zero, narrow and reversed rows included.
 * vertices: the corners around the ring. count: 2-8 corners; any other makes an empty list at the
 * row of the first. list: count, bottom - top, and one entry for each row from top to bottom - 1
 * (fewer where the polygon stops early; one where all its corners are on one row).
 * The caller guarantees room for bottom - top entries, at least one.
 */
BRSL_API void BRSL_CALL CreateSpanCollision_Polygon(const BRSL_VertexBuffer *vertices,
                                                    int32_t count, BRSL_CollisionSpans *list);

/*
 * Makes the span list of a line between (x1, y1) and (x2, y2), both included. With (xa, ya) the end
 * of the smaller x, on equal x the second one, dx and dy counted from there and 14 bits of
 * fraction:
 *   dy = 0       one entry (ya, xa, xb), count 2
 *   |dy| >= dx   x = xa * 16384 + 8192, and for each row from ya to yb an entry (y, x / 16384,
 *                x / 16384 + 2), x growing by dx * 16384 / |dy|; count |dy|
 *   otherwise    y = ya * 16384 + 8192, growing by dy * 16384 / dx a column; whenever y / 16384
 *                differs from the row before, an entry (that row, start of the run, x + 1), and at
 *                the end, if the run began before xb, one (y / 16384 after the last step, start,
 *                xb + 3); count the entries
 * with divisions that cut towards zero. top and bottom of list are the smaller and the larger y.
 * The caller guarantees room for |dy| + 1 entries.
 */
BRSL_API void BRSL_CALL CreateSpanCollision_Line(BRSL_CollisionSpans *list, int32_t x1, int32_t y1,
                                                 int32_t x2, int32_t y2);

/*
 * Makes the span list of a filled ellipse: count 2 * ry, top cy + 1 - ry, bottom cy + ry, and
 * for k = 1 to ry - 1 two entries of cx - h to cx + h, on row cy + k and then on row cy - k + 1, h
 * being the half-width at height k by which ellipses are drawn.
 * list: has no entries where ry is below 2. rx: any; a negative one makes reversed spans.
 * The caller guarantees room for 2 * (ry - 1) entries, and that BRSL_Init_Lib was called.
 */
BRSL_API void BRSL_CALL CreateSpanCollision_Ellipse(BRSL_CollisionSpans *list, int32_t cx,
                                                    int32_t cy, int32_t rx, int32_t ry);

/*
 * Makes the span list of a rectangle: count bottom - top, and an entry from left to right for each
 * row from top to bottom - 1.
 * list: as above. x1, y1, x2, y2: two corners in any order.
 * The caller guarantees room for bottom - top entries.
 */
BRSL_API void BRSL_CALL CreateSpanCollision_Rect(BRSL_CollisionSpans *list, int32_t x1, int32_t y1,
                                                 int32_t x2, int32_t y2);

/*
 * Makes the textured span list of a polygon that shows the source buffer: as
 * CreateSpanCollision_Polygon, each end of a row with its u and v. Along an edge they run from
 * u * 65536 + 32768 at its vertex by trunc((next u - u) * 65536 / height) a row, v likewise.
 * vertices: corners with their columns and rows of the image. count: 2-8; any other makes a list of
 * no rows. list: the rows, then an entry of zeros. maskColour: 0xAARRGGBB, stored packed for the
 * source's format, for formats 3 and 4 its low 24 bits.
 * The caller guarantees room for bottom - top + 1 entries, at least two; the image must outlive the
 * list.
 */
BRSL_API void BRSL_CALL BRSL_SpanBufferCollisionPolygon(const BRSL_VertexBuffer *vertices,
                                                        int32_t count, BRSL_TexturedSpans *list,
                                                        uint32_t maskColour);

/*
 * Tells whether a filled shape touches opaque pixels of a textured one, that is pixels other than
 * the mask colour. An entry of filled, but for the last, meets the row of textured at its y, and
 * they touch where at least two columns are common to both. Pixels of formats 1 and 2 are compared
 * as 16-bit words, of format 3 as 24 bits, all others as 32-bit words, alpha included. u and v step
 * by trunc((right u - left u) / width) a pixel from the row's left end.
 * Returns 1 when one does, else 0; 0 too where textured has no image, where the rows from top to
 * bottom (here included) are not common, and for a count of filled below 2.
 * Rows outside the top and bottom of textured, and entries whose y is not their row, are left out.
 * The caller guarantees that textured has an entry for each of its rows, also where its polygon
 * stopped early, and that u and v of those whose y is their row lie inside its image.
 */
BRSL_API int32_t BRSL_CALL BRSL_CompareFilledToTexturedSpans(const BRSL_CollisionSpans *filled,
                                                             const BRSL_TexturedSpans *textured);

/*
 * Tells whether opaque pixels of two textured shapes, a and b, lie on the same place: rows common
 * to both but for the last of them, columns as in BRSL_CompareFilledToTexturedSpans. Both images
 * are read by the format of a: formats 1 and 2 as 16-bit words, 4 and 5 as 32-bit words; with any
 * other nothing touches.
 * Returns 1 or 0. What the caller guarantees is as there, for both.
 */
BRSL_API int32_t BRSL_CALL BRSL_CompareTexturedSpans(const BRSL_TexturedSpans *a,
                                                     const BRSL_TexturedSpans *b);

/*
 * Plots both ends of the first bottom - top - 1 entries of list as BRSL_Dot(x, y, 0xFF0000,
 * DRAW_NORMAL) does, clipped: for looking at a list. A null list is ignored.
 */
BRSL_API void BRSL_CALL BRSL_DrawSpansEdges(const BRSL_TexturedSpans *list);

/*
 * Returns 32, the bytes from one array of a BRSL_VertexBuffer to the next.
 */
BRSL_API int32_t BRSL_CALL BRSL_GetVertexBufferModulo(void);

/* ---- Edge buffers --------------------------------------------------------------------------
 *
 * An outline of any shape, crossing itself or not, is collected as the places where its edges cross
 * the rows, and is then filled by the even-odd rule. Both blocks belong to the caller:
 *   row table   word 0: byte offset of the next free node, set by the caller before filling, not 0;
 *               word 1 + r: byte offset of the first node of row r, 0 for none
 *   node pool   nodes of 12 bytes: byte offset of the next node, 0 for none; a word that is not
 *               used; x as a float. A row's nodes are in ascending order.
 * The caller guarantees that the row table has a word for each row used, and the node pool 12 bytes
 * for each crossing beyond the first free offset.
 */

/*
 * Sets the blocks that the other functions work with.
 * rowTable, nodePool: null for none; then nothing is added and every row is empty. They must
 * outlive their use.
 */
BRSL_API void BRSL_CALL Shape_Set_Buffers(int32_t *rowTable, void *nodePool);

/*
 * Adds a crossing to a row, before the first that is greater: takes the next free node, and moves
 * the free offset on by 12.
 * x: any. row: any that the row table has a word for.
 */
BRSL_API void BRSL_CALL Shape_AddVert(float x, int32_t row);

/*
 * Adds the crossings of the edge between (x1, y1) and (x2, y2): with the end of smaller y first,
 * one for each row from ceil(y1) to ceil(y2) - 1. x begins as x1 and grows by (x2 - x1) / (y2 - y1)
 * a row; each operation is rounded to a float.
 * x1, y1, x2, y2: an edge with equal y1 and y2, or any that is not finite, adds nothing. firstRow,
 * endRow: the rows that may be added to, endRow excluded; rows skipped at the top move x on by
 * their number times the slope.
 */
BRSL_API void BRSL_CALL Shape_BufferEdge(float x1, float y1, float x2, float y2, int32_t firstRow,
                                         int32_t endRow);

/*
 * Fills the outline and empties the rows of the viewport: in each, every pair of crossings, cut
 * towards zero to x1 and x2 (those beyond 32 bits to the nearest) and then to the viewport, is
 * drawn by BRSL_DrawStrip(y, x1, x2, colour, mode), with its choice of modes. A crossing
 * without a partner draws nothing. The free offset stays.
 * rowHeads: word 1 of the row table, the head of row 0; null draws nothing. unused: not used.
 * colour: 0xAARRGGBB, packed for the target. mode: DRAW_*.
 */
BRSL_API void BRSL_CALL BRSL_Draw_Shape_Span_Buffer(int32_t *rowHeads, const void *unused,
                                                    uint32_t colour, int32_t mode);

/*
 * Makes the span list of the outline and empties its rows from top to bottom - 1: an entry for
 * every pair of crossings, cut as in BRSL_Draw_Shape_Span_Buffer, to left and right, that has a
 * width.
 * list: count, the entries. rowTable: the whole table. unused: not used.
 * Returns the number of entries; 0, and only the head is written, for top >= bottom; 0 and nothing
 * for a null list or table. The caller guarantees room for the entries.
 */
BRSL_API int32_t BRSL_CALL CreateSpanCollision_ShapeSpanBuffer(BRSL_CollisionSpans *list,
                                                               int32_t left, int32_t top,
                                                               int32_t right, int32_t bottom,
                                                               int32_t *rowTable,
                                                               const void *unused);

/* ---- Vertex transforms ---------------------------------------------------------------------
 *
 * Lists of vertices, each beginning with its coordinates as floats: x, y, z or, in the plane, x, y.
 * The vertices of a list lie a stride apart, any number of bytes, and need no alignment; what
 * follows the coordinates is left alone. A destination may be the source with the same stride. Null
 * lists and transforms, and a count of 0 or less, do nothing, unless said otherwise. The caller
 * guarantees that the lists hold count vertices.
 *
 * Rotations of column vectors, with c and s the cosine and sine of the angle:
 *   Rx = (1 0 0, 0 c -s, 0 s c)   Ry = (c 0 s, 0 1 0, -s 0 c)   Rz = (c -s 0, s c 0, 0 0 1)
 * Angles are in degrees, turned into radians as by TQ_Cos. A matrix is computed in long double,
 * once a call, and its entries are rounded to floats; vertices are computed in double and stored as
 * floats.
 */

/*
 * Scales, rotates, moves and, with output 1, projects vertices: p = R * (scale * vertex) +
 * position, R being Rx * Ry * Rz for order 0 and Rz * Ry * Rx for order 1.
 * transform: any other order or output writes nothing. source, sourceStride: x, y, z. destination,
 * destinationStride: p as three floats; with output 1 five, p and then p.x * factorX / p.z and
 * p.y * factorY / p.z, both 0 where p.z is below 1. count: vertices.
 */
BRSL_API void BRSL_CALL RotateVertexList(const BRSL_Transform *transform, const void *source,
                                         int32_t sourceStride, void *destination,
                                         int32_t destinationStride, int32_t count);

/*
 * Places vertices in the world and projects them as a camera sees them: w = R * (scale * vertex) +
 * position of object - position of camera, p = F * Rx(-angleX) * Ry(-angleY) * Rz(-angleZ) * w by
 * the angles of camera, F turning the sign of y.
 * camera: position, angles and factors count. object: position, angles, order (as for
 * RotateVertexList) and scale count. source, sourceStride: x, y, z. destination, destinationStride:
 * five floats, p and its projection by the factors of camera, as there. count: vertices.
 */
BRSL_API void BRSL_CALL RotateVertexListToCamera(const BRSL_Transform *camera,
                                                 const BRSL_Transform *object, const void *source,
                                                 int32_t sourceStride, void *destination,
                                                 int32_t destinationStride, int32_t count);

/*
 * Rotates and moves vertices: Rx(ax) * Ry(ay) * Rz(az) * vertex + (tx, ty, tz).
 * source, sourceStride, destination, destinationStride: three floats each. count: vertices.
 */
BRSL_API void BRSL_CALL RotateVertexListXYZ(const void *source, int32_t sourceStride,
                                            void *destination, int32_t destinationStride, float tx,
                                            float ty, float tz, float ax, float ay, float az,
                                            int32_t count);

/*
 * Rotates and moves vertices: Rz(az) * Ry(ay) * Rx(ax) * vertex + (tx, ty, tz).
 * source, sourceStride, destination, destinationStride: three floats each. count: vertices.
 */
BRSL_API void BRSL_CALL RotateVertexListZYX(const void *source, int32_t sourceStride,
                                            void *destination, int32_t destinationStride, float tx,
                                            float ty, float tz, float ax, float ay, float az,
                                            int32_t count);

/*
 * Scales and rotates vertices in the plane: with X = (ox + x) * sx, Y = (oy + y) * sy and the
 * cosine c and sine s of angle, as TQ_Cos and TQ_Sin give them, writes X * c - Y * s and
 * X * s + Y * c.
 * source, sourceStride, destination, destinationStride: two floats each. count: one less than the
 * vertices; 0 transforms one, a negative count none.
 */
BRSL_API void BRSL_CALL Rotate2DVertexList(const void *source, int32_t sourceStride,
                                           void *destination, int32_t destinationStride, float ox,
                                           float oy, float angle, float sx, float sy,
                                           int32_t count);

/*
 * Interpolates between two lists: each of x, y and z becomes a + (b - a) * t.
 * a, strideA, b, strideB: x, y, z. destination, destinationStride: three floats. count: vertices.
 * t: any.
 */
BRSL_API void BRSL_CALL LerpVertexList(const void *a, int32_t strideA, const void *b,
                                       int32_t strideB, void *destination,
                                       int32_t destinationStride, int32_t count, float t);

/* ---- Calculator ----------------------------------------------------------------------------
 *
 * A formula as a program of integers for a machine with one accumulator, over an array of float
 * variables.
 */

/*
 * Runs a program. Its word 0 is the index of the variable that the accumulator acc begins with;
 * then come count instructions, each an opcode and, for those below, the index of its variable v:
 *   1 .. 4     acc + v, acc - v, acc * v, acc / v      5   v = acc, acc stays
 *   21 .. 24   the same with the cosine of v           6   acc = TQ_Power(acc, v)
 *   31 .. 34   with its sine                           10  acc = v
 *   41 .. 44   with its tangent
 *   51 .. 54   with TQ_Rnd(v)
 *   61 .. 64   with its square root
 * Any other opcode does nothing and has no index. Operations 1-4 of each row and the functions
 * before them are computed in long double, angles in degrees as by TQ_Cos, and each instruction
 * rounds acc to a float. Divisions by 0 give infinities and not-a-numbers, but 54 and 64 then give
 * 0.
 * variables: floats. program: at least word 0. count: 0 or less returns the first variable.
 * Returns acc; 0 where variables or program is null. The caller guarantees that the indices are
 * those of variables, and that the program has count instructions.
 */
BRSL_API float BRSL_CALL TQ_FastCalc(float *variables, const int32_t *program, int32_t count);

#ifdef __cplusplus
}
#endif

#endif
