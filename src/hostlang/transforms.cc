#include "hostlang/transforms.h"

#include <cmath>
#include <cstddef>
#include <cstring>

#include "core/ints.h"
#include "hostlang/maths.h"

namespace brisal {

static_assert(sizeof(BRSL_Transform) == 56 && offsetof(BRSL_Transform, x) == 4 &&
              offsetof(BRSL_Transform, angleX) == 16 && offsetof(BRSL_Transform, scaleX) == 28 &&
              offsetof(BRSL_Transform, order) == 40 && offsetof(BRSL_Transform, factorX) == 48);

namespace {

enum Order { kRotateZFirst = 0, kRotateXFirst = 1 };
enum Output { kPoint = 0, kProjected = 1 };

// Rows times columns. Exact enough that one rounding to float is all that shows.
struct Rotation {
  // The rotation about one axis that turns the other two, in this order, from the first to the
  // second.
  static Rotation About(int first, int second, float degrees) {
    Rotation r;
    const long double c = std::cos(Radians(degrees));
    const long double s = std::sin(Radians(degrees));
    r.at[first][first] = r.at[second][second] = c;
    r.at[first][second] = -s;
    r.at[second][first] = s;
    return r;
  }

  static Rotation X(float degrees) { return About(1, 2, degrees); }
  static Rotation Y(float degrees) { return About(2, 0, degrees); }
  static Rotation Z(float degrees) { return About(0, 1, degrees); }

  Rotation operator*(const Rotation &other) const {
    Rotation product;
    for (int row = 0; row < 3; ++row) {
      for (int column = 0; column < 3; ++column) {
        product.at[row][column] = at[row][0] * other.at[0][column] +
                                  at[row][1] * other.at[1][column] +
                                  at[row][2] * other.at[2][column];
      }
    }
    return product;
  }

  long double at[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
};

struct Point {
  double x;
  double y;
  double z;
};

// A rotation as vertices are multiplied by it, its entries rounded to floats.
class Matrix {
 public:
  explicit Matrix(const Rotation &rotation) {
    for (int i = 0; i < 9; ++i) entry_[i] = static_cast<float>(rotation.at[i / 3][i % 3]);
  }

  // The same with y turned around.
  Matrix Upright() const {
    Matrix upright = *this;
    for (int i = 3; i < 6; ++i) upright.entry_[i] = -entry_[i];
    return upright;
  }

  Point operator*(const Point &p) const {
    return {entry_[0] * p.x + entry_[1] * p.y + entry_[2] * p.z,
            entry_[3] * p.x + entry_[4] * p.y + entry_[5] * p.z,
            entry_[6] * p.x + entry_[7] * p.y + entry_[8] * p.z};
  }

 private:
  double entry_[9];
};

Rotation RotationOf(const BRSL_Transform &t) {
  const Rotation x = Rotation::X(t.angleX);
  const Rotation y = Rotation::Y(t.angleY);
  const Rotation z = Rotation::Z(t.angleZ);
  return t.order == kRotateZFirst ? x * y * z : z * y * x;
}

bool HasOrder(const BRSL_Transform &t) {
  return t.order == kRotateZFirst || t.order == kRotateXFirst;
}

// What the object's transform makes of its vertices.
class Placement {
 public:
  explicit Placement(const BRSL_Transform &t) : transform_(t), matrix_(RotationOf(t)) {}

  Point operator()(const float (&v)[3]) const {
    const BRSL_Transform &t = transform_;
    const double x = static_cast<double>(t.scaleX) * v[0];
    const Point p = matrix_ * Point{x, static_cast<double>(t.scaleY) * v[1],
                                    static_cast<double>(t.scaleZ) * v[2]};
    return {p.x + t.x, p.y + t.y, p.z + t.z};
  }

 private:
  BRSL_Transform transform_;
  Matrix matrix_;
};

template <int N>
void Load(const SourceVertices &from, int64_t i, float (&v)[N]) {
  std::memcpy(v, from.first + ByteOffset(i, from.stride), sizeof v);
}

template <class... Numbers>
void Store(const TargetVertices &to, int64_t i, Numbers... numbers) {
  const float v[] = {static_cast<float>(numbers)...};
  std::memcpy(to.first + ByteOffset(i, to.stride), v, sizeof v);
}

// The point, and where it falls on the screen if it lies far enough ahead.
void StoreProjected(const TargetVertices &to, int64_t i, const Point &p,
                    const BRSL_Transform &view) {
  const bool ahead = p.z >= 1;
  Store(to, i, p.x, p.y, p.z, ahead ? p.x * view.factorX / p.z : 0,
        ahead ? p.y * view.factorY / p.z : 0);
}

}  // namespace

void TransformVertices(const BRSL_Transform &transform, SourceVertices from, TargetVertices to,
                       int32_t count) {
  const bool projects = transform.output == kProjected;
  if (!HasOrder(transform) || (!projects && transform.output != kPoint)) return;
  const Placement place(transform);
  for (int32_t i = 0; i < count; ++i) {
    float v[3];
    Load(from, i, v);
    const Point p = place(v);
    if (projects) {
      StoreProjected(to, i, p, transform);
    } else {
      Store(to, i, p.x, p.y, p.z);
    }
  }
}

void ViewVertices(const BRSL_Transform &camera, const BRSL_Transform &object, SourceVertices from,
                  TargetVertices to, int32_t count) {
  if (!HasOrder(object)) return;
  const Placement place(object);
  // On screens rows grow downwards.
  const Matrix look = Matrix(Rotation::X(-camera.angleX) * Rotation::Y(-camera.angleY) *
                             Rotation::Z(-camera.angleZ))
                          .Upright();
  for (int32_t i = 0; i < count; ++i) {
    float v[3];
    Load(from, i, v);
    const Point world = place(v);
    const Point p = look * Point{world.x - camera.x, world.y - camera.y, world.z - camera.z};
    StoreProjected(to, i, p, camera);
  }
}

void TransformPlaneVertices(const PlaneTransform &t, SourceVertices from, TargetVertices to,
                            int32_t count) {
  const double c = Cosine(t.angle);
  const double s = Sine(t.angle);
  for (int64_t i = 0; i <= count; ++i) {
    float v[2];
    Load(from, i, v);
    const double x = (static_cast<double>(t.offsetX) + v[0]) * t.scaleX;
    const double y = (static_cast<double>(t.offsetY) + v[1]) * t.scaleY;
    Store(to, i, x * c - y * s, x * s + y * c);
  }
}

void InterpolateVertices(SourceVertices a, SourceVertices b, TargetVertices to, int32_t count,
                         float t) {
  for (int32_t i = 0; i < count; ++i) {
    float va[3];
    float vb[3];
    Load(a, i, va);
    Load(b, i, vb);
    const auto between = [t](float from, float end) {
      return from + (static_cast<double>(end) - from) * t;
    };
    Store(to, i, between(va[0], vb[0]), between(va[1], vb[1]), between(va[2], vb[2]));
  }
}

}  // namespace brisal
