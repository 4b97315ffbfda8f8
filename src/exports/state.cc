#include <algorithm>

#include "brisal/brisal.h"
#include "core/cpu.h"
#include "exports/instance.h"
#include "pixel/format.h"

namespace brisal {

constinit State instance;

namespace {

Buffer BufferOf(void *address, int32_t pitch, int32_t format) {
  return {static_cast<uint8_t *>(address), pitch, format};
}

void SetSwitch(int32_t on) {
  instance.mmxSwitch = on;
  instance.canvas.isa = on != 0 ? BestIsa() : Isa::kPlain;
}

bool IsSlot(int32_t index, int slots) { return 0 <= index && index < slots; }

}  // namespace
}  // namespace brisal

using namespace brisal;

int32_t BRSL_CALL BRSL_Init_Lib(void) {
  SetSwitch(HasMmx());
  instance.quarterCircle.Build();
  return 1;
}

void BRSL_CALL BRSL_SetBuffer(void *address, int32_t pitch, int32_t format) {
  instance.canvas.target = BufferOf(address, pitch, format);
}

void BRSL_CALL BRSL_SetSrcBuffer(void *address, int32_t pitch, int32_t format) {
  instance.source = BufferOf(address, pitch, format);
}

void BRSL_CALL BRSL_SetSrcBlendBuffer(void *address, int32_t pitch, int32_t format) {
  instance.blendSource = BufferOf(address, pitch, format);
}

void BRSL_CALL BRSL_SetBufferViewPort(int32_t x1, int32_t y1, int32_t x2, int32_t y2) {
  instance.canvas.viewport = {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2),
                              std::max(y1, y2)};
}

int32_t BRSL_CALL BRSL_SetInkAlpha(int32_t alpha) {
  instance.canvas.inkAlpha = static_cast<uint32_t>(std::clamp(alpha, 0, 255));
  return BRSL_GetInkAlpha();
}

int32_t BRSL_CALL BRSL_GetInkAlpha(void) { return static_cast<int32_t>(instance.canvas.inkAlpha); }

int32_t BRSL_CALL BRSL_SetDebug(int32_t index, int32_t value) {
  if (!IsSlot(index, State::kDebugSlots)) return 0;
  return instance.debug[index] = value;
}

int32_t BRSL_CALL BRSL_GetDebug(int32_t index) {
  return IsSlot(index, State::kDebugSlots) ? instance.debug[index] : 0;
}

int32_t BRSL_CALL CPU_CheckMMX(void) { return HasMmx(); }

int32_t BRSL_CALL BRSL_GetMMXState(void) { return instance.mmxSwitch; }

int32_t BRSL_CALL BRSL_SetMMXState(int32_t state) {
  if (!HasMmx()) return 0;
  SetSwitch(state & 1);
  return instance.mmxSwitch;
}

int32_t BRSL_CALL BRSL_StartCC(int32_t slot) {
  if (!IsSlot(slot, State::kCycleSlots)) return 0;
  instance.cycles[slot] = CycleCount();
  return 1;
}

uint32_t BRSL_CALL BRSL_GetCCTP(int32_t slot) {
  if (!IsSlot(slot, State::kCycleSlots)) return 0;
  return static_cast<uint32_t>(CycleCount() - instance.cycles[slot]);
}

void *BRSL_CALL BRSL_BankPTR(void *address) { return address; }

uint32_t BRSL_CALL RGBto565(uint32_t colour) { return Rgb565::Pack(colour); }

uint32_t BRSL_CALL RGBto555(uint32_t colour) { return Rgb555::Pack(colour); }

uint32_t BRSL_CALL RGBForBuffer(uint32_t colour, int32_t) {
  return PackColour(colour, instance.canvas.target.format);
}
