#include "brisal/brisal.h"
#include "exports/instance.h"
#include "font/compress.h"
#include "font/duplicates.h"
#include "font/font.h"
#include "font/stream.h"
#include "font/text.h"

using namespace brisal;

namespace {

const HostServices &services = instance.services;

}  // namespace

void BRSL_CALL GCF_Retrieve(const BRSL_HostRecord *record) {
  if (record != nullptr) instance.services.Retrieve(*record);
}

CRF_Font *BRSL_CALL CRF_Alloc(int32_t count) {
  return services.present ? AllocFont(services, count) : nullptr;
}

void BRSL_CALL CRF_Free(CRF_Font *font) {
  if (services.present) FreeFont(services, font);
}

void BRSL_CALL CRF_SetChrDepth(CRF_Font *font, int32_t depth) {
  if (font != nullptr) font->depth = depth;
}

void BRSL_CALL CRF_SetMaxChrSize(CRF_Font *font, int32_t width, int32_t height) {
  if (font == nullptr) return;
  font->maxWidth = width;
  font->maxHeight = height;
}

int32_t BRSL_CALL CRF_GetMaxChrSize(const CRF_Font *font, int32_t which) {
  if (font == nullptr) return 0;
  return which == 0 ? font->maxWidth : font->maxHeight;
}

void BRSL_CALL CRF_DrawMode(CRF_Font *font, int32_t mode) {
  if (font != nullptr) font->drawMode = mode;
}

int32_t BRSL_CALL CRF_GetDrawMode(const CRF_Font *font) {
  return font != nullptr ? font->drawMode : 0;
}

void BRSL_CALL CRF_BackdropColour(CRF_Font *font, uint32_t colour) {
  if (font != nullptr) font->backdrop = colour;
}

uint32_t BRSL_CALL CRF_GetBackdropColour(const CRF_Font *font) {
  return font != nullptr ? font->backdrop : 0;
}

CRF_ChrInfo *BRSL_CALL CRF_GetChrInfoPtr(const CRF_Font *font, int32_t code) {
  return font != nullptr && font->Has(code) ? font->info + code : nullptr;
}

void BRSL_CALL CRF_SetChrBmp(CRF_Font *font, int32_t code, void *bitmap) {
  if (font != nullptr && services.present) {
    SetBitmap(services, *font, code, static_cast<uint8_t *>(bitmap));
  }
}

void *BRSL_CALL CRF_GetChrBmp(const CRF_Font *font, int32_t code) {
  return font != nullptr ? font->Bitmap(code) : nullptr;
}

int32_t BRSL_CALL RFCI_GetChrUnderHang(const CRF_ChrInfo *info, int32_t code) {
  return info != nullptr ? info[code].underHang : 0;
}

int32_t BRSL_CALL RFCI_GetChrWidth(const CRF_ChrInfo *info, int32_t code) {
  return info != nullptr ? info[code].width : 0;
}

int32_t BRSL_CALL RFCI_GetChrOverHang(const CRF_ChrInfo *info, int32_t code) {
  return info != nullptr ? info[code].overHang : 0;
}

void BRSL_CALL RFCI_SetChrUnderHang(CRF_ChrInfo *info, int32_t code, int32_t value) {
  if (info != nullptr) info[code].underHang = value;
}

void BRSL_CALL RFCI_SetChrWidth(CRF_ChrInfo *info, int32_t code, int32_t value) {
  if (info != nullptr) info[code].width = value;
}

void BRSL_CALL RFCI_SetChrOverHang(CRF_ChrInfo *info, int32_t code, int32_t value) {
  if (info != nullptr) info[code].overHang = value;
}

void BRSL_CALL CRF_Save(const CRF_Font *font, const void *name) {
  if (font == nullptr || !services.present) return;
  const uintptr_t file = services.file.OpenFileWrite(name);
  if (file == 0) return;
  WriteFont(services, *font, file);
  services.file.CloseFile(file);
}

CRF_Font *BRSL_CALL CRF_Load(const void *name) {
  if (name == nullptr || !services.present) return nullptr;
  const uintptr_t file = services.file.OpenFileRead(name);
  if (file == 0) return nullptr;
  CRF_Font *const font = ReadFont(services, file);
  services.file.CloseFile(file);
  return font;
}

void BRSL_CALL CRF_Write(const CRF_Font *font, uintptr_t file) {
  if (font != nullptr && file != 0 && services.present) WriteFont(services, *font, file);
}

CRF_Font *BRSL_CALL CRF_Read(uintptr_t file) {
  return file != 0 && services.present ? ReadFont(services, file) : nullptr;
}

void BRSL_CALL CRF_Find_Duplicate_Chr_Buffers(const CRF_Font *font, int32_t *table) {
  if (font != nullptr && table != nullptr) FindDuplicates(*font, table);
}

uintptr_t BRSL_CALL CRF_CompressChr(const void *image) {
  if (image == nullptr || !services.present) return 0;
  return CompressGlyph(services, static_cast<const uint8_t *>(image));
}

void BRSL_CALL CRF_Draw(const CRF_Font *font, const char *text, int32_t length, int32_t x,
                        int32_t y, uint32_t colour) {
  if (font != nullptr) DrawText(instance.canvas, *font, {text, length}, x, y, colour);
}

int32_t BRSL_CALL CRF_TextWidth(const CRF_Font *font, const char *text, int32_t length) {
  return font != nullptr ? TextWidth(*font, {text, length}) : 0;
}

int32_t BRSL_CALL CRF_TextHeight(const CRF_Font *font, const char *text, int32_t length,
                                 int32_t mode) {
  return font != nullptr ? TextHeight(*font, {text, length}, mode) : 0;
}
