#include "store/record/mat_tables.h"

#include <gtest/gtest.h>

#include "tests/support/matchers.h"
#include "tests/support/stored_fields.h"

namespace Tarvex::Data::MatTablesTest {
namespace {

using Curve = CTableT<double>;
using Points = std::vector<Vec2<double>>;

TEST(MatCurve, IsARowOfPoints) {
  Curve curve(L"spring", {{0, 0}, {1.5, 20}});
  EXPECT_EQ(curve.Name(), L"spring");
  ASSERT_EQ(curve.NumPoint(), 2);
  EXPECT_EQ(curve.Point(1), (Vec2<double>{1.5, 20}));
  EXPECT_EQ(Testing::OutOfRangeText([&] { curve.Point(2); }), "invalid vector subscript");
  EXPECT_EQ(Testing::OutOfRangeText([&] { curve.Point(-1); }), "invalid vector subscript");
  curve.SetPoints({{7, 8}});
  EXPECT_EQ(curve.Points(), (Points{{7, 8}}));
  EXPECT_EQ(Curve().NumPoint(), 0);
}

TEST(MatCurve, ComparesEveryField) {
  using R = Curve;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"points", [](R& r) {
                                     r.SetPoints({{1, 2}});
                                   }}});
}

TEST(MatMatrix, HasATermForEachPairOfDirections) {
  CMatMatrix matrix(L"pile");
  EXPECT_EQ(matrix.Name(), L"pile");
  for (auto row = Direction::X; row - Direction::X < 6; ++row)
    for (auto column = Direction::X; column - row <= 0; ++column)
      matrix.SetStiffness(row, column, 10 * static_cast<int>(row) + static_cast<int>(column));
  for (auto row = Direction::X; row - Direction::X < 6; ++row)
    for (auto column = Direction::X; column - row <= 0; ++column) {
      double const set = 10 * static_cast<int>(row) + static_cast<int>(column);
      EXPECT_EQ(matrix.Stiffness(row, column), set);
      EXPECT_EQ(matrix.Stiffness(column, row), set);  // the matrix is symmetric
    }
}

TEST(MatMatrix, RefusesADirectionThatThereIsNot) {
  CMatMatrix matrix;
  auto const seventh = static_cast<Direction>(7);
  auto const zeroth = static_cast<Direction>(0);
  EXPECT_NE(Testing::OutOfRangeText([&] { matrix.Stiffness(Direction::X, seventh); }), "");
  EXPECT_NE(Testing::OutOfRangeText([&] { matrix.SetStiffness(zeroth, Direction::X, 1); }), "");
}

TEST(MatMatrix, ComparesEveryField) {
  using R = CMatMatrix;
  Testing::ExpectStoredFields<R>(
      {{"name", [](R& r) { r.SetName(L"n"); }},
       {"sid", [](R& r) { r.SetSid(L"s"); }},
       {"colour", [](R& r) { r.SetColour(1); }},
       {"terms", [](R& r) { r.SetStiffness(Direction::ZZ, Direction::ZZ, -0.0); }}});
}

}  // namespace
}  // namespace Tarvex::Data::MatTablesTest
