// Material behaviour by numbers: curves and stiffness matrices.
#pragma once

#include <array>
#include <vector>

#include "store/export.h"
#include "store/numeric/direction.h"
#include "store/record/entity.h"
#include "store/select/checked_access.h"

namespace Tarvex::Data {

/// A named curve through points, such as force over displacement.
template <class T>
class CTableT : public NamedEntity {
 public:
  CTableT() = default;
  CTableT(CString const& name, std::vector<Vec2<T>> points)
      : NamedEntity(0, name), m_points(std::move(points)) {}

  int NumPoint() const { return static_cast<int>(m_points.size()); }
  /// A point, from 0. Throws std::out_of_range for one that there is not.
  Vec2<T> const& Point(int index) const { return CheckedAt(m_points, index); }
  std::vector<Vec2<T>> const& Points() const { return m_points; }
  void SetPoints(std::vector<Vec2<T>> points) { m_points = std::move(points); }

  friend bool operator==(CTableT const& a, CTableT const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(NamedFields<CTableT>(), MakeRows(Plain<CTableT>("points", &CTableT::m_points)));
  }

 private:
  std::vector<Vec2<T>> m_points;
};

/// The stiffness of a spring whose directions act on each other: a symmetric matrix.
class TARVEX_STORE_EXPORT CMatMatrix : public NamedEntity {
 public:
  CMatMatrix() = default;
  explicit CMatMatrix(CString const& name) : NamedEntity(0, name) {}

  /// Force or moment in one direction by displacement or rotation in another, either way about.
  /// Throws std::out_of_range for a direction that there is not.
  double Stiffness(Direction row, Direction column) const { return m_terms[Place(row, column)]; }
  void SetStiffness(Direction row, Direction column, double value) {
    m_terms[Place(row, column)] = value;
  }

  friend bool operator==(CMatMatrix const& a, CMatMatrix const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(NamedFields<CMatMatrix>(),
                    MakeRows(Plain<CMatMatrix>("terms", &CMatMatrix::m_terms)));
  }

 private:
  static std::size_t Place(Direction row, Direction column);

  /// The lower triangle, row by row: X-X, Y-X, Y-Y, Z-X and so on.
  std::array<double, 21> m_terms{};
};

}  // namespace Tarvex::Data
