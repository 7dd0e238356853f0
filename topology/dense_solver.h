// Small dense linear systems.
//
//   DenseMatrix a(3, 3);
//   a(0, 1) = 2.0;  ...
//   DenseLu const lu(a);
//   if (lu.Rank() == 3) std::vector<double> const x = Product(lu.Inverse(), b);
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace Tarvex {

/// Who does the arithmetic of products and triangular solves.
enum class DenseArithmetic {
  BySize,  ///< the BLAS from order kBlasOrder on, plain loops below
  Plain,
  Blas,
};

/// Order from which a call of a BLAS costs less than it saves.
inline constexpr int kBlasOrder = 8;

/// A matrix, kept by columns; 0 at first.
class DenseMatrix {
 public:
  DenseMatrix(int rows, int columns)
      : m_rows(rows),
        m_columns(columns),
        m_values(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns)) {}
  static DenseMatrix Identity(int order);

  int Rows() const { return m_rows; }
  int Columns() const { return m_columns; }
  double& operator()(int row, int column) { return m_values[Place(row, column)]; }
  double operator()(int row, int column) const { return m_values[Place(row, column)]; }
  /// The values, column behind column.
  double* Data() { return m_values.data(); }
  double const* Data() const { return m_values.data(); }

 private:
  std::size_t Place(int row, int column) const {
    return static_cast<std::size_t>(column) * static_cast<std::size_t>(m_rows) +
           static_cast<std::size_t>(row);
  }

  int m_rows;
  int m_columns;
  std::vector<double> m_values;
};

/// Products. Throw std::invalid_argument where the sizes do not fit.
DenseMatrix Product(DenseMatrix const& a, DenseMatrix const& b,
                    DenseArithmetic arithmetic = DenseArithmetic::BySize);
std::vector<double> Product(DenseMatrix const& a, std::span<double const> x,
                            DenseArithmetic arithmetic = DenseArithmetic::BySize);

/// The decomposition P A Q = L U of a matrix, with L unit lower and U upper triangular: the pivot
/// of each step is the element of largest magnitude of what remains, and the first zero pivot ends
/// it. Source: G. H. Golub, C. F. Van Loan, Matrix Computations, section on complete pivoting.
class DenseLu {
 public:
  explicit DenseLu(DenseMatrix matrix, DenseArithmetic arithmetic = DenseArithmetic::BySize);

  /// Pivots whose magnitude is this part of the largest or less do not count for the rank; machine
  /// epsilon times the smaller number of rows or columns unless set.
  void SetThreshold(double threshold) { m_threshold = threshold; }
  /// The number of pivots that count.
  int Rank() const;
  /// The number of pivots that are not 0.
  int NumPivot() const { return m_pivots; }

  /// The solution of A X = B. With a rank below the order, that of the leading part of U: what the
  /// other unknowns are is open, and they are 0. Throws std::invalid_argument for a matrix that is
  /// not square, or where the rows of B do not fit.
  DenseMatrix Solve(DenseMatrix right) const;
  /// The solution for the identity.
  DenseMatrix Inverse() const { return Solve(DenseMatrix::Identity(m_lu.Rows())); }

  /// L below the diagonal, which is 1 all along, and U on and above it.
  DenseMatrix const& Factors() const { return m_lu; }
  /// Row or column of A that stands in a place of P A Q.
  std::vector<int> const& RowOrder() const { return m_rowOrder; }
  std::vector<int> const& ColumnOrder() const { return m_columnOrder; }

 private:
  void Decompose();
  void Eliminate(int step);

  DenseMatrix m_lu;
  DenseArithmetic m_arithmetic;
  double m_threshold;
  int m_pivots = 0;
  std::vector<int> m_rowOrder;
  std::vector<int> m_columnOrder;
};

}  // namespace Tarvex
