// A field over an element by its values at the corners: the polynomial through them.
#pragma once

#include <array>
#include <vector>

#include "store/numeric/vec.h"
#include "topology/dense_solver.h"

namespace Tarvex {

/// Terms of the polynomial in local co-ordinates, of which as many are taken as there are corners:
///   3  1 x y
///   4  1 x y xy
///   8  1 x y z xy yz xz xyz
inline std::vector<double> FitTerms(Vec3<double> const& p, std::size_t count) {
  if (count == 8) return {1, p.x, p.y, p.z, p.x * p.y, p.y * p.z, p.x * p.z, p.x * p.y * p.z};
  std::vector<double> terms{1, p.x, p.y};
  if (count > 3) terms.push_back(p.x * p.y);
  return terms;
}

/// The fit through 3, 4 or 8 corners.
class CornerFit {
 public:
  explicit CornerFit(std::vector<Vec3<double>> const& corners)
      : m_count(corners.size()), m_lu(MatrixOf(corners)) {}

  /// Whether the corners determine the polynomial.
  bool IsDetermined() const { return m_lu.Rank() == static_cast<int>(m_count); }
  /// The coefficients for values at the corners.
  std::vector<double> Coefficients(std::vector<double> const& values) const {
    return Product(m_lu.Inverse(), values);
  }
  /// The polynomial at a point.
  static double At(Vec3<double> const& point, std::vector<double> const& coefficients) {
    auto const terms = FitTerms(point, coefficients.size());
    double value = 0;
    for (std::size_t i = 0; i < terms.size(); ++i) value += coefficients[i] * terms[i];
    return value;
  }

 private:
  static DenseMatrix MatrixOf(std::vector<Vec3<double>> const& corners) {
    int const order = static_cast<int>(corners.size());
    DenseMatrix matrix(order, order);
    for (int row = 0; row < order; ++row) {
      auto const terms = FitTerms(corners[static_cast<std::size_t>(row)], corners.size());
      for (int column = 0; column < order; ++column)
        matrix(row, column) = terms[static_cast<std::size_t>(column)];
    }
    return matrix;
  }

  std::size_t m_count;
  DenseLu m_lu;
};

}  // namespace Tarvex
