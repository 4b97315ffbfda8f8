#pragma once

#include <cstdint>

#include "brisal/brisal.h"

namespace brisal {

// Vertices of the host at any alignment, `stride` bytes apart, each beginning with its coordinates.
template <class Byte>
struct VertexArray {
  Byte *first;
  int32_t stride;
};
using SourceVertices = VertexArray<const uint8_t>;
using TargetVertices = VertexArray<uint8_t>;

// Scales, rotates and moves vertices, and projects them where the transform says so.
void TransformVertices(const BRSL_Transform &transform, SourceVertices from, TargetVertices to,
                       int32_t count);

// Places vertices in the world by the object's transform, and projects them as the camera sees them.
void ViewVertices(const BRSL_Transform &camera, const BRSL_Transform &object, SourceVertices from,
                  TargetVertices to, int32_t count);

struct PlaneTransform {
  float offsetX;
  float offsetY;
  float angle;
  float scaleX;
  float scaleY;
};

// Turns count + 1 vertices in the plane.
void TransformPlaneVertices(const PlaneTransform &transform, SourceVertices from, TargetVertices to,
                            int32_t count);

void InterpolateVertices(SourceVertices a, SourceVertices b, TargetVertices to, int32_t count,
                         float t);

}  // namespace brisal
