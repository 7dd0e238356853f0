#include "store/numeric/element_frame.h"

namespace Tarvex {
namespace {

double Radians(double degrees) { return degrees * kPi / 180.0; }

}  // namespace

bool IsVertical(Vec3<double> const& direction, double sineTolerance) {
  auto const d = Unit(direction);
  return d != Vec3<double>{} && Length(Vec2<double>{d.x, d.y}) <= sineTolerance;
}

bool IsHorizontal(Vec3<double> const& direction, double sineTolerance) {
  auto const d = Unit(direction);
  return d != Vec3<double>{} && std::abs(d.z) <= sineTolerance;
}

namespace Util {

CDirCos LineFrame(Vec3<double> const& start, Vec3<double> const& end,
                  std::optional<Vec3<double>> const& orientation, double angle,
                  double verticalTolerance) {
  auto const x = end - start;
  CDirCos frame;
  bool const byNode = orientation && frame.Assign(x, *orientation - start);
  if (!byNode) {
    Vec3<double> const up{0, 0, 1};
    Vec3<double> const north{0, 1, 0};
    bool const level = !IsVertical(x, verticalTolerance) && frame.Assign(x, Cross(up, x));
    if (!level && !frame.Assign(x, north)) return frame;
  }
  if (angle != 0) frame.Rotate(Direction::X, Radians(angle));
  return frame;
}

Vec3<double> PolygonNormal(std::span<Vec3<double> const> points) {
  Vec3<double> sum;
  for (std::size_t i = 1; i + 1 < points.size(); ++i)
    sum += Cross(points[i] - points[0], points[i + 1] - points[0]);
  return sum;
}

CDirCos PlateFrame(std::span<Vec3<double> const> corners, double angle) {
  CDirCos frame;
  auto const z = PolygonNormal(corners);
  if (Unit(z) == Vec3<double>{}) return frame;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    auto const edge = corners[(i + 1) % corners.size()] - corners[i];
    if (!frame.AssignNormal(z, edge)) continue;  // corners that fall together: the next edge
    if (angle != 0) frame.Rotate(Direction::Z, Radians(angle));
    return frame;
  }
  return frame;
}

}  // namespace Util
}  // namespace Tarvex
