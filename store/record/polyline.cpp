#include "store/record/polyline.h"

namespace Tarvex::Data {

CPolygon CPolyline::Polygon() const {
  CPolygon polygon;
  for (auto const& point : m_points) polygon.AddPoint(point);
  return polygon;
}

}  // namespace Tarvex::Data
