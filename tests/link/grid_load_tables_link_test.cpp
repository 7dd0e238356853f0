// Tables of loads on grids, as an application links them.
#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/grid_loads.h"
#include "tests/link/linked.h"

namespace Tarvex::GridLoadTablesLinkTest {
namespace {

using Testing::AreLinked;
using Testing::Member;
using T = GridLoadTables;

TEST(GridLoadTablesLink, GridPointLoadOperations) {
  using R = Data::CGridPointLoad;
  EXPECT_TRUE(AreLinked(
      &T::GridPointLoadExist, Member<R const&(int) const>(&T::GridPointLoad),
      Member<std::vector<R> const&() const>(&T::GridPointLoad), &T::HighestGridPointLoad,
      Member<void(int, R const&, SidMode)>(&T::SetGridPointLoad),
      Member<void(int, R const&, bool, SidMode)>(&T::SetGridPointLoad), &T::DeleteGridPointLoad));
  CZelData model;
  model.SetGridPointLoad(1, R());
  EXPECT_TRUE(model.GridPointLoadExist(1));
  EXPECT_EQ(model.HighestGridPointLoad(), 1);
  EXPECT_EQ(&model.GridPointLoad()[0], &model.GridPointLoad(1));
  model.DeleteGridPointLoad(1, 1);
  EXPECT_FALSE(model.GridPointLoadExist(1));
}

TEST(GridLoadTablesLink, GridLineLoadOperations) {
  using R = Data::CGridLineLoad;
  EXPECT_TRUE(AreLinked(
      &T::GridLineLoadExist, Member<R const&(int) const>(&T::GridLineLoad),
      Member<std::vector<R> const&() const>(&T::GridLineLoad), &T::HighestGridLineLoad,
      Member<void(int, R const&, SidMode)>(&T::SetGridLineLoad),
      Member<void(int, R const&, bool, SidMode)>(&T::SetGridLineLoad), &T::DeleteGridLineLoad));
  CZelData model;
  model.SetGridLineLoad(1, R());
  EXPECT_TRUE(model.GridLineLoadExist(1));
  EXPECT_EQ(model.HighestGridLineLoad(), 1);
  EXPECT_EQ(&model.GridLineLoad()[0], &model.GridLineLoad(1));
  model.DeleteGridLineLoad(1, 1);
  EXPECT_FALSE(model.GridLineLoadExist(1));
}

TEST(GridLoadTablesLink, GridAreaLoadOperations) {
  using R = Data::CGridAreaLoad;
  EXPECT_TRUE(AreLinked(
      &T::GridAreaLoadExist, Member<R const&(int) const>(&T::GridAreaLoad),
      Member<std::vector<R> const&() const>(&T::GridAreaLoad), &T::HighestGridAreaLoad,
      Member<void(int, R const&, SidMode)>(&T::SetGridAreaLoad),
      Member<void(int, R const&, bool, SidMode)>(&T::SetGridAreaLoad), &T::DeleteGridAreaLoad));
  CZelData model;
  model.SetGridAreaLoad(1, R());
  EXPECT_TRUE(model.GridAreaLoadExist(1));
  EXPECT_EQ(model.HighestGridAreaLoad(), 1);
  EXPECT_EQ(&model.GridAreaLoad()[0], &model.GridAreaLoad(1));
  model.DeleteGridAreaLoad(1, 1);
  EXPECT_FALSE(model.GridAreaLoadExist(1));
}

}  // namespace
}  // namespace Tarvex::GridLoadTablesLinkTest
