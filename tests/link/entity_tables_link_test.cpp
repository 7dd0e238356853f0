// Tables of nodes, elements and load panels, as an application links them.
#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/node.h"
#include "tests/link/linked.h"
#include "tests/support/builders.h"

namespace Tarvex::EntityTablesLinkTest {
namespace {

using Testing::AreLinked;
using Testing::Member;
using T = EntityTables;
template <class Record>
using Table = tarvex_unordered_map<unsigned int, Record>;

TEST(EntityTablesLink, NodeOperations) {
  EXPECT_TRUE(AreLinked(&T::NodeExist, Member<Data::CNode const&(int) const>(&T::Node),
                        Member<Table<Data::CNode> const&() const>(&T::Node), &T::StoredNodes,
                        &T::HighestNode, &T::SetNode, &T::_SetNode, &T::BlankNode, &T::CreateNode,
                        Member<void(int, Vec3<double> const&)>(&T::SetNodeCoor), &T::SetNodeAxis,
                        &T::SetNodeRestraint, &T::SetNodeSid,
                        Member<Vec3<double> const&(int) const>(&T::NodeCoor), &T::NearestNode,
                        &T::InitNodalUseElem));
  EXPECT_TRUE(AreLinked(
      Member<Vec3<double>(int, Data::CUnit const&, Data::CAxis const&) const>(&T::NodeCoor),
      Member<void(int, Data::CUnit const&, Data::CAxis const&, Vec3<double> const&)>(
          &T::SetNodeCoor)));
  EXPECT_TRUE(AreLinked(
      Member<std::vector<int>(Vec3<double> const&, double) const>(&T::NodesAroundPoint),
      Member<void(Vec3<double> const&, std::vector<int>&, double) const>(&T::NodesAroundPoint)));
  CZelData model;
  model.CreateNode(3, {1, 2, 3}, 0, Vbool6());
  model.SetNodeCoor(3, {4, 5, 6});
  EXPECT_TRUE(model.NodeExist(3));
  EXPECT_EQ(model.NodeCoor(3).y, 5);
  EXPECT_EQ(model.NearestNode({4, 5, 6}, 0), 3);
  EXPECT_EQ(model.Node().size(), 1u);
}

TEST(EntityTablesLink, ElementOperations) {
  EXPECT_TRUE(AreLinked(&T::ElemExist, Member<Data::CElement const&(int) const>(&T::Elem),
                        Member<Table<Data::CElement> const&() const>(&T::Elem), &T::HighestElem,
                        &T::SetElem, &T::BlankElem, &T::CreateElem, &T::SetElemTopo,
                        &T::SetElemType, &T::SetElemProperty, &T::SetElemGroup, &T::SetElemDummy,
                        &T::SetElemBeta, &T::SetElemOrientNode, &T::SetElemConnect,
                        &T::SetElemOffset, &T::SetElemSid, &T::LockElem));
  CZelData model;
  model.CreateElem(2, ElementType::Tri3, 4, 5);
  model.SetElemTopo(2, 1, 9);
  EXPECT_EQ(model.HighestElem(), 2);
  EXPECT_EQ(model.Elem(2).Topo(1), 9);
  model.BlankElem(1, 5);
  EXPECT_FALSE(model.ElemExist(2));
}

TEST(EntityTablesLink, LoadPanelAndVariantOperations) {
  EXPECT_TRUE(AreLinked(&T::LoadPanelExist, &T::LoadPanel, &T::LoadPanels, &T::HighestLoadPanel,
                        &T::SetLoadPanel, &T::BlankLoadPanel));
  EXPECT_TRUE(AreLinked(&T::VariantElementExist, &T::VariantElement, &T::SetVariantElement,
                        &T::BlankVariantElement));
  CZelData model;
  model.SetLoadPanel(6, Testing::Panel({1, 2, 3}));
  model.SetVariantElement(7, Testing::Element(ElementType::Beam, {1, 2}));
  EXPECT_EQ(model.LoadPanels().size(), 1u);
  EXPECT_EQ(model.HighestLoadPanel(), 6);
  EXPECT_TRUE(model.VariantElement(6)->IsLoadPanel());
  model.BlankVariantElement(6, 2);
  EXPECT_FALSE(model.VariantElementExist(6) || model.VariantElementExist(7));
}

}  // namespace
}  // namespace Tarvex::EntityTablesLinkTest
