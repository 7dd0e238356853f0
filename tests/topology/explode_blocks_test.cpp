// Blocks turned into members of their own.
#include <gtest/gtest.h>

#include "store/model/list_expansion.h"
#include "store/model/registry.h"
#include "store/model/undo_step.h"
#include "store/model/zel_data.h"
#include "store/record/block.h"
#include "store/record/element.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/spec.h"
#include "tarvex/coincidence.h"
#include "tarvex/disconnect.h"
#include "tarvex/renumber.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex::ExplodeBlocksTest {
namespace {

using Data::CBlock;
using Data::CEntList;
using Data::CReplica;
using Testing::IsUnchanged;
using Testing::MemberAt;
using Testing::NodeAt;
using Testing::Random;

void SetTolerance(CZelData& model, double tolerance) {
  auto spec = model.Spec();
  spec.SetGenTol(TolType::Coincidence, tolerance);
  model.SetSpec(spec);
}

void AddBlock(CZelData& model, std::vector<int> const& members, int count,
              Vec3<double> const& offset) {
  model.SetBlock(model.HighestBlock() + 1, CBlock(L"", members, CReplica({{count, offset}})));
}

std::wstring TopoOf(CZelData const& model, int member) {
  return model.Member(member).Topo().String().Str();
}

/// Explodes the blocks of a list. @return the members that want elements.
std::wstring Explode(CZelData& model, wchar_t const* blocks = L"all") {
  CEntList members(SelMember, L"");
  ExplodeBlocks(model, CEntList(SelNone, CString(blocks)), members);
  return members.String().Str();
}

/// Member 1, a column on nodes 1 and 2 of height 3.
CZelData Column() {
  CZelData model;
  NodeAt(model, 0, 0, 0);
  NodeAt(model, 0, 0, 3);
  MemberAt(model, MembType::Column, L"1 2");
  return model;
}

/// Member 1, a beam on nodes 1 and 2 of length 6.
CZelData Beam() {
  CZelData model;
  NodeAt(model, 0, 0, 0);
  NodeAt(model, 6, 0, 0);
  MemberAt(model, MembType::Beam, L"1 2");
  return model;
}

TEST(ExplodeBlocks, CopiesEachMemberToEachOffsetAndRemovesTheBlock) {
  auto model = Column();
  AddBlock(model, {1}, 2, {6, 0, 0});
  EXPECT_EQ(Explode(model), L"");
  EXPECT_EQ(model.HighestMember(), 3);
  EXPECT_EQ(TopoOf(model, 1), L"1 2");
  EXPECT_EQ(TopoOf(model, 2), L"3 4");
  EXPECT_EQ(TopoOf(model, 3), L"5 6");
  EXPECT_EQ(model.NodeCoor(3), (Vec3<double>{6, 0, 0}));
  EXPECT_EQ(model.NodeCoor(4), (Vec3<double>{6, 0, 3}));
  EXPECT_EQ(model.NodeCoor(5), (Vec3<double>{12, 0, 0}));
  EXPECT_EQ(model.NodeCoor(6), (Vec3<double>{12, 0, 3}));
  EXPECT_EQ(model.Member(3).Type(), MembType::Column);
  EXPECT_FALSE(model.BlockExist(1));
}

TEST(ExplodeBlocks, FusesTheCopiesWithWhatStandsThereAndWithEachOther) {
  auto model = Beam();
  AddBlock(model, {1}, 2, {6, 0, 0});
  Explode(model);
  // New: 3 (6), 4 (12) and 5 (12), 6 (18); 3 stands on 2 and 5 on 4.
  EXPECT_EQ(TopoOf(model, 2), L"2 4");
  EXPECT_EQ(TopoOf(model, 3), L"4 6");
  EXPECT_FALSE(model.NodeExist(3));
  EXPECT_FALSE(model.NodeExist(5));
}

TEST(ExplodeBlocks, LeavesThemApartWithAToleranceOfZero) {
  auto model = Beam();
  AddBlock(model, {1}, 2, {6, 0, 0});
  SetTolerance(model, 0);
  Explode(model);
  EXPECT_EQ(TopoOf(model, 2), L"3 4");
  EXPECT_EQ(TopoOf(model, 3), L"5 6");
  EXPECT_EQ(model.HighestNode(), 6);
}

TEST(ExplodeBlocks, FusesWithinTheModelsTolerance) {
  for (auto const& [tolerance, topology] : {std::pair(0.01, L"2 4"), std::pair(0.0001, L"3 4")}) {
    auto model = Beam();
    AddBlock(model, {1}, 1, {6.001, 0, 0});
    SetTolerance(model, tolerance);
    Explode(model);
    EXPECT_EQ(TopoOf(model, 2), topology);
  }
}

TEST(ExplodeBlocks, DoesNotFuseNodesThatStoodTogetherBefore) {
  auto model = Beam();
  NodeAt(model, 0, 0, 0);
  AddBlock(model, {1}, 1, {0, 6, 0});
  Explode(model);
  EXPECT_TRUE(model.NodeExist(1));
  EXPECT_TRUE(model.NodeExist(3));
}

TEST(ExplodeBlocks, TellsTheCopiesOfMembersThatHaveElements) {
  auto model = Column();
  MemberAt(model, MembType::Column, L"2 1");
  model.SetElem(1, Testing::Element(ElementType::Beam, {1, 2}));
  auto member = model.Member(1);
  member.AddChildElement(1, 0);
  model.SetMember(1, member);
  AddBlock(model, {1, 2}, 2, {6, 0, 0});
  EXPECT_EQ(Explode(model), L"3 4");  // 5 and 6 are copies of member 2
  EXPECT_EQ(model.HighestMember(), 6);
  EXPECT_FALSE(model.Member(3).HasElements());
  EXPECT_EQ(model.Member(1).NumElem(), 1);
}

TEST(ExplodeBlocks, AppendsToTheListThatItIsGiven) {
  auto model = Column();
  model.SetElem(1, Testing::Element(ElementType::Beam, {1, 2}));
  auto member = model.Member(1);
  member.AddChildElement(1, 0);
  model.SetMember(1, member);
  AddBlock(model, {1}, 1, {6, 0, 0});
  CEntList members(SelMember, L"9");
  ExplodeBlocks(model, CEntList(SelNone, L"1"), members);
  EXPECT_EQ(members.String(), L"9 2");
}

TEST(ExplodeBlocks, TakesMembersInAscendingNumberAndTheirOffsetsBlockByBlock) {
  auto model = Column();
  MemberAt(model, MembType::Column, L"2 1");
  AddBlock(model, {2, 1}, 1, {6, 0, 0});
  AddBlock(model, {1}, 1, {0, 8, 0});
  Explode(model);
  EXPECT_EQ(model.HighestMember(), 5);
  auto const start = [&](int m) { return model.NodeCoor(model.Member(m).Topo(0)); };
  EXPECT_EQ(start(3), (Vec3<double>{6, 0, 0}));  // of 1 by the first block
  EXPECT_EQ(start(4), (Vec3<double>{0, 8, 0}));  // of 1 by the second
  EXPECT_EQ(start(5), (Vec3<double>{6, 0, 3}));  // of 2
}

TEST(ExplodeBlocks, TakesTheListedBlocksOnlyAndPassesMissingOnesOver) {
  auto model = Column();
  AddBlock(model, {1}, 1, {6, 0, 0});
  AddBlock(model, {1}, 1, {0, 8, 0});
  Explode(model, L"2 7");
  EXPECT_TRUE(model.BlockExist(1));
  EXPECT_FALSE(model.BlockExist(2));
  EXPECT_EQ(model.HighestMember(), 2);
  EXPECT_EQ(model.NodeCoor(model.Member(2).Topo(0)), (Vec3<double>{0, 8, 0}));
  auto const before = model;
  EXPECT_EQ(Explode(model, L"7"), L"");
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(ExplodeBlocks, PassesMembersOverThatDoNotExist) {
  auto model = Column();
  AddBlock(model, {5, 2, 1}, 1, {6, 0, 0});  // the copy of member 1 gets number 2
  Explode(model);
  EXPECT_EQ(model.HighestMember(), 2);
  EXPECT_FALSE(model.BlockExist(1));
}

TEST(ExplodeBlocks, KeepsWordsAndNumbersWithoutANode) {
  auto model = Column();
  NodeAt(model, 1, 0, 1);
  MemberAt(model, MembType::Generic, L"1 arc 3 2");
  MemberAt(model, MembType::Generic, L"1 99");
  AddBlock(model, {2, 3}, 1, {6, 0, 0});
  Explode(model);
  // Member 4 on 4 (0 0 0), 5 (1 0 1), 6 (0 0 3); member 5 on 7, which stands on 4.
  EXPECT_EQ(TopoOf(model, 4), L"4 arc 5 6");
  EXPECT_EQ(TopoOf(model, 5), L"4 99");
}

TEST(ExplodeBlocks, CopiesWhatTheNodesHold) {
  auto model = Column();
  Data::CNode foot({0, 0, 0}, 0, Vbool6(L"pin"));
  foot.SetName(L"foot");
  foot.SetMassProperty(3);
  model.SetNode(1, foot);
  AddBlock(model, {1}, 1, {6, 0, 0});
  Explode(model);
  foot.SetPosition({6, 0, 0});
  EXPECT_TRUE(model.Node(3) == foot);
}

TEST(ExplodeBlocks, GivesMergedNodesTheRestraintOfEither) {
  auto model = Beam();
  model.SetNodeRestraint(1, Vbool6(L"pin"));
  AddBlock(model, {1}, 1, {6, 0, 0});
  Explode(model);
  // Node 3, the copy of 1, stood on 2; node 4 is the copy of 2.
  EXPECT_EQ(TopoOf(model, 2), L"2 4");
  EXPECT_EQ(model.Node(2).Restraint(), Vbool6(true, true, true, false, false, false));
  EXPECT_EQ(model.Node(4).Restraint(), Vbool6());
}

TEST(ExplodeBlocks, LeavesTheOrientationNodeAsItIs) {
  auto model = Column();
  auto member = model.Member(1);
  member.SetOrientationNode(2);
  model.SetMember(1, member);
  AddBlock(model, {1}, 1, {6, 0, 0});
  Explode(model);
  EXPECT_EQ(model.Member(2).OrientationNode(), 2);
}

TEST(ExplodeBlocksProperty, LeavesNoBlockAndNoDanglingReferenceAndIsTheSameAgain) {
  int copies = 0;
  Testing::ForEachRandomModel(40, [&](CZelData model, Random&) {
    auto const before = model;
    std::size_t expected = 0;
    for (auto const& [n, block] : model.Block())
      for (int const m : block.Members())
        if (model.MemberExist(m)) expected += block.Replica().ExpandedOffsets().size();
    auto const members = Explode(model);
    ASSERT_EQ(model.HighestBlock(), 0);
    ASSERT_EQ(model.HighestMember() - before.HighestMember(), static_cast<int>(expected));
    ASSERT_TRUE(Testing::NoDanglingReference(model));
    ASSERT_TRUE(Testing::AttachmentsFollowTopology(model));
    for (int n = 1; n <= before.HighestNode(); ++n)
      ASSERT_EQ(model.NodeExist(n), before.NodeExist(n));
    copies += static_cast<int>(expected);
    auto again = before;
    {
      CUndoStep step(again, false);
      ASSERT_EQ(Explode(again), members);
      step.Accept();
    }
    ASSERT_TRUE(IsUnchanged(again, model));
    ASSERT_TRUE(again.Undo());
    ASSERT_TRUE(IsUnchanged(again, before));
  });
  EXPECT_GT(copies, 50);
}

// Disconnection and merging are each other's inverse.

/// Puts in the place of each list of nodes in a table what it selects.
class WriteOut {
 public:
  explicit WriteOut(CZelData& model) : m_model(model) {}

  template <class Record, class Whole>
  void operator()(RowOf<Record, Whole> const& row) {
    for (int n = 1; n <= (m_model.*row.highest)(); ++n) {
      if (!(m_model.*row.exist)(n)) continue;
      auto record = (m_model.*row.get)(n);
      if (WriteFields(record)) (m_model.*row.set)(n, record, SidMode::Keep);
    }
  }
  void operator()(TableRow<Zel::TaskSlot> const&) {}
  struct Other {
    template <class Row>
    Other(Row const&) {}  // NOLINT: converts by intent
  };
  void operator()(Other) {}

 private:
  template <class Record>
  bool WriteFields(Record& record) {
    bool any = false;
    if constexpr (std::derived_from<Record, CEntList>) any = Write(record);
    ForEachField<Record>([&](auto const& field) {
      if constexpr (std::derived_from<std::remove_cvref_t<decltype(record.*field.member)>,
                                      CEntList>)
        if (Write(record.*field.member)) any = true;
    });
    return any;
  }
  bool Write(CEntList& list) {
    if (list.TypeOf() != SelNode || list.IsAll()) return false;
    list.AssignFromSet(Util::MakeSet(list, m_model));
    return true;
  }

  CZelData& m_model;
};

/// Sets nodes apart that stand together, and takes out the saved lists without a kind, which a
/// renumbering empties. Lists of nodes are written out: a range over numbers that are free would
/// select new nodes.
void MakeDistinct(CZelData& model, Random& random) {
  for (int n = 1; n <= model.HighestNode(); ++n)
    while (model.NodeExist(n) && model.NodesAroundPoint(model.NodeCoor(n), 1e-6).size() > 1)
      model.SetNodeCoor(n, model.NodeCoor(n) + Vec3<double>{0, 0, random.Real(0.001, 0.1)});
  for (int n = model.HighestList(); n > 0; --n)
    if (model.ListExist(n) && model.List(n).TypeOf() == SelNone) model.BlankList(n, 1);
  WriteOut write(model);
  Registry::kTables.ForEach(write);
}

/// A model after a renumbering that moves no node, which writes lists anew and takes references to
/// missing records out, with all lists of nodes written out.
CZelData Reworded(CZelData model) {
  CRenumber renumber(&model);
  renumber.Index(CEntList(SelNode, L""), CModule::None);
  renumber.Go(false);
  WriteOut write(model);
  Registry::kTables.ForEach(write);
  return model;
}

TEST(DisconnectProperty, IsTakenBackByMergingTheNewNodes) {
  int merged = 0;
  Testing::ForEachRandomModel(20, [&](CZelData before, Random& random) {
    MakeDistinct(before, random);
    for (auto const kind : {SelElement, SelMember})
      for (bool const full : {false, true}) {
        Util::CTopoSet set(kind);
        for (int n = 1; n <= before.HighestEnt(kind); ++n)
          if (random.Percent(60)) set.AddTo(n, -1);
        auto model = before;
        CDisconnect tool(model);
        tool.SetFullDisconnect(full);
        if (!tool.DisconnectEntity(kind, &set)) continue;
        Util::CSet newNodes(SelNode);
        for (int n = before.HighestNode() + 1; n <= model.HighestNode(); ++n) newNodes.AddTo(n);
        if (newNodes.IsEmpty()) continue;
        CReduceCoinc reduce(model, 1e-6, 0);
        Util::CSet all(SelNode);
        for (int n = 1; n <= model.HighestNode(); ++n)
          if (model.NodeExist(n)) all.AddTo(n);
        ASSERT_TRUE(reduce.SetSearchSet(all, CReduceCoinc::kWholeSearch));
        std::vector<std::pair<int, int>> pairs;
        ASSERT_TRUE(reduce.Do(newNodes, pairs));
        ASSERT_EQ(static_cast<int>(pairs.size()), newNodes.NumItem());
        ASSERT_TRUE(IsUnchanged(Reworded(model), Reworded(before)));
        merged += static_cast<int>(pairs.size());
      }
  });
  EXPECT_GT(merged, 500);
}

}  // namespace
}  // namespace Tarvex::ExplodeBlocksTest
