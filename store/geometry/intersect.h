// What two polygons have in common.
#pragma once

#include <vector>

#include "store/export.h"
#include "store/geometry/polygon.h"

namespace Tarvex::Util {

/// The pieces in which two polygons overlap.
///
///     CIntersect common(0.001);
///     common.NumPoly(outline, panel);
///     for (int i = 0; i < common.NumIntersect(); ++i) area += common.Intersect(i).Area();
class TARVEX_STORE_EXPORT CIntersect {
 public:
  /// @param tolerance pieces narrower than this on the mean are left out, model length units; the
  /// pieces get it as theirs.
  explicit CIntersect(double tolerance) : m_tolerance(tolerance) {}

  /// Finds the pieces that two polygons have in common, in place of those found before. Either may
  /// run either way round and need not be convex. Points and edges nearer to one another than 1e-7
  /// of the size of both polygons count as the same, so that edges which are meant to be shared but
  /// differ by rounding give no slivers; repeated points and spikes are passed over.
  /// @return number of pieces; 0 where the two meet in points or edges only, and where one has no
  /// area, crosses or touches itself, or is not finite.
  int NumPoly(Data::CPolygon const& a, Data::CPolygon const& b);

  int NumIntersect() const { return static_cast<int>(m_pieces.size()); }
  /// A piece (from 0), counter-clockwise, without a repeated point. Throws std::out_of_range for a
  /// number without a piece.
  Data::CPolygon const& Intersect(int index) const;

 private:
  double m_tolerance;
  std::vector<Data::CPolygon> m_pieces;
};

}  // namespace Tarvex::Util
