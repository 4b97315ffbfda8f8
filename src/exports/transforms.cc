#include "hostlang/transforms.h"

#include "brisal/brisal.h"
#include "exports/instance.h"
#include "hostlang/calculator.h"

using namespace brisal;

namespace {

SourceVertices From(const void *list, int32_t stride) {
  return {static_cast<const uint8_t *>(list), stride};
}

TargetVertices To(void *list, int32_t stride) { return {static_cast<uint8_t *>(list), stride}; }

// Turning and moving alone.
BRSL_Transform Turn(int32_t order, float tx, float ty, float tz, float ax, float ay, float az) {
  return {0, tx, ty, tz, ax, ay, az, 1, 1, 1, order, 0, 0, 0};
}

}  // namespace

void BRSL_CALL RotateVertexList(const BRSL_Transform *transform, const void *source,
                                int32_t sourceStride, void *destination, int32_t destinationStride,
                                int32_t count) {
  if (transform == nullptr || source == nullptr || destination == nullptr) return;
  TransformVertices(*transform, From(source, sourceStride), To(destination, destinationStride),
                    count);
}

void BRSL_CALL RotateVertexListToCamera(const BRSL_Transform *camera, const BRSL_Transform *object,
                                        const void *source, int32_t sourceStride, void *destination,
                                        int32_t destinationStride, int32_t count) {
  if (camera == nullptr || object == nullptr || source == nullptr || destination == nullptr) return;
  ViewVertices(*camera, *object, From(source, sourceStride), To(destination, destinationStride),
               count);
}

void BRSL_CALL RotateVertexListXYZ(const void *source, int32_t sourceStride, void *destination,
                                   int32_t destinationStride, float tx, float ty, float tz,
                                   float ax, float ay, float az, int32_t count) {
  const BRSL_Transform transform = Turn(0, tx, ty, tz, ax, ay, az);
  RotateVertexList(&transform, source, sourceStride, destination, destinationStride, count);
}

void BRSL_CALL RotateVertexListZYX(const void *source, int32_t sourceStride, void *destination,
                                   int32_t destinationStride, float tx, float ty, float tz,
                                   float ax, float ay, float az, int32_t count) {
  const BRSL_Transform transform = Turn(1, tx, ty, tz, ax, ay, az);
  RotateVertexList(&transform, source, sourceStride, destination, destinationStride, count);
}

void BRSL_CALL Rotate2DVertexList(const void *source, int32_t sourceStride, void *destination,
                                  int32_t destinationStride, float ox, float oy, float angle,
                                  float sx, float sy, int32_t count) {
  if (source == nullptr || destination == nullptr) return;
  TransformPlaneVertices({ox, oy, angle, sx, sy}, From(source, sourceStride),
                         To(destination, destinationStride), count);
}

void BRSL_CALL LerpVertexList(const void *a, int32_t strideA, const void *b, int32_t strideB,
                              void *destination, int32_t destinationStride, int32_t count,
                              float t) {
  if (a == nullptr || b == nullptr || destination == nullptr) return;
  InterpolateVertices(From(a, strideA), From(b, strideB), To(destination, destinationStride), count,
                      t);
}

float BRSL_CALL TQ_FastCalc(float *variables, const int32_t *program, int32_t count) {
  if (variables == nullptr || program == nullptr) return 0;
  return Calculate(instance.random, variables, program, count);
}
