// The table of members: children, locks, attachments. The operations that all tables share stand in
// registry_test.cpp.
#include "store/model/member_tables.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "store/model/undo_step.h"
#include "store/model/zel_data.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex::MemberTablesTest {
namespace {

using Data::CMember;
using Testing::MemberAt;
using Children = std::map<int, std::vector<int>>;

class MemberTable : public ::testing::Test {
 protected:
  MemberTable() {
    Testing::Grid(model, 3, 1);  // nodes 1 to 8, elements 1 to 3
    MemberAt(model, MembType::Slab, L"1 4 8 5");
    MemberAt(model, MembType::Beam, L"1 4");
  }
  CZelData model;
};

TEST_F(MemberTable, TakesAChildInPlaceOnce) {
  model.AddChildElement(1, 3, 0);
  model.AddChildElement(1, 2, 0);
  model.AddChildElement(1, 3, 0);
  model.AddChildElement(1, 3, 2);
  EXPECT_EQ(model.Member(1).ChildElements(), (Children{{0, {3, 2}}, {2, {3}}}));
  EXPECT_THROW(model.AddChildElement(9, 1, 0), std::out_of_range);
  EXPECT_THROW(model.AddChildElement(0, 1, 0), std::out_of_range);
}

TEST_F(MemberTable, DoesNotRegisterAnElementThatNamesItsParent) {
  auto element = model.Elem(1);
  element.SetParentMember({1, 0});
  model.SetElem(1, element);
  EXPECT_FALSE(model.Member(1).HasElements());
  EXPECT_EQ(model.ElemMember(1), 1);
}

TEST_F(MemberTable, LosesChildrenThatAreBlanked) {
  auto panel = Testing::Panel({1, 2, 3});
  model.SetLoadPanel(9, panel);
  for (int const n : {1, 2, 3, 9}) model.AddChildElement(1, n, 0);
  model.AddChildElement(2, 2, 4);
  model.BlankElem(2, 1);
  EXPECT_EQ(model.Member(1).ChildElements(), (Children{{0, {1, 3, 9}}}));
  EXPECT_EQ(model.Member(2).ChildElements(), (Children{}));
  model.BlankVariantElement(3, 100);
  EXPECT_EQ(model.Member(1).ChildElements(), (Children{{0, {1}}}));
  model.RemoveModule(CModule::Elem);
  EXPECT_FALSE(model.Member(1).HasElements());
}

TEST_F(MemberTable, KeepsAChildThatBecomesAPanelAndBack) {
  model.AddChildElement(1, 2, 0);
  auto const element = model.Elem(2);
  model.SetLoadPanel(2, Testing::Panel({2, 3, 7, 6}));
  EXPECT_EQ(model.Member(1).ChildElements(), (Children{{0, {2}}}));
  model.SetElem(2, element);
  EXPECT_EQ(model.Member(1).ChildElements(), (Children{{0, {2}}}));
}

TEST_F(MemberTable, KeepsChildrenOfARecordStoredUnderItsOwnNumber) {
  model.AddChildElement(1, 2, 0);
  auto copy = model.Member(1);
  copy.SetGroup(7);
  model.SetMember(1, copy);
  EXPECT_EQ(model.Member(1).ChildElements(), (Children{{0, {2}}}));
  EXPECT_EQ(model.Member(1).Group(), 7);
}

TEST_F(MemberTable, StoresARecordOfAnotherNumberWithoutChildren) {
  model.AddChildElement(1, 2, 0);
  model.SetMember(5, model.Member(1));
  EXPECT_FALSE(model.Member(5).HasElements());
  EXPECT_EQ(model.Member(1).ChildElements(), (Children{{0, {2}}}));
}

TEST_F(MemberTable, TakesTheChildrenOfARecordThatNeverWasStored) {
  CMember member(1, 1);
  member.AddChildElement(3, 1);
  model.SetMember(5, member);
  EXPECT_EQ(model.Member(5).ChildElements(), (Children{{1, {3}}}));
  model.BlankElem(3, 1);
  EXPECT_FALSE(model.Member(5).HasElements());
}

TEST_F(MemberTable, FollowsTheChildrenOfARecordThatIsStoredOver) {
  model.AddChildElement(1, 2, 0);
  model.BlankElem(9, 1);
  CMember other(1, 1);
  other.AddChildElement(3, 0);
  model.SetMember(1, other);
  model.BlankElem(2, 1);
  EXPECT_EQ(model.Member(1).ChildElements(), (Children{{0, {3}}}));
  model.BlankElem(3, 1);
  EXPECT_FALSE(model.Member(1).HasElements());
}

TEST_F(MemberTable, FollowsChildrenThroughUndoAndCopies) {
  model.AddChildElement(1, 2, 0);
  CZelData copy(model);
  {
    CUndoStep step(model, false);
    model.AddChildElement(2, 3, 0);
    model.BlankElem(2, 1);
    EXPECT_FALSE(model.Member(1).HasElements());
  }
  EXPECT_EQ(model.Member(1).ChildElements(), (Children{{0, {2}}}));
  EXPECT_FALSE(model.Member(2).HasElements());
  model.BlankElem(2, 1);
  EXPECT_FALSE(model.Member(1).HasElements());
  EXPECT_EQ(copy.Member(1).ChildElements(), (Children{{0, {2}}}));
  copy.BlankElem(2, 1);
  EXPECT_FALSE(copy.Member(1).HasElements());
}

TEST_F(MemberTable, KeepsMembersThatAreLocked) {
  model.LockMember(1, true);
  model.BlankMember(1, 2);
  EXPECT_TRUE(model.MemberExist(1));
  EXPECT_FALSE(model.MemberExist(2));
  model.LockMember(1, false);
  model.BlankMember(1, 1);
  EXPECT_FALSE(model.MemberExist(1));
  EXPECT_THROW(model.LockMember(1, true), std::out_of_range);
}

TEST_F(MemberTable, IsCountedByItsKind) {
  EXPECT_EQ(model.NumEnt(SelMember), 2);
  EXPECT_EQ(model.HighestEnt(SelMember), 2);
  EXPECT_TRUE(model.EntExist({SelMember, 2}));
  EXPECT_FALSE(model.EntExist({SelMember, 3}));
  EXPECT_TRUE(model.RecordExist(CModule::Member, 1));
}

TEST_F(MemberTable, IsAttachedToTheNodesOfItsTopology) {
  using Set = boost::container::flat_set<int>;
  EXPECT_EQ(model.Node(1).AttachedEnt(SelMember), (Set{1, 2}));
  EXPECT_EQ(model.Node(8).AttachedEnt(SelMember), (Set{1}));
  EXPECT_TRUE(model.Node(2).AttachedEnt(SelMember).empty());
  MemberAt(model, MembType::Beam, L"1 arc 2 3");
  EXPECT_EQ(model.Node(2).AttachedEnt(SelMember), (Set{3}));
  model.SetEntTopo({SelMember, 3}, 1, 8);
  EXPECT_TRUE(model.Node(2).AttachedEnt(SelMember).empty());
  EXPECT_EQ(model.Node(8).AttachedEnt(SelMember), (Set{1, 3}));
  EXPECT_EQ(model.Member(3).Topo().String(), L"1 arc 8 3");
  model.BlankMember(1, 1);
  EXPECT_EQ(model.Node(8).AttachedEnt(SelMember), (Set{3}));
  EXPECT_EQ(model.Node(8).AttachedEnt(SelElement), (Set{3}));
}

TEST_F(MemberTable, IsAttachedToANodeThatComesLaterAndInOnePassAfterAHold) {
  using Set = boost::container::flat_set<int>;
  MemberAt(model, MembType::Beam, L"1 20");
  Testing::NodeAt(model, 9, 9, 9);
  model.SetNode(20, model.Node(1));
  EXPECT_EQ(model.Node(20).AttachedEnt(SelMember), (Set{3}));
  model.rebuildHold = true;
  MemberAt(model, MembType::Beam, L"20 2");
  EXPECT_EQ(model.Node(20).AttachedEnt(SelMember), (Set{3}));
  model.rebuildHold = false;
  EXPECT_EQ(model.Node(20).AttachedEnt(SelMember), (Set{3, 4}));
  EXPECT_EQ(model.Node(2).AttachedEnt(SelMember), (Set{4}));
}

TEST_F(MemberTable, SetEntTopoRefusesWhatHasNoSuchPlace) {
  EXPECT_THROW(model.SetEntTopo({SelMember, 9}, 0, 1), std::out_of_range);
  EXPECT_THROW(model.SetEntTopo({SelMember, 2}, 2, 1), std::out_of_range);
  EXPECT_THROW(model.SetEntTopo({SelNode, 1}, 0, 1), std::out_of_range);
}

TEST_F(MemberTable, SetEntOffsetIsForElementsAndMembers) {
  model.SetEntOffset({SelMember, 2}, {1, 2, 3, 4});
  model.SetEntOffset({SelElement, 1}, {0, 0, 0, 5});
  EXPECT_EQ(model.EntOffset({SelMember, 2}), Data::COffset(1, 2, 3, 4));
  EXPECT_EQ(model.EntOffset({SelElement, 1}), Data::COffset(0, 0, 0, 5));
  EXPECT_EQ(model.EntOffset({SelMember, 9}), Data::COffset());
  EXPECT_THROW(model.SetEntOffset({SelNode, 1}, {}), std::out_of_range);
  EXPECT_THROW(model.SetEntOffset({SelMember, 9}, {}), std::out_of_range);
}

/// What the index of children finds, by a walk over all members.
void ExpectChildrenExist(CZelData const& model) {
  for (auto const& [n, member] : model.Member())
    for (auto const& [replica, elements] : member.ChildElements()) {
      EXPECT_FALSE(elements.empty());
      for (int const child : elements) EXPECT_TRUE(model.VariantElementExist(child)) << child;
    }
}

TEST(MemberTableProperty, NeverListsABlankedElementWhateverComesBefore) {
  Testing::ForEachRandomModel(40, [](CZelData& model, Testing::Random& random) {
    for (int i = 0; i < 60; ++i) {
      int const element = random.Int(1, model.HighestElem() + 1);
      int const member = random.Int(1, model.HighestMember() + 1);
      int const action = random.Int(0, 5);
      if (action == 0) model.BlankVariantElement(element, random.Int(1, 3));
      if (action == 1 && model.MemberExist(member) && model.ElemExist(element))
        model.AddChildElement(member, element, random.Int(0, 2));
      if (action == 2 && model.MemberExist(member))
        model.SetMember(random.Int(1, 30), model.Member(member));
      if (action == 3) model.BlankMember(member, 1);
      if (action == 4 && model.MemberExist(member)) {
        CMember fresh(1, 1);
        if (model.ElemExist(element)) fresh.AddChildElement(element, 0);
        model.SetMember(member, fresh);
      }
      if (action == 5) {
        CUndoStep step(model, false);
        model.BlankVariantElement(element, 5);
        if (random.Percent(50)) step.Accept();
      }
      ExpectChildrenExist(model);
    }
    EXPECT_TRUE(Testing::AttachmentsFollowTopology(model));
  });
}

}  // namespace
}  // namespace Tarvex::MemberTablesTest
