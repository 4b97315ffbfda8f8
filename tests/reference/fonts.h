// Raster fonts, through the same services of the host as the library's.
#pragma once

#include <cstdint>

#include "brisal/brisal.h"

struct CRF_Font {
  int32_t count, drawMode, maxWidth, maxHeight, depth;
  uint32_t backdrop;
  CRF_ChrInfo *infos;
  uint8_t **bitmaps;
};

namespace reference {

// Those that tests put in the place of the library's functions are called as they are.
void BRSL_CALL RetrieveServices(const BRSL_HostRecord *record);

CRF_Font *BRSL_CALL AllocFont(int32_t count);
void BRSL_CALL FreeFont(CRF_Font *font);
void BRSL_CALL SetChrDepth(CRF_Font *font, int32_t depth);
void BRSL_CALL SetMaxChrSize(CRF_Font *font, int32_t width, int32_t height);
int32_t GetMaxChrSize(const CRF_Font *font, int32_t which);
void BRSL_CALL SetFontDrawMode(CRF_Font *font, int32_t mode);
int32_t GetFontDrawMode(const CRF_Font *font);
void SetBackdropColour(CRF_Font *font, uint32_t colour);
uint32_t GetBackdropColour(const CRF_Font *font);
CRF_ChrInfo *BRSL_CALL GetChrInfo(const CRF_Font *font, int32_t code);
void BRSL_CALL SetChrBitmap(CRF_Font *font, int32_t code, void *bitmap);
void *BRSL_CALL GetChrBitmap(const CRF_Font *font, int32_t code);
int32_t GetUnderHang(const CRF_ChrInfo *info, int32_t code);
int32_t GetWidth(const CRF_ChrInfo *info, int32_t code);
int32_t GetOverHang(const CRF_ChrInfo *info, int32_t code);
void SetUnderHang(CRF_ChrInfo *info, int32_t code, int32_t value);
void SetWidth(CRF_ChrInfo *info, int32_t code, int32_t value);
void SetOverHang(CRF_ChrInfo *info, int32_t code, int32_t value);

void SaveFont(const CRF_Font *font, const void *name);
CRF_Font *LoadFont(const void *name);
void WriteFont(const CRF_Font *font, uintptr_t file);
CRF_Font *ReadFont(uintptr_t file);
void FindDuplicates(const CRF_Font *font, int32_t *table);

uintptr_t Compress(const void *image);

int32_t TextWidth(const CRF_Font *font, const char *text, int32_t length);
int32_t TextHeight(const CRF_Font *font, const char *text, int32_t length, int32_t mode);

// The host's services, and numbers in the blocks of glyphs.
const BRSL_HostRecord &Services();
uint32_t WordAt(const uint8_t *p);
int32_t ShortAt(const uint8_t *p);

}  // namespace reference
