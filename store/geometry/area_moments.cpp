#include "store/geometry/area_moments.h"

#include <cmath>

namespace Tarvex::Util {

AreaMoments& AreaMoments::operator+=(AreaMoments const& other) {
  area += other.area;
  first = first + other.first;
  xx += other.xx;
  yy += other.yy;
  xy += other.xy;
  return *this;
}

Vec2<double> AreaMoments::Centroid() const {
  return area == 0 ? Vec2<double>{} : Vec2<double>{first.x / area, first.y / area};
}

AreaMoments MomentsOfPolygon(std::span<Vec2<double> const> corners) {
  AreaMoments sum;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    auto const& a = corners[i];
    auto const& b = corners[i + 1 == corners.size() ? 0 : i + 1];
    double const cross = a.x * b.y - b.x * a.y;
    sum += {cross / 2,
            {cross * (a.x + b.x) / 6, cross * (a.y + b.y) / 6},
            cross * (a.x * a.x + a.x * b.x + b.x * b.x) / 12,
            cross * (a.y * a.y + a.y * b.y + b.y * b.y) / 12,
            cross * (a.x * b.y + 2 * a.x * a.y + 2 * b.x * b.y + b.x * a.y) / 24};
  }
  return sum;
}

AreaMoments MomentsOfDisc(double radius) {
  double const area = kPi * radius * radius;
  double const second = area * radius * radius / 4;
  return {area, {}, second, second, 0};
}

AreaMoments MomentsOfFillet(double radius) {
  // The square less the quarter disc about the corner (r, r), each integrated in closed form.
  constexpr double kArea = 1 - kPi / 4;
  constexpr double kFirst = 5.0 / 6 - kPi / 4;
  constexpr double kSecond = 1 - 5 * kPi / 16;
  constexpr double kProduct = 19.0 / 24 - kPi / 4;
  double const square = radius * radius;
  double const cube = square * radius;
  double const fourth = square * square;
  return {kArea * square,
          {kFirst * cube, kFirst * cube},
          kSecond * fourth,
          kSecond * fourth,
          kProduct * fourth};
}

AreaMoments Placed(AreaMoments const& moments, double angle, Vec2<double> shift) {
  AreaMoments turned = moments;
  if (angle != 0) {
    double const c = std::cos(angle);
    double const s = std::sin(angle);
    turned.first = {c * moments.first.x - s * moments.first.y,
                    s * moments.first.x + c * moments.first.y};
    turned.xx = c * c * moments.xx - 2 * c * s * moments.xy + s * s * moments.yy;
    turned.yy = s * s * moments.xx + 2 * c * s * moments.xy + c * c * moments.yy;
    turned.xy = c * s * (moments.xx - moments.yy) + (c * c - s * s) * moments.xy;
  }
  double const a = turned.area;
  auto const& f = turned.first;
  return {a, f + shift * a, turned.xx + 2 * shift.x * f.x + a * shift.x * shift.x,
          turned.yy + 2 * shift.y * f.y + a * shift.y * shift.y,
          turned.xy + shift.x * f.y + shift.y * f.x + a * shift.x * shift.y};
}

AreaMoments Mirrored(AreaMoments const& moments, double signX, double signY) {
  return {moments.area,
          {signX * moments.first.x, signY * moments.first.y},
          moments.xx,
          moments.yy,
          signX * signY * moments.xy};
}

AreaMoments AboutCentroid(AreaMoments const& moments) {
  auto const centroid = moments.Centroid();
  return Placed(moments, 0, {-centroid.x, -centroid.y});
}

}  // namespace Tarvex::Util
