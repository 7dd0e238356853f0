// Tables of axes and saved lists, as an application links them.
#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/axis.h"
#include "store/record/ent_list.h"
#include "tests/link/linked.h"

namespace Tarvex::GeometryTablesLinkTest {
namespace {

using Testing::AreLinked;
using Testing::Member;
using T = GeometryTables;
template <class Record>
using Table = tarvex_unordered_map<unsigned int, Record>;

TEST(GeometryTablesLink, AxisOperations) {
  EXPECT_TRUE(AreLinked(&T::AxisExist, Member<Data::CAxis const&(int) const>(&T::Axis),
                        Member<Table<Data::CAxis> const&() const>(&T::Axis), &T::HighestAxis,
                        &T::SetAxis, &T::BlankAxis));
  CZelData model;
  model.SetAxis(2, Data::CAxis(L"a", AxisType::Cartesian, {0, 0, 0}, {0, 1, 0}, {1, 0, 0}));
  EXPECT_EQ(model.HighestAxis(), 2);
  EXPECT_EQ(model.Axis(2).XAxis().y, 1);
  EXPECT_EQ(model.Axis().size(), 1u);
  model.BlankAxis(2, 1);
  EXPECT_FALSE(model.AxisExist(2));
}

TEST(GeometryTablesLink, ListOperations) {
  EXPECT_TRUE(AreLinked(&T::ListExist, Member<Data::CEntList const&(int) const>(&T::List),
                        Member<Table<Data::CEntList> const&() const>(&T::List), &T::HighestList,
                        &T::SetList, &T::BlankList));
  CZelData model;
  model.SetList(3, Data::CEntList(L"columns", SelElement, L"1 2"));
  EXPECT_EQ(model.HighestList(), 3);
  EXPECT_EQ(model.List(3).NumWord(), 2);
  EXPECT_EQ(model.List().size(), 1u);
  model.BlankList(3, 1);
  EXPECT_FALSE(model.ListExist(3));
}

}  // namespace
}  // namespace Tarvex::GeometryTablesLinkTest
