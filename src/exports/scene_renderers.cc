#include "brisal/brisal.h"
#include "exports/instance.h"
#include "scene/render.h"

using namespace brisal;

namespace {

SceneWork Work() {
  return {instance.canvas,
          instance.quarterCircle,
          {instance.spans, instance.vertices, instance.gouraud}};
}

template <class... Args>
void Render(const Scene_Record *record, int32_t dx, int32_t dy,
            void (CapturedCommand::*render)(Args...) const, Args... args) {
  if (record != nullptr) (CapturedCommand(Work(), *record, dx, dy).*render)(args...);
}

}  // namespace

int32_t BRSL_CALL Scene_Render_Check_Object_Visible(const Scene_Record *record, int32_t dx,
                                                    int32_t dy) {
  return record != nullptr && CapturedCommand(Work(), *record, dx, dy).IsVisible();
}

void BRSL_CALL Scene_Render_Captured_Box(const Scene_Record *record, int32_t dx, int32_t dy) {
  Render(record, dx, dy, &CapturedCommand::RenderBox);
}

void BRSL_CALL Scene_Render_Captured_ShadeBox(const Scene_Record *record, int32_t dx, int32_t dy) {
  Render(record, dx, dy, &CapturedCommand::RenderShadeBox);
}

void BRSL_CALL Scene_Render_Captured_Circle(const Scene_Record *record, int32_t dx, int32_t dy) {
  Render(record, dx, dy, &CapturedCommand::RenderCircle);
}

void BRSL_CALL Scene_Render_Captured_Ellipse(const Scene_Record *record, int32_t dx, int32_t dy) {
  Render(record, dx, dy, &CapturedCommand::RenderEllipse);
}

void BRSL_CALL Scene_Render_Captured_Polygon(const Scene_Record *record, int32_t dx, int32_t dy) {
  Render(record, dx, dy, &CapturedCommand::RenderFlatPoly);
}

void BRSL_CALL Scene_Render_Captured_PolygonG(const Scene_Record *record, int32_t dx, int32_t dy) {
  Render(record, dx, dy, &CapturedCommand::RenderGouraudPoly);
}

void BRSL_CALL Scene_Render_Captured_PolygonT(const Scene_Record *record, int32_t dx, int32_t dy,
                                              const BRSL_SurfaceDesc *texture,
                                              const TPD_Pipeline *pipeline) {
  Render(record, dx, dy, &CapturedCommand::RenderTexturedPoly, texture, pipeline);
}

void BRSL_CALL Scene_Render_Captured_GouraudStripH(const Scene_Record *record, int32_t dx,
                                                   int32_t dy) {
  Render(record, dx, dy, &CapturedCommand::RenderGouraudStrip, Axis::kRow);
}

void BRSL_CALL Scene_Render_Captured_GouraudStripV(const Scene_Record *record, int32_t dx,
                                                   int32_t dy) {
  Render(record, dx, dy, &CapturedCommand::RenderGouraudStrip, Axis::kColumn);
}

void BRSL_CALL Scene_Render_Captured_TextureStripH(const Scene_Record *record, int32_t dx,
                                                   int32_t dy, const BRSL_SurfaceDesc *texture) {
  Render(record, dx, dy, &CapturedCommand::RenderTextureStrip, Axis::kRow, texture);
}

void BRSL_CALL Scene_Render_Captured_TextureStripV(const Scene_Record *record, int32_t dx,
                                                   int32_t dy, const BRSL_SurfaceDesc *texture) {
  Render(record, dx, dy, &CapturedCommand::RenderTextureStrip, Axis::kColumn, texture);
}
