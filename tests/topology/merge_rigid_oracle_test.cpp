// The merge of rigid constraints against the same rule pair by pair, and what holds behind it on
// any model.
#include <gtest/gtest.h>

#include <map>
#include <numeric>
#include <set>

#include "store/model/list_expansion.h"
#include "store/model/zel_data.h"
#include "store/record/node.h"
#include "tarvex/merge_rigid.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex::MergeRigidOracleTest {
namespace {

using Data::CEntList;
using Data::CRigid;
using Data::LinkType;
using Testing::IsUnchanged;
using Testing::Random;

/// The rule, pair by pair.
std::vector<CRigid> MergedPairByPair(CZelData const& model, int stage) {
  auto copy = model;
  MergeRigid const tool(copy);
  auto rigids = model.Rigid();
  if (rigids.size() < 2) return rigids;
  auto const withPrimary = [](CRigid const& rigid) {
    CEntList list(rigid.ConstrainedNodes());
    list.AddTo(rigid.PrimaryNode());
    return list;
  };
  for (std::size_t r = 0; r < rigids.size(); ++r) {
    if (!tool.CheckRigid(rigids[r], stage)) continue;
    auto reached = withPrimary(rigids[r]);
    for (std::size_t s = r + 1; s < rigids.size(); ++s) {
      if (!tool.CheckRigid(rigids[s], stage) ||
          rigids[s].PrimaryNode() == rigids[r].PrimaryNode() ||
          rigids[s].TypeOf() != rigids[r].TypeOf() ||
          !tool.ListsOverlap(reached, withPrimary(rigids[s])))
        continue;
      tool.DoMerge(rigids[r], rigids[s]);
      reached = rigids[r].ConstrainedNodes();
    }
  }
  return rigids;
}

std::set<int> NodesOf(CZelData const& model, CRigid const& rigid) {
  auto const& items = Util::Item(rigid.ConstrainedNodes(), model);
  std::set<int> nodes(items.begin(), items.end());
  if (model.NodeExist(rigid.PrimaryNode())) nodes.insert(rigid.PrimaryNode());
  return nodes;
}

std::wstring RandomList(Random& random, int nodes) {
  std::wstring text;
  for (int i = random.Int(1, 4); i > 0; --i) text += std::to_wstring(random.Int(1, nodes)) + L" ";
  if (random.Percent(10)) text += L"not " + std::to_wstring(random.Int(1, nodes));
  return text;
}

/// A model of nodes, some restrained, with many constraints that touch each other.
CZelData RandomRigids(Random& random) {
  CZelData model;
  int const nodes = random.Int(6, 60);
  for (int n = 1; n <= nodes; ++n) {
    Testing::NodeAt(model, n, 0, 0);
    if (random.Percent(15)) model.SetNodeRestraint(n, random.Flags());
  }
  std::vector<LinkType> const types{LinkType::All,       LinkType::All,    LinkType::All,
                                    LinkType::Diaphragm, LinkType::Pinned, LinkType::Inert};
  for (int i = random.Int(0, 30); i > 0; --i)
    model.SetRigid(model.HighestRigid() + 1,
                   {L"", random.Of(types), random.Int(1, nodes + 2),
                    CEntList(SelNode, CString(RandomList(random, nodes))),
                    CEntList(SelNone, random.Percent(90) ? L"all" : L"1")});
  if (random.Percent(10)) model.BlankNode(random.Int(1, nodes), 1);
  return model;
}

TEST(MergeRigidOracle, GivesWhatTheRuleGivesPairByPairOnManyConstraints) {
  Random random(11);
  int merged = 0;
  for (int run = 0; run < 400; ++run) {
    SCOPED_TRACE(run);
    auto model = RandomRigids(random);
    auto const expected = MergedPairByPair(model, 0);
    auto const before = model;
    {
      MergeRigid tool(model);
      tool.Merge(0);
      ASSERT_TRUE(model.Rigid() == expected);
      if (!(model == before)) ++merged;
    }
    ASSERT_TRUE(IsUnchanged(model, before));
  }
  EXPECT_GT(merged, 200);
}

TEST(MergeRigidOracle, GivesWhatTheRuleGivesPairByPairOnRandomModels) {
  int merged = 0;
  Testing::ForEachRandomModel(60, [&](CZelData model, Random& random) {
    // Some more that are sure to touch each other.
    for (int i = 0; i < 4; ++i)
      model.SetRigid(
          model.HighestRigid() + 1,
          {L"", LinkType::All, random.Int(1, model.HighestNode()),
           CEntList(SelNode, CString(RandomList(random, 12))), CEntList(SelNone, CString(L"all"))});
    for (int const stage : {0, 1, 2}) {
      auto const expected = MergedPairByPair(model, stage);
      auto const before = model;
      {
        MergeRigid tool(model);
        tool.Merge(stage);
        ASSERT_TRUE(model.Rigid() == expected);
        if (!(model == before)) ++merged;
      }
      ASSERT_TRUE(IsUnchanged(model, before));
    }
  });
  EXPECT_GT(merged, 20);
}

/// Which nodes one type of constraints ties together, by union of those that share a node.
std::map<int, int> PartsOf(CZelData const& model, LinkType type,
                           std::vector<CRigid> const& rigids) {
  std::map<int, int> parent;
  auto const rootOf = [&](int node) {
    while (parent.try_emplace(node, node).first->second != node) node = parent.at(node);
    return node;
  };
  for (auto const& rigid : rigids) {
    if (rigid.TypeOf() != type) continue;
    auto const nodes = NodesOf(model, rigid);
    for (int const node : nodes) {
      int const a = rootOf(*nodes.begin());
      int const b = rootOf(node);
      parent[std::max(a, b)] = std::min(a, b);
    }
  }
  std::map<int, int> parts;
  for (auto const& [node, up] : parent) parts.emplace(node, rootOf(node));
  return parts;
}

TEST(MergeRigidProperty, TiesNoNodesTogetherThatWereNotTiedBefore) {
  Random random(12);
  for (int run = 0; run < 300; ++run) {
    auto model = RandomRigids(random);
    auto const mergeable = [&](std::vector<CRigid> rigids) {
      MergeRigid const tool(model);
      std::erase_if(rigids, [&](CRigid const& rigid) { return !tool.CheckRigid(rigid, 0); });
      return rigids;
    };
    auto const before = PartsOf(model, LinkType::All, mergeable(model.Rigid()));
    MergeRigid tool(model);
    tool.Merge(0);
    auto const after = PartsOf(model, LinkType::All, mergeable(model.Rigid()));
    for (auto const& [node, part] : after) {
      ASSERT_TRUE(before.contains(node)) << node;
      // All of a part after were of one part before.
      ASSERT_EQ(before.at(node), before.at(part)) << node;
    }
  }
}

/// Constraints in an order in which each shares a constrained node with an earlier one of its
/// cluster, and no node of another cluster: one walk merges each cluster whole.
TEST(MergeRigidProperty, LeavesNoTwoThatTouchWhereEachJoinsOnToAnEarlierOne) {
  Random random(13);
  int away = 0;
  for (int run = 0; run < 200; ++run) {
    CZelData model;
    int const nodes = 200;
    for (int n = 1; n <= nodes; ++n) Testing::NodeAt(model, n, 0, 0);
    auto numbers = random.Numbers(nodes / 2);  // distinct, up to nodes
    auto const take = [&] {
      int const n = numbers.back();
      numbers.pop_back();
      return n;
    };
    std::vector<std::vector<int>> constrained(3);  // by cluster
    int count = 0;
    for (int i = random.Int(2, 20); i > 0; --i) {
      auto& own = constrained[static_cast<std::size_t>(random.Int(0, 2))];
      CEntList list(SelNode, L"");
      if (!own.empty()) list.AddTo(random.Of(own));
      for (int k = random.Int(1, 2); k > 0; --k) {
        own.push_back(take());
        list.AddTo(own.back());
      }
      model.SetRigid(++count, {L"", LinkType::All, take(), list, CEntList(SelNone, L"all")});
    }
    MergeRigid tool(model);
    tool.Merge(0);
    std::set<int> seen;
    for (auto const& rigid : model.Rigid()) {
      if (!tool.CheckRigid(rigid, 0)) {
        ++away;
        continue;
      }
      for (int const node : NodesOf(model, rigid)) ASSERT_TRUE(seen.insert(node).second) << node;
    }
  }
  EXPECT_GT(away, 500);
}

TEST(MergeRigidProperty, WritesNoUnknownNodeAndTouchesNothingElse) {
  Testing::ForEachRandomModel(40, [](CZelData model, Random&) {
    auto const before = model;
    MergeRigid tool(model);
    tool.Merge(0);
    ASSERT_EQ(model.HighestRigid(), before.HighestRigid());
    for (auto const& line : Testing::Differences(model, before))
      ASSERT_EQ(line.rfind("Rigid ", 0), 0U) << line;
    for (int n = 1; n <= model.HighestRigid(); ++n)
      if (tool.CheckRigid(model.Rigid(n), 0)) {
        ASSERT_TRUE(model.NodeExist(model.Rigid(n).PrimaryNode()));
      }
    auto again = before;
    MergeRigid other(again);
    other.Merge(0);
    ASSERT_TRUE(IsUnchanged(again, model));
  });
}

TEST(MergeRigidProperty, MergesALongChainWithoutLookingAtEachPair) {
  // 20000 constraints of two nodes each, one behind the other: pair by pair these are 2e8 looks.
  CZelData model;
  int const count = 20000;
  for (int n = 1; n <= 2 * count + 1; ++n) model.CreateNode(n, {1.0 * n, 0, 0}, 0, Vbool6());
  for (int i = 1; i <= count; ++i) {
    CEntList list(SelNode, L"");
    list.AddTo(2 * i - 1);
    list.AddTo(2 * i + 1);
    model.SetRigid(i, {L"", LinkType::All, 2 * i, list, CEntList(SelNone, L"all")});
  }
  MergeRigid tool(model);
  tool.Merge(0);
  // Two nodes each, and the primary node of each that was merged away.
  EXPECT_EQ(model.Rigid(1).ConstrainedNodes().NumWord(), 2 * count + count - 1);
  EXPECT_EQ(model.Rigid(2).TypeOf(), LinkType::Inert);
  EXPECT_EQ(model.Rigid(count).TypeOf(), LinkType::Inert);
}

}  // namespace
}  // namespace Tarvex::MergeRigidOracleTest
