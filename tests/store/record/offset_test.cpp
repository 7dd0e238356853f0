#include "store/record/offset.h"

#include <gtest/gtest.h>

#include "tests/support/print.h"
#include "tests/support/record_fields.h"

namespace Tarvex::Data::OffsetTest {
namespace {

TEST(Offset, IsNothingAtFirst) {
  COffset const offset;
  EXPECT_FALSE(offset.IsOffset());
  EXPECT_EQ(offset, COffset(0, 0, 0, 0));
  for (int const end : {0, 1}) {
    EXPECT_EQ(offset.AutomaticOffset(end), AutoOffset::Off);
    EXPECT_EQ(offset.Type(end), OffsetType::Given);
  }
}

TEST(Offset, TakesBothAxialOffsetsThenYAndZ) {
  COffset const offset(1, 2, 3, 4);
  EXPECT_EQ(offset.X1(), 1);
  EXPECT_EQ(offset.X2(), 2);
  EXPECT_EQ(offset.X(0), 1);
  EXPECT_EQ(offset.X(1), 2);
  EXPECT_EQ(offset.Axial(0), 1);
  EXPECT_EQ(offset.Axial(1), 2);
  EXPECT_EQ(offset.X_user(0), 1);
  EXPECT_EQ(offset.X_user(1), 2);
  EXPECT_EQ(offset.Y(), 3);
  EXPECT_EQ(offset.Z(), 4);
}

TEST(Offset, PullsAPositiveAxialOffsetIntoTheEntityAtEitherEnd) {
  COffset const offset(1, 2, 3, 4);
  EXPECT_EQ(offset.Vector(0), (Vec3<double>{1, 3, 4}));
  EXPECT_EQ(offset.Vector(1), (Vec3<double>{-2, 3, 4}));
}

TEST(Offset, SetsEachEnd) {
  COffset offset;
  offset.SetX(0, 1);
  offset.SetX(1, 2);
  EXPECT_EQ(offset, COffset(1, 2, 0, 0));
  offset.SetAxial(0, 3);
  offset.SetAxial(1, 4);
  EXPECT_EQ(offset, COffset(3, 4, 0, 0));
  offset.SetX1(5);
  offset.SetX2(6);
  EXPECT_EQ(offset, COffset(5, 6, 0, 0));
  offset.SetAuto(1, AutoOffset::On);
  EXPECT_EQ(offset.AutomaticOffset(0), AutoOffset::Off);
  EXPECT_EQ(offset.AutomaticOffset(1), AutoOffset::On);
  offset.SetType(0, OffsetType::Derived);
  EXPECT_EQ(offset.Type(0), OffsetType::Derived);
  EXPECT_EQ(offset.Type(1), OffsetType::Given);
}

TEST(Offset, IsAnOffsetByAnyComponentAndAnyAutomaticEnd) {
  EXPECT_TRUE(COffset(1, 0, 0, 0).IsOffset());
  EXPECT_TRUE(COffset(0, 1, 0, 0).IsOffset());
  EXPECT_TRUE(COffset(0, 0, -1, 0).IsOffset());
  EXPECT_TRUE(COffset(0, 0, 0, 1e-12).IsOffset());
  EXPECT_FALSE(COffset(-0.0, 0, 0, 0).IsOffset());
  for (int const end : {0, 1}) {
    COffset offset;
    offset.SetType(end, OffsetType::Derived);
    EXPECT_FALSE(offset.IsOffset());
    offset.SetAuto(end, AutoOffset::On);
    EXPECT_TRUE(offset.IsOffset());
  }
}

TEST(Offset, ComparesEveryField) {
  Testing::ExpectFields<COffset>({{"x1", [](COffset& o) { o.SetX1(-0.0); }},
                                  {"x2", [](COffset& o) { o.SetX2(1); }},
                                  {"y", [](COffset& o) { o.SetY(1); }},
                                  {"z", [](COffset& o) { o.SetZ(1); }},
                                  {"auto", [](COffset& o) { o.SetAuto(1, AutoOffset::On); }},
                                  {"type", [](COffset& o) { o.SetType(1, OffsetType::Derived); }}});
}

}  // namespace
}  // namespace Tarvex::Data::OffsetTest
