// Dense systems against results worked by other means, with the BLAS and without.
#include "topology/dense_solver.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

#include "tests/support/random_model.h"

namespace Tarvex::DenseSolverTest {
namespace {

using Testing::Random;

constexpr double kEps = std::numeric_limits<double>::epsilon();
constexpr std::array kBoth{DenseArithmetic::Plain, DenseArithmetic::Blas};

DenseMatrix Matrix(std::vector<std::vector<double>> const& rows) {
  DenseMatrix a(static_cast<int>(rows.size()), static_cast<int>(rows.front().size()));
  for (int i = 0; i < a.Rows(); ++i)
    for (int j = 0; j < a.Columns(); ++j)
      a(i, j) = rows[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)];
  return a;
}

DenseMatrix RandomMatrix(Random& random, int rows, int columns) {
  DenseMatrix a(rows, columns);
  for (int j = 0; j < columns; ++j)
    for (int i = 0; i < rows; ++i) a(i, j) = random.Real(-1, 1);
  return a;
}

double Largest(DenseMatrix const& a) {
  double largest = 0;
  for (int i = 0; i < a.Rows(); ++i)
    for (int j = 0; j < a.Columns(); ++j) largest = std::max(largest, std::abs(a(i, j)));
  return largest;
}

/// Solution by Gauss and Jordan with row pivots, in extended precision: no step in common with the
/// solver.
std::vector<double> ReferenceSolution(DenseMatrix const& a, std::vector<double> const& b) {
  auto const n = b.size();
  std::vector<std::vector<long double>> rows(n, std::vector<long double>(n + 1));
  for (std::size_t i = 0; i < n; ++i) {
    for (std::size_t j = 0; j < n; ++j) rows[i][j] = a(static_cast<int>(i), static_cast<int>(j));
    rows[i][n] = b[i];
  }
  for (std::size_t k = 0; k < n; ++k) {
    auto pivot = k;
    for (auto i = k; i < n; ++i)
      if (std::abs(rows[i][k]) > std::abs(rows[pivot][k])) pivot = i;
    std::swap(rows[k], rows[pivot]);
    for (std::size_t i = 0; i < n; ++i) {
      if (i == k) continue;
      auto const factor = rows[i][k] / rows[k][k];
      for (auto j = k; j <= n; ++j) rows[i][j] -= factor * rows[k][j];
    }
  }
  std::vector<double> x;
  for (std::size_t i = 0; i < n; ++i) x.push_back(static_cast<double>(rows[i][n] / rows[i][i]));
  return x;
}

/// P A Q - L U, its largest element.
double DecompositionError(DenseMatrix const& a, DenseLu const& lu) {
  auto const& f = lu.Factors();
  double error = 0;
  for (int i = 0; i < a.Rows(); ++i)
    for (int j = 0; j < a.Columns(); ++j) {
      long double sum = 0;
      for (int k = 0; k <= std::min(i, j); ++k)
        if (k < lu.NumPivot() || k == i)
          sum += static_cast<long double>(k == i ? 1.0 : f(i, k)) * f(k, j);
      double const original = a(lu.RowOrder()[static_cast<std::size_t>(i)],
                                lu.ColumnOrder()[static_cast<std::size_t>(j)]);
      error = std::max(error, static_cast<double>(std::abs(sum - original)));
    }
  return error;
}

TEST(DenseLu, TakesTheLargestOfWhatRemainsAsPivot) {
  DenseLu const lu(Matrix({{1, 2, 3}, {4, 5, 6}, {7, 8, 10}}));
  EXPECT_EQ(lu.RowOrder(), (std::vector<int>{2, 0, 1}));
  EXPECT_EQ(lu.ColumnOrder().front(), 2);
  // 10; behind it row 0 less 0.3 of row 2 is -1.1, -0.4, row 1 less 0.6 of it -0.2, 0.2.
  EXPECT_EQ(lu.Factors()(0, 0), 10);
  EXPECT_NEAR(lu.Factors()(1, 1), -1.1, 1e-15);
  EXPECT_EQ(lu.ColumnOrder(), (std::vector<int>{2, 0, 1}));
  // Row 1 less 0.2 / 1.1 of row 0: 0.2 + 0.4 * 0.2 / 1.1.
  EXPECT_NEAR(lu.Factors()(2, 2), 0.2 + 0.08 / 1.1, 1e-15);
  EXPECT_EQ(lu.Rank(), 3);
}

TEST(DenseLu, SolvesAThreeByThreeSystemWorkedByHand) {
  // x = 1, y = -2, z = 3.
  DenseLu const lu(Matrix({{2, 1, -1}, {1, 3, 2}, {1, 0, 4}}));
  auto const x = lu.Solve(Matrix({{2 - 2 - 3}, {1 - 6 + 6}, {1 + 12}}));
  EXPECT_NEAR(x(0, 0), 1, 1e-14);
  EXPECT_NEAR(x(1, 0), -2, 1e-14);
  EXPECT_NEAR(x(2, 0), 3, 1e-14);
}

TEST(DenseLu, DecomposesRandomMatricesOfOrderOneToForty) {
  Random random(1);
  for (int n = 1; n <= 40; ++n)
    for (int i = 0; i < 5; ++i) {
      auto const a = RandomMatrix(random, n, n);
      DenseLu const lu(a);
      EXPECT_EQ(lu.Rank(), n);
      EXPECT_LT(DecompositionError(a, lu), 10 * n * kEps);
      for (int k = 0; k < n; ++k)
        for (int r = k + 1; r < n; ++r) ASSERT_LE(std::abs(lu.Factors()(r, k)), 1);
    }
}

TEST(DenseLu, SolvesRandomSystemsAsTheReferenceDoes) {
  Random random(2);
  for (int n = 1; n <= 40; ++n)
    for (auto const arithmetic : kBoth) {
      auto const a = RandomMatrix(random, n, n);
      std::vector<double> b;
      DenseMatrix right(n, 1);
      for (int i = 0; i < n; ++i) {
        right(i, 0) = random.Real(-1, 1);
        b.push_back(right(i, 0));
      }
      auto const expected = ReferenceSolution(a, b);
      DenseLu const lu(a, arithmetic);
      auto const inverse = lu.Inverse();
      auto const x = lu.Solve(right);
      auto const byInverse = Product(inverse, b, arithmetic);
      // The condition in the largest elements bounds what rounding can do.
      double const bound = 20 * n * n * kEps * Largest(a) * Largest(inverse) * n;
      double size = 0;
      for (double const value : expected) size = std::max(size, std::abs(value));
      for (int i = 0; i < n; ++i) {
        auto const at = static_cast<std::size_t>(i);
        ASSERT_NEAR(x(i, 0), expected[at], bound * size);
        ASSERT_NEAR(byInverse[at], expected[at], bound * size);
      }
    }
}

TEST(DenseLu, SolvesBadlyScaledSystems) {
  Random random(3);
  for (int n = 1; n <= 40; ++n) {
    // Rows and columns scaled by powers of two, which change no digit: the solution of the scaled
    // system is that of the other, scaled.
    auto a = RandomMatrix(random, n, n);
    for (int i = 0; i < n; ++i) a(i, i) += a(i, i) < 0 ? -n : n;
    std::vector<double> b(static_cast<std::size_t>(n));
    for (auto& value : b) value = random.Real(-1, 1);
    auto const expected = ReferenceSolution(a, b);
    auto scaled = a;
    DenseMatrix right(n, 1);
    std::vector<double> columnScale;
    for (int j = 0; j < n; ++j) columnScale.push_back(std::ldexp(1.0, random.Int(-3, 3)));
    for (int i = 0; i < n; ++i) {
      double const scale = std::ldexp(1.0, random.Int(-10, 10));
      for (int j = 0; j < n; ++j) scaled(i, j) *= scale * columnScale[static_cast<std::size_t>(j)];
      right(i, 0) = b[static_cast<std::size_t>(i)] * scale;
    }
    DenseLu const lu(scaled);
    ASSERT_EQ(lu.Rank(), n);
    auto const x = lu.Solve(right);
    for (int i = 0; i < n; ++i) {
      auto const at = static_cast<std::size_t>(i);
      ASSERT_NEAR(x(i, 0) * columnScale[at], expected[at], 1e-11);
    }
  }
}

TEST(DenseLu, FindsTheRankOfMatricesWithRowsThatAreSumsOfOthers) {
  Random random(4);
  for (int n = 1; n <= 40; ++n)
    for (int rank = 0; rank <= n; rank += 1 + n / 8) {
      // Small whole numbers, so that the product is exact.
      DenseMatrix left(n, rank);
      DenseMatrix right(rank, n);
      for (int i = 0; i < n; ++i)
        for (int k = 0; k < rank; ++k) {
          left(i, k) = random.Int(-9, 9) + (i == k ? 50 : 0);
          right(k, i) = random.Int(-9, 9) + (i == k ? 50 : 0);
        }
      auto const a = Product(left, right, DenseArithmetic::Plain);
      DenseLu lu(a);
      lu.SetThreshold(1e-12);
      ASSERT_EQ(lu.Rank(), rank) << "order " << n;
      ASSERT_LT(DecompositionError(a, lu), 100 * n * kEps * std::max(Largest(a), 1.0));
    }
}

TEST(DenseLu, StopsAtAZeroPivotAndCountsWhatIsBeforeIt) {
  DenseLu const lu(Matrix({{0, 0, 0}, {0, 4, 0}, {0, 8, 0}}));
  EXPECT_EQ(lu.NumPivot(), 1);
  EXPECT_EQ(lu.Rank(), 1);
  DenseLu const zero(DenseMatrix(4, 4));
  EXPECT_EQ(zero.NumPivot(), 0);
  EXPECT_EQ(zero.Rank(), 0);
}

TEST(DenseLu, CountsPivotsAboveTheThresholdTimesTheLargestOnly) {
  // The threshold of order 2 is 2 eps: a second pivot of that times the first does not exceed it.
  for (double const largest : {1.0, 1e-20, 1e20}) {
    EXPECT_EQ(DenseLu(Matrix({{largest, 0}, {0, 2 * kEps * largest}})).Rank(), 1);
    EXPECT_EQ(DenseLu(Matrix({{largest, 0}, {0, 2.1 * kEps * largest}})).Rank(), 2);
  }
  DenseLu lu(Matrix({{1, 0}, {0, 0.1}}));
  EXPECT_EQ(lu.Rank(), 2);
  lu.SetThreshold(0.1);
  EXPECT_EQ(lu.Rank(), 1);
  lu.SetThreshold(0.09);
  EXPECT_EQ(lu.Rank(), 2);
}

TEST(DenseLu, TakesTheSmallerOfRowsAndColumnsForTheThreshold) {
  EXPECT_EQ(DenseLu(Matrix({{1, 0, 0}, {0, 2.1 * kEps, 0}})).Rank(), 2);
  EXPECT_EQ(DenseLu(Matrix({{1, 0}, {0, 2.1 * kEps}, {0, 0}})).Rank(), 2);
}

TEST(DenseLu, SolvesBySmallerLeadingPartWhereTheRankIsBelowTheOrder) {
  // x + y = 3 twice: one unknown is open and 0.
  DenseLu const lu(Matrix({{1, 1}, {1, 1}}));
  auto const x = lu.Solve(Matrix({{3}, {3}}));
  EXPECT_EQ(x(0, 0) + x(1, 0), 3);
  EXPECT_EQ(x(0, 0) * x(1, 0), 0);
}

TEST(DenseLu, GivesTheSameWithTheBlasAndWithoutOnTheSameMatrices) {
  Random random(5);
  for (int n = 1; n <= 40; ++n)
    for (int const columns : {1, 3, n}) {
      auto const a = RandomMatrix(random, n, n);
      auto const b = RandomMatrix(random, n, columns);
      DenseLu const plain(a, DenseArithmetic::Plain);
      auto const x = plain.Solve(b);
      auto const y = DenseLu(a, DenseArithmetic::Blas).Solve(b);
      auto const p = Product(a, b, DenseArithmetic::Plain);
      auto const q = Product(a, b, DenseArithmetic::Blas);
      double const bound =
          10 * n * n * kEps * std::max(1.0, Largest(plain.Inverse())) * std::max(1.0, Largest(x));
      for (int j = 0; j < columns; ++j) {
        std::vector<double> column;
        for (int i = 0; i < n; ++i) column.push_back(b(i, j));
        auto const v = Product(a, column, DenseArithmetic::Blas);
        for (int i = 0; i < n; ++i) {
          ASSERT_NEAR(x(i, j), y(i, j), bound);
          ASSERT_NEAR(p(i, j), q(i, j), n * kEps);
          ASSERT_NEAR(p(i, j), v[static_cast<std::size_t>(i)], n * kEps);
        }
      }
    }
}

TEST(DenseMatrix, MultipliesAndIsKeptByColumns) {
  auto const a = Matrix({{1, 2}, {3, 4}, {5, 6}});
  EXPECT_EQ(a.Data()[1], 3);
  EXPECT_EQ(a.Data()[3], 2);
  for (auto const arithmetic : kBoth) {
    auto const p = Product(a, Matrix({{1, 0, -1}, {2, 1, 0}}), arithmetic);
    EXPECT_EQ(p(0, 0), 1 + 4);
    EXPECT_EQ(p(2, 1), 6);
    EXPECT_EQ(p(2, 2), -5);
    EXPECT_EQ(Product(a, std::vector<double>{1, -1}, arithmetic),
              (std::vector<double>{-1, -1, -1}));
  }
}

TEST(DenseMatrix, RefusesSizesThatDoNotFit) {
  DenseMatrix const a(3, 2);
  EXPECT_THROW(Product(a, a), std::invalid_argument);
  EXPECT_THROW(Product(a, std::vector<double>(3)), std::invalid_argument);
  EXPECT_THROW(DenseLu(a).Solve(DenseMatrix(3, 1)), std::invalid_argument);
  EXPECT_THROW(DenseLu(DenseMatrix(3, 3)).Solve(DenseMatrix(2, 1)), std::invalid_argument);
}

TEST(DenseLu, TakesAnEmptySystem) {
  DenseLu const lu(DenseMatrix(0, 0), DenseArithmetic::Blas);
  EXPECT_EQ(lu.Rank(), 0);
  EXPECT_EQ(lu.Solve(DenseMatrix(0, 2)).Columns(), 2);
}

TEST(DenseLu, FindsNoRankInWhatIsNotANumber) {
  double const nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_LT(DenseLu(Matrix({{nan, 1}, {1, 2}})).Rank(), 2);
}

}  // namespace
}  // namespace Tarvex::DenseSolverTest
