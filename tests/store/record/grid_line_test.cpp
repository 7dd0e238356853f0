#include "store/record/grid_line.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::GridLineTest {
namespace {

TEST(GridLine, IsGivenByLabelStartLengthAngleAndArc) {
  CGridLine const line(L"A", {1, 2}, 30, 90, -15);
  EXPECT_EQ(line.Label(), L"A");
  EXPECT_EQ(line.Name(), L"A");
  EXPECT_EQ(line.Start(), (Vec2<double>{1, 2}));
  EXPECT_EQ(line.Length(), 30);
  EXPECT_EQ(line.Angle(), 90);
  EXPECT_EQ(line.Arc(), -15);
}

TEST(GridLine, ComparesEveryField) {
  Testing::ExpectStoredFields<CGridLine>({{"name", [](CGridLine& l) { l.SetName(L"n"); }},
                                          {"sid", [](CGridLine& l) { l.SetSid(L"s"); }},
                                          {"colour", [](CGridLine& l) { l.SetColour(1); }},
                                          {"start",
                                           [](CGridLine& l) {
                                             l = CGridLine(L"", {0, 1}, 0, 0, 0);
                                           }},
                                          {"length",
                                           [](CGridLine& l) {
                                             l = CGridLine(L"", {0, 0}, 1, 0, 0);
                                           }},
                                          {"angle",
                                           [](CGridLine& l) {
                                             l = CGridLine(L"", {0, 0}, 0, 1, 0);
                                           }},
                                          {"arc", [](CGridLine& l) {
                                             l = CGridLine(L"", {0, 0}, 0, 0, 1);
                                           }}});
}

}  // namespace
}  // namespace Tarvex::Data::GridLineTest
