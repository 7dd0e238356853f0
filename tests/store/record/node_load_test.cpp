#include "store/record/node_load.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::NodeLoadTest {
namespace {

TEST(NodeLoad, IsNoLoadOfNoNodesAlongXAtFirst) {
  CNodeLoad const load;
  EXPECT_EQ(load.LoadCase(), 0);
  EXPECT_TRUE(load.LoadedEntities().IsEmpty());
  EXPECT_EQ(load.LoadedEntities().TypeOf(), SelNode);
  EXPECT_EQ(load.Axis(), 0);
  EXPECT_EQ(load.GetDirection(), Direction::X);
  EXPECT_EQ(load.Value(), 0);
  EXPECT_EQ(load.Module(), CModule::NodeLoad);
}

TEST(NodeLoad, IsGivenByNodesCaseAxisDirectionValueAndTable) {
  CNodeLoad const load(CEntList(SelNode, L"1 to 5"), 3, 4, Direction::ZZ, -2.5,
                       CModule::Settlement);
  EXPECT_EQ(load.LoadedEntities().String(), L"1 to 5");
  EXPECT_EQ(load.LoadCase(), 3);
  EXPECT_EQ(load.Axis(), 4);
  EXPECT_EQ(load.GetDirection(), Direction::ZZ);
  EXPECT_EQ(load.Value(), -2.5);
  EXPECT_EQ(load.Module(), CModule::Settlement);
}

TEST(NodeLoad, TakesListsOfNodesAndNoOthers) {
  CNodeLoad load;
  load.SetLoadedEntities(CEntList(L"name", SelNode, L"7"));
  EXPECT_EQ(load.LoadedEntities().String(), L"7");
  EXPECT_EQ(load.LoadedEntities().Name(), L"");
  EXPECT_THROW(load.SetLoadedEntities(CEntList(SelElement, L"8")), std::invalid_argument);
  EXPECT_EQ(load.LoadedEntities().String(), L"7");
  load.SetLoadedEntities(CEntList(SelElement, CString()));
  EXPECT_TRUE(load.LoadedEntities().IsEmpty());
  EXPECT_EQ(load.LoadedEntities().TypeOf(), SelNode);
}

TEST(NodeLoad, ComparesEveryFieldAndNotItsTable) {
  Testing::ExpectStoredFields<CNodeLoad>(
      {{"sid", [](CNodeLoad& r) { r.SetSid(L"s"); }},
       {"loadCase", [](CNodeLoad& r) { r.SetLoadCase(2); }},
       {"loadedEntities",
        [](CNodeLoad& r) { r.SetLoadedEntities(CEntList(SelNode, CString(L"1"))); }},
       {"axis", [](CNodeLoad& r) { r.SetAxis(2); }},
       {"direction", [](CNodeLoad& r) { r.SetDirection(Direction::Y); }},
       {"value", [](CNodeLoad& r) { r.SetValue(2); }}});
  CNodeLoad other;
  other.SetModule(CModule::Settlement);
  EXPECT_EQ(other, CNodeLoad());
}

}  // namespace
}  // namespace Tarvex::Data::NodeLoadTest
