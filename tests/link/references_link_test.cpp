// References, load mapping, split and connect, as an application links them.
#include <gtest/gtest.h>

#include <utility>

#include "store/model/zel_data.h"
#include "tarvex/tarvex.h"
#include "tests/link/linked.h"
#include "tests/support/builders.h"

namespace Tarvex::ReferencesLinkTest {
namespace {

using Testing::AreLinked;

/// Beams 1 and 2 that cross at (0, 0, 0).
CZelData Cross() {
  CZelData model;
  Testing::BeamAt(model, {-5, 0, 0}, {5, 0, 0});
  Testing::BeamAt(model, {0, -5, 0}, {0, 5, 0});
  return model;
}

TEST(ReferencesLink, ManagerIsMadeCopiedMovedRunAndDestroyed) {
  EXPECT_TRUE(AreLinked(&CDataMgr::ReplaceNodeRef, &CDataMgr::CopyNodeRef,
                        &CDataMgr::ReplaceElemRef, &CDataMgr::CopyElemRef, &CDataMgr::Map2DLoading,
                        &CDataMgr::Map3DLoading,
                        Testing::Member<bool(SelType, CDataMgr::NumberLists const&) const>(
                            &CDataMgr::MapBeamLoading)));
  auto model = Cross();
  CDataMgr const manager(model);
  CDataMgr copy(manager);
  CDataMgr const moved(std::move(copy));
  EXPECT_TRUE(moved.ReplaceNodeRef({{4, {2}}}, true));
  EXPECT_EQ(model.Elem(2).Topo(1), 2);
  EXPECT_FALSE(moved.CopyNodeRef({{1, 2}}, true, true, true, true));
  EXPECT_FALSE(moved.ReplaceElemRef({{1, {2}}}, true));
  EXPECT_FALSE(moved.CopyElemRef({{1, 2}}, true, true, true));
  EXPECT_TRUE(moved.MapBeamLoading(SelElement, {{1, {2}}}));
  EXPECT_TRUE(moved.Map2DLoading({}));
  EXPECT_TRUE(moved.Map3DLoading({}));
}

TEST(ReferencesLink, SplitIsMadeCopiedMovedConfiguredRunAndDestroyed) {
  EXPECT_TRUE(AreLinked(&CSplit1dEl::Do, &CSplit1dEl::SplitNode, &CSplit1dEl::IsAllLoadsMapped,
                        &CSplit1dEl::IsSomeSplitsSkipped, &CSplit1dEl::SetCoincidenceTol,
                        &CSplit1dEl::SetReplaceElemRef));
  auto model = Cross();
  CSplit1dEl tool(model);
  tool.SetCoincidenceTol(0.1);
  tool.SetReplaceElemRef(true);
  CSplit1dEl copy(tool);
  CSplit1dEl moved(std::move(copy));
  std::vector<int> created;
  EXPECT_TRUE(moved.Do({SelElement, 1}, 4, false, created));
  EXPECT_EQ(moved.SplitNode(), 5);
  EXPECT_TRUE(moved.IsAllLoadsMapped());
  EXPECT_FALSE(moved.IsSomeSplitsSkipped());
  EXPECT_EQ(tool.SplitNode(), 0);
}

TEST(ReferencesLink, ConnectIsMadeCopiedMovedConfiguredRunAndDestroyed) {
  EXPECT_TRUE(AreLinked(&CConnect1dEl::Do, &CConnect1dEl::SetEntType, &CConnect1dEl::SetTol,
                        &CConnect1dEl::SetCoincidenceTol, &CConnect1dEl::SetReplaceElemRef,
                        &CConnect1dEl::SetSet, &CConnect1dEl::IsAllLoadsMapped,
                        &CConnect1dEl::IsSomeSplitsSkipped));
  auto model = Cross();
  CConnect1dEl tool(model);
  Util::CSet set(SelElement);
  for (int const n : {1, 2}) set.AddTo(n);
  tool.SetEntType(SelElement);
  tool.SetSet(set);
  tool.SetTol(0.01, 0.01);
  tool.SetCoincidenceTol(0.01);
  tool.SetReplaceElemRef(true);
  CConnect1dEl copy(tool);
  CConnect1dEl moved(std::move(copy));
  EXPECT_TRUE(moved.Do());
  EXPECT_TRUE(moved.IsAllLoadsMapped());
  EXPECT_FALSE(moved.IsSomeSplitsSkipped());
  EXPECT_EQ(model.HighestElem(), 6);
}

}  // namespace
}  // namespace Tarvex::ReferencesLinkTest
