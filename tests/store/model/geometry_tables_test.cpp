#include "store/model/geometry_tables.h"

#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/axis.h"

namespace Tarvex::GeometryTablesTest {
namespace {

TEST(AxisZero, IsTheGlobalAxisInEveryModel) {
  CZelData const model;
  EXPECT_EQ(model.Axis(0), Data::CAxis());
  EXPECT_FALSE(model.AxisExist(0));
}

TEST(AxisZero, CannotBeStoredNorRemoved) {
  CZelData model;
  Data::CAxis const turned(L"", AxisType::Cartesian, {}, {0, 1, 0}, {0, 0, 1});
  EXPECT_THROW(model.SetAxis(0, turned), std::out_of_range);
  model.BlankAxis(0, 1);
  EXPECT_EQ(model.Axis(0), Data::CAxis());
}

}  // namespace
}  // namespace Tarvex::GeometryTablesTest
