// The tools of slabs, rigid constraints and disconnection, as an application links them.
#include <gtest/gtest.h>

#include <utility>

#include "store/model/zel_data.h"
#include "store/record/block.h"
#include "store/record/element.h"
#include "store/record/member.h"
#include "tarvex/tarvex.h"
#include "tests/link/linked.h"
#include "tests/support/builders.h"

namespace Tarvex::ConnectionLinkTest {
namespace {

using Testing::AreLinked;

TEST(ConnectionLink, ConnectSlabIsMadeCopiedMovedConfiguredAndRun) {
  EXPECT_TRUE(AreLinked(&CConnectSlab::SetSet, &CConnectSlab::SetMode, &CConnectSlab::SetRadius,
                        &CConnectSlab::SetOverwrite, &CConnectSlab::Do, &CConnectSlab::NumItem,
                        &CConnectSlab::PassedOver));
  CZelData model;
  Testing::Grid(model, 1, 1);
  model.SetElem(2, Testing::Element(ElementType::Beam, {Testing::NodeAt(model, 0, 0, -3), 1}));
  CConnectSlab tool(model);
  Util::CSet set(SelElement);
  set.AddTo(2);
  tool.SetSet(set);
  tool.SetMode(ConnectMode::WithinRadius);
  tool.SetRadius(1);
  tool.SetOverwrite(true);
  CConnectSlab copy(tool);
  CConnectSlab moved(std::move(copy));
  EXPECT_TRUE(moved.Do());
  EXPECT_EQ(moved.NumItem(1), 2);
  EXPECT_EQ(model.HighestRigid(), 1);
}

TEST(ConnectionLink, MergeRigidGuardsItsModel) {
  EXPECT_TRUE(AreLinked(&MergeRigid::Merge, &MergeRigid::CheckRigid, &MergeRigid::ListsOverlap,
                        &MergeRigid::DoMerge, &MergeRigid::UpdateRigids));
  CZelData model;
  Testing::Grid(model, 1, 1);
  Data::CEntList const stages(SelNone, Data::CEntList::All());
  for (int n = 1; n <= 2; ++n)
    model.SetRigid(n, {L"", Data::LinkType::All, n, Data::CEntList(SelNode, L"3"), stages});
  CZelData const before(model);
  {
    MergeRigid merged(model);
    merged.Merge(0);
    EXPECT_FALSE(model == before);
    auto first = before.Rigid(1);
    auto second = before.Rigid(2);
    EXPECT_TRUE(merged.CheckRigid(first, 0));
    EXPECT_TRUE(merged.ListsOverlap(first.ConstrainedNodes(), second.ConstrainedNodes()));
    merged.DoMerge(first, second);
  }
  EXPECT_TRUE(model == before);
  {
    MergeRigid merged(model);
    merged.UpdateRigids({});
    EXPECT_EQ(model.HighestRigid(), 0);
  }
  EXPECT_TRUE(model == before);
}

TEST(ConnectionLink, DisconnectIsMadeCopiedMovedConfiguredAndRun) {
  EXPECT_TRUE(AreLinked(
      &CDisconnect::DisconnectNode, &CDisconnect::DisconnectEntity, &CDisconnect::NodesInSet,
      &CDisconnect::NodesOnEntities, Testing::Member<void(int)>(&CDisconnect::JointSpring),
      &CDisconnect::CreateNode, &CDisconnect::CreateJoint, &CDisconnect::CreateSpring,
      &CDisconnect::NodeOnElement, &CDisconnect::NodeOnMember, &CDisconnect::SetCreateJoint,
      &CDisconnect::SetCreateSpring, &CDisconnect::SetFullDisconnect));
  CZelData model;
  Testing::Grid(model, 2, 1);
  CDisconnect tool(model);
  tool.SetCreateJoint(true);
  CDisconnect copy(tool);
  CDisconnect moved(std::move(copy));
  Util::CTopoSet nodes(SelNode);
  nodes.AddTo(2, -1);
  EXPECT_TRUE(moved.DisconnectNode(SelElement, &nodes));
  EXPECT_EQ(model.HighestJoint(), 1);
  EXPECT_EQ(moved.NodeOnElement(7, 2), 0);
}

/// Reaches what applications may use by deriving.
class EdgeSteps : public MemberEdges {
 public:
  using MemberEdges::MemberEdges;
  static bool HasLinkedSteps() {
    return AreLinked(Testing::Member<void(int, Data::CMember const&)>(&EdgeSteps::ReleaseEdges),
                     &EdgeSteps::EdgeNodes, &EdgeSteps::FindEdges, &EdgeSteps::FindEdgeNodes,
                     &EdgeSteps::FindAttachedNodes);
  }
};

TEST(ConnectionLink, MemberEdgesServesDerivedTools) {
  EXPECT_TRUE(EdgeSteps::HasLinkedSteps());
  CZelData model;
  MemberEdges tool(model);
  MemberEdges copy(tool);
  MemberEdges moved(std::move(copy));
  EXPECT_THROW(moved.ReleaseEdges(1), std::invalid_argument);
}

TEST(ConnectionLink, FreeFunctionsWork) {
  EXPECT_TRUE(AreLinked(&NodesChain, &ExplodeBlocks));
  CZelData model;
  Testing::Frame(model, 1, 2);  // columns 1 (1 3), 2 (2 4), 3 (3 5), 4 (4 6)
  EXPECT_EQ(NodesChain(model, {3, 1}), (std::deque<int>{1, 3, 5}));
  Testing::MemberAt(model, MembType::Generic, L"1 3");
  model.SetBlock(
      1, Data::CBlock(L"", {1}, Data::CReplica(std::vector{Data::ReplicaStep{1, {6, 0, 0}}})));
  Data::CEntList members(SelMember, L"");
  ExplodeBlocks(model, Data::CEntList(SelNone, L"1"), members);
  EXPECT_EQ(model.Member(2).Topo().String(), L"2 4");
}

}  // namespace
}  // namespace Tarvex::ConnectionLinkTest
