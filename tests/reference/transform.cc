// Lists of vertices rotated, projected and interpolated.
#include <cmath>
#include <cstring>
#include <initializer_list>

#include "reference/records.h"

namespace reference {
namespace {

using Wide = long double;

// Vertices are computed in double precision.
struct Point {
  double x, y, z;
};

Point operator+(const Point &a, const Point &b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
Point operator-(const Point &a, const Point &b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
Point operator*(const Point &a, const Point &b) { return {a.x * b.x, a.y * b.y, a.z * b.z}; }

struct Matrix {
  Wide m[3][3];

  Point operator*(const Point &p) const {
    const auto at = [&](int r, int c) { return static_cast<double>(m[r][c]); };
    const auto row = [&](int r) { return at(r, 0) * p.x + at(r, 1) * p.y + at(r, 2) * p.z; };
    return {row(0), row(1), row(2)};
  }
  Matrix operator*(const Matrix &b) const {
    Matrix product;
    for (int r = 0; r < 3; r++) {
      for (int c = 0; c < 3; c++) {
        product.m[r][c] = m[r][0] * b.m[0][c] + m[r][1] * b.m[1][c] + m[r][2] * b.m[2][c];
      }
    }
    return product;
  }
  // The entries as they are kept for a list.
  Matrix Kept() const {
    Matrix kept;
    for (int i = 0; i < 9; i++) kept.m[i / 3][i % 3] = static_cast<float>(m[i / 3][i % 3]);
    return kept;
  }
};

constexpr Wide kRadians = 0.017453292519444445;

Wide Cos(float degrees) { return std::cos(degrees * kRadians); }
Wide Sin(float degrees) { return std::sin(degrees * kRadians); }

Matrix Rx(float a) { return {{{1, 0, 0}, {0, Cos(a), -Sin(a)}, {0, Sin(a), Cos(a)}}}; }
Matrix Ry(float a) { return {{{Cos(a), 0, Sin(a)}, {0, 1, 0}, {-Sin(a), 0, Cos(a)}}}; }
Matrix Rz(float a) { return {{{Cos(a), -Sin(a), 0}, {Sin(a), Cos(a), 0}, {0, 0, 1}}}; }

Matrix Rotation(int32_t order, float ax, float ay, float az) {
  return (order == 0 ? Rx(ax) * Ry(ay) * Rz(az) : Rz(az) * Ry(ay) * Rx(ax)).Kept();
}

Matrix Rotation(const BRSL_Transform &t) { return Rotation(t.order, t.angleX, t.angleY, t.angleZ); }

Point Position(const BRSL_Transform &t) { return {t.x, t.y, t.z}; }
Point Scale(const BRSL_Transform &t) { return {t.scaleX, t.scaleY, t.scaleZ}; }

float FloatAt(const void *list, int64_t at) {
  float value;
  std::memcpy(&value, static_cast<const uint8_t *>(list) + at, 4);
  return value;
}

Point PointAt(const void *list, int64_t at) {
  return {FloatAt(list, at), FloatAt(list, at + 4), FloatAt(list, at + 8)};
}

void Put(void *list, int64_t at, std::initializer_list<double> values) {
  for (double value : values) {
    const auto rounded = static_cast<float>(value);
    std::memcpy(static_cast<uint8_t *>(list) + at, &rounded, 4);
    at += 4;
  }
}

void PutProjected(void *list, int64_t at, const Point &p, const BRSL_Transform &camera) {
  const bool before = std::floor(p.z) > 0;
  Put(list, at,
      {p.x, p.y, p.z, before ? p.x * camera.factorX / p.z : 0,
       before ? p.y * camera.factorY / p.z : 0});
}

bool IsBit(int32_t value) { return value == 0 || value == 1; }

}  // namespace

void RotateList(const BRSL_Transform *t, const void *source, int32_t sourceStride,
                void *destination, int32_t destinationStride, int32_t count) {
  if (!IsBit(t->order) || !IsBit(t->output)) return;
  const Matrix turn = Rotation(*t);
  for (int64_t i = 0; i < count; i++) {
    const Point p = turn * (Scale(*t) * PointAt(source, i * sourceStride)) + Position(*t);
    if (t->output == 0) Put(destination, i * destinationStride, {p.x, p.y, p.z});
    if (t->output == 1) PutProjected(destination, i * destinationStride, p, *t);
  }
}

void RotateListToCamera(const BRSL_Transform *camera, const BRSL_Transform *object,
                        const void *source, int32_t sourceStride, void *destination,
                        int32_t destinationStride, int32_t count) {
  if (!IsBit(object->order)) return;
  const Matrix turn = Rotation(*object);
  Matrix view = Rotation(0, -camera->angleX, -camera->angleY, -camera->angleZ);
  for (Wide &entry : view.m[1]) entry = -entry;
  for (int64_t i = 0; i < count; i++) {
    const Point world =
        turn * (Scale(*object) * PointAt(source, i * sourceStride)) + Position(*object);
    PutProjected(destination, i * destinationStride, view * (world - Position(*camera)), *camera);
  }
}

void RotateListXyz(const void *source, int32_t sourceStride, void *destination,
                   int32_t destinationStride, float tx, float ty, float tz, float ax, float ay,
                   float az, int32_t count) {
  const BRSL_Transform t = {0, tx, ty, tz, ax, ay, az, 1, 1, 1, 0, 0, 0, 0};
  RotateList(&t, source, sourceStride, destination, destinationStride, count);
}

void RotateListZyx(const void *source, int32_t sourceStride, void *destination,
                   int32_t destinationStride, float tx, float ty, float tz, float ax, float ay,
                   float az, int32_t count) {
  const BRSL_Transform t = {0, tx, ty, tz, ax, ay, az, 1, 1, 1, 1, 0, 0, 0};
  RotateList(&t, source, sourceStride, destination, destinationStride, count);
}

void Rotate2DList(const void *source, int32_t sourceStride, void *destination,
                  int32_t destinationStride, float ox, float oy, float angle, float sx, float sy,
                  int32_t count) {
  const auto c = static_cast<float>(Cos(angle)), s = static_cast<float>(Sin(angle));
  for (int64_t i = 0; i <= count; i++) {
    const double x = (double{ox} + FloatAt(source, i * sourceStride)) * sx;
    const double y = (double{oy} + FloatAt(source, i * sourceStride + 4)) * sy;
    Put(destination, i * destinationStride, {x * c - y * s, x * s + y * c});
  }
}

void LerpList(const void *a, int32_t strideA, const void *b, int32_t strideB, void *destination,
              int32_t destinationStride, int32_t count, float t) {
  for (int64_t i = 0; i < count; i++) {
    const Point from = PointAt(a, i * strideA), to = PointAt(b, i * strideB);
    const Point p = from + (to - from) * Point{t, t, t};
    Put(destination, i * destinationStride, {p.x, p.y, p.z});
  }
}

}  // namespace reference
