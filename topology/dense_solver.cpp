#include "topology/dense_solver.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <stdexcept>
#include <utility>

// The Fortran symbols of a BLAS. The lengths of its character arguments, which some compilers pass
// behind the others, are read by none.
extern "C" {
void dtrsm_(char const* side, char const* uplo, char const* trans, char const* diag, int const* m,
            int const* n, double const* alpha, double const* a, int const* lda, double* b,
            int const* ldb);
void dgemv_(char const* trans, int const* m, int const* n, double const* alpha, double const* a,
            int const* lda, double const* x, int const* incx, double const* beta, double* y,
            int const* incy);
void dgemm_(char const* transa, char const* transb, int const* m, int const* n, int const* k,
            double const* alpha, double const* a, int const* lda, double const* b, int const* ldb,
            double const* beta, double* c, int const* ldc);
}

namespace Tarvex {
namespace {

constexpr double kOne = 1;
constexpr double kZero = 0;
constexpr int kStride = 1;

bool TakesBlas(DenseArithmetic arithmetic, int order) {
  if (order == 0) return false;  // no call has anything to do there
  return arithmetic == DenseArithmetic::Blas ||
         (arithmetic == DenseArithmetic::BySize && order >= kBlasOrder);
}

/// Leading dimension of a matrix, which a BLAS wants above 0.
int Leading(DenseMatrix const& a) { return std::max(a.Rows(), 1); }

void Require(bool fits) {
  if (!fits) throw std::invalid_argument("sizes of matrices that do not fit");
}

/// X := the solution of L X = X by the unit lower triangle of a matrix.
void SolveLower(DenseMatrix const& lu, DenseMatrix& x, DenseArithmetic arithmetic) {
  int const order = lu.Rows();
  int const columns = x.Columns();
  if (TakesBlas(arithmetic, order) && columns > 0) {
    int const lead = Leading(lu);
    int const leadX = Leading(x);
    dtrsm_("L", "L", "N", "U", &order, &columns, &kOne, lu.Data(), &lead, x.Data(), &leadX);
    return;
  }
  for (int c = 0; c < columns; ++c)
    for (int k = 0; k < order; ++k)
      for (int i = k + 1; i < order; ++i) x(i, c) -= x(k, c) * lu(i, k);
}

/// The first rows of X := the solution by the leading part, of that order, of the upper triangle.
void SolveUpper(DenseMatrix const& lu, int order, DenseMatrix& x, DenseArithmetic arithmetic) {
  int const columns = x.Columns();
  if (TakesBlas(arithmetic, order) && columns > 0) {
    int const lead = Leading(lu);
    int const leadX = Leading(x);
    dtrsm_("L", "U", "N", "N", &order, &columns, &kOne, lu.Data(), &lead, x.Data(), &leadX);
    return;
  }
  for (int c = 0; c < columns; ++c)
    for (int k = order - 1; k >= 0; --k) {
      x(k, c) /= lu(k, k);
      for (int i = 0; i < k; ++i) x(i, c) -= x(k, c) * lu(i, k);
    }
}

}  // namespace

DenseMatrix DenseMatrix::Identity(int order) {
  DenseMatrix identity(order, order);
  for (int i = 0; i < order; ++i) identity(i, i) = 1;
  return identity;
}

DenseMatrix Product(DenseMatrix const& a, DenseMatrix const& b, DenseArithmetic arithmetic) {
  Require(a.Columns() == b.Rows());
  int const rows = a.Rows();
  int const columns = b.Columns();
  int const inner = a.Columns();
  DenseMatrix c(rows, columns);
  if (TakesBlas(arithmetic, inner) && rows > 0 && columns > 0) {
    int const leadA = Leading(a);
    int const leadB = Leading(b);
    dgemm_("N", "N", &rows, &columns, &inner, &kOne, a.Data(), &leadA, b.Data(), &leadB, &kZero,
           c.Data(), &leadA);
    return c;
  }
  for (int j = 0; j < columns; ++j)
    for (int k = 0; k < inner; ++k)
      for (int i = 0; i < rows; ++i) c(i, j) += a(i, k) * b(k, j);
  return c;
}

std::vector<double> Product(DenseMatrix const& a, std::span<double const> x,
                            DenseArithmetic arithmetic) {
  Require(static_cast<std::size_t>(a.Columns()) == x.size());
  int const rows = a.Rows();
  int const columns = a.Columns();
  std::vector<double> y(static_cast<std::size_t>(rows));
  if (TakesBlas(arithmetic, columns) && rows > 0) {
    int const lead = Leading(a);
    dgemv_("N", &rows, &columns, &kOne, a.Data(), &lead, x.data(), &kStride, &kZero, y.data(),
           &kStride);
    return y;
  }
  for (int k = 0; k < columns; ++k)
    for (int i = 0; i < rows; ++i)
      y[static_cast<std::size_t>(i)] += a(i, k) * x[static_cast<std::size_t>(k)];
  return y;
}

DenseLu::DenseLu(DenseMatrix matrix, DenseArithmetic arithmetic)
    : m_lu(std::move(matrix)),
      m_arithmetic(arithmetic),
      m_threshold(std::numeric_limits<double>::epsilon() * std::min(m_lu.Rows(), m_lu.Columns())),
      m_rowOrder(static_cast<std::size_t>(m_lu.Rows())),
      m_columnOrder(static_cast<std::size_t>(m_lu.Columns())) {
  std::iota(m_rowOrder.begin(), m_rowOrder.end(), 0);
  std::iota(m_columnOrder.begin(), m_columnOrder.end(), 0);
  Decompose();
}

void DenseLu::Decompose() {
  int const order = std::min(m_lu.Rows(), m_lu.Columns());
  for (int k = 0; k < order; ++k) {
    int row = k;
    int column = k;
    for (int j = k; j < m_lu.Columns(); ++j)
      for (int i = k; i < m_lu.Rows(); ++i)
        if (std::abs(m_lu(i, j)) > std::abs(m_lu(row, column))) {
          row = i;
          column = j;
        }
    if (m_lu(row, column) == 0) return;
    for (int j = 0; j < m_lu.Columns(); ++j) std::swap(m_lu(k, j), m_lu(row, j));
    for (int i = 0; i < m_lu.Rows(); ++i) std::swap(m_lu(i, k), m_lu(i, column));
    std::swap(m_rowOrder[static_cast<std::size_t>(k)], m_rowOrder[static_cast<std::size_t>(row)]);
    std::swap(m_columnOrder[static_cast<std::size_t>(k)],
              m_columnOrder[static_cast<std::size_t>(column)]);
    ++m_pivots;
    Eliminate(k);
  }
}

void DenseLu::Eliminate(int step) {
  for (int i = step + 1; i < m_lu.Rows(); ++i) m_lu(i, step) /= m_lu(step, step);
  for (int j = step + 1; j < m_lu.Columns(); ++j)
    for (int i = step + 1; i < m_lu.Rows(); ++i) m_lu(i, j) -= m_lu(i, step) * m_lu(step, j);
}

int DenseLu::Rank() const {
  double largest = 0;
  for (int i = 0; i < m_pivots; ++i) largest = std::max(largest, std::abs(m_lu(i, i)));
  int rank = 0;
  for (int i = 0; i < m_pivots; ++i)
    if (std::abs(m_lu(i, i)) > largest * m_threshold) ++rank;
  return rank;
}

DenseMatrix DenseLu::Solve(DenseMatrix right) const {
  int const order = m_lu.Rows();
  Require(order == m_lu.Columns() && order == right.Rows());
  DenseMatrix x(order, right.Columns());
  for (int c = 0; c < right.Columns(); ++c)
    for (int i = 0; i < order; ++i) x(i, c) = right(m_rowOrder[static_cast<std::size_t>(i)], c);
  SolveLower(m_lu, x, m_arithmetic);
  int const rank = Rank();
  SolveUpper(m_lu, rank, x, m_arithmetic);
  for (int c = 0; c < right.Columns(); ++c)
    for (int i = 0; i < order; ++i)
      right(m_columnOrder[static_cast<std::size_t>(i)], c) = i < rank ? x(i, c) : 0.0;
  return right;
}

}  // namespace Tarvex
