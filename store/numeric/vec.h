// Coordinate vectors in the plane and in space.
#pragma once

#include <cmath>

namespace Tarvex {

/// Lengths below this count as zero when a direction is taken: machine epsilon of a double.
inline constexpr double kZeroVector = 2.220446049250313e-16;
/// Lengths and distances below this count as zero when points are compared, in model length units.
inline constexpr double kZeroLength = 1e-10;
inline constexpr double kPi = 3.141592653589793;

/// Vector in a plane.
template <class T>
struct Vec2 {
  T x{};
  T y{};

  friend bool operator==(Vec2 const&, Vec2 const&) = default;
  friend Vec2 operator+(Vec2 a, Vec2 b) { return {a.x + b.x, a.y + b.y}; }
  friend Vec2 operator-(Vec2 a, Vec2 b) { return {a.x - b.x, a.y - b.y}; }
  friend Vec2 operator*(Vec2 a, T f) { return {a.x * f, a.y * f}; }
  friend Vec2 operator*(T f, Vec2 a) { return a * f; }
};

/// Vector in space.
template <class T>
struct Vec3 {
  T x{};
  T y{};
  T z{};

  friend bool operator==(Vec3 const&, Vec3 const&) = default;
  friend Vec3 operator+(Vec3 const& a, Vec3 const& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
  friend Vec3 operator-(Vec3 const& a, Vec3 const& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
  friend Vec3 operator-(Vec3 const& a) { return {-a.x, -a.y, -a.z}; }
  friend Vec3 operator*(Vec3 const& a, T f) { return {a.x * f, a.y * f, a.z * f}; }
  friend Vec3 operator*(T f, Vec3 const& a) { return a * f; }
  friend Vec3 operator/(Vec3 const& a, T f) { return {a.x / f, a.y / f, a.z / f}; }
  Vec3& operator+=(Vec3 const& b) { return *this = *this + b; }
};

template <class T>
T Dot(Vec2<T> a, Vec2<T> b) {
  return a.x * b.x + a.y * b.y;
}

template <class T>
T Dot(Vec3<T> const& a, Vec3<T> const& b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}

template <class T>
Vec3<T> Cross(Vec3<T> const& a, Vec3<T> const& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

template <class T>
T Length(Vec2<T> a) {
  return std::hypot(a.x, a.y);
}

template <class T>
T Length(Vec3<T> const& a) {
  return std::sqrt(Dot(a, a));
}

/// The vector at length 1; the zero vector when its length is below the given bound.
inline Vec3<double> Unit(Vec3<double> const& a, double zero = kZeroVector) {
  double const length = Length(a);
  return length < zero ? Vec3<double>{} : a / length;
}

}  // namespace Tarvex
