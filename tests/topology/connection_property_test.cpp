// What holds behind the tools of slabs, disconnection and edges on any model.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include "store/model/list_expansion.h"
#include "store/model/undo_step.h"
#include "store/model/zel_data.h"
#include "store/record/element.h"
#include "store/record/joint.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/rigid.h"
#include "store/record/section.h"
#include "tarvex/connect_slab.h"
#include "tarvex/disconnect.h"
#include "tarvex/merge_rigid.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex::ConnectionPropertyTest {
namespace {

using Testing::ForEachRandomModel;
using Testing::IsUnchanged;
using Testing::Random;

constexpr int kModels = 40;

// Slabs: against the rule without an index.

struct PlainSlab {
  CZelData& model;
  Util::CSet const& set;
  ConnectMode mode;
  double radius;
  bool overwrite;
  std::array<int, 3> counts{};

  bool IsColumn(int n) const {
    return model.ElemExist(n) && model.Elem(n).IsBeam() && model.ElemIsVertical(n) &&
           model.NodeExist(model.Elem(n).Topo(0)) && model.NodeExist(model.Elem(n).Topo(1));
  }
  bool IsRigid(int node) const {
    for (auto const& rigid : model.Rigid())
      if (rigid.PrimaryNode() == node ||
          Util::Item(rigid.ConstrainedNodes(), model).IsItemIncluded(node))
        return true;
    return false;
  }
  int RigidAtNode(int node) const {
    for (int n = 1; n <= model.HighestRigid(); ++n)
      if (model.Rigid(n).PrimaryNode() == node) return n;
    return 0;
  }
  double Radius(int node) const {
    double greatest = 0;
    for (int const n : set) {
      if (!model.ElemExist(n) || !model.Elem(n).IsBeam() || !model.ElemIsVertical(n)) continue;
      auto const& e = model.Elem(n);
      if ((e.Topo(0) != node && e.Topo(1) != node) || !model.SectionExist(e.Property())) continue;
      auto const box = model.Section(e.Property()).EnclosingBox(0, Data::SecRef::Middle);
      greatest = std::max(greatest, box.Width() * box.Height() * 0.25);
    }
    return greatest;
  }
  void Run() {
    std::vector<std::pair<int, int>> candidates;
    for (int pass = 0; pass < 2; ++pass) {
      for (int const n : set) {
        if (!IsColumn(n)) continue;
        ++counts[0];
        int const a = model.Elem(n).Topo(0);
        int const b = model.Elem(n).Topo(1);
        double const rise = model.NodeCoor(b).z - model.NodeCoor(a).z;
        int const node = rise == 0 || (rise > 0) == (pass == 0) ? b : a;
        if (overwrite || !IsRigid(node)) candidates.emplace_back(node, n);
      }
      for (auto const& [node, column] : candidates) Tie(node, column);
    }
  }
  void Tie(int node, int column) {
    if (mode == ConnectMode::WithinSection) radius = Radius(node);
    std::vector<int> nodes{node};
    for (int const e : model.Node(node).AttachedEnt(SelElement)) {
      if (e == column || !model.ElemExist(e) || !model.Elem(e).Is2D() || !model.ElemIsHorizontal(e))
        continue;
      if (mode != ConnectMode::AllAttached &&
          Length(model.NodeCoor(node) - model.Centre(e)) > radius)
        continue;
      for (int const m : model.Elem(e).Topology())
        if (std::count(nodes.begin(), nodes.end(), m) == 0) nodes.push_back(m);
    }
    ++counts[1];
    int const existing = RigidAtNode(node);
    if (nodes.size() < 2 || (existing != 0 && !overwrite)) return;
    CString name;
    name.Format(L"Column %i", column);
    model.SetRigid(existing != 0 ? existing : model.HighestRigid() + 1,
                   {name, Data::LinkType::All, node, Data::CEntList(SelNode, nodes),
                    Data::CEntList(SelNone, Data::CEntList::All())});
    ++counts[2];
  }
};

/// A random model with columns of random sections above and below nodes of a level plate, and of
/// any other element.
CZelData WithColumns(CZelData model, Random& random) {
  std::vector<int> nodes;
  for (auto const& [n, element] : model.Elem())
    if (element.NumTopo() > 0 && (model.ElemIsHorizontal(static_cast<int>(n)) || random.Percent(5)))
      nodes.push_back(element.Topo(0));
  for (int k = 0; k < 12 && !nodes.empty(); ++k) {
    int const node = random.Of(nodes);
    if (!model.NodeExist(node)) continue;
    auto at = model.NodeCoor(node);
    at.z += random.Percent(50) ? 3 : -3;
    int const other = Testing::NodeAt(model, at.x, at.y, at.z);
    auto column = random.Percent(50) ? Testing::Element(ElementType::Beam, {node, other})
                                     : Testing::Element(ElementType::Beam, {other, node});
    column.SetProperty(random.Int(0, model.HighestSection()));
    model.SetElem(model.HighestElem() + 1, column);
  }
  return model;
}

Util::CSet MostElements(CZelData const& model, Random& random) {
  Util::CSet set(SelElement);
  for (int n = 1; n <= model.HighestElem() + 2; ++n)
    if (random.Percent(80)) set.AddTo(n);
  return set;
}

TEST(ConnectSlabProperty, GivesWhatTheRuleGivesWithoutAnIndex) {
  int written = 0;
  ForEachRandomModel(kModels, [&](CZelData const& random_model, Random& random) {
    auto const before = WithColumns(random_model, random);
    auto const set = MostElements(before, random);
    for (int const mode : {0, 1, 2})
      for (bool const overwrite : {false, true}) {
        double const radius = random.Real(0, 1.5);
        auto expected = before;
        PlainSlab plain{expected, set, static_cast<ConnectMode>(mode), radius, overwrite};
        plain.Run();
        auto model = before;
        CConnectSlab tool(model);
        tool.SetSet(set);
        tool.SetMode(static_cast<ConnectMode>(mode));
        tool.SetRadius(radius);
        tool.SetOverwrite(overwrite);
        ASSERT_EQ(tool.Do(), plain.counts[2] > 0);
        for (int i = 0; i < 3; ++i)
          ASSERT_EQ(tool.NumItem(i + 1), plain.counts[static_cast<std::size_t>(i)]);
        ASSERT_TRUE(IsUnchanged(model, expected));
        written += plain.counts[2];
      }
  });
  EXPECT_GT(written, 200);
}

TEST(ConnectSlabProperty, ChangesRigidConstraintsAloneAndNamesNodesThatExist) {
  ForEachRandomModel(kModels, [](CZelData const& random_model, Random& random) {
    auto const before = WithColumns(random_model, random);
    auto model = before;
    {
      CUndoStep step(model, false);
      CConnectSlab tool(model);
      tool.SetSet(MostElements(before, random));
      tool.Do();
      step.Accept();
    }
    for (auto const& line : Testing::Differences(model, before))
      ASSERT_EQ(line.rfind("Rigid ", 0), 0U) << line;
    for (int n = before.HighestRigid() + 1; n <= model.HighestRigid(); ++n) {
      auto const& rigid = model.Rigid(n);
      ASSERT_TRUE(model.NodeExist(rigid.PrimaryNode()));
      ASSERT_EQ(rigid.ConstrainedNodes().NumWord(),
                Util::Item(rigid.ConstrainedNodes(), model).NumItem());
    }
    ASSERT_FALSE(model.rebuildHold);
    ASSERT_TRUE(model.Undo());
    ASSERT_TRUE(IsUnchanged(model, before));
  });
}

// Disconnection.

struct Use {
  SelType kind;
  bool byNodes;
  bool full;
  bool joint;
  bool spring;
};

std::vector<Use> AllUses() {
  std::vector<Use> uses;
  for (auto const kind : {SelElement, SelMember})
    for (int bits = 0; bits < 16; ++bits)
      uses.push_back({kind, (bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0});
  return uses;
}

bool Disconnect(CZelData& model, Use const& use, Util::CTopoSet set) {
  CDisconnect tool(model);
  tool.SetFullDisconnect(use.full);
  tool.SetCreateJoint(use.joint);
  tool.SetCreateSpring(use.spring);
  return use.byNodes ? tool.DisconnectNode(use.kind, &set) : tool.DisconnectEntity(use.kind, &set);
}

Util::CTopoSet RandomSet(CZelData const& model, Use const& use, Random& random) {
  Util::CTopoSet set(use.byNodes ? SelNode : use.kind);
  int const highest = use.byNodes ? model.HighestNode() : model.HighestEnt(use.kind);
  for (int n = 1; n <= highest + 2; ++n)
    if (random.Percent(60)) set.AddTo(n, -1);
  return set;
}

template <class Check>
void ForEachDisconnection(Check&& check) {
  ForEachRandomModel(kModels / 5, [&](CZelData const& before, Random& random) {
    for (auto const& use : AllUses()) {
      auto const set = RandomSet(before, use, random);
      auto after = before;
      bool const did = Disconnect(after, use, set);
      check(use, set, before, after, did);
      if (::testing::Test::HasFailure()) return;
    }
  });
}

TEST(DisconnectProperty, LeavesNoDanglingReferenceAndTrueAttachments) {
  ForEachDisconnection(
      [](Use const&, Util::CTopoSet const&, CZelData const&, CZelData const& after, bool) {
        ASSERT_TRUE(Testing::NoDanglingReference(after));
        ASSERT_TRUE(Testing::AttachmentsFollowTopology(after));
      });
}

TEST(DisconnectProperty, GivesTheSameFromTheSameStateAndIsUndoneToTheBit) {
  ForEachDisconnection([](Use const& use, Util::CTopoSet const& set, CZelData const& before,
                          CZelData const& after, bool did) {
    auto again = before;
    {
      CUndoStep step(again, false);
      ASSERT_EQ(Disconnect(again, use, set), did);
      step.Accept();
    }
    ASSERT_TRUE(IsUnchanged(again, after));
    ASSERT_TRUE(again.Undo());
    ASSERT_TRUE(IsUnchanged(again, before));
  });
}

TEST(DisconnectProperty, PutsEachNewNodeWhereTheOldOneIsWithoutRestraint) {
  int made = 0;
  ForEachDisconnection([&](Use const& use, Util::CTopoSet const&, CZelData const& before,
                           CZelData const& after, bool) {
    if (use.kind != SelElement) return;
    for (int n = 1; n <= before.HighestElem(); ++n) {
      if (!before.ElemExist(n)) continue;
      auto const& was = before.Elem(n).Topology();
      auto const& is = after.Elem(n).Topology();
      ASSERT_EQ(is.size(), was.size());
      for (std::size_t i = 0; i < is.size(); ++i) {
        if (is[i] == was[i]) continue;
        ++made;
        ASSERT_FALSE(before.NodeExist(is[i]));
        auto expected = before.Node(was[i]);
        expected.SetRestraint(Vbool6());
        ASSERT_TRUE(after.Node(is[i]) == expected);
      }
    }
    for (int n = 1; n <= before.HighestNode(); ++n)
      if (before.NodeExist(n)) {
        ASSERT_TRUE(after.Node(n) == before.Node(n));
      }
  });
  EXPECT_GT(made, 1000);
}

TEST(DisconnectProperty, MakesAJointAndASpringForEachNewNodeWhereTheyAreAskedFor) {
  ForEachDisconnection([](Use const& use, Util::CTopoSet const&, CZelData const& before,
                          CZelData const& after, bool) {
    int const made = after.HighestNode() - before.HighestNode();
    ASSERT_EQ(after.HighestJoint() - before.HighestJoint(), use.joint ? made : 0);
    ASSERT_EQ(after.HighestSpringProp() - before.HighestSpringProp(), use.spring ? made : 0);
    if (use.kind == SelElement) {
      ASSERT_EQ(after.HighestElem() - before.HighestElem(), use.spring ? made : 0);
    }
    if (!use.spring) {
      ASSERT_EQ(after.HighestMember(), before.HighestMember());
    }
  });
}

TEST(DisconnectProperty, LeavesNoNodeToTwoOfTheEntitiesThatWereSetApart) {
  ForEachDisconnection([](Use const& use, Util::CTopoSet const& set, CZelData const& before,
                          CZelData const& after, bool) {
    if (use.byNodes || use.kind != SelElement) return;
    std::map<int, int> users;
    for (auto const& [n, place] : set) {
      if (!before.ElemExist(n)) continue;
      // A place that repeats a node of its own element keeps the node.
      auto const& was = before.Elem(n).Topology();
      if (std::set<int>(was.begin(), was.end()).size() != was.size()) continue;
      for (int const node : after.Elem(n).Topology()) ++users[node];
    }
    for (auto const& [node, count] : users) {
      if (node > 0) {
        ASSERT_EQ(count, 1) << node;
      }
    }
  });
}

/// Puts the old nodes back into the topologies, which takes the new ones out of use.
TEST(DisconnectProperty, ComesBackWhenTheNewNodesAreTakenForTheOldOnes) {
  ForEachDisconnection(
      [](Use const& use, Util::CTopoSet const&, CZelData const& before, CZelData after, bool) {
        if (use.joint || use.spring) return;
        auto const oldNode = [&](int n, SEntRef ref, int place) {
          return n > before.HighestNode() ? before.EntTopo(ref, place) : n;
        };
        for (auto const kind : {SelElement, SelMember})
          for (int n = 1; n <= before.HighestEnt(kind); ++n) {
            SEntRef const ref(kind, n);
            for (int i = 0; i < before.EntNumTopo(ref); ++i)
              if (int const node = oldNode(after.EntTopo(ref, i), ref, i);
                  node != after.EntTopo(ref, i))
                after.SetEntTopo(ref, i, node);
          }
        after.BlankNode(before.HighestNode() + 1, after.HighestNode() - before.HighestNode());
        ASSERT_TRUE(IsUnchanged(after, before));
      });
}

// Edges.

TEST(MemberEdgesProperty, MovesChildrenOnlyAndJoinsEachNewNodeByAPin) {
  int released = 0;
  ForEachRandomModel(2 * kModels, [&](CZelData model, Random& random) {
    // Each 2D member gets plates of the model that no other member has, and the flag.
    for (int m = 1; m <= model.HighestMember(); ++m) {
      if (!model.MemberExist(m) || !model.Member(m).Is2D()) continue;
      auto member = model.Member(m);
      member.SetReleaseEdges(true);
      for (int n = 1; n <= model.HighestElem(); ++n)
        if (model.EntIs2D({SelElement, n}) && model.ElemMember(n) == 0 && random.Percent(40)) {
          if (model.ElemExist(n)) {
            auto element = model.Elem(n);
            element.SetParentMember({m, 0});
            model.SetElem(n, element);
          }
          member.AddChildElement(n, 0);
        }
      model.SetMember(m, member);
    }
    for (int m = 1; m <= model.HighestMember(); ++m) {
      if (!model.MemberExist(m)) continue;
      auto const before = model;
      MemberEdges(model).ReleaseEdges(m);
      ASSERT_TRUE(Testing::NoDanglingReference(model));
      ASSERT_TRUE(Testing::AttachmentsFollowTopology(model));
      int const made = model.HighestNode() - before.HighestNode();
      ASSERT_EQ(model.HighestJoint() - before.HighestJoint(), made);
      ASSERT_TRUE(model.Member(m) == before.Member(m));
      std::set<int> children;
      for (int i = 0; i < before.Member(m).NumElem(); ++i)
        children.insert(before.Member(m).Elem(i));
      for (int k = 1; k <= made; ++k) {
        ++released;
        auto const& joint = model.Joint(before.HighestJoint() + k);
        ASSERT_EQ(joint.ConstrainedNode(), before.HighestNode() + k);
        ASSERT_EQ(model.NodeCoor(joint.ConstrainedNode()), before.NodeCoor(joint.PrimaryNode()));
        for (int const e : model.Node(joint.ConstrainedNode()).AttachedEnt(SelElement))
          ASSERT_TRUE(children.contains(e));
        for (int const e : model.Node(joint.PrimaryNode()).AttachedEnt(SelElement))
          ASSERT_FALSE(children.contains(e));
      }
    }
  });
  EXPECT_GT(released, 100);
}

// Models that lack nodes.

TEST(ConnectionProperty, ModelsThatLackNodesAreWorkedOnAlikeEachTimeAndUndone) {
  int changed = 0;
  ForEachRandomModel(kModels, [&](CZelData const& random_model, Random& random) {
    auto before = WithColumns(random_model, random);
    for (int n = 1; n <= before.HighestNode(); ++n)
      if (random.Percent(5)) before.BlankNode(n, 1);
    auto const set = MostElements(before, random);
    Use const use{random.Percent(50) ? SelElement : SelMember, random.Percent(50),
                  random.Percent(50), true, true};
    auto const parts = RandomSet(before, use, random);
    auto const runAll = [&](CZelData& model) {
      CUndoStep step(model, false);
      CConnectSlab slab(model);
      slab.SetSet(set);
      slab.Do();
      {
        MergeRigid merged(model);
        merged.Merge(0);
      }
      Disconnect(model, use, parts);
      for (int m = 1; m <= model.HighestMember(); ++m)
        if (model.MemberExist(m)) MemberEdges(model).ReleaseEdges(m);
      Data::CEntList members(SelMember, L"");
      ExplodeBlocks(model, Data::CEntList(SelNone, L"all"), members);
      step.Accept();
      return members.String();
    };
    auto once = before;
    auto again = before;
    ASSERT_EQ(runAll(once), runAll(again));
    ASSERT_TRUE(IsUnchanged(once, again));
    ASSERT_TRUE(Testing::AttachmentsFollowTopology(once));
    if (!(once == before)) ++changed;
    ASSERT_TRUE(once.Undo());
    ASSERT_TRUE(IsUnchanged(once, before));
  });
  EXPECT_GT(changed, kModels / 2);
}

}  // namespace
}  // namespace Tarvex::ConnectionPropertyTest
